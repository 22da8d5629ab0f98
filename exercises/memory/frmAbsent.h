// A list of words on the left, the same words in capitals on the right but one: the pupil clicks that one before the
// time is up. Right answers shorten the time, misses lengthen it. Ten lists.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmAbsent final : public Ecran {
public:
    explicit frmAbsent(frmExercices& choix);

    static constexpr int MotsMaximum = 10;

    Label lblConsigne{*this,
                      "lblConsigne",
                      {.Caption = u" Clique sur le mot de la liste de gauche qui n'est pas dans la liste de droite.",
                       .FontSize = 14}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Tableau<Label> lblMot{*this,
                          "lblMot",
                          MotsMaximum,
                          {.Visible = false,
                           .ToolTipText = u" Clique sur le mot qui manque dans la liste de droite. ",
                           .BackColor = Blanc,
                           .ForeColor = Bleu,
                           .FontSize = 16}};
    Tableau<Label> lblAbsent{
        *this,
        "lblAbsent",
        MotsMaximum,
        {.Visible = false, .BackColor = Bleu, .ForeColor = Cyan, .FontSize = 16, .Police = u"Times New Roman"}};
    Label Label1{*this, "Label1", {.Caption = u"Temps :", .FontSize = 16}};
    Label lblChrono{*this,
                    "lblChrono",
                    {.Caption = u"30",
                     .ToolTipText = u" Temps restant (en secondes) ",
                     .BackColor = Rouge,
                     .ForeColor = Jaune,
                     .FontSize = 20,
                     .Gras = true,
                     .Centré = true,
                     .SensDesCouleurs = Sens::Rien}};
    Label lblChronoRéf{*this, "lblChronoRéf", {.Caption = u"30", .Visible = false}}; // seconds for the next list
    Timer Chrono{*this, "Chrono", 1000};                                             // ms
    Button cmdQuitter{*this, "cmdQuitter", {.Caption = u"&Suivant", .Visible = false}};

    Notice notice{*this, PasAssezDeVocabulaire};

private:
    void Load() override;
    Arrangement Disposer() override;

    void Chrono_Tick();
    void lblMot_Click(int i);
    void cmdQuitter_Click();

    void NouvelleListe();
    void EffacerListes();
    void MasquerLeDernier(int dernier);
    // The label that shows nothing of its word.
    [[nodiscard]] Label& Masqué();
    // Shows the masked word on `fond`; the next list has so many seconds more.
    void FinirListe(Couleur fond, int secondes);

    frmExercices& choix_;
};

} // namespace tirelune
