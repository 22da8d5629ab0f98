// Columns that are put in order by mouse and keyboard: whatever the hands do, the result is the same.
#include "exercises/spelling/frmAlphabet.h"
#include "tests/desktop/Atelier.h"

#include <QLabel>
#include <QTextEdit>

namespace tirelune {

namespace {

class Glisses : public Atelier {
protected:
    Glisses() { choix.cmbVocabulaire.AddItems({u"âne", u"bal", u"cri", u"dos", u"eau"}); }

    frmExercices choix{application};
    frmAlphabet écran{choix};

    QWidget& Surface(int i) { return *Widget<QTextEdit>(écran.rtfMot(i)).viewport(); }
    QPoint Milieu(int i) { return Surface(i).mapToGlobal(Surface(i).rect().center()); }
    void Souris(int i, QEvent::Type type, QPoint global)
    {
        const auto bouton = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const auto tenus = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent événement{type,          QPointF{Surface(i).mapFromGlobal(global)}, QPointF{global}, bouton, tenus,
                              Qt::NoModifier};
        QCoreApplication::sendEvent(&Surface(i), &événement);
    }
    void Traîner(int i, QPoint jusqu)
    {
        Souris(i, QEvent::MouseButtonPress, Milieu(i));
        Souris(i, QEvent::MouseMove, (Milieu(i) + jusqu) / 2);
        Souris(i, QEvent::MouseMove, jusqu);
        Souris(i, QEvent::MouseButtonRelease, jusqu);
        Mettre();
    }
    void ParLeClavier(int i)
    {
        Widget(écran.rtfMot(i)).setFocus(Qt::TabFocusReason);
        QTest::keyClick(&Widget(écran.rtfMot(i)), Qt::Key_Space);
        Mettre();
    }
    std::vector<Texte> MotsDeLaColonne()
    {
        std::vector<Texte> mots;
        for (int i = 0; i < 5; ++i)
            mots.push_back(écran.rtfMot(i).Text());
        return mots;
    }
    void Jouer(const std::function<void()>& script)
    {
        Avec(écran, [&] {
            Devant().setGeometry(0, 0, 800, 600);
            Mettre();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            script();
        });
    }
};

} // namespace

TEST_F(Glisses, ClicsClavierEtSourisRangentPareil)
{
    Jouer([&] {
        for (const auto& [de, vers] : {std::pair{0, 4}, std::pair{4, 0}, std::pair{3, 1}, std::pair{1, 2}}) {
            auto attendus = MotsDeLaColonne();
            Déplacer(attendus, {de, vers});
            const auto défaire = [&, d = de, v = vers] {
                EXPECT_EQ(MotsDeLaColonne(), attendus) << d << " " << v;
                écran.rtfMot(v).Cliquer(0);
                écran.rtfMot(d).Cliquer(0);
            };
            QTest::mouseClick(&Surface(de), Qt::LeftButton);
            EXPECT_EQ(écran.rtfMot(de).BackColor, Bleu);
            QTest::mouseClick(&Surface(vers), Qt::LeftButton);
            défaire();
            ParLeClavier(de);
            EXPECT_EQ(écran.rtfMot(de).BackColor, Bleu);
            ParLeClavier(vers);
            défaire();
            Traîner(de, Milieu(vers));
            défaire();
        }
    });
}

TEST_F(Glisses, LâchéDansLIntervalleLeMotVaÀCôté)
{
    Jouer([&] {
        auto attendus = MotsDeLaColonne();
        Déplacer(attendus, {4, 1});
        const auto bas = Widget(écran.rtfMot(1)).mapToGlobal(QPoint{20, Widget(écran.rtfMot(1)).height() + 2});
        Traîner(4, bas);
        EXPECT_EQ(MotsDeLaColonne(), attendus);
    });
}

TEST_F(Glisses, LâchéAilleursIlRevient)
{
    Jouer([&] {
        const auto avant = MotsDeLaColonne();
        Traîner(2, Devant().mapToGlobal(QPoint{5, 5}));
        EXPECT_EQ(MotsDeLaColonne(), avant);
        EXPECT_EQ(écran.rtfMot(2).BackColor, Noir);
    });
}

TEST_F(Glisses, UnTremblementEstUnClic)
{
    Jouer([&] {
        Traîner(2, Milieu(2) + QPoint{2, 1});
        EXPECT_EQ(écran.rtfMot(2).BackColor, Bleu);
    });
}

TEST_F(Glisses, RevenuSurLuiMêmeLeMotResteOùIlÉtait)
{
    Jouer([&] {
        const auto avant = MotsDeLaColonne();
        Souris(2, QEvent::MouseButtonPress, Milieu(2));
        Souris(2, QEvent::MouseMove, Milieu(0));
        Souris(2, QEvent::MouseMove, Milieu(2));
        Souris(2, QEvent::MouseButtonRelease, Milieu(2));
        EXPECT_EQ(MotsDeLaColonne(), avant);
        EXPECT_EQ(écran.rtfMot(2).BackColor, Noir);
    });
}

TEST_F(Glisses, LImageSuitLaSourisEtSEnVa)
{
    Jouer([&] {
        const auto images = [&] {
            return Devant().findChildren<QLabel*>(QString{}, Qt::FindDirectChildrenOnly).size();
        };
        const auto avant = images();
        Souris(0, QEvent::MouseButtonPress, Milieu(0));
        EXPECT_EQ(images(), avant);
        Souris(0, QEvent::MouseMove, Milieu(3));
        EXPECT_EQ(images(), avant + 1);
        Souris(0, QEvent::MouseButtonRelease, Milieu(3));
        EXPECT_EQ(images(), avant);
    });
}

TEST_F(Glisses, FermerPendantQueLaSourisTientUnMot)
{
    Jouer([&] {
        const auto lieu = Milieu(3);
        auto& surface = Surface(0);
        Souris(0, QEvent::MouseButtonPress, Milieu(0));
        Souris(0, QEvent::MouseMove, lieu);
        écran.Décharger();
        QTest::mouseRelease(&surface, Qt::LeftButton, {}, surface.mapFromGlobal(lieu));
        EXPECT_EQ(écran.rtfMot(0).BackColor, Bleu);
    });
}

TEST_F(Glisses, CeQuiEstJugéNeBougePlus)
{
    Jouer([&] {
        écran.rtfMot(1).BackColor = Vert;
        const auto avant = MotsDeLaColonne();
        Traîner(1, Milieu(3));
        Traîner(3, Milieu(1));
        EXPECT_EQ(MotsDeLaColonne(), avant);
        EXPECT_EQ(écran.rtfMot(1).BackColor, Vert);
        EXPECT_EQ(écran.rtfMot(3).BackColor, Noir);
    });
}

} // namespace tirelune
