// The order of a French dictionary.
#pragma once
#include "core/Texte.h"

namespace tirelune {

// Letters first, accents, ligatures and signs left out; then accents; then case, small before capital. Texts that
// differ in nothing else stand by code. A strict weak order: equal only to itself.
bool AvantDansLOrdre(VueTexte a, VueTexte b);

} // namespace tirelune
