#include "tests/desktop/Atelier.h"

#include "desktop/Composants.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QToolButton>

namespace tirelune {

namespace {

struct EcranTout final : EcranEssai {
    using EcranEssai::EcranEssai;

    Label lblMot{*this, "lblMot", u"lune"};
    Label lblMuet{*this, "lblMuet", u"rien"};
    Button cmdOk{*this, "cmdOk", u"&Ok"};
    TextBox txtNom{*this, "txtNom", {.MaxLength = 8}};
    TextBox txtCode{*this, "txtCode", {.PasswordChar = u'*'}};
    TextBox txtNotes{*this, "txtNotes", {.MultiLine = true}};
    ComboBox cmbMots{*this, "cmbMots", {.Caption = u" Liste des mots enlevés "}};
    ComboBox cmbTailles{*this, "cmbTailles", {.Saisie = true}};
    ListBox lstNoms{*this, "lstNoms"};
    CheckBox chkOui{*this, "chkOui", u"Oui"};
    ScrollBar scrl{*this, "scrl"};
    Image imgTête{*this, "imgTête"};
    Frame frame{*this, "frame", u"Cadre"};
    Button cmdDedans{*this, "cmdDedans", u"Dedans"};
    Toolbar tlb{*this,
                "tlb",
                {{.Clé = "btnGras", .ToolTipText = u" Gras ", .Basculant = true},
                 {},
                 {.Clé = "btnOuvrir", .ToolTipText = u" Ouvrir "}}};

    Arrangement Disposer() override
    {
        return Colonne{
            tlb,
            Ligne{lblMot, lblMuet, cmdOk, chkOui, imgTête},
            Ligne{txtNom, txtCode, cmbMots, cmbTailles},
            Ligne{txtNotes, lstNoms, scrl},
            Cadre{frame, Ligne{cmdDedans}},
        };
    }
};

class Eléments : public Atelier {
protected:
    EcranTout écran{application};
    int clics = 0;
};

QString Affichée(QWidget& widget)
{
    return dynamic_cast<QLabel&>(widget).text();
}

} // namespace

TEST_F(Eléments, LeWidgetPorteLeNomEtLaBulleDeLElément)
{
    écran.cmdOk.ToolTipText = u" Clique ici. ";
    Avec(écran, [&] {
        auto& bouton = Widget(écran.cmdOk);
        EXPECT_EQ(bouton.objectName(), "cmdOk");
        EXPECT_EQ(bouton.toolTip(), "Clique ici.");
        EXPECT_EQ(Devant().windowTitle(), "Essai");
    });
}

TEST_F(Eléments, UneLégendeChangéeSeVoitAvantLaSuite)
{
    Avec(écran, [&] {
        auto& étiquette = Widget(écran.lblMot);
        écran.lblMot.Caption = u"soleil";
        EXPECT_EQ(Affichée(étiquette), "lune"); // one pass for all that has changed
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(Affichée(étiquette), "soleil");
        écran.lblMot.Caption = u"étoile";
        écran.lblMot.Refresh();
        EXPECT_EQ(Affichée(étiquette), "étoile");
    });
}

TEST_F(Eléments, LeMasqueSeVoitDansUneLégende)
{
    écran.lblMot.Caption = Texte{Masque, u'a', Masque};
    Avec(écran, [&] {
        const auto affichée = Affichée(Widget(écran.lblMot));
        EXPECT_EQ(affichée.size(), 3);
        EXPECT_EQ(affichée[0].unicode(), GlypheMasque);
        EXPECT_EQ(affichée[1], u'a');
    });
}

TEST_F(Eléments, LesCouleursDeLÉlémentSePeignent)
{
    écran.lblMot.BackColor = Rouge;
    Avec(écran, [&] {
        auto& étiquette = Widget(écran.lblMot);
        EXPECT_EQ(étiquette.grab().toImage().pixelColor(étiquette.width() - 2, étiquette.height() / 2),
                  (QColor{255, 0, 0}));
        écran.lblMot.BackColor = Vert;
        Mettre();
        EXPECT_EQ(étiquette.grab().toImage().pixelColor(étiquette.width() - 2, étiquette.height() / 2),
                  (QColor{0, 255, 0}));
    });
}

TEST_F(Eléments, CliquerUneÉtiquette)
{
    écran.lblMot.Click = [&] { ++clics; };
    Avec(écran, [&] {
        Cliquer(écran.lblMot);
        EXPECT_EQ(clics, 1);
        DoubleCliquer(Widget(écran.lblMot), Widget(écran.lblMot).rect().center());
        EXPECT_EQ(clics, 3); // two quick clicks are two clicks
        Widget(écran.cmdOk).setFocus();
        QTest::keyClick(&Widget(écran.cmdOk), Qt::Key_Tab, Qt::ShiftModifier);
        QTest::keyClick(&Widget(écran.lblMot), Qt::Key_Space);
        EXPECT_EQ(clics, 4);
        écran.lblMot.Enabled = false;
        Mettre();
        Cliquer(écran.lblMot);
        EXPECT_EQ(clics, 4);
    });
}

TEST_F(Eléments, UneÉtiquetteSansClicEstHorsDuClavier)
{
    écran.lblMot.Click = [&] { ++clics; };
    Avec(écran, [&] {
        EXPECT_EQ(Widget(écran.lblMot).focusPolicy(), Qt::TabFocus);
        EXPECT_EQ(Widget(écran.lblMuet).focusPolicy(), Qt::NoFocus);
    });
}

TEST_F(Eléments, UnClicReliéAprèsCoupRépond)
{
    Avec(écran, [&] {
        Cliquer(écran.lblMuet);
        écran.lblMuet.Click = [&] { clics += 1; };
        écran.imgTête.Click = [&] { clics += 10; };
        écran.frame.Click = [&] { clics += 100; };
        Cliquer(écran.lblMuet);
        Cliquer(écran.imgTête);
        QTest::mouseClick(&Widget(écran.frame), Qt::LeftButton, {}, QPoint{20, 6});
        EXPECT_EQ(clics, 111);
        EXPECT_EQ(Widget(écran.lblMuet).cursor().shape(), Qt::PointingHandCursor);
        EXPECT_EQ(Widget(écran.imgTête).cursor().shape(), Qt::PointingHandCursor);
        Widget(écran.lblMuet).setFocus();
        QTest::keyClick(&Widget(écran.lblMuet), Qt::Key_Tab);
        EXPECT_EQ(Devant().focusWidget()->objectName(), "cmdOk"); // in the order of declaration
        écran.lblMuet.Click = nullptr;
        écran.frame.Click = nullptr;
        Mettre();
        Cliquer(écran.lblMuet);
        QTest::mouseClick(&Widget(écran.frame), Qt::LeftButton, {}, QPoint{20, 6});
        EXPECT_EQ(clics, 111);
        EXPECT_EQ(Widget(écran.lblMuet).cursor().shape(), Qt::ArrowCursor);
        EXPECT_EQ(Widget(écran.lblMuet).focusPolicy(), Qt::NoFocus);
    });
}

TEST_F(Eléments, CliquerUnBouton)
{
    écran.cmdOk.Click = [&] { ++clics; };
    Avec(écran, [&] {
        Cliquer(écran.cmdOk);
        QTest::keyClick(&Widget(écran.cmdOk), Qt::Key_Space);
        EXPECT_EQ(clics, 2);
        écran.cmdOk.Visible = false;
        Mettre();
        EXPECT_TRUE(Widget(écran.cmdOk).isHidden());
    });
}

TEST_F(Eléments, EntréePresseLeBoutonQuiALeClavier)
{
    écran.cmdOk.Click = [&] { ++clics; };
    Avec(écran, [&] {
        écran.cmdOk.SetFocus();
        Mettre();
        QTest::keyClick(&Devant(), Qt::Key_Return);
        EXPECT_EQ(clics, 0); // pressed into the window, which is no button
        QTest::keyClick(&Widget(écran.cmdOk), Qt::Key_Return);
        QTest::keyClick(&Widget(écran.cmdOk), Qt::Key_Enter);
        EXPECT_EQ(clics, 2);
    });
}

TEST_F(Eléments, UnWidgetCachéGardeSaPlace)
{
    Avec(écran, [&] {
        const auto avant = Widget(écran.chkOui).geometry();
        écran.cmdOk.Visible = false;
        Mettre();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        EXPECT_EQ(Widget(écran.chkOui).geometry(), avant);
    });
}

TEST_F(Eléments, TaperDansUnChamp)
{
    int changements = 0;
    écran.txtNom.Change = [&] { ++changements; };
    Avec(écran, [&] {
        QTest::keyClicks(&Widget(écran.txtNom), "lune");
        EXPECT_EQ(écran.txtNom.Text(), u"lune");
        EXPECT_EQ(changements, 4);
        EXPECT_EQ(écran.txtNom.SelStart, 4U);
        QTest::keyClicks(&Widget(écran.txtNom), "lune bleue");
        EXPECT_EQ(écran.txtNom.Text().size(), 8U);
    });
}

TEST_F(Eléments, UneToucheJetéeNÉcritRien)
{
    écran.txtNom.KeyPress = [](Touche& touche) {
        if (touche.Caractère == u'x')
            touche.Avaler();
    };
    Avec(écran, [&] {
        QTest::keyClicks(&Widget(écran.txtNom), "axb");
        EXPECT_EQ(écran.txtNom.Text(), u"ab");
    });
}

TEST_F(Eléments, EntréeDansUnChamp)
{
    écran.txtNom.Enter = [&] { ++clics; };
    Avec(écran, [&] {
        QTest::keyClick(&Widget(écran.txtNom), Qt::Key_Return);
        EXPECT_EQ(clics, 1);
    });
}

TEST_F(Eléments, LaSélectionDUnChampVaDansLesDeuxSens)
{
    écran.txtNom.Text = u"soleil";
    Avec(écran, [&] {
        auto& champ = Widget<QLineEdit>(écran.txtNom);
        écran.txtNom.SelStart = 1;
        écran.txtNom.SelLength = 3;
        Mettre();
        EXPECT_EQ(champ.selectedText(), "ole");
        champ.setSelection(3, 2);
        EXPECT_EQ(écran.txtNom.SelStart, 3U);
        EXPECT_EQ(écran.txtNom.SelLength, 2U);
        QTest::mouseClick(&champ, Qt::LeftButton, {}, QPoint{4, champ.height() / 2});
        EXPECT_EQ(écran.txtNom.SelStart, 0U);
    });
}

TEST_F(Eléments, UnCodeSeCacheSousDesAstérisques)
{
    Avec(écran, [&] {
        auto& champ = Widget<QLineEdit>(écran.txtCode);
        QTest::keyClicks(&champ, "abc");
        EXPECT_EQ(champ.displayText(), "***");
        EXPECT_EQ(écran.txtCode.Text(), u"abc");
    });
}

TEST_F(Eléments, UnChampVerrouilléNeChangePas)
{
    écran.txtNom.Text = u"fixe";
    écran.txtNom.Locked = true;
    Avec(écran, [&] {
        QTest::keyClicks(&Widget(écran.txtNom), "x");
        EXPECT_EQ(écran.txtNom.Text(), u"fixe");
    });
}

TEST_F(Eléments, UnTexteDePlusieursLignesFinitSesLignesCommeUnFichier)
{
    Avec(écran, [&] {
        auto& zone = Widget<QPlainTextEdit>(écran.txtNotes);
        QTest::keyClicks(&zone, "un");
        QTest::keyClick(&zone, Qt::Key_Return);
        QTest::keyClicks(&zone, "deux");
        EXPECT_EQ(écran.txtNotes.Text(), u"un\r\ndeux");
        EXPECT_EQ(écran.txtNotes.SelStart, 8U);
        écran.txtNotes.SelStart = 4;
        écran.txtNotes.SelLength = 2;
        Mettre();
        EXPECT_EQ(zone.textCursor().selectedText(), "de");
    });
}

TEST_F(Eléments, UneListeMontreUnTexteQuiNEstPasDElle)
{
    écran.cmbMots.AddItems({u"chat", u"chien"});
    écran.cmbMots.Click = [&] { ++clics; };
    Avec(écran, [&] {
        auto& liste = Widget<QComboBox>(écran.cmbMots);
        EXPECT_EQ(liste.placeholderText(), " Liste des mots enlevés ");
        EXPECT_EQ(liste.currentIndex(), -1);
        QTest::keyClick(&liste, Qt::Key_Down);
        EXPECT_EQ(écran.cmbMots.Text(), u"chat");
        EXPECT_EQ(clics, 1);
    });
}

TEST_F(Eléments, DesTouchesJetéesNeChoisissentRien)
{
    écran.cmbMots.AddItems({u"chat", u"chien"});
    bool flèchesAussi = true;
    écran.cmbMots.KeyPress = [&](Touche& touche) {
        if (flèchesAussi || touche.Caractère != 0)
            touche.Avaler();
    };
    Avec(écran, [&] {
        Widget(écran.cmbMots).setFocus();
        QTest::keyClicks(&Widget(écran.cmbMots), "c");
        for (const auto touche : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End})
            QTest::keyClick(&Widget(écran.cmbMots), touche);
        EXPECT_EQ(écran.cmbMots.Text(), u" Liste des mots enlevés ");
        flèchesAussi = false;
        QTest::keyClicks(&Widget(écran.cmbMots), "c");
        EXPECT_EQ(écran.cmbMots.Text(), u" Liste des mots enlevés ");
        QTest::keyClick(&Widget(écran.cmbMots), Qt::Key_Down);
        EXPECT_EQ(écran.cmbMots.Text(), u"chat");
    });
}

TEST_F(Eléments, SaisirDansUneListe)
{
    écran.cmbTailles.AddItems({u"10", u"12"});
    écran.cmbTailles.Enter = [&] { ++clics; };
    Avec(écran, [&] {
        auto& champ = *Widget<QComboBox>(écran.cmbTailles).lineEdit();
        champ.setFocus();
        champ.selectAll();
        QTest::keyClicks(&champ, "12");
        EXPECT_EQ(écran.cmbTailles.Text(), u"12");
        EXPECT_EQ(écran.cmbTailles.ListIndex, 1);
        QTest::keyClick(&champ, Qt::Key_Return);
        EXPECT_EQ(clics, 1);
    });
}

TEST_F(Eléments, DeuxMilleÉlémentsDUnCoup)
{
    std::vector<Texte> mots;
    for (int i = 0; i < 2000; ++i)
        mots.push_back(u"mot " + EnTexte(i));
    Avec(écran, [&] {
        écran.cmbMots.AddItems(mots);
        écran.cmbMots.RemoveItem(7);
        Mettre();
        auto& liste = Widget<QComboBox>(écran.cmbMots);
        EXPECT_EQ(liste.count(), 1999);
        EXPECT_EQ(liste.itemText(7), "mot 8");
    });
}

TEST_F(Eléments, ChoisirDansUneListeOuverte)
{
    écran.lstNoms.AddItems({u"Léa", u"Tom"});
    écran.lstNoms.Click = [&] { ++clics; };
    Avec(écran, [&] {
        auto& liste = Widget<QListWidget>(écran.lstNoms);
        QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, liste.visualItemRect(liste.item(1)).center());
        EXPECT_EQ(écran.lstNoms.ListIndex, 1);
        EXPECT_EQ(clics, 1);
        QTest::keyClick(&liste, Qt::Key_Up);
        EXPECT_EQ(écran.lstNoms.ListIndex, 0);
        EXPECT_EQ(clics, 2);
    });
}

TEST_F(Eléments, CocherUneCase)
{
    écran.chkOui.Click = [&] { ++clics; };
    Avec(écran, [&] {
        auto& case_ = Widget<QCheckBox>(écran.chkOui);
        QTest::keyClick(&case_, Qt::Key_Space);
        EXPECT_EQ(écran.chkOui.Value, 1);
        EXPECT_EQ(clics, 1);
        écran.chkOui.Value = 0;
        Mettre();
        EXPECT_FALSE(case_.isChecked());
    });
}

TEST_F(Eléments, DéplacerUneBarreDeDéfilement)
{
    écran.scrl.Max = 20;
    écran.scrl.Change = [&] { ++clics; };
    Avec(écran, [&] {
        auto& barre = Widget<QScrollBar>(écran.scrl);
        barre.setValue(7);
        EXPECT_EQ(écran.scrl.Value, 7);
        EXPECT_EQ(clics, 1);
        écran.scrl.Value = 3;
        Mettre();
        EXPECT_EQ(barre.value(), 3);
        EXPECT_EQ(clics, 1);
    });
}

TEST_F(Eléments, UneImageSePeintEtSeClique)
{
    écran.imgTête.Picture = Dessin{10, 10, {{GenreForme::Ellipse, {{0, 0}, {10, 10}}, Noir, 1, Jaune}}};
    écran.imgTête.Click = [&] { ++clics; };
    Avec(écran, [&] {
        auto& image = Widget(écran.imgTête);
        EXPECT_EQ(image.grab().toImage().pixelColor(image.rect().center()), (QColor{255, 255, 0}));
        Cliquer(écran.imgTête);
        EXPECT_EQ(clics, 1);
    });
}

TEST_F(Eléments, LeBordDUneImageCliquableEstPlein)
{
    écran.imgTête.Picture = Dessin{10, 10, {{GenreForme::Ellipse, {{4, 4}, {6, 6}}, Noir, 1, Jaune}}};
    écran.imgTête.Click = [] {};
    Avec(écran, [&] {
        const auto bordPlein = [&] {
            const auto image = Widget(écran.imgTête).grab().toImage();
            const int milieu = image.width() / 2;
            for (int x = std::max(12, milieu - 30); x < std::min(image.width() - 12, milieu + 30); ++x) {
                if (image.pixelColor(x, 0) != image.pixelColor(milieu, 0))
                    return false;
            }
            return true;
        };
        EXPECT_TRUE(bordPlein());
        écran.imgTête.Picture = Dessin{};
        Mettre();
        EXPECT_FALSE(bordPlein()) << "nothing to see there";
    });
}

TEST_F(Eléments, CliquerUnCadre)
{
    écran.frame.Click = [&] { ++clics; };
    Avec(écran, [&] {
        QTest::mouseClick(&Widget(écran.frame), Qt::LeftButton, {}, QPoint{20, 6});
        EXPECT_EQ(clics, 1);
        Cliquer(écran.cmdDedans);
        EXPECT_EQ(clics, 1);
    });
}

TEST_F(Eléments, CliquerHorsDesÉlémentsEstUnClicDeLÉcran)
{
    écran.auClic = [&] { ++clics; };
    Avec(écran, [&] {
        QTest::mouseClick(Devant().Plan(), Qt::LeftButton, {}, QPoint{1, 1});
        EXPECT_EQ(clics, 1);
        Cliquer(écran.lblMuet);
        Cliquer(écran.cmdOk);
        EXPECT_EQ(clics, 1);
    });
}

TEST_F(Eléments, LaBarreDeBoutonsMontreLesÉtats)
{
    std::string cliqué;
    écran.tlb.ButtonClick = [&](std::string_view clé) { cliqué = clé; };
    Avec(écran, [&] {
        auto* gras = Devant().findChild<QToolButton*>("btnGras");
        ASSERT_NE(gras, nullptr);
        QTest::mouseClick(gras, Qt::LeftButton);
        EXPECT_EQ(cliqué, "btnGras");
        Mettre();
        EXPECT_FALSE(gras->isChecked()); // the screen decides, not the button
        écran.tlb.Montrer("btnGras", Toolbar::Etat::Enfoncé);
        Mettre();
        EXPECT_TRUE(gras->isChecked());
    });
}

TEST_F(Eléments, LaTabulationSuitLaDéclaration)
{
    écran.lblMot.Click = [] {};
    Avec(écran, [&] {
        auto* un = &Widget(écran.lblMot);
        un->setFocus();
        QTest::keyClick(un, Qt::Key_Tab);
        EXPECT_EQ(Devant().focusWidget()->objectName(), "cmdOk");
        QTest::keyClick(Devant().focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(Devant().focusWidget()->objectName(), "txtNom");
    });
}

TEST_F(Eléments, LeFocusDemandéEstDonné)
{
    Avec(écran, [&] {
        EXPECT_EQ(Devant().focusWidget()->objectName(), "txtNom");
        écran.cmdOk.SetFocus();
        Mettre();
        EXPECT_EQ(Devant().focusWidget()->objectName(), "cmdOk");
        Widget(écran.txtCode).setFocus();
        écran.Caption = u"Autre";
        Mettre();
        EXPECT_EQ(Devant().focusWidget()->objectName(), "txtCode"); // a caption is no reason to move it
        écran.cmdOk.SetFocus();
        Mettre();
        EXPECT_EQ(Devant().focusWidget()->objectName(), "cmdOk");
    });
}

TEST_F(Eléments, UnNouveauDessinNeDéplacePasLeClavier)
{
    écran.cmdOk.SetFocus();
    écran.Fond = Dessin{10, 10, {{GenreForme::Ellipse, {{0, 0}, {10, 10}}}}};
    Avec(écran, [&] {
        EXPECT_EQ(Devant().focusWidget()->objectName(), "cmdOk");
        Widget(écran.txtCode).setFocus();
        écran.Fond = Dessin{10, 10, {{GenreForme::Ellipse, {{0, 0}, {5, 5}}}}};
        Mettre();
        EXPECT_EQ(Devant().focusWidget()->objectName(), "txtCode");
        écran.Width = écran.Width + 100;
        Mettre();
        EXPECT_EQ(Devant().focusWidget()->objectName(), "txtCode");
        écran.BackColor = Jaune;
        écran.txtCode.SetFocus();
        écran.cmdOk.SetFocus(); // the last word counts
        Mettre();
        EXPECT_EQ(Devant().focusWidget()->objectName(), "cmdOk");
    });
}

TEST_F(Eléments, LeClavierQuiVientEtQuiPartSeDit)
{
    std::string suite;
    écran.txtNom.GotFocus = [&] { suite += "+nom "; };
    écran.txtNom.LostFocus = [&] { suite += "-nom "; };
    écran.cmdOk.GotFocus = [&] { suite += "+ok "; };
    écran.cmdOk.Click = [&] { suite += "clic "; };
    Avec(écran, [&] {
        EXPECT_EQ(suite, "+nom "); // typing starts there
        QTest::keyClick(&Widget(écran.txtNom), Qt::Key_Tab);
        EXPECT_EQ(suite, "+nom -nom ");
        suite.clear();
        QTest::mouseClick(&Widget(écran.txtNom), Qt::LeftButton);
        Widget(écran.cmdOk).setFocus(Qt::MouseFocusReason); // as a real click does before it is one
        Cliquer(écran.cmdOk);
        EXPECT_EQ(suite, "+nom -nom +ok clic ");
        suite.clear();
        écran.txtNom.SetFocus();
        EXPECT_EQ(suite, "+nom "); // said at once, and only once
        Mettre();
        EXPECT_EQ(suite, "+nom ");
        écran.txtNom.Visible = false; // the keyboard waits for Tab
        Mettre();
        EXPECT_EQ(suite, "+nom -nom ");
        EXPECT_EQ(écran.Focus(), nullptr);
        QTest::keyClick(&Devant(), Qt::Key_Tab);
        EXPECT_EQ(écran.Focus(), &écran.txtCode);
    });
}

TEST_F(Eléments, PendantUneAttenteLeClavierNeVientPas)
{
    using namespace std::chrono_literals;
    écran.txtCode.GotFocus = [&] { ++clics; };
    Avec(écran, [&] {
        Ensuite([&] { Widget(écran.txtCode).setFocus(); });
        EXPECT_TRUE(écran.Attendre(2ms));
        EXPECT_EQ(clics, 0);
        QCoreApplication::processEvents();
        EXPECT_EQ(clics, 1);
    });
}

TEST_F(Eléments, UneLégendeDevientGrasse)
{
    Avec(écran, [&] {
        EXPECT_FALSE(Widget(écran.lblMot).font().bold());
        écran.lblMot.Gras = true;
        Mettre();
        EXPECT_TRUE(Widget(écran.lblMot).font().bold());
    });
}

TEST_F(Eléments, LÉcranVoitLesTouchesEnPremier)
{
    Texte vues;
    écran.auClavier = [&](Touche& touche) {
        vues += touche.Caractère;
        if (touche.Caractère == u'b')
            touche.Avaler();
    };
    Avec(écran, [&] {
        QTest::keyClicks(&Widget(écran.txtNom), "abc");
        EXPECT_EQ(vues, u"abc");
        EXPECT_EQ(écran.txtNom.Text(), u"ac");
        Widget(écran.cmdOk).setFocus();
        QTest::keyClicks(&Widget(écran.cmdOk), "z");
        EXPECT_EQ(vues, u"abcz");
    });
}

TEST_F(Eléments, UnCaractèreComposéArriveÀLÉcranEtAuChamp)
{
    Texte vues;
    écran.auClavier = [&](Touche& touche) { vues += touche.Caractère; };
    Avec(écran, [&] {
        QInputMethodEvent composé;
        composé.setCommitString("ê");
        QCoreApplication::sendEvent(&Widget(écran.txtNom), &composé);
        EXPECT_EQ(vues, u"ê");
        EXPECT_EQ(écran.txtNom.Text(), u"ê");
        Widget(écran.cmdOk).setFocus();
        QInputMethodEvent encore;
        encore.setCommitString("û");
        QCoreApplication::sendEvent(&Widget(écran.cmdOk), &encore);
        EXPECT_EQ(vues, u"êû");
    });
}

namespace {

struct EcranMenus final : EcranEssai {
    using EcranEssai::EcranEssai;
    MenuOption mnuFichier{*this, "mnuFichier", u"     &Fichier     "};
    MenuOption mnuOuvrir{*this, "mnuOuvrir", u"&Ouvrir"};
    MenuOption mnuAuto{*this, "mnuAuto", u"&Auto"};
    MenuOption mnuQuitter{*this, "mnuQuitter", u"&Quitter"};
    std::vector<Menu> Menus() override { return {{&mnuFichier, {{&mnuOuvrir}, {}, {&mnuAuto}}}, {&mnuQuitter}}; }
    Arrangement Disposer() override { return {}; }
};

} // namespace

TEST_F(Atelier, LesMenusSuiventLeursOptions)
{
    EcranMenus écran{application};
    int clics = 0;
    écran.mnuOuvrir.Click = [&] { ++clics; };
    écran.mnuQuitter.Click = [&] { clics += 10; };
    Avec(écran, [&] {
        auto* barre = Devant().findChild<QMenuBar*>();
        ASSERT_NE(barre, nullptr);
        ASSERT_EQ(barre->actions().size(), 2);
        EXPECT_EQ(barre->actions()[0]->text(), "&Fichier") << "blanks are not to be heard";
        const auto largeur = [&] { return barre->actionGeometry(barre->actions()[0]).width(); };
        const int écartée = largeur();
        Devant().resize(120, 400);
        Mettre();
        EXPECT_LT(largeur(), écartée - 5 * barre->fontMetrics().horizontalAdvance(u' '))
            << "they spread it all the same";
        auto entrées = barre->actions()[0]->menu()->actions();
        ASSERT_EQ(entrées.size(), 3);
        EXPECT_TRUE(entrées[1]->isSeparator());
        entrées[0]->trigger();
        barre->actions()[1]->trigger();
        EXPECT_EQ(clics, 11);
        écran.mnuAuto.Checked = true;
        écran.mnuOuvrir.Caption = u"Autre";
        écran.mnuOuvrir.Enabled = false;
        Mettre();
        EXPECT_TRUE(entrées[2]->isChecked());
        EXPECT_EQ(entrées[0]->text(), "Autre");
        EXPECT_FALSE(entrées[0]->isEnabled());
        écran.mnuAuto.Visible = false;
        Mettre();
        EXPECT_FALSE(entrées[2]->isVisible());
    });
}

} // namespace tirelune
