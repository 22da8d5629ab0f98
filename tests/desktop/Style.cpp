// The look that all windows share.
#include "core/Dégradé.h"
#include "desktop/Apparence.h"
#include "tests/desktop/Atelier.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QIcon>
#include <QImage>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolTip>

#include <algorithm>

namespace tirelune {

namespace {

struct EcranFamille final : EcranEssai {
    using EcranEssai::EcranEssai;
    TextBox txtNom{*this, "txtNom"};
    ComboBox cmbNoms{*this, "cmbNoms"};
    ComboBox cmbTaille{*this, "cmbTaille", {.Saisie = true}};
    ListBox lstMots{*this, "lstMots"};
    CheckBox chkRéponse{*this, "chkRéponse", u"En mai."};
    MenuOption mnuFichier{*this, "mnuFichier", u"&Fichier"};
    MenuOption mnuOuvrir{*this, "mnuOuvrir", u"&Ouvrir"};
    bool avecSousMenu = true;

    Arrangement Disposer() override { return Colonne{txtNom, cmbNoms, cmbTaille, chkRéponse, Extensible(lstMots)}; }
    std::vector<Menu> Menus() override
    {
        return avecSousMenu ? std::vector<Menu>{{&mnuFichier, {{&mnuOuvrir}}}} : std::vector<Menu>{{&mnuFichier}};
    }
};

constexpr QSize Usuelle{1366, 768};
constexpr int Moindre = 40; // pixels: what a hand that is not yet sure can hit

class Styles : public Atelier {
protected:
    EcranFamille écran{application};

    void Agrandir(QSize taille)
    {
        Devant().resize(taille);
        Mettre();
    }
};

} // namespace

TEST_F(Styles, ChaqueFenêtrePorteLIcôneDuProgramme)
{
    Avec(écran, [&] {
        const auto icône = Devant().windowIcon();
        for (const int côté : {16, 32, 48, 128}) {
            const auto image = icône.pixmap(côté).toImage();
            ASSERT_EQ(image.width(), côté);
            EXPECT_LT(image.pixelColor(0, 0).alpha(), 128) << "round corners";
            EXPECT_EQ(image.pixelColor(côté / 2, côté - 2).alpha(), 255);
        }
    });
}

TEST_F(Styles, ChampsEtListesOntLaMêmeHauteurQuiCroîtAvecLaFenêtre)
{
    Avec(écran, [&] {
        Agrandir({800, 600});
        const int petite = Widget(écran.txtNom).height();
        Agrandir(Usuelle);
        const int hauteur = Widget(écran.txtNom).height();
        EXPECT_GE(hauteur, Moindre);
        EXPECT_GT(hauteur, petite);
        EXPECT_EQ(Widget(écran.cmbNoms).height(), hauteur);
        EXPECT_EQ(Widget(écran.cmbTaille).height(), hauteur);
    });
}

TEST_F(Styles, CasesRangéesEtOptionsSontAssezGrandes)
{
    écran.lstMots.AddItem(u"phare");
    Avec(écran, [&] {
        Agrandir(Usuelle);
        const auto& case_ = Widget<QCheckBox>(écran.chkRéponse);
        EXPECT_GE(case_.style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &case_), 28);
        const auto& liste = Widget<QListWidget>(écran.lstMots);
        EXPECT_GE(liste.visualItemRect(liste.item(0)).height(), Moindre);
        auto* menu = Devant().findChild<QMenu*>();
        ASSERT_NE(menu, nullptr);
        EXPECT_GE(menu->actionGeometry(menu->actions().front()).height(), Moindre);
        const auto* barre = Devant().findChild<QMenuBar*>();
        EXPECT_GE(barre->actionGeometry(barre->actions().front()).height(), Moindre);
    });
}

TEST_F(Styles, UneBarreQuiMèneDroitAuButEstEcritePlusGrand)
{
    écran.avecSousMenu = false;
    Avec(écran, [&] {
        Agrandir(Usuelle);
        EXPECT_GT(Devant().findChild<QMenuBar*>()->font().pixelSize(), Widget(écran.txtNom).font().pixelSize());
    });
}

TEST_F(Styles, UneListeSOuvreSousSaBoîteEtYChoisitParLesFlèches)
{
    écran.cmbNoms.AddItems({u"Léa", u"Tom"});
    Avec(écran, [&] {
        auto& boîte = Widget<QComboBox>(écran.cmbNoms);
        boîte.showPopup();
        auto* vue = boîte.view();
        EXPECT_GE(vue->mapToGlobal(QPoint{}).y(), boîte.mapToGlobal(QPoint{0, boîte.height()}).y());
        const auto place = vue->visualRect(boîte.model()->index(1, 0));
        EXPECT_GE(place.height(), boîte.height() * 3 / 4);
        QTest::keyClick(vue, Qt::Key_Down);
        QTest::keyClick(vue, Qt::Key_Return);
        EXPECT_EQ(écran.cmbNoms.Text(), u"Tom");
    });
}

TEST_F(Styles, LeCurseurDUneBarreSuitLaSouris)
{
    for (int i = 0; i < 200; ++i)
        écran.lstMots.AddItem(u"mot");
    Avec(écran, [&] {
        auto* barre = Widget<QListWidget>(écran.lstMots).verticalScrollBar();
        QTest::mousePress(barre, Qt::LeftButton, {}, QPoint{barre->width() / 2, 8});
        QTest::mouseMove(barre, QPoint{barre->width() / 2, barre->height() / 2});
        EXPECT_GT(barre->value(), barre->maximum() / 4);
        EXPECT_LT(barre->value(), barre->maximum());
        QTest::mouseMove(barre, QPoint{barre->width() / 2, barre->height() + 100});
        EXPECT_EQ(barre->value(), barre->maximum());
        QTest::mouseRelease(barre, Qt::LeftButton, {}, QPoint{barre->width() / 2, barre->height()});
        QTest::mouseClick(barre, Qt::LeftButton, {}, QPoint{barre->width() / 2, 4});
        EXPECT_LT(barre->value(), barre->maximum()) << "a click beside it goes a page back";
    });
}

TEST_F(Styles, UneBulleGranditAvecSaFenêtre)
{
    Avec(écran, [&] {
        Agrandir(Usuelle);
        QToolTip::showText(QPoint{50, 50}, QStringLiteral("Ajouter un élève."), &Devant());
        const auto fenêtres = QApplication::topLevelWidgets();
        const auto bulle =
            std::ranges::find_if(fenêtres, [](const QWidget* une) { return une->inherits("QTipLabel"); });
        ASSERT_NE(bulle, fenêtres.end());
        EXPECT_NEAR((*bulle)->font().pixelSize(), Widget(écran.txtNom).font().pixelSize(), 1);
        EXPECT_GE((*bulle)->height(), (*bulle)->fontMetrics().height());
        QToolTip::hideText();
    });
}

// What only the toolkit's dialogs have.
TEST_F(Styles, LesDialoguesOntLesTraitsDesEcrans)
{
    QTabWidget onglets;
    onglets.addTab(new QGroupBox{QStringLiteral("Copies")}, QStringLiteral("Page"));
    onglets.addTab(new QWidget, QStringLiteral("Options"));
    QTableWidget table{1, 1};
    onglets.resize(400, 300);
    table.resize(400, 300);
    const auto image = onglets.grab().toImage();
    const auto devant = onglets.tabBar()->geometry().topLeft() + onglets.tabBar()->tabRect(0).topLeft();
    const auto derrière = onglets.tabBar()->geometry().topLeft() + onglets.tabBar()->tabRect(1).topLeft();
    EXPECT_EQ(image.pixelColor(devant + QPoint{14, 4}), Teinte::Panneau);
    EXPECT_EQ(image.pixelColor(derrière + QPoint{14, 6}), Teinte::Eteint);
    auto* cadre = onglets.widget(0);
    EXPECT_EQ(cadre->grab().toImage().pixelColor(cadre->width() / 2, cadre->height() - 1), Teinte::BordPanneau);
    auto& groupe = dynamic_cast<QGroupBox&>(*cadre);
    QStyleOptionGroupBox option;
    option.initFrom(&groupe);
    option.text = groupe.title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    const auto partie = [&](QStyle::SubControl une) {
        return groupe.style()->subControlRect(QStyle::CC_GroupBox, &option, une, &groupe);
    };
    EXPECT_GT(partie(QStyle::SC_GroupBoxFrame).top(), partie(QStyle::SC_GroupBoxLabel).bottom());
    auto* entête = table.horizontalHeader();
    EXPECT_EQ(entête->grab().toImage().pixelColor(3, 1), Teinte::Fond);
    EXPECT_EQ(entête->grab().toImage().pixelColor(3, entête->height() - 1), Teinte::BordChamp);
}

// A scale of the display that is no whole number.
TEST_F(Styles, LeDégradéNARaieÀAucuneEchelle)
{
    static constexpr double Echelle = 1.25;
    QImage image{40, 500, QImage::Format_RGB32};
    image.setDevicePixelRatio(Echelle);
    image.fill(Qt::white);
    QPainter peintre{&image};
    Peindre(peintre, Dégradé(), QRectF{0, 0, image.width() / Echelle, image.height() / Echelle});
    peintre.end();
    for (int y = 1; y < image.height(); ++y) {
        const auto teinte = image.pixelColor(20, y);
        EXPECT_EQ(teinte.red(), 0) << y;
        EXPECT_EQ(teinte.blue(), 255) << y;
        EXPECT_GE(teinte.green(), image.pixelColor(20, y - 1).green()) << y;
    }
}

} // namespace tirelune
