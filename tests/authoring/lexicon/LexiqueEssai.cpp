#include "authoring/lexicon/Lexique.h"

#include "core/FichierChamps.h"
#include "tests/support/Banc.h"
#include "tests/support/EcranTexte.h"

namespace tirelune {

namespace {

using Champs = std::vector<Texte>;

class GrillesDuLexique : public ::testing::Test {
protected:
    Banc banc;
    EcranTexte écran{banc.application};
    Grid grille{écran, "grille", 0, ColonnesAuDépart};
    Grid général{écran, "général", 0, ColonnesDictionnaire};

    // One file after another, in the grid that is there.
    Chargement LireFichierDe(const Champs& champs, Cellules écrites)
    {
        return ChargerLexique(banc.EcrireChamps("Essai.dat", champs), grille, écrites);
    }
    static Champs Rangée(const Grid& une, int rangée)
    {
        Champs cellules;
        for (int colonne = 0; colonne < une.Cols(); ++colonne)
            cellules.push_back(une.TextMatrix(rangée, colonne));
        return cellules;
    }
};

} // namespace

TEST_F(GrillesDuLexique, UneGrilleVideDonneUnFichierVide)
{
    for (const auto écrites : {Cellules::Toutes, Cellules::SansLesVides, Cellules::JusquAuVide, Cellules::DeuxAuPlus})
        EXPECT_EQ(ComposerChamps(ChampsDuLexique(grille, écrites)), "");
}

TEST_F(GrillesDuLexique, LesDictionnairesEcriventToutesLeursCellules)
{
    AjouterRangée(général, u"phare");
    AjouterRangée(général, u"port");
    général.TextMatrix(1, ColonneExemple, u" Le port. ");
    EXPECT_EQ(ChampsDuLexique(général, Cellules::Toutes),
              (Champs{u"*", u"phare", u"", u"", u"*", u"port", u"", u" Le port. "}));
    général.Cols(4);
    EXPECT_EQ(ChampsDuLexique(général, Cellules::Toutes).size(), 10U);
}

TEST_F(GrillesDuLexique, UneFamilleSansSousThèmeGardeSaPlaceVide)
{
    const Champs champs{u"*", u"mer", u"", u"la vague", u"*", u"ciel", u"nuit", u"*", u"eau", u""};
    EXPECT_EQ(LireFichierDe(champs, Cellules::SansLesVides), Chargement::Entier);
    EXPECT_EQ(grille.TextMatrix(0, PremierMotDeFamille), u"la vague");
    EXPECT_EQ(ChampsDuLexique(grille, Cellules::SansLesVides), champs);
}

TEST_F(GrillesDuLexique, UneFamilleTrouéeSEcritSansSonTrou)
{
    LireFichierDe({u"*", u"mer", u"", u"a", u"", u"  ", u"b"}, Cellules::SansLesVides);
    EXPECT_EQ(ChampsDuLexique(grille, Cellules::SansLesVides), (Champs{u"*", u"mer", u"", u"a", u"b"}));
}

TEST_F(GrillesDuLexique, UneRangéeDeSynonymesSArrêteÀSonTrouEtLeFichierNEstPasEntier)
{
    EXPECT_EQ(LireFichierDe({u"*", u"content", u"gai", u"", u"ravi", u"*", u"", u"perdu"}, Cellules::JusquAuVide),
              Chargement::Partiel);
    EXPECT_EQ(ChampsDuLexique(grille, Cellules::JusquAuVide), (Champs{u"*", u"content", u"gai", u"*"}));
    EXPECT_EQ(LireFichierDe({u"*", u"content", u"gai", u" ", u"ravi", u""}, Cellules::JusquAuVide), Chargement::Entier);
    EXPECT_EQ(ChampsDuLexique(grille, Cellules::JusquAuVide), (Champs{u"*", u"content", u"gai", u" ", u"ravi"}));
}

TEST_F(GrillesDuLexique, UnGenreAAuPlusTroisChamps)
{
    EXPECT_EQ(LireFichierDe({u"*", u"chat", u"chatte", u"chaton", u"*", u"roi"}, Cellules::DeuxAuPlus),
              Chargement::Partiel);
    EXPECT_EQ(ChampsDuLexique(grille, Cellules::DeuxAuPlus), (Champs{u"*", u"chat", u"chatte", u"*", u"roi"}));
}

TEST_F(GrillesDuLexique, UnFichierAbsentOuAbîméNeChargeRien)
{
    EXPECT_EQ(ChargerLexique(banc.dossier / "rien.dat", grille, Cellules::Toutes), Chargement::Aucun);
    EXPECT_EQ(LireFichierDe({u"mer", u"*"}, Cellules::Toutes), Chargement::Aucun);
    EXPECT_EQ(grille.Rows(), 0);
}

TEST_F(GrillesDuLexique, UneDéfinitionSurPlusieursLignesSurvitÀLEnregistrement)
{
    AjouterRangée(général, u"phare");
    général.TextMatrix(0, ColonneDéfinition, u"Une tour.\r\nUne lampe.");
    banc.EcrireChamps("Essai.dat", ChampsDuLexique(général, Cellules::Toutes));
    général.Rows(0);
    EXPECT_EQ(ChargerLexique(banc.dossier / "Essai.dat", général, Cellules::Toutes), Chargement::Entier);
    EXPECT_EQ(général.TextMatrix(0, ColonneDéfinition), u"Une tour.\r\nUne lampe.");
}

TEST_F(GrillesDuLexique, UneRangéePleineElargitLaGrille)
{
    AjouterRangée(grille, u"content");
    AjouterRangée(grille, u"ancien");
    AjouterCellule(grille, 0, PremierDépendant, u"gai");
    EXPECT_EQ(grille.Cols(), 2);
    AjouterCellule(grille, 0, PremierDépendant, u"ravi");
    EXPECT_EQ(grille.Cols(), 3);
    EXPECT_EQ(Rangée(grille, 0), (Champs{u"content", u"gai", u"ravi"}));
    EXPECT_EQ(Rangée(grille, 1), (Champs{u"ancien", u"", u""}));
    AjouterCellule(grille, 1, PremierDépendant, u"vieux");
    EXPECT_EQ(grille.Cols(), 3);
    EXPECT_EQ(Rangée(grille, 1), (Champs{u"ancien", u"vieux", u""}));
}

TEST_F(GrillesDuLexique, UneCelluleRetiréeNeLaissePasDeTrou)
{
    LireFichierDe({u"*", u"content", u"gai", u"ravi", u"joyeux"}, Cellules::JusquAuVide);
    RetirerCellule(grille, 0, 2);
    EXPECT_EQ(Rangée(grille, 0), (Champs{u"content", u"gai", u"joyeux", u""}));
    RetirerCellule(grille, 0, 2);
    RetirerCellule(grille, 0, 1);
    EXPECT_EQ(Rangée(grille, 0), (Champs{u"content", u"", u"", u""}));
    AjouterCellule(grille, 0, PremierDépendant, u"ravi");
    EXPECT_EQ(Rangée(grille, 0), (Champs{u"content", u"ravi", u"", u""}));
}

TEST_F(GrillesDuLexique, RetirerEtRenommerTouchentToutesLesRangéesDuMot)
{
    LireFichierDe({u"*", u"mer", u"a", u"*", u"ciel", u"b", u"*", u"mer", u"c"}, Cellules::SansLesVides);
    RenommerPartout(grille, 0, u"mer", u"eau");
    EXPECT_EQ(RangéeDe(grille, 0, u"mer"), -1);
    EXPECT_EQ(RangéeDe(grille, 0, u"eau", 1), 2);
    RetirerRangées(grille, 0, u"eau");
    ASSERT_EQ(grille.Rows(), 1);
    EXPECT_EQ(grille.TextMatrix(0, 1), u"b");
    RetirerRangées(grille, 0, u"ciel");
    EXPECT_EQ(grille.Rows(), 0);
}

TEST_F(GrillesDuLexique, LesClésViennentUneFoisEtSansVide)
{
    LireFichierDe({u"*", u"mer", u"*", u"", u"a", u"*", u"ciel", u"*", u"mer"}, Cellules::SansLesVides);
    EXPECT_EQ(Clés(grille), (Champs{u"mer", u"ciel"}));
}

TEST_F(GrillesDuLexique, LeDictionnaireDuTexteRevientDansLeGénéral)
{
    Grid duTexte{écran, "duTexte", 0, ColonnesDictionnaire};
    AjouterRangée(duTexte, u"phare");
    duTexte.TextMatrix(0, ColonneDéfinition, u"Une tour.");
    AjouterRangée(duTexte, u"port");
    duTexte.TextMatrix(1, ColonneDéfinition, u"La sienne.");
    AjouterRangée(duTexte, u"phare");
    AjouterRangée(général, u"port");
    général.TextMatrix(0, ColonneDéfinition, u"La générale.");

    EXPECT_EQ(FusionnerDictionnaires(duTexte, général), (Champs{u"phare"}));
    ASSERT_EQ(général.Rows(), 2);
    EXPECT_EQ(Rangée(général, 0), (Champs{u"port", u"La générale.", u""}));
    EXPECT_EQ(Rangée(général, 1), (Champs{u"phare", u"Une tour.", u""}));
}

TEST_F(GrillesDuLexique, LaPremièreRangéeVideDuGénéralSEnVaAvecLaFusion)
{
    Grid duTexte{écran, "duTexte", 0, ColonnesDictionnaire};
    général.AddRow();
    EXPECT_TRUE(FusionnerDictionnaires(duTexte, général).empty());
    EXPECT_EQ(général.Rows(), 1) << "sans mot du texte, rien n'est fusionné";
    AjouterRangée(duTexte, u"");
    AjouterRangée(duTexte, u"phare");
    EXPECT_EQ(FusionnerDictionnaires(duTexte, général), (Champs{u"phare"}));
    ASSERT_EQ(général.Rows(), 1);
    EXPECT_EQ(général.TextMatrix(0, ColonneMot), u"phare");
    général.Rows(0);
    FusionnerDictionnaires(duTexte, général);
    EXPECT_EQ(général.Rows(), 1);
}

} // namespace tirelune
