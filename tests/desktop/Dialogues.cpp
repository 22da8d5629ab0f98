#include "desktop/Dialogues.h"

#include "desktop/Conversions.h"
#include "tests/desktop/Atelier.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QPushButton>
#include <QTemporaryDir>

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

TEST_F(Dialogues, LaCouleurDeDépartRevient)
{
    Ensuite([] { QMetaObject::invokeMethod(&Ouvert<QColorDialog>(), "accept"); });
    EXPECT_EQ(plateforme.DemanderCouleur(Olive), Olive);
}

TEST_F(Dialogues, UnePoliceGardeLeNomQuElleAvait)
{
    Ensuite([] { QMetaObject::invokeMethod(&Ouvert<QFontDialog>(), "accept"); });
    const auto choix = plateforme.DemanderPolice({.Nom = u"Comic Sans MS", .Taille = 14, .Gras = true});
    ASSERT_TRUE(choix.has_value());
    EXPECT_EQ(choix->Nom, u"Comic Sans MS");
    EXPECT_EQ(choix->Gras, true);
    EXPECT_EQ(choix->Taille, 14);
}

TEST_F(Dialogues, LePressePapiersFaitLAllerRetour)
{
    plateforme.EcrirePressePapiers(u"l'été");
    EXPECT_EQ(plateforme.LirePressePapiers(), u"l'été");
}

} // namespace tirelune
