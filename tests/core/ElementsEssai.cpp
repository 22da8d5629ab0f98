#include "core/Elements.h"

#include "core/Ecran.h"
#include "tests/support/Banc.h"

namespace tirelune {

namespace {

class Essai final : public Ecran {
public:
    explicit Essai(Application& application) : Ecran(application, "frmEssai", u"Essai") {}

    Label lblUn{*this, "lblUn", u"0"};
    Tableau<Label> lblPlusieurs{*this, "lblPlusieurs", {u"a", u"b", u"c"}};
    CheckBox chkUn{*this, "chkUn"};
    TextBox txtUn{*this, "txtUn", {.MaxLength = 5}};
    ComboBox cmbUn{*this, "cmbUn"};
    ComboBox cmbTriée{*this, "cmbTriée", {.Sorted = true}};
    ComboBox cmbSaisie{*this, "cmbSaisie", {.Saisie = true}};
    ListBox lstUne{*this, "lstUne"};
    Tableau<ListBox> lstPlusieurs{*this, "lstPlusieurs", 2};
    ScrollBar barre{*this, "barre"};
    Timer Chrono{*this, "Chrono", 100};
    Grid fg{*this, "fg", 2, 3};
    FileListBox fichiers{*this, "fichiers", u"*.bil"};
    DriveListBox lecteurs{*this, "lecteurs"};
    DirListBox dossiers{*this, "dossiers"};
    Toolbar barreOutils{
        *this, "barreOutils", {{.Clé = "gras", .ToolTipText = u"Gras"}, {.Clé = "ouvrir", .ToolTipText = u"Ouvrir"}}};

    Frame cadre{*this, "cadre"};
    Button cmdDansCadre{*this, "cmdDansCadre", u"Ok"};
    Frame couverture{*this, "couverture", {.Visible = false}};
    Button cmdDessus{*this, "cmdDessus", u"Ok"};

private:
    Arrangement Disposer() override
    {
        return Pile{
            Colonne{lblUn, chkUn, txtUn, cmbUn, cmbTriée, cmbSaisie, lstUne, barre, lecteurs, dossiers, barreOutils,
                    Ligne(lblPlusieurs), Cadre{cadre, cmdDansCadre}},
            Couverture{couverture, cmdDessus},
        };
    }
};

} // namespace

TEST(Eléments, UnTableauNommeEtNumérote)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    EXPECT_EQ(écran.lblPlusieurs.UBound(), 2);
    EXPECT_EQ(écran.lblPlusieurs(1).Nom, "lblPlusieurs(1)");
    EXPECT_EQ(écran.lblPlusieurs(1).Caption, u"b");
    int cliqué = -1;
    écran.lblPlusieurs.Click([&](int i) { cliqué = i; });
    écran.lblPlusieurs(2).Cliquer();
    EXPECT_EQ(cliqué, 2);
}

TEST(Eléments, UnTableauRelieToutEvénementAvecLIndex)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    std::vector<int> suite;
    écran.lstPlusieurs.Relier(&ListBox::DblClick, [&](int i) { suite.push_back(i); });
    écran.lstPlusieurs.Relier(&ListBox::KeyPress, [&](int i, Touche& touche) {
        suite.push_back(i);
        touche.Avaler();
    });
    écran.lstPlusieurs(1).DblClick();
    Touche touche{u'a', 'a'};
    écran.lstPlusieurs(0).KeyPress(touche);
    EXPECT_EQ(suite, (std::vector{1, 0}));
    EXPECT_TRUE(touche.Avalée);
}

TEST(Eléments, LeClavierQuiVientEtQuiPartSeDit)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    std::string suite;
    écran.txtUn.GotFocus = [&] { suite += "+"; };
    écran.txtUn.LostFocus = [&] { suite += "-"; };
    écran.txtUn.SetFocus();
    écran.txtUn.SetFocus(); // has it already
    écran.txtUn.RecevoirFocus();
    EXPECT_EQ(suite, "+");
    écran.chkUn.Enabled = false;
    écran.chkUn.RecevoirFocus(); // out of reach
    EXPECT_EQ(écran.Focus(), &écran.txtUn);
    écran.cmbUn.RecevoirFocus();
    EXPECT_EQ(suite, "+-");
    EXPECT_EQ(écran.Focus(), &écran.cmbUn);
    écran.Décharger();
    écran.txtUn.SetFocus();
    EXPECT_EQ(suite, "+-");
}

TEST(Eléments, QuiPerdLeClavierPeutLEnvoyerAilleurs)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    std::string suite;
    écran.txtUn.LostFocus = [&] { écran.lstUne.SetFocus(); };
    écran.cmbUn.GotFocus = [&] { suite += "combo"; };
    écran.lstUne.GotFocus = [&] { suite += "liste"; };
    écran.txtUn.SetFocus();
    écran.cmbUn.RecevoirFocus();
    EXPECT_EQ(suite, "liste");
    EXPECT_EQ(écran.Focus(), &écran.lstUne);
    écran.lstUne.LostFocus = [&] { écran.Décharger(); };
    écran.cmbUn.RecevoirFocus();
    EXPECT_EQ(suite, "liste"); // nothing comes to a closed screen
}

TEST(Eléments, LeClavierEstDemandéAQuiDessineChaqueFois)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    int demandes = 0;
    int changements = 0;
    écran.FocusDemandé = [&] { ++demandes; };
    écran.Observateur = [&] { ++changements; };
    écran.txtUn.SetFocus();
    écran.txtUn.SetFocus();
    écran.cmbUn.RecevoirFocus(); // the user is there already
    EXPECT_EQ(demandes, 2);
    EXPECT_EQ(changements, 0);
}

TEST(Eléments, GrasEtPoséSurPréviennent)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    int fois = 0;
    écran.txtUn.Observateur = [&] { ++fois; };
    écran.txtUn.Gras = true;
    écran.txtUn.PoséSur = &écran.cmbUn;
    écran.txtUn.PoséSur = &écran.cmbUn;
    EXPECT_EQ(fois, 2);
    EXPECT_EQ(écran.txtUn.PoséSur, &écran.cmbUn);
}

TEST(Eléments, UneRangéeSeTientAuMilieu)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    const Rangée rangée{écran.lblPlusieurs};
    ASSERT_EQ(rangée.Enfants.size(), 5U);
    EXPECT_EQ(rangée.Enfants.front().Genre, Disposition::Ressort);
    EXPECT_EQ(rangée.Enfants[1].Occupant, &écran.lblPlusieurs(0));
    EXPECT_EQ(rangée.Enfants.back().Genre, Disposition::Ressort);
}

TEST(Eléments, UneCouvertureALaTailleDeLEcranDèsQuIlEnAUne)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    EXPECT_GT(écran.Width, 0);
    EXPECT_EQ(écran.couverture.Width, écran.Width);
    EXPECT_EQ(écran.couverture.Height, écran.Height);
    écran.Dimensionner(12000, 9000);
    EXPECT_EQ(écran.couverture.Width, 12000);
    EXPECT_EQ(écran.couverture.Height, 9000);
    EXPECT_EQ(écran.cadre.Width, 0);
}

TEST(Eléments, UnePropriétéNePrévientQueSiElleChange)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    int fois = 0;
    écran.lblUn.Observateur = [&] { ++fois; };
    écran.lblUn.Caption = u"0";
    EXPECT_EQ(fois, 0);
    écran.lblUn.Caption = u"1";
    EXPECT_EQ(fois, 1);
    écran.lblUn.Caption.Noter(u"2");
    EXPECT_EQ(fois, 1);
    EXPECT_EQ(écran.lblUn.Caption, u"2");
}

TEST(Eléments, IncrémenterCompteDansLaLégende)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    Incrémenter(écran.lblUn);
    EXPECT_EQ(écran.lblUn.Caption, u"1");
    écran.lblUn.Caption = u" 9 ";
    Incrémenter(écran.lblUn, 3);
    EXPECT_EQ(écran.lblUn.Caption, u"12");
    écran.lblUn.Caption = u"";
    Incrémenter(écran.lblUn, -1);
    EXPECT_EQ(écran.lblUn.Caption, u"-1");
}

TEST(Eléments, CompteLitLaLégendeEnNombreEntier)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    for (const auto& [légende, compte] : {std::pair{u"0", 0}, {u" 12 ", 12}, {u"-3", -3}, {u"7,5", 7}, {u"", 0}}) {
        écran.lblUn.Caption = légende;
        EXPECT_EQ(Compte(écran.lblUn), compte);
    }
}

TEST(Eléments, CacherLeCadreCacheCeQuIlTient)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    int clics = 0;
    écran.cmdDansCadre.Click = [&] { ++clics; };
    écran.cmdDansCadre.Cliquer();
    écran.cadre.Visible = false;
    écran.cmdDansCadre.Cliquer();
    écran.cadre.Visible = true;
    écran.cmdDansCadre.Enabled = false;
    écran.cmdDansCadre.Cliquer();
    EXPECT_EQ(clics, 1);
}

TEST(Eléments, UneCouvertureNeLaisseAtteindreQueLeSien)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    EXPECT_TRUE(écran.lblUn.EstAtteignable());
    EXPECT_FALSE(écran.cmdDessus.EstAtteignable());
    écran.couverture.Visible = true;
    EXPECT_FALSE(écran.lblUn.EstAtteignable());
    EXPECT_FALSE(écran.cmdDansCadre.EstAtteignable());
    EXPECT_TRUE(écran.cmdDessus.EstAtteignable());
    écran.Décharger();
    EXPECT_FALSE(écran.cmdDessus.EstAtteignable());
}

TEST(Eléments, CaseACocherBascule)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    écran.chkUn.Cliquer();
    EXPECT_EQ(écran.chkUn.Value, 1);
    écran.chkUn.Cliquer();
    EXPECT_EQ(écran.chkUn.Value, 0);
    écran.chkUn.Enabled = false;
    écran.chkUn.Cliquer();
    EXPECT_EQ(écran.chkUn.Value, 0);
}

TEST(Eléments, ZoneDeTexteRefuseCeQuiDépasseOuEstVerrouillé)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    int changements = 0;
    écran.txtUn.Change = [&] { ++changements; };
    EXPECT_TRUE(écran.txtUn.Saisir(u"12345"));
    EXPECT_FALSE(écran.txtUn.Saisir(u"123456"));
    écran.txtUn.Locked = true;
    EXPECT_FALSE(écran.txtUn.Saisir(u"a"));
    écran.txtUn.Locked = false;
    écran.txtUn.Enabled = false;
    EXPECT_FALSE(écran.txtUn.Saisir(u"a"));
    EXPECT_EQ(écran.txtUn.Text, u"12345");
    EXPECT_EQ(changements, 1);
    écran.txtUn.Text = u"123456789"; // by the program
    EXPECT_EQ(changements, 1);
}

TEST(Eléments, SélectionDUneZoneDeTexte)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    écran.txtUn.Text = u"bonjour";
    écran.txtUn.SelStart = 3;
    écran.txtUn.SelLength = 100;
    EXPECT_EQ(écran.txtUn.SelText(), u"jour");
    écran.txtUn.SelText(u"!");
    EXPECT_EQ(écran.txtUn.Text, u"bon!");
    EXPECT_EQ(écran.txtUn.SelStart, 4U);
    écran.txtUn.SelStart = 50;
    EXPECT_EQ(écran.txtUn.SelText(), u"");
    écran.txtUn.SelText(u"?");
    EXPECT_EQ(écran.txtUn.Text, u"bon!?");
}

TEST(Eléments, ToucheAvaléeNArrivePas)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    int entrées = 0;
    écran.txtUn.Enter = [&] { ++entrées; };
    EXPECT_TRUE(écran.txtUn.Taper({u'a', 'a'}));
    EXPECT_FALSE(écran.txtUn.Taper({u'\r', Touche::Entrée}));
    EXPECT_EQ(entrées, 1);
    écran.txtUn.KeyPress = [](Touche& touche) { touche.Avaler(); };
    EXPECT_FALSE(écran.txtUn.Taper({u'a', 'a'}));
    EXPECT_FALSE(écran.txtUn.Taper({u'\r', Touche::Entrée}));
    EXPECT_EQ(entrées, 1);
}

TEST(Eléments, ListeAjouteInsèreEtRetire)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    auto& liste = écran.lstUne;
    liste.AddItem(u"b");
    liste.AddItem(u"c");
    liste.Choisir(1);
    liste.AddItem(u"a", 0);
    EXPECT_EQ(liste.Eléments(), (std::vector<Texte>{u"a", u"b", u"c"}));
    EXPECT_EQ(liste.ListIndex, 2); // still "c"
    liste.RemoveItem(0);
    EXPECT_EQ(liste.ListIndex, 1);
    liste.RemoveItem(1);
    EXPECT_EQ(liste.ListIndex, -1);
    EXPECT_EQ(liste.Chercher(u"b"), 0);
    EXPECT_EQ(liste.Chercher(u"B"), -1);
    liste.Clear();
    EXPECT_EQ(liste.ListCount(), 0);
}

TEST(Eléments, ListeTriéeGardeLesDoublons)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    for (const auto* mot : {u"zèbre", u"âne", u"abri", u"âne"})
        écran.cmbTriée.AddItem(mot);
    EXPECT_EQ(écran.cmbTriée.Eléments(), (std::vector<Texte>{u"abri", u"âne", u"âne", u"zèbre"}));
    écran.cmbTriée.AddItems({u"bec", u"Âne"});
    EXPECT_EQ(écran.cmbTriée.Eléments(), (std::vector<Texte>{u"abri", u"âne", u"âne", u"Âne", u"bec", u"zèbre"}));
}

TEST(Eléments, ChoisirHorsDeLaListeNeFaitRien)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    int clics = 0;
    écran.cmbUn.Click = [&] { ++clics; };
    écran.cmbUn.AddItem(u"a");
    écran.cmbUn.Choisir(-1);
    écran.cmbUn.Choisir(1);
    EXPECT_EQ(clics, 0);
    écran.cmbUn.Choisir(0);
    écran.cmbUn.Choisir(0); // the same again is a click all the same
    EXPECT_EQ(clics, 2);
    EXPECT_EQ(écran.cmbUn.Text, u"a");
    écran.cmbUn.Montrer(0); // by the program
    EXPECT_EQ(clics, 2);
    écran.cmbUn.Clear();
    EXPECT_EQ(écran.cmbUn.Text, u"");
}

TEST(Eléments, UneListeVisibleNeDitQueLesChoixFaits)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    écran.lstUne.AddItems({u"a", u"b"});
    int clics = 0;
    écran.lstUne.Click = [&] { ++clics; };
    for (const int index : {-1, 2, 1000})
        écran.lstUne.Choisir(index);
    EXPECT_EQ(écran.lstUne.ListIndex, -1);
    EXPECT_EQ(clics, 0);
    écran.lstUne.Choisir(0);
    écran.lstUne.Choisir(1);
    EXPECT_EQ(écran.lstUne.ListIndex, 1);
    écran.lstUne.Enabled = false;
    écran.lstUne.Choisir(0);
    EXPECT_EQ(écran.lstUne.ListIndex, 1);
    EXPECT_EQ(clics, 2);
}

TEST(Eléments, UnTraitEstTelQuIlEstDonné)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    const Line trait{écran, "trait", {1, 2, 3, 4, Rouge, 5}, false};
    EXPECT_EQ(trait.X1, 1);
    EXPECT_EQ(trait.Y1, 2);
    EXPECT_EQ(trait.X2, 3);
    EXPECT_EQ(trait.Y2, 4);
    EXPECT_EQ(trait.BorderColor, Rouge);
    EXPECT_EQ(trait.BorderWidth, 5);
    EXPECT_FALSE(trait.Visible);
}

TEST(Eléments, SeuleUneListeASaisiePrendUnTexteTapé)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    écran.cmbUn.Saisir(u"x");
    EXPECT_EQ(écran.cmbUn.Text, u"");
    écran.cmbSaisie.AddItems({u"8", u"10"});
    écran.cmbSaisie.Saisir(u"10");
    EXPECT_EQ(écran.cmbSaisie.ListIndex, 1);
    écran.cmbSaisie.Saisir(u"11");
    EXPECT_EQ(écran.cmbSaisie.ListIndex, -1);
    EXPECT_EQ(écran.cmbSaisie.Text, u"11");
}

TEST(Eléments, DéfilementResteDansSesBornes)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    écran.barre.Min = 1;
    écran.barre.Max = 5;
    int changements = 0;
    écran.barre.Change = [&] { ++changements; };
    écran.barre.Déplacer(9);
    EXPECT_EQ(écran.barre.Value, 5);
    écran.barre.Déplacer(7);
    EXPECT_EQ(changements, 1);
    écran.barre.Déplacer(-3);
    EXPECT_EQ(écran.barre.Value, 1);
}

TEST(Eléments, MinuterieBatTantQuElleMarche)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    int tics = 0;
    écran.Chrono.Tick = [&] { ++tics; };
    banc.Avancer(1s);
    EXPECT_EQ(tics, 0);
    écran.Chrono.Enabled = true;
    banc.Avancer(350ms);
    EXPECT_EQ(tics, 3);
    écran.Chrono.Interval = 0; // stops it
    banc.Avancer(1s);
    EXPECT_EQ(tics, 3);
    écran.Chrono.Interval = 100;
    écran.Décharger();
    banc.Avancer(1s);
    EXPECT_EQ(tics, 3);
}

TEST(Eléments, GrilleGranditEtRétrécit)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    écran.fg.TextMatrix(1, 2, u"x");
    écran.fg.AddRow();
    écran.fg.Cols(5);
    EXPECT_EQ(écran.fg.Rows(), 3);
    EXPECT_EQ(écran.fg.TextMatrix(2, 4), u"");
    EXPECT_EQ(écran.fg.TextMatrix(1, 2), u"x");
    écran.fg.RemoveRow(0);
    EXPECT_EQ(écran.fg.TextMatrix(0, 2), u"x");
    écran.fg.Cols(2);
    EXPECT_EQ(écran.fg.Cols(), 2);
    écran.fg.Cols(3);
    EXPECT_EQ(écran.fg.TextMatrix(0, 2), u""); // what was cut off doesn't come back
}

TEST(Eléments, ListeDeFichiersSelonLeMotif)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    for (const auto* nom : {"zoé.bil", "Éric.BIL", "a.txt", ".bil", "dossier.bil/x"})
        banc.Ecrire(nom, "");
    EXPECT_TRUE(écran.fichiers.Path(DepuisChemin(banc.dossier)));
    ASSERT_EQ(écran.fichiers.ListCount(), 2);
    EXPECT_EQ(écran.fichiers.List(0), u"Éric.BIL");
    EXPECT_EQ(écran.fichiers.List(1), u"zoé.bil");
    std::filesystem::remove(banc.dossier / "zoé.bil");
    écran.fichiers.Refresh();
    EXPECT_EQ(écran.fichiers.ListCount(), 1);
    EXPECT_FALSE(écran.fichiers.Path(u"/n'existe/pas"));
    EXPECT_EQ(écran.fichiers.ListCount(), 0);
}

TEST(Eléments, ListeDeDossiersDescendEtRemonte)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    std::filesystem::create_directories(banc.dossier / "a" / "b");
    std::filesystem::create_directories(banc.dossier / ".caché");
    int changements = 0;
    écran.dossiers.Change = [&] { ++changements; };
    ASSERT_TRUE(écran.dossiers.Path(DepuisChemin(banc.dossier)));
    EXPECT_EQ(écran.dossiers.SousDossiers(), (std::vector<Texte>{u"a"}));
    écran.dossiers.Ouvrir(0);
    EXPECT_EQ(écran.dossiers.Path(), DepuisChemin(banc.dossier / "a"));
    écran.dossiers.Ouvrir(-1);
    EXPECT_EQ(écran.dossiers.Path(), DepuisChemin(banc.dossier));
    écran.dossiers.Ouvrir(7);
    EXPECT_EQ(changements, 2);
    std::filesystem::remove_all(banc.dossier / "a");
    écran.dossiers.Ouvrir(0); // gone meanwhile
    EXPECT_EQ(écran.dossiers.Path(), DepuisChemin(banc.dossier));
    EXPECT_EQ(changements, 2);
}

TEST(Eléments, LecteursSontCeuxDeLaMachine)
{
    Banc banc;
    banc.plateforme.lecteurs = {u"/", u"/media/clé"};
    auto& écran = banc.Ouvrir<Essai>();
    EXPECT_EQ(écran.lecteurs.Lecteurs(), (std::vector<Texte>{u"/", u"/media/clé"}));
    int changements = 0;
    écran.lecteurs.Change = [&] { ++changements; };
    écran.lecteurs.Choisir(2);
    écran.lecteurs.Choisir(-1);
    EXPECT_EQ(écran.lecteurs.Drive, u"");
    EXPECT_EQ(changements, 0);
    écran.lecteurs.Choisir(1);
    EXPECT_EQ(écran.lecteurs.Drive, u"/media/clé");
    EXPECT_EQ(changements, 1);
    écran.lecteurs.Enabled = false;
    écran.lecteurs.Choisir(0);
    EXPECT_EQ(changements, 1);
}

TEST(Eléments, UnLecteurBranchéEntreTempsParaîtEnRafraîchissant)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    banc.plateforme.lecteurs.push_back(u"/media/clé");
    EXPECT_EQ(écran.lecteurs.Lecteurs().size(), 1U);
    écran.lecteurs.Refresh();
    EXPECT_EQ(écran.lecteurs.Lecteurs().size(), 2U);
}

TEST(Eléments, BarreDOutilsDonneLaClé)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    std::string clé;
    écran.barreOutils.ButtonClick = [&](std::string_view c) { clé = c; };
    écran.barreOutils.Cliquer("ouvrir");
    EXPECT_EQ(clé, "ouvrir");
    écran.barreOutils.Montrer("gras", Toolbar::Etat::Mixte);
    EXPECT_EQ(écran.barreOutils.Boutons()[0].Pression, Toolbar::Etat::Mixte);
    écran.barreOutils.Enabled = false;
    écran.barreOutils.Cliquer("gras");
    EXPECT_EQ(clé, "ouvrir");
}

TEST(Eléments, DéchargerUneFoisSuffit)
{
    Banc banc;
    auto& écran = banc.Ouvrir<Essai>();
    écran.FermerParCroix();
    écran.FermerParCroix();
    écran.Décharger();
    EXPECT_FALSE(écran.EstChargé());
}

} // namespace tirelune
