#include "desktop/IconesBoites.h"

#include "core/Crayon.h"

#include <utility>

namespace tirelune {

using namespace Crayon;

namespace {

constexpr Couleur Encre = Couleur::Rvb(0x1B, 0x27, 0x45);
constexpr Couleur BleuProfond = Couleur::Rvb(0x1D, 0x5F, 0xBF);
constexpr Couleur RougeProfond = Couleur::Rvb(0xC0, 0x26, 0x2D);

// White on a disc.
Dessin SurDisque(std::vector<Forme> formes, Couleur disque)
{
    auto dessin = Dessiner(std::move(formes), Blanc);
    for (auto& forme : dessin.Formes)
        forme.Epaisseur = 4.5;
    dessin.Formes.insert(
        dessin.Formes.begin(),
        {.Genre = GenreForme::Ellipse, .Points = {{2, 2}, {46, 46}}, .Trait = CouleurAuto, .Fond = disque});
    return dessin;
}

} // namespace

Dessin IcôneInformation()
{
    return SurDisque({Pastille(24, 14, 3), Trait({{24, 23}, {24, 35}})}, BleuProfond);
}

Dessin IcôneQuestion()
{
    return SurDisque({Arc(24, 18, 6.5, 180, 405), Trait({{28.6, 22.6}, {24, 27}, {24, 28}}), Pastille(24, 36, 3)},
                     BleuProfond);
}

Dessin IcôneErreur()
{
    return SurDisque({Trait({{16, 16}, {32, 32}}), Trait({{32, 16}, {16, 32}})}, RougeProfond);
}

Dessin IcôneSuite()
{
    return Dessiner({Trait({{10, 10}, {22, 24}, {10, 38}}), Trait({{26, 10}, {38, 24}, {26, 38}})}, Encre);
}

} // namespace tirelune
