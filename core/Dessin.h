// Drawings told as shapes, in units of their own; the drawing side scales them to the place that they get.
#pragma once
#include "core/Couleur.h"

#include <vector>

struct Point {
    double x = 0;
    double y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

enum class GenreForme { Ellipse, Polygone, Tracé, Courbe };

// Ellipse: two corners of its box. Polygone: closed. Tracé: open, straight. Courbe: open, quadratic Bézier (three
// points).
struct Forme {
    GenreForme genre = GenreForme::Tracé;
    std::vector<Point> points;
    Couleur trait = Noir;       // CouleurAuto: no outline
    double épaisseur = 1;       // in units of the drawing
    Couleur fond = CouleurAuto; // CouleurAuto: not filled
    friend bool operator==(const Forme&, const Forme&) = default;
};

struct Dessin {
    double largeur = 0;
    double hauteur = 0;
    std::vector<Forme> formes;
    friend bool operator==(const Dessin&, const Dessin&) = default;
};
