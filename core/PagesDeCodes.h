// Single-byte code pages: what the bytes from 0x80 to 0xFF stand for.
#pragma once
#include <array>

namespace tirelune {

using MoitiéHaute = std::array<char16_t, 128>; // indexed by byte - 0x80; U+FFFD where nothing is assigned

// By Windows code page number; nothing for a page of several bytes to a character, or an unknown one.
const MoitiéHaute* TrouverPageDeCodes(int numéro);

} // namespace tirelune
