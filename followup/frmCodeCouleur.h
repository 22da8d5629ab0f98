// Legend of the chooser's colours.
#pragma once
#include "core/Ecran.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmCodeCouleur final : public Ecran {
public:
    explicit frmCodeCouleur(frmExercices& choix);

    Rectangle Shape1;
    Tableau<Label> Label1{*this,
                          "Label1",
                          {u"Moyenne", u"Texte en cours ou sélectionné"},
                          {.ForeColor = Noir, .Gras = true, .Centré = true}};
    Tableau<Label> lblMoyenne{
        *this, "lblMoyenne", 6, {.ForeColor = Noir, .Centré = true, .Bordure = true, .SensDesCouleurs = Sens::Rien}};
    Tableau<Label> Label2;
    Tableau<Label> lblExo{
        *this, "lblExo", 6, {.ForeColor = Noir, .Centré = true, .Bordure = true, .SensDesCouleurs = Sens::Rien}};
    Label Label3{*this, "Label3", u"La moyenne s'effectue sur l'ensemble des textes étudiés, exercice par exercice."};
    Button cmdQuitter{*this, "cmdQuitter", u"&Quitter"};

private:
    Arrangement Disposer() override;
};

} // namespace tirelune
