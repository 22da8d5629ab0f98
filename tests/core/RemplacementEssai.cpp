#include "core/Remplacement.h"

#include "tests/support/Banc.h"

namespace tirelune {

namespace {

// The first `fois` writes leave half a file.
void FaireEchouer(Banc& banc, const std::string& nom, int fois)
{
    banc.plateforme.échecEcriture = [&banc, nom, fois](const Chemin&) mutable -> std::optional<EchecFichier> {
        if (fois-- <= 0)
            return std::nullopt;
        banc.Ecrire(nom, "moit");
        return EchecFichier::Ecriture;
    };
}

} // namespace

TEST(Remplacement, RéussiLeNouveauContenuEstLà)
{
    Banc banc;
    banc.Ecrire("a.txt", "ancien");
    EXPECT_FALSE(RemplacerFichier(banc.plateforme, banc.dossier / "a.txt", "nouveau"));
    EXPECT_EQ(banc.Lire("a.txt"), "nouveau");
}

TEST(Remplacement, EchouéLAncienContenuRevient)
{
    Banc banc;
    banc.Ecrire("a.txt", "ancien");
    FaireEchouer(banc, "a.txt", 1);
    const auto échec = RemplacerFichier(banc.plateforme, banc.dossier / "a.txt", "nouveau");
    ASSERT_TRUE(échec.has_value());
    EXPECT_EQ(échec->Cause, EchecFichier::Ecriture);
    EXPECT_TRUE(échec->CommeAvant);
    EXPECT_EQ(banc.Lire("a.txt"), "ancien");
}

TEST(Remplacement, CeQuiNAPasEtéTouchéEstCommeAvant)
{
    Banc banc;
    banc.Ecrire("a.txt", "ancien");
    int écritures = 0;
    banc.plateforme.échecEcriture = [&](const Chemin&) { // a folder that is read only
        ++écritures;
        return EchecFichier::Ouverture;
    };
    const auto échec = RemplacerFichier(banc.plateforme, banc.dossier / "a.txt", "nouveau");
    EXPECT_TRUE(échec->CommeAvant);
    EXPECT_EQ(écritures, 1);
    EXPECT_EQ(banc.Lire("a.txt"), "ancien");
}

TEST(Remplacement, RienNeRevientRienDeMoitiéNeReste)
{
    Banc banc;
    banc.Ecrire("a.txt", "ancien");
    FaireEchouer(banc, "a.txt", 2);
    const auto échec = RemplacerFichier(banc.plateforme, banc.dossier / "a.txt", "nouveau");
    EXPECT_FALSE(échec->CommeAvant);
    EXPECT_FALSE(banc.Existe("a.txt"));
}

TEST(Remplacement, CeQuiNExistaitPasNExisteToujoursPas)
{
    Banc banc;
    FaireEchouer(banc, "a.txt", 1);
    const auto échec = RemplacerFichier(banc.plateforme, banc.dossier / "a.txt", "nouveau");
    EXPECT_TRUE(échec->CommeAvant);
    EXPECT_FALSE(banc.Existe("a.txt"));
}

TEST(Remplacement, LeMessageDitCeQuIlEnEst)
{
    const auto rien = MessageEchec({EchecFichier::Ecriture, true}, u"/a/b.txt");
    EXPECT_EQ(rien, u"Impossible d'enregistrer le fichier\n/a/b.txt\n\nLe disque est peut-être plein ou n'est plus "
                    u"accessible.\nRien n'a changé : recommencez quand ce sera réparé.");
    EXPECT_EQ(MessageEchec({EchecFichier::Ouverture, false}, u"/a/b.txt"),
              u"Impossible d'enregistrer le fichier\n/a/b.txt\n\nVérifiez que son dossier existe et que vous avez le "
              u"droit d'y écrire.\nSon ancien contenu n'a pas pu être remis : recommencez dès que possible.");
}

TEST(Remplacement, DesChampsQuiNeSeComposentPasLaissentLeFichier)
{
    Banc banc;
    const auto fichier = banc.Ecrire("a.dat", "ancien");
    const auto échec = RemplacerChamps(banc.plateforme, fichier, {u"a", u"Ω"});
    ASSERT_TRUE(échec);
    EXPECT_EQ(échec->Cause, EchecFichier::Contenu);
    EXPECT_TRUE(échec->CommeAvant);
    EXPECT_NE(MessageEchec(*échec, u"a.dat").find(u"Rien n'a changé"), Texte::npos);
    EXPECT_EQ(banc.Lire("a.dat"), "ancien");
    EXPECT_FALSE(RemplacerChamps(banc.plateforme, fichier, {u"a"}));
    EXPECT_EQ(banc.Lire("a.dat"), "\"a\"\r\n");
}

} // namespace tirelune
