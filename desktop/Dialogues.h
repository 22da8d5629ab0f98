// Message boxes and the standard dialogs, in French.
#pragma once
#include "core/Plateforme.h"

#include <QMessageBox>

#include <memory>

class QColorDialog;
class QFileDialog;
class QFontDialog;

namespace tirelune {

// The letters of a dialog over that window, as large as the window's own.
QFont PoliceDeDialogue(const QWidget* parent, double points = 0);

class BoîteMessage final : public QMessageBox {
public:
    BoîteMessage(const Boîte& boîte, QWidget* parent);

    // Closed without a button: what refuses.
    [[nodiscard]] Réponse Donnée() const;

private:
    Boutons choix_;
};

// The toolkit's own texts; loaded when the first of them may show.
void ChargerTraductions();

std::unique_ptr<QFileDialog> CréerDialogueFichier(const DialogueFichier& demande, bool enregistrer, QWidget* parent);
std::optional<Texte> FichierChoisi(const QFileDialog& dialogue);
// "Textes|*.rtf|Tous|*.*" as the toolkit writes it.
QStringList TraduireFiltre(const Texte& filtre);

std::unique_ptr<QColorDialog> CréerDialogueCouleur(Couleur départ, QWidget* parent);
std::optional<Couleur> CouleurChoisie(const QColorDialog& dialogue);

std::unique_ptr<QFontDialog> CréerDialoguePolice(const ChoixPolice& départ, QWidget* parent);
// What the user has changed; the rest says "leave it".
std::optional<ChoixPolice> PoliceChoisie(const QFontDialog& dialogue);

} // namespace tirelune
