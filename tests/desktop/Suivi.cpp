// Signing in and the list of pupils, by keyboard and mouse.
#include "desktop/Composants.h"
#include "followup/frmExercices.h"
#include "followup/frmGestionEleves.h"
#include "tests/desktop/Atelier.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>

namespace tirelune {

namespace {

class Suivi : public Atelier {
protected:
    Suivi()
    {
        application.état.CheminAppli = DepuisQString(dossier.path());
        application.état.CheminBilans = application.état.CheminAppli;
    }
    [[nodiscard]] Chemin Fichier(const std::string& nom) const { return EnChemin(DepuisQString(dossier.path())) / nom; }
    void Elève(const std::string& nom, std::string_view octets = {}) const
    {
        ASSERT_FALSE(RéécrireFichier(Fichier(nom), octets));
        const auto vieux = std::filesystem::last_write_time(Fichier(nom)) - std::chrono::hours{1};
        std::filesystem::last_write_time(Fichier(nom), vieux);
    }
    // The keys go where the keyboard is.
    static void Taper(const QString& texte)
    {
        for (const QChar c : texte) { // letters that no key of the toolkit's tests stands for
            for (const auto genre : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent touche{genre, Qt::Key_unknown, Qt::NoModifier, c};
                QCoreApplication::sendEvent(QApplication::focusWidget(), &touche);
            }
        }
    }
    static void Touche(Qt::Key touche) { QTest::keyClick(QApplication::focusWidget(), touche); }

    const QTemporaryDir dossier;
};

} // namespace

TEST_F(Suivi, LesExercicesSeLisentAvecLeurNote)
{
    static constexpr int PlusPetitesLettres = 14; // pixels
    Elève("Léa.bil");
    frmExercices choix{application};
    Avec(choix, [&] {
        const auto agrandir = [&](QSize taille) {
            Devant().setGeometry({QPoint{0, 0}, taille});
            Mettre();
            QCoreApplication::sendPostedEvents();
        };
        choix.frameElève.Visible = false;
        for (auto& exercice : choix.lblExo)
            exercice.Plaque = u"10";
        agrandir({800, 580});
        for (int i = 0; i < NombreExercices; ++i) {
            auto& étiquette = Widget<Etiquette>(choix.lblExo(i));
            EXPECT_TRUE(étiquette.MontreTout()) << i;
            EXPECT_GE(étiquette.PoliceMontrée().pixelSize(), PlusPetitesLettres) << i;
        }
        const int petites = Widget(choix.lblExo(0)).font().pixelSize();
        agrandir({1920, 1080});
        Mettre();
        EXPECT_GE(Widget(choix.lblExo(0)).font().pixelSize(), petites * 19 / 10) << "there is room";
    });
}

TEST_F(Suivi, EntréeSurLaListeFerméeConfirmeLeNom)
{
    Elève("Léa.bil");
    Elève("Tom.bil");
    frmExercices choix{application};
    Avec(choix, [&] {
        auto& liste = Widget<QComboBox>(choix.cmbNoms);
        liste.setFocus();
        Touche(Qt::Key_Down);
        EXPECT_TRUE(choix.frameElève.Visible);
        Touche(Qt::Key_Return);
        EXPECT_EQ(application.état.NomElève, u"Tom");
        EXPECT_FALSE(choix.frameElève.Visible);
    });
}

TEST_F(Suivi, EntréeDansLaListeOuverteChoisitSansConfirmer)
{
    Elève("Léa.bil");
    Elève("Tom.bil");
    frmExercices choix{application};
    Avec(choix, [&] {
        auto& liste = Widget<QComboBox>(choix.cmbNoms);
        liste.setFocus();
        liste.showPopup();
        QTest::keyClick(liste.view(), Qt::Key_Down);
        QTest::keyClick(liste.view(), Qt::Key_Return);
        EXPECT_FALSE(liste.view()->isVisible());
        EXPECT_EQ(choix.cmbNoms.Text, u"Tom");
        EXPECT_TRUE(choix.frameElève.Visible);
        Touche(Qt::Key_Return);
        EXPECT_EQ(application.état.NomElève, u"Tom");
    });
}

TEST_F(Suivi, LesNomsSeTapentLUnAprèsLAutre)
{
    frmGestionEleves écran{application};
    Avec(écran, [&] {
        Cliquer(écran.cmdAjouter);
        Mettre();
        for (const auto* nom : {"Paul D.", "Łukasz", "Ștefan"}) {
            Taper(QString::fromUtf8(nom));
            Touche(Qt::Key_Return);
            Mettre();
            EXPECT_EQ(QApplication::focusWidget(), &Widget(écran.txtNom));
            EXPECT_EQ(Widget<QLineEdit>(écran.txtNom).selectedText(), QString::fromUtf8(nom));
            EXPECT_TRUE(std::filesystem::exists(Fichier(std::string{nom} + ".bil"))) << nom;
        }
        EXPECT_EQ(écran.cmbNoms.Eléments(), (std::vector<Texte>{u"Łukasz", u"Paul D.", u"Ștefan"}));
    });
}

TEST_F(Suivi, AprèsAnnulerLesFlèchesChoisissentUnNom)
{
    Elève("Léa.bil");
    Elève("Tom.bil");
    frmGestionEleves écran{application};
    Avec(écran, [&] {
        Cliquer(écran.cmdAjouter);
        Mettre();
        Cliquer(écran.cmdAnnuler);
        Mettre();
        EXPECT_EQ(QApplication::focusWidget(), &Widget(écran.cmbNoms));
        Touche(Qt::Key_Down);
        EXPECT_EQ(écran.cmbNoms.Text, u"Tom");
    });
}

TEST_F(Suivi, AprèsUneConfirmationFausseLeClavierRevientALaListe)
{
    Elève("Léa.bil");
    frmGestionEleves écran{application};
    Avec(écran, [&] {
        Cliquer(écran.cmdSupprimer);
        Mettre();
        Taper("123456");
        Mettre();
        EXPECT_EQ(QApplication::focusWidget(), &Widget(écran.txtVérif));
        Taper("123457");
        Mettre();
        EXPECT_EQ(QApplication::focusWidget(), &Widget(écran.cmbNoms));
    });
}

// 960 x 540 is a display of 1920 x 1080 at twice the size.
TEST_F(Suivi, RienNeSeCouvreDansLaGestionDesElèves)
{
    Elève("Léa.bil");
    frmGestionEleves élèves{application};
    Avec(élèves, [&] {
        élèves.cmdCheminRéseau.Visible = false;
        élèves.drvLecteurs.Visible = élèves.dirLecteurs.Visible = élèves.cmdValiderCheminRéseau.Visible = true;
        for (const QSize taille : {QSize{800, 580}, QSize{960, 530}, QSize{1366, 748}, QSize{1920, 1060}}) {
            Devant().setGeometry({QPoint{0, 0}, taille});
            Mettre();
            QCoreApplication::sendPostedEvents();
            const auto& liste = Widget(élèves.dirLecteurs);
            EXPECT_LT(liste.geometry().bottom(), Widget(élèves.cmdValiderCheminRéseau).y()) << taille.width();
            EXPECT_GT(liste.y(), Widget(élèves.drvLecteurs).geometry().bottom()) << taille.width();
        }
    });
}

TEST_F(Suivi, LeDossierSurlignéEstCeluiQueLOnValide)
{
    std::filesystem::create_directories(Fichier("a") / "dedans");
    std::filesystem::create_directories(Fichier("b"));
    frmGestionEleves écran{application};
    Avec(écran, [&] {
        Cliquer(écran.cmdCheminRéseau);
        Mettre();
        auto& liste = Widget<QListWidget>(écran.dirLecteurs);
        ASSERT_EQ(liste.count(), 3);
        EXPECT_EQ(liste.currentRow(), 0);
        DoubleCliquer(*liste.viewport(), liste.visualItemRect(liste.item(1)).center()); // goes into it
        Mettre();
        EXPECT_EQ(écran.dirLecteurs.Path(), DepuisChemin(Fichier("a")));
        EXPECT_EQ(liste.currentRow(), 0);
        liste.setFocus();
        Touche(Qt::Key_Down);
        Mettre();
        EXPECT_EQ(liste.currentRow(), 1);
        Cliquer(écran.cmdValiderCheminRéseau);
        EXPECT_EQ(application.état.CheminRéseau, DepuisChemin(Fichier("a") / "dedans"));
    });
}

} // namespace tirelune
