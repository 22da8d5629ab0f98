// Keys of the toolkit, as handlers see them.
#pragma once
#include "core/Elements.h"

#include <optional>

class QKeyEvent;

namespace tirelune {

// Nothing for keys that are no business of theirs.
std::optional<Touche> Traduire(const QKeyEvent& événement);

} // namespace tirelune
