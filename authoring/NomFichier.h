// The name that the editor proposes for a text that has none yet.
#pragma once
#include "core/Texte.h"

namespace tirelune {

// The part before the first character that is no blank, no apostrophe and no ordinary French letter: digits and
// capitals with accents cut the name too.
Texte CouperNomFichier(VueTexte nom);

// The opening words of a text, with ".rtf"; ".rtf" alone where there are none.
Texte NomProposé(VueTexte texte);

} // namespace tirelune
