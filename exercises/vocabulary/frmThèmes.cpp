#include "exercises/vocabulary/frmThèmes.h"

namespace tirelune {

frmThèmes::frmThèmes(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmThèmes", u"Thèmes (1)"), jeu_{choix,      Label1,
                                                                     lblMot,     TextesDe(txtThèmes),
                                                                     lblCorrigé, cmbThèmes,
                                                                     lblPoints,  cmdQuitter,
                                                                     notice}
{
    Relier(jeu_, [this](int i) { return RéponseExacte(jeu_, i); });
    lblMot.Click([this](int i) { lblMot_Click(i); });
    txtThèmes.Click([this](int i) { ReprendreRangée(jeu_, i); });
    cmbThèmes.Click = [this] { cmbThèmes_Click(); };
}

void frmThèmes::Load()
{
    AjouterNomElève();
    ChargerFamilles();
    if (fgThèmes.Rows() < RangéesDuJeu) {
        Montrer(notice);
        return;
    }
    TirerThèmes();
}

void frmThèmes::ChargerFamilles()
{
    ChargerListes(fgThèmes, état.CheminTexteElève, NomFamilles, ColonneThème);
}

void frmThèmes::TirerThèmes()
{
    for (int i = 0; i < RangéesDuJeu; ++i) {
        const int ligne = TirerLigne(application_.plateforme, fgThèmes, cmbNuméro);
        const auto& thème = fgThèmes.TextMatrix(ligne, ColonneThème);
        const auto& sousThème = fgThèmes.TextMatrix(ligne, ColonneSousThème);
        Cacher(jeu_, i, sousThème.empty() ? thème : Texte{thème}.append(u" / ").append(sousThème));
        txtThèmes(i).Text = Enchaîner(fgThèmes, ligne, PremierMotDeFamille, fgThèmes.Cols() - 1);
    }
    MontrerRéponses(jeu_);
}

void frmThèmes::lblMot_Click(int i)
{
    if (ChoisirRangée(jeu_, i) && RendreRéponse(jeu_, i))
        lblMot(i).ToolTipText = Texte{};
}

// A theme with its sub-theme may be too long for its slot.
void frmThèmes::cmbThèmes_Click()
{
    if (const auto i = PlacerRéponse(jeu_))
        lblMot(*i).ToolTipText = lblMot(*i).Caption();
}

} // namespace tirelune
