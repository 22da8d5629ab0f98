// Long words of the vocabulary, cut after their third letter: the pupil joins each end to a beginning.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmMotsCoupés final : public Ecran {
public:
    explicit frmMotsCoupés(frmExercices& choix);

    static constexpr int RangéesMaximum = 10;

    Label lblConsigne{*this,
                      "lblConsigne",
                      {.Caption = u"Clique sur une étiquette de droite, puis sur le mot à compléter dans une étiquette "
                                  u"de gauche. Tu retrouveras ainsi des mots du texte."}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Tableau<Label> lblMotFin{*this,
                             "lblMotFin",
                             RangéesMaximum,
                             {.Visible = false,
                              .ToolTipText = u" Cique sur la fin du mot puis sur l'étiquette du début du mot. ",
                              .BackColor = Blanc,
                              .FontSize = 20}};
    Tableau<Label> lblMotDébut{*this,
                               "lblMotDébut",
                               RangéesMaximum,
                               {.Visible = false,
                                .ToolTipText = u" Clique pour enlever la partie finale du mot. ",
                                .BackColor = Blanc,
                                .FontSize = 20}};
    Tableau<Label> lblMot{
        *this, "lblMot", RangéesMaximum, {.Visible = false, .BackColor = Blanc, .FontSize = 20, .Gras = true}};
    Button cmdQuitter{*this, "cmdQuitter", {.Caption = u"J'ai &fini"}};

    Notice notice{*this, {u"Pas assez de mots de plus de 5 lettres", u"L'exercice est terminé.", u"&Abandonner"}};

    // Out of sight: what the exercise remembers.
    ComboBox cmbMots{*this, "cmbMots", {.Visible = false}};         // words that no row has matched yet
    ComboBox cmbEliminés{*this, "cmbEliminés", {.Visible = false}}; // short words met by the draw
    Label lblPassage{*this, "lblPassage", {.Visible = false}};      // the end that is selected

private:
    void Load() override;
    Arrangement Disposer() override;

    void lblMotDébut_Click(int i);
    void lblMotFin_Click(int i);
    void cmdQuitter_Click();

    void ChoisirMotsLongs();
    void MontrerMots();
    void CouperMots();
    void Enlever(int i);
    void Joindre(int i);
    void GuiderClavier();
    void Vérifier();
    // False: the screen was closed while the words came up.
    [[nodiscard]] bool Corriger();

    frmExercices& choix_;
};

} // namespace tirelune
