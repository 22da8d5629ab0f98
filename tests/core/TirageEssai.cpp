#include "core/Tirage.h"

#include "tests/support/Banc.h"

namespace tirelune {

TEST(Tirage, DonneLaPartieEntière)
{
    Banc banc;
    banc.Hasards({0.0, 0.3, 0.3999, 0.4, 0.99999});
    for (const std::size_t attendu : {0U, 1U, 1U, 2U, 4U})
        EXPECT_EQ(Tirer(banc.plateforme, 5), attendu);
}

TEST(Tirage, UneEtendueFractionnaireSArrêteJusteAvantElle)
{
    Banc banc;
    banc.Hasards({0.99999, 0.9, 0.0});
    EXPECT_EQ(Tirer(banc.plateforme, 2.5), 2U);
    EXPECT_EQ(Tirer(banc.plateforme, 1.1), 0U);
    EXPECT_EQ(Tirer(banc.plateforme, 0), 0U);
}

TEST(Tirage, CeQuiEstRefuséEstTiréDeNouveau)
{
    Banc banc;
    banc.Hasards({0.0, 0.5, 0.1, 0.75});
    const auto tiré = TirerSauf(banc.plateforme, 4, [](std::size_t k) { return k < 3; });
    EXPECT_EQ(tiré, 3U);
}

TEST(Tirage, SansRefusUnSeulTirage)
{
    Banc banc;
    banc.Hasards({0.5});
    EXPECT_EQ(TirerSauf(banc.plateforme, 4, [](std::size_t) { return false; }), 2U);
}

TEST(Tirage, QuandToutEstRefuséRienNEstTiré)
{
    Banc banc; // a draw would fail the test
    EXPECT_EQ(TirerSauf(banc.plateforme, 4, [](std::size_t) { return true; }), std::nullopt);
    EXPECT_EQ(TirerSauf(banc.plateforme, 1, [](std::size_t) { return true; }), std::nullopt);
    EXPECT_EQ(TirerSauf(banc.plateforme, 0, [](std::size_t) { return false; }), std::nullopt);
}

TEST(Tirage, LaDernièreIssueDUneEtendueFractionnaireCompte)
{
    Banc banc;
    banc.Hasards({0.2, 0.99});
    EXPECT_EQ(TirerSauf(banc.plateforme, 2.5, [](std::size_t k) { return k != 2; }), 2U);
    EXPECT_EQ(TirerSauf(banc.plateforme, 2.0, [](std::size_t k) { return k != 2; }), std::nullopt);
}

} // namespace tirelune
