// Real widgets, without a display: screens are opened, used by mouse and keyboard, and closed.
#pragma once
#include "core/Ecran.h"
#include "desktop/Conversions.h"
#include "desktop/Fenetre.h"
#include "desktop/PlateformeQt.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace tirelune {

class EcranEssai : public Ecran {
public:
    explicit EcranEssai(Application& application) : Ecran(application, "frmEssai", u"Essai") {}

    std::function<void()> auChargement;
    std::function<void()> àLActivation;
    std::function<void()> àLaTaille;
    std::function<void()> auClic;
    std::function<void(Touche&)> auClavier;
    int déchargements = 0;

    using Ecran::Attendre;
    using Ecran::AttendreArrêt;
    using Ecran::Ouvrir;

protected:
    void Load() override { Dire(auChargement); }
    void Unload() override { ++déchargements; }
    void Activate() override { Dire(àLActivation); }
    void Resize() override { Dire(àLaTaille); }
    void Click() override { Dire(auClic); }
    void KeyPress(Touche& touche) override
    {
        if (auClavier)
            auClavier(touche);
    }

private:
    static void Dire(const std::function<void()>& quoi)
    {
        if (quoi)
            quoi();
    }
};

class Atelier : public testing::Test {
protected:
    PlateformeQt plateforme;
    Application application{plateforme};

    // Shows the screen, plays the script in its loop, and closes what the script has left open.
    template <class Script>
    void Avec(Ecran& écran, Script script)
    {
        bool joué = false;
        QTimer::singleShot(0, qApp, [&] {
            QApplication::setActiveWindow(plateforme.Devant()); // nobody else gives the keyboard to a window here
            script();
            joué = true;
            écran.Décharger();
        });
        écran.Afficher();
        EXPECT_TRUE(joué);
    }

    // The next time the loop turns, in whatever box or wait it stands then.
    template <class Script>
    static void Ensuite(Script script)
    {
        QTimer::singleShot(0, qApp, script);
    }

    Fenêtre& Devant() { return *plateforme.Devant(); }
    template <class T = QWidget>
    T& Widget(const Elément& élément)
    {
        auto* widget = Devant().findChild<QWidget*>(EnQString(élément.Nom));
        EXPECT_NE(widget, nullptr) << élément.Nom;
        return dynamic_cast<T&>(*widget);
    }
    void Cliquer(const Elément& élément) { QTest::mouseClick(&Widget(élément), Qt::LeftButton); }
    static void DoubleCliquer(QWidget& widget, QPoint lieu)
    {
        QTest::mousePress(&widget, Qt::LeftButton, {}, lieu);
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, lieu);
        QMouseEvent second{QEvent::MouseButtonDblClick,
                           QPointF{lieu},
                           widget.mapToGlobal(QPointF{lieu}),
                           Qt::LeftButton,
                           Qt::LeftButton,
                           Qt::NoModifier};
        QCoreApplication::sendEvent(&widget, &second);
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, lieu);
    }
    void Mettre() { Devant().Synchroniser(); }
};

} // namespace tirelune
