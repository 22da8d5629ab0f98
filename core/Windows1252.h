// Windows-1252 after the WHATWG index; the five unassigned bytes map to the same code.
#pragma once
#include "core/Texte.h"

#include <optional>
#include <string>
#include <string_view>

namespace tirelune {

Texte DepuisWindows1252(std::string_view octets);

// Nothing when a character has no place in Windows-1252.
std::optional<char> OctetWindows1252(char16_t caractère);
std::optional<std::string> EnWindows1252(VueTexte texte);
bool TientEnWindows1252(VueTexte texte);

} // namespace tirelune
