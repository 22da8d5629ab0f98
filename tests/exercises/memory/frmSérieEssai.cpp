#include "exercises/memory/frmSérie.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

namespace tirelune {

namespace {

constexpr int IndexSérie = 12;

frmSérie& OuvrirSérie(Banc& banc, std::vector<Texte> mots)
{
    banc.Vocabulaire(std::move(mots));
    banc.Index(IndexSérie);
    return banc.Ouvrir<frmSérie>();
}

Label& Choix(frmSérie& écran, const Texte& mot, bool égal = true)
{
    for (auto& choix : écran.lblChoix) {
        if (!choix.Caption().empty() && (choix.Caption == mot) == égal)
            return choix;
    }
    ADD_FAILURE() << "choix introuvable";
    return écran.lblChoix(0);
}

// Sees the sequence and clicks its `combien` first words in their order.
void Répéter(frmSérie& écran, int combien)
{
    écran.cmdVoir.Cliquer();
    for (int i = 0; i < combien; ++i)
        Choix(écran, écran.lblRéponse(i).Caption).Cliquer();
}

// Repeats sequences of 1, 2... words up to `longueur`, then makes a mistake on the first word of the next one.
void JouerSérie(frmSérie& écran, int longueur)
{
    for (int n = 1; n <= longueur; ++n)
        Répéter(écran, n);
    if (longueur > écran.ApplicationDe().état.NoteSérie)
        return;
    écran.cmdVoir.Cliquer();
    Choix(écran, écran.lblRéponse(0).Caption, false).Cliquer();
}

int CasesVisibles(const frmSérie& écran)
{
    int nombre = 0;
    for (int i = 0; i < 10; ++i)
        nombre += écran.lblMot(i).Visible ? 1 : 0;
    return nombre;
}

} // namespace

TEST(Série, LégendePorteLeNomDeLElève)
{
    Banc banc;
    TirerVarié(banc);
    EXPECT_EQ(OuvrirSérie(banc, Mots(5)).Caption, u"Mémoriser une série / Léa");
}

TEST(Série, TextesBullesEtCouleursDuDépart)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    EXPECT_EQ(écran.frameChoix.Caption, u"Clique sur ces mots");
    EXPECT_EQ(écran.lblConsigne.Caption, u" Clique sur les mots dans l'ordre dans lequel ils sont apparus. ");
    EXPECT_FALSE(écran.lblConsigne.Visible);
    EXPECT_EQ(écran.cmdVoir.Caption, u"&Voir");
    EXPECT_EQ(écran.cmdContinuer.Caption, u"Série suivante");
    EXPECT_FALSE(écran.cmdContinuer.Visible);
    EXPECT_EQ(écran.lblPoints(0).ToolTipText, u" Seul le score de la meilleure série est retenu. ");
    EXPECT_EQ(écran.lblPoints(1).ToolTipText, u" Seul le score de la meilleure série est retenu. ");
    EXPECT_EQ(écran.lblPoints(2).ToolTipText, u" Seul le score de la meilleur série est retenu. ");
    VérifierPointsDeDépart(écran.lblPoints, u"5");
}

TEST(Série, QuatreMotsMontrentLeCadreDeSortie)
{
    Banc banc;
    auto& écran = OuvrirSérie(banc, Mots(4)); // and nothing is drawn
    VérifierNoticeDeVocabulaire(écran);
    EXPECT_FALSE(écran.cmdVoir.EstAtteignable());
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexSérie), u"");
}

TEST(Série, SixMotsDontQuatreDifférentsMontrentLeCadreDeSortie)
{
    Banc banc;
    EXPECT_TRUE(OuvrirSérie(banc, {u"âne", u"âne", u"bal", u"cri", u"cri", u"dos"}).notice.Cadre.Visible);
}

TEST(Série, CinqMotsFontUneSérieDeCinq)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    EXPECT_EQ(écran.lblPoints(1).Caption, u"5");
    EXPECT_EQ(banc.état.NoteSérie, 4);
    EXPECT_TRUE(écran.lblChoix(4).Visible);
    EXPECT_FALSE(écran.lblChoix(5).Visible);
    EXPECT_EQ(écran.lblCompteur.Caption, u"1");
}

TEST(Série, TrenteMotsFontUneSérieDeDix)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(30));
    EXPECT_EQ(écran.lblPoints(1).Caption, u"10");
    EXPECT_TRUE(écran.lblChoix(9).Visible);
    for (int i = 0; i < 10; ++i) {
        for (int j = 0; j < i; ++j) {
            EXPECT_NE(écran.lblChoix(i).Caption(), écran.lblChoix(j).Caption());
            EXPECT_NE(écran.lblRéponse(i).Caption(), écran.lblRéponse(j).Caption());
        }
    }
}

TEST(Série, DoublonsRaccourcissentLaSérie)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, {u"âne", u"âne", u"âne", u"bal", u"cri", u"dos", u"eau", u"eau"});
    EXPECT_EQ(écran.lblPoints(1).Caption, u"5");
    JouerSérie(écran, 5);
    EXPECT_EQ(écran.cmdContinuer.Caption, u"&Quitter");
}

TEST(Série, MotsSontTirésPuisRangésDansUnOrdreSecret)
{
    Banc banc;
    banc.Hasards({0.0, 0.0, 0.2, 0.4, 0.6, 0.8});  // a repeat is drawn again
    banc.Hasards({0.8, 0.99, 0.6, 0.4, 0.2, 0.0}); // here too
    auto& écran = OuvrirSérie(banc, Mots(5));
    EXPECT_EQ(écran.lblChoix(0).Caption, u"mot00");
    EXPECT_EQ(écran.lblChoix(4).Caption, u"mot04");
    EXPECT_EQ(écran.lblRéponse(0).Caption, u"mot04");
    EXPECT_EQ(écran.lblRéponse(4).Caption, u"mot00");
}

TEST(Série, CasesSontToutesAussiLargesQueLeMotLePlusLong)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, {u"âne", u"bal", u"cri", u"dos", u"extraordinaire"});
    const auto largeur = banc.plateforme.LargeurTexte(u"extraordinaire", écran.lblMot(0).FontSize);
    for (int i = 0; i < 10; ++i) {
        EXPECT_GE(écran.lblMot(i).Width, largeur);
        EXPECT_EQ(écran.lblMot(i).Width, écran.lblMot(0).Width);
        EXPECT_GT(écran.lblRéponse(i).Left, écran.lblMot(i).Left + écran.lblMot(i).Width);
        EXPECT_EQ(écran.lblRéponse(i).Top, écran.lblMot(i).Top);
        EXPECT_EQ(écran.lblMot(i).Caption, u"");
    }
    EXPECT_GT(écran.lblMot(0).Height, 0);
    EXPECT_GT(écran.lblMot(1).Top, écran.lblMot(0).Top + écran.lblMot(0).Height);
}

TEST(Série, LonguePhraseEtSaCaseTiennentDansLaMoitiéDeLEcran)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, {u"âne", u"bal", u"cri", u"dos", Texte(300, u'e')});
    écran.Dimensionner(16000, 9000);
    écran.Dimensionner(12000, 9000);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(écran.lblMot(i).Width, écran.lblMot(0).Width);
        EXPECT_GT(écran.lblRéponse(i).Left, écran.lblMot(i).Width);
        EXPECT_EQ(écran.lblRéponse(i).AutoSize, écran.lblRéponse(i).Caption().size() < 300);
        if (!écran.lblRéponse(i).AutoSize) {
            EXPECT_LE(écran.lblRéponse(i).Left + écran.lblRéponse(i).Width, écran.Width / 2);
            EXPECT_EQ(écran.lblRéponse(i).Height, écran.lblMot(i).Height);
        }
    }
}

TEST(Série, MotsParaissentUnParUnAprèsUneSecondeEtLesCasesSeVident)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    Répéter(écran, 1);
    const double départ = banc.plateforme.Horloge();
    std::vector<std::pair<int, double>> vus; // words on the screen, and when
    banc.plateforme.auRepeint = [&](Ecran&) {
        vus.emplace_back(écran.lblMot(1).Caption().empty() ? CasesVisibles(écran) : 10 + CasesVisibles(écran),
                         banc.plateforme.Horloge() - départ);
    };
    écran.cmdVoir.Cliquer();
    ASSERT_EQ(vus.size(), 5U);
    EXPECT_EQ(vus[0].first, 0); // all hidden
    EXPECT_NEAR(vus[0].second, 0, 1e-6);
    EXPECT_EQ(vus[1].first, 1);
    EXPECT_NEAR(vus[1].second, 1, 1e-6);
    EXPECT_EQ(vus[2].first, 12);
    EXPECT_NEAR(vus[2].second, 2, 1e-6);
    EXPECT_EQ(vus[3].first, 2); // the slots stay, empty
    EXPECT_NEAR(vus[3].second, 4, 1e-6);
    EXPECT_TRUE(écran.frameChoix.Visible);
    EXPECT_TRUE(écran.lblConsigne.Visible);
    EXPECT_EQ(écran.lblMot(0).BackColor, Jaune);
    EXPECT_EQ(écran.lblMot(0).Caption, u"");
}

TEST(Série, ListeDesMotsEstCachéePendantLAffichage)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    bool vérifié = false;
    banc.plateforme.Prévoir(1500ms, [&] {
        vérifié = true;
        EXPECT_FALSE(écran.frameChoix.Visible);
        EXPECT_FALSE(écran.cmdVoir.Visible);
        écran.cmdVoir.Cliquer();
        écran.lblChoix(0).Cliquer();
    });
    écran.cmdVoir.Cliquer();
    EXPECT_TRUE(vérifié);
    EXPECT_EQ(écran.lblMot(0).BackColor, Jaune);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
}

TEST(Série, ClicsAvantLePremierAffichageNeChangentRien)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    for (auto& choix : écran.lblChoix)
        choix.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_FALSE(écran.cmdContinuer.Visible);
    EXPECT_TRUE(écran.cmdVoir.Visible);
}

TEST(Série, ClicsTantQueVoirEstVisibleNeChangentRien)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    Répéter(écran, 1);
    EXPECT_TRUE(écran.cmdVoir.Visible);
    for (auto& choix : écran.lblChoix)
        choix.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_FALSE(écran.cmdContinuer.Visible);
    EXPECT_EQ(écran.lblMot(1).Caption, u"");
}

TEST(Série, MotJusteRemplitSaCaseEtLaSuivanteAttend)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    Répéter(écran, 1);
    Répéter(écran, 1);
    EXPECT_EQ(écran.lblMot(0).Caption, écran.lblRéponse(0).Caption);
    EXPECT_EQ(écran.lblMot(0).BackColor, Blanc);
    EXPECT_EQ(écran.lblMot(1).BackColor, Jaune);
    EXPECT_FALSE(écran.cmdVoir.Visible);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(Série, ErreurMontreLeMotAttenduEtFinitLaSérie)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    JouerSérie(écran, 0);
    EXPECT_TRUE(écran.lblRéponse(0).Visible);
    EXPECT_FALSE(écran.lblRéponse(1).Visible);
    EXPECT_EQ(écran.lblMot(0).BackColor, Jaune);
    EXPECT_TRUE(écran.cmdContinuer.Visible);
    EXPECT_EQ(écran.cmdContinuer.Caption, u"Série suivante");
    for (auto& choix : écran.lblChoix) // the series is over
        choix.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
}

TEST(Série, CeQuiChangeSeVoitAussitôt)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(12));
    bool voir = false;
    bool suite = false;
    bool effacée = false;
    banc.plateforme.auRepeint = [&](Ecran&) {
        voir = écran.cmdVoir.Visible;
        suite = écran.cmdContinuer.Visible && écran.lblRéponse(0).Visible;
        effacée = voir && !écran.cmdContinuer.Visible && !écran.frameChoix.Visible && !écran.lblRéponse(0).Visible &&
                  écran.lblChoix(0).Caption().empty();
    };
    Répéter(écran, 1);
    EXPECT_TRUE(voir) << "la suite est redite, à voir avec un mot de plus";
    écran.cmdVoir.Cliquer();
    Choix(écran, écran.lblRéponse(0).Caption, false).Cliquer();
    EXPECT_TRUE(suite) << "le mot attendu et le bouton de la série suivante";
    écran.cmdContinuer.Cliquer();
    EXPECT_TRUE(effacée) << "l'ancienne série n'est plus là quand la nouvelle se tire";
}

TEST(Série, CasesVidéesEtListeSontPeintesAprèsLAffichage)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    Répéter(écran, 1);
    bool vidées = false;
    bool liste = false;
    banc.plateforme.auRepeint = [&](Ecran&) {
        const bool vides = écran.lblMot(0).Visible && écran.lblMot(1).Visible && écran.lblMot(0).Caption().empty() &&
                           écran.lblMot(1).Caption().empty();
        vidées = vidées || (vides && !écran.frameChoix.Visible);
        liste = vides && écran.frameChoix.Visible && écran.lblMot(0).BackColor == Jaune && écran.lblConsigne.Visible;
    };
    écran.cmdVoir.Cliquer();
    EXPECT_TRUE(vidées);
    EXPECT_TRUE(liste);
}

TEST(Série, ClicSansCaseARemplirRepartDuDébut)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    Répéter(écran, 1);
    écran.cmdVoir.Visible = false; // neither told of nor reached by a click: no slot waits
    écran.lblChoix(3).Cliquer();
    EXPECT_EQ(écran.lblMot(0).BackColor, Jaune);
    EXPECT_FALSE(écran.cmdVoir.Visible);
}

TEST(Série, SérieSuivanteRepartDeZéroSaufLeMeilleurScore)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(12));
    JouerSérie(écran, 2);
    écran.cmdContinuer.Cliquer();
    EXPECT_FALSE(écran.cmdContinuer.Visible);
    EXPECT_TRUE(écran.cmdVoir.Visible);
    EXPECT_FALSE(écran.frameChoix.Visible);
    EXPECT_EQ(écran.lblCompteur.Caption, u"2");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
    EXPECT_EQ(CasesVisibles(écran), 0);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(écran.lblMot(i).BackColor, Blanc);
        EXPECT_EQ(écran.lblMot(i).Caption, u"");
        EXPECT_EQ(écran.lblRéponse(i).BackColor, Blanc);
        EXPECT_FALSE(écran.lblRéponse(i).Visible);
        EXPECT_NE(écran.lblRéponse(i).Caption, u"");
    }
    EXPECT_EQ(écran.cmdContinuer.Caption, u"Série suivante");
}

TEST(Série, PremièreSérieParfaiteFinitLExerciceAvecDix)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(30));
    JouerSérie(écran, 10);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"10");
    EXPECT_EQ(écran.cmdContinuer.Caption, u"&Quitter");
    EXPECT_EQ(écran.cmdContinuer.FontSize, 12);
    EXPECT_FALSE(écran.cmdVoir.Visible);
    écran.cmdContinuer.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexSérie), u"10");
}

TEST(Série, TroisErreursSurLePremierMotDonnentZéro)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    for (int série = 1; série <= 3; ++série) {
        JouerSérie(écran, 0);
        EXPECT_EQ(écran.cmdContinuer.Caption, série == 3 ? u"&Quitter" : u"Série suivante");
        écran.cmdContinuer.Cliquer();
    }
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexSérie), u"0");
}

TEST(Série, AvecCinqMotsLeScoreMonteDeDeuxEnDeux)
{
    for (int longueur = 1; longueur <= 4; ++longueur) {
        Banc banc;
        TirerVarié(banc);
        auto& écran = OuvrirSérie(banc, Mots(5));
        for (int série = 0; série < 3; ++série) {
            JouerSérie(écran, longueur);
            écran.cmdContinuer.Cliquer();
        }
        EXPECT_EQ(banc.Note(IndexSérie), EnTexte(2 * longueur));
    }
}

TEST(Série, TroisièmeSérieMoinsBonneNeBaissePasLeScore)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(10));
    for (const int longueur : {2, 4, 1}) {
        JouerSérie(écran, longueur);
        écran.cmdContinuer.Cliquer();
    }
    EXPECT_EQ(banc.Note(IndexSérie), u"4");
}

TEST(Série, FermetureDansNImporteQuelleAttenteNEnregistreRien)
{
    for (const auto délai : {0ms, 500ms, 1000ms, 1500ms, 2500ms, 3999ms}) {
        Banc banc;
        TirerVarié(banc);
        auto& écran = OuvrirSérie(banc, Mots(5));
        Répéter(écran, 1); // then two words: 1 s, 1 s, 2 s
        banc.plateforme.Prévoir(délai, [&] { écran.FermerParCroix(); });
        écran.cmdVoir.Cliquer();
        EXPECT_FALSE(écran.EstChargé());
        EXPECT_FALSE(écran.frameChoix.Visible);
        EXPECT_EQ(banc.Note(IndexSérie), u"");
    }
}

TEST(Série, ClavierSuitLeCoursDuJeu)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirSérie(banc, Mots(5));
    EXPECT_EQ(écran.Focus(), &écran.cmdVoir);
    écran.cmdVoir.Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.lblChoix(0));
    Choix(écran, écran.lblRéponse(0).Caption).Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.cmdVoir);
    écran.cmdVoir.Cliquer();
    Choix(écran, écran.lblRéponse(0).Caption, false).Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.cmdContinuer);
}

} // namespace tirelune
