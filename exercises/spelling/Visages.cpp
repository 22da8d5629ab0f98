#include "exercises/spelling/Visages.h"

#include <cassert>

namespace tirelune {

namespace {

constexpr double Côté = 32;
constexpr double Trait = 1.4;

Forme Ovale(Point coin, Point opposé, Couleur fond)
{
    return {.Genre = GenreForme::Ellipse, .Points = {coin, opposé}, .Trait = Noir, .Epaisseur = Trait, .Fond = fond};
}

Forme Arc(Point gauche, Point milieu, Point droite)
{
    return {.Genre = GenreForme::Courbe, .Points = {gauche, milieu, droite}, .Trait = Noir, .Epaisseur = Trait};
}

void AjouterRire(Dessin& visage)
{
    visage.Formes.push_back({.Genre = GenreForme::Polygone,
                             .Points = {{7, 18}, {25, 18}, {23.5, 22.5}, {20, 26}, {16, 27}, {12, 26}, {8.5, 22.5}},
                             .Trait = Noir,
                             .Epaisseur = Trait,
                             .Fond = Blanc});
    visage.Formes.push_back({.Genre = GenreForme::Ellipse,
                             .Points = {{12, 21.5}, {20, 26.5}},
                             .Trait = CouleurAuto,
                             .Fond = Rouge}); // tongue
}

} // namespace

Dessin Visage(int humeur)
{
    assert(humeur >= 0 && humeur < NombreVisages);
    Dessin visage{Côté, Côté, {Ovale({1, 1}, {31, 31}, Jaune)}};
    visage.Formes.push_back(Ovale({9.5, 7}, {13, 14}, Noir));
    visage.Formes.push_back(Ovale({19, 7}, {22.5, 14}, Noir));
    switch (humeur) {
    case 0:
        visage.Formes.push_back(Arc({14.5, 14}, {16, 17}, {17.5, 14}));
        AjouterRire(visage);
        break;
    case 1:
        AjouterRire(visage);
        break;
    case 2:
        visage.Formes.push_back(Arc({9, 20}, {16, 27}, {23, 20}));
        break;
    case 3:
        visage.Formes.push_back(
            {.Genre = GenreForme::Tracé, .Points = {{10, 22}, {22, 22}}, .Trait = Noir, .Epaisseur = Trait});
        break;
    default:
        visage.Formes.push_back(Arc({9, 25}, {16, 18}, {23, 25}));
        break;
    }
    return visage;
}

} // namespace tirelune
