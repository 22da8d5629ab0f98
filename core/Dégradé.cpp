#include "core/Dégradé.h"

namespace tirelune {

Dessin Dégradé()
{
    static constexpr int Bandes = 256;
    Dessin dégradé{1, Bandes, {}};
    dégradé.Formes.reserve(Bandes);
    for (unsigned i = 0; i < Bandes; ++i) {
        const double y = i;
        dégradé.Formes.push_back({.Genre = GenreForme::Polygone,
                                  .Points = {{0, y}, {1, y}, {1, y + 1}, {0, y + 1}},
                                  .Trait = CouleurAuto,
                                  .Fond = Couleur::Rvb(0, i, 255)});
    }
    return dégradé;
}

} // namespace tirelune
