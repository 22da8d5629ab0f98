// Hangman: at most five words of the vocabulary, letter by letter. Ten wrong letters lose a word.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "exercises/spelling/Visages.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmPendu final : public Ecran {
public:
    explicit frmPendu(frmExercices& choix);

    Label Label1{
        *this,
        "Label1",
        {.Caption = u"Choisis un caractère en cliquant sur la lettre ou en utilisant le clavier.", .FontSize = 14}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Tableau<Line> Ligne{*this, "Ligne", 10, {.Visible = false}};
    Image imgVisage{*this, "imgVisage", {.Libellé = u"Visage du pendu"}};
    Tableau<Image> imgRéf{*this, "imgRéf", NombreVisages, {.Visible = false}};
    Label lblMot{*this, "lblMot", {.FontSize = 28, .Gras = true, .Police = u"Comic Sans MS", .Centré = true}};
    Label lblMotMaj{*this, "lblMotMaj", {.FontSize = 28, .Gras = true, .Police = u"Comic Sans MS", .Centré = true}};
    Tableau<Label> lblLettre{
        *this, "lblLettre", 26, {.FontSize = 22, .Gras = true, .Police = u"Comic Sans MS", .Centré = true}};
    Button cmdSuivant{*this,
                      "cmdSuivant",
                      {.Caption = u"&Suivant",
                       .Visible = false,
                       .ToolTipText = u" Clique sur ce bouton si la phrase te semble correcte. "}};
    ComboBox cmbMots{*this, "cmbMots", {.Visible = false}}; // words still to come
    Label lblRéf{*this, "lblRéf", {.Visible = false}};      // the word in play

    Notice notice{*this, {u"Pas de vocabulaire sélectionné", u"L'exercice est terminé.", u"&Abandonner"}};

private:
    void Load() override;
    Arrangement Disposer() override;
    void KeyPress(Touche& touche) override;

    void lblLettre_Click(int i);
    void cmdSuivant_Click();

    void ChargerMots();
    void PréparerMot();
    void TirerMot();
    // Uncovers the letter wherever it stands. False: nowhere.
    [[nodiscard]] bool Découvrir(char16_t lettre);
    // One more stroke; its index.
    int Dessiner();
    void PerdreMot();
    void FinirMot();

    frmExercices& choix_;
};

} // namespace tirelune
