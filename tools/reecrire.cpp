// Rewrites a file from the standard input by the routine behind every save: `reecrire FILE`. What it would tell the
// user goes to the error output; the code is 0, 1 where the file could not be created, 2 where it was not written
// whole.
#include "core/Fichiers.h"

#include <iostream>
#include <iterator>
#include <span>

using namespace tirelune;

int main(int nombre, char** arguments)
{
    const std::span paramètres(arguments, static_cast<std::size_t>(nombre));
    if (paramètres.size() != 2) {
        std::cerr << "Usage : reecrire FICHIER <CONTENU\n";
        return 3;
    }
    const std::string contenu{std::istreambuf_iterator<char>{std::cin}, {}};
    const auto échec = RéécrireFichier(paramètres[1], contenu);
    if (!échec)
        return 0;
    std::cerr << EnUtf8(MessageEchec(*échec, DepuisUtf8(paramètres[1]))) << '\n';
    return *échec == EchecFichier::Ouverture ? 1 : 2;
}
