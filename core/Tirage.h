// Draws. Each seeds the dice first.
#pragma once
#include "core/Plateforme.h"

#include <functional>
#include <optional>

namespace tirelune {

// The whole part of a random number in [0, 1) times n, which may be a fraction: from 0 to just under n.
std::size_t Tirer(Plateforme& plateforme, double n);

// Draws again for as long as what comes is refused. Nothing, without a draw, when all that can come is refused.
std::optional<std::size_t> TirerSauf(Plateforme& plateforme, double n, const std::function<bool(std::size_t)>& refusé);

} // namespace tirelune
