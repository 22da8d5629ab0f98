#include "exercises/spelling/frmAlphabet.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int IndexAlphabet = 26;

// The column starts in this order: each draw takes the next word of the list.
frmAlphabet& OuvrirAlphabet(Banc& banc, const std::vector<Texte>& mots)
{
    banc.Vocabulaire(mots);
    banc.Index(IndexAlphabet);
    const auto& triés = banc.Choix().cmbVocabulaire;
    for (const auto& mot : mots)
        banc.plateforme.hasards.push_back((triés.Chercher(mot) + 0.5) / triés.ListCount());
    return banc.Ouvrir<frmAlphabet>();
}

std::vector<Texte> MotsEnColonne(const frmAlphabet& écran)
{
    std::vector<Texte> mots;
    for (int i = 0; i < écran.rtfMot.Nombre() && écran.rtfMot(i).Visible; ++i)
        mots.push_back(écran.rtfMot(i).Text());
    return mots;
}

// The ink of each character.
std::vector<Couleur> EncresDuMot(const RichTextBox& boîte)
{
    std::vector<Couleur> encres;
    for (std::size_t p = 0; p < boîte.Longueur(); ++p)
        encres.push_back(boîte.TextRTF().FormatEn(p).Teinte);
    return encres;
}

void CliquerLeMot(frmAlphabet& écran, int i)
{
    écran.rtfMot(i).Cliquer(0);
}

// Points gained and pairs.
std::pair<Texte, Texte> PointsAlphabet(const frmAlphabet& écran)
{
    return {écran.lblPoints(0).Caption, écran.lblPoints(1).Caption};
}

} // namespace

TEST(Alphabet, LégendeNePortePasLeNomDeLElève)
{
    Banc banc;
    EXPECT_EQ(OuvrirAlphabet(banc, Mots(3)).Caption, u"Ranger dans l'ordre alphabétique");
}

TEST(Alphabet, TextesEtCouleursDuDépart)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"chat", u"âne", u"bal"});
    VérifierPointsDeDépart(écran.lblPoints);
    EXPECT_EQ(MotsEnColonne(écran), (std::vector<Texte>{u"chat", u"âne", u"bal"}));
    EXPECT_EQ(écran.cmdQuitter.Caption, u"J'ai &fini");
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(écran.rtfMot(i).Visible, i < 3);
        EXPECT_EQ(écran.rtfMot(i).BackColor, Noir);
        EXPECT_EQ(écran.rtfMot(i).Police, u"Comic Sans MS");
        EXPECT_TRUE(écran.rtfMot(i).Locked);
        EXPECT_EQ(écran.rtfMot(i).ToolTipText,
                  u" Clique sur les étiquettes pour les ranger dans l'ordre alphabétique. ");
    }
    EXPECT_FALSE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.Focus(), &écran.rtfMot(0));
}

TEST(Alphabet, AlphabetAVoyellesRougesEtConsonnesBleues)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, Mots(3));
    Texte alphabet;
    for (int i = 0; i < 26; ++i) {
        alphabet += écran.lblLettre(i).Caption;
        EXPECT_EQ(écran.lblLettre(i).ForeColor, Contient(u"aeiouy", alphabet.back()) ? Rouge : Bleu);
        EXPECT_EQ(écran.lblLettre(i).ToolTipText, u" Voici les lettres de l'alphabet rangées dans l'ordre. ");
        EXPECT_FALSE(écran.lblLettre(i).Click);
    }
    EXPECT_EQ(alphabet, u"abcdefghijklmnopqrstuvwxyz");
}

TEST(Alphabet, CinqPremièresLettresOntLeurCouleur)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"chevaux", u"âne", u"maison"});
    EXPECT_EQ(EncresDuMot(écran.rtfMot(0)), (std::vector<Couleur>{Jaune, Cyan, Rouge, Vert, Violet, Jaune, Jaune}));
    EXPECT_EQ(EncresDuMot(écran.rtfMot(2)), (std::vector<Couleur>{Jaune, Cyan, Rouge, Vert, Violet, Jaune}));
}

TEST(Alphabet, MotDeMoinsDeCinqLettresEstPeintJusquAuBout)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"un", u"âne", u"quatre"});
    EXPECT_EQ(EncresDuMot(écran.rtfMot(0)), (std::vector<Couleur>{Jaune, Cyan}));
    EXPECT_EQ(EncresDuMot(écran.rtfMot(1)), (std::vector<Couleur>{Jaune, Cyan, Rouge}));
}

TEST(Alphabet, DeuxMotsMontrentLeCadreDeSortie)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, Mots(2));
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Pas assez de vocabulaire sélectionné");
    EXPECT_EQ(écran.notice.Cadre.Width, écran.Width());
    EXPECT_EQ(écran.notice.Cadre.Height, écran.Height());
    EXPECT_EQ(écran.notice.Phrase.Caption,
              u"Il doit y avoir au moins 4 mots de vocabulaire sélectionnés pour lancer l'exercice.");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Abandonner");
    EXPECT_FALSE(écran.cmdQuitter.EstAtteignable());
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexAlphabet), u"");
}

TEST(Alphabet, SansVocabulaireLeCadreDeSortieParaît)
{
    Banc banc;
    EXPECT_TRUE(OuvrirAlphabet(banc, {}).notice.Cadre.Visible);
}

TEST(Alphabet, CinqMotsDontDeuxDifférentsMontrentLeCadreDeSortie)
{
    Banc banc;
    banc.Vocabulaire({u"âne", u"âne", u"âne", u"bal", u"bal"});
    banc.Hasards({0.0, 0.9});
    EXPECT_TRUE(banc.Ouvrir<frmAlphabet>().notice.Cadre.Visible);
}

TEST(Alphabet, DoublonsDonnentMoinsDeMots)
{
    Banc banc;
    banc.Vocabulaire({u"âne", u"âne", u"bal", u"cri", u"cri"});
    banc.Hasards({0.0, 0.25, 0.5, 0.7});
    EXPECT_EQ(MotsEnColonne(banc.Ouvrir<frmAlphabet>()), (std::vector<Texte>{u"âne", u"bal", u"cri"}));
}

TEST(Alphabet, DouzeMotsEnMontrentDix)
{
    Banc banc;
    banc.Vocabulaire(Mots(12));
    TirerVarié(banc);
    auto& écran = banc.Ouvrir<frmAlphabet>();
    auto mots = MotsEnColonne(écran);
    EXPECT_EQ(mots.size(), 10U);
    std::sort(mots.begin(), mots.end());
    EXPECT_EQ(std::unique(mots.begin(), mots.end()), mots.end());
}

// ---- Moving ------------------------------------------------------------------------------------------------------

TEST(Alphabet, PremierClicPrendLeMot)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"chat", u"âne", u"bal"});
    CliquerLeMot(écran, 1);
    EXPECT_EQ(écran.rtfMot(1).BackColor, Bleu);
    EXPECT_EQ(écran.lblPassage.Caption, u"âne");
}

TEST(Alphabet, MotPrisEtCliquéDeNouveauEstReposéSansChangement)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"chat", u"âne", u"bal"});
    CliquerLeMot(écran, 1);
    CliquerLeMot(écran, 1);
    EXPECT_EQ(écran.rtfMot(1).BackColor, Noir);
    EXPECT_EQ(écran.lblPassage.Caption, u"");
    EXPECT_EQ(MotsEnColonne(écran), (std::vector<Texte>{u"chat", u"âne", u"bal"}));
}

TEST(Alphabet, DuHautEnBasLesAutresRemontent)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, Mots(10));
    CliquerLeMot(écran, 0);
    CliquerLeMot(écran, 9);
    auto attendus = Mots(10);
    std::rotate(attendus.begin(), attendus.begin() + 1, attendus.end());
    EXPECT_EQ(MotsEnColonne(écran), attendus);
    EXPECT_EQ(écran.lblPassage.Caption, u"");
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(écran.rtfMot(i).BackColor, Noir);
}

TEST(Alphabet, DuBasEnHautLesAutresDescendent)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, Mots(10));
    CliquerLeMot(écran, 9);
    CliquerLeMot(écran, 0);
    auto attendus = Mots(10);
    std::rotate(attendus.begin(), attendus.end() - 1, attendus.end());
    EXPECT_EQ(MotsEnColonne(écran), attendus);
}

TEST(Alphabet, MotDéplacéGardeSesCouleursDeLettres)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"chevaux", u"âne", u"bal"});
    CliquerLeMot(écran, 0);
    CliquerLeMot(écran, 1);
    EXPECT_EQ(MotsEnColonne(écran), (std::vector<Texte>{u"âne", u"chevaux", u"bal"}));
    EXPECT_EQ(EncresDuMot(écran.rtfMot(0)), (std::vector<Couleur>{Jaune, Cyan, Rouge}));
    EXPECT_EQ(EncresDuMot(écran.rtfMot(1)), (std::vector<Couleur>{Jaune, Cyan, Rouge, Vert, Violet, Jaune, Jaune}));
}

TEST(Alphabet, GlisserDonneLaMêmeColonneQueCliquer)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, Mots(4));
    CliquerLeMot(écran, 3);
    CliquerLeMot(écran, 1);
    const auto attendus = MotsEnColonne(écran);
    EXPECT_TRUE(écran.rtfMot(1).Prendre());
    écran.rtfMot(1).Lâcher(&écran.rtfMot(3));
    EXPECT_EQ(MotsEnColonne(écran), Mots(4));
    EXPECT_TRUE(écran.rtfMot(3).Prendre());
    EXPECT_EQ(écran.lblPassage.Caption, u"mot03");
    écran.rtfMot(3).Lâcher(&écran.rtfMot(1));
    EXPECT_EQ(MotsEnColonne(écran), attendus);
    EXPECT_EQ(écran.lblPassage.Caption, u"");
}

TEST(Alphabet, LâcherHorsDeLaColonneNeChangeRien)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, Mots(4));
    EXPECT_TRUE(écran.rtfMot(2).Prendre());
    écran.rtfMot(2).Lâcher(&écran.cmdQuitter);
    EXPECT_EQ(MotsEnColonne(écran), Mots(4));
    EXPECT_EQ(écran.rtfMot(2).BackColor, Noir);
    EXPECT_EQ(écran.lblPassage.Caption, u"");
}

// ---- The check ---------------------------------------------------------------------------------------------------

TEST(Alphabet, DixMotsEnOrdreDonnentNeufPointsEtDix)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, Mots(10));
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(PointsAlphabet(écran), (std::pair<Texte, Texte>{u"9", u"9"}));
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(écran.rtfMot(i).BackColor, Vert);
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_TRUE(écran.cmdQuitter.Enabled);
    EXPECT_EQ(écran.Focus(), &écran.cmdQuitter);
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexAlphabet), u"10");
}

TEST(Alphabet, TroisMotsDonnentZéroCinqOuDix)
{
    const std::vector<std::pair<std::vector<Texte>, Texte>> cas{
        {{u"âne", u"bal", u"cri"}, u"10"},
        {{u"bal", u"âne", u"cri"}, u"5"},
        {{u"âne", u"cri", u"bal"}, u"0"},
        {{u"cri", u"bal", u"âne"}, u"0"},
    };
    for (const auto& [mots, note] : cas) {
        Banc banc;
        auto& écran = OuvrirAlphabet(banc, mots);
        écran.cmdQuitter.Cliquer();
        EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
        écran.cmdQuitter.Cliquer();
        EXPECT_EQ(banc.Note(IndexAlphabet), note);
    }
}

TEST(Alphabet, UnePaireFausseAuDébutPuisDesJustesFontRemonterLesPoints)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"bal", u"âne", u"cri", u"dos"});
    std::vector<Texte> points;
    banc.plateforme.auRepeint = [&](Ecran&) { points.push_back(écran.lblPoints(0).Caption); };
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.rtfMot(1).BackColor, Rouge);
    EXPECT_EQ(points, (std::vector<Texte>{u"0", u"0", u"1", u"2"}));
    EXPECT_EQ(PointsAlphabet(écran), (std::pair<Texte, Texte>{u"2", u"3"}));
}

TEST(Alphabet, UnMotHorsDeSaPlaceCoûteUnePaireDeChaqueCôtéAuPlus)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"âne", u"bal", u"zoo", u"cri", u"dos"});
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.rtfMot(2).BackColor, Vert);
    EXPECT_EQ(écran.rtfMot(3).BackColor, Rouge);
    EXPECT_EQ(écran.rtfMot(4).BackColor, Vert);
    EXPECT_EQ(PointsAlphabet(écran), (std::pair<Texte, Texte>{u"2", u"4"}));
}

TEST(Alphabet, MotsDeMêmeCléNeSontPasEnOrdre)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"bal", u"côte", u"côté", u"Côté"});
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.rtfMot(1).BackColor, Vert);
    EXPECT_EQ(écran.rtfMot(2).BackColor, Rouge);
    EXPECT_EQ(écran.rtfMot(3).BackColor, Rouge);
    EXPECT_EQ(PointsAlphabet(écran), (std::pair<Texte, Texte>{u"0", u"3"}));
}

TEST(Alphabet, CasseAccentsEtTraitsDUnionNeComptentPas)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"Éclair", u"écluse", u"Île-de-France", u"iles"});
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(PointsAlphabet(écran), (std::pair<Texte, Texte>{u"3", u"3"}));
}

TEST(Alphabet, ApostropheResteEtSeRangeParSonCode)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"aube", u"aujourd'hui", u"aujourdhui"});
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(PointsAlphabet(écran), (std::pair<Texte, Texte>{u"2", u"2"}));
}

TEST(Alphabet, VérificationMetDeuxSecondesParMot)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"bal", u"cri", u"âne"});
    std::vector<int> jugés;
    for (const auto moment : {100ms, 1900ms, 2100ms, 3900ms, 4100ms, 5900ms}) {
        banc.plateforme.Prévoir(moment, [&] {
            int compte = 0;
            for (const auto& mot : écran.rtfMot)
                compte += mot.BackColor == Noir || mot.BackColor == Bleu ? 0 : 1;
            jugés.push_back(compte);
            EXPECT_FALSE(écran.cmdQuitter.Enabled);
            EXPECT_EQ(écran.cmdQuitter.Caption, u"J'ai &fini");
        });
    }
    const double départ = banc.plateforme.Horloge();
    écran.cmdQuitter.Cliquer();
    EXPECT_NEAR(banc.plateforme.Horloge() - départ, 6.0, 1e-6);
    EXPECT_EQ(jugés, (std::vector<int>{1, 1, 2, 2, 3, 3}));
}

TEST(Alphabet, MotsJugésChangentDEncre)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"bal", u"cri", u"âne"});
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(EncresDuMot(écran.rtfMot(0)), (std::vector<Couleur>{Noir, Noir, Noir}));
    EXPECT_EQ(EncresDuMot(écran.rtfMot(1)), (std::vector<Couleur>{Noir, Noir, Noir}));
    EXPECT_EQ(EncresDuMot(écran.rtfMot(2)), (std::vector<Couleur>{Blanc, Blanc, Blanc}));
}

TEST(Alphabet, MotsJugésNeSeDéplacentPlus)
{
    Banc banc;
    auto& écran = OuvrirAlphabet(banc, {u"bal", u"cri", u"âne"});
    CliquerLeMot(écran, 1); // still picked up when the check starts
    écran.cmdQuitter.Cliquer();
    CliquerLeMot(écran, 2);
    CliquerLeMot(écran, 0);
    EXPECT_FALSE(écran.rtfMot(2).Prendre());
    EXPECT_EQ(MotsEnColonne(écran), (std::vector<Texte>{u"bal", u"cri", u"âne"}));
    EXPECT_EQ(écran.rtfMot(0).BackColor, Vert);
    EXPECT_EQ(écran.rtfMot(1).BackColor, Vert);
    EXPECT_EQ(écran.rtfMot(2).BackColor, Rouge);
}

TEST(Alphabet, FermerPendantLaVérificationNEnregistreRien)
{
    for (const auto moment : {500ms, 2500ms, 4500ms}) {
        Banc banc;
        auto& écran = OuvrirAlphabet(banc, {u"âne", u"bal", u"cri"});
        banc.plateforme.Prévoir(moment, [&] { écran.FermerParCroix(); });
        écran.cmdQuitter.Cliquer();
        EXPECT_FALSE(écran.EstChargé());
        EXPECT_EQ(écran.cmdQuitter.Caption, u"J'ai &fini");
        EXPECT_EQ(banc.Note(IndexAlphabet), u"");
    }
}

TEST(Alphabet, PartirSansFinirNEnregistreRien)
{
    Banc banc;
    OuvrirAlphabet(banc, Mots(3)).FermerParCroix();
    EXPECT_EQ(banc.Note(IndexAlphabet), u"");
}

} // namespace tirelune
