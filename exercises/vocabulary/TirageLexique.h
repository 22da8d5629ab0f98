// Rows drawn from a file of the lexicon.
#pragma once
#include "core/Elements.h"
#include "core/FichiersLexique.h"
#include "core/Plateforme.h"

namespace tirelune {

// Reads a file of the lexicon, gives each row an empty cell after its last word, and takes out the rows whose cell of
// column `réponse` is empty: they have nothing to ask for. Without a file the grid has no rows.
void ChargerListes(Grid& grille, VueTexte dossier, VueTexte nom, int réponse);

// Draws a row that is not in the list yet, and puts it there. The grid must have one.
int TirerLigne(Plateforme& plateforme, const Grid& grille, ComboBox& tirées);

// The last column before the first empty cell, from `première` on; one less where that cell is empty.
int DernierMot(const Grid& grille, int ligne, int première);

// A blank, then the words of the columns from `première` on, empty cells and column `sauf` left out, each with " - "
// behind it.
Texte Enchaîner(const Grid& grille, int ligne, int première, int dernière, int sauf = -1);

} // namespace tirelune
