// The pictures on the editor's button bar.
#pragma once
#include "core/Dessin.h"

#include <string_view>

namespace tirelune {

// Of the button with that key.
Dessin IcôneOutil(std::string_view clé);

} // namespace tirelune
