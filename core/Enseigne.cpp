#include "core/Enseigne.h"

#include "core/Crayon.h"

#include <utility>

namespace tirelune {

namespace {

constexpr double Côté = 64;
constexpr Couleur Nuit = Couleur::Rvb(0x1B, 0x3F, 0xC4);
constexpr Couleur JauneLune = Couleur::Rvb(0xFF, 0xD8, 0x4D);
constexpr Couleur Ombre = Couleur::Rvb(0x7A, 0x57, 0x00);

Forme Pleine(std::vector<Point> points, Couleur fond)
{
    return {.Genre = GenreForme::Polygone, .Points = std::move(points), .Trait = CouleurAuto, .Fond = fond};
}

// A crescent: an arc outside, and back along another one.
Forme Lune()
{
    auto points = Crayon::PointsArc(30, 22, 18, 19, 273);
    const auto retour = Crayon::PointsArc(38.1, 16.6, 14.4, 241, 52);
    points.insert(points.end(), retour.begin(), retour.end());
    return Pleine(std::move(points), JauneLune);
}

Forme Etoile(double x, double y, double rayon)
{
    return {.Genre = GenreForme::Ellipse,
            .Points = {{x - rayon, y - rayon}, {x + rayon, y + rayon}},
            .Trait = CouleurAuto,
            .Fond = Blanc};
}

Forme Ligne(Point début, Point fin)
{
    return {.Genre = GenreForme::Tracé, .Points = {début, fin}, .Trait = Nuit, .Epaisseur = 1.8};
}

} // namespace

Dessin Enseigne()
{
    Forme sourire{
        .Genre = GenreForme::Courbe, .Points = {{18.5, 31}, {22, 35}, {27, 33}}, .Trait = Ombre, .Epaisseur = 1.6};
    Forme oeil{
        .Genre = GenreForme::Courbe, .Points = {{16, 22.5}, {18, 24.5}, {20.5, 23}}, .Trait = Ombre, .Epaisseur = 1.6};
    return {Côté,
            Côté,
            {Lune(), std::move(oeil), std::move(sourire), Etoile(39, 13, 2.2), Etoile(48, 8, 1.6), Etoile(49, 21, 1.6),
             Pleine({{31, 47}, {25, 43}, {7, 43}, {7, 56}, {25, 56}, {31, 60}}, Blanc),
             Pleine({{33, 47}, {39, 43}, {57, 43}, {57, 56}, {39, 56}, {33, 60}}, Blanc), Ligne({13, 48}, {23, 48}),
             Ligne({13, 52}, {20, 52}), Ligne({41, 48}, {51, 48}), Ligne({41, 52}, {47, 52})}};
}

Dessin IcôneDuProgramme()
{
    auto icône = Enseigne();
    auto fond = Crayon::Boîtier(0, 0, Côté, Côté, 13);
    fond.Trait = CouleurAuto;
    fond.Fond = Nuit;
    icône.Formes.insert(icône.Formes.begin(), std::move(fond));
    return icône;
}

} // namespace tirelune
