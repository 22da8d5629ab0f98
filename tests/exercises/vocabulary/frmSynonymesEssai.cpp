#include "exercises/vocabulary/frmSynonymes.h"

#include "tests/support/Associations.h"

#include <set>

namespace tirelune {

namespace {

constexpr int IndexSynonymes = 6;
constexpr auto PasFini = u"Tu n'a pas terminé !\nVeux-tu vraiment quitter ?";

frmSynonymes& OuvrirSynonymes(Banc& banc, const FichesEssai& fiches)
{
    EcrireFiches(banc, "Synonymes.dat", fiches);
    return OuvrirExercice<frmSynonymes>(banc, IndexSynonymes);
}

} // namespace

TEST(Synonymes, LégendesDuDépart)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSynonymes(banc, FichesDeMots(12, 3));
    EXPECT_EQ(écran.Caption, u"Synonymes / Léa");
    EXPECT_EQ(écran.Label1.Caption, u" Trouve le synonyme des mots de chaque liste. ");
    EXPECT_EQ(écran.lblMot.Nombre(), 10);
    EXPECT_EQ(écran.lblMot(9).Caption, u" Clique avant de compléter. ");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Corriger");
    EXPECT_EQ(écran.cmbSynonymes.ListCount(), 10);
    EXPECT_EQ(écran.cmbSynonymes.Text, écran.cmbSynonymes.List(0));
    EXPECT_FALSE(écran.notice.Cadre.Visible);
    EXPECT_FALSE(banc.état.ChoixProgramme);
    VérifierPointsDeDépart(écran.lblPoints);
}

TEST(Synonymes, SansFichierLaNoticeParaît)
{
    Banc banc;
    auto& écran = OuvrirExercice<frmSynonymes>(banc, IndexSynonymes);
    EXPECT_EQ(écran.cmbSynonymes.Text, u" Choisis un mot dans la liste ! ");
    VérifierTropPeu(banc, écran, u"Pas assez de synonymes",
                    u"Il doit y avoir au moins 10 listes de synonymes pour lancer l'exercice. ", IndexSynonymes);
}

TEST(Synonymes, NeufRangéesMontrentLaNoticeEtDixSontToutesPrises)
{
    Banc banc;
    EXPECT_TRUE(OuvrirSynonymes(banc, FichesDeMots(9, 3)).notice.Cadre.Visible);
    Banc autre;
    TirerVarié(autre);
    auto& écran = OuvrirSynonymes(autre, FichesDeMots(10, 3));
    EXPECT_FALSE(écran.notice.Cadre.Visible);
    std::set<Texte> lignes;
    for (int i = 0; i < 10; ++i)
        lignes.insert(écran.cmbNuméro.List(i));
    EXPECT_EQ(lignes.size(), 10U);
}

TEST(Synonymes, UneRangéeMontreToutSaufLeMotEnlevé)
{
    Banc banc;
    TirerVarié(banc);
    banc.Hasards({0.95, 0.0, 0.95, 0.0, 0.34}); // row 9 without its first word; row 9 again, then 0 without its second
    auto& écran = OuvrirSynonymes(banc, FichesDeMots(10, 3));
    EXPECT_EQ(écran.lblCorrigé(0).Caption, u"a9");
    EXPECT_EQ(écran.txtSynonymes(0).Text, u" b9 - c9 - ");
    EXPECT_EQ(écran.lblCorrigé(1).Caption, u"b0");
    EXPECT_EQ(écran.txtSynonymes(1).Text, u" a0 - c0 - ");
    EXPECT_EQ(écran.cmbNuméro.List(0), u"9");
    EXPECT_EQ(écran.cmbNuméro.List(1), u"0");
}

TEST(Synonymes, LaDernièreColonneEstCelleDuMotLePlusLoin)
{
    auto fiches = FichesDeMots(10, 2);
    fiches[0] = {u"joyeux", u"gai", u"content", u"heureux"}; // the file's longest
    Banc banc;
    TirerVarié(banc);
    banc.Hasards({0.0, 0.99, 0.1, 0.99});
    auto& écran = OuvrirSynonymes(banc, fiches);
    EXPECT_EQ(écran.lblCorrigé(0).Caption, u"heureux");
    EXPECT_EQ(écran.txtSynonymes(0).Text, u" joyeux - gai - content - ");
    EXPECT_EQ(écran.lblCorrigé(1).Caption, u"b1") << "et non une cellule vide";
    EXPECT_EQ(écran.fgSynonymes.Cols(), 5);
}

TEST(Synonymes, UnMotSeulSurSaRangéeEstLaRéponse)
{
    auto fiches = FichesDeMots(10, 3);
    fiches[0] = {u"seul"};
    Banc banc;
    TirerVarié(banc);
    banc.Hasards({0.0, 0.99});
    auto& écran = OuvrirSynonymes(banc, fiches);
    EXPECT_EQ(écran.txtSynonymes(0).Text, u" ");
    EXPECT_EQ(écran.lblCorrigé(0).Caption, u"seul");
}

TEST(Synonymes, RangéesSansMotNeSontPasTirées)
{
    auto fiches = FichesDeMots(10, 3);
    fiches[4] = {u"", u"b4"};
    fiches.push_back({});
    Banc banc;
    EXPECT_TRUE(OuvrirSynonymes(banc, fiches).notice.Cadre.Visible) << "neuf peuvent se jouer";
    fiches.push_back({u"a11", u"b11"});
    Banc autre;
    TirerVarié(autre);
    auto& écran = OuvrirSynonymes(autre, fiches);
    for (int i = 0; i < 10; ++i)
        EXPECT_NE(écran.lblCorrigé(i).Caption, u"");
}

TEST(Synonymes, UnFichierAbîméSeLitVide)
{
    for (const auto* octets : {"", "\"a\"\r\n\"*\"\r\n\"b\"\r\n", "\x01\x02\xff", "{\\rtf1}"}) {
        Banc banc;
        banc.Ecrire("Synonymes.dat", octets);
        auto& écran = OuvrirExercice<frmSynonymes>(banc, IndexSynonymes);
        EXPECT_EQ(écran.fgSynonymes.Rows(), 0);
        EXPECT_TRUE(écran.notice.Cadre.Visible);
    }
}

TEST(Synonymes, LaListeEtLeTexteDUneRangéeLaChoisissent)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSynonymes(banc, FichesDeMots(10, 3));
    écran.txtSynonymes(3).Cliquer(0);
    EXPECT_EQ(écran.lblMot(3).BackColor, Jaune);
    EXPECT_EQ(écran.txtSynonymes(3).BackColor, Jaune);
    EXPECT_EQ(écran.txtSynonymes(2).BackColor, Blanc);
    const Texte premier = écran.cmbSynonymes.List(0);
    écran.cmbSynonymes.Choisir(0); // even though the list shows it already
    EXPECT_EQ(écran.lblMot(3).Caption, premier);
    EXPECT_EQ(écran.cmbSynonymes.ListCount(), 9);
    écran.txtSynonymes(3).Cliquer(0); // and hands it back
    EXPECT_EQ(écran.lblMot(3).Caption, u"");
    EXPECT_EQ(écran.cmbSynonymes.ListCount(), 10);
}

TEST(Synonymes, ToutJusteDonneDixEnDixSecondes)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSynonymes(banc, FichesDeMots(12, 3));
    ToutRépondre(écran.lblMot, écran.lblCorrigé, écran.cmbSynonymes);
    const double départ = banc.plateforme.Horloge();
    écran.cmdQuitter.Cliquer();
    EXPECT_NEAR(banc.plateforme.Horloge() - départ, 10, 1e-6);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"10");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"10");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_FALSE(écran.cmbSynonymes.Enabled);
    écran.txtSynonymes(0).Cliquer(0); // dead
    EXPECT_EQ(écran.lblMot(0).BackColor, Vert);
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexSynonymes), u"10");
}

TEST(Synonymes, UneRangéeVideEstFausseEtMontreSonMot)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSynonymes(banc, FichesDeMots(10, 3));
    ToutRépondre(écran.lblMot, écran.lblCorrigé, écran.cmbSynonymes, 1);
    banc.AnnoncerBoîte(PasFini, Réponse::Oui);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblMot(0).BackColor, Rouge);
    EXPECT_TRUE(écran.lblCorrigé(0).Visible);
    EXPECT_FALSE(écran.lblCorrigé(1).Visible);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexSynonymes), u"9");
}

TEST(Synonymes, FermerNEnregistreRien)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSynonymes(banc, FichesDeMots(10, 3));
    ToutRépondre(écran.lblMot, écran.lblCorrigé, écran.cmbSynonymes);
    écran.cmdQuitter.Cliquer();
    écran.FermerParCroix();
    EXPECT_EQ(banc.Note(IndexSynonymes), u"");
}

} // namespace tirelune
