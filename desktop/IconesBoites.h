// The pictures that the toolkit asks of a style.
#pragma once
#include "core/Dessin.h"

namespace tirelune {

Dessin IcôneInformation();
Dessin IcôneQuestion();
Dessin IcôneErreur();
Dessin IcôneSuite(); // there is more to the right

} // namespace tirelune
