#include "desktop/Dialogues.h"

#include "desktop/Conversions.h"
#include "tests/desktop/Atelier.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QColorDialog>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace tirelune {

namespace {

class Dialogues : public Atelier {
protected:
    QTemporaryDir dossier;

    DialogueFichier Demande() const
    {
        return {.Titre = u"Ouvrir un fichier texte",
                .Filtre = u"Textes RTF|*.rtf|Tous fichiers|*.*",
                .Dossier = DepuisQString(dossier.path())};
    }
    void PréparerDossier() const
    {
        std::filesystem::create_directory(dossier.filePath("Bilans").toStdString());
        std::ofstream{dossier.filePath("Bilans/léa.bil").toStdString()} << "\"léa\"";
        std::ofstream{dossier.filePath("conte.rtf").toStdString()} << "{\\rtf1}";
    }
    void VérifierDossier() const
    {
        EXPECT_TRUE(std::filesystem::exists(dossier.filePath("Bilans/léa.bil").toStdString()));
        EXPECT_TRUE(std::filesystem::exists(dossier.filePath("conte.rtf").toStdString()));
        EXPECT_EQ(QDir{dossier.path()}.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
    }
    // What a hand may try on each entry of the dialog's lists.
    static void Malmener(QFileDialog& dialogue)
    {
        QApplication::setActiveWindow(&dialogue);
        for (const auto mode : {QFileDialog::List, QFileDialog::Detail}) {
            dialogue.setViewMode(mode);
            auto& vue = *dialogue.findChild<QAbstractItemView*>(mode == QFileDialog::List ? "listView" : "treeView");
            ASSERT_TRUE(vue.isVisible());
            ASSERT_TRUE(QTest::qWaitFor([&] { return vue.model()->rowCount(vue.rootIndex()) == 2; }));
            for (int rang = 0; rang < 2; ++rang) {
                vue.setFocus();
                vue.setCurrentIndex(vue.model()->index(rang, 0, vue.rootIndex()));
                QTimer::singleShot(0, qApp, [] { // who is asked says yes
                    if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                        question->button(QMessageBox::Yes)->click();
                });
                QTest::keyClick(&vue, Qt::Key_Delete);
                QTest::keyClick(&vue, Qt::Key_F2);
                EXPECT_EQ(QApplication::focusWidget(), &vue) << "un nom s'écrit";
                const auto lieu = vue.visualRect(vue.currentIndex()).center();
                QTimer::singleShot(0, qApp, [] { EXPECT_EQ(QApplication::activePopupWidget(), nullptr); });
                QContextMenuEvent menu{QContextMenuEvent::Mouse, lieu, vue.viewport()->mapToGlobal(lieu)};
                QCoreApplication::sendEvent(vue.viewport(), &menu);
                EXPECT_FALSE(vue.dragEnabled());
                EXPECT_FALSE(vue.viewport()->acceptDrops());
                QCoreApplication::processEvents();
            }
        }
    }
    template <class D>
    static D& Ouvert()
    {
        return dynamic_cast<D&>(*QApplication::activeModalWidget());
    }
};

} // namespace

TEST(Filtres, SEcriventCommeLAttendLaBoîte)
{
    EXPECT_EQ(TraduireFiltre(u"Textes RTF|*.rtf|Tous fichiers|*.*"),
              (QStringList{"Textes RTF (*.rtf)", "Tous fichiers (*)"}));
    EXPECT_EQ(TraduireFiltre(u"Texte mis en forme (*.rtf)|*.rtf"), (QStringList{"Texte mis en forme (*.rtf)"}));
    EXPECT_TRUE(TraduireFiltre(u"").isEmpty());
}

TEST_F(Dialogues, LeFichierChoisiRevient)
{
    const auto fichier = dossier.filePath("conte.rtf");
    std::ofstream{fichier.toStdString()} << "{\\rtf1}";
    Ensuite([&] {
        auto& dialogue = Ouvert<QFileDialog>();
        EXPECT_EQ(dialogue.windowTitle(), "Ouvrir un fichier texte");
        EXPECT_EQ(dialogue.labelText(QFileDialog::Reject), "Annuler");
        dialogue.selectFile(fichier);
        dialogue.findChild<QPushButton*>()->setFocus();
        QMetaObject::invokeMethod(&dialogue, "accept");
    });
    EXPECT_EQ(plateforme.DemanderFichierAOuvrir(Demande()), DepuisQString(fichier));
}

TEST_F(Dialogues, AnnulerNeDonneRien)
{
    Ensuite([] { Ouvert<QFileDialog>().reject(); });
    EXPECT_EQ(plateforme.DemanderFichierAOuvrir(Demande()), std::nullopt);
    Ensuite([] { Ouvert<QColorDialog>().reject(); });
    EXPECT_EQ(plateforme.DemanderCouleur(Rouge), std::nullopt);
    Ensuite([] { Ouvert<QFontDialog>().reject(); });
    EXPECT_FALSE(plateforme.DemanderPolice({}).has_value());
}

TEST_F(Dialogues, UnNomSansExtensionReçoitLaSienne)
{
    auto demande = Demande();
    demande.NomFichier = u"conte";
    demande.Extension = u"rtf";
    Ensuite([] { QMetaObject::invokeMethod(&Ouvert<QFileDialog>(), "accept"); });
    EXPECT_EQ(plateforme.DemanderFichierAEnregistrer(demande), DepuisQString(dossier.filePath("conte.rtf")));
}

TEST_F(Dialogues, UnNomQuiNEstQuUneExtensionNEstPasProposé)
{
    auto demande = Demande();
    demande.NomFichier = u".rtf";
    demande.Extension = u"rtf";
    Ensuite([] { QMetaObject::invokeMethod(&Ouvert<QFileDialog>(), "accept"); });
    EXPECT_EQ(plateforme.DemanderFichierAEnregistrer(demande), DepuisQString(dossier.filePath("document.rtf")));
}

TEST_F(Dialogues, LaCouleurDeDépartRevient)
{
    Ensuite([] { QMetaObject::invokeMethod(&Ouvert<QColorDialog>(), "accept"); });
    EXPECT_EQ(plateforme.DemanderCouleur(Olive), Olive);
}

TEST_F(Dialogues, UnePoliceAcceptéeTelleQuelleNeChangeRien)
{
    for (const ChoixPolice& départ :
         {ChoixPolice{.Nom = u"Comic Sans MS", .Taille = 14, .Gras = true}, ChoixPolice{.Nom = u"", .Taille = 0},
          ChoixPolice{.Nom = u"DejaVu Sans", .Taille = 12.5, .Italique = true}}) {
        Ensuite([] { QMetaObject::invokeMethod(&Ouvert<QFontDialog>(), "accept"); });
        const auto choix = plateforme.DemanderPolice(départ);
        ASSERT_TRUE(choix.has_value());
        EXPECT_EQ(choix->Nom, u"");
        EXPECT_EQ(choix->Taille, 0);
        EXPECT_EQ(choix->Gras, std::nullopt);
        EXPECT_EQ(choix->Italique, std::nullopt);
    }
}

TEST_F(Dialogues, DUnePoliceSeulCeQuiEstChangéRevient)
{
    Ensuite([] {
        auto& dialogue = Ouvert<QFontDialog>();
        auto police = dialogue.currentFont();
        police.setPointSize(20);
        dialogue.setCurrentFont(police);
        QMetaObject::invokeMethod(&dialogue, "accept");
    });
    const auto choix = plateforme.DemanderPolice({.Nom = u"Comic Sans MS", .Taille = 14, .Gras = true});
    ASSERT_TRUE(choix.has_value());
    EXPECT_EQ(choix->Taille, 20);
    EXPECT_EQ(choix->Nom, u"");
    EXPECT_EQ(choix->Gras, std::nullopt);
    EXPECT_EQ(choix->Italique, std::nullopt);
}

// Whatever the plain style of a font is called, the dialog starts on it.
TEST_F(Dialogues, AucunePoliceNePenche)
{
    for (const auto& famille : QFontDatabase::families()) {
        Ensuite([&] {
            auto& dialogue = Ouvert<QFontDialog>();
            const auto styles = QFontDatabase::styles(famille);
            const bool droite = std::any_of(styles.begin(), styles.end(), [&](const auto& un) {
                return !QFontDatabase::font(famille, un, 12).italic();
            });
            EXPECT_EQ(dialogue.currentFont().italic(), !droite) << famille.toStdString();
            dialogue.reject();
        });
        EXPECT_FALSE(plateforme.DemanderPolice({.Nom = DepuisQString(famille), .Taille = 12}).has_value());
    }
}

TEST_F(Dialogues, LaPoliceNOffreNiBarréNiSouligné)
{
    Ensuite([] {
        auto& dialogue = Ouvert<QFontDialog>();
        const auto effets = dialogue.findChildren<QCheckBox*>();
        EXPECT_FALSE(effets.empty());
        for (const auto* effet : effets)
            EXPECT_FALSE(effet->isVisible()) << effet->text().toStdString();
        dialogue.reject();
    });
    EXPECT_FALSE(plateforme.DemanderPolice({.Nom = u"DejaVu Sans", .Taille = 12}).has_value());
}

// ---- Files stay as they are ----------------------------------------------------------------------------------------

TEST_F(Dialogues, QuiOuvreNEffaceNiNeRenommeNiNeCrée)
{
    PréparerDossier();
    Ensuite([&] {
        auto& dialogue = Ouvert<QFileDialog>();
        Malmener(dialogue);
        EXPECT_FALSE(dialogue.findChild<QWidget*>("newFolderButton")->isVisible());
        dialogue.reject();
    });
    EXPECT_EQ(plateforme.DemanderFichierAOuvrir(Demande()), std::nullopt);
    VérifierDossier();
}

TEST_F(Dialogues, QuiEnregistreNonPlusMaisCréeUnDossier)
{
    PréparerDossier();
    Ensuite([&] {
        auto& dialogue = Ouvert<QFileDialog>();
        Malmener(dialogue);
        VérifierDossier();
        auto* nouveau = dialogue.findChild<QToolButton*>("newFolderButton");
        EXPECT_TRUE(nouveau->isVisible());
        nouveau->click();
        auto* éditeur = QApplication::focusWidget();
        QTest::keyClicks(éditeur, "contes");
        QTest::keyClick(éditeur, Qt::Key_Return);
        dialogue.reject();
    });
    EXPECT_EQ(plateforme.DemanderFichierAEnregistrer(Demande()), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_directory(dossier.filePath("contes").toStdString()));
}

TEST_F(Dialogues, LePressePapiersFaitLAllerRetour)
{
    plateforme.EcrirePressePapiers(u"l'été");
    EXPECT_EQ(plateforme.LirePressePapiers(), u"l'été");
}

// Offscreen there is no window manager: a title takes no room.
TEST_F(Dialogues, UneBoîteMontreToutSonMessageEtTientÀLÉcran)
{
    for (const VueTexte message :
         {VueTexte{u"Non."}, VueTexte{u"Destruction irréversible. Souhaitez-vous continuer ?"},
          VueTexte{u"Attention : cette fonction permet d'ajouter ou de supprimer des espaces et des signes de "
                   u"ponctuation au texte saisi (correction à l'enregistrement).\n\nSouhaitez-vous la supprimer ?"}}) {
        BoîteMessage boîte{{.Message = Texte{message}, .Titre = u"Avertissement", .Choix = Boutons::OuiNon}, nullptr};
        boîte.show();
        const auto* texte = boîte.findChild<QLabel*>("qt_msgbox_label");
        ASSERT_NE(texte, nullptr);
        const auto voulue = texte->fontMetrics().boundingRect(
            QRect{0, 0, texte->width(), 1000}, Qt::TextExpandTabs | (texte->wordWrap() ? Qt::TextWordWrap : 0),
            texte->text());
        EXPECT_LE(voulue.width(), texte->width()) << texte->text().toStdString();
        EXPECT_LE(voulue.height(), texte->height()) << texte->text().toStdString();
        EXPECT_TRUE(boîte.rect().contains(texte->geometry())) << texte->text().toStdString();
        EXPECT_LE(boîte.width(), 800);
        EXPECT_GE(boîte.iconPixmap().width(), 2 * boîte.font().pixelSize()) << "the picture grows with the letters";
    }
}

TEST_F(Dialogues, LesDialoguesTiennentSurUnPetitÉcran)
{
    const auto tient = [](QDialog& dialogue, const char* quoi) {
        dialogue.show();
        EXPECT_LE(dialogue.width(), 800) << quoi;
        EXPECT_LE(dialogue.height(), 570) << quoi;
        EXPECT_GE(dialogue.width(), dialogue.minimumSizeHint().width()) << quoi;
        EXPECT_GE(dialogue.height(), dialogue.minimumSizeHint().height()) << quoi;
    };
    tient(*CréerDialogueCouleur(Noir, nullptr), "colours");
    tient(*CréerDialoguePolice({}, nullptr), "letters");
}

} // namespace tirelune
