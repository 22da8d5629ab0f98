// A pencil for pictograms: line drawings of one weight on a field of 48 x 48. Shapes have no colour of their own until
// they are drawn.
#pragma once
#include "core/Dessin.h"

#include <vector>

namespace tirelune::Crayon {

inline constexpr double Côté = 48;
inline constexpr double Epaisseur = 3.5;

Forme Trait(std::vector<Point> points);
Forme Contour(std::vector<Point> points); // closed
Forme Cercle(double x, double y, double rayon);
// In degrees, clockwise from the right.
Forme Arc(double x, double y, double rayon, double début, double fin);
Forme Boîtier(double x, double y, double largeur, double hauteur, double coin = 3);
// What is filled rather than outlined.
Forme Pastille(double x, double y, double rayon = 2.6);
Forme Pavé(double x, double y, double largeur, double hauteur);
// The points of an arc, for outlines that hold one.
std::vector<Point> PointsArc(double x, double y, double rayon, double début, double fin);

// The shapes in one colour.
Dessin Dessiner(std::vector<Forme> formes, Couleur teinte);

} // namespace tirelune::Crayon
