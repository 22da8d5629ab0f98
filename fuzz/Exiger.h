// What a target holds to be true: the fuzzer keeps the input that shows otherwise.
#pragma once
#include <cstdio>
#include <cstdlib>

namespace tirelune {

inline void Exiger(bool vrai, const char* fichier = __builtin_FILE(), int ligne = __builtin_LINE())
{
    if (vrai)
        return;
    std::fprintf(stderr, "%s:%d: this does not hold\n", fichier, ligne);
    std::abort();
}

} // namespace tirelune
