#include "exercises/order/frmLignesEnDésordre.h"

#include "tests/support/Banc.h"
#include "tests/support/Notices.h"

#include <numeric>

namespace tirelune {

namespace {

constexpr int LignesEnDésordre = 19;
constexpr std::size_t LettresDUnMot = 4;

// As many words of four letters, no two alike, joined by blanks: ten of them make a line.
Texte MotsDeQuatre(int premier, int nombre)
{
    Texte texte;
    for (int i = premier; i < premier + nombre; ++i) {
        auto mot = EnTexte((i * 37) % 1000);
        mot.insert(0, LettresDUnMot - mot.size(), u'a');
        texte += (texte.empty() ? u"" : u" ") + mot;
    }
    return texte;
}

class LignesEnDésordreEssai : public ::testing::Test {
protected:
    Banc banc;

    frmLignesEnDésordre& OuvrirSur(const Texte& texte, std::initializer_list<double> tirages)
    {
        banc.ChargerTexte(texte);
        banc.Index(LignesEnDésordre);
        banc.Hasards(tirages);
        return banc.Ouvrir<frmLignesEnDésordre>();
    }
    // Four lines.
    frmLignesEnDésordre& OuvrirQuatreLignes() { return OuvrirSur(MotsDeQuatre(1, 40), {0.0}); }

    static std::vector<Texte> Lignes(const frmLignesEnDésordre& écran)
    {
        std::vector<Texte> lignes;
        for (int i = 0; i < 10; ++i) {
            if (écran.lblLigne(i).Visible)
                lignes.push_back(écran.lblLigne(i).Caption);
        }
        return lignes;
    }
    static void Remettre(frmLignesEnDésordre& écran)
    {
        const auto ordre = écran.cmbOrdre.Eléments();
        for (int i = 0; i < écran.cmbOrdre.ListCount(); ++i) {
            const auto lignes = Lignes(écran);
            const auto place = std::find(lignes.begin() + i, lignes.end(), ordre[static_cast<std::size_t>(i)]);
            const auto de = static_cast<int>(place - lignes.begin());
            if (de == i)
                continue;
            écran.lblLigne(de).Cliquer();
            écran.lblLigne(i).Cliquer();
        }
    }
    static Texte Passage(const frmLignesEnDésordre& écran)
    {
        Texte passage;
        for (const auto& ligne : écran.cmbOrdre.Eléments())
            passage += (passage.empty() ? u"" : u" ") + ligne;
        return passage;
    }
};

} // namespace

// ---- The passage -------------------------------------------------------------------------------------------------

TEST_F(LignesEnDésordreEssai, TextesEtCouleursDuDépart)
{
    auto& écran = OuvrirQuatreLignes();
    EXPECT_EQ(écran.Caption, u"Lignes en désordre / Léa");
    EXPECT_EQ(écran.lblConsigne.Caption,
              u"Quand tu cliques sur une ligne, elle devient jaune. Tu n'as plus qu'à cliquer à l'endroit où tu veux "
              u"placer cette ligne et remettre ainsi le passage dans le bon ordre petit à petit.");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"10");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"10");
    EXPECT_EQ(écran.lblPoints(2).Caption, u" / ");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(écran.lblPoints(i).ToolTipText, u" Chaque fois que tu te trompes, tu perds 2 points. ");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"J'ai &fini");
    EXPECT_FALSE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Nom, "frameSortir");
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Texte trop court");
    EXPECT_EQ(écran.notice.Phrase.Nom, "Label1");
    EXPECT_EQ(écran.notice.Phrase.Caption, u"Le texte est trop court pour que je puisse procéder à une segmentation !");
    EXPECT_EQ(écran.notice.Bouton.Nom, "cmdSortir");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Sortir");
    EXPECT_EQ(écran.txtPhrase.Text, u"");
}

TEST_F(LignesEnDésordreEssai, LesLignesSontDansLOrdreAlphabétique)
{
    auto& écran = OuvrirQuatreLignes();
    EXPECT_EQ(écran.cmbOrdre.ListCount(), 4);
    EXPECT_EQ(Lignes(écran), écran.cmbMélangées.Eléments());
    EXPECT_TRUE(std::is_sorted(écran.cmbMélangées.Eléments().begin(), écran.cmbMélangées.Eléments().end()));
    EXPECT_NE(écran.cmbOrdre.Eléments(), écran.cmbMélangées.Eléments());
    EXPECT_EQ(écran.lblLigne(0).BackColor, Blanc);
    EXPECT_FALSE(écran.lblLigne(4).Visible);
}

TEST_F(LignesEnDésordreEssai, TexteDeTroisCentsCaractèresDonneSixLignes)
{
    const auto texte = MotsDeQuatre(1, 60);
    ASSERT_EQ(texte.size(), 299U);
    auto& écran = OuvrirSur(texte, {0.9});
    EXPECT_EQ(écran.cmbOrdre.ListCount(), 6);
    EXPECT_EQ(Passage(écran), texte);
}

TEST_F(LignesEnDésordreEssai, LaLigneSeCoupeAuPremierBlancDèsLeCinquantièmeCaractère)
{
    auto& écran = OuvrirSur(Texte(49, u'a') + u" " + Texte(50, u'b') + u" " + Texte(70, u'c') + u" d", {0.0});
    EXPECT_EQ(écran.cmbOrdre.Eléments(), (std::vector<Texte>{Texte(49, u'a'), Texte(50, u'b'), Texte(70, u'c'), u"d"}));
}

TEST_F(LignesEnDésordreEssai, LaDixièmeLignePrendToutLeReste)
{
    const auto texte = u"Début. " + MotsDeQuatre(1, 130) + u". " + MotsDeQuatre(131, 120) + u".";
    auto& écran = OuvrirSur(texte, {0.0});
    ASSERT_EQ(écran.cmbOrdre.ListCount(), 10);
    EXPECT_EQ(écran.cmbOrdre.List(9), MotsDeQuatre(91, 40) + u".");
    EXPECT_EQ(Passage(écran), MotsDeQuatre(1, 130) + u".");
}

TEST_F(LignesEnDésordreEssai, LePassageVaDUnPointAuPremierAprèsTroisCentsCaractères)
{
    const auto court = MotsDeQuatre(1, 20) + u"."; // 100 characters
    const auto texte = u"Début. " + court + u" " + MotsDeQuatre(21, 50) + u". " + MotsDeQuatre(71, 100) + u".";
    auto& écran = OuvrirSur(texte, {0.0});
    EXPECT_EQ(Passage(écran), court + u" " + MotsDeQuatre(21, 50) + u".");
}

TEST_F(LignesEnDésordreEssai, TropPrèsDeLaFinLeTirageSeRépète)
{
    const auto texte = u"Début. " + MotsDeQuatre(1, 80) + u". " + MotsDeQuatre(81, 70) + u".";
    ASSERT_GE(texte.size(), 600U);
    auto& écran = OuvrirSur(texte, {0.99, 0.5, 0.0});
    EXPECT_EQ(Passage(écran), MotsDeQuatre(1, 80) + u".");
}

TEST_F(LignesEnDésordreEssai, TexteMoyenTiréTropLoinSePrendDepuisSaPremièreLettre)
{
    const auto texte = MotsDeQuatre(1, 70) + u". " + MotsDeQuatre(71, 20) + u".";
    ASSERT_LT(texte.size(), 600U);
    EXPECT_EQ(Passage(OuvrirSur(texte, {0.99})), MotsDeQuatre(1, 70) + u".");
    EXPECT_EQ(Passage(OuvrirSur(u"Bon. " + texte, {0.99})), u"Bon. " + MotsDeQuatre(1, 70) + u".");
    EXPECT_EQ(Passage(OuvrirSur(u"Bon. " + texte, {0.0})), MotsDeQuatre(1, 70) + u".");
}

TEST_F(LignesEnDésordreEssai, TexteSansPointDonneDixLignes)
{
    const auto texte = MotsDeQuatre(1, 200);
    auto& écran = OuvrirSur(texte, {0.0});
    EXPECT_EQ(écran.cmbOrdre.ListCount(), 10);
    EXPECT_EQ(Passage(écran), MotsDeQuatre(1, 100));
}

TEST_F(LignesEnDésordreEssai, SansRienDerrièreLeDernierPointLePassageEstLeDébutDuTexte)
{
    const auto texte = MotsDeQuatre(1, 90) + u" ! " + MotsDeQuatre(91, 90) + u".";
    auto& écran = OuvrirSur(texte, {0.5});
    EXPECT_TRUE(Passage(écran).starts_with(MotsDeQuatre(1, 90) + u" !"));
    EXPECT_FALSE(écran.notice.Cadre.Visible);
}

TEST_F(LignesEnDésordreEssai, LePassageEstNettoyé)
{
    auto& écran = OuvrirSur(u"... «L'œuf»,  dit\r\n\r\nZoé ; *non* : oui !", {0.0});
    EXPECT_EQ(Passage(écran), u"«L' uf», dit Zoé ; *non* : oui !");
}

TEST_F(LignesEnDésordreEssai, TexteSansUneLettreMontreLeCadreDeSortie)
{
    auto& écran = OuvrirSur(Texte(300, u'–'), {0.0});
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(LignesEnDésordre), u"");
}

// ---- The moves ---------------------------------------------------------------------------------------------------

TEST_F(LignesEnDésordreEssai, UneLigneCliquéeSePrendEtSePoseAilleurs)
{
    auto& écran = OuvrirQuatreLignes();
    const auto avant = Lignes(écran);
    écran.lblLigne(3).Cliquer();
    EXPECT_EQ(écran.lblLigne(3).BackColor, Jaune);
    EXPECT_EQ(écran.lblPassage.Caption, avant[3]);
    écran.lblLigne(1).Cliquer();
    EXPECT_EQ(Lignes(écran), (std::vector<Texte>{avant[0], avant[3], avant[1], avant[2]}));
    EXPECT_EQ(écran.lblPassage.Caption, u"");
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(écran.lblLigne(i).BackColor, Blanc);
    écran.lblLigne(0).Cliquer();
    écran.lblLigne(3).Cliquer();
    EXPECT_EQ(Lignes(écran), (std::vector<Texte>{avant[3], avant[1], avant[2], avant[0]}));
}

TEST_F(LignesEnDésordreEssai, LaLignePriseEtCliquéeEncoreSeRepose)
{
    auto& écran = OuvrirQuatreLignes();
    const auto avant = Lignes(écran);
    écran.lblLigne(2).Cliquer();
    écran.lblLigne(2).Cliquer();
    EXPECT_EQ(écran.lblLigne(2).BackColor, Blanc);
    EXPECT_EQ(écran.lblPassage.Caption, u"");
    EXPECT_EQ(Lignes(écran), avant);
}

TEST_F(LignesEnDésordreEssai, GlisserUneLigneFaitCommeDeuxClics)
{
    auto& écran = OuvrirQuatreLignes();
    const auto avant = Lignes(écran);
    EXPECT_TRUE(écran.lblLigne(3).Prendre());
    EXPECT_EQ(écran.lblPassage.Caption, avant[3]);
    écran.lblLigne(3).Lâcher(&écran.lblLigne(1));
    EXPECT_EQ(Lignes(écran), (std::vector<Texte>{avant[0], avant[3], avant[1], avant[2]}));
    EXPECT_EQ(écran.lblPassage.Caption, u"");
}

// ---- Its check ---------------------------------------------------------------------------------------------------

TEST_F(LignesEnDésordreEssai, RemisDuPremierCoupLePassageVautDix)
{
    auto& écran = OuvrirQuatreLignes();
    Remettre(écran);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    for (auto& ligne : écran.lblLigne) {
        EXPECT_EQ(ligne.BackColor, Bleu);
        EXPECT_EQ(ligne.ForeColor, Cyan);
        EXPECT_FALSE(ligne.Enabled);
    }
    EXPECT_EQ(écran.lblPoints(0).Caption, u"10");
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(LignesEnDésordre), u"10");
}

TEST_F(LignesEnDésordreEssai, ChaqueEchecFixeUneLigneDePlusEnHaut)
{
    auto& écran = OuvrirQuatreLignes();
    const auto ordre = écran.cmbOrdre.Eléments();
    for (int échecs = 1; échecs <= 2; ++échecs) {
        écran.lblLigne(3).Cliquer();
        écran.cmdQuitter.Cliquer();
        EXPECT_EQ(écran.lblPoints(0).Caption, EnTexte(10 - 2 * échecs));
        EXPECT_EQ(écran.cmdQuitter.Caption, u"J'ai &fini");
        EXPECT_EQ(écran.lblPassage.Caption, u"");
        auto reste = std::vector<Texte>(ordre.begin() + échecs, ordre.end());
        std::sort(reste.begin(), reste.end());
        EXPECT_EQ(écran.cmbMélangées.Eléments(), reste);
        for (int i = 0; i < 4; ++i) {
            const bool fixée = i < échecs;
            const auto rang = static_cast<std::size_t>(i);
            EXPECT_EQ(écran.lblLigne(i).BackColor, fixée ? Cyan : Blanc) << i;
            EXPECT_EQ(écran.lblLigne(i).ToolTipText, fixée ? u" Ligne bien placée ! " : u"");
            EXPECT_EQ(écran.lblLigne(i).Caption, fixée ? ordre[rang] : reste[rang - static_cast<std::size_t>(échecs)]);
        }
    }
}

TEST_F(LignesEnDésordreEssai, UneLigneFixéeNeSePrendPasEtNeReçoitRien)
{
    auto& écran = OuvrirQuatreLignes();
    écran.cmdQuitter.Cliquer();
    const auto avant = Lignes(écran);
    écran.lblLigne(0).Cliquer();
    EXPECT_EQ(écran.lblLigne(0).BackColor, Cyan);
    EXPECT_EQ(écran.lblPassage.Caption, u"");
    EXPECT_FALSE(écran.lblLigne(0).Prendre());
    écran.lblLigne(2).Cliquer();
    écran.lblLigne(0).Cliquer();
    EXPECT_EQ(Lignes(écran), avant);
    EXPECT_EQ(écran.lblLigne(2).BackColor, Jaune) << "reste prise";
    écran.lblLigne(2).Lâcher(&écran.lblLigne(0));
    EXPECT_EQ(Lignes(écran), avant);
}

TEST_F(LignesEnDésordreEssai, CinqEchecsPerdentToutEtMontrentLePassage)
{
    auto& écran = OuvrirSur(MotsDeQuatre(1, 60), {0.0});
    for (const auto points : {u"8", u"6", u"4", u"2", u"0"}) {
        EXPECT_EQ(écran.cmdQuitter.Caption, u"J'ai &fini");
        // the last two lines the wrong way round
        Remettre(écran);
        écran.lblLigne(5).Cliquer();
        écran.lblLigne(4).Cliquer();
        écran.cmdQuitter.Cliquer();
        EXPECT_EQ(écran.lblPoints(0).Caption, points);
    }
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_EQ(Lignes(écran), écran.cmbOrdre.Eléments());
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(écran.lblLigne(i).BackColor, Rouge);
        EXPECT_EQ(écran.lblLigne(i).ForeColor, Blanc);
        EXPECT_EQ(écran.lblLigne(i).ToolTipText, u" Voici le passage remis dans l'ordre. ");
        EXPECT_FALSE(écran.lblLigne(i).Enabled);
    }
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(LignesEnDésordre), u"0");
}

TEST_F(LignesEnDésordreEssai, LaNoteDescendDeDeuxEnDeux)
{
    for (int échecs = 0; échecs <= 3; ++échecs) {
        auto& écran = OuvrirQuatreLignes();
        for (int i = 0; i < échecs; ++i) {
            écran.lblLigne(3).Cliquer();
            écran.lblLigne(i).Cliquer(); // away from its place, whatever it was
            if (Lignes(écran) == écran.cmbOrdre.Eléments()) {
                écran.lblLigne(2).Cliquer();
                écran.lblLigne(3).Cliquer();
            }
            écran.cmdQuitter.Cliquer();
        }
        Remettre(écran);
        écran.cmdQuitter.Cliquer();
        écran.cmdQuitter.Cliquer();
        EXPECT_EQ(banc.Note(LignesEnDésordre), EnTexte(10 - 2 * échecs));
    }
}

TEST_F(LignesEnDésordreEssai, DeuxLignesPareillesVontLUnePourLAutre)
{
    const auto ligne = Texte(50, u'z');
    auto& écran = OuvrirSur(ligne + u" " + Texte(50, u'b') + u" " + ligne, {0.0});
    ASSERT_EQ(écran.cmbOrdre.Eléments(), (std::vector<Texte>{ligne, Texte(50, u'b'), ligne}));
    écran.lblLigne(2).Cliquer();
    écran.lblLigne(0).Cliquer();
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
}

TEST_F(LignesEnDésordreEssai, UneSeuleLigneEstDéjàEnOrdre)
{
    auto& écran = OuvrirSur(u"Un texte court.", {0.0});
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
}

TEST_F(LignesEnDésordreEssai, LaCroixNEnregistreRien)
{
    auto& écran = OuvrirQuatreLignes();
    Remettre(écran);
    écran.cmdQuitter.Cliquer();
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(LignesEnDésordre), u"");
}

} // namespace tirelune
