// Words drawn from the vocabulary without a repeat. The vocabulary keeps duplicates: five marked words may be three
// different ones.
#pragma once
#include "core/Elements.h"
#include "core/Plateforme.h"

#include <vector>

namespace tirelune {

// With fewer different words than this, the games of memory have nothing to play with.
inline constexpr int MotsDifférentsMinimum = 5;

// How many different words there are, compared exactly.
int CompterMotsDifférents(const ComboBox& vocabulaire);

// Draws at most `limite` different words, in the order drawn. One draw for each try, and a word that has come already
// is drawn again; fewer words come back when there are no more different ones.
std::vector<Texte> TirerMotsDifférents(const std::vector<Texte>& mots, int limite, Plateforme& plateforme);
std::vector<Texte> TirerMotsDifférents(const ComboBox& vocabulaire, int limite, Plateforme& plateforme);

// Draws a word of a list that holds one, and takes it out.
Texte TirerEtRetirer(ComboBox& mots, Plateforme& plateforme);

} // namespace tirelune
