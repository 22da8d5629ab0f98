#include "exercises/spelling/Graphèmes.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr std::size_t LongueurMaximum = 3;

} // namespace

PlacesDesGraphèmes::PlacesDesGraphèmes(const Texte& texte) : texte_(texte)
{
    static constexpr std::size_t Usuels = 256; // all first letters are among these characters
    std::array<std::vector<std::size_t>, Usuels> parInitiale;
    for (std::size_t g = 0; g < Graphèmes.size(); ++g)
        parInitiale[Graphèmes[g].front()].push_back(g);
    for (std::size_t place = 0; place < texte.size(); ++place) {
        if (texte[place] >= Usuels)
            continue;
        for (const auto g : parInitiale[texte[place]]) {
            if (EstEn(g, place))
                places_[g].push_back(place);
        }
    }
}

bool PlacesDesGraphèmes::EstEn(std::size_t graphème, std::size_t place) const
{
    return VueTexte{texte_}.substr(place).starts_with(Graphèmes[graphème]);
}

std::optional<std::size_t> PlacesDesGraphèmes::Chercher(std::size_t graphème, std::size_t départ) const
{
    const auto& places = places_[graphème];
    auto ancienne = std::lower_bound(places.begin(), places.end(), départ);
    while (ancienne != places.end() && !EstEn(graphème, *ancienne))
        ++ancienne; // gone with a change
    auto trouvée = ancienne != places.end() ? std::optional{*ancienne} : std::nullopt;
    // What a change has brought reaches over its ends.
    for (const auto changée : changées_) {
        const auto premier = std::max(départ, changée - std::min(changée, LongueurMaximum - 1));
        for (auto place = premier; place < std::min(changée + LongueurMaximum, texte_.size()); ++place) {
            if ((!trouvée || place < *trouvée) && EstEn(graphème, place))
                trouvée = place;
        }
    }
    return trouvée;
}

} // namespace tirelune
