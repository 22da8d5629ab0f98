// Genders: ten masculine nouns of the lexicon; the pupil finds the feminine of each.
#pragma once
#include "exercises/JeuDAssociation.h"
#include "exercises/vocabulary/TirageLexique.h"

namespace tirelune {

class frmGenre final : public Ecran {
public:
    explicit frmGenre(frmExercices& choix);

    Label Label1{*this, "Label1", EtatDesConsignes(u" Trouve le féminin de chaque nom masculin.")};
    Tableau<Label> lblFéminin{*this, "lblFéminin", RangéesDuJeu, EtatDesCases()};
    Tableau<Label> lblMasculin{*this, "lblMasculin", RangéesDuJeu, EtatDesTextes()};
    Tableau<Label> lblCorrigé{*this, "lblCorrigé", RangéesDuJeu, EtatDesCorrigés()};
    ComboBox cmbGenre{*this, "cmbGenre", EtatDeLaListe()};
    Button cmdQuitter{*this, "cmdQuitter", EtatDuBouton()};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Notice notice{
        *this, TropPeu(u"Pas assez de mots", u"Il doit y avoir au moins 10 listes de mots pour lancer l'exercice. ")};

    // Out of sight: the file, and the rows drawn.
    Grid fgGenre{*this, "fgGenre", 0, ColonnesAuDépart};
    ComboBox cmbNuméro{*this, "cmbNuméro", {.Visible = false}};

private:
    void Load() override;
    Arrangement Disposer() override { return PageDAssociation(jeu_, RangéesDe(jeu_)); }

    void ChargerGenre();
    void TirerListes();

    const JeuDAssociation jeu_;
};

} // namespace tirelune
