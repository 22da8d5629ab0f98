// A column put in order by clicks: one picks an item up, the next one puts it down elsewhere, and those between make
// room.
#pragma once
#include "core/Elements.h"

#include <span>

namespace tirelune {

struct Déplacement {
    int De;
    int Vers;

    friend bool operator==(const Déplacement&, const Déplacement&) = default;
};

// A click in the column, whose colours tell its state: `repos` at rest, `prise` picked up, any other for good in its
// place. Picks the item up, or puts it down where it was, or gives the move that it makes: the texts are the screen's.
template <class T>
std::optional<Déplacement> CliquerColonne(Tableau<T>& colonne, int i, Couleur repos, Couleur prise)
{
    auto& cliqué = colonne(i);
    if (cliqué.BackColor == prise)
        cliqué.BackColor = repos;
    else if (cliqué.BackColor == repos) {
        for (int pris = 0; pris < colonne.Nombre(); ++pris) {
            if (colonne(pris).BackColor == prise) {
                colonne(pris).BackColor = repos;
                return Déplacement{pris, i};
            }
        }
        cliqué.BackColor = prise;
    }
    return std::nullopt;
}

// Makes the move in a column of texts.
void Déplacer(std::span<Texte> colonne, Déplacement déplacement);

} // namespace tirelune
