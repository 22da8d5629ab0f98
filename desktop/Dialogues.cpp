#include "desktop/Dialogues.h"

#include "desktop/Apparence.h"
#include "desktop/Composants.h"
#include "desktop/Conversions.h"
#include "desktop/Fenetre.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTranslator>

#include <algorithm>

namespace tirelune {

namespace {

double EchelleDe(const QWidget* parent)
{
    const auto* fenêtre = dynamic_cast<const Fenêtre*>(parent);
    return fenêtre != nullptr ? fenêtre->Echelle() : 1;
}

// As large as that many letters, where the display has room for them.
void Dimensionner(QDialog& dialogue, QSize lettres)
{
    const auto voulue = (lettres * dialogue.font().pixelSize()).expandedTo(dialogue.sizeHint());
    dialogue.resize(voulue.boundedTo(dialogue.screen()->availableSize() * 9 / 10));
}

// A mark that French sets off with a blank stays on the line of the word before it.
QString SansCoupureFautive(QString texte)
{
    for (qsizetype i = 1; i < texte.size(); ++i) {
        if (texte[i - 1] == u' ' && QStringLiteral("!?:;»").contains(texte[i]))
            texte[i - 1] = QChar::Nbsp;
    }
    return texte;
}

} // namespace

QFont PoliceDeDialogue(const QWidget* parent, double points)
{
    return PolicePour({}, points, false, EchelleDe(parent));
}

// ---- Message boxes ---------------------------------------------------------------------------------------------

BoîteMessage::BoîteMessage(const Boîte& boîte, QWidget* parent) : QMessageBox(parent), choix_(boîte.Choix)
{
    static constexpr double Points = 13;
    setFont(PoliceDeDialogue(parent, Points));
    setTextFormat(Qt::PlainText);
    setWindowTitle(EnQString(boîte.Titre));
    setText(SansCoupureFautive(EnQString(boîte.Message).remove(u'\r')));
    setInformativeText(EnQString(boîte.Objet));
    setIcon(boîte.Symbole == Icône::Critique   ? QMessageBox::Critical
            : boîte.Symbole == Icône::Question ? QMessageBox::Question
                                               : QMessageBox::Information);
    static constexpr int MoindreLargeur = 18; // letters: a short message is no narrower than its title
    static constexpr int LargeurUsuelle = 34; // a long one is broken into lines
    static constexpr int ColonneDuTexte = 2;
    const int lettre = font().pixelSize();
    const auto texte = TailleTexte(font(), text(), Qt::TextWordWrap, LargeurUsuelle * lettre);
    if (auto* grille = dynamic_cast<QGridLayout*>(layout()))
        grille->setColumnMinimumWidth(ColonneDuTexte, std::max(texte.width() + lettre / 2, MoindreLargeur * lettre));
    const auto ajouter = [this](const QString& légende, ButtonRole rôle) {
        auto* bouton = new Bouton{this};
        bouton->setText(légende);
        bouton->setFont(font());
        bouton->setObjectName(légende);
        addButton(bouton, rôle);
        return bouton;
    };
    if (boîte.Choix == Boutons::OuiNon) {
        // Where closing would lose something, the toolkit must find no button that closing stands for.
        const bool sansRefus = boîte.Danger == Perte::ParNon;
        auto* oui = ajouter(QStringLiteral("&Oui"), AcceptRole);
        auto* non = ajouter(QStringLiteral("&Non"), sansRefus ? DestructiveRole : RejectRole);
        setDefaultButton(boîte.Danger == Perte::ParOui ? non : oui);
        if (!sansRefus)
            setEscapeButton(non);
        return;
    }
    auto* ok = ajouter(QStringLiteral("OK"), AcceptRole);
    setDefaultButton(ok);
    if (boîte.Choix == Boutons::OkAnnuler)
        setEscapeButton(ajouter(QStringLiteral("Annuler"), RejectRole));
    else
        setEscapeButton(ok);
}

Réponse BoîteMessage::Donnée() const
{
    const auto* cliqué = clickedButton();
    const bool acceptée = cliqué != nullptr && buttonRole(const_cast<QAbstractButton*>(cliqué)) == AcceptRole;
    switch (choix_) {
    case Boutons::OuiNon:
        return acceptée ? Réponse::Oui : Réponse::Non;
    case Boutons::OkAnnuler:
        return acceptée ? Réponse::Ok : Réponse::Annuler;
    case Boutons::Ok:
        break;
    }
    return Réponse::Ok;
}

// ---- Standard dialogs ------------------------------------------------------------------------------------------

void ChargerTraductions()
{
    static bool chargées = false;
    if (chargées)
        return;
    chargées = true;
    auto* traducteur = new QTranslator{qApp};
    const auto àCôté = QApplication::applicationDirPath();
    if (traducteur->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
        traducteur->load(QStringLiteral("qtbase_fr"), àCôté))
        QApplication::installTranslator(traducteur);
}

namespace {

// The toolkit asks its own picture of the folder, which may not be read yet, whether a name typed is a folder, and then
// empties the name: a file that is really there is taken at once.
// Nothing is deleted, renamed or moved here: who opens only chooses, who saves may make a folder as well.
class DialogueFichiers final : public QFileDialog {
public:
    DialogueFichiers(bool enregistrer, QWidget* parent) : QFileDialog(parent)
    {
        setOption(QFileDialog::DontUseNativeDialog);
        setOption(QFileDialog::ReadOnly, !enregistrer);
        setAcceptMode(enregistrer ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        setFileMode(enregistrer ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
        if (auto* nouveau = findChild<QWidget*>(QStringLiteral("newFolderButton")); nouveau != nullptr && !enregistrer)
            nouveau->hide();
        for (auto* vue : findChildren<QAbstractItemView*>()) {
            vue->setContextMenuPolicy(Qt::NoContextMenu);
            vue->setDragDropMode(QAbstractItemView::NoDragDrop);
            vue->setEditTriggers(QAbstractItemView::NoEditTriggers); // a new folder is named all the same
            vue->installEventFilter(this);
        }
        for (auto* raccourci : findChildren<QShortcut*>()) // "Delete" is one, too
            raccourci->setEnabled(false);
    }

    QString choisi; // the file that was really there

    bool eventFilter(QObject* visé, QEvent* événement) override
    {
        const bool touche = événement->type() == QEvent::KeyPress || événement->type() == QEvent::ShortcutOverride;
        if (touche && static_cast<QKeyEvent*>(événement)->matches(QKeySequence::Delete))
            return true;
        return QFileDialog::eventFilter(visé, événement);
    }

    void accept() override
    {
        const auto* nom = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (const bool ouvrir = acceptMode() == QFileDialog::AcceptOpen; ouvrir && nom != nullptr) {
            const auto fichier = directory().absoluteFilePath(nom->text());
            if (QFileInfo{fichier}.isFile()) {
                choisi = fichier;
                done(QDialog::Accepted);
                return;
            }
        }
        QFileDialog::accept();
    }
};

} // namespace

namespace {

// A name that is all extension would make a file that nobody sees again.
QString NomVisible(const QString& nom)
{
    const QFileInfo fichier{nom};
    return fichier.completeBaseName().isEmpty() ? QStringLiteral("document") + fichier.fileName() : nom;
}

} // namespace

QStringList TraduireFiltre(const Texte& filtre)
{
    QStringList filtres;
    const auto morceaux = EnQString(filtre).split(u'|', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i + 1 < morceaux.size(); i += 2) {
        const auto motif = morceaux[i + 1] == QStringLiteral("*.*") ? QStringLiteral("*") : morceaux[i + 1];
        const auto fin = QStringLiteral("(%1)").arg(motif);
        filtres.push_back(morceaux[i].endsWith(fin) ? morceaux[i] : morceaux[i] + u' ' + fin);
    }
    return filtres;
}

std::unique_ptr<QFileDialog> CréerDialogueFichier(const DialogueFichier& demande, bool enregistrer, QWidget* parent)
{
    auto dialogue = std::make_unique<DialogueFichiers>(enregistrer, parent);
    dialogue->setFont(PoliceDeDialogue(parent));
    dialogue->setLocale(QLocale{QLocale::French});
    dialogue->setViewMode(QFileDialog::List); // names are all that a pupil looks for
    dialogue->setNameFilters(TraduireFiltre(demande.Filtre));
    dialogue->setDirectory(EnQString(demande.Dossier));
    dialogue->setDefaultSuffix(EnQString(demande.Extension));
    if (!demande.NomFichier.empty() && !Contient(demande.NomFichier, u'*'))
        dialogue->selectFile(NomVisible(EnQString(demande.NomFichier)));
    dialogue->setLabelText(QFileDialog::Accept,
                           enregistrer ? QStringLiteral("&Enregistrer") : QStringLiteral("&Ouvrir"));
    dialogue->setLabelText(QFileDialog::Reject, QStringLiteral("Annuler"));
    dialogue->setLabelText(QFileDialog::LookIn, QStringLiteral("Dossier :"));
    dialogue->setLabelText(QFileDialog::FileName, QStringLiteral("&Nom du fichier :"));
    dialogue->setLabelText(QFileDialog::FileType, QStringLiteral("Type de fichier :"));
    dialogue->setWindowTitle(!demande.Titre.empty() ? EnQString(demande.Titre)
                             : enregistrer          ? QStringLiteral("Enregistrer sous")
                                                    : QStringLiteral("Ouvrir"));
    // Suggestions that pop up while a whole path is typed swallow the Enter key, and the name with it.
    if (auto* nom = dialogue->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")))
        nom->setCompleter(nullptr);
    if (parent != nullptr)
        dialogue->resize(parent->size() * 8 / 10);
    if (auto* partage = dialogue->findChild<QSplitter*>()) // places at the left, files at the right
        partage->setSizes({dialogue->width() / 5, dialogue->width() * 4 / 5});
    return dialogue;
}

std::optional<Texte> FichierChoisi(const QFileDialog& dialogue)
{
    if (dialogue.result() != QDialog::Accepted)
        return std::nullopt;
    const auto* nôtre = dynamic_cast<const DialogueFichiers*>(&dialogue);
    if (nôtre != nullptr && !nôtre->choisi.isEmpty())
        return DepuisQString(nôtre->choisi);
    if (dialogue.selectedFiles().isEmpty())
        return std::nullopt;
    return DepuisQString(dialogue.selectedFiles().front());
}

std::unique_ptr<QColorDialog> CréerDialogueCouleur(Couleur départ, QWidget* parent)
{
    auto dialogue = std::make_unique<QColorDialog>(EnQColor(départ, Qt::black), parent);
    dialogue->setOption(QColorDialog::DontUseNativeDialog);
    dialogue->setFont(PoliceDeDialogue(parent));
    dialogue->setWindowTitle(QStringLiteral("Couleurs"));
    return dialogue;
}

std::optional<Couleur> CouleurChoisie(const QColorDialog& dialogue)
{
    if (dialogue.result() != QDialog::Accepted)
        return std::nullopt;
    return DepuisQColor(dialogue.selectedColor());
}

namespace {

class DialoguePolices final : public QFontDialog {
public:
    DialoguePolices(const QFont& police, QWidget* parent) : QFontDialog(police, parent)
    {
        setFont(PoliceDeDialogue(parent)); // what follows is measured in its letters
        setOption(QFontDialog::DontUseNativeDialog);
        // Strike-through is the mark of words, and underlining has its own button.
        for (auto* effet : findChildren<QCheckBox*>())
            effet->parentWidget()->hide();
        static constexpr int LignesExemple = 5; // the sample's row was as high as what has gone
        for (auto* cadre : findChildren<QGroupBox*>())
            cadre->setMinimumHeight(LignesExemple * fontMetrics().height());
        départ_ = currentFont();
    }

    // What differs from what the dialog opened on; the rest is left as it is.
    [[nodiscard]] ChoixPolice Changements() const
    {
        const auto police = selectedFont();
        ChoixPolice choix;
        if (police.family() != départ_.family())
            choix.Nom = DepuisQString(police.family());
        if (police.pointSizeF() != départ_.pointSizeF())
            choix.Taille = police.pointSizeF();
        if (police.bold() != départ_.bold())
            choix.Gras = police.bold();
        if (police.italic() != départ_.italic())
            choix.Italique = police.italic();
        return choix;
    }

private:
    QFont départ_; // as the dialog shows it
};

// The style that does for a font, as the dialog lists it: the plain one may be "Regular" or "Book".
QString StyleListé(const QFont& police)
{
    const QFontInfo trouvée{police};
    const auto styles = QFontDatabase::styles(trouvée.family());
    if (styles.contains(trouvée.styleName()))
        return trouvée.styleName();
    const auto style = std::find_if(styles.begin(), styles.end(), [&](const QString& un) {
        const auto telle = QFontDatabase::font(trouvée.family(), un, 12);
        return telle.bold() == police.bold() && telle.italic() == police.italic();
    });
    return style == styles.end() ? QString{} : *style;
}

} // namespace

std::unique_ptr<QFontDialog> CréerDialoguePolice(const ChoixPolice& départ, QWidget* parent)
{
    // The dialog lists what the machine has: it starts on the stand-in of a font that is missing.
    auto police = PolicePour(départ.Nom, 0, départ.Gras.value_or(false), 1);
    police.setItalic(départ.Italique.value_or(false));
    police.setStyleName(StyleListé(police));
    police.setFamily(QFontInfo{police}.family());
    police.setPointSizeF(départ.Taille > 0 ? départ.Taille : 12);
    auto dialogue = std::make_unique<DialoguePolices>(police, parent);
    dialogue->setWindowTitle(QStringLiteral("Caractères"));
    Dimensionner(*dialogue, {36, 28});
    return dialogue;
}

std::optional<ChoixPolice> PoliceChoisie(const QFontDialog& dialogue)
{
    if (dialogue.result() != QDialog::Accepted)
        return std::nullopt;
    return dynamic_cast<const DialoguePolices&>(dialogue).Changements();
}

} // namespace tirelune
