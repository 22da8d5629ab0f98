#include "exercises/memory/frmPhotographier.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int IndexPhotographier = 11;

frmPhotographier& OuvrirPhotographier(Banc& banc, std::vector<Texte> mots)
{
    banc.Vocabulaire(std::move(mots));
    banc.Index(IndexPhotographier);
    return banc.Ouvrir<frmPhotographier>();
}

int Propositions(const frmPhotographier& écran)
{
    int nombre = 0;
    for (int i = 0; i < 10; ++i)
        nombre += écran.lblRéponse(i).Visible ? 1 : 0;
    return nombre;
}

// Presses the button, then answers right or wrong.
void Répondre(frmPhotographier& écran, bool juste)
{
    écran.cmdAfficher.Cliquer();
    for (auto& réponse : écran.lblRéponse) {
        if (réponse.Visible && (réponse.Caption == écran.lblMot.Caption) == juste) {
            réponse.Cliquer();
            return;
        }
    }
    FAIL() << "pas de réponse à cliquer";
}

} // namespace

TEST(Photographier, LégendePorteLeNomDeLElève)
{
    Banc banc;
    EXPECT_EQ(OuvrirPhotographier(banc, Mots(5)).Caption, u"Photographier / Léa");
}

TEST(Photographier, TextesEtCouleursDuDépart)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(5));
    EXPECT_EQ(écran.cmdAfficher.Caption, u"&Afficher le mot  dans le cadre blanc");
    EXPECT_EQ(écran.Image1.ToolTipText, u" Regarde bien l'endroit indiqué par la flèche. ");
    EXPECT_EQ(écran.Label3.Caption, u"Clique sur le mot que tu as vu.");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_FALSE(écran.cmdQuitter.Visible);
    EXPECT_EQ(écran.lblMot.BackColor, Blanc);
    EXPECT_EQ(écran.lblMot.ForeColor, Blanc);
    EXPECT_EQ(écran.lblVitesse.BackColor, Bleu);
    EXPECT_EQ(écran.lblVitesse.ForeColor, Cyan);
    VérifierPointsDeDépart(écran.lblPoints);
    EXPECT_FALSE(écran.Chrono.Enabled);
    EXPECT_EQ(Propositions(écran), 0);
}

TEST(Photographier, QuatreMotsMontrentLeCadreDeSortie)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(4));
    VérifierNoticeDeVocabulaire(écran);
    EXPECT_FALSE(écran.cmdAfficher.EstAtteignable());
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexPhotographier), u"");
}

TEST(Photographier, SansVocabulaireLeCadreDeSortieParaît)
{
    Banc banc;
    EXPECT_TRUE(OuvrirPhotographier(banc, {}).notice.Cadre.Visible);
}

TEST(Photographier, CinqMotsDontTroisDifférentsMontrentLeCadreDeSortie)
{
    Banc banc;
    EXPECT_TRUE(OuvrirPhotographier(banc, {u"âne", u"âne", u"bal", u"bal", u"cri"}).notice.Cadre.Visible);
}

TEST(Photographier, CinqMotsDonnentCinqPropositionsEtLaDernièreNEstJamaisMontrée)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(5));
    EXPECT_FALSE(écran.notice.Cadre.Visible);
    banc.Hasards({0.8, 0.6, 0.4, 0.2, 0.0, 0.9999});
    écran.cmdAfficher.Cliquer();
    EXPECT_EQ(Propositions(écran), 5);
    EXPECT_EQ(écran.lblRéponse(0).Caption, u"mot04");
    EXPECT_EQ(écran.lblRéponse(4).Caption, u"mot00");
    EXPECT_EQ(écran.lblMot.Caption, écran.lblRéponse(3).Caption);
}

TEST(Photographier, DouzeMotsDonnentDixPropositionsDifférentes)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(12));
    TirerVarié(banc);
    écran.cmdAfficher.Cliquer();
    EXPECT_EQ(Propositions(écran), 10);
    for (int i = 0; i < 10; ++i) {
        for (int j = 0; j < i; ++j)
            EXPECT_NE(écran.lblRéponse(i).Caption(), écran.lblRéponse(j).Caption());
    }
}

TEST(Photographier, DixPropositionsLaissentLaDernièreHorsDuTirage)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(10));
    banc.Hasards({0.0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 0.9999});
    écran.cmdAfficher.Cliquer();
    EXPECT_EQ(écran.lblMot.Caption, écran.lblRéponse(8).Caption);
}

TEST(Photographier, DoublonsDonnentMoinsDePropositions)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, {u"âne", u"âne", u"âne", u"bal", u"cri", u"dos", u"eau", u"eau"});
    banc.Hasards({0.0, 0.2, 0.4, 0.5, 0.7, 0.8, 0.9999});
    écran.cmdAfficher.Cliquer();
    EXPECT_EQ(Propositions(écran), 5);
    EXPECT_EQ(écran.lblMot.Caption, u"dos"); // the fourth of five
    écran.lblRéponse(3).Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(Photographier, MotEstPeintAvantQueLeTempsNeCoureEtDisparaîtALaFin)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(6));
    TirerVarié(banc);
    double paru = 0;
    double disparu = 0;
    banc.plateforme.auRepeint = [&](Ecran&) {
        if (écran.lblMot.ForeColor == Bleu && paru == 0) {
            EXPECT_FALSE(écran.Chrono.Enabled);
            EXPECT_EQ(écran.cmdAfficher.Enabled, false);
            EXPECT_EQ(Propositions(écran), 0);
            EXPECT_NE(écran.lblMot.Caption, u"");
            paru = banc.plateforme.Horloge();
        } else if (écran.lblMot.ForeColor == Blanc && paru > 0 && disparu == 0) {
            disparu = banc.plateforme.Horloge();
        }
    };
    écran.cmdAfficher.Cliquer();
    EXPECT_NEAR(disparu - paru, 0.100, 1e-6);
    EXPECT_EQ(écran.lblMot.ForeColor, Blanc);
    EXPECT_NE(écran.lblMot.Caption, u"");
    EXPECT_FALSE(écran.Chrono.Enabled);
}

TEST(Photographier, NouveauMotEffaceLesPropositionsDAvant)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(6));
    TirerVarié(banc);
    Répondre(écran, false);
    bool vu = false;
    banc.plateforme.auRepeint = [&](Ecran&) {
        if (écran.lblMot.ForeColor == Bleu) {
            vu = true;
            for (auto& réponse : écran.lblRéponse)
                EXPECT_TRUE(!réponse.Visible && réponse.BackColor == Blanc);
        }
    };
    écran.cmdAfficher.Cliquer();
    EXPECT_TRUE(vu);
    EXPECT_EQ(Propositions(écran), 6);
}

TEST(Photographier, QuatreRéponsesJustesMènentATrèsRapideEtLaCinquièmeYReste)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(12));
    TirerVarié(banc);
    EXPECT_EQ(écran.lblVitesse.Caption, u"Assez rapide");
    EXPECT_EQ(écran.Chrono.Interval, 100);
    Répondre(écran, true);
    EXPECT_EQ(écran.lblVitesse.Caption, u"Rapide");
    EXPECT_EQ(écran.Chrono.Interval, 50);
    Répondre(écran, true);
    EXPECT_EQ(écran.lblVitesse.Caption, u"Très rapide");
    EXPECT_EQ(écran.Chrono.Interval, 25);
    for (int i = 0; i < 3; ++i)
        Répondre(écran, true);
    EXPECT_EQ(écran.lblVitesse.Caption, u"Très rapide");
    EXPECT_EQ(écran.Chrono.Interval, 25);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"5");
}

TEST(Photographier, DeuxRéponsesFaussesMènentALentEtLaTroisièmeYReste)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(12));
    TirerVarié(banc);
    Répondre(écran, false);
    EXPECT_EQ(écran.lblVitesse.Caption, u"Lent");
    EXPECT_EQ(écran.Chrono.Interval, 200);
    Répondre(écran, false);
    Répondre(écran, false);
    EXPECT_EQ(écran.lblVitesse.Caption, u"Lent");
    EXPECT_EQ(écran.Chrono.Interval, 200);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
}

TEST(Photographier, NiveauxSeRemontentEtSeRedescendentUnAUn)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(12));
    TirerVarié(banc);
    Répondre(écran, false);
    Répondre(écran, true);
    EXPECT_EQ(écran.lblVitesse.Caption, u"Assez rapide");
    EXPECT_EQ(écran.Chrono.Interval, 100);
    Répondre(écran, true);
    Répondre(écran, true);
    Répondre(écran, false);
    EXPECT_EQ(écran.lblVitesse.Caption, u"Rapide");
    EXPECT_EQ(écran.Chrono.Interval, 50);
    Répondre(écran, false);
    EXPECT_EQ(écran.lblVitesse.Caption, u"Assez rapide");
    EXPECT_EQ(écran.Chrono.Interval, 100);
}

TEST(Photographier, RéponseFausseEstRougeEtLeMotVuJaune)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(5));
    banc.Hasards({0.0, 0.2, 0.4, 0.6, 0.8, 0.3}); // the second one is shown
    écran.cmdAfficher.Cliquer();
    écran.lblRéponse(4).Cliquer();
    EXPECT_EQ(écran.lblRéponse(4).BackColor, Rouge);
    EXPECT_EQ(écran.lblRéponse(1).BackColor, Jaune);
    EXPECT_EQ(écran.lblRéponse(0).BackColor, Blanc);
}

TEST(Photographier, RéponseJusteEstVerte)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(5));
    banc.Hasards({0.0, 0.2, 0.4, 0.6, 0.8, 0.0});
    écran.cmdAfficher.Cliquer();
    écran.lblRéponse(0).Cliquer();
    EXPECT_EQ(écran.lblRéponse(0).BackColor, Vert);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
}

TEST(Photographier, SecondClicAprèsLaRéponseNeChangeRien)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(5));
    banc.Hasards({0.0, 0.2, 0.4, 0.6, 0.8, 0.0});
    écran.cmdAfficher.Cliquer();
    écran.lblRéponse(1).Cliquer();
    for (auto& réponse : écran.lblRéponse)
        réponse.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_EQ(écran.lblVitesse.Caption, u"Lent");
    EXPECT_EQ(écran.lblRéponse(2).BackColor, Blanc);
}

TEST(Photographier, BoutonAttendLaRéponse)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(5));
    TirerVarié(banc);
    écran.cmdAfficher.Cliquer();
    const Texte mot = écran.lblMot.Caption;
    EXPECT_FALSE(écran.cmdAfficher.Enabled);
    écran.cmdAfficher.Cliquer();
    EXPECT_EQ(écran.lblMot.Caption, mot);
    écran.lblRéponse(0).Cliquer();
    EXPECT_TRUE(écran.cmdAfficher.Enabled);
}

TEST(Photographier, ClavierPasseDuBoutonAuxPropositionsEtRetour)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(5));
    TirerVarié(banc);
    EXPECT_EQ(écran.Focus(), &écran.cmdAfficher);
    écran.cmdAfficher.Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.lblRéponse(0));
    écran.lblRéponse(0).Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.cmdAfficher);
}

TEST(Photographier, ClicsSauvagesPendantLeFlashNeFontRien)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(5));
    TirerVarié(banc);
    banc.plateforme.Prévoir(50ms, [&] {
        écran.cmdAfficher.Cliquer();
        écran.cmdQuitter.Cliquer();
        écran.notice.Bouton.Cliquer();
        for (auto& réponse : écran.lblRéponse)
            réponse.Cliquer();
    });
    écran.cmdAfficher.Cliquer();
    EXPECT_TRUE(écran.EstChargé());
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_EQ(Propositions(écran), 5);
}

TEST(Photographier, FermetureDuFlashNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(5));
    TirerVarié(banc);
    banc.plateforme.Prévoir(50ms, [&] { écran.FermerParCroix(); });
    écran.cmdAfficher.Cliquer();
    banc.Avancer(1000ms);
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(Propositions(écran), 0);
    EXPECT_EQ(banc.Note(IndexPhotographier), u"");
}

TEST(Photographier, FermetureAprèsDesRéponsesNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(5));
    TirerVarié(banc);
    Répondre(écran, true);
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexPhotographier), u"");
}

TEST(Photographier, VingtRéponsesFaussesDonnentZéro)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(12));
    TirerVarié(banc);
    for (int i = 0; i < 19; ++i)
        Répondre(écran, false);
    EXPECT_FALSE(écran.cmdQuitter.Visible);
    Répondre(écran, false);
    EXPECT_TRUE(écran.cmdQuitter.Visible);
    EXPECT_FALSE(écran.cmdAfficher.Visible);
    EXPECT_FALSE(écran.lblVitesse.Visible);
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexPhotographier), u"0");
}

TEST(Photographier, BoutonDeSortieEstPeintAussitôtEtALeClavier)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(12));
    TirerVarié(banc);
    bool peint = false;
    banc.plateforme.auRepeint = [&](Ecran&) { peint = écran.cmdQuitter.Visible; };
    for (int i = 0; i < 20; ++i) {
        EXPECT_FALSE(peint);
        Répondre(écran, true);
    }
    EXPECT_TRUE(peint);
    EXPECT_EQ(écran.Focus(), &écran.cmdQuitter);
}

TEST(Photographier, VingtRéponsesJustesDonnentDixEtLeBilanEstEcrit)
{
    Banc banc;
    auto& écran = OuvrirPhotographier(banc, Mots(12));
    TirerVarié(banc);
    for (int i = 0; i < 20; ++i)
        Répondre(écran, true);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(IndexPhotographier), u"10");
    EXPECT_NE(banc.Lire("Léa.bil").value_or("").find("\"10\""), std::string::npos);
}

} // namespace tirelune
