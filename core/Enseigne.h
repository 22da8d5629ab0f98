// The program's mark: the moon above an open book.
#pragma once
#include "core/Dessin.h"

namespace tirelune {

// For a dark ground.
Dessin Enseigne();
// The mark on a ground of its own: the icon of the windows.
Dessin IcôneDuProgramme();

} // namespace tirelune
