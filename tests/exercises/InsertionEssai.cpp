#include "exercises/Insertion.h"

#include "tests/support/Banc.h"

namespace tirelune {

namespace {

class EcranColonne final : public Ecran {
public:
    explicit EcranColonne(Application& application) : Ecran(application, "EcranColonne", u"") {}

    Tableau<Label> lbl{*this, "lbl", 4, {.BackColor = Blanc}};

private:
    Arrangement Disposer() override { return Colonne{lbl}; }
};

std::vector<Texte> Déplacés(int de, int vers)
{
    std::vector<Texte> colonne{u"a", u"b", u"c", u"d"};
    Déplacer(colonne, {de, vers});
    return colonne;
}

std::optional<Déplacement> Cliquer(EcranColonne& écran, int i)
{
    return CliquerColonne(écran.lbl, i, Blanc, Jaune);
}

} // namespace

TEST(Insertion, CeQuiEstEntreRemonteOuDescend)
{
    EXPECT_EQ(Déplacés(0, 3), (std::vector<Texte>{u"b", u"c", u"d", u"a"}));
    EXPECT_EQ(Déplacés(3, 0), (std::vector<Texte>{u"d", u"a", u"b", u"c"}));
    EXPECT_EQ(Déplacés(1, 2), (std::vector<Texte>{u"a", u"c", u"b", u"d"}));
    EXPECT_EQ(Déplacés(2, 1), (std::vector<Texte>{u"a", u"c", u"b", u"d"}));
    EXPECT_EQ(Déplacés(2, 0), (std::vector<Texte>{u"c", u"a", u"b", u"d"}));
    EXPECT_EQ(Déplacés(1, 1), (std::vector<Texte>{u"a", u"b", u"c", u"d"}));
}

TEST(Insertion, SeulDansSaColonne)
{
    std::vector<Texte> colonne{u"a"};
    Déplacer(colonne, {0, 0});
    EXPECT_EQ(colonne, (std::vector<Texte>{u"a"}));
}

TEST(Insertion, PremierClicPrendEtLeSecondDéplace)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranColonne>();
    EXPECT_EQ(Cliquer(écran, 3), std::nullopt);
    EXPECT_EQ(écran.lbl(3).BackColor, Jaune);
    EXPECT_EQ(Cliquer(écran, 1), (Déplacement{3, 1}));
    for (auto& lbl : écran.lbl)
        EXPECT_EQ(lbl.BackColor, Blanc);
}

TEST(Insertion, ClicSurCeQuiEstPrisLeRepose)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranColonne>();
    EXPECT_EQ(Cliquer(écran, 0), std::nullopt);
    EXPECT_EQ(Cliquer(écran, 0), std::nullopt);
    EXPECT_EQ(écran.lbl(0).BackColor, Blanc);
}

TEST(Insertion, CeQuiEstFixéNeSePrendNiNeReçoit)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranColonne>();
    écran.lbl(0).BackColor = Cyan;
    EXPECT_EQ(Cliquer(écran, 0), std::nullopt);
    EXPECT_EQ(écran.lbl(0).BackColor, Cyan);
    EXPECT_EQ(Cliquer(écran, 2), std::nullopt);
    EXPECT_EQ(Cliquer(écran, 0), std::nullopt);
    EXPECT_EQ(écran.lbl(0).BackColor, Cyan);
    EXPECT_EQ(écran.lbl(2).BackColor, Jaune) << "reste pris";
}

} // namespace tirelune
