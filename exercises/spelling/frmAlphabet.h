// At most ten words of the vocabulary, moved in their column into alphabetical order. The check goes slowly from pair
// to pair.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Insertion.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmAlphabet final : public Ecran {
public:
    explicit frmAlphabet(frmExercices& choix);

    static constexpr int MotsMaximum = 10;

    Label lblConsigne{*this, "lblConsigne",
                      u"Range les mots dans l'ordre alphabétique : clique sur un mot, puis clique sur la place où tu "
                      u"veux le mettre."};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Tableau<Label> lblLettre{
        *this, "lblLettre", 26, {.FontSize = 16, .Gras = true, .Police = u"Comic Sans MS", .Centré = true}};
    Tableau<RichTextBox> rtfMot{
        *this,
        "rtfMot",
        MotsMaximum,
        {.Visible = false,
         .ToolTipText = u" Clique sur les étiquettes pour les ranger dans l'ordre alphabétique. ",
         .BackColor = Noir,
         .FontSize = 14,
         .Police = u"Comic Sans MS",
         .UneLigne = true}};
    Button cmdQuitter{*this, "cmdQuitter", {.Caption = u"J'ai &fini"}};

    ComboBox cmbMots{*this, "cmbMots", {.Visible = false}};
    Label lblPassage{*this, "lblPassage", {.Visible = false}}; // the word that has been picked up

    Notice notice{*this,
                  {u"Pas assez de vocabulaire sélectionné",
                   u"Il doit y avoir au moins 4 mots de vocabulaire sélectionnés pour lancer l'exercice.",
                   u"&Abandonner"}};

private:
    void Load() override;
    Arrangement Disposer() override;

    void cmdQuitter_Click();

    void RemplirEtiquettes();
    void ColorierMot(int i);
    void Ecrire(int i, VueTexte mot);
    void Ranger(const std::optional<Déplacement>& déplacement);
    void Vérifier();
    // True: behind the word above it.
    [[nodiscard]] bool EstEnOrdre(int i) const;
    void Juger(int i, Couleur fond, Couleur encre);

    frmExercices& choix_;
};

} // namespace tirelune
