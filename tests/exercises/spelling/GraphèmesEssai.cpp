#include "exercises/spelling/Graphèmes.h"

#include <gtest/gtest.h>

#include <random>

namespace tirelune {

TEST(Graphèmes, LesDeuxDUnePaireOntLaMêmeLongueurEtDiffèrent)
{
    for (std::size_t g = 0; g < Graphèmes.size(); g += 2) {
        EXPECT_EQ(Graphèmes[g].size(), Graphèmes[g + 1].size());
        EXPECT_NE(Graphèmes[g], Graphèmes[g + 1]);
    }
}

TEST(Graphèmes, PremièrePlaceÀPartirDUnePlace)
{
    const Texte texte = u"un oiseau, un roi";
    const PlacesDesGraphèmes places{texte};
    EXPECT_EQ(places.Chercher(0, 0), 3U);
    EXPECT_EQ(places.Chercher(0, 3), 3U);
    EXPECT_EQ(places.Chercher(0, 4), 15U);
    EXPECT_EQ(places.Chercher(0, 16), std::nullopt);
    EXPECT_EQ(places.Chercher(71, 0), std::nullopt);
}

TEST(Graphèmes, CeQuiAChangéSeRetrouveCommeParUneRecherche)
{
    std::mt19937 dés{7};
    static constexpr VueTexte lettres = u"aoiun gj tripl";
    for (int tour = 0; tour < 200; ++tour) {
        Texte texte;
        for (int i = 0; i < 80; ++i)
            texte += lettres[dés() % lettres.size()];
        PlacesDesGraphèmes places{texte};
        for (int faute = 0; faute < 20; ++faute) {
            const auto g = dés() % Graphèmes.size();
            const auto départ = dés() % (texte.size() + 1);
            const auto place = texte.find(Graphèmes[g], départ);
            EXPECT_EQ(places.Chercher(g, départ), place == Texte::npos ? std::nullopt : std::optional{place});
            if (place == Texte::npos)
                continue;
            texte.replace(place, Graphèmes[g].size(), Graphèmes[g ^ 1U]);
            places.Noter(place);
        }
    }
}

} // namespace tirelune
