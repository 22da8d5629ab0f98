// The background of the first screen and of the editor.
#pragma once
#include "core/Dessin.h"

namespace tirelune {

// 256 bands from blue at the top to cyan at the bottom, whatever the size of the screen.
Dessin Dégradé();

} // namespace tirelune
