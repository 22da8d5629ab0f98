#include "exercises/JeuDAssociation.h"

#include "tests/support/Banc.h"
#include "tests/support/Notices.h"

namespace tirelune {

namespace {

class EcranAssociation final : public Ecran {
public:
    explicit EcranAssociation(frmExercices& choix)
        : Ecran(choix.ApplicationDe(), "EcranAssociation", u"Essai"), jeu{choix,      lblConsigne,
                                                                          lblMot,     TextesDe(txtReste),
                                                                          lblCorrigé, cmb,
                                                                          lblPoints,  cmdQuitter,
                                                                          notice}
    {
        Relier(jeu, [this](int i) { return RéponseExacte(jeu, i); });
    }

    Label lblConsigne{*this, "lblConsigne", EtatDesConsignes(u"Trouve !")};
    Tableau<Label> lblMot{*this, "lblMot", 3, EtatDesCases()};
    Tableau<TextBox> txtReste{*this, "txtReste", 3, EtatDesTextes()};
    Tableau<Label> lblCorrigé{*this, "lblCorrigé", 3, EtatDesCorrigés()};
    ComboBox cmb{*this, "cmb", EtatDeLaListe()};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Button cmdQuitter{*this, "cmdQuitter", EtatDuBouton()};
    Notice notice{*this, TropPeu(u"Pas assez", u"Il en faut plus.")};

    const JeuDAssociation jeu;

    void Cliquer(int i) { ReprendreRangée(jeu, i); }
    void Prendre(VueTexte mot) { cmb.Choisir(cmb.Chercher(mot)); }
    void DemanderCorrection() { cmdQuitter.Cliquer(); }

private:
    Arrangement Disposer() override { return PageDAssociation(jeu, RangéesDe(jeu)); }
};

constexpr auto PasTerminé = u"Tu n'a pas terminé !\nVeux-tu vraiment quitter ?";

// Three rows whose answers are "gai", "âpre" and "gai".
EcranAssociation& OuvrirAssociation(Banc& banc)
{
    banc.ChargerTexte(u"Un texte.");
    banc.Index(6);
    auto& écran = banc.Ouvrir<EcranAssociation>();
    int i = 0;
    for (const auto* réponse : {u"gai", u"âpre", u"gai"})
        Cacher(écran.jeu, i++, réponse);
    MontrerRéponses(écran.jeu);
    return écran;
}

void Remplir(EcranAssociation& écran, std::initializer_list<VueTexte> mots)
{
    int i = 0;
    for (const auto& mot : mots) {
        écran.Cliquer(i++);
        écran.Prendre(mot);
    }
}

} // namespace

TEST(JeuDAssociation, UneSeuleRangéeEstJaune)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    écran.Cliquer(0);
    écran.Cliquer(2);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(écran.lblMot(i).BackColor, i == 2 ? Jaune : Blanc);
        EXPECT_EQ(écran.txtReste(i).BackColor, i == 2 ? Jaune : Blanc);
    }
}

TEST(JeuDAssociation, MotPrisVaDansLaRangéeChoisieEtQuitteLaListe)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    écran.Cliquer(1);
    écran.Prendre(u"gai");
    EXPECT_EQ(écran.lblMot(1).Caption, u"gai");
    EXPECT_TRUE(écran.lblMot(1).AutoSize);
    EXPECT_EQ(écran.lblMot(1).ForeColor, CouleurAuto);
    EXPECT_NE(écran.lblMot(0).ForeColor, CouleurAuto) << "une invite est plus pâle qu'un mot";
    EXPECT_EQ(écran.cmb.Eléments(), (std::vector<Texte>{u"âpre", u"gai"}));
    EXPECT_EQ(écran.cmb.Text, u"âpre");
}

TEST(JeuDAssociation, SansRangéeChoisieRienNEstPlacé)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    écran.Prendre(u"gai");
    EXPECT_EQ(écran.cmb.ListCount(), 3);
    EXPECT_EQ(écran.cmb.Text, u"gai") << "montré, sans plus";
}

TEST(JeuDAssociation, RangéeRemplieNePrendPasUnSecondMot)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    écran.Cliquer(0);
    écran.Prendre(u"gai");
    écran.Prendre(u"âpre");
    EXPECT_EQ(écran.lblMot(0).Caption, u"gai");
    EXPECT_EQ(écran.cmb.ListCount(), 2);
}

TEST(JeuDAssociation, ClicSurUneRangéeRemplieRendSonMot)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    écran.Cliquer(0);
    écran.Prendre(u"gai");
    écran.Cliquer(0);
    EXPECT_EQ(écran.lblMot(0).Caption, u"");
    EXPECT_FALSE(écran.lblMot(0).AutoSize) << "garde sa taille";
    EXPECT_EQ(écran.lblMot(0).BackColor, Jaune);
    EXPECT_EQ(écran.cmb.Eléments(), (std::vector<Texte>{u"âpre", u"gai", u"gai"}));
    écran.Prendre(u"âpre");
    EXPECT_EQ(écran.lblMot(0).Caption, u"âpre");
    EXPECT_TRUE(écran.lblMot(0).AutoSize) << "prend celle du mot";
}

TEST(JeuDAssociation, RangéeVideNeRendRien)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    écran.Cliquer(0);
    EXPECT_EQ(écran.cmb.ListCount(), 3);
}

TEST(JeuDAssociation, LaCorrectionPrendUneSecondeParRangée)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    Remplir(écran, {u"gai", u"gai", u"âpre"});
    std::vector<Couleur> vues;
    for (const auto délai : {500ms, 1500ms, 2500ms})
        banc.plateforme.Prévoir(délai, [&] {
            EXPECT_FALSE(écran.cmb.Enabled);
            EXPECT_FALSE(écran.cmdQuitter.Enabled);
            vues.push_back(écran.lblMot(2).BackColor);
        });
    const double départ = banc.plateforme.Horloge();
    écran.DemanderCorrection();

    EXPECT_EQ(vues, (std::vector<Couleur>{Blanc, Blanc, Rouge}));
    EXPECT_NEAR(banc.plateforme.Horloge() - départ, 3, 1e-6);
    EXPECT_EQ(écran.lblMot(0).BackColor, Vert);
    EXPECT_EQ(écran.lblMot(1).BackColor, Rouge);
    EXPECT_FALSE(écran.lblCorrigé(0).Visible);
    EXPECT_TRUE(écran.lblCorrigé(1).Visible);
    EXPECT_TRUE(écran.lblCorrigé(2).Visible);
    for (auto& reste : écran.txtReste)
        EXPECT_EQ(reste.BackColor, Blanc);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_TRUE(écran.cmdQuitter.Enabled);
    EXPECT_FALSE(écran.cmb.Enabled);
}

TEST(JeuDAssociation, AprèsLaCorrectionLesRangéesSontMortes)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    Remplir(écran, {u"gai", u"âpre", u"gai"});
    écran.DemanderCorrection();
    écran.Cliquer(0);
    EXPECT_EQ(écran.lblMot(0).BackColor, Vert);
    EXPECT_EQ(écran.lblMot(0).Caption, u"gai");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"3");
}

TEST(JeuDAssociation, RangéesVidesSontAConfirmer)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    Remplir(écran, {u"gai", u"âpre"});
    banc.plateforme.boîtes.push_back({PasTerminé, Réponse::Non, u"Avertissement", {}});
    écran.DemanderCorrection();
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Danger, Perte::ParOui);
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Corriger");
    EXPECT_TRUE(écran.cmdQuitter.Enabled);
    EXPECT_TRUE(écran.cmb.Enabled);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");

    banc.AnnoncerBoîte(PasTerminé, Réponse::Oui);
    écran.DemanderCorrection();
    EXPECT_EQ(écran.lblMot(2).BackColor, Rouge) << "vide compte comme faux";
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
}

TEST(JeuDAssociation, RangéeCachéeEtVideNeManquePas)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    Remplir(écran, {u"gai", u"âpre"});
    écran.lblMot(2).Visible = false;
    écran.DemanderCorrection(); // no box
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
}

TEST(JeuDAssociation, LeJugeDécide)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    Remplir(écran, {u"gai", u"gai", u"âpre"});
    Corriger(écran.jeu, [](int i) { return i != 0; });
    EXPECT_EQ(écran.lblMot(0).BackColor, Rouge);
    EXPECT_EQ(écran.lblMot(1).BackColor, Vert);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
}

TEST(JeuDAssociation, AccentsEtCasseComptent)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    écran.lblMot(1).Caption = u"apre";
    EXPECT_FALSE(RéponseExacte(écran.jeu, 1));
    écran.lblMot(1).Caption = u"Âpre";
    EXPECT_FALSE(RéponseExacte(écran.jeu, 1));
    écran.lblMot(1).Caption = u"âpre";
    EXPECT_TRUE(RéponseExacte(écran.jeu, 1));
}

TEST(JeuDAssociation, FerméPendantLaCorrection)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    Remplir(écran, {u"gai", u"âpre", u"gai"});
    banc.plateforme.Prévoir(1500ms, [&] { écran.FermerParCroix(); });
    écran.DemanderCorrection();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Corriger");
}

TEST(JeuDAssociation, FerméPendantLaQuestion)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    banc.plateforme.boîtes.push_back({PasTerminé, Réponse::Oui, std::nullopt, [&] { écran.FermerParCroix(); }});
    écran.DemanderCorrection();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
}

TEST(JeuDAssociation, LesCouleursEtLesLégendesDuDépart)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(écran.lblMot(i).Caption, u" Clique avant de compléter. ");
        EXPECT_EQ(écran.lblMot(i).BackColor, CouleurAuto);
        EXPECT_TRUE(écran.txtReste(i).Locked);
        EXPECT_FALSE(écran.lblCorrigé(i).Visible);
        EXPECT_EQ(écran.lblCorrigé(i).ForeColor, Bleu);
    }
    EXPECT_EQ(écran.cmb.BackColor, Jaune);
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Corriger");
    VérifierPointsDeDépart(écran.lblPoints);
}

TEST(JeuDAssociation, LInviteNEstPasUnMot)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    écran.Cliquer(1);
    EXPECT_EQ(écran.lblMot(1).Caption, u"");
    EXPECT_EQ(écran.cmb.ListCount(), 3) << "rien n'est rendu à la liste";
    EXPECT_EQ(écran.lblMot(0).Caption, u" Clique avant de compléter. ");
    banc.AnnoncerBoîte(PasTerminé, Réponse::Oui); // told as missing
    écran.DemanderCorrection();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(écran.lblMot(i).Caption, u"") << "plus rien à compléter";
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
}

TEST(JeuDAssociation, ChoixDuProgrammeNePlaceRien)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    écran.Cliquer(0);
    banc.état.ChoixProgramme = true;
    écran.Prendre(u"gai");
    EXPECT_EQ(écran.lblMot(0).Caption, u"");
    EXPECT_EQ(écran.cmb.ListCount(), 3);
    EXPECT_FALSE(banc.état.ChoixProgramme);
    écran.Prendre(u"gai"); // the next one is the pupil's
    EXPECT_EQ(écran.lblMot(0).Caption, u"gai");

    banc.état.ChoixProgramme = true;
    écran.Cliquer(1);
    EXPECT_FALSE(banc.état.ChoixProgramme);
}

TEST(JeuDAssociation, RienNeSeTapeDansLaListe)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    EXPECT_FALSE(écran.cmb.Taper({.Caractère = u'g', .Code = 'G'}));
    EXPECT_FALSE(écran.cmb.Taper({.Caractère = u' ', .Code = ' '}));
    EXPECT_EQ(écran.cmb.Text, u"âpre");
}

TEST(JeuDAssociation, UnMotEnDoubleEntreDeuxFoisDansLaListe)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    EXPECT_EQ(écran.cmb.Eléments(), (std::vector<Texte>{u"âpre", u"gai", u"gai"})) << "triée";
    EXPECT_EQ(écran.cmb.Text, u"âpre") << "la première";
    Remplir(écran, {u"gai", u"âpre", u"gai"});
    EXPECT_EQ(écran.cmb.ListCount(), 0);
    EXPECT_EQ(écran.cmb.Text, u"gai") << "le dernier mot reste en vue";
}

TEST(JeuDAssociation, QuitterEnregistreLaNoteEtFerme)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    Remplir(écran, {u"gai", u"gai", u"âpre"});
    écran.DemanderCorrection();
    EXPECT_EQ(banc.Note(6), u"");
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(6), u"3,333333");
}

TEST(JeuDAssociation, LaCorrectionPasseMinuit)
{
    Banc banc;
    auto& écran = OuvrirAssociation(banc);
    Remplir(écran, {u"gai", u"âpre", u"gai"});
    banc.plateforme.Régler(86398.5);
    écran.DemanderCorrection();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_LT(banc.plateforme.Horloge(), 60);
}

TEST(JeuDAssociation, FerméANImporteQuelMomentDeLaCorrection)
{
    for (const auto moment : {0ms, 1ms, 999ms, 1000ms, 2000ms, 2999ms}) {
        Banc banc;
        auto& écran = OuvrirAssociation(banc);
        Remplir(écran, {u"gai", u"âpre", u"gai"});
        banc.plateforme.Prévoir(moment, [&] { écran.FermerParCroix(); });
        écran.DemanderCorrection();
        EXPECT_FALSE(écran.EstChargé());
        EXPECT_EQ(écran.cmdQuitter.Caption, u"&Corriger");
        EXPECT_EQ(banc.Note(6), u"");
    }
}

} // namespace tirelune
