// Words and dice for the tests that need many of them.
#pragma once
#include "tests/support/Banc.h"

#include <cmath>

namespace tirelune {

// "mot00", "mot01"... in the order of the dictionary.
inline std::vector<Texte> Mots(int nombre)
{
    static constexpr int Base = 10;
    std::vector<Texte> mots;
    mots.reserve(static_cast<std::size_t>(nombre));
    for (int i = 0; i < nombre; ++i)
        mots.push_back(u"mot" + EnTexte(i / Base) + EnTexte(i % Base));
    return mots;
}

// Draws for ever, that reach every entry of a list sooner or later.
inline void TirerVarié(Banc& banc)
{
    static constexpr double Pas = 0.618033988749895;
    banc.plateforme.toujours = [dernier = 0.0]() mutable {
        dernier += Pas;
        dernier -= std::floor(dernier);
        return dernier;
    };
}

} // namespace tirelune
