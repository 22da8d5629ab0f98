// Reads a text and writes it again as the program does: `recopier-texte IN OUT`.
#include "core/EcrivainRtf.h"
#include "core/LecteurRtf.h"
#include "tools/Octets.h"

#include <iostream>
#include <span>

using namespace tirelune;

int main(int nombre, char** arguments)
{
    const std::span paramètres(arguments, static_cast<std::size_t>(nombre));
    if (paramètres.size() != 3) {
        std::cerr << "Usage : recopier-texte ORIGINAL COPIE\n";
        return 1;
    }
    const auto octets = LireOctets(paramètres[1]);
    if (!octets) {
        std::cerr << paramètres[1] << " : impossible d'ouvrir ce fichier.\n";
        return 1;
    }
    const auto texte = LireRtf(*octets);
    if (!texte) {
        std::cerr << paramètres[1] << " : ce fichier n'est pas un texte RTF.\n";
        return 1;
    }
    if (!EcrireOctets(paramètres[2], EcrireRtf(*texte))) {
        std::cerr << paramètres[2] << " : impossible d'écrire ce fichier.\n";
        return 1;
    }
    return 0;
}
