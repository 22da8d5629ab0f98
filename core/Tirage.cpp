#include "core/Tirage.h"

#include <cmath>

namespace tirelune {

std::size_t Tirer(Plateforme& plateforme, double n)
{
    plateforme.AmorcerHasard();
    return static_cast<std::size_t>(n * plateforme.Hasard());
}

std::optional<std::size_t> TirerSauf(Plateforme& plateforme, double n, const std::function<bool(std::size_t)>& refusé)
{
    const auto issues = static_cast<std::size_t>(std::ceil(n));
    std::size_t premier = 0;
    while (premier < issues && refusé(premier))
        ++premier;
    if (premier == issues)
        return std::nullopt;
    for (;;) {
        const auto tiré = Tirer(plateforme, n);
        if (!refusé(tiré))
            return tiré;
    }
}

} // namespace tirelune
