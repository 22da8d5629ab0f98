#include "exercises/spelling/frmEcrirePhrase.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

namespace tirelune {

namespace {

constexpr int IndexEcrirePhrase = 25;
// Thirteen words, thirty letters.
constexpr VueTexte TrenteLettres = u"Il a vu un os et un rat au bord du lac bas.";

frmEcrirePhrase& OuvrirEcrirePhrase(Banc& banc, VueTexte texte, std::initializer_list<double> tirages = {0.0})
{
    banc.ChargerTexte(u"Fin. " + Texte{texte}); // a sentence is sought behind a full stop
    banc.Index(IndexEcrirePhrase);
    banc.Hasards(tirages);
    return banc.Ouvrir<frmEcrirePhrase>();
}

void TaperLettre(frmEcrirePhrase& écran, char16_t lettre)
{
    écran.rtfPhrase.Taper({.Caractère = lettre, .Code = 0});
}

char16_t LettreAttendue(const frmEcrirePhrase& écran)
{
    return écran.txtCorrigé.SelText().front();
}

// So many right letters; all that are left without a number.
int TaperJuste(frmEcrirePhrase& écran, int nombre = 1000)
{
    int tapées = 0;
    for (; tapées < nombre && !écran.cmdCommencer.Visible; ++tapées)
        TaperLettre(écran, LettreAttendue(écran));
    return tapées;
}

void SeTromper(frmEcrirePhrase& écran)
{
    TaperLettre(écran, u'#');
    EXPECT_TRUE(écran.cmdErreur.Visible);
    écran.cmdErreur.Cliquer();
}

// Up to the test, with nothing typed in it.
void AllerAuTest(frmEcrirePhrase& écran)
{
    écran.cmdCommencer.Cliquer();
    TaperJuste(écran);
    écran.cmdCommencer.Cliquer();
    TaperJuste(écran);
    écran.cmdCommencer.Cliquer();
}

Couleur EncreDeLaPhrase(const frmEcrirePhrase& écran, std::size_t place)
{
    return écran.rtfPhrase.TextRTF().FormatEn(place).Teinte;
}

} // namespace

TEST(EcrirePhrase, LégendePorteLeNomDeLElève)
{
    Banc banc;
    EXPECT_EQ(OuvrirEcrirePhrase(banc, TrenteLettres).Caption, u"Ecrire une phrase / Léa");
}

TEST(EcrirePhrase, TextesEtCouleursDuDépart)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    VérifierPointsDeDépart(écran.lblPoints);
    EXPECT_EQ(écran.rtfPhrase.Text(), TrenteLettres);
    EXPECT_EQ(écran.lblConsigne.Caption, u"Lis bien cette phrase que tu vas devoir écrire sans modèle.");
    EXPECT_TRUE(écran.lblConsigne.Visible);
    EXPECT_EQ(écran.lblMaj.Caption, u"Attention aux majuscules !!!");
    EXPECT_FALSE(écran.lblMaj.Visible);
    EXPECT_EQ(écran.lblTest.Caption, u"Entraînement");
    EXPECT_EQ(écran.lblTest.ToolTipText, u" Cette partie n'est pas notée. ");
    EXPECT_FALSE(écran.lblTest.Visible);
    EXPECT_EQ(écran.lblPassage.Caption, u"0");
    EXPECT_EQ(écran.cmdCommencer.Caption, u"&Commencer");
    EXPECT_EQ(écran.cmdErreur.Caption, u"Clique ici pour indiquer que tu as vu ton erreur.");
    EXPECT_EQ(écran.cmdErreur.BackColor, Rouge);
    EXPECT_FALSE(écran.cmdErreur.Visible);
    EXPECT_EQ(écran.Focus(), &écran.cmdCommencer);
}

// ---- The sentence ------------------------------------------------------------------------------------------------

TEST(EcrirePhrase, DixMotsSontRefusésEtOnzeAcceptés)
{
    static constexpr VueTexte texte = u"Un deux trois quatre cinq six sept huit neuf dix. "
                                      u"Un deux trois quatre cinq six sept huit neuf dix onze.";
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, texte, {0.0, 0.2});
    EXPECT_EQ(écran.cmbOrdre.ListCount(), 11);
    EXPECT_EQ(écran.rtfPhrase.Text(), u"Un deux trois quatre cinq six sept huit neuf dix onze.");
}

TEST(EcrirePhrase, SansPhraseAssezLongueLeCadreDeSortieParaît)
{
    Banc banc;
    banc.plateforme.toujours = [] { return 0.3; };
    auto& écran = OuvrirEcrirePhrase(banc, u"Un deux trois. Quatre cinq six. Sept huit neuf dix.", {});
    EXPECT_EQ(banc.plateforme.tirages, 99);
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Phrases trop courtes");
    EXPECT_EQ(écran.notice.Cadre.Width, écran.Width());
    EXPECT_EQ(écran.notice.Cadre.Height, écran.Height());
    EXPECT_EQ(écran.notice.Phrase.Caption, u"Il n'y a pas de phrase assez longue pour cet exercice.");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Abandonner");
    EXPECT_FALSE(écran.cmdCommencer.EstAtteignable());
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexEcrirePhrase), u"");
}

TEST(EcrirePhrase, LignesEtBlancsEnTropNeFontQuUnBlanc)
{
    Banc banc;
    auto& écran =
        OuvrirEcrirePhrase(banc, u"Un  deux,\r\ntrois «quatre» (cinq) six — sept\thuit neuf l'eau onze ; etc", {0.0});
    EXPECT_EQ(écran.rtfPhrase.Text(), u"Un deux, trois «quatre» (cinq) six sept huit neuf l'eau onze;");
}

// ---- The stages --------------------------------------------------------------------------------------------------

TEST(EcrirePhrase, EtapesMasquentUnMotSurDeuxPuisTous)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    écran.cmdCommencer.Cliquer();
    EXPECT_FALSE(écran.lblConsigne.Visible);
    EXPECT_TRUE(écran.lblMaj.Visible);
    EXPECT_TRUE(écran.lblTest.Visible);
    EXPECT_FALSE(écran.cmdCommencer.Visible);
    EXPECT_EQ(écran.cmdCommencer.Caption, u"&Suivant");
    EXPECT_EQ(écran.lblPassage.Caption, u"1");
    EXPECT_EQ(écran.rtfPhrase.Text(), u"Il _ vu __ os __ un ___ au ____ du ___ bas.");
    EXPECT_EQ(écran.Focus(), &écran.rtfPhrase);
    TaperJuste(écran);
    EXPECT_EQ(écran.rtfPhrase.Text(), TrenteLettres);
    EXPECT_EQ(écran.Focus(), &écran.cmdCommencer);
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.rtfPhrase.Text(), u"__ a __ un __ et __ rat __ bord __ lac ___.");
    EXPECT_EQ(écran.cmdCommencer.Caption, u"&Suivant");
    EXPECT_EQ(écran.lblTest.Caption, u"Entraînement");
    TaperJuste(écran);
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.rtfPhrase.Text(), u"__ _ __ __ __ __ __ ___ __ ____ __ ___ ___.");
    EXPECT_EQ(écran.cmdCommencer.Caption, u"&Quitter");
    EXPECT_EQ(écran.lblTest.Caption, u"Test");
    EXPECT_EQ(écran.lblTest.ForeColor, Rouge);
    EXPECT_EQ(écran.lblTest.ToolTipText, u" ATTENTION : maintenant, on compte les points ! ");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_EQ(TaperJuste(écran), 30);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"30");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"30");
    écran.cmdCommencer.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexEcrirePhrase), u"10");
}

TEST(EcrirePhrase, TraitDUnionEtApostropheSeTapentEtVirguleReste)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, u"Peut-être, l'eau, (a) «b» est 12 fois plus bleue ce soir ici même.");
    AllerAuTest(écran);
    EXPECT_EQ(écran.rtfPhrase.Text(), u"_________, _____, (_) «_» ___ __ ____ ____ _____ __ ____ ___ ____.");
    TaperJuste(écran, 4);
    EXPECT_EQ(LettreAttendue(écran), u'-');
    TaperLettre(écran, u'-');
    EXPECT_FALSE(écran.cmdErreur.Visible);
}

TEST(EcrirePhrase, ApostropheTypographiqueTapéeVautLaDroite)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, u"L'eau est plus bleue ce soir ici même que la mer là-bas.");
    AllerAuTest(écran);
    TaperLettre(écran, u'L');
    TaperLettre(écran, u'’');
    EXPECT_FALSE(écran.cmdErreur.Visible);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
}

TEST(EcrirePhrase, EtapeSansLettreÀMasquerEstFinieAussitôt)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, u"a ( b ( c ( d ( e ( f (.");
    écran.cmdCommencer.Cliquer();
    EXPECT_TRUE(écran.cmdCommencer.Visible);
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.rtfPhrase.Text(), u"_ ( _ ( _ ( _ ( _ ( _ (.");
    EXPECT_FALSE(écran.cmdCommencer.Visible);
}

// ---- Letters -----------------------------------------------------------------------------------------------------

TEST(EcrirePhrase, LettreJusteEstVerteEtMèneAuTrouSuivant)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.rtfPhrase.SelStart(), 3U);
    EXPECT_EQ(écran.rtfPhrase.SelText(), u"_");
    EXPECT_EQ(écran.txtCorrigé.SelText(), u"a");
    TaperLettre(écran, u'a');
    EXPECT_EQ(écran.rtfPhrase.CaractèreEn(3), u"a");
    EXPECT_EQ(EncreDeLaPhrase(écran, 3), VertFoncé);
    EXPECT_EQ(écran.rtfPhrase.SelStart(), 8U);
    EXPECT_EQ(écran.txtCorrigé.SelText(), u"u");
}

TEST(EcrirePhrase, ErreurDEntraînementEstRougeEtBloqueSansPoints)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    écran.cmdCommencer.Cliquer();
    TaperLettre(écran, u'e');
    EXPECT_TRUE(écran.cmdErreur.Visible);
    EXPECT_EQ(écran.rtfPhrase.CaractèreEn(3), u"a");
    EXPECT_EQ(EncreDeLaPhrase(écran, 3), Rouge);
    TaperLettre(écran, u'u');
    EXPECT_EQ(écran.rtfPhrase.CaractèreEn(8), u"_");
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblPassage.Caption, u"1");
    écran.cmdErreur.Cliquer();
    EXPECT_FALSE(écran.cmdErreur.Visible);
    EXPECT_EQ(écran.Focus(), &écran.rtfPhrase);
    TaperLettre(écran, u'u');
    EXPECT_EQ(écran.rtfPhrase.CaractèreEn(8), u"u");
    TaperJuste(écran);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
}

TEST(EcrirePhrase, ErreurSurLaDernièreLettreVeutÊtreVueAvantLaSuite)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    écran.cmdCommencer.Cliquer();
    TaperJuste(écran, 14);
    TaperLettre(écran, u'#');
    EXPECT_TRUE(écran.cmdCommencer.Visible);
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblPassage.Caption, u"1");
    écran.cmdErreur.Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.cmdCommencer);
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblPassage.Caption, u"2");
}

TEST(EcrirePhrase, ErreurSurLaPremièreLettreDuTestLaisseZéro)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    AllerAuTest(écran);
    SeTromper(écran);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    TaperJuste(écran, 6);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"6");
    SeTromper(écran);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"8");
}

TEST(EcrirePhrase, TroisErreursSurTrenteLettresDonnentCinq)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    AllerAuTest(écran);
    TaperJuste(écran, 15);
    SeTromper(écran);
    TaperJuste(écran, 5);
    SeTromper(écran);
    SeTromper(écran);
    TaperJuste(écran);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"15");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"30");
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(banc.Note(IndexEcrirePhrase), u"5");
}

TEST(EcrirePhrase, AccentEtMajusculeComptent)
{
    static constexpr VueTexte texte = u"Elle rêve et elle vole près de la mer et du ciel.";
    for (const auto lettre : {u'e', u'É', u'é'}) {
        Banc banc;
        auto& écran = OuvrirEcrirePhrase(banc, texte);
        AllerAuTest(écran);
        TaperLettre(écran, lettre);
        EXPECT_TRUE(écran.cmdErreur.Visible);
        EXPECT_EQ(écran.rtfPhrase.CaractèreEn(0), u"E");
    }
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, texte);
    AllerAuTest(écran);
    TaperJuste(écran, 5);
    EXPECT_EQ(LettreAttendue(écran), u'ê');
    TaperLettre(écran, u'e');
    EXPECT_TRUE(écran.cmdErreur.Visible);
}

TEST(EcrirePhrase, BlancsEtTouchesDeCommandeNeFontRien)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    AllerAuTest(écran);
    for (const char16_t c : {u' ', u'\u00A0', u'\u202F', u'\r', u'\b', u'\t', u'\x16', u'\x1B'})
        EXPECT_FALSE(écran.rtfPhrase.Taper({.Caractère = c, .Code = c})) << static_cast<int>(c);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_EQ(écran.rtfPhrase.SelStart(), 0U);
    EXPECT_FALSE(écran.cmdErreur.Visible);
}

TEST(EcrirePhrase, FlèchesEtClicsNeDéplacentPasLaSaisie)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    AllerAuTest(écran);
    TaperJuste(écran, 3);
    const auto place = écran.rtfPhrase.SelStart();
    for (int code = Touche::PagePrécédente; code <= Touche::Bas; ++code)
        EXPECT_FALSE(écran.rtfPhrase.Taper({.Caractère = 0, .Code = code}));
    for (const std::size_t clic : {0U, 2U, 20U, 43U}) {
        écran.rtfPhrase.Cliquer(clic);
        EXPECT_EQ(écran.rtfPhrase.SelStart(), place);
        EXPECT_EQ(écran.rtfPhrase.SelLength(), 1U);
        EXPECT_EQ(écran.txtCorrigé.SelStart, place);
    }
}

TEST(EcrirePhrase, RienNeSeTapeAvantDeCommencerNiAprèsLaFin)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    EXPECT_TRUE(écran.rtfPhrase.Taper({.Caractère = u'a', .Code = u'A'}));
    EXPECT_EQ(écran.rtfPhrase.Text(), TrenteLettres);
    AllerAuTest(écran);
    TaperJuste(écran);
    TaperLettre(écran, u'z');
    EXPECT_EQ(écran.lblPoints(1).Caption, u"30");
}

TEST(EcrirePhrase, FermerEnRouteNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirEcrirePhrase(banc, TrenteLettres);
    AllerAuTest(écran);
    TaperJuste(écran, 10);
    écran.FermerParCroix();
    EXPECT_EQ(banc.Note(IndexEcrirePhrase), u"");
}

} // namespace tirelune
