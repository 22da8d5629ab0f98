#include "core/Enregistrements.h"

#include "core/FichierChamps.h"

#include <algorithm>

namespace tirelune {

ChampsPerdus RangerFiches(std::vector<Texte> champs, Grid& grille, int première, Colonnes colonnes)
{
    const auto fiches = static_cast<int>(std::count(champs.begin(), champs.end(), Marqueur));
    grille.Rows(première);
    grille.Rows(première + fiches);
    ChampsPerdus perdus;
    int rangée = première - 1;
    int colonne = 0;
    for (auto& champ : champs) {
        if (champ == Marqueur) {
            ++rangée;
            colonne = 0;
            continue;
        }
        if (rangée < première) {
            perdus.SansFiche = true;
            continue;
        }
        if (colonne == grille.Cols() && colonnes == Colonnes::AuBesoin)
            grille.Cols(colonne + 1);
        if (colonne < grille.Cols())
            grille.TextMatrix(rangée, colonne++, std::move(champ));
        else
            perdus.EnTrop = true;
    }
    return perdus;
}

std::vector<Texte> FichesDe(const Grid& grille, int première)
{
    std::vector<Texte> champs;
    for (int rangée = première; rangée < grille.Rows(); ++rangée) {
        champs.emplace_back(Marqueur);
        for (int colonne = 0; colonne < grille.Cols(); ++colonne)
            champs.push_back(grille.TextMatrix(rangée, colonne));
    }
    return champs;
}

} // namespace tirelune
