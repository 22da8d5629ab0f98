#include "exercises/vocabulary/frmContraires.h"

#include "tests/support/Associations.h"

namespace tirelune {

namespace {

constexpr int IndexContraires = 7;

frmContraires& OuvrirContraires(Banc& banc, const FichesEssai& fiches)
{
    EcrireFiches(banc, "Contraires.dat", fiches);
    banc.plateforme.amorcesLibres = true; // seeded a second time, for no draw
    return OuvrirExercice<frmContraires>(banc, IndexContraires);
}

} // namespace

TEST(Contraires, LégendesDuDépart)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirContraires(banc, FichesDeMots(10, 2));
    EXPECT_EQ(écran.Caption, u"Contraires / Léa");
    EXPECT_EQ(écran.Label1.Caption, u" Trouve le contraire des mots de chaque liste. ");
    EXPECT_EQ(écran.lblMot(0).Caption, u" Clique avant de compléter. ");
    VérifierPointsDeDépart(écran.lblPoints);
}

TEST(Contraires, NeufRangéesMontrentLaNotice)
{
    Banc banc;
    auto& écran = OuvrirContraires(banc, FichesDeMots(9, 2));
    VérifierTropPeu(banc, écran, u"Pas assez de contraires",
                    u"Il doit y avoir au moins 10 listes de contraires pour lancer l'exercice. ", IndexContraires);
}

TEST(Contraires, LeMotEnlevéEstToujoursLeRéférent)
{
    auto fiches = FichesDeMots(10, 2);
    fiches[0] = {u"grand", u"petit", u"minuscule"};
    fiches[1] = {u"seul"};
    Banc banc;
    TirerVarié(banc);
    banc.Hasards({0.0, 0.1});
    auto& écran = OuvrirContraires(banc, fiches);
    EXPECT_EQ(écran.lblCorrigé(0).Caption, u"grand");
    EXPECT_EQ(écran.txtContraires(0).Text, u" petit - minuscule - ");
    EXPECT_EQ(écran.lblCorrigé(1).Caption, u"seul");
    EXPECT_EQ(écran.txtContraires(1).Text, u" ") << "sans rien qui aide";
    EXPECT_EQ(banc.plateforme.amorces - banc.plateforme.tirages, 10) << "une amorce de plus par rangée";
}

TEST(Contraires, LaListeDUneRangéeLaChoisitEtRendSonMot)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirContraires(banc, FichesDeMots(10, 2));
    écran.txtContraires(2).Cliquer(0);
    EXPECT_EQ(écran.lblMot(2).BackColor, Jaune);
    écran.cmbContraires.Choisir(0);
    EXPECT_EQ(écran.cmbContraires.ListCount(), 9);
    écran.txtContraires(2).Cliquer(0);
    EXPECT_EQ(écran.lblMot(2).Caption, u"");
    EXPECT_EQ(écran.cmbContraires.ListCount(), 10);
}

TEST(Contraires, DeuxRangéesDeMêmeRéponse)
{
    FichesEssai fiches;
    for (int i = 0; i < 10; ++i)
        fiches.push_back({u"gai", u"triste" + EnTexte(i)});
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirContraires(banc, fiches);
    EXPECT_EQ(écran.cmbContraires.ListCount(), 10);
    ToutRépondre(écran.lblMot, écran.lblCorrigé, écran.cmbContraires);
    écran.cmdQuitter.Cliquer();
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexContraires), u"10");
}

TEST(Contraires, UneErreurCoûteDeuxRangées)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirContraires(banc, FichesDeMots(11, 3));
    Répondre(écran.lblMot(0), écran.cmbContraires, écran.lblCorrigé(1).Caption);
    Répondre(écran.lblMot(1), écran.cmbContraires, écran.lblCorrigé(0).Caption);
    ToutRépondre(écran.lblMot, écran.lblCorrigé, écran.cmbContraires, 2);
    écran.cmdQuitter.Cliquer();
    EXPECT_TRUE(écran.lblCorrigé(0).Visible);
    EXPECT_TRUE(écran.lblCorrigé(1).Visible);
    EXPECT_FALSE(écran.lblCorrigé(2).Visible);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexContraires), u"8");
}

} // namespace tirelune
