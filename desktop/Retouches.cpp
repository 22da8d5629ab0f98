#include "desktop/Retouches.h"

#include <algorithm>
#include <utility>

namespace tirelune {

void Retouches::Noter(std::size_t début, std::size_t retirés, std::size_t ajoutés)
{
    const auto premier = std::lower_bound(liste_.begin(), liste_.end(), début,
                                          [](const Retouche& r, std::size_t p) { return r.Début + r.Nouveaux < p; });
    auto dernier = premier; // behind the last one that the edit touches
    std::size_t gauche = début;
    std::size_t droite = début + retirés;
    std::size_t anciens = 0;
    std::size_t nouveaux = 0;
    for (; dernier != liste_.end() && dernier->Début <= début + retirés; ++dernier) {
        gauche = std::min(gauche, dernier->Début);
        droite = std::max(droite, dernier->Début + dernier->Nouveaux);
        anciens += dernier->Anciens;
        nouveaux += dernier->Nouveaux;
    }
    const Retouche fondue{gauche, droite - gauche - nouveaux + anciens, droite - gauche - retirés + ajoutés};
    for (auto suivante = dernier; retirés != ajoutés && suivante != liste_.end(); ++suivante)
        suivante->Début = suivante->Début - retirés + ajoutés;
    if (premier == dernier) {
        liste_.insert(premier, fondue);
        return;
    }
    *premier = fondue;
    liste_.erase(premier + 1, dernier);
}

void Retouches::NoterMontrée(std::size_t début, std::size_t retirés, std::size_t ajoutés)
{
    Noter(début, retirés, ajoutés);
    const auto elle = std::lower_bound(liste_.begin(), liste_.end(), début,
                                       [](const Retouche& r, std::size_t p) { return r.Début + r.Nouveaux < p; });
    elle->Anciens = elle->Anciens - retirés + ajoutés;
}

std::vector<Retouche> Retouches::Prendre()
{
    static constexpr std::size_t Voisinage = 1000;
    std::vector<Retouche> réunies;
    for (const auto& retouche : std::exchange(liste_, {})) {
        const bool surPlace = retouche.Anciens == retouche.Nouveaux;
        if (!réunies.empty() && surPlace && réunies.back().Anciens == réunies.back().Nouveaux &&
            retouche.Début - (réunies.back().Début + réunies.back().Nouveaux) <= Voisinage) {
            réunies.back().Nouveaux = retouche.Début + retouche.Nouveaux - réunies.back().Début;
            réunies.back().Anciens = réunies.back().Nouveaux;
        } else {
            réunies.push_back(retouche);
        }
    }
    return réunies;
}

} // namespace tirelune
