// Records of a field file as rows of a grid: a field of a single asterisk opens each of them.
#pragma once
#include "core/Elements.h"

#include <vector>

namespace tirelune {

enum class Colonnes {
    Fixes,    // what comes beyond the last column is left out
    AuBesoin, // the grid gets as wide as its longest record
};

// What had no place in the grid and is left out.
struct ChampsPerdus {
    bool SansFiche = false; // they stood before the first record
    bool EnTrop = false;    // their record was longer than a row

    explicit operator bool() const { return SansFiche || EnTrop; }
};

// Puts the first record in row `première`, the others in those that follow; what stood there goes. A record that is
// short leaves the rest of its row empty.
ChampsPerdus RangerFiches(std::vector<Texte> champs, Grid& grille, int première, Colonnes colonnes);

// The fields of the records that rows `première` to the last make, every cell as it stands.
std::vector<Texte> FichesDe(const Grid& grille, int première);

} // namespace tirelune
