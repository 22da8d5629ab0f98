#include "core/Dégradé.h"

Dessin Dégradé()
{
    static constexpr int Bandes = 256;
    Dessin dégradé{1, Bandes, {}};
    dégradé.formes.reserve(Bandes);
    for (unsigned i = 0; i < Bandes; ++i) {
        const double y = i;
        dégradé.formes.push_back({.genre = GenreForme::Polygone,
                                  .points = {{0, y}, {1, y}, {1, y + 1}, {0, y + 1}},
                                  .trait = CouleurAuto,
                                  .fond = Couleur::Rvb(0, i, 255)});
    }
    return dégradé;
}
