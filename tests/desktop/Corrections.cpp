// The drills of association: the list under the slots, and the correction, which takes a second for each row.
#include "tests/desktop/Clics.h"

#include "exercises/vocabulary/frmSynonymes.h"
#include "exercises/vocabulary/frmThèmes2.h"

#include <QComboBox>

namespace tirelune {

using namespace std::chrono_literals;

namespace {

class Corrections : public Ecrans {
protected:
    // All rows are filled, the first with a word that isn't its own; the script runs during the correction.
    void Corriger(const std::function<void(frmSynonymes&)>& pendant)
    {
        choix.lblIndex.Caption = u"6";
        frmSynonymes écran{choix};
        Avec(écran, [&] {
            for (int i = RangéesDuJeu - 1; i >= 0; --i) {
                écran.lblMot(i).Cliquer();
                écran.cmbSynonymes.Choisir(0);
            }
            QTimer::singleShot(300ms, qApp, [&] { pendant(écran); });
            Cliquer(écran.cmdQuitter);
        });
    }
};

} // namespace

TEST_F(Corrections, SeFermentANImporteQuelMoment)
{
    const auto avant = choix.fgRésultats.TextMatrix(1, 8);
    Corriger([this](frmSynonymes& écran) {
        EXPECT_FALSE(écran.cmdQuitter.Enabled);
        EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
        Devant().close();
        EXPECT_FALSE(écran.EstChargé());
    });
    EXPECT_EQ(choix.fgRésultats.TextMatrix(1, 8), avant);
}

TEST_F(Corrections, LaissentTomberLesClicsEtLesTouches)
{
    Corriger([this](frmSynonymes& écran) {
        const auto mot = écran.lblMot(5).Caption();
        Cliquer(écran.lblMot(5));
        QTest::keyClick(&Widget(écran.lblMot(5)), Qt::Key_Space);
        QTest::mouseClick(&Widget(écran.txtSynonymes(4)), Qt::LeftButton);
        QTest::keyClick(&Widget(écran.cmbSynonymes), Qt::Key_Down);
        EXPECT_EQ(écran.lblMot(5).Caption, mot);
        EXPECT_EQ(écran.lblMot(5).BackColor, Blanc);
        EXPECT_EQ(écran.cmbSynonymes.ListCount(), 0);
        QTimer::singleShot(900ms, qApp, [this, &écran, mot] { // and they don't come later either
            EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
            EXPECT_EQ(écran.lblMot(5).Caption, mot);
            Devant().close();
        });
    });
}

TEST_F(Corrections, LaListeSOuvreSurLesCases)
{
    for (const QSize taille : {QSize{800, 600}, QSize{1366, 768}}) {
        frmSynonymes synonymes{choix};
        Avec(synonymes, [&] {
            Devant().setGeometry({QPoint{0, 0}, taille});
            Mettre();
            QCoreApplication::sendPostedEvents();
            EXPECT_LE(Place(Widget(synonymes.cmbSynonymes)).right(), Place(Widget(synonymes.txtSynonymes(0))).left());
        });
        frmThèmes2 thèmes{choix};
        Avec(thèmes, [&] {
            Devant().setGeometry({QPoint{0, 0}, taille});
            Mettre();
            QCoreApplication::sendPostedEvents();
            EXPECT_GT(Place(Widget(thèmes.cmbThèmes)).left(), Place(Widget(thèmes.txtMots(0))).center().x());
        });
    }
}

} // namespace tirelune
