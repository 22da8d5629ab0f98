#include "exercises/spelling/Visages.h"

#include <cassert>

namespace {

constexpr double Côté = 32;
constexpr double Trait = 1.4;

Forme Ovale(Point coin, Point opposé, Couleur fond)
{
    return {.genre = GenreForme::Ellipse, .points = {coin, opposé}, .trait = Noir, .épaisseur = Trait, .fond = fond};
}

Forme Arc(Point gauche, Point milieu, Point droite)
{
    return {.genre = GenreForme::Courbe, .points = {gauche, milieu, droite}, .trait = Noir, .épaisseur = Trait};
}

void AjouterRire(Dessin& visage)
{
    visage.formes.push_back({.genre = GenreForme::Polygone,
                             .points = {{7, 18}, {25, 18}, {23.5, 22.5}, {20, 26}, {16, 27}, {12, 26}, {8.5, 22.5}},
                             .trait = Noir,
                             .épaisseur = Trait,
                             .fond = Blanc});
    visage.formes.push_back({.genre = GenreForme::Ellipse,
                             .points = {{12, 21.5}, {20, 26.5}},
                             .trait = CouleurAuto,
                             .fond = Rouge}); // tongue
}

} // namespace

Dessin Visage(int humeur)
{
    assert(humeur >= 0 && humeur < NombreVisages);
    Dessin visage{Côté, Côté, {Ovale({1, 1}, {31, 31}, Jaune)}};
    visage.formes.push_back(Ovale({9.5, 7}, {13, 14}, Noir));
    visage.formes.push_back(Ovale({19, 7}, {22.5, 14}, Noir));
    switch (humeur) {
    case 0:
        visage.formes.push_back(Arc({14.5, 14}, {16, 17}, {17.5, 14}));
        AjouterRire(visage);
        break;
    case 1:
        AjouterRire(visage);
        break;
    case 2:
        visage.formes.push_back(Arc({9, 20}, {16, 27}, {23, 20}));
        break;
    case 3:
        visage.formes.push_back(
            {.genre = GenreForme::Tracé, .points = {{10, 22}, {22, 22}}, .trait = Noir, .épaisseur = Trait});
        break;
    default:
        visage.formes.push_back(Arc({9, 25}, {16, 18}, {23, 25}));
        break;
    }
    return visage;
}
