#include "exercises/memory/frmPoursuite.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

#include <algorithm>
#include <map>
#include <set>

namespace tirelune {

namespace {

constexpr int IndexPoursuite = 14;

// Words of five letters: a blank at every sixth place.
Texte Phrase(const std::vector<Texte>& mots)
{
    Texte phrase;
    for (const auto& mot : mots)
        phrase += (phrase.empty() ? u"" : u" ") + mot;
    return phrase;
}

frmPoursuite& OuvrirPoursuite(Banc& banc, Texte texte)
{
    banc.ChargerTexte(std::move(texte));
    banc.Index(IndexPoursuite);
    TirerVarié(banc);
    return banc.Ouvrir<frmPoursuite>();
}

// With the fifty words the first stop is behind "mot04" and the right word at lblMot(4).
void AnnoncerArrêtEnMot04(Banc& banc)
{
    banc.Hasards({0.0, 0.5});
}

Label& Proposition(frmPoursuite& écran, bool juste)
{
    for (auto& mot : écran.lblMot) {
        if (mot.Visible && (mot.Caption == écran.lblCorrigé.Caption) == juste)
            return mot;
    }
    ADD_FAILURE() << "proposition introuvable";
    return écran.lblMot(0);
}

int Propositions(const frmPoursuite& écran)
{
    int nombre = 0;
    for (int i = 0; i < 10; ++i)
        nombre += écran.lblMot(i).Visible ? 1 : 0;
    return nombre;
}

Format FormatEn(const frmPoursuite& écran, std::size_t place)
{
    return écran.rtfPoursuite.TextRTF().FormatEn(place);
}

// When each character came up, in seconds of the clock.
class Relevé {
public:
    Relevé(Banc& banc, frmPoursuite& écran)
    {
        écran.rtfPoursuite.Change = [this, &banc, &écran] {
            if (écran.rtfPoursuite.SelLength() == 1)
                heures_[écran.rtfPoursuite.SelStart()] = banc.plateforme.Horloge();
        };
    }
    // Milliseconds between a character and the one before it.
    [[nodiscard]] long Délai(std::size_t place) const
    {
        return std::lround((heures_.at(place) - heures_.at(place - 1)) * 1000);
    }
    [[nodiscard]] double Heure(std::size_t place) const { return heures_.at(place); }
    [[nodiscard]] std::size_t Nombre() const { return heures_.size(); }

private:
    std::map<std::size_t, double> heures_;
};

} // namespace

TEST(Poursuite, OuvertureMontreLaConsigne)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    EXPECT_EQ(écran.Caption, u"Poursuite / Léa");
    EXPECT_EQ(banc.état.VitessePoursuite, 100);
    EXPECT_TRUE(écran.frameConsigne.Visible);
    EXPECT_FALSE(écran.rtfPoursuite.Visible);
    EXPECT_FALSE(écran.frameMot.Visible);
    EXPECT_EQ(écran.BackColor, GrisClair);
    EXPECT_EQ(écran.Focus(), &écran.cmdCommencer);
}

TEST(Poursuite, TextesCouleursEtIntervallesDuDépart)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    EXPECT_EQ(écran.lblConsigne.Caption, u"Le texte va apparaître progressivement. Essaie de me suivre !");
    EXPECT_EQ(écran.cmdCommencer.Caption, u"&Commencer");
    EXPECT_EQ(écran.Label1.Caption, u"Clique sur le dernier mot qui est apparu.");
    EXPECT_EQ(écran.cmdContinuer.Caption, u"&Continuer");
    EXPECT_FALSE(écran.cmdContinuer.Visible);
    EXPECT_FALSE(écran.lblPassage.Visible);
    EXPECT_FALSE(écran.lblCorrigé.Visible);
    for (auto& mot : écran.lblMot) {
        EXPECT_EQ(mot.ForeColor, Bleu);
        EXPECT_EQ(mot.BackColor, Blanc);
    }
    VérifierPointsDeDépart(écran.lblPoints);
    EXPECT_EQ(écran.Horloge.Interval, 100);
    EXPECT_EQ(écran.Horloge2.Interval, 400);
    EXPECT_FALSE(écran.Horloge.Enabled);
    EXPECT_FALSE(écran.Horloge2.Enabled);
}

TEST(Poursuite, BoîteSuitLaTailleDeLEcranAPartirDeMilleTwips)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    écran.Dimensionner(1000, 1000);
    EXPECT_EQ(écran.rtfPoursuite.Width, 850);
    EXPECT_EQ(écran.rtfPoursuite.Height, 500);
    écran.Dimensionner(999, 8000);
    EXPECT_EQ(écran.rtfPoursuite.Width, 850);
    écran.Dimensionner(8000, 999);
    EXPECT_EQ(écran.rtfPoursuite.Height, 500);
    écran.Dimensionner(9000, 6000);
    EXPECT_EQ(écran.rtfPoursuite.Width, 8850);
    EXPECT_EQ(écran.rtfPoursuite.Height, 5500);
}

TEST(Poursuite, TexteEstBlancSurBlancEtSansMarquesAvantDeParaître)
{
    Banc banc;
    TexteRiche texte{Phrase(Mots(50))};
    texte.Formater(0, 60, [](Format& format) {
        format.Barré = true;
        format.Gras = true;
        format.Teinte = Rouge;
    });
    banc.ChargerTexte(texte);
    TirerVarié(banc);
    auto& écran = banc.Ouvrir<frmPoursuite>();
    bool vérifié = false;
    banc.plateforme.Prévoir(50ms, [&] {
        vérifié = true;
        EXPECT_TRUE(écran.rtfPoursuite.Visible);
        EXPECT_FALSE(écran.frameConsigne.Visible);
        EXPECT_EQ(écran.rtfPoursuite.SelLength(), 0U);
        écran.rtfPoursuite.TextRTF().PourChaqueTranche(0, écran.rtfPoursuite.Longueur(), [](const Tranche& tranche) {
            EXPECT_EQ(tranche.Style->Teinte, Blanc);
            EXPECT_FALSE(tranche.Style->Barré);
        });
        EXPECT_TRUE(FormatEn(écran, 0).Gras);
    });
    écran.cmdCommencer.Cliquer();
    EXPECT_TRUE(vérifié);
    EXPECT_TRUE(banc.Choix().rtfTexte.TextRTF() == texte);
}

TEST(Poursuite, TexteNEstJamaisPeintDansSesCouleurs)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    banc.plateforme.auRepeint = [&](Ecran&) {
        if (écran.rtfPoursuite.Visible) {
            EXPECT_EQ(FormatEn(écran, 200).Teinte, Blanc);
        }
    };
    écran.cmdCommencer.Cliquer();
    Proposition(écran, true).Cliquer();
    écran.cmdContinuer.Cliquer();
    EXPECT_TRUE(écran.frameMot.Visible);
}

TEST(Poursuite, LettresParaissentJusquAuBlancDeLArrêtPuisLaDernièreReste)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    AnnoncerArrêtEnMot04(banc);
    const Relevé relevé{banc, écran};
    const double départ = banc.plateforme.Horloge();
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(relevé.Nombre(), 30U); // the blank of the stop is the last
    EXPECT_NEAR(relevé.Heure(0) - départ, 0.1, 1e-6);
    for (std::size_t i = 1; i < 30; ++i)
        EXPECT_EQ(relevé.Délai(i), 100);
    EXPECT_NEAR(banc.plateforme.Horloge() - relevé.Heure(29), 0.4, 1e-6);
    EXPECT_EQ(FormatEn(écran, 0).Teinte, Bleu);
    EXPECT_EQ(FormatEn(écran, 29).Teinte, Bleu);
    EXPECT_EQ(FormatEn(écran, 30).Teinte, Blanc);
    EXPECT_FALSE(écran.rtfPoursuite.Visible);
    EXPECT_TRUE(écran.frameMot.Visible);
    EXPECT_FALSE(écran.Horloge.Enabled);
    EXPECT_EQ(écran.lblCorrigé.Caption, u"mot04");
    EXPECT_EQ(écran.lblMot(4).Caption, u"mot04");
}

TEST(Poursuite, ArrêtTombeEntreLeDixièmeEtQuaranteTroisCentièmes)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    banc.Hasards({0.9999, 0.5}); // 29 + 99: the blank at 132
    const Relevé relevé{banc, écran};
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(relevé.Nombre(), 132U);
    EXPECT_EQ(écran.lblCorrigé.Caption, u"mot21");
}

TEST(Poursuite, DixPropositionsDifférentesSontDesMotsDuTexte)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    écran.cmdCommencer.Cliquer();
    std::set<Texte> vus;
    const auto mots = Mots(50);
    for (auto& mot : écran.lblMot) {
        EXPECT_TRUE(mot.Visible);
        EXPECT_NE(std::find(mots.begin(), mots.end(), mot.Caption()), mots.end());
        vus.insert(mot.Caption);
    }
    EXPECT_EQ(vus.size(), 10U);
    EXPECT_EQ(écran.Focus(), &écran.lblMot(0));
}

TEST(Poursuite, MotJusteNEstJamaisEnDernierePlace)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    banc.Hasards({0.0, 0.9999999});
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblMot(8).Caption, écran.lblCorrigé.Caption);
    EXPECT_NE(écran.lblMot(9).Caption(), écran.lblCorrigé.Caption());
}

TEST(Poursuite, MotDéjàProposéEstTiréDeNouveau)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    // Places 25 and on, over 273: the blanks at 30 and 36. The right word is first, at lblMot(0).
    banc.Hasards({0.0, 0.0, 0.0, 0.01, 0.03, 0.03, 0.05});
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblMot(0).Caption, u"mot04");
    EXPECT_EQ(écran.lblMot(1).Caption, u"mot05");
    EXPECT_EQ(écran.lblMot(2).Caption, u"mot06");
}

TEST(Poursuite, ArrêtDerrièreUneVirguleEstTiréDeNouveau)
{
    Banc banc;
    auto mots = Mots(50);
    for (std::size_t i = 1; i < mots.size(); i += 2)
        mots[i].back() = u',';
    auto& écran = OuvrirPoursuite(banc, Phrase(mots));
    banc.Hasards({0.03, 0.03, 0.0, 0.5}); // twice behind "mot0,"
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblCorrigé.Caption, u"mot04");
    for (auto& mot : écran.lblMot)
        EXPECT_FALSE(Contient(mot.Caption, u','));
}

TEST(Poursuite, MotATraitsDUnionEstUnSeulMot)
{
    Banc banc;
    auto mots = Mots(50);
    mots[4] = u"a-b-c";
    auto& écran = OuvrirPoursuite(banc, Phrase(mots));
    AnnoncerArrêtEnMot04(banc);
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblCorrigé.Caption, u"a-b-c");
}

TEST(Poursuite, ApostropheFinitLeMot)
{
    Banc banc;
    auto mots = Mots(50);
    mots[4] = u"l'eau";
    auto& écran = OuvrirPoursuite(banc, Phrase(mots));
    AnnoncerArrêtEnMot04(banc);
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblCorrigé.Caption, u"eau");
}

TEST(Poursuite, LigatureCoupeLeMotMaisNonLAccent)
{
    Banc banc;
    auto mots = Mots(50);
    mots[4] = u"sœurs";
    mots[5] = u"élève";
    auto& écran = OuvrirPoursuite(banc, Phrase(mots));
    banc.Hasards({0.0, 0.5});
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblCorrigé.Caption, u"urs");
    Proposition(écran, true).Cliquer();
    banc.Hasards({0.03, 0.5});
    écran.cmdContinuer.Cliquer();
    EXPECT_EQ(écran.lblCorrigé.Caption, u"élève");
}

TEST(Poursuite, PauseDUnSigneSeSentUnCaractèrePlusLoin)
{
    for (const char16_t signe : Texte{u".!?;:,"}) {
        Banc banc;
        auto mots = Mots(50);
        mots[0].back() = signe; // at place 4
        auto& écran = OuvrirPoursuite(banc, Phrase(mots));
        AnnoncerArrêtEnMot04(banc);
        const Relevé relevé{banc, écran};
        écran.cmdCommencer.Cliquer();
        EXPECT_EQ(relevé.Délai(4), 100);
        EXPECT_EQ(relevé.Délai(5), 100);
        EXPECT_EQ(relevé.Délai(6), signe == u',' ? 500 : 1000);
        EXPECT_EQ(relevé.Délai(7), 100);
    }
}

TEST(Poursuite, CinqRéponsesJustesVontA100Puis1)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    const Relevé relevé{banc, écran};
    for (int i = 0; i < 5; ++i) {
        AnnoncerArrêtEnMot04(banc);
        i == 0 ? écran.cmdCommencer.Cliquer() : écran.cmdContinuer.Cliquer();
        EXPECT_EQ(relevé.Délai(20), i == 0 ? 100 : 1);
        Proposition(écran, true).Cliquer();
        EXPECT_EQ(écran.cmdContinuer.Caption, i < 4 ? u"&Continuer" : u"&Quitter");
    }
    écran.cmdContinuer.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexPoursuite), u"10");
}

TEST(Poursuite, CinqRéponsesFaussesVontA100Puis200Puis400)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    const Relevé relevé{banc, écran};
    static constexpr std::array<long, 5> Délais{100, 200, 400, 400, 400};
    for (std::size_t i = 0; i < Délais.size(); ++i) {
        AnnoncerArrêtEnMot04(banc);
        i == 0 ? écran.cmdCommencer.Cliquer() : écran.cmdContinuer.Cliquer();
        EXPECT_EQ(relevé.Délai(20), Délais[i]);
        Proposition(écran, false).Cliquer();
    }
    écran.cmdContinuer.Cliquer();
    EXPECT_EQ(banc.Note(IndexPoursuite), u"0");
}

TEST(Poursuite, VitesseRemonteParDegrésEtRepartDeUnVersCent)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    écran.cmdCommencer.Cliquer();
    const auto répondre = [&](bool juste) {
        Proposition(écran, juste).Cliquer();
        const int vitesse = banc.état.VitessePoursuite;
        if (écran.cmdContinuer.Caption != u"&Quitter")
            écran.cmdContinuer.Cliquer();
        return vitesse;
    };
    EXPECT_EQ(répondre(true), 1);
    EXPECT_EQ(répondre(false), 100);
    EXPECT_EQ(répondre(false), 200);
    EXPECT_EQ(répondre(false), 400);
    EXPECT_EQ(répondre(true), 200);
}

TEST(Poursuite, RéponseFausseEstRougeEtLeMotJusteNEstPasMontré)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    écran.cmdCommencer.Cliquer();
    auto& fausse = Proposition(écran, false);
    fausse.Cliquer();
    EXPECT_EQ(fausse.BackColor, Rouge);
    EXPECT_EQ(Proposition(écran, true).BackColor, Blanc);
    EXPECT_TRUE(écran.cmdContinuer.Visible);
    EXPECT_EQ(écran.Focus(), &écran.cmdContinuer);
}

TEST(Poursuite, SecondClicAprèsLaRéponseNeChangeRien)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    écran.cmdCommencer.Cliquer();
    Proposition(écran, false).Cliquer();
    for (auto& mot : écran.lblMot)
        mot.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_EQ(banc.état.VitessePoursuite, 200);
}

TEST(Poursuite, PoursuiteSuivanteEffaceLesPropositions)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    écran.cmdCommencer.Cliquer();
    Proposition(écran, true).Cliquer();
    banc.plateforme.Prévoir(10ms, [&] {
        EXPECT_FALSE(écran.frameMot.Visible);
        EXPECT_FALSE(écran.cmdContinuer.Visible);
        EXPECT_TRUE(écran.rtfPoursuite.Visible);
        EXPECT_EQ(FormatEn(écran, 40).Teinte, Blanc);
    });
    écran.cmdContinuer.Cliquer();
    for (auto& mot : écran.lblMot)
        EXPECT_EQ(mot.BackColor, Blanc);
    EXPECT_EQ(Propositions(écran), 10);
}

// ---- Texts that don't suit ---------------------------------------------------------------------------------------

namespace {

void VérifierRefus(Texte texte)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, std::move(texte));
    banc.AnnoncerBoîte(u"Ce texte ne convient pas…");
    écran.cmdCommencer.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexPoursuite), u"");
}

} // namespace

TEST(Poursuite, TexteSansBlancEstRefusé)
{
    VérifierRefus(Texte(300, u'x'));
}

TEST(Poursuite, TexteVideEstRefusé)
{
    VérifierRefus(u"");
}

TEST(Poursuite, TexteDeBlancsEstRefusé)
{
    VérifierRefus(Texte(300, u' '));
}

TEST(Poursuite, TexteSansMotDevantUnBlancEstRefusé)
{
    Texte texte;
    for (int i = 0; i < 60; ++i)
        texte += u"Oui ! "; // the blank behind the word comes before the sign
    std::replace(texte.begin(), texte.end(), u'i', u'«');
    VérifierRefus(texte);
}

TEST(Poursuite, TexteDontLesArrêtsSontHorsDePortéeEstRefusé)
{
    VérifierRefus(u"un " + Texte(30, u'.') + Texte(130, u' ') + Texte(100, u'.') + u" fin fin"); // L / 10 is past "un"
}

TEST(Poursuite, ArrêtPeutTomberAprèsUnLongPassageSansBlanc)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Texte(200, u'x') + u" deux trois quatre");
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblCorrigé.Caption, Texte(200, u'x'));
    EXPECT_EQ(Propositions(écran), 3); // "quatre" stands before no blank
}

TEST(Poursuite, QuatreMotsDifférentsDonnentQuatrePropositions)
{
    Banc banc;
    Texte texte;
    for (int i = 0; i < 20; ++i)
        texte += u"un deux trois quatre ";
    auto& écran = OuvrirPoursuite(banc, texte);
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(Propositions(écran), 4);
    Proposition(écran, true).Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(Poursuite, MotsTousEgauxNeDonnentQueLeBon)
{
    Banc banc;
    Texte texte;
    for (int i = 0; i < 100; ++i)
        texte += u"mot ";
    auto& écran = OuvrirPoursuite(banc, texte);
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(Propositions(écran), 1);
    EXPECT_EQ(Proposition(écran, true).Caption, u"mot");
    EXPECT_EQ(écran.Focus(), &Proposition(écran, true));
}

TEST(Poursuite, MotRareFinitParSortir)
{
    Banc banc;
    Texte texte;
    for (int i = 0; i < 5000; ++i)
        texte += u"mot ";
    auto& écran = OuvrirPoursuite(banc, texte + u"rare mot ");
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(Propositions(écran), 2);
    EXPECT_EQ(Proposition(écran, false).Caption, u"rare");
}

TEST(Poursuite, TextesPlusCourtsQueLaMargeDuTirageFinissentAussi)
{
    const Texte texte = u"un chat dort là, un rat le voit bien et va";
    for (std::size_t longueur = 3; longueur <= texte.size(); ++longueur) {
        Banc banc;
        auto& écran = OuvrirPoursuite(banc, texte.substr(0, longueur));
        écran.cmdCommencer.Cliquer();
        EXPECT_TRUE(écran.frameMot.Visible) << longueur;
        EXPECT_GE(Propositions(écran), 1) << longueur;
    }
}

TEST(Poursuite, FinsDeLigneNeSontPasDesBlancs)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, u"un\r\ndeux\r\ntrois quatre\r\ncinq six\r\n");
    écran.cmdCommencer.Cliquer();
    EXPECT_TRUE(écran.lblCorrigé.Caption == u"trois" || écran.lblCorrigé.Caption == u"cinq");
}

// ---- Wild clicks and closings ------------------------------------------------------------------------------------

TEST(Poursuite, ClicsPendantLaPoursuiteNeDérangentRien)
{
    Banc banc;
    auto mots = Mots(50);
    mots[0].back() = u'.';
    auto& écran = OuvrirPoursuite(banc, Phrase(mots));
    AnnoncerArrêtEnMot04(banc);
    const Relevé relevé{banc, écran};
    banc.plateforme.Prévoir(550ms, [&] {
        écran.rtfPoursuite.Cliquer(200);
        écran.rtfPoursuite.DoubleCliquer(210);
        écran.cmdCommencer.Cliquer();
        écran.cmdContinuer.Cliquer();
        écran.lblMot(0).Cliquer();
    });
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(relevé.Délai(6), 1000);
    EXPECT_EQ(FormatEn(écran, 29).Teinte, Bleu);
    EXPECT_EQ(FormatEn(écran, 30).Teinte, Blanc);
    EXPECT_EQ(FormatEn(écran, 210).Teinte, Blanc);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_TRUE(écran.frameMot.Visible);
}

TEST(Poursuite, FermeturePendantLaPoursuiteNEnregistreRien)
{
    for (const auto délai : {0ms, 50ms, 1550ms, 2999ms, 3100ms, 3399ms}) { // letters until 3000, then the last pause
        Banc banc;
        auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
        AnnoncerArrêtEnMot04(banc);
        banc.plateforme.Prévoir(délai, [&] { écran.FermerParCroix(); });
        écran.cmdCommencer.Cliquer();
        EXPECT_FALSE(écran.EstChargé());
        EXPECT_FALSE(écran.frameMot.Visible);
        EXPECT_FALSE(écran.Horloge.Enabled);
        EXPECT_FALSE(écran.Horloge2.Enabled);
        EXPECT_EQ(banc.Note(IndexPoursuite), u"");
    }
}

TEST(Poursuite, FermetureEntreDeuxPoursuitesNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirPoursuite(banc, Phrase(Mots(50)));
    écran.cmdCommencer.Cliquer();
    Proposition(écran, true).Cliquer();
    écran.FermerParCroix();
    EXPECT_EQ(banc.Note(IndexPoursuite), u"");
}

} // namespace tirelune
