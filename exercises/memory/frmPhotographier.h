// A word is flashed in a white frame; the pupil finds it among ten. Right answers halve the exposure, wrong ones double
// it. Twenty flashes.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmPhotographier final : public Ecran {
public:
    explicit frmPhotographier(frmExercices& choix);

    Image Image1{*this, "Image1", {.ToolTipText = u" Regarde bien l'endroit indiqué par la flèche. "}};
    Label lblMot{
        *this, "lblMot", {.BackColor = Blanc, .ForeColor = Blanc, .FontSize = 28, .Centré = true, .Bordure = true}};
    Button cmdAfficher{*this, "cmdAfficher", {.Caption = u"&Afficher le mot  dans le cadre blanc"}};
    Label Label3{*this, "Label3", {.Caption = u"Clique sur le mot que tu as vu.", .FontSize = 14, .Gras = true}};
    Tableau<Label> lblRéponse{
        *this, "lblRéponse", 10, {.Visible = false, .BackColor = Blanc, .ForeColor = Noir, .FontSize = 18}};
    Label lblVitesse{*this,
                     "lblVitesse",
                     {.Caption = u"Assez rapide",
                      .BackColor = Bleu,
                      .ForeColor = Cyan,
                      .FontSize = 14,
                      .Gras = true,
                      .Centré = true}};
    Timer Chrono{*this, "Chrono", 100}; // exposure, ms
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Button cmdQuitter{*this, "cmdQuitter", {.Caption = u"&Quitter", .Visible = false}};

    Notice notice{*this, PasAssezDeVocabulaire};

private:
    void Load() override;
    Arrangement Disposer() override;

    void cmdAfficher_Click();
    void Chrono_Tick();
    void lblRéponse_Click(int i);

    void EffacerRéponses();
    [[nodiscard]] int ProposerMots();
    void AccélérerVitesse();
    void RalentirVitesse();
    void MontrerMotVu();

    frmExercices& choix_;
};

} // namespace tirelune
