// Marks as values: read from a cell, worked out on ten, shown short and in colour.
#pragma once
#include "core/Couleur.h"
#include "core/Texte.h"

#include <optional>

namespace tirelune {

class Label;

// A score cell as a number; nothing when it is empty, no number or out of all measure: the exercise
// counts as not done.
std::optional<float> LireNote(const Texte& cellule);

Couleur CouleurDeNote(float note);

// Points gained of points possible, on ten, not rounded; 0 when none was possible.
float NoteSurDix(const Label& gagnés, const Label& possibles);

// First four characters of a score's text, with a point as decimal separator: cut, not rounded.
Texte NoteCourte(VueTexte note);

} // namespace tirelune
