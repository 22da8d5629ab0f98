#include "desktop/Retouches.h"

#include <algorithm>
#include <utility>

void Retouches::Noter(std::size_t début, std::size_t retirés, std::size_t ajoutés)
{
    const auto premier = std::lower_bound(liste_.begin(), liste_.end(), début,
                                          [](const Retouche& r, std::size_t p) { return r.début + r.nouveaux < p; });
    auto dernier = premier; // behind the last one that the edit touches
    std::size_t gauche = début;
    std::size_t droite = début + retirés;
    std::size_t anciens = 0;
    std::size_t nouveaux = 0;
    for (; dernier != liste_.end() && dernier->début <= début + retirés; ++dernier) {
        gauche = std::min(gauche, dernier->début);
        droite = std::max(droite, dernier->début + dernier->nouveaux);
        anciens += dernier->anciens;
        nouveaux += dernier->nouveaux;
    }
    const Retouche fondue{gauche, droite - gauche - nouveaux + anciens, droite - gauche - retirés + ajoutés};
    for (auto suivante = dernier; retirés != ajoutés && suivante != liste_.end(); ++suivante)
        suivante->début = suivante->début - retirés + ajoutés;
    if (premier == dernier) {
        liste_.insert(premier, fondue);
        return;
    }
    *premier = fondue;
    liste_.erase(premier + 1, dernier);
}

std::vector<Retouche> Retouches::Prendre()
{
    static constexpr std::size_t Voisinage = 1000;
    std::vector<Retouche> réunies;
    for (const auto& retouche : std::exchange(liste_, {})) {
        const bool surPlace = retouche.anciens == retouche.nouveaux;
        if (!réunies.empty() && surPlace && réunies.back().anciens == réunies.back().nouveaux &&
            retouche.début - (réunies.back().début + réunies.back().nouveaux) <= Voisinage) {
            réunies.back().nouveaux = retouche.début + retouche.nouveaux - réunies.back().début;
            réunies.back().anciens = réunies.back().nouveaux;
        } else {
            réunies.push_back(retouche);
        }
    }
    return réunies;
}
