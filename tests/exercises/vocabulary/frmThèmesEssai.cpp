#include "exercises/vocabulary/frmThèmes.h"

#include "tests/support/Associations.h"

#include <set>

namespace tirelune {

namespace {

constexpr int IndexThèmes = 9;

frmThèmes& OuvrirThèmes(Banc& banc, const FichesEssai& fiches)
{
    EcrireFiches(banc, "Familles.dat", fiches);
    return OuvrirExercice<frmThèmes>(banc, IndexThèmes);
}

// Themes "a0", "a1"... without sub-themes, of that many words.
FichesEssai ThèmesSimples(int nombre, int mots)
{
    auto fiches = FichesDeMots(nombre, mots + 2);
    for (auto& fiche : fiches)
        fiche[1].clear();
    return fiches;
}

} // namespace

TEST(Thèmes, LégendesDuDépart)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirThèmes(banc, ThèmesSimples(10, 4));
    EXPECT_EQ(écran.Caption, u"Thèmes (1) / Léa");
    EXPECT_EQ(écran.Label1.Caption, u" Trouve le thème pour chaque liste. ");
    EXPECT_EQ(écran.lblMot(0).Caption, u" Clique avant de compléter. ");
    VérifierPointsDeDépart(écran.lblPoints);
}

TEST(Thèmes, NeufRangéesMontrentLaNotice)
{
    Banc banc;
    auto& écran = OuvrirThèmes(banc, ThèmesSimples(9, 6));
    VérifierTropPeu(banc, écran, u"Pas assez de thèmes", u"Il doit y avoir au moins 10 thèmes pour lancer l'exercice. ",
                    IndexThèmes);
}

TEST(Thèmes, UneRangéeMontreTousSesMots)
{
    auto fiches = ThèmesSimples(10, 2);
    fiches[0] = {u"la mer", u"", u"la vague", u"le sable", u"le bateau", u"la marée"};
    fiches[1] = {u"rien", u""};
    Banc banc;
    TirerVarié(banc);
    banc.Hasards({0.0, 0.1, 0.2});
    auto& écran = OuvrirThèmes(banc, fiches);
    EXPECT_EQ(écran.txtThèmes(0).Text, u" la vague - le sable - le bateau - la marée - ");
    EXPECT_EQ(écran.lblCorrigé(0).Caption, u"la mer");
    EXPECT_EQ(écran.txtThèmes(1).Text, u" ");
    EXPECT_EQ(écran.txtThèmes(2).Text, u" c2 - d2 - ");
}

TEST(Thèmes, TroisSousThèmesFontTroisRéponses)
{
    auto fiches = ThèmesSimples(7, 4);
    for (const auto* sous : {u"de la ferme", u"de la forêt", u"de la mer"})
        fiches.push_back({u"animaux", sous, u"x", u"y"});
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirThèmes(banc, fiches);
    for (const auto* réponse : {u"animaux / de la ferme", u"animaux / de la forêt", u"animaux / de la mer"})
        EXPECT_GE(écran.cmbThèmes.Chercher(réponse), 0);
}

TEST(Thèmes, DeuxRangéesDeMêmeNomFontDeuxEntréesÉgales)
{
    auto fiches = ThèmesSimples(10, 4);
    fiches[1][0] = u"a0";
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirThèmes(banc, fiches);
    EXPECT_EQ(écran.cmbThèmes.List(0), u"a0");
    EXPECT_EQ(écran.cmbThèmes.List(1), u"a0");
    ToutRépondre(écran.lblMot, écran.lblCorrigé, écran.cmbThèmes);
    écran.cmdQuitter.Cliquer();
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexThèmes), u"10");
}

TEST(Thèmes, LaBulleDitLaRéponsePlacéeEtPartAvecElle)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirThèmes(banc, ThèmesSimples(10, 4));
    écran.lblMot(0).Cliquer();
    EXPECT_EQ(écran.lblMot(0).ToolTipText, u"");
    écran.cmbThèmes.Choisir(2);
    EXPECT_EQ(écran.lblMot(0).ToolTipText, écran.lblMot(0).Caption());
    EXPECT_NE(écran.lblMot(0).Caption, u"");
    écran.lblMot(0).Cliquer();
    EXPECT_EQ(écran.lblMot(0).ToolTipText, u"");
}

TEST(Thèmes, UnClicSurLesMotsRendLaRéponseEtGardeLaBulle)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirThèmes(banc, ThèmesSimples(10, 4));
    Répondre(écran.lblMot(0), écran.cmbThèmes, u"a3");
    écran.txtThèmes(0).Cliquer(0);
    EXPECT_EQ(écran.lblMot(0).Caption, u"");
    EXPECT_EQ(écran.lblMot(0).ToolTipText, u"a3");
    EXPECT_EQ(écran.cmbThèmes.ListCount(), 10);
}

TEST(Thèmes, UneErreurMontreLeNomAttendu)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirThèmes(banc, ThèmesSimples(11, 4));
    Répondre(écran.lblMot(8), écran.cmbThèmes, écran.lblCorrigé(9).Caption);
    for (int i = 0; i < 8; ++i)
        Répondre(écran.lblMot(i), écran.cmbThèmes, écran.lblCorrigé(i).Caption);
    Répondre(écran.lblMot(9), écran.cmbThèmes, écran.lblCorrigé(8).Caption);
    écran.cmdQuitter.Cliquer();
    EXPECT_TRUE(écran.lblCorrigé(8).Visible);
    EXPECT_EQ(écran.lblMot(8).BackColor, Rouge);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexThèmes), u"8");
}

} // namespace tirelune
