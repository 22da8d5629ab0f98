#include "exercises/vocabulary/frmGenre.h"

#include "tests/support/Associations.h"

namespace tirelune {

namespace {

constexpr int IndexGenre = 8;

frmGenre& OuvrirGenre(Banc& banc, const FichesEssai& fiches)
{
    EcrireFiches(banc, "Genre.dat", fiches);
    return OuvrirExercice<frmGenre>(banc, IndexGenre);
}

} // namespace

TEST(Genre, LégendesDuDépart)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirGenre(banc, FichesDeMots(10, 2));
    EXPECT_EQ(écran.Caption, u"Genre / Léa");
    EXPECT_EQ(écran.Label1.Caption, u" Trouve le féminin de chaque nom masculin.");
    EXPECT_EQ(écran.lblFéminin(0).Caption, u" Clique avant de compléter. ");
    VérifierPointsDeDépart(écran.lblPoints);
}

TEST(Genre, NeufRangéesMontrentLaNotice)
{
    Banc banc;
    auto& écran = OuvrirGenre(banc, FichesDeMots(9, 2));
    VérifierTropPeu(banc, écran, u"Pas assez de mots",
                    u"Il doit y avoir au moins 10 listes de mots pour lancer l'exercice. ", IndexGenre);
}

TEST(Genre, LesArticlesNeSÉlidentPas)
{
    auto fiches = FichesDeMots(10, 2);
    fiches[0] = {u"ouvrier", u"ouvrière"};
    Banc banc;
    TirerVarié(banc);
    banc.Hasards({0.0});
    auto& écran = OuvrirGenre(banc, fiches);
    EXPECT_EQ(écran.lblMasculin(0).Caption, u"un ouvrier");
    EXPECT_EQ(écran.lblCorrigé(0).Caption, u"une ouvrière");
    EXPECT_GE(écran.cmbGenre.Chercher(u"une ouvrière"), 0);
}

TEST(Genre, UnMasculinSansFémininNEstPasTiré)
{
    auto fiches = FichesDeMots(10, 2);
    fiches[3] = {u"a3"};
    Banc banc;
    EXPECT_TRUE(OuvrirGenre(banc, fiches).notice.Cadre.Visible);
    fiches.push_back({u"roi", u"reine"});
    Banc autre;
    TirerVarié(autre);
    auto& écran = OuvrirGenre(autre, fiches);
    for (int i = 0; i < 10; ++i)
        EXPECT_NE(écran.lblCorrigé(i).Caption, u"une ");
}

TEST(Genre, LesDeuxÉtiquettesDUneRangéeLaChoisissent)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirGenre(banc, FichesDeMots(10, 2));
    écran.lblMasculin(2).Cliquer();
    EXPECT_EQ(écran.lblFéminin(2).BackColor, Jaune);
    EXPECT_EQ(écran.lblMasculin(2).BackColor, Jaune);
    écran.lblFéminin(5).Cliquer();
    EXPECT_EQ(écran.lblFéminin(2).BackColor, Blanc);
    EXPECT_EQ(écran.lblMasculin(5).BackColor, Jaune);
    écran.cmbGenre.Choisir(0);
    EXPECT_NE(écran.lblFéminin(5).Caption, u"");
    écran.lblMasculin(5).Cliquer(); // hands it back
    EXPECT_EQ(écran.lblFéminin(5).Caption, u"");
    EXPECT_EQ(écran.cmbGenre.ListCount(), 10);
}

TEST(Genre, ToutJusteDonneDix)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirGenre(banc, FichesDeMots(10, 2));
    ToutRépondre(écran.lblFéminin, écran.lblCorrigé, écran.cmbGenre);
    écran.cmdQuitter.Cliquer();
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexGenre), u"10");
}

} // namespace tirelune
