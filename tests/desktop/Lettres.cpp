// Letters as keyboards and input methods really bring them: each is judged once, when it is whole.
#include "exercises/spelling/frmEcrirePhrase.h"
#include "tests/desktop/Atelier.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QTextEdit>

namespace tirelune {

namespace {

class Lettres : public Atelier {
protected:
    Lettres()
    {
        // Only a draw before the full stop leads to the sentence.
        choix.rtfTexte.Text(Texte(2000, u'x') + u". Rêve là-bas, l'élève a vu où Zoé coud sa Ñ et un rêve.");
    }

    frmExercices choix{application};
    frmEcrirePhrase écran{choix};

    QTextEdit& Boîte() { return Widget<QTextEdit>(écran.rtfPhrase); }
    void Presser(int touche, const QString& lettre = {}, Qt::KeyboardModifiers avec = Qt::NoModifier,
                 bool répétée = false)
    {
        QTest::simulateEvent(&Boîte(), true, touche, avec, lettre, répétée);
    }
    void Frapper(int touche, const QString& lettre = {}, Qt::KeyboardModifiers avec = Qt::NoModifier)
    {
        Presser(touche, lettre, avec);
        QTest::simulateEvent(&Boîte(), false, touche, avec, lettre, false);
    }
    void Composer(const QString& provisoire, const QString& lettre = {})
    {
        QInputMethodEvent événement{provisoire, {}};
        événement.setCommitString(lettre);
        QCoreApplication::sendEvent(&Boîte(), &événement);
    }
    // In the test stage, where each letter counts.
    void Jouer(const std::function<void()>& script)
    {
        Avec(écran, [&] {
            ASSERT_FALSE(écran.notice.Cadre.Visible);
            for (int étape = 1; étape <= 3; ++étape) {
                Cliquer(écran.cmdCommencer);
                Mettre();
                while (étape < 3 && !écran.cmdCommencer.Visible)
                    Frapper(Qt::Key_A, EnQString(écran.txtCorrigé.SelText()));
                Mettre();
            }
            ASSERT_EQ(Devant().focusWidget(), &Boîte());
            script();
        });
    }
    [[nodiscard]] std::pair<int, int> Points() const
    {
        return {Compte(écran.lblPoints(0)), Compte(écran.lblPoints(1))};
    }
};

using Jugées = std::pair<int, int>;

} // namespace

TEST_F(Lettres, ToucheMorteEtComposition)
{
    Jouer([&] {
        Frapper(Qt::Key_R, QStringLiteral("R"), Qt::ShiftModifier);
        EXPECT_EQ(Points(), (Jugées{1, 1}));
        Frapper(Qt::Key_Dead_Circumflex);
        Composer(QStringLiteral("^"));
        EXPECT_EQ(Points(), (Jugées{1, 1})) << "pas encore une lettre";
        Composer({}, QStringLiteral("ê"));
        EXPECT_EQ(Points(), (Jugées{2, 2}));
        EXPECT_EQ(écran.rtfPhrase.CaractèreEn(1), u"ê");
        Composer(QStringLiteral("^")); // given up
        Composer({});
        EXPECT_EQ(Points(), (Jugées{2, 2}));
        Frapper(Qt::Key_V, QStringLiteral("v"));
        Frapper(Qt::Key_E, QStringLiteral("e"));
        EXPECT_EQ(Points(), (Jugées{4, 4}));
        Mettre();
        EXPECT_EQ(Boîte().toPlainText().left(5), QStringLiteral("Rêve "));
    });
}

TEST_F(Lettres, PlusieursLettresEnUneFoisSeJugentUneÀUne)
{
    Jouer([&] {
        Composer({}, QStringLiteral("Rêve"));
        EXPECT_EQ(Points(), (Jugées{4, 4}));
    });
}

TEST_F(Lettres, LaTroisièmeLettreDUneTouche)
{
    for (const auto avec : {Qt::KeyboardModifiers{Qt::GroupSwitchModifier}, Qt::ControlModifier | Qt::AltModifier}) {
        frmEcrirePhrase encore{choix};
        Avec(encore, [&] {
            for (auto* bouton : {&encore.cmdCommencer})
                Cliquer(*bouton);
            Mettre();
            auto& boîte = Widget<QTextEdit>(encore.rtfPhrase);
            QTest::simulateEvent(&boîte, true, Qt::Key_AsciiCircum, avec, QStringLiteral("#"), false);
            EXPECT_TRUE(encore.cmdErreur.Visible);
        });
    }
}

TEST_F(Lettres, RaccourcisNeSontPasDesLettres)
{
    Jouer([&] {
        Presser(Qt::Key_R, QStringLiteral("\x12"), Qt::ControlModifier);
        Presser(Qt::Key_R, QStringLiteral("R"), Qt::MetaModifier);
        Presser(Qt::Key_Shift, {}, Qt::ShiftModifier);
        Presser(Qt::Key_CapsLock);
        Presser(Qt::Key_F5);
        EXPECT_EQ(Points(), (Jugées{0, 0}));
        EXPECT_FALSE(écran.cmdErreur.Visible);
    });
}

TEST_F(Lettres, ToucheTenueEstUneLettre)
{
    Jouer([&] {
        Presser(Qt::Key_R, QStringLiteral("R"), Qt::ShiftModifier);
        for (int fois = 0; fois < 5; ++fois)
            Presser(Qt::Key_R, QStringLiteral("R"), Qt::ShiftModifier, true);
        EXPECT_EQ(Points(), (Jugées{1, 1}));
        EXPECT_FALSE(écran.cmdErreur.Visible);
    });
}

TEST_F(Lettres, RienNeDéplaceLaSaisie)
{
    Jouer([&] {
        Frapper(Qt::Key_R, QStringLiteral("R"), Qt::ShiftModifier);
        const auto choisi = [&] {
            return std::pair{Boîte().textCursor().selectionStart(), écran.rtfPhrase.SelStart()};
        };
        Mettre();
        const auto avant = choisi();
        EXPECT_EQ(avant, (std::pair<int, std::size_t>{1, 1}));
        for (const int touche :
             {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp,
              Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Delete})
            Frapper(touche, touche == Qt::Key_Space ? QStringLiteral(" ") : QString{});
        auto& page = *Boîte().viewport();
        for (const auto lieu : {QPoint{5, 5}, page.rect().center(), QPoint{page.width() - 5, 30}}) {
            QTest::mouseClick(&page, Qt::LeftButton, {}, lieu);
            DoubleCliquer(page, lieu);
            QTest::mousePress(&page, Qt::LeftButton, {}, lieu);
            QTest::mouseMove(&page, lieu + QPoint{60, 10});
            QTest::mouseRelease(&page, Qt::LeftButton, {}, lieu + QPoint{60, 10});
            QTest::mouseClick(&page, Qt::MiddleButton, {}, lieu);
        }
        Mettre();
        EXPECT_EQ(choisi(), avant);
        EXPECT_EQ(écran.rtfPhrase.SelLength(), 1U);
        EXPECT_EQ(Points(), (Jugées{1, 1}));
        EXPECT_EQ(Devant().focusWidget(), &Boîte());
    });
}

TEST_F(Lettres, RienNeSeColle)
{
    Jouer([&] {
        QApplication::clipboard()->setText(QStringLiteral("Rêve"));
        Presser(Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
        Presser(Qt::Key_Insert, {}, Qt::ShiftModifier);
        EXPECT_EQ(Points(), (Jugées{0, 0}));
        EXPECT_EQ(écran.rtfPhrase.CaractèreEn(0), u"_");
    });
}

TEST_F(Lettres, AprèsUneErreurLeClavierSeulContinue)
{
    Jouer([&] {
        Frapper(Qt::Key_Z, QStringLiteral("z"));
        EXPECT_TRUE(écran.cmdErreur.Visible);
        Mettre();
        Frapper(Qt::Key_E, QStringLiteral("ê"));
        EXPECT_EQ(Points(), (Jugées{0, 1}));
        QTest::keyClick(&Boîte(), Qt::Key_Tab);
        EXPECT_EQ(Devant().focusWidget(), &Widget(écran.cmdErreur));
        QTest::keyClick(Devant().focusWidget(), Qt::Key_Space);
        Mettre();
        EXPECT_FALSE(écran.cmdErreur.Visible);
        EXPECT_EQ(Devant().focusWidget(), &Boîte());
        Frapper(Qt::Key_E, QStringLiteral("ê"));
        EXPECT_EQ(Points(), (Jugées{1, 2}));
    });
}

} // namespace tirelune
