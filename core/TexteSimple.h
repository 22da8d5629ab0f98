// Plain text as other programs leave it.
#pragma once
#include "core/Texte.h"

#include <optional>
#include <string_view>

namespace tirelune {

// UTF-16 and UTF-8 by their mark; without one UTF-8 where all of it is, else Windows-1252. Nothing when the bytes are
// no text: they hold a NUL, or start as archives, pictures and their like do.
std::optional<Texte> LireTexteSimple(std::string_view octets);

} // namespace tirelune
