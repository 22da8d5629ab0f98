#include "tests/desktop/Atelier.h"

#include "desktop/Apparence.h"
#include "desktop/VueToile.h"

#include <QClipboard>
#include <QLabel>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

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
    RichTextBox rtfLigne{*this, "rtfLigne", {.UneLigne = true}};
    TextBox txtDedans{*this, "txtDedans"};
    TextBox txtDessus{*this, "txtDessus"};
    Tableau<Label> lblLettre{*this, "lblLettre", 26};
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

TEST_F(Dispositions, MesurerNEcritRien)
{
    écran.disposer = [&] { return Pile{Libre{écran.lblMot}}; };
    Avec(écran, [&] {
        const int avant = écran.lblMot.Width;
        Widget<QLabel>(écran.lblMot).setText("un mot bien plus long");
        EXPECT_GT(Devant().sizeHint().width(), Devant().Pixels(avant));
        EXPECT_EQ(écran.lblMot.Width, avant);
        écran.lblMot.Caption = u"un mot bien plus long"; // shown: now it is so wide
        Mettre();
        EXPECT_GT(écran.lblMot.Width, avant);
        écran.lblMot.Width = 3000;
        écran.lblMot.Height = 600;
        Mettre();
        EXPECT_EQ(Widget(écran.lblMot).width(), Devant().Pixels(3000));
        EXPECT_EQ(Widget(écran.lblMot).height(), Devant().Pixels(600));
    });
}

TEST_F(Dispositions, UnElémentSansVueArrêteUneCompilationDEssai)
{
    Grid grille{écran, "grille", 1, 1};
    écran.disposer = [&] { return Colonne{grille}; };
    EXPECT_DEBUG_DEATH(Avec(écran, [] {}), "has no view");
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

TEST_F(Dispositions, UnElémentSePoseSurUnAutreDUnAutreCadre)
{
    écran.txtDessus.PoséSur = &écran.txtDedans;
    écran.disposer = [&] {
        return Pile{Colonne{écran.cmdJouer, Extensible(Cadre{écran.frameLibre, Colonne{écran.lblMot, écran.txtDedans}}),
                            écran.lblFond},
                    Libre{écran.txtDessus}};
    };
    const auto lieu = [&](const Elément& un) {
        return QRect{Widget(un).mapTo(&Devant(), QPoint{0, 0}), Widget(un).size()};
    };
    Avec(écran, [&] {
        EXPECT_EQ(lieu(écran.txtDessus), lieu(écran.txtDedans));
        EXPECT_EQ(Devant().childAt(lieu(écran.txtDedans).center()), &Widget(écran.txtDessus)); // in front
        EXPECT_EQ(écran.txtDessus.Width, écran.txtDedans.Width);
        Devant().setGeometry(0, 0, 1024, 768);
        Mettre();
        EXPECT_EQ(lieu(écran.txtDessus), lieu(écran.txtDedans));
        écran.txtDessus.PoséSur = &écran.cmdJouer;
        Mettre();
        EXPECT_EQ(lieu(écran.txtDessus), lieu(écran.cmdJouer));
    });
}

TEST_F(Dispositions, UneRangéeEstLargeCommeSesLettres)
{
    for (int i = 0; i < écran.lblLettre.Nombre(); ++i)
        écran.lblLettre(i).Caption = Texte{static_cast<char16_t>(u'a' + i)};
    écran.disposer = [&] { return Colonne{Rangée{écran.lblLettre}, écran.lblFond, écran.cmdJouer}; };
    Avec(écran, [&] {
        const auto& première = Widget(écran.lblLettre(0));
        const auto& dernière = Widget(écran.lblLettre(écran.lblLettre.UBound()));
        EXPECT_EQ(première.width(), première.sizeHint().width());
        EXPECT_LT(Widget(écran.lblLettre(8)).width(), Widget(écran.lblLettre(12)).width()); // i and m
        const int gauche = première.x();
        const int droite = Devant().width() - dernière.geometry().right();
        EXPECT_NEAR(gauche, droite, 2);
        EXPECT_LT(première.width() * 26, Devant().width());
    });
}

TEST_F(Dispositions, UnTexteRicheDUneLigneNEnAPasDeux)
{
    écran.rtfLigne.Text(u"chat\r\nchien");
    écran.disposer = [&] { return Colonne{écran.rtfLigne, Extensible(écran.lblFond), écran.txtDedans}; };
    Avec(écran, [&] {
        auto& ligne = Widget<QTextEdit>(écran.rtfLigne);
        const int hauteur = ligne.height();
        EXPECT_LT(hauteur, 2 * ligne.fontMetrics().lineSpacing());
        EXPECT_GE(hauteur, ligne.fontMetrics().lineSpacing());
        écran.rtfLigne.Text(Texte(300, u'x'));
        Mettre();
        EXPECT_EQ(ligne.document()->firstBlock().layout()->lineCount(), 1);
        EXPECT_FALSE(ligne.verticalScrollBar()->isVisible());
        QTest::keyClick(&ligne, Qt::Key_Return);
        QTest::keyClick(&ligne, Qt::Key_Return, Qt::ShiftModifier);
        EXPECT_EQ(écran.rtfLigne.Longueur(), 300U);
        QApplication::clipboard()->setText("un\ndeux");
        ligne.selectAll();
        QTest::keyClick(&ligne, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(écran.rtfLigne.Text(), u"un deux");
        écran.rtfLigne.ToutFormater([](Format& format) { format.Taille = 30; });
        Mettre();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        EXPECT_GT(ligne.height(), hauteur * 3 / 2);
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
