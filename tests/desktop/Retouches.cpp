#include "desktop/Retouches.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace tirelune {

TEST(Retouches, VoisinesSeFondent)
{
    Retouches retouches;
    for (std::size_t i = 0; i < 100; ++i)
        retouches.Noter(i, 1, 1);
    EXPECT_EQ(retouches.Prendre(), (std::vector<Retouche>{{0, 100, 100}}));
    EXPECT_TRUE(retouches.Vides());
}

TEST(Retouches, ÉloignéesRestentÀPart)
{
    Retouches retouches;
    retouches.Noter(10, 1, 1);
    retouches.Noter(2, 1, 3); // moves the other one
    EXPECT_EQ(retouches.Prendre(), (std::vector<Retouche>{{2, 1, 3}, {12, 1, 1}}));
}

TEST(Retouches, SurPlaceDansLeMêmeVoisinageSontUneSeule)
{
    Retouches retouches;
    for (std::size_t i = 0; i < 500; i += 7)
        retouches.Noter(i, 1, 1);
    retouches.Noter(50000, 1, 1);
    EXPECT_EQ(retouches.Prendre(), (std::vector<Retouche>{{0, 498, 498}, {50000, 1, 1}}));
}

TEST(Retouches, UneGrandeAvaleLesPetites)
{
    Retouches retouches;
    retouches.Noter(2, 1, 3);
    retouches.Noter(10, 2, 0);
    retouches.Noter(0, 20, 5);
    EXPECT_EQ(retouches.Prendre(), (std::vector<Retouche>{{0, 20, 5}}));
}

// An edit that the user has made stands in both texts: what waits is moved, and stays what it is.
TEST(Retouches, CelleQuiEstDéjàMontréeDéplaceLesAutres)
{
    Retouches retouches;
    retouches.Noter(10, 1, 3);
    retouches.NoterMontrée(0, 2, 5);
    EXPECT_EQ(retouches.Prendre(), (std::vector<Retouche>{{0, 5, 5}, {13, 1, 3}}));
    retouches.NoterMontrée(2, 7, 7);
    retouches.NoterMontrée(5, 2, 1);
    EXPECT_EQ(retouches.Prendre(), (std::vector<Retouche>{{2, 6, 6}}));
}

// Applying what was noted to the old text gives the new one, whatever the edits.
TEST(Retouches, MènentDeLAncienTexteAuNouveau)
{
    std::mt19937 dés{7};
    for (int partie = 0; partie < 200; ++partie) {
        std::string ancien(40, 'a');
        std::string texte = ancien;
        Retouches retouches;
        for (int i = 0; i < 12; ++i) {
            const auto début = dés() % (texte.size() + 1);
            const auto retirés = std::min<std::size_t>(dés() % 4, texte.size() - début);
            const auto ajoutés = dés() % 4;
            texte.replace(début, retirés, std::string(ajoutés, static_cast<char>('b' + i)));
            retouches.Noter(début, retirés, ajoutés);
        }
        std::size_t avant = 0;
        for (const auto& r : retouches.Prendre()) {
            EXPECT_GE(r.Début, avant);
            ancien.replace(r.Début, r.Anciens, texte, r.Début, r.Nouveaux);
            avant = r.Début + r.Nouveaux;
        }
        ASSERT_EQ(ancien, texte) << "partie " << partie;
    }
}

} // namespace tirelune
