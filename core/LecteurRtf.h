// Rich text format (RTF 1.9) reader: what Word, WordPad, LibreOffice, AbiWord and TextEdit write.
#pragma once
#include "core/TexteRiche.h"

#include <optional>
#include <string_view>

namespace tirelune {

// One pass, no recursion. Nothing when the bytes don't start as RTF does ("{\rtf", blanks before either sign and a
// byte order mark skipped); of a damaged or cut-off text, the part that can be read.
std::optional<TexteRiche> LireRtf(std::string_view octets);

} // namespace tirelune
