#include "authoring/frmRechercher.h"

#include "authoring/Recherche.h"
#include "tests/support/Banc.h"
#include "tests/support/EcranTexte.h"

#include <random>

namespace tirelune {

namespace {

class RechercherEssai : public ::testing::Test {
protected:
    Banc banc;
    EcranTexte& éditeur = banc.Ouvrir<EcranTexte>();
    RichTextBox& rtfTexte = éditeur.rtfTexte;

    frmRechercher& OuvrirPour(bool rechercher)
    {
        banc.état.ModeRechercher = rechercher;
        auto écran = std::make_unique<frmRechercher>(banc.application, rtfTexte, éditeur.rtfSauve);
        auto& référence = *écran;
        banc.Montrer(std::move(écran));
        return référence;
    }
    frmRechercher& Rechercher(Texte cherché)
    {
        auto& écran = OuvrirPour(true);
        écran.txtRechercher.Text = std::move(cherché);
        return écran;
    }
    frmRechercher& Remplacer(Texte cherché, Texte remplacement)
    {
        auto& écran = OuvrirPour(false);
        écran.txtRechercher.Text = std::move(cherché);
        écran.txtRemplacer.Text = std::move(remplacement);
        return écran;
    }
    Texte ToutRemplacer(VueTexte texte, Texte cherché, Texte remplacement)
    {
        rtfTexte.Text(texte);
        auto& écran = Remplacer(std::move(cherché), std::move(remplacement));
        écran.cmdToutRemplacer.Cliquer();
        EXPECT_FALSE(écran.EstChargé());
        return rtfTexte.Text();
    }
    [[nodiscard]] std::pair<std::size_t, std::size_t> Sélection() const
    {
        return {rtfTexte.SelStart(), rtfTexte.SelLength()};
    }
};

using Etendue = std::pair<std::size_t, std::size_t>;
constexpr VueTexte AucuneOccurrence = u"Aucune occurence trouvée pour la recherche en cours!";

} // namespace

// ---- The window --------------------------------------------------------------------------------------------------

TEST_F(RechercherEssai, OuvertePourRechercherLeRemplacementEstHorsDePortée)
{
    const auto& écran = OuvrirPour(true);
    EXPECT_EQ(écran.frameRechercher.Caption, u"Rechercher");
    EXPECT_EQ(écran.cmdRemplacer.ToolTipText, u"Remplacer");
    EXPECT_FALSE(écran.lblRemplacer.Visible);
    EXPECT_FALSE(écran.txtRemplacer.Enabled);
    EXPECT_FALSE(écran.cmdToutRemplacer.Enabled);
    EXPECT_EQ(écran.Focus(), nullptr);
    EXPECT_TRUE(écran.PetiteFenêtre);
    EXPECT_EQ(écran.Caption, u"Rechercher");
}

TEST_F(RechercherEssai, OuvertePourRemplacerLeFocusVaAuRemplacement)
{
    const auto& écran = OuvrirPour(false);
    EXPECT_EQ(écran.frameRechercher.Caption, u"Remplacer");
    EXPECT_EQ(écran.cmdRemplacer.ToolTipText, u"Remplacer");
    EXPECT_TRUE(écran.lblRemplacer.Visible);
    EXPECT_TRUE(écran.txtRemplacer.Enabled);
    EXPECT_TRUE(écran.cmdToutRemplacer.Enabled);
    EXPECT_EQ(écran.Focus(), &écran.txtRemplacer);
}

TEST_F(RechercherEssai, LaSélectionRognéeEstCherchée)
{
    rtfTexte.Text(u"un chat noir");
    rtfTexte.Sélectionner(2, 6);
    EXPECT_EQ(OuvrirPour(true).txtRechercher.Text, u"chat");
}

TEST_F(RechercherEssai, FermerEtEchappementFermentLaFenêtre)
{
    auto& une = OuvrirPour(true);
    une.cmdFermer.Cliquer();
    EXPECT_FALSE(une.EstChargé());
    auto& autre = OuvrirPour(false);
    EXPECT_TRUE(autre.Taper({.Code = Touche::Echappement}));
    EXPECT_FALSE(autre.EstChargé());
    EXPECT_FALSE(banc.état.TexteModifié);
}

// ---- Search ------------------------------------------------------------------------------------------------------

TEST_F(RechercherEssai, TrouveSansRegarderLaCasseNiOublierLesAccents)
{
    rtfTexte.Text(u"Le chat. L'ÉTÉ. Le CHAT.");
    auto& écran = Rechercher(u"Chat");
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(3, 4));
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(19, 4));
    EXPECT_TRUE(écran.EstChargé());

    banc.état.PositionRecherche = 0;
    écran.txtRechercher.Text = u"été";
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(11, 3));
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST_F(RechercherEssai, AprèsLaDernièreOccurrenceUnClicNeMontreRienPuisLaRechercheRepart)
{
    rtfTexte.Text(u"ici et ici");
    auto& écran = Rechercher(u"ici");
    écran.cmdSuivant.Cliquer();
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(7, 3));
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(7, 3));
    EXPECT_EQ(banc.état.PositionRecherche, 0U);
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(0, 3));
}

TEST_F(RechercherEssai, CeQuiNExistePasEstDit)
{
    rtfTexte.Text(u"un chat");
    rtfTexte.Sélectionner(3, 2);
    auto& écran = Rechercher(u"chien");
    banc.AnnoncerBoîte(Texte{AucuneOccurrence});
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Titre, u"Aucun résultat");
    EXPECT_EQ(Sélection(), Etendue(3, 2));
    EXPECT_TRUE(écran.EstChargé());
}

TEST_F(RechercherEssai, DansUnTexteVideRienNEstTrouvé)
{
    auto& écran = Rechercher(u"a");
    banc.AnnoncerBoîte(Texte{AucuneOccurrence});
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(0, 0));
}

TEST_F(RechercherEssai, UnClicDansLeTexteNeDéplacePasLaRecherche)
{
    rtfTexte.Text(u"a b a b a");
    auto& écran = Rechercher(u"a");
    écran.cmdSuivant.Cliquer();
    rtfTexte.Cliquer(8);
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(4, 1));
}

TEST_F(RechercherEssai, LaPositionSurvitALaFenêtre)
{
    rtfTexte.Text(u"a b a");
    auto& première = Rechercher(u"a");
    première.cmdSuivant.Cliquer();
    première.cmdFermer.Cliquer();
    Rechercher(u"a").cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(4, 1));
}

TEST_F(RechercherEssai, UnePositionAuDelàDUnTexteRaccourciRepartDuDébut)
{
    rtfTexte.Text(u"a");
    banc.état.PositionRecherche = 500;
    auto& écran = Rechercher(u"a");
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(banc.état.PositionRecherche, 0U);
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(0, 1));
}

TEST_F(RechercherEssai, UnLongTexteSeCherchePassé32767)
{
    rtfTexte.Text(Texte(40000, u'x') + u"chat" + Texte(40000, u'x') + u"chat");
    auto& écran = Rechercher(u"chat");
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(40000, 4));
    EXPECT_EQ(banc.état.PositionRecherche, 40004U);
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(80004, 4));
    écran.cmdSuivant.Cliquer();
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(40000, 4));
}

TEST_F(RechercherEssai, LaToucheEntréeRecherche)
{
    rtfTexte.Text(u"un chat");
    auto& écran = Rechercher(u"chat");
    écran.txtRechercher.Taper({.Code = Touche::Entrée});
    EXPECT_EQ(Sélection(), Etendue(3, 4));
}

TEST_F(RechercherEssai, RienAChercherNeFaitPasDeMal)
{
    rtfTexte.Text(u"un chat");
    rtfTexte.SelStart(3);
    auto& écran = Remplacer(u"", u"zut");
    écran.cmdSuivant.Cliquer();
    écran.cmdRemplacer.Cliquer();
    écran.cmdToutRemplacer.Cliquer();
    EXPECT_EQ(rtfTexte.Text(), u"un chat");
    EXPECT_EQ(Sélection(), Etendue(3, 0));
    EXPECT_FALSE(banc.état.TexteModifié);
    EXPECT_TRUE(écran.EstChargé());
    EXPECT_EQ(écran.Focus(), &écran.txtRechercher);
}

// ---- Replacement -------------------------------------------------------------------------------------------------

TEST_F(RechercherEssai, OuvertePourRechercherLePremierClicSurRemplacerNeFaitQuOuvrirLeRemplacement)
{
    rtfTexte.Text(u"un chat");
    rtfTexte.Sélectionner(3, 4);
    auto& écran = OuvrirPour(true);
    écran.cmdRemplacer.Cliquer();
    EXPECT_TRUE(écran.txtRemplacer.Enabled);
    EXPECT_TRUE(écran.cmdToutRemplacer.Enabled);
    EXPECT_FALSE(écran.lblRemplacer.Visible);
    EXPECT_EQ(écran.Focus(), &écran.txtRemplacer);
    EXPECT_EQ(rtfTexte.Text(), u"un chat");
    EXPECT_FALSE(banc.état.TexteModifié);
    EXPECT_EQ(éditeur.rtfSauve.Longueur(), 0U);

    écran.txtRemplacer.Text = u"chien";
    écran.cmdRemplacer.Cliquer();
    EXPECT_EQ(rtfTexte.Text(), u"un chien");
}

TEST_F(RechercherEssai, RemplaceLaSélectionTrouvéeAprèsUneCopie)
{
    rtfTexte.Text(u"un chat, un chat");
    auto& écran = Remplacer(u"chat", u"chien");
    écran.cmdSuivant.Cliquer();
    écran.cmdRemplacer.Cliquer();
    EXPECT_EQ(rtfTexte.Text(), u"un chien, un chat");
    EXPECT_EQ(éditeur.rtfSauve.Text(), u"un chat, un chat");
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_TRUE(écran.EstChargé());
    écran.cmdSuivant.Cliquer();
    écran.txtRemplacer.Taper({.Code = Touche::Entrée});
    EXPECT_EQ(rtfTexte.Text(), u"un chien, un chien");
}

TEST_F(RechercherEssai, UneSélectionDUneAutreCasseNEstPasRemplacée)
{
    rtfTexte.Text(u"Un CHAT");
    auto& écran = Remplacer(u"chat", u"chien");
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(Sélection(), Etendue(3, 4));
    écran.cmdRemplacer.Cliquer();
    EXPECT_EQ(rtfTexte.Text(), u"Un CHAT");
    EXPECT_TRUE(banc.état.TexteModifié);
}

TEST_F(RechercherEssai, ToutRemplacerIgnoreLaCasseGardeUneCopieEtFerme)
{
    EXPECT_EQ(ToutRemplacer(u"Chat, chat et CHAT", u"chat", u"chien"), u"chien, chien et chien");
    EXPECT_EQ(éditeur.rtfSauve.Text(), u"Chat, chat et CHAT");
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_EQ(Sélection(), Etendue(21, 0));
}

TEST_F(RechercherEssai, ToutRemplacerSansOccurrenceFermeSansRienDire)
{
    EXPECT_EQ(ToutRemplacer(u"un chat", u"chien", u"loup"), u"un chat");
    EXPECT_TRUE(banc.état.TexteModifié);
}

TEST_F(RechercherEssai, UnRemplacementPlusCourtFaitSauterDesCaractères)
{
    EXPECT_EQ(ToutRemplacer(u"abcabcabc", u"abc", u""), u"abc");
    EXPECT_EQ(ToutRemplacer(u"abc abc", u"abc", u""), u" abc");
    EXPECT_EQ(ToutRemplacer(u"abc  abc", u"abc", u""), u"  ");
}

TEST_F(RechercherEssai, UnRemplacementQuiCommenceParLeMotLeRemplacePartout)
{
    EXPECT_EQ(ToutRemplacer(u"un chat, un chat", u"chat", u"chats"), u"un chats, un chats");
}

TEST_F(RechercherEssai, LaBoucleSArrêteQuandElleRetrouveraitCeQuElleVientDeMettre)
{
    EXPECT_EQ(ToutRemplacer(u"un chat, un chat", u"chat", u"gros chat"), u"un gros chat, un chat");
    EXPECT_EQ(ToutRemplacer(u"a b a", u"a", u"aa"), u"aa b a");
    EXPECT_EQ(ToutRemplacer(u"a b a", u"A", u"A"), u"A b a");
}

TEST_F(RechercherEssai, UneOccurrenceAChevalSurLeRemplacementEstRemplacée)
{
    EXPECT_EQ(ToutRemplacer(u"abb", u"ab", u"ba"), u"bba");
    EXPECT_EQ(ToutRemplacer(u"abbb", u"ab", u"xxa"), u"xxxxxxa");
}

TEST_F(RechercherEssai, LesFormatsDuPremierCaractèreRemplacéSontPris)
{
    rtfTexte.Text(u"le chat dort");
    rtfTexte.Sélectionner(3, 1);
    rtfTexte.SelStrikeThru = true;
    auto& écran = Remplacer(u"chat", u"lion");
    écran.cmdToutRemplacer.Cliquer();
    EXPECT_EQ(MotsMarqués(rtfTexte.TextRTF()), std::vector<Texte>{u"lion"});
}

TEST_F(RechercherEssai, LaFermetureParLaCroixNeChangeRien)
{
    rtfTexte.Text(u"un chat");
    Remplacer(u"chat", u"chien").FermerParCroix();
    EXPECT_EQ(rtfTexte.Text(), u"un chat");
    EXPECT_FALSE(banc.état.TexteModifié);
}

// ---- Against the rules step by step ------------------------------------------------------------------------------

namespace {

// Small strings of letters and line ends, with random formats.
class Hasards {
public:
    std::size_t Moins(std::size_t n) { return std::uniform_int_distribution<std::size_t>{0, n - 1}(moteur_); }
    Texte Mot(std::size_t minimum, std::size_t maximum)
    {
        static const Texte Morceaux[] = {u"a", u"a", u"b", u"A", u"\r\n"};
        Texte mot;
        for (auto n = minimum + Moins(maximum - minimum + 1); n > 0; --n)
            mot += Morceaux[Moins(std::size(Morceaux))];
        return mot;
    }
    TexteRiche ChargerTexte()
    {
        TexteRiche texte{Mot(0, 14)};
        for (auto n = Moins(5); n > 0; --n)
            texte.Formater(Moins(texte.Longueur() + 1), Moins(6),
                           [this](Format& format) { format.Taille = 10 + static_cast<double>(Moins(4)); });
        for (auto n = Moins(4); n > 0; --n)
            texte.FormaterParagraphes(Moins(texte.Longueur() + 1), 0, [this](FormatParagraphe& paragraphe) {
                paragraphe.RetraitGauche = static_cast<int>(Moins(4)) * 100;
            });
        return texte;
    }

private:
    std::mt19937 moteur_{4711}; // NOLINT(bugprone-random-generator-seed): the same texts at each run
};

// The rule as it is told: find, replace the selection, go on from the told position.
void ToutRemplacerPasAPas(RichTextBox& rtf, const Texte& cherché, const Texte& remplacement)
{
    std::size_t position = 0;
    std::size_t débutMis = 0;
    std::size_t finMise = 0;
    for (;;) {
        const auto place = Minuscules(rtf.Text()).find(Minuscules(cherché), position);
        if (place == Texte::npos || (place >= débutMis && place + cherché.size() <= finMise))
            return;
        rtf.SelStart(place);
        rtf.SelLength(cherché.size());
        rtf.SelText(remplacement);
        position = place + cherché.size() - 1;
        débutMis = place;
        finMise = place + remplacement.size();
    }
}

} // namespace

TEST_F(RechercherEssai, ToutRemplacerDonneLesPasALaLettre)
{
    Hasards hasard;
    int trouvés = 0;
    for (int i = 0; i < 20000; ++i) {
        const auto texte = hasard.ChargerTexte();
        const auto cherché = hasard.Mot(1, 3);
        const auto remplacement = hasard.Mot(0, 5);
        rtfTexte.TextRTF(texte);
        ToutRemplacerPasAPas(rtfTexte, cherché, remplacement);
        const auto obtenu = RemplacerTout(texte, cherché, remplacement);
        SCOPED_TRACE(
            EnUtf8(Texte{texte.Caractères()}.append(u" | ").append(cherché).append(u" | ").append(remplacement)));
        if (!obtenu) {
            ASSERT_EQ(rtfTexte.TextRTF(), texte);
            continue;
        }
        ++trouvés;
        ASSERT_EQ(EnUtf8(obtenu->Contenu.Caractères()), EnUtf8(rtfTexte.Text()));
        ASSERT_TRUE(obtenu->Contenu == rtfTexte.TextRTF());
        ASSERT_EQ(obtenu->Contenu.FormatEn(0), rtfTexte.TextRTF().FormatEn(0));
        ASSERT_EQ(obtenu->Curseur, rtfTexte.SelStart());
    }
    EXPECT_GT(trouvés, 5000);
}

TEST_F(RechercherEssai, ToutRemplacerDansUnLongTexteNeCoûteQueSaLongueur)
{
    static constexpr std::size_t Fois = 125'000;
    Texte long_;
    Texte attendu;
    for (std::size_t i = 0; i < Fois; ++i) {
        long_ += u"été ";
        attendu += u"hiver ";
    }
    EXPECT_EQ(ToutRemplacer(long_, u"été", u"hiver"), attendu);
}

TEST_F(RechercherEssai, UneLongueRechercheQuiEchouePresqueNeCoûteQueLaLongueurDuTexte)
{
    static constexpr std::size_t Longueur = 500'000;
    rtfTexte.Text(Texte(Longueur, u'a'));
    auto& écran = Rechercher(Texte(Longueur / 2, u'a') + u'b');
    banc.AnnoncerBoîte(Texte{AucuneOccurrence});
    écran.cmdSuivant.Cliquer();
    EXPECT_TRUE(écran.EstChargé());
}

} // namespace tirelune
