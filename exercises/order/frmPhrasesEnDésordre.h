// Up to six sentences of the text that follow one another, in alphabetical order: the pupil moves them back into
// theirs.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "exercises/RemiseEnOrdre.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmPhrasesEnDésordre final : public Ecran {
public:
    explicit frmPhrasesEnDésordre(frmExercices& choix);

    Label lblConsigne{*this,
                      "lblConsigne",
                      {.Caption = u"Quand tu cliques sur une phrase, elle devient jaune. Tu n'as plus qu'à cliquer à "
                                  u"l'endroit où tu veux placer cette phrase et remettre ainsi le passage dans le bon "
                                  u"ordre petit à petit."}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Tableau<Label> lblPhrase{*this, "lblPhrase", 6, EtatDePièce(18)};
    Label lblVerdict{*this, "lblVerdict", EtatDuVerdict()};
    Button cmdQuitter{*this, "cmdQuitter", {.Caption = u"J'ai &fini"}};

    Notice notice{*this,
                  {u"Pas assez de phrases dans le texte",
                   u"Il doit y avoir au moins 4 phrases pour lancer l'exercice. ", u"&Abandonner"}};

    // Out of sight: what the exercise remembers.
    ComboBox cmbOrdre{*this, "cmbOrdre", {.Visible = false}};                         // the sentences in their order
    ComboBox cmbMélangées{*this, "cmbMélangées", {.Visible = false, .Sorted = true}}; // those that aren't locked
    Label lblPassage{*this, "lblPassage", {.Visible = false}};                        // the sentence picked up

private:
    void Load() override;
    Arrangement Disposer() override;

    void cmdQuitter_Click();

    void TirerPhrases();

    frmExercices& choix_;
    const JeuDePassage jeu_{
        lblPhrase, cmbOrdre, cmbMélangées, lblPassage, lblPoints, lblVerdict, cmdQuitter, 3, u" Phrase bien placée ! "};
};

} // namespace tirelune
