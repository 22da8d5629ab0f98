#include "exercises/vocabulary/frmSynonymes.h"

#include "core/Tirage.h"

namespace tirelune {

frmSynonymes::frmSynonymes(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmSynonymes", u"Synonymes"), jeu_{choix,      Label1,
                                                                       lblMot,     TextesDe(txtSynonymes),
                                                                       lblCorrigé, cmbSynonymes,
                                                                       lblPoints,  cmdQuitter,
                                                                       notice}
{
    Relier(jeu_, [this](int i) { return RéponseExacte(jeu_, i); });
    lblMot.Click([this](int i) { ReprendreRangée(jeu_, i); });
    txtSynonymes.Click([this](int i) { ReprendreRangée(jeu_, i); });
}

void frmSynonymes::Load()
{
    AjouterNomElève();
    ChargerSynonymes();
    if (fgSynonymes.Rows() < RangéesDuJeu) {
        Montrer(notice);
        return;
    }
    TirerListes();
}

void frmSynonymes::ChargerSynonymes()
{
    ChargerListes(fgSynonymes, état.CheminTexteElève, NomSynonymes, ColonneRéférent);
}

// Any word of a list can be the one that is missing, its reference word too.
void frmSynonymes::TirerListes()
{
    auto& hasard = application_.plateforme;
    for (int i = 0; i < RangéesDuJeu; ++i) {
        const int ligne = TirerLigne(hasard, fgSynonymes, cmbNuméro);
        const int dernier = DernierMot(fgSynonymes, ligne, PremierDépendant);
        const auto choix = static_cast<int>(Tirer(hasard, dernier + 1));
        Cacher(jeu_, i, fgSynonymes.TextMatrix(ligne, choix));
        txtSynonymes(i).Text = Enchaîner(fgSynonymes, ligne, ColonneRéférent, dernier, choix);
    }
    MontrerRéponses(jeu_);
}

} // namespace tirelune
