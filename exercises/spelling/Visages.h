// The faces of the hanged man, from the merriest to the saddest.
#pragma once
#include "core/Dessin.h"

namespace tirelune {

inline constexpr int NombreVisages = 5;

// 0: laughing, with a nose; 1: laughing; 2: smiling; 3: straight mouth; 4: sad.
Dessin Visage(int humeur);

} // namespace tirelune
