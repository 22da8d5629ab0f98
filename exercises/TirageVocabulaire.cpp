#include "exercises/TirageVocabulaire.h"

#include "core/Tirage.h"

#include <algorithm>
#include <set>

namespace tirelune {

int CompterMotsDifférents(const ComboBox& vocabulaire)
{
    const auto& mots = vocabulaire.Eléments();
    return static_cast<int>(std::set<VueTexte>(mots.begin(), mots.end()).size());
}

std::vector<Texte> TirerMotsDifférents(const std::vector<Texte>& mots, int limite, Plateforme& plateforme)
{
    std::vector<Texte> tirés;
    const auto déjàTiré = [&](std::size_t k) { return std::find(tirés.begin(), tirés.end(), mots[k]) != tirés.end(); };
    while (std::ssize(tirés) < limite) {
        const auto k = TirerSauf(plateforme, static_cast<double>(mots.size()), déjàTiré);
        if (!k)
            break;
        tirés.push_back(mots[*k]);
    }
    return tirés;
}

std::vector<Texte> TirerMotsDifférents(const ComboBox& vocabulaire, int limite, Plateforme& plateforme)
{
    return TirerMotsDifférents(vocabulaire.Eléments(), limite, plateforme);
}

Texte TirerEtRetirer(ComboBox& mots, Plateforme& plateforme)
{
    const auto k = static_cast<int>(Tirer(plateforme, mots.ListCount()));
    auto mot = mots.List(k);
    mots.RemoveItem(k);
    return mot;
}

} // namespace tirelune
