// Themes (1): the words of ten families of the lexicon; the pupil finds the name of each.
#pragma once
#include "exercises/JeuDAssociation.h"
#include "exercises/vocabulary/TirageLexique.h"

namespace tirelune {

class frmThèmes final : public Ecran {
public:
    explicit frmThèmes(frmExercices& choix);

    Label Label1{*this, "Label1", EtatDesConsignes(u" Trouve le thème pour chaque liste. ")};
    Tableau<Label> lblMot{*this, "lblMot", RangéesDuJeu, EtatDesCases()};
    Tableau<TextBox> txtThèmes{*this, "txtThèmes", RangéesDuJeu, EtatDesTextes()};
    Tableau<Label> lblCorrigé{*this, "lblCorrigé", RangéesDuJeu, EtatDesCorrigés()};
    ComboBox cmbThèmes{*this, "cmbThèmes", EtatDeLaListe()};
    Button cmdQuitter{*this, "cmdQuitter", EtatDuBouton()};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Notice notice{*this,
                  TropPeu(u"Pas assez de thèmes", u"Il doit y avoir au moins 10 thèmes pour lancer l'exercice. ")};

    // Out of sight: the file, and the rows drawn.
    Grid fgThèmes{*this, "fgThèmes", 0, ColonnesAuDépart};
    ComboBox cmbNuméro{*this, "cmbNuméro", {.Visible = false}};

private:
    void Load() override;
    Arrangement Disposer() override { return PageDAssociation(jeu_, RangéesDe(jeu_)); }

    void ChargerFamilles();
    void lblMot_Click(int i);
    void cmbThèmes_Click();
    void TirerThèmes();

    const JeuDAssociation jeu_;
};

} // namespace tirelune
