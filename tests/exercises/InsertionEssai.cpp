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
    return CliquerColonne(écran.lbl, i, {Blanc, Jaune});
}

// What a column answers to the hands, and the moves that it has told.
struct Colonne4 {
    explicit Colonne4(EcranColonne& écran) : lbl(écran.lbl)
    {
        RelierColonne(lbl, {Blanc, Jaune}, [this](const std::optional<Déplacement>& un) { dits.push_back(un); });
    }

    Tableau<Label>& lbl;
    std::vector<std::optional<Déplacement>> dits;
};

std::vector<Couleur> Fonds(const EcranColonne& écran)
{
    std::vector<Couleur> fonds;
    for (int i = 0; i < écran.lbl.Nombre(); ++i)
        fonds.push_back(écran.lbl(i).BackColor);
    return fonds;
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

TEST(Insertion, GlisserFaitLeMêmeDéplacementQueDeuxClics)
{
    for (const auto& [de, vers] : {Déplacement{0, 3}, Déplacement{3, 0}, Déplacement{2, 1}}) {
        Banc banc;
        auto& écran = banc.Ouvrir<EcranColonne>();
        Colonne4 colonne{écran};
        colonne.lbl(de).Cliquer();
        colonne.lbl(vers).Cliquer();
        const auto clics = colonne.dits.back();
        EXPECT_EQ(clics, (Déplacement{de, vers}));
        EXPECT_TRUE(colonne.lbl(de).Prendre());
        EXPECT_EQ(écran.lbl(de).BackColor, Jaune);
        colonne.lbl(de).Lâcher(&colonne.lbl(vers));
        EXPECT_EQ(colonne.dits.back(), clics);
        EXPECT_EQ(Fonds(écran), (std::vector<Couleur>(4, Blanc)));
    }
}

TEST(Insertion, GlisserReposeCeQuiÉtaitPris)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranColonne>();
    Colonne4 colonne{écran};
    colonne.lbl(1).Cliquer();
    EXPECT_TRUE(colonne.lbl(3).Prendre());
    EXPECT_EQ(Fonds(écran), (std::vector<Couleur>{Blanc, Blanc, Blanc, Jaune}));
    colonne.lbl(3).Lâcher(&colonne.lbl(0));
    EXPECT_EQ(colonne.dits.back(), (Déplacement{3, 0}));
}

TEST(Insertion, CeQuiEstPrisParUnClicSeGlisse)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranColonne>();
    Colonne4 colonne{écran};
    colonne.lbl(2).Cliquer();
    EXPECT_TRUE(colonne.lbl(2).Prendre());
    EXPECT_EQ(écran.lbl(2).BackColor, Jaune);
    colonne.lbl(2).Lâcher(&colonne.lbl(0));
    EXPECT_EQ(colonne.dits.back(), (Déplacement{2, 0}));
}

TEST(Insertion, LâcherAilleursReposeALaMêmePlace)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranColonne>();
    Colonne4 colonne{écran};
    écran.lbl(0).BackColor = Cyan;
    for (const Elément* cible : std::initializer_list<const Elément*>{nullptr, &colonne.lbl(2), &colonne.lbl(0)}) {
        EXPECT_TRUE(colonne.lbl(2).Prendre());
        colonne.lbl(2).Lâcher(cible);
        EXPECT_EQ(colonne.dits.back(), std::nullopt);
        EXPECT_EQ(Fonds(écran), (std::vector<Couleur>{Cyan, Blanc, Blanc, Blanc}));
    }
}

TEST(Insertion, CeQuiEstFixéNeSeGlissePas)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranColonne>();
    Colonne4 colonne{écran};
    écran.lbl(0).BackColor = Cyan;
    colonne.lbl(1).Cliquer();
    EXPECT_FALSE(colonne.lbl(0).Prendre());
    EXPECT_EQ(Fonds(écran), (std::vector<Couleur>{Cyan, Jaune, Blanc, Blanc}));
}

} // namespace tirelune
