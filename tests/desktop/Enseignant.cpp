// The teacher's screens on real widgets.
#include "tests/desktop/Atelier.h"

#include "TableEcrans.h"
#include "authoring/frmEnseignant.h"
#include "authoring/frmRechercher.h"
#include "core/frmTirelune.h"
#include "desktop/VueTexteRiche.h"

#include <QLineEdit>
#include <QTextEdit>
#include <QToolButton>

#include <algorithm>

namespace tirelune {

namespace {

class Enseignant : public Atelier {
protected:
    Enseignant() { RemplirTable(application); }

    frmTirelune accueil{application};
    frmEnseignant éditeur{accueil};

    // What stands on the line of tools, from left to right.
    std::vector<QWidget*> Outils()
    {
        std::vector<QWidget*> outils;
        for (auto* outil : Devant().findChildren<QToolButton*>()) {
            if (outil->objectName().startsWith(QStringLiteral("btn")))
                outils.push_back(outil);
        }
        for (const Elément* élément :
             std::initializer_list<const Elément*>{&éditeur.txtPolices(0), &éditeur.flèchePolice, &éditeur.cmbFontSize})
            outils.push_back(&Widget(*élément));
        return outils;
    }
    static QRect Place(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint{}), widget.size()}; }
};

} // namespace

TEST_F(Enseignant, LesOutilsTiennentSurUneLigneÀToutesLesTailles)
{
    Avec(éditeur, [&] {
        for (const QSize taille : {QSize{800, 560}, QSize{1366, 740}, QSize{1920, 1050}}) {
            Devant().resize(taille);
            Mettre();
            const auto outils = Outils();
            ASSERT_EQ(outils.size(), 24U);
            const auto premier = Place(*outils.front());
            int droite = 0;
            for (const auto* outil : outils) {
                const auto place = Place(*outil);
                EXPECT_NEAR(place.center().y(), premier.center().y(), 1) << outil->objectName().toStdString();
                EXPECT_GE(place.left(), droite) << outil->objectName().toStdString();
                EXPECT_GE(place.width(), 20) << outil->objectName().toStdString();
                droite = place.right();
                EXPECT_LE(droite, taille.width()) << outil->objectName().toStdString();
            }
        }
    });
}

TEST_F(Enseignant, LaFenêtreDeRechercheNeCouvreJamaisCeQuElleTrouve)
{
    Texte texte;
    for (int i = 0; i < 40; ++i)
        texte += u"Chaque été, Maëlle passe ses vacances dans un vieux phare, au bord de la mer, chez son phare.\r\n";
    éditeur.rtfTexte.Text(texte);
    Avec(éditeur, [&] {
        auto& zone = Widget<QTextEdit>(éditeur.rtfTexte);
        int déplacements = 0;
        Ensuite([&] {
            auto& recherche = Devant();
            ASSERT_EQ(recherche.objectName(), QStringLiteral("frmRechercher"));
            auto* mot = recherche.findChild<QLineEdit*>(QStringLiteral("txtRechercher"));
            QTest::keyClicks(mot, QStringLiteral("phare"));
            for (int i = 0; i < 80; ++i) {
                const auto avant = recherche.frameGeometry();
                QTest::keyClick(mot, Qt::Key_Return);
                QCoreApplication::processEvents();
                ASSERT_EQ(zone.textCursor().selectedText(), QStringLiteral("phare"));
                auto début = zone.textCursor();
                début.setPosition(début.selectionStart());
                const auto cadre = zone.cursorRect(début).united(zone.cursorRect());
                const QRect lieu{zone.viewport()->mapToGlobal(cadre.topLeft()), cadre.size()};
                EXPECT_FALSE(recherche.frameGeometry().intersects(lieu)) << i;
                EXPECT_TRUE(recherche.screen()->availableGeometry().contains(recherche.frameGeometry())) << i;
                déplacements += recherche.frameGeometry() != avant ? 1 : 0;
            }
            QTest::keyClick(mot, Qt::Key_Escape);
        });
        éditeur.mnuRechercher.Cliquer();
        EXPECT_GT(déplacements, 0) << "some of what was found lay under the window";
    });
}

} // namespace tirelune
