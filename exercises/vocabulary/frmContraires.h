// Contraries: ten lists of the lexicon, each without its reference word; the pupil puts the words back.
#pragma once
#include "exercises/JeuDAssociation.h"
#include "exercises/vocabulary/TirageLexique.h"

namespace tirelune {

class frmContraires final : public Ecran {
public:
    explicit frmContraires(frmExercices& choix);

    Label Label1{*this, "Label1", EtatDesConsignes(u" Trouve le contraire des mots de chaque liste. ")};
    Tableau<Label> lblMot{*this, "lblMot", RangéesDuJeu, EtatDesCases()};
    Tableau<TextBox> txtContraires{*this, "txtContraires", RangéesDuJeu, EtatDesTextes()};
    Tableau<Label> lblCorrigé{*this, "lblCorrigé", RangéesDuJeu, EtatDesCorrigés()};
    ComboBox cmbContraires{*this, "cmbContraires", EtatDeLaListe()};
    Button cmdQuitter{*this, "cmdQuitter", EtatDuBouton()};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Notice notice{*this, TropPeu(u"Pas assez de contraires",
                                 u"Il doit y avoir au moins 10 listes de contraires pour lancer l'exercice. ")};

    // Out of sight: the file, and the rows drawn.
    Grid fgContraires{*this, "fgContraires", 0, ColonnesAuDépart};
    ComboBox cmbNuméro{*this, "cmbNuméro", {.Visible = false}};

private:
    void Load() override;
    Arrangement Disposer() override { return PageDAssociation(jeu_, RangéesDe(jeu_)); }

    void ChargerContraires();
    void TirerListes();

    const JeuDAssociation jeu_;
};

} // namespace tirelune
