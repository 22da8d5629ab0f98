#include "exercises/TirageVocabulaire.h"

#include <algorithm>
#include <set>

namespace tirelune {

namespace {

int CompterDifférents(const std::vector<Texte>& mots)
{
    return static_cast<int>(std::set<VueTexte>(mots.begin(), mots.end()).size());
}

} // namespace

int CompterMotsDifférents(const ComboBox& vocabulaire)
{
    return CompterDifférents(vocabulaire.Eléments());
}

std::vector<Texte> TirerMotsDifférents(const std::vector<Texte>& mots, int limite, Plateforme& plateforme)
{
    const auto nombre = static_cast<std::size_t>(std::max(0, std::min(limite, CompterDifférents(mots))));
    std::vector<Texte> tirés;
    while (tirés.size() < nombre) {
        const auto& candidat = mots[Tirer(plateforme, mots.size())];
        if (std::find(tirés.begin(), tirés.end(), candidat) == tirés.end())
            tirés.push_back(candidat);
    }
    return tirés;
}

std::vector<Texte> TirerMotsDifférents(const ComboBox& vocabulaire, int limite, Plateforme& plateforme)
{
    return TirerMotsDifférents(vocabulaire.Eléments(), limite, plateforme);
}

} // namespace tirelune
