#include "exercises/JeuDAssociation.h"

#include "exercises/ListeDeMots.h"
#include "tests/support/Banc.h"

namespace tirelune {

namespace {

class EcranAssociation final : public Ecran {
public:
    explicit EcranAssociation(Application& application) : Ecran(application, "EcranAssociation", u"Essai") {}

    Tableau<Label> lblMot{*this, "lblMot", 3};
    Tableau<TextBox> txtReste{*this, "txtReste", 3};
    Tableau<Label> lblCorrigé{*this, "lblCorrigé", 3, {.Visible = false}};
    ComboBox cmb{*this, "cmb", {.Sorted = true}};
    Tableau<Label> lblPoints{*this, "lblPoints", {u"0", u"0", u" / "}};
    Button cmdQuitter{*this, "cmdQuitter", u"&Corriger"};

    const JeuDAssociation jeu{lblMot,    {&txtReste(0), &txtReste(1), &txtReste(2)}, lblCorrigé, cmb, lblPoints,
                              cmdQuitter};

    void Cliquer(int i)
    {
        if (ChoisirRangée(jeu, i))
            RendreRéponse(jeu, i);
    }
    std::optional<int> Prendre(VueTexte mot)
    {
        cmb.Choisir(cmb.Chercher(mot));
        return PlacerRéponse(jeu);
    }
    void DemanderCorrection()
    {
        Corriger(jeu, [this](int i) { return RéponseExacte(jeu, i); });
    }

private:
    Arrangement Disposer() override
    {
        return Colonne{Colonne{lblMot}, Colonne{txtReste}, Colonne{lblCorrigé}, cmb, cmdQuitter};
    }
};

constexpr auto PasTerminé = u"Tu n'a pas terminé !\nVeux-tu vraiment quitter ?";

// Three rows whose answers are "gai", "âpre" and "gai".
EcranAssociation& OuvrirJeuDAssociation(Banc& banc)
{
    auto& écran = banc.Ouvrir<EcranAssociation>();
    const std::vector<Texte> réponses{u"gai", u"âpre", u"gai"};
    for (int i = 0; i < 3; ++i)
        écran.lblCorrigé(i).Caption = réponses[static_cast<std::size_t>(i)];
    RemplirListe(écran.cmb, réponses);
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
    auto& écran = OuvrirJeuDAssociation(banc);
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
    auto& écran = OuvrirJeuDAssociation(banc);
    écran.Cliquer(1);
    EXPECT_EQ(écran.Prendre(u"gai"), 1);
    EXPECT_EQ(écran.lblMot(1).Caption, u"gai");
    EXPECT_TRUE(écran.lblMot(1).AutoSize);
    EXPECT_EQ(écran.cmb.Eléments(), (std::vector<Texte>{u"âpre", u"gai"}));
    EXPECT_EQ(écran.cmb.Text, u"âpre");
}

TEST(JeuDAssociation, SansRangéeChoisieRienNEstPlacé)
{
    Banc banc;
    auto& écran = OuvrirJeuDAssociation(banc);
    EXPECT_EQ(écran.Prendre(u"gai"), std::nullopt);
    EXPECT_EQ(écran.cmb.ListCount(), 3);
    EXPECT_EQ(écran.cmb.Text, u"gai") << "montré, sans plus";
}

TEST(JeuDAssociation, RangéeRemplieNePrendPasUnSecondMot)
{
    Banc banc;
    auto& écran = OuvrirJeuDAssociation(banc);
    écran.Cliquer(0);
    écran.Prendre(u"gai");
    EXPECT_EQ(écran.Prendre(u"âpre"), std::nullopt);
    EXPECT_EQ(écran.lblMot(0).Caption, u"gai");
    EXPECT_EQ(écran.cmb.ListCount(), 2);
}

TEST(JeuDAssociation, ClicSurUneRangéeRemplieRendSonMot)
{
    Banc banc;
    auto& écran = OuvrirJeuDAssociation(banc);
    écran.Cliquer(0);
    écran.Prendre(u"gai");
    écran.Cliquer(0);
    EXPECT_EQ(écran.lblMot(0).Caption, u"");
    EXPECT_FALSE(écran.lblMot(0).AutoSize) << "garde sa taille";
    EXPECT_EQ(écran.lblMot(0).BackColor, Jaune);
    EXPECT_EQ(écran.cmb.Eléments(), (std::vector<Texte>{u"âpre", u"gai", u"gai"}));
    EXPECT_EQ(écran.Prendre(u"âpre"), 0);
}

TEST(JeuDAssociation, RangéeVideNeRendRien)
{
    Banc banc;
    auto& écran = OuvrirJeuDAssociation(banc);
    écran.Cliquer(0);
    EXPECT_EQ(écran.cmb.ListCount(), 3);
}

TEST(JeuDAssociation, LaCorrectionPrendUneSecondeParRangée)
{
    Banc banc;
    auto& écran = OuvrirJeuDAssociation(banc);
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
    auto& écran = OuvrirJeuDAssociation(banc);
    Remplir(écran, {u"gai", u"âpre", u"gai"});
    écran.DemanderCorrection();
    EXPECT_FALSE(ChoisirRangée(écran.jeu, 0));
    EXPECT_EQ(écran.lblMot(0).BackColor, Vert);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"3");
}

TEST(JeuDAssociation, RangéesVidesSontAConfirmer)
{
    Banc banc;
    auto& écran = OuvrirJeuDAssociation(banc);
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
    auto& écran = OuvrirJeuDAssociation(banc);
    Remplir(écran, {u"gai", u"âpre"});
    écran.lblMot(2).Visible = false;
    écran.DemanderCorrection(); // no box
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
}

TEST(JeuDAssociation, LeJugeDécide)
{
    Banc banc;
    auto& écran = OuvrirJeuDAssociation(banc);
    Remplir(écran, {u"gai", u"gai", u"âpre"});
    Corriger(écran.jeu, [](int i) { return i != 0; });
    EXPECT_EQ(écran.lblMot(0).BackColor, Rouge);
    EXPECT_EQ(écran.lblMot(1).BackColor, Vert);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
}

TEST(JeuDAssociation, AccentsEtCasseComptent)
{
    Banc banc;
    auto& écran = OuvrirJeuDAssociation(banc);
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
    auto& écran = OuvrirJeuDAssociation(banc);
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
    auto& écran = OuvrirJeuDAssociation(banc);
    banc.plateforme.boîtes.push_back({PasTerminé, Réponse::Oui, std::nullopt, [&] { écran.FermerParCroix(); }});
    écran.DemanderCorrection();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
}

} // namespace tirelune
