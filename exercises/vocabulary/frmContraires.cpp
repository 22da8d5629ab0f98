#include "exercises/vocabulary/frmContraires.h"

namespace tirelune {

frmContraires::frmContraires(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmContraires", u"Contraires"), jeu_{choix,      Label1,
                                                                         lblMot,     TextesDe(txtContraires),
                                                                         lblCorrigé, cmbContraires,
                                                                         lblPoints,  cmdQuitter,
                                                                         notice}
{
    Relier(jeu_, [this](int i) { return RéponseExacte(jeu_, i); });
    lblMot.Click([this](int i) { ReprendreRangée(jeu_, i); });
    txtContraires.Click([this](int i) { ReprendreRangée(jeu_, i); });
}

void frmContraires::Load()
{
    AjouterNomElève();
    ChargerContraires();
    if (fgContraires.Rows() < RangéesDuJeu) {
        Montrer(notice);
        return;
    }
    TirerListes();
}

void frmContraires::ChargerContraires()
{
    ChargerListes(fgContraires, état.CheminTexteElève, NomContraires, ColonneRéférent);
}

void frmContraires::TirerListes()
{
    auto& hasard = application_.plateforme;
    for (int i = 0; i < RangéesDuJeu; ++i) {
        const int ligne = TirerLigne(hasard, fgContraires, cmbNuméro);
        hasard.AmorcerHasard(); // of a draw that isn't made: it is always the reference word
        Cacher(jeu_, i, fgContraires.TextMatrix(ligne, ColonneRéférent));
        txtContraires(i).Text =
            Enchaîner(fgContraires, ligne, PremierDépendant, DernierMot(fgContraires, ligne, PremierDépendant));
    }
    MontrerRéponses(jeu_);
}

} // namespace tirelune
