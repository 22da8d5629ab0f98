#include "core/Enregistrements.h"

#include "core/FichierChamps.h"
#include "tests/support/Banc.h"
#include "tests/support/EcranTexte.h"

namespace tirelune {

namespace {

using Champs = std::vector<Texte>;

class Enregistrements : public ::testing::Test {
protected:
    Banc banc;
    EcranTexte écran{banc.application};
    Grid grille{écran, "grille", 0, 2};

    [[nodiscard]] std::vector<Champs> Cellules() const
    {
        std::vector<Champs> cellules;
        for (int rangée = 0; rangée < grille.Rows(); ++rangée) {
            cellules.emplace_back();
            for (int colonne = 0; colonne < grille.Cols(); ++colonne)
                cellules.back().push_back(grille.TextMatrix(rangée, colonne));
        }
        return cellules;
    }
};

} // namespace

TEST_F(Enregistrements, RienDonneAucuneRangée)
{
    EXPECT_FALSE(RangerFiches({}, grille, 0, Colonnes::AuBesoin));
    EXPECT_EQ(grille.Rows(), 0);
    EXPECT_TRUE(FichesDe(grille, 0).empty());
}

TEST_F(Enregistrements, ChaqueFicheAUneRangéeEtLaisseVideCeQuiLuiManque)
{
    EXPECT_FALSE(RangerFiches({u"*", u"chat", u" Il miaule. ", u"*", u"*", u"chien"}, grille, 0, Colonnes::Fixes));
    EXPECT_EQ(Cellules(), (std::vector<Champs>{{u"chat", u" Il miaule. "}, {u"", u""}, {u"chien", u""}}));
}

TEST_F(Enregistrements, LaGrilleSÉlargitÀLaPlusLongueFiche)
{
    EXPECT_FALSE(RangerFiches({u"*", u"a", u"*", u"b", u"c", u"d", u"e"}, grille, 0, Colonnes::AuBesoin));
    EXPECT_EQ(Cellules(), (std::vector<Champs>{{u"a", u"", u"", u""}, {u"b", u"c", u"d", u"e"}}));
}

TEST_F(Enregistrements, CeQuiEstEnTropEstDit)
{
    const auto perdus = RangerFiches({u"*", u"a", u"b", u"c", u"*", u"d"}, grille, 0, Colonnes::Fixes);
    EXPECT_TRUE(perdus);
    EXPECT_TRUE(perdus.EnTrop);
    EXPECT_FALSE(perdus.SansFiche);
    EXPECT_EQ(Cellules(), (std::vector<Champs>{{u"a", u"b"}, {u"d", u""}}));
}

TEST_F(Enregistrements, CeQuiPrécèdeLaPremièreFicheEstDit)
{
    const auto perdus = RangerFiches({u"a", u"*", u"b"}, grille, 0, Colonnes::AuBesoin);
    EXPECT_TRUE(perdus);
    EXPECT_TRUE(perdus.SansFiche);
    EXPECT_FALSE(perdus.EnTrop);
    EXPECT_EQ(Cellules(), (std::vector<Champs>{{u"b", u""}}));
}

TEST_F(Enregistrements, LesRangéesDuDessusRestentEtLesAnciennesFichesPartent)
{
    grille.Rows(3);
    grille.TextMatrix(0, 0, u"moyennes");
    grille.TextMatrix(1, 1, u"ancien");
    EXPECT_FALSE(RangerFiches({u"*", u"a"}, grille, 1, Colonnes::Fixes));
    EXPECT_EQ(Cellules(), (std::vector<Champs>{{u"moyennes", u""}, {u"a", u""}}));
}

TEST_F(Enregistrements, CeQuiEstComposéSeRelit)
{
    const Champs champs{u"*", u"a", u"", u"*", u" b ", u"deux\r\nlignes"};
    EXPECT_FALSE(RangerFiches(champs, grille, 0, Colonnes::Fixes));
    EXPECT_EQ(FichesDe(grille, 0), champs);
    EXPECT_EQ(FichesDe(grille, 1), (Champs{u"*", u" b ", u"deux\r\nlignes"}));
}

} // namespace tirelune
