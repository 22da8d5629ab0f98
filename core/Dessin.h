// Drawings told as shapes, in units of their own; the drawing side scales them to the place that they get.
#pragma once
#include "core/Couleur.h"

#include <vector>

namespace tirelune {

struct Point {
    double X = 0;
    double Y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

enum class GenreForme { Ellipse, Polygone, Tracé, Courbe };

// Ellipse: two corners of its box. Polygone: closed. Tracé: open, straight. Courbe: open, quadratic Bézier (three
// points).
struct Forme {
    GenreForme Genre = GenreForme::Tracé;
    std::vector<Point> Points;
    Couleur Trait = Noir;       // CouleurAuto: no outline
    double Epaisseur = 1;       // in units of the drawing
    Couleur Fond = CouleurAuto; // CouleurAuto: not filled
    friend bool operator==(const Forme&, const Forme&) = default;
};

struct Dessin {
    double Largeur = 0;
    double Hauteur = 0;
    std::vector<Forme> Formes;
    friend bool operator==(const Dessin&, const Dessin&) = default;
};

} // namespace tirelune
