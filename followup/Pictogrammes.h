// A pictogram for each exercise.
#pragma once
#include "core/Dessin.h"

namespace tirelune {

// In the order of the exercises; lines of one colour.
Dessin Pictogramme(int exercice, Couleur teinte);

} // namespace tirelune
