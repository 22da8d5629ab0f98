#include "exercises/vocabulary/frmThèmes2.h"

#include "tests/support/Associations.h"

#include <set>

namespace tirelune {

namespace {

constexpr int IndexThèmes2 = 10;

frmThèmes2& OuvrirThèmes2(Banc& banc, const FichesEssai& fiches)
{
    EcrireFiches(banc, "Familles.dat", fiches);
    return OuvrirExercice<frmThèmes2>(banc, IndexThèmes2);
}

// Themes "a0", "a1"... without sub-themes, of that many words "c0", "d0"...
FichesEssai Familles(int nombre, int mots)
{
    auto fiches = FichesDeMots(nombre, mots + 2);
    for (auto& fiche : fiches)
        fiche[1].clear();
    return fiches;
}

// Draws the rows in the order of the file, and their first words.
void TirerDansLOrdre(Banc& banc, const FichesEssai& fiches)
{
    for (std::size_t i = 0; i < 10; ++i) {
        banc.Hasards({(static_cast<double>(i) + 0.5) / static_cast<double>(fiches.size())});
        const auto mots = fiches[i].size() - 2;
        for (std::size_t k = 0; k < std::min<std::size_t>(mots, 4); ++k)
            banc.Hasards({(static_cast<double>(k) + 0.5) / static_cast<double>(mots)});
    }
}

} // namespace

TEST(Thèmes2, LégendesDuDépart)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirThèmes2(banc, Familles(10, 5));
    EXPECT_EQ(écran.Caption, u"Thèmes (2) / Léa");
    EXPECT_EQ(écran.Label1.Caption, u" Choisis les mots correspondant à chaque thème. ");
    EXPECT_EQ(écran.lblRéponse(0).Caption, u"") << "sans invite";
    EXPECT_EQ(écran.lblThème(0).BackColor, Bleu);
    EXPECT_EQ(écran.lblThème(0).ForeColor, Cyan);
    EXPECT_EQ(écran.cmbThèmes.ListCount(), 10);
    EXPECT_EQ(écran.cmbThèmes.Text, écran.cmbThèmes.List(0));
    VérifierPointsDeDépart(écran.lblPoints);
}

TEST(Thèmes2, NeufRangéesOuDesFamillesTropCourtesMontrentLaNotice)
{
    for (const auto& fiches : {Familles(9, 5), Familles(10, 4)}) {
        Banc banc;
        auto& écran = OuvrirThèmes2(banc, fiches);
        VérifierTropPeu(banc, écran, u"Pas assez de thèmes",
                        u"Il doit y avoir au moins 10 thèmes pour lancer l'exercice. ", IndexThèmes2);
    }
}

TEST(Thèmes2, UneSeuleFamilleDeCinqMotsSuffit)
{
    auto fiches = Familles(10, 2);
    fiches[7] = {u"a7", u"", u"c7", u"d7", u"e7", u"f7", u"g7"};
    Banc banc;
    TirerVarié(banc);
    EXPECT_FALSE(OuvrirThèmes2(banc, fiches).notice.Cadre.Visible);
}

TEST(Thèmes2, MoinsDeDixNomsDifférentsMontrentLaNotice)
{
    auto fiches = Familles(12, 5);
    for (const std::size_t i : {9U, 10U, 11U})
        fiches[i][0] = u"a0";
    Banc banc;
    auto& écran = OuvrirThèmes2(banc, fiches);
    VérifierTropPeu(banc, écran, u"Pas assez de thèmes", u"Il doit y avoir au moins 10 thèmes pour lancer l'exercice. ",
                    IndexThèmes2);
}

TEST(Thèmes2, LesNomsSontTousDifférents)
{
    auto fiches = Familles(20, 5);
    for (std::size_t i = 10; i < 20; ++i)
        fiches[i][0] = u"a3";
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirThèmes2(banc, fiches);
    std::set<Texte> noms;
    for (int i = 0; i < 10; ++i)
        noms.insert(écran.lblThème(i).Caption);
    EXPECT_EQ(noms.size(), 10U);
}

TEST(Thèmes2, LeSousThèmeDonneSonNom)
{
    auto fiches = Familles(10, 5);
    fiches[0][1] = u"de la mer";
    Banc banc;
    TirerDansLOrdre(banc, fiches);
    auto& écran = OuvrirThèmes2(banc, fiches);
    EXPECT_EQ(écran.lblThème(0).Caption, u"de la mer");
    EXPECT_EQ(écran.lblThème(0).ToolTipText, u"de la mer");
    EXPECT_EQ(écran.lblThème(1).Caption, u"a1");
}

TEST(Thèmes2, UneFamilleMontreTroisMotsAuPlusEtEnCacheUnAutre)
{
    auto fiches = Familles(10, 5);
    fiches[1].resize(5); // three words
    fiches[2].resize(4); // two
    fiches[3].resize(3); // one
    Banc banc;
    TirerDansLOrdre(banc, fiches);
    auto& écran = OuvrirThèmes2(banc, fiches);
    EXPECT_EQ(écran.txtMots(0).Text, u"c0 - d0 - e0");
    EXPECT_EQ(écran.lblCorrigé(0).Caption, u"f0");
    EXPECT_EQ(écran.txtMots(1).Text, u"c1 - d1");
    EXPECT_EQ(écran.lblCorrigé(1).Caption, u"e1");
    EXPECT_EQ(écran.txtMots(2).Text, u"c2");
    EXPECT_EQ(écran.lblCorrigé(2).Caption, u"d2");
    EXPECT_EQ(écran.txtMots(3).Text, u"");
    EXPECT_EQ(écran.lblCorrigé(3).Caption, u"c3");
    EXPECT_TRUE(écran.lblRéponse(3).Visible);
}

TEST(Thèmes2, LesMotsMontrésEtLeMotCachéSontDifférents)
{
    Banc banc;
    TirerVarié(banc);
    banc.Hasards({0.0, 0.5, 0.5, 0.5, 0.1, 0.5, 0.1, 0.9, 0.9, 0.3}); // words drawn again
    auto& écran = OuvrirThèmes2(banc, Familles(10, 5));
    EXPECT_EQ(écran.txtMots(0).Text, u"e0 - c0 - g0");
    EXPECT_EQ(écran.lblCorrigé(0).Caption, u"d0");
}

TEST(Thèmes2, UneFamilleSansMotCacheSaRangée)
{
    auto fiches = Familles(10, 5);
    fiches[4].resize(2);
    Banc banc;
    TirerDansLOrdre(banc, fiches);
    auto& écran = OuvrirThèmes2(banc, fiches);
    for (const auto* élément :
         std::initializer_list<const Elément*>{&écran.lblThème(4), &écran.txtMots(4), &écran.lblRéponse(4)})
        EXPECT_FALSE(élément->Visible);
    EXPECT_TRUE(écran.lblThème(5).Visible);
    EXPECT_EQ(écran.cmbThèmes.ListCount(), 9);
}

TEST(Thèmes2, SansAucunMotLaNoticeParaît)
{
    auto fiches = Familles(10, 0);
    fiches.push_back({u"a0", u"", u"c", u"d", u"e", u"f", u"g"}); // a name that is drawn already
    Banc banc;
    TirerDansLOrdre(banc, fiches);
    auto& écran = OuvrirThèmes2(banc, fiches);
    EXPECT_TRUE(écran.notice.Cadre.Visible);
}

TEST(Thèmes2, UneRangéeCachéeRedonneLeVerdictDeLaPrécédente)
{
    auto fiches = Familles(10, 5);
    fiches[4].resize(2);
    for (const bool juste : {true, false}) {
        Banc banc;
        TirerDansLOrdre(banc, fiches);
        auto& écran = OuvrirThèmes2(banc, fiches);
        for (int i = 0; i < 10; ++i) {
            if (i != 4 && (juste || i < 3 || i > 5))
                Répondre(écran.lblRéponse(i), écran.cmbThèmes, écran.lblCorrigé(i).Caption);
        }
        if (!juste) {
            Répondre(écran.lblRéponse(3), écran.cmbThèmes, écran.lblCorrigé(5).Caption);
            Répondre(écran.lblRéponse(5), écran.cmbThèmes, écran.lblCorrigé(3).Caption);
        }
        const double départ = banc.plateforme.Horloge();
        écran.cmdQuitter.Cliquer(); // no box: nothing is missing
        EXPECT_NEAR(banc.plateforme.Horloge() - départ, 10, 1e-6);
        EXPECT_EQ(écran.lblPoints(0).Caption, juste ? u"10" : u"7");
        EXPECT_EQ(écran.lblPoints(1).Caption, u"10");
        écran.cmdQuitter.Cliquer();
        EXPECT_EQ(banc.Note(IndexThèmes2), juste ? u"10" : u"7");
    }
}

TEST(Thèmes2, UnePremièreRangéeCachéeEstFausse)
{
    auto fiches = Familles(10, 5);
    fiches[0].resize(2);
    Banc banc;
    TirerDansLOrdre(banc, fiches);
    auto& écran = OuvrirThèmes2(banc, fiches);
    ToutRépondre(écran.lblRéponse, écran.lblCorrigé, écran.cmbThèmes, 1);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"9");
}

TEST(Thèmes2, ToutMotDeLaFamilleEstJuste)
{
    auto fiches = Familles(12, 5);
    fiches[1][2] = u"d0"; // in the first two families
    fiches[10] = {u"a2", u"", u"ailleurs", u"loin"};
    fiches[3][5] = u"ailleurs"; // hidden in the fourth, and right in the third through its second row
    Banc banc;
    TirerDansLOrdre(banc, fiches);
    auto& écran = OuvrirThèmes2(banc, fiches);
    ASSERT_EQ(écran.lblCorrigé(3).Caption, u"ailleurs");
    ASSERT_EQ(écran.lblThème(2).Caption, u"a2");
    Répondre(écran.lblRéponse(2), écran.cmbThèmes, u"ailleurs");
    Répondre(écran.lblRéponse(3), écran.cmbThèmes, u"f2");
    for (int i = 0; i < 10; ++i) {
        if (i != 2 && i != 3)
            Répondre(écran.lblRéponse(i), écran.cmbThèmes, écran.lblCorrigé(i).Caption);
    }
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblRéponse(2).BackColor, Vert);
    EXPECT_EQ(écran.lblCorrigé(2).Caption, u"ailleurs") << "le mot trouvé prend la place du mot tiré";
    EXPECT_EQ(écran.lblRéponse(3).BackColor, Rouge);
    EXPECT_EQ(écran.lblCorrigé(3).Caption, u"ailleurs") << "une rangée fausse montre son mot";
    EXPECT_TRUE(écran.lblCorrigé(3).Visible);
    EXPECT_FALSE(écran.lblCorrigé(2).Visible);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"9");
}

TEST(Thèmes2, UnMotDuThèmeVautPourSonSousThème)
{
    auto fiches = Familles(10, 5);
    fiches[0] = {u"animaux", u"de la mer", u"le crabe", u"la seiche"};
    fiches[1] = {u"oiseaux", u"animaux", u"le merle", u"la pie"};
    Banc banc;
    TirerDansLOrdre(banc, fiches);
    auto& écran = OuvrirThèmes2(banc, fiches);
    ASSERT_EQ(écran.lblThème(1).Caption, u"animaux");
    Répondre(écran.lblRéponse(1), écran.cmbThèmes, u"la seiche"); // of a row whose theme has that name
    banc.AnnoncerBoîte(u"Tu n'a pas terminé !…", Réponse::Oui);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblRéponse(1).BackColor, Vert);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(Thèmes2, UnMotDuSousThèmeEstJuste)
{
    auto fiches = Familles(10, 5);
    fiches[0] = {u"animaux", u"de la mer", u"le crabe", u"la seiche"};
    Banc banc;
    TirerDansLOrdre(banc, fiches);
    auto& écran = OuvrirThèmes2(banc, fiches);
    ToutRépondre(écran.lblRéponse, écran.lblCorrigé, écran.cmbThèmes);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblRéponse(0).BackColor, Vert);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"10");
}

TEST(Thèmes2, UnClicSurLesMotsChoisitSansRendre)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirThèmes2(banc, Familles(10, 5));
    Répondre(écran.lblRéponse(0), écran.cmbThèmes, écran.lblCorrigé(0).Caption);
    écran.txtMots(1).Cliquer(0);
    écran.txtMots(0).Cliquer(0);
    EXPECT_EQ(écran.lblRéponse(0).BackColor, Jaune);
    EXPECT_EQ(écran.lblRéponse(0).Caption, écran.lblCorrigé(0).Caption());
    EXPECT_EQ(écran.cmbThèmes.ListCount(), 9);
    écran.lblRéponse(0).Cliquer();
    EXPECT_EQ(écran.lblRéponse(0).Caption, u"");
    EXPECT_EQ(écran.cmbThèmes.ListCount(), 10);
}

} // namespace tirelune
