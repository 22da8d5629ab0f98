#include "followup/GrilleRésultats.h"

#include "followup/Notes.h"
#include "followup/frmExercices.h"

namespace tirelune {

std::optional<float> MoyenneColonne(const frmExercices& choix, int colonne)
{
    float somme = 0;
    int nombre = 0;
    for (int rangée = 1; rangée < choix.fgRésultats.Rows(); ++rangée) {
        if (const auto note = LireNote(choix.fgRésultats.TextMatrix(rangée, colonne))) {
            somme += *note;
            ++nombre;
        }
    }
    return nombre == 0 ? std::nullopt : std::optional{somme / static_cast<float>(nombre)};
}

void MontrerVitesseMoyenne(frmExercices& choix)
{
    const auto moyenne = MoyenneColonne(choix, ColonneVitesse);
    if (!moyenne)
        return;
    choix.fgRésultats.TextMatrix(0, ColonneVitesse, EnTexte(static_cast<long long>(*moyenne)));
    choix.lblVitesseMoyenne.Caption = choix.fgRésultats.TextMatrix(0, ColonneVitesse);
}

int RangéeDuTexte(frmExercices& choix, const Texte& titre)
{
    auto& grille = choix.fgRésultats;
    for (int rangée = 1; rangée < grille.Rows(); ++rangée) {
        if (grille.TextMatrix(rangée, ColonneTitre) == titre)
            return rangée;
    }
    grille.AddRow();
    grille.TextMatrix(grille.Rows() - 1, ColonneTitre, titre);
    return grille.Rows() - 1;
}

} // namespace tirelune
