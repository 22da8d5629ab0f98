#include "exercises/Insertion.h"

#include <algorithm>

namespace tirelune {

void Déplacer(std::span<Texte> colonne, Déplacement déplacement)
{
    const auto [de, vers] = déplacement;
    const auto début = colonne.begin();
    if (de < vers)
        std::rotate(début + de, début + de + 1, début + vers + 1);
    else
        std::rotate(début + vers, début + de, début + de + 1);
}

} // namespace tirelune
