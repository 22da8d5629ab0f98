#include "exercises/memory/frmTronqué.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

namespace tirelune {

namespace {

constexpr int IndexTronqué = 13;

frmTronqué& OuvrirTronqué(Banc& banc, std::vector<Texte> mots)
{
    banc.Vocabulaire(std::move(mots));
    banc.Index(IndexTronqué);
    TirerVarié(banc);
    return banc.Ouvrir<frmTronqué>();
}

int Rangées(const frmTronqué& écran)
{
    int nombre = 0;
    for (int i = 0; i < 10; ++i) {
        nombre += écran.lblMot1(i).Visible ? 1 : 0;
        EXPECT_EQ(écran.lblMot1(i).Visible(), écran.lblMot2(i).Visible());
        EXPECT_EQ(écran.lblMot1(i).Visible(), écran.cache1(i).Visible());
        EXPECT_EQ(écran.lblMot2(i).Visible(), écran.cache2(i).Visible());
    }
    return nombre;
}

// Where the word of the left stands on the right; or, on purpose, another one that hasn't been found.
int ADroite(const frmTronqué& écran, int gauche, bool même = true)
{
    for (int i = 0; i < 10; ++i) {
        if (écran.cache2(i).Visible && (écran.lblMot2(i).Caption == écran.lblMot1(gauche).Caption) == même)
            return i;
    }
    ADD_FAILURE() << "pas de mot à droite";
    return 0;
}

void Apparier(frmTronqué& écran, int gauche)
{
    écran.lblMot1(gauche).Cliquer();
    écran.lblMot2(ADroite(écran, gauche)).Cliquer();
}

void SeTromperSur(frmTronqué& écran, int gauche)
{
    écran.lblMot1(gauche).Cliquer();
    écran.lblMot2(ADroite(écran, gauche, false)).Cliquer();
}

} // namespace

TEST(Tronqué, TextesBullesEtCouleursDuDépart)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(5));
    EXPECT_EQ(écran.Caption, u"Mots tronqués / Léa");
    EXPECT_EQ(écran.lblConsigne.Caption,
              u" Retrouve les 2 parties de chaque mot en cliquant sur les étiquettes (gauche puis droite).");
    VérifierPointsDeDépart(écran.lblPoints);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(écran.lblPoints(i).ToolTipText, u" Seul le score de la meilleur série est retenu. ");
    EXPECT_EQ(écran.lblNon.Caption, u"Non");
    EXPECT_EQ(écran.lblNon.BackColor, Rouge);
    EXPECT_EQ(écran.lblNon.ForeColor, Blanc);
    EXPECT_FALSE(écran.lblNon.Visible);
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_FALSE(écran.cmdQuitter.Visible);
    EXPECT_EQ(écran.lblMot1(0).BackColor, Blanc);
    EXPECT_EQ(écran.cache1(0).FillColor, Blanc);
    EXPECT_EQ(écran.cache2(0).BorderColor, Blanc);
}

TEST(Tronqué, QuatreMotsMontrentLeCadreDeSortie)
{
    Banc banc;
    banc.Vocabulaire(Mots(4));
    auto& écran = banc.Ouvrir<frmTronqué>(); // and nothing is drawn
    VérifierNoticeDeVocabulaire(écran);
    EXPECT_EQ(Rangées(écran), 0);
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTronqué), u"");
}

TEST(Tronqué, DixMotsEgauxMontrentLeCadreDeSortie)
{
    Banc banc;
    banc.Vocabulaire(std::vector<Texte>(10, u"âne"));
    EXPECT_TRUE(banc.Ouvrir<frmTronqué>().notice.Cadre.Visible);
}

TEST(Tronqué, MotsRépétésNeViennentQuUneFois)
{
    Banc banc;
    auto mots = Mots(6);
    mots.insert(mots.end(), 9, mots.front());
    EXPECT_EQ(Rangées(OuvrirTronqué(banc, mots)), 6);
}

TEST(Tronqué, CapitaleOuAccentFaitUnAutreMot)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, {u"côte", u"Côte", u"côté", u"cote", u"cotë"});
    EXPECT_EQ(Rangées(écran), 5);
    for (int i = 0; i < 5; ++i)
        Apparier(écran, i);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"5");
}

TEST(Tronqué, DixMotsAuPlusLesMêmesDesDeuxCôtés)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(30));
    EXPECT_EQ(Rangées(écran), 10);
    std::vector<Texte> gauche;
    std::vector<Texte> droite;
    for (int i = 0; i < 10; ++i) {
        gauche.push_back(écran.lblMot1(i).Caption);
        droite.push_back(écran.lblMot2(i).Caption);
    }
    EXPECT_NE(gauche, droite);
    std::sort(gauche.begin(), gauche.end());
    std::sort(droite.begin(), droite.end());
    EXPECT_EQ(gauche, droite);
    EXPECT_EQ(std::adjacent_find(gauche.begin(), gauche.end()), gauche.end());
}

TEST(Tronqué, ChaqueCacheEstPoséSurSaMoitié)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(10));
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(écran.cache1(i).PoséSur(), &écran.lblMot1(i));
        EXPECT_EQ(écran.cache1(i).PartPosée(), Part::MoitiéHaute);
        EXPECT_EQ(écran.cache2(i).PoséSur(), &écran.lblMot2(i));
        EXPECT_EQ(écran.cache2(i).PartPosée(), Part::MoitiéBasse);
        EXPECT_TRUE(écran.lblMot1(i).LettresCoupées);
        EXPECT_TRUE(écran.lblMot2(i).LettresCoupées);
    }
}

TEST(Tronqué, LeMotCliquéAGaucheDevientJauneAvecSonCache)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(5));
    écran.lblMot1(1).Cliquer();
    écran.lblMot1(3).Cliquer();
    for (int i = 0; i < 5; ++i) {
        const auto attendu = i == 3 ? Jaune : Blanc;
        EXPECT_EQ(écran.lblMot1(i).BackColor, attendu);
        EXPECT_EQ(écran.cache1(i).FillColor, attendu);
        EXPECT_EQ(écran.cache1(i).BorderColor, attendu);
    }
}

TEST(Tronqué, SansMotChoisiAGaucheLaDroiteNeCompteRien)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(5));
    écran.lblMot2(0).Cliquer();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_FALSE(écran.lblNon.Visible);
}

TEST(Tronqué, LaPaireTrouvéeVerditEtSeDécouvre)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(5));
    const int droite = ADroite(écran, 2);
    Apparier(écran, 2);
    EXPECT_EQ(écran.lblMot1(2).BackColor, Vert);
    EXPECT_EQ(écran.lblMot2(droite).BackColor, Vert);
    EXPECT_FALSE(écran.cache1(2).Visible);
    EXPECT_FALSE(écran.cache2(droite).Visible);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    écran.lblMot1(0).Cliquer();
    EXPECT_EQ(écran.lblMot1(2).BackColor, Vert);
}

TEST(Tronqué, UnEssaiFauxDitNonACôtéDuMotEtGardeLeChoix)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(5));
    const int faux = ADroite(écran, 0, false);
    SeTromperSur(écran, 0);
    EXPECT_TRUE(écran.lblNon.Visible);
    EXPECT_EQ(écran.lblNon.PoséSur(), &écran.lblMot2(faux));
    EXPECT_EQ(écran.lblNon.PartPosée(), Part::ADroite);
    EXPECT_EQ(écran.lblMot1(0).BackColor, Jaune);
    EXPECT_EQ(écran.lblMot2(faux).BackColor, Blanc);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    écran.lblMot2(ADroite(écran, 0)).Cliquer();
    EXPECT_FALSE(écran.lblNon.Visible);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
}

TEST(Tronqué, UnMotTrouvéNeRépondPlusMaisCacheNon)
{
    for (const bool àGauche : {true, false}) {
        Banc banc;
        auto& écran = OuvrirTronqué(banc, Mots(5));
        const int droite = ADroite(écran, 0);
        Apparier(écran, 0);
        SeTromperSur(écran, 1);
        ASSERT_TRUE(écran.lblNon.Visible);
        àGauche ? écran.lblMot1(0).Cliquer() : écran.lblMot2(droite).Cliquer();
        EXPECT_FALSE(écran.lblNon.Visible);
        EXPECT_EQ(écran.lblMot1(0).BackColor, Vert);
        EXPECT_EQ(écran.lblMot1(1).BackColor, Jaune);
        EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
    }
}

TEST(Tronqué, DixPairesSansFauteValentDix)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(12));
    for (int i = 0; i < 10; ++i) {
        EXPECT_FALSE(écran.cmdQuitter.Visible);
        Apparier(écran, i);
    }
    EXPECT_EQ(écran.lblPoints(0).Caption, u"10");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"10");
    EXPECT_TRUE(écran.cmdQuitter.Visible);
    EXPECT_EQ(écran.Focus(), &écran.cmdQuitter);
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTronqué), u"10");
}

TEST(Tronqué, CinqMotsEtCinqErreursValentCinq)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(5));
    for (int i = 0; i < 5; ++i)
        SeTromperSur(écran, 0);
    for (int i = 0; i < 5; ++i)
        Apparier(écran, i);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"5");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"10");
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexTronqué), u"5");
}

TEST(Tronqué, LaCroixNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(5));
    for (int i = 0; i < 5; ++i)
        Apparier(écran, i);
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTronqué), u"");
}

TEST(Tronqué, ClavierVaDeGaucheADroiteEtRevient)
{
    Banc banc;
    auto& écran = OuvrirTronqué(banc, Mots(5));
    EXPECT_EQ(écran.Focus(), &écran.lblMot1(0));
    écran.lblMot1(0).Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.lblMot2(0));
    const int droite = ADroite(écran, 0);
    écran.lblMot2(droite).Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.lblMot1(1));
}

} // namespace tirelune
