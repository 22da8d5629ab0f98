// Reads a text and lists its marked words: `banc-lire-rtf FILE [TIMES]`. Prints one line:
// seconds of the best time, MB/s, peak memory in KB, characters, marked words.
#include "core/LecteurRtf.h"
#include "tools/Octets.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <span>
#include <string>

using namespace tirelune;

namespace {

// Of the whole process, from what the kernel tells about it; 0 elsewhere than on Linux.
long MémoireMaximale()
{
    std::ifstream statut("/proc/self/status");
    for (std::string mot; statut >> mot;) {
        long kilooctets = 0;
        if (mot == "VmHWM:" && statut >> kilooctets)
            return kilooctets;
    }
    return 0;
}

} // namespace

int main(int nombre, char** arguments)
{
    using Horloge = std::chrono::steady_clock;
    const std::span paramètres(arguments, static_cast<std::size_t>(nombre));
    if (paramètres.size() < 2) {
        std::cerr << "Usage : banc-lire-rtf FICHIER [FOIS]\n";
        return 1;
    }
    const auto fois = paramètres.size() > 2 ? std::stoi(paramètres[2]) : 1;
    std::size_t caractères = 0;
    std::size_t mots = 0;
    std::size_t octetsLus = 0;
    double meilleur = 1e9;
    for (int i = 0; i < fois; ++i) {
        const auto début = Horloge::now();
        const auto octets = LireOctets(paramètres[1]);
        const auto texte = octets ? LireRtf(*octets) : std::nullopt;
        if (!texte) {
            std::cerr << paramètres[1] << " : illisible\n";
            return 1;
        }
        mots = MotsMarqués(*texte).size();
        meilleur = std::min(meilleur, std::chrono::duration<double>(Horloge::now() - début).count());
        caractères = texte->Longueur();
        octetsLus = octets->size();
    }
    std::cout << meilleur << ' ' << static_cast<double>(octetsLus) / meilleur / 1e6 << ' ' << MémoireMaximale() << ' '
              << caractères << ' ' << mots << '\n';
    return 0;
}
