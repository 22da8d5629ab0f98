// Synonyms: ten lists of the lexicon, each without one of its words; the pupil puts the words back.
#pragma once
#include "exercises/JeuDAssociation.h"
#include "exercises/vocabulary/TirageLexique.h"

namespace tirelune {

class frmSynonymes final : public Ecran {
public:
    explicit frmSynonymes(frmExercices& choix);

    Label Label1{*this, "Label1", EtatDesConsignes(u" Trouve le synonyme des mots de chaque liste. ")};
    Tableau<Label> lblMot{*this, "lblMot", RangéesDuJeu, EtatDesCases()};
    Tableau<TextBox> txtSynonymes{*this, "txtSynonymes", RangéesDuJeu, EtatDesTextes()};
    Tableau<Label> lblCorrigé{*this, "lblCorrigé", RangéesDuJeu, EtatDesCorrigés()};
    ComboBox cmbSynonymes{*this, "cmbSynonymes", EtatDeLaListe()};
    Button cmdQuitter{*this, "cmdQuitter", EtatDuBouton()};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Notice notice{*this, TropPeu(u"Pas assez de synonymes",
                                 u"Il doit y avoir au moins 10 listes de synonymes pour lancer l'exercice. ")};

    // Out of sight: the file, and the rows drawn.
    Grid fgSynonymes{*this, "fgSynonymes", 0, ColonnesAuDépart};
    ComboBox cmbNuméro{*this, "cmbNuméro", {.Visible = false}};

private:
    void Load() override;
    Arrangement Disposer() override { return PageDAssociation(jeu_, RangéesDe(jeu_)); }

    void ChargerSynonymes();
    void TirerListes();

    const JeuDAssociation jeu_;
};

} // namespace tirelune
