#include "authoring/FichiersRécents.h"

#include "core/frmTirelune.h"
#include "tests/support/Banc.h"

namespace tirelune {

namespace {

struct Récents {
    Banc banc;
    frmTirelune accueil{banc.application};
    ListBox& liste = accueil.lstFichiers;

    void Remplir(int nombre)
    {
        for (int i = 1; i <= nombre; ++i)
            liste.AddItem(u"/t/" + EnTexte(i) + u".rtf");
    }
};

using Lignes = std::vector<Texte>;

} // namespace

TEST(FichiersRécents, LaListeEstÀCôtéDuDossierDuProgramme)
{
    EXPECT_EQ(FichierRécents(u"/opt/tirelune"), u"/opt/tireluneRécents.dat");
}

TEST(FichiersRécents, UnNouveauCheminPasseEnTête)
{
    Récents récents;
    récents.Remplir(2);
    MettreEnTête(récents.liste, u"/t/neuf.rtf");
    EXPECT_EQ(récents.liste.Eléments(), (Lignes{u"/t/neuf.rtf", u"/t/1.rtf", u"/t/2.rtf"}));
}

TEST(FichiersRécents, UnCheminConnuRemonteSansDoublon)
{
    Récents récents;
    récents.Remplir(3);
    MettreEnTête(récents.liste, u"/t/3.rtf");
    EXPECT_EQ(récents.liste.Eléments(), (Lignes{u"/t/3.rtf", u"/t/1.rtf", u"/t/2.rtf"}));
}

TEST(FichiersRécents, LaComparaisonEstExacte)
{
    Récents récents;
    récents.Remplir(1);
    MettreEnTête(récents.liste, u"/T/1.rtf");
    EXPECT_EQ(récents.liste.ListCount(), 2);
}

TEST(FichiersRécents, UnCheminVideNEntrePas)
{
    Récents récents;
    MettreEnTête(récents.liste, u"");
    EXPECT_EQ(récents.liste.ListCount(), 0);
}

TEST(FichiersRécents, LeNeuvièmeResteEtLeDixièmePousseLePlusAncienDehors)
{
    Récents récents;
    récents.Remplir(8);
    MettreEnTête(récents.liste, u"/t/neuvième.rtf");
    EXPECT_EQ(récents.liste.ListCount(), 9);
    EXPECT_EQ(récents.liste.List(8), u"/t/8.rtf");

    MettreEnTête(récents.liste, u"/t/dixième.rtf");
    EXPECT_EQ(récents.liste.ListCount(), 9);
    EXPECT_EQ(récents.liste.List(0), u"/t/dixième.rtf");
    EXPECT_EQ(récents.liste.List(8), u"/t/7.rtf");
}

TEST(FichiersRécents, FichierAbsentLaisseLaListeVide)
{
    Récents récents;
    récents.Remplir(2);
    EXPECT_FALSE(LireRécents(récents.liste, u"/nulle/part"));
    EXPECT_EQ(récents.liste.ListCount(), 0);
}

TEST(FichiersRécents, LaLectureRemonteLesDoublonsEtOublieLesLignesVides)
{
    Récents récents;
    const auto fichier = récents.banc.Ecrire("liste", "/a.rtf\r\n\r\n/\xE9t\xE9.rtf\n/b.rtf\r\n/\xE9t\xE9.rtf");
    EXPECT_TRUE(LireRécents(récents.liste, DepuisChemin(fichier)));
    EXPECT_EQ(récents.liste.Eléments(), (Lignes{u"/été.rtf", u"/a.rtf", u"/b.rtf"}));
}

TEST(FichiersRécents, UnFichierTropLongNeDonneQueNeufChemins)
{
    Récents récents;
    std::string contenu;
    for (int i = 0; i < 100'000; ++i)
        contenu += "/t/" + std::to_string(i) + ".rtf\r\n";
    EXPECT_TRUE(LireRécents(récents.liste, DepuisChemin(récents.banc.Ecrire("liste", contenu))));
    EXPECT_EQ(récents.liste.ListCount(), RécentsMaximum);
    EXPECT_EQ(récents.liste.List(8), u"/t/8.rtf");
}

TEST(FichiersRécents, CeQuiEstEcritSeRelit)
{
    Récents récents;
    récents.liste.AddItem(u"/t/L'œuf d'été.rtf");
    récents.liste.AddItem(u"/t/Tom & \"Lili\".rtf");
    const auto octets = ComposerRécents(récents.liste);
    EXPECT_EQ(octets, "/t/L'\x9Cuf d'\xE9t\xE9.rtf\r\n/t/Tom & \"Lili\".rtf\r\n");
    const Lignes avant = récents.liste.Eléments();
    EXPECT_TRUE(LireRécents(récents.liste, DepuisChemin(récents.banc.Ecrire("liste", octets))));
    EXPECT_EQ(récents.liste.Eléments(), avant);
}

TEST(FichiersRécents, UnCheminQuiNeTientPasSurUneLigneAnsiEstLaisséDeCôté)
{
    Récents récents;
    récents.liste.AddItem(u"/t/日本.rtf");
    récents.liste.AddItem(u"/t/deux\nlignes.rtf");
    récents.liste.AddItem(u"/t/chat.rtf");
    EXPECT_EQ(ComposerRécents(récents.liste), "/t/chat.rtf\r\n");
    const auto fichier = DepuisChemin(récents.banc.dossier / "liste");
    EcrireRécents(récents.banc.plateforme, récents.liste, fichier);
    EXPECT_EQ(récents.banc.Lire("liste"), "/t/chat.rtf\r\n");
    EXPECT_TRUE(LireRécents(récents.liste, fichier));
    EXPECT_EQ(récents.liste.ListCount(), 3); // it stays in the menu while the program runs
}

} // namespace tirelune
