#include "followup/FichierBilan.h"

#include "tests/support/Banc.h"

namespace tirelune {

TEST(FichierBilan, LeNomPrendLExtensionDuDossier)
{
    Banc banc;
    const auto dossier = DepuisChemin(banc.dossier);
    EXPECT_EQ(FichierBilan(dossier, u"Abel"), dossier + u"/Abel.bil");
    banc.Ecrire("Abel.BIL", "");
    EXPECT_EQ(FichierBilan(dossier, u"Abel"), dossier + u"/Abel.BIL");
    EXPECT_EQ(FichierBilan(dossier, u"abel"), dossier + u"/abel.bil");
    banc.Ecrire("Abel.bil", "");
    EXPECT_EQ(FichierBilan(dossier, u"Abel"), dossier + u"/Abel.bil");
}

TEST(FichierBilan, CeQuiEstUnFichierDElève)
{
    for (const auto* nom : {u"a.bil", u"Abel.BIL", u"J.-C..bIl", u"..bil"})
        EXPECT_TRUE(EstFichierBilan(nom)) << EnUtf8(nom);
    for (const auto* nom : {u".bil", u"", u"bil", u"a.bil ", u"a.bil.abîmé1", u"a.txt", u"abil"})
        EXPECT_FALSE(EstFichierBilan(nom)) << EnUtf8(nom);
    EXPECT_EQ(RacineBilan(u"J.-C..BIL"), u"J.-C.");
}

TEST(FichierBilan, CeQuiEstMisDeCôté)
{
    for (const auto* nom : {u"Zoé.bil.abîmé1", u"Zoé.BIL.autre12", u"a.bil.autre0"})
        EXPECT_TRUE(EstMisDeCôté(nom)) << EnUtf8(nom);
    for (const auto* nom : {u"Zoé.bil", u"Zoé.bil.abîmé", u"Zoé.bil.autre", u".bil.autre1", u"Zoé.txt.autre1", u"12",
                            u"", u"Zoé.bil.autre1x", u"Zoé.bil1"})
        EXPECT_FALSE(EstMisDeCôté(nom)) << EnUtf8(nom);
}

TEST(FichierBilan, LireDitCeQuIlEnEst)
{
    Banc banc;
    const auto lire = [&](std::chrono::seconds âge, std::string_view octets) {
        banc.plateforme.âge = âge;
        return LireBilan(banc.plateforme, DepuisChemin(banc.Ecrire("Zoé.bil", octets)));
    };
    auto absent = LireBilan(banc.plateforme, DepuisChemin(banc.dossier / "Tom.bil"));
    EXPECT_FALSE(absent.Octets || absent.Entier || absent.Coupé());
    EXPECT_TRUE(absent.Mouvant);
    const auto vide = lire(1h, "");
    EXPECT_FALSE(vide.Entier || vide.Coupé() || vide.Mouvant);
    for (const auto& [âge, jeune] :
         {std::pair{-10s, false}, std::pair{-9s, true}, std::pair{9s, true}, std::pair{10s, false}})
        EXPECT_EQ(lire(âge, "").Mouvant, jeune) << âge.count();
    EXPECT_TRUE(lire(1h, "\r\n").Coupé());
    EXPECT_TRUE(lire(1h, "\"*\"\r\n").Coupé());
}

} // namespace tirelune
