// Which names a pupil may bear: the name is the stem of a file.
#pragma once
#include "core/Texte.h"

#include <optional>

namespace tirelune {

// Why a trimmed name can't be the name of a pupil's file, here or on a share of another system; nothing when it can.
std::optional<Texte> RefusDuNom(VueTexte nom);

} // namespace tirelune
