#include "core/FichiersLexique.h"

#include "core/FichierChamps.h"
#include "tests/support/Banc.h"
#include "tests/support/EcranTexte.h"

namespace tirelune {

namespace {

class FichiersLexique : public ::testing::Test {
protected:
    Banc banc;
    EcranTexte écran{banc.application};
    Grid grille{écran, "grille", 0, ColonnesAuDépart};

    LectureLexique Lire(std::string_view octets) { return LireLexique(banc.Ecrire("Familles.dat", octets), grille); }
};

} // namespace

TEST_F(FichiersLexique, LeFichierVideDonneUneGrilleVide)
{
    EXPECT_EQ(Lire(""), LectureLexique::Faite);
    EXPECT_EQ(grille.Rows(), 0);
    EXPECT_EQ(grille.Cols(), ColonnesAuDépart);
}

TEST_F(FichiersLexique, LeFichierAbsentNEstPasUneErreurEtVideLaGrille)
{
    grille.Rows(3);
    EXPECT_EQ(LireLexique(banc.dossier / "Genre.dat", grille), LectureLexique::Absente);
    EXPECT_EQ(grille.Rows(), 0);
}

TEST_F(FichiersLexique, LaGrilleEstAussiLargeQueLaPlusLongueFiche)
{
    EXPECT_EQ(Lire("\"*\"\r\n\"mer\"\r\n\"\"\r\n\"la vague\"\r\n\"le port\"\r\n\"*\"\r\n\"ciel\"\r\n"),
              LectureLexique::Faite);
    ASSERT_EQ(grille.Rows(), 2);
    ASSERT_EQ(grille.Cols(), 4);
    EXPECT_EQ(grille.TextMatrix(0, ColonneThème), u"mer");
    EXPECT_EQ(grille.TextMatrix(0, ColonneSousThème), u"");
    EXPECT_EQ(grille.TextMatrix(0, PremierMotDeFamille), u"la vague");
    EXPECT_EQ(grille.TextMatrix(0, 3), u"le port");
    EXPECT_EQ(grille.TextMatrix(1, ColonneThème), u"ciel");
    EXPECT_EQ(grille.TextMatrix(1, 3), u"");
}

TEST_F(FichiersLexique, UnAstérisqueSeulOuvreUneFicheOùQuIlSoit)
{
    EXPECT_EQ(Lire("\"*\"\r\n\"chat\"\r\n\"*\"\r\n\"* *\"\r\n"), LectureLexique::Faite);
    ASSERT_EQ(grille.Rows(), 2);
    EXPECT_EQ(grille.TextMatrix(1, 0), u"* *");
}

TEST_F(FichiersLexique, UneDéfinitionSurPlusieursLignesEstUneValeur)
{
    EXPECT_EQ(Lire("\"*\"\r\n\"phare\"\r\n\"Tour qui porte\r\nune lumi\xE8re.\"\r\n\"\"\r\n"), LectureLexique::Faite);
    ASSERT_EQ(grille.Rows(), 1);
    EXPECT_EQ(grille.TextMatrix(0, ColonneDéfinition), u"Tour qui porte\r\nune lumière.");
}

TEST_F(FichiersLexique, CeQuiNeCommencePasParUneFicheNEstPasLu)
{
    for (const std::string_view octets :
         {std::string_view{"\"mer\"\r\n\"*\"\r\n\"ciel\"\r\n"}, std::string_view{"\r\n \r\n"},
          std::string_view{"\0\0\1", 3}, std::string_view{"\xFF\xFE\"\0*\0\"\0", 8},
          std::string_view{"\xEF\xBB\xBF\"*\"\r\n\"mer\"\r\n"}}) {
        grille.Rows(2);
        EXPECT_EQ(Lire(octets), LectureLexique::Refusée) << octets;
        EXPECT_EQ(grille.Rows(), 0);
    }
}

TEST_F(FichiersLexique, CeQuiNEstPasUnFichierOuEstTropGrandNEstPasLu)
{
    std::filesystem::create_directory(banc.dossier / "Genre.dat");
    EXPECT_EQ(LireLexique(banc.dossier / "Genre.dat", grille), LectureLexique::Refusée);
    const auto fichier = banc.Ecrire("DicPrinc.dat", "\"*\"\r\n");
    std::filesystem::resize_file(fichier, TailleDUnFichierDeChamps + 1);
    EXPECT_EQ(LireLexique(fichier, grille), LectureLexique::Refusée);
}

TEST_F(FichiersLexique, LExtensionALaCasseQuElleADansLeDossier)
{
    const auto dossier = DepuisChemin(banc.dossier);
    EXPECT_EQ(FichierLexique(dossier, NomGenre), banc.dossier / "Genre.dat");
    EXPECT_EQ(FichierLexique(dossier + u"/", NomDicTexte(u"Le chat")), banc.dossier / "Le chat.dic");
    banc.Ecrire("Genre.DAT", "");
    EXPECT_EQ(FichierLexique(dossier, NomGenre), banc.dossier / "Genre.DAT");
}

} // namespace tirelune
