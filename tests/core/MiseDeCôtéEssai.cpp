#include "core/MiseDeCôté.h"

#include "tests/support/Banc.h"

namespace tirelune {

TEST(MiseDeCôté, UneCopieDesMêmesOctetsSuffit)
{
    Banc banc;
    const auto fichier = DepuisChemin(banc.dossier / "Zoé.bil");
    const auto mettre = [&](const std::string& octets) {
        return MettreDeCôté(banc.plateforme, fichier, octets, SuffixeAutre);
    };
    auto copie = mettre("un");
    ASSERT_TRUE(copie.has_value());
    EXPECT_EQ(copie->Fichier, fichier + u".autre1");
    EXPECT_TRUE(copie->Nouvelle);
    EXPECT_EQ(mettre("deux")->Fichier, fichier + u".autre2");
    EXPECT_EQ(mettre("deux")->Fichier, fichier + u".autre2");
    EXPECT_FALSE(mettre("un")->Nouvelle);
    EXPECT_EQ(banc.Lire("Zoé.bil.autre1"), "un");
    EXPECT_EQ(banc.Lire("Zoé.bil.autre2"), "deux");
    EXPECT_FALSE(banc.Existe("Zoé.bil.autre3"));
}

TEST(MiseDeCôté, UnNomTropLongPourUneCopieNeSEcritPas)
{
    Banc banc;
    const auto fichier = DepuisChemin(banc.dossier / (std::string(251, 'a') + ".bil"));
    EXPECT_FALSE(MettreDeCôté(banc.plateforme, fichier, "un", SuffixeAbîmé));
}

} // namespace tirelune
