#include "core/Crayon.h"
#include "core/Enseigne.h"
#include "followup/Exercices.h"
#include "followup/Pictogrammes.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace tirelune;

namespace {

constexpr Couleur Teinte = Couleur::Rvb(0x7A, 0x3C, 0x00);

// All of it, half the width of its lines included.
bool TientDansSonChamp(const Dessin& dessin)
{
    return std::ranges::all_of(dessin.Formes, [&](const Forme& forme) {
        const double bord = forme.Trait.EstAutomatique() ? 0 : forme.Epaisseur / 2;
        return std::ranges::all_of(forme.Points, [&](const Point& point) {
            return point.X >= bord && point.Y >= bord && point.X <= dessin.Largeur - bord &&
                   point.Y <= dessin.Hauteur - bord;
        });
    });
}

// Its lines and what they fill have this one colour.
bool EstDUneTeinte(const Dessin& dessin, Couleur teinte)
{
    return std::ranges::all_of(dessin.Formes, [&](const Forme& forme) {
        return (forme.Trait == teinte && forme.Fond.EstAutomatique()) ||
               (forme.Fond == teinte && forme.Trait.EstAutomatique());
    });
}

} // namespace

TEST(Pictogrammes, ChaqueExerciceALeSienDansSonChampEtDUneTeinte)
{
    for (int i = 0; i < NombreExercices; ++i) {
        const auto pictogramme = Pictogramme(i, Teinte);
        EXPECT_FALSE(pictogramme.Formes.empty()) << i;
        EXPECT_EQ(pictogramme.Largeur, Crayon::Côté) << i;
        EXPECT_EQ(pictogramme.Hauteur, Crayon::Côté) << i;
        EXPECT_TRUE(TientDansSonChamp(pictogramme)) << i;
        EXPECT_TRUE(EstDUneTeinte(pictogramme, Teinte)) << i;
    }
}

TEST(Pictogrammes, AucunNEstCeluiDUnAutre)
{
    for (int i = 0; i < NombreExercices; ++i) {
        for (int j = 0; j < i; ++j)
            EXPECT_FALSE(Pictogramme(i, Teinte) == Pictogramme(j, Teinte)) << i << " " << j;
    }
}

TEST(Enseigne, TientDansSonChamp)
{
    EXPECT_TRUE(TientDansSonChamp(Enseigne()));
    EXPECT_TRUE(TientDansSonChamp(IcôneDuProgramme()));
}
