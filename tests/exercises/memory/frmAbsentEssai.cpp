#include "exercises/memory/frmAbsent.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int IndexAbsent = 16;

frmAbsent& OuvrirAbsent(Banc& banc, std::vector<Texte> mots)
{
    banc.Vocabulaire(std::move(mots));
    banc.Index(IndexAbsent);
    TirerVarié(banc);
    return banc.Ouvrir<frmAbsent>();
}

std::vector<Texte> Montrés(const Tableau<Label>& liste)
{
    std::vector<Texte> mots;
    for (int i = 0; i < liste.Nombre(); ++i) {
        if (liste(i).Visible)
            mots.push_back(liste(i).Caption);
    }
    return mots;
}

// The labels on the right that can be read.
int Lisibles(const frmAbsent& écran)
{
    int lisibles = 0;
    for (int i = 0; i < 10; ++i)
        lisibles += écran.lblAbsent(i).Visible && écran.lblAbsent(i).ForeColor == Cyan ? 1 : 0;
    return lisibles;
}

int RangDuMasqué(const frmAbsent& écran)
{
    for (int i = 0; i < 10; ++i) {
        if (écran.lblAbsent(i).Visible && écran.lblAbsent(i).ForeColor == Bleu)
            return i;
    }
    return -1;
}

// The place on the left of the word that is absent, or of another one.
int RangDe(const frmAbsent& écran, bool absent)
{
    const auto& masqué = écran.lblAbsent(RangDuMasqué(écran)).Caption();
    for (int i = 0; i < 10; ++i) {
        if (écran.lblMot(i).Visible && (Majuscules(écran.lblMot(i).Caption()) == masqué) == absent)
            return i;
    }
    return -1;
}

void RépondreAbsent(frmAbsent& écran, bool juste)
{
    écran.lblMot(RangDe(écran, juste)).Cliquer();
}

// All ten lists, to the last button.
void JouerDixListes(frmAbsent& écran, bool juste)
{
    for (int liste = 1; liste <= 10; ++liste) {
        RépondreAbsent(écran, juste);
        EXPECT_EQ(écran.lblPoints(1).Caption, EnTexte(liste));
        EXPECT_EQ(écran.cmdQuitter.Caption, liste == 10 ? u"&Quitter" : u"&Suivant");
        if (liste < 10)
            écran.cmdQuitter.Cliquer();
    }
}

} // namespace

TEST(Absent, LégendePorteLeNomDeLElève)
{
    Banc banc;
    EXPECT_EQ(OuvrirAbsent(banc, Mots(5)).Caption, u"L'absent / Léa");
}

TEST(Absent, TextesEtCouleursDuDépart)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(6));
    VérifierPointsDeDépart(écran.lblPoints);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(écran.lblPoints(i).ToolTipText, u" Seul le score de la meilleur série est retenu. ");
    EXPECT_EQ(écran.lblConsigne.Caption,
              u" Clique sur le mot de la liste de gauche qui n'est pas dans la liste de droite.");
    EXPECT_EQ(écran.lblChrono.ToolTipText, u" Temps restant (en secondes) ");
    EXPECT_EQ(écran.lblChrono.BackColor, Rouge);
    EXPECT_EQ(écran.lblChrono.ForeColor, Jaune);
    EXPECT_EQ(écran.Chrono.Interval, 1000);
    EXPECT_TRUE(écran.Chrono.Enabled);
    EXPECT_FALSE(écran.cmdQuitter.Visible);
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Suivant");
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(écran.lblMot(i).ToolTipText, u" Clique sur le mot qui manque dans la liste de droite. ");
        EXPECT_EQ(écran.lblAbsent(i).Police, u"Times New Roman");
        EXPECT_EQ(écran.lblAbsent(i).BackColor, Bleu);
    }
    EXPECT_EQ(écran.Focus(), &écran.lblMot(0));
}

TEST(Absent, QuatreMotsMontrentLeCadreDeSortie)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(4));
    VérifierNoticeDeVocabulaire(écran);
    EXPECT_FALSE(écran.Chrono.Enabled);
    banc.Avancer(60s);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexAbsent), u"");
}

TEST(Absent, CinqMotsDontTroisDifférentsMontrentLeCadreDeSortie)
{
    Banc banc;
    EXPECT_TRUE(OuvrirAbsent(banc, {u"âne", u"âne", u"bal", u"bal", u"cri"}).notice.Cadre.Visible);
}

TEST(Absent, PremièreListeATrenteSecondesQuelQueSoitLeVocabulaire)
{
    for (const int nombre : {5, 10, 40}) {
        Banc banc;
        auto& écran = OuvrirAbsent(banc, Mots(nombre));
        EXPECT_EQ(écran.lblChrono.Caption, u"30");
        EXPECT_EQ(écran.lblChronoRéf.Caption, u"30");
    }
}

TEST(Absent, CinqMotsDonnentCinqMotsÀGaucheEtQuatreLisiblesÀDroite)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(5));
    for (int liste = 0; liste < 9; ++liste) {
        EXPECT_EQ(Montrés(écran.lblMot).size(), 5U);
        EXPECT_EQ(Lisibles(écran), 4);
        EXPECT_EQ(RangDuMasqué(écran), 4);
        RépondreAbsent(écran, true);
        écran.cmdQuitter.Cliquer();
    }
}

TEST(Absent, DouzeMotsEnMontrentDixDifférentsDesDeuxCôtés)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(12));
    auto gauche = Montrés(écran.lblMot);
    auto droite = Montrés(écran.lblAbsent);
    EXPECT_EQ(gauche.size(), 10U);
    for (auto& mot : gauche)
        mot = Majuscules(mot);
    EXPECT_NE(gauche, droite);
    std::sort(gauche.begin(), gauche.end());
    std::sort(droite.begin(), droite.end());
    EXPECT_EQ(std::unique(gauche.begin(), gauche.end()), gauche.end());
    EXPECT_EQ(gauche, droite);
    EXPECT_EQ(RangDuMasqué(écran), 9);
}

TEST(Absent, MotsTirésDansLOrdreDesTirages)
{
    Banc banc;
    banc.Vocabulaire({u"âne", u"bal", u"cri", u"dos", u"été"});
    banc.Hasards({0.9, 0.0, 0.1, 0.5, 0.7, 0.3, 0.0, 0.9, 0.2, 0.2, 0.4, 0.6});
    auto& écran = banc.Ouvrir<frmAbsent>();
    EXPECT_EQ(Montrés(écran.lblMot), (std::vector<Texte>{u"été", u"âne", u"cri", u"dos", u"bal"}));
    EXPECT_EQ(Montrés(écran.lblAbsent), (std::vector<Texte>{u"ÉTÉ", u"BAL", u"ÂNE", u"CRI", u"DOS"}));
}

TEST(Absent, MotsQueSeuleLaCasseDistingueTerminentLeTirage)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, {u"chat", u"Chat", u"CHAT", u"chien", u"Chien", u"loup"});
    EXPECT_EQ(Montrés(écran.lblMot).size(), 6U);
    EXPECT_EQ(Montrés(écran.lblAbsent).size(), 3U);
    EXPECT_EQ(RangDuMasqué(écran), 2);
    RépondreAbsent(écran, true);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(Absent, DixBonnesRéponsesLaissentVingtSecondesEtDix)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(12));
    JouerDixListes(écran, true);
    EXPECT_EQ(écran.lblChronoRéf.Caption, u"20");
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexAbsent), u"10");
}

TEST(Absent, DixErreursLaissentQuaranteSecondesEtZéro)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(12));
    JouerDixListes(écran, false);
    EXPECT_EQ(écran.lblChronoRéf.Caption, u"40");
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexAbsent), u"0");
}

TEST(Absent, BonneRéponseMontreLeMotEnVert)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(6));
    const int masqué = RangDuMasqué(écran);
    RépondreAbsent(écran, true);
    EXPECT_EQ(écran.lblAbsent(masqué).BackColor, Vert);
    EXPECT_EQ(écran.lblAbsent(masqué).ForeColor, Noir);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblChrono.Caption, u"29");
    EXPECT_FALSE(écran.Chrono.Enabled);
    EXPECT_TRUE(écran.cmdQuitter.Visible);
    EXPECT_EQ(écran.Focus(), &écran.cmdQuitter);
}

TEST(Absent, FinDuTempsCompteCommeUneErreurEtMontreLeMotEnRouge)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(6));
    const int masqué = RangDuMasqué(écran);
    banc.Avancer(29'500ms);
    EXPECT_EQ(écran.lblChrono.Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    banc.Avancer(1s);
    EXPECT_EQ(écran.lblAbsent(masqué).BackColor, Rouge);
    EXPECT_EQ(écran.lblAbsent(masqué).ForeColor, Noir);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_EQ(écran.lblChrono.Caption, u"31");
    EXPECT_EQ(écran.lblChronoRéf.Caption, u"31");
    EXPECT_TRUE(écran.cmdQuitter.Visible);
}

TEST(Absent, AprèsLaFinLeTempsNeCourtPlus)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(6));
    banc.Avancer(30s);
    banc.Avancer(120s);
    EXPECT_EQ(écran.lblChrono.Caption, u"31");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    écran.cmdQuitter.Cliquer();
    banc.Avancer(1s);
    EXPECT_EQ(écran.lblChrono.Caption, u"30");
    écran.FermerParCroix();
    banc.Avancer(120s);
    EXPECT_EQ(écran.lblChrono.Caption, u"30");
    EXPECT_EQ(banc.Note(IndexAbsent), u"");
}

TEST(Absent, TempsÉcouléÀLaDernièreListeMèneAussiÀLaFin)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(6));
    for (int liste = 1; liste < 10; ++liste) {
        RépondreAbsent(écran, true);
        écran.cmdQuitter.Cliquer();
    }
    banc.Avancer(60s);
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexAbsent), u"9");
}

TEST(Absent, ClicAprèsLeJugementNeChangeRien)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(6));
    const int juste = RangDe(écran, true);
    const int masqué = RangDuMasqué(écran);
    RépondreAbsent(écran, false);
    écran.lblMot(juste).Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_EQ(écran.lblAbsent(masqué).BackColor, Rouge);
    EXPECT_EQ(écran.lblChronoRéf.Caption, u"31");
}

TEST(Absent, ListeSuivanteAUnNouveauMotMasqué)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(6));
    RépondreAbsent(écran, false);
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.cmdQuitter.Visible);
    EXPECT_TRUE(écran.Chrono.Enabled);
    EXPECT_EQ(Lisibles(écran), 5);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(écran.lblAbsent(i).BackColor, Bleu);
}

TEST(Absent, ListesSontPeintesAvantQueLeTempsNeCoure)
{
    Banc banc;
    auto& écran = OuvrirAbsent(banc, Mots(6));
    RépondreAbsent(écran, true);
    bool vu = false;
    banc.plateforme.auRepeint = [&](Ecran&) {
        EXPECT_FALSE(écran.Chrono.Enabled);
        vu = vu || RangDuMasqué(écran) == 5;
    };
    écran.cmdQuitter.Cliquer();
    EXPECT_TRUE(vu);
}

} // namespace tirelune
