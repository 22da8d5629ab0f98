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
    return std::exchange(liste_, {});
}
