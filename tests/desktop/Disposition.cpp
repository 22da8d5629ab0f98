#include "tests/desktop/Atelier.h"

#include "desktop/Apparence.h"
#include "desktop/VueToile.h"

namespace tirelune {

namespace {

struct EcranPlaces final : EcranEssai {
    using EcranEssai::EcranEssai;
    Label lblFond{*this, "lblFond", u"fond"};
    Label lblDevant{*this, "lblDevant", u"devant"};
    Label lblMot{*this, "lblMot", u"mot"};
    Rectangle cache{*this, "cache", {.BackColor = Blanc}};
    Button cmdJouer{*this, "cmdJouer", u"&Jouer"};
    Frame frameQuitter{*this, "frameQuitter", {.Caption = u"Fini", .Visible = false}};
    Button cmdAbandonner{*this, "cmdAbandonner", u"&Abandonner"};
    Line trait{*this, "trait", {.X1 = 10, .Y1 = 50, .X2 = 90, .Y2 = 50, .Teinte = Rouge, .Epaisseur = 4}, false};
    Frame frameLibre{*this, "frameLibre", {.Caption = u"Questions"}};
    RichTextBox rtf{*this, "rtf"};
    std::function<Arrangement()> disposer;
    Arrangement Disposer() override { return disposer(); }
};

class Dispositions : public Atelier {
protected:
    EcranPlaces écran{application};
};

} // namespace

TEST_F(Dispositions, UnePileDonneÀTousLaMêmePlace)
{
    écran.disposer = [&] { return Colonne{Extensible(Pile{écran.lblFond, écran.lblDevant}), écran.cmdJouer}; };
    Avec(écran, [&] {
        EXPECT_EQ(Widget(écran.lblFond).geometry(), Widget(écran.lblDevant).geometry());
        EXPECT_GT(Widget(écran.lblFond).height(), Devant().height() / 2);
        EXPECT_GE(Widget(écran.cmdJouer).y(), Widget(écran.lblFond).geometry().bottom());
    });
}

TEST_F(Dispositions, UneCouvertureCacheToutEtPrendLeClavier)
{
    int clics = 0;
    écran.disposer = [&] {
        return Pile{Colonne{écran.cmdJouer}, Couverture{écran.frameQuitter, Colonne{écran.cmdAbandonner}}};
    };
    écran.cmdJouer.Click = [&] { clics += 1; };
    écran.cmdAbandonner.Click = [&] { clics += 10; };
    Avec(écran, [&] {
        EXPECT_TRUE(Widget(écran.frameQuitter).isHidden());
        écran.frameQuitter.Visible = true;
        Mettre();
        auto& cadre = Widget(écran.frameQuitter);
        EXPECT_EQ(cadre.size(), cadre.parentWidget()->size());
        EXPECT_EQ(Devant().childAt(Widget(écran.cmdJouer).mapTo(&Devant(), QPoint{5, 5})), &cadre);
        QTest::keyClick(&Widget(écran.cmdJouer), Qt::Key_Space);
        QTest::mouseClick(&Widget(écran.cmdAbandonner), Qt::LeftButton);
        EXPECT_EQ(clics, 10);
        écran.frameQuitter.Visible = false;
        Mettre();
        Cliquer(écran.cmdJouer);
        EXPECT_EQ(clics, 11);
    });
}

TEST_F(Dispositions, CeQuiEstLibreVaOùLesRèglesLePlacent)
{
    écran.lblMot.AutoSize = true;
    écran.lblMot.Left = 1500;
    écran.lblMot.Top = 750;
    écran.disposer = [&] { return Pile{Colonne{écran.cmdJouer, Ressort{}}, Libre{écran.lblMot, écran.cache}}; };
    Avec(écran, [&] {
        const auto origine = Widget(écran.cmdJouer).pos(); // of all that lies in the stack
        EXPECT_EQ(Widget(écran.lblMot).pos(), origine + QPoint(100, 50));
        EXPECT_EQ(écran.lblMot.Width, Devant().Twips(Widget(écran.lblMot).width()));
        const int court = écran.lblMot.Width;
        écran.lblMot.Caption = u"un mot bien plus long";
        EXPECT_GT(écran.lblMot.Width, court); // known at once: the rules go on with it
        écran.cache.Left = écran.lblMot.Left;
        écran.cache.Top = écran.lblMot.Top;
        écran.cache.Width = écran.lblMot.Width;
        écran.cache.Height = écran.lblMot.Height / 2;
        Mettre();
        EXPECT_EQ(Widget(écran.cache).pos(), origine + QPoint(100, 50));
        EXPECT_EQ(Widget(écran.cache).width(), Widget(écran.lblMot).width());
        // Elsewhere the mouse goes through to what lies below.
        EXPECT_EQ(Devant().childAt(Widget(écran.cmdJouer).mapTo(&Devant(), QPoint{9, 9})), &Widget(écran.cmdJouer));
    });
}

TEST_F(Dispositions, UneToileGardeSesProportions)
{
    écran.lblMot.Left = 50;
    écran.lblMot.Top = 25;
    écran.lblMot.Width = 50;
    écran.lblMot.Height = 25;
    écran.disposer = [&] { return Pile{Toile{100, 100, {écran.trait, écran.lblMot}}}; };
    Avec(écran, [&] {
        auto& toile = dynamic_cast<VueToile&>(*Widget(écran.lblMot).parentWidget());
        const double facteur = toile.EchelleDesPlaces();
        EXPECT_NEAR(facteur, std::min(toile.width(), toile.height()) / 100.0, 0.01);
        EXPECT_NEAR(Widget(écran.lblMot).width(), 50 * facteur, 1);
        const QPoint milieu{toile.width() / 2, toile.height() / 2};
        EXPECT_NE(toile.grab().toImage().pixelColor(milieu), (QColor{255, 0, 0}));
        écran.trait.Visible = true;
        Mettre();
        EXPECT_EQ(toile.grab().toImage().pixelColor(milieu), (QColor{255, 0, 0}));
    });
}

TEST_F(Dispositions, LÉcranApprendSaTailleEtLesPlaces)
{
    int fois = 0;
    écran.àLaTaille = [&] { ++fois; };
    écran.disposer = [&] { return Colonne{écran.lblFond, écran.cmdJouer}; };
    Avec(écran, [&] {
        EXPECT_EQ(fois, 1);
        EXPECT_EQ(écran.Width, Devant().Twips(Devant().width()));
        EXPECT_EQ(écran.cmdJouer.Top, Devant().Twips(Widget(écran.cmdJouer).y()));
        EXPECT_GT(écran.cmdJouer.Width, 0);
        Devant().setGeometry(0, 0, 640, 480);
        Mettre();
        EXPECT_EQ(fois, 2);
        EXPECT_EQ(écran.Width, Devant().Twips(640));
        EXPECT_GT(écran.Width, 640 * TwipsParPixel); // the letters are smaller there, and so are twips
    });
}

TEST_F(Dispositions, LesLettresGrandissentAvecLaFenêtre)
{
    écran.disposer = [&] { return Colonne{écran.lblFond}; };
    Avec(écran, [&] {
        Devant().setGeometry(0, 0, 800, 600);
        Mettre();
        EXPECT_EQ(Widget(écran.lblFond).font().pixelSize(), 16); // 12 points
        Devant().setGeometry(0, 0, 1920, 1080);
        Mettre();
        EXPECT_NEAR(Widget(écran.lblFond).font().pixelSize(), 24, 1);
    });
}

TEST_F(Dispositions, UnEcranCompteDèsLeDébutSurLaPlaceDeCeluiDuDessous)
{
    EcranPlaces dessus{application};
    double échelle = 0;
    dessus.disposer = [&] {
        échelle = Devant().Echelle();
        return Colonne{dessus.lblMot};
    };
    écran.disposer = [&] { return Colonne{écran.lblFond}; };
    Avec(écran, [&] {
        Devant().setGeometry(0, 0, 700, 520); // what a window manager's borders leave
        Ensuite([&] { dessus.Décharger(); });
        dessus.Afficher();
        EXPECT_EQ(échelle, EchellePour({700, 520}));
    });
}

namespace {

void Traîner(QWidget& cadre, QPoint de, QPoint écart)
{
    const auto global = cadre.mapToGlobal(de);
    const auto envoyer = [&](QEvent::Type genre, QPoint lieu, Qt::MouseButton bouton, Qt::MouseButtons boutons) {
        QMouseEvent un{genre, QPointF{cadre.mapFromGlobal(lieu)}, QPointF{lieu}, bouton, boutons, Qt::NoModifier};
        QCoreApplication::sendEvent(&cadre, &un);
    };
    envoyer(QEvent::MouseButtonPress, global, Qt::LeftButton, Qt::LeftButton);
    envoyer(QEvent::MouseMove, global + écart / 2, Qt::NoButton, Qt::LeftButton);
    envoyer(QEvent::MouseMove, global + écart, Qt::NoButton, Qt::LeftButton);
    envoyer(QEvent::MouseButtonRelease, global + écart, Qt::LeftButton, Qt::NoButton);
}

} // namespace

TEST_F(Dispositions, UnCadreSeTraîneEtSeDépose)
{
    double prise = 0;
    std::vector<const Elément*> cibles;
    double lieu = 0;
    écran.frameLibre.Left = 3000;
    écran.frameLibre.Top = 3000;
    écran.frameLibre.Width = 3000;
    écran.frameLibre.Height = 1500;
    écran.frameLibre.MouseMove = [&](double x, double) { prise = x; };
    écran.frameLibre.DragDrop = [&](const Elément* cible, double x, double) {
        cibles.push_back(cible);
        lieu = x;
        écran.frameLibre.Left = 4500;
    };
    écran.disposer = [&] {
        return Pile{Colonne{écran.cmdJouer, Ressort{}, AuMoins(0, 4500, écran.rtf)},
                    Libre{Cadre{écran.frameLibre, Colonne{}}}};
    };
    Avec(écran, [&] {
        auto& cadre = Widget(écran.frameLibre);
        Traîner(cadre, {30, 40}, {100, -150});
        EXPECT_EQ(prise, Devant().Twips(30));
        EXPECT_EQ(cibles, (std::vector<const Elément*>{nullptr}));
        EXPECT_EQ(lieu, Devant().Twips(200 + 30 + 100)); // on the screen
        Mettre();
        EXPECT_EQ(cadre.x(), Widget(écran.cmdJouer).x() + 300);
        Traîner(cadre, {30, 40}, {30, 20});
        ASSERT_EQ(cibles.size(), 2U);
        EXPECT_EQ(cibles[1], &écran.frameLibre);
        EXPECT_EQ(lieu, Devant().Twips(60));
        const auto versTexte =
            Widget(écran.rtf).mapTo(&Devant(), QPoint{50, 40}) - cadre.mapTo(&Devant(), QPoint{30, 40});
        Traîner(cadre, {30, 40}, versTexte);
        ASSERT_EQ(cibles.size(), 3U);
        EXPECT_EQ(cibles[2], &écran.rtf);
        EXPECT_EQ(lieu, Devant().Twips(50));
    });
}

} // namespace tirelune
