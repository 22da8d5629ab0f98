// The list from which a pupil takes words to put them in their places.
#pragma once
#include "core/Elements.h"

namespace tirelune {

// Puts the words in the list and shows the first.
void RemplirListe(ComboBox& liste, std::vector<Texte> mots);

// Takes out the first entry equal to a word that has found its place, and shows the first of those that are left. The
// last word stays in sight.
void RetirerDeListe(ComboBox& liste, VueTexte mot);

// Nothing can be typed in the list; the arrows go through it.
void RefuserFrappe(Touche& touche);

} // namespace tirelune
