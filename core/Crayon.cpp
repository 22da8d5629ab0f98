#include "core/Crayon.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace tirelune::Crayon {

namespace {

// Stands for the colour to come: what is filled has it as its ground, the rest as its line.
constexpr Couleur APeindre = Noir;

void Joindre(std::vector<Point>& points, const std::vector<Point>& suite)
{
    points.insert(points.end(), suite.begin(), suite.end());
}

std::vector<Point> PointsBoîtier(double x, double y, double largeur, double hauteur, double coin)
{
    const double droite = x + largeur;
    const double bas = y + hauteur;
    std::vector<Point> points = PointsArc(x + coin, y + coin, coin, 180, 270);
    Joindre(points, PointsArc(droite - coin, y + coin, coin, 270, 360));
    Joindre(points, PointsArc(droite - coin, bas - coin, coin, 0, 90));
    Joindre(points, PointsArc(x + coin, bas - coin, coin, 90, 180));
    return points;
}

Forme AuTrait(GenreForme genre, std::vector<Point> points)
{
    return {.Genre = genre, .Points = std::move(points), .Trait = APeindre, .Epaisseur = Epaisseur};
}

Forme Pleine(GenreForme genre, std::vector<Point> points)
{
    return {.Genre = genre, .Points = std::move(points), .Trait = CouleurAuto, .Fond = APeindre};
}

std::vector<Point> CoinsCercle(double x, double y, double rayon)
{
    return {{x - rayon, y - rayon}, {x + rayon, y + rayon}};
}

} // namespace

std::vector<Point> PointsArc(double x, double y, double rayon, double début, double fin)
{
    static constexpr double Pas = 10; // degrees: no corner shows at the sizes of a pictogram
    const int pas = std::max(1, static_cast<int>(std::lround(std::abs(fin - début) / Pas)));
    std::vector<Point> points;
    for (int i = 0; i <= pas; ++i) {
        const double angle = (début + (fin - début) * i / pas) * std::numbers::pi / 180;
        points.push_back({x + rayon * std::cos(angle), y + rayon * std::sin(angle)});
    }
    return points;
}

Forme Trait(std::vector<Point> points)
{
    return AuTrait(GenreForme::Tracé, std::move(points));
}

Forme Contour(std::vector<Point> points)
{
    return AuTrait(GenreForme::Polygone, std::move(points));
}

Forme Cercle(double x, double y, double rayon)
{
    return AuTrait(GenreForme::Ellipse, CoinsCercle(x, y, rayon));
}

Forme Arc(double x, double y, double rayon, double début, double fin)
{
    return Trait(PointsArc(x, y, rayon, début, fin));
}

Forme Boîtier(double x, double y, double largeur, double hauteur, double coin)
{
    return Contour(PointsBoîtier(x, y, largeur, hauteur, coin));
}

Forme Pastille(double x, double y, double rayon)
{
    return Pleine(GenreForme::Ellipse, CoinsCercle(x, y, rayon));
}

Forme Pavé(double x, double y, double largeur, double hauteur)
{
    static constexpr double Coin = 1.5;
    return Pleine(GenreForme::Polygone, PointsBoîtier(x, y, largeur, hauteur, Coin));
}

Dessin Dessiner(std::vector<Forme> formes, Couleur teinte)
{
    for (auto& forme : formes)
        (forme.Fond.EstAutomatique() ? forme.Trait : forme.Fond) = teinte;
    return {Côté, Côté, std::move(formes)};
}

} // namespace tirelune::Crayon
