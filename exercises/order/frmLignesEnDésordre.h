// A passage of the text, cut into at most ten lines of some fifty characters that stand in alphabetical order: the
// pupil moves them back into theirs.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "exercises/RemiseEnOrdre.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmLignesEnDésordre final : public Ecran {
public:
    explicit frmLignesEnDésordre(frmExercices& choix);

    Label lblConsigne{*this,
                      "lblConsigne",
                      {.Caption = u"Quand tu cliques sur une ligne, elle devient jaune. Tu n'as plus qu'à cliquer à "
                                  u"l'endroit où tu veux placer cette ligne et remettre ainsi le passage dans le bon "
                                  u"ordre petit à petit."}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Tableau<Label> lblLigne{*this, "lblLigne", 10, EtatDePièce(16)};
    Label lblVerdict{*this, "lblVerdict", EtatDuVerdict()};
    Button cmdQuitter{*this, "cmdQuitter", {.Caption = u"J'ai &fini"}};

    Notice notice{
        *this,
        {u"Texte trop court", u"Le texte est trop court pour que je puisse procéder à une segmentation !", u"&Sortir"},
        {.Cadre = "frameSortir", .Phrase = "Label1", .Bouton = "cmdSortir"}};

    // Out of sight: what the exercise remembers.
    ComboBox cmbOrdre{*this, "cmbOrdre", {.Visible = false}};                         // the lines in their order
    ComboBox cmbMélangées{*this, "cmbMélangées", {.Visible = false, .Sorted = true}}; // those that aren't locked
    TextBox txtPhrase{*this, "txtPhrase", {.Visible = false}}; // the passage that is still to be cut
    Label lblPassage{*this, "lblPassage", {.Visible = false}}; // the line picked up

private:
    void Load() override;
    Arrangement Disposer() override;

    void cmdQuitter_Click();

    void TirerPassage();
    void CouperLigne(int i);

    frmExercices& choix_;
    const JeuDePassage jeu_{
        lblLigne, cmbOrdre, cmbMélangées, lblPassage, lblPoints, lblVerdict, cmdQuitter, 2, u" Ligne bien placée ! "};
};

} // namespace tirelune
