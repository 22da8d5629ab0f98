// Rich text format writer. What it writes reads back equal, here and in the usual word processors.
#pragma once
#include "core/TexteRiche.h"

#include <string>

namespace tirelune {

// Pure ASCII: characters outside Windows-1252 go as \uN, those of its upper half as \'hh.
std::string EcrireRtf(const TexteRiche& texte);

} // namespace tirelune
