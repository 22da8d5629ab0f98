#include "exercises/vocabulary/frmGenre.h"

namespace tirelune {

frmGenre::frmGenre(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmGenre", u"Genre"), jeu_{choix,      Label1,   lblFéminin, TextesDe(lblMasculin),
                                                               lblCorrigé, cmbGenre, lblPoints,  cmdQuitter,
                                                               notice}
{
    Relier(jeu_, [this](int i) { return RéponseExacte(jeu_, i); });
    lblFéminin.Click([this](int i) { ReprendreRangée(jeu_, i); });
    lblMasculin.Click([this](int i) { ReprendreRangée(jeu_, i); });
}

void frmGenre::Load()
{
    AjouterNomElève();
    ChargerGenre();
    if (fgGenre.Rows() < RangéesDuJeu) {
        Montrer(notice);
        return;
    }
    TirerListes();
}

void frmGenre::ChargerGenre()
{
    ChargerListes(fgGenre, état.CheminTexteElève, NomGenre, ColonneFéminin);
}

// The nouns stand in the lexicon without an article; these two are never elided.
void frmGenre::TirerListes()
{
    for (int i = 0; i < RangéesDuJeu; ++i) {
        const int ligne = TirerLigne(application_.plateforme, fgGenre, cmbNuméro);
        Cacher(jeu_, i, u"une " + fgGenre.TextMatrix(ligne, ColonneFéminin));
        lblMasculin(i).Caption = u"un " + fgGenre.TextMatrix(ligne, ColonneMasculin);
    }
    MontrerRéponses(jeu_);
}

} // namespace tirelune
