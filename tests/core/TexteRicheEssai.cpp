#include "core/TexteRiche.h"

#include <gtest/gtest.h>

namespace tirelune {

namespace {

Format Barrée()
{
    Format format;
    format.Barré = true;
    return format;
}

void Barrer(Format& format)
{
    format.Barré = true;
}
void Rougir(Format& format)
{
    format.Teinte = Rouge;
}
void Centrer(FormatParagraphe& paragraphe)
{
    paragraphe.Alignement = Cadrage::Centre;
}

struct Morceau {
    Texte Lettres;
    bool Barré;
    Couleur Teinte;

    friend bool operator==(const Morceau&, const Morceau&) = default;
};

std::vector<Morceau> Morceaux(const TexteRiche& texte)
{
    std::vector<Morceau> morceaux;
    std::size_t attendu = 0;
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        EXPECT_EQ(tranche.Début, attendu);
        attendu = tranche.Fin;
        morceaux.push_back({texte.Caractères().substr(tranche.Début, tranche.Fin - tranche.Début), tranche.Style->Barré,
                            tranche.Style->Teinte});
    });
    EXPECT_EQ(attendu, texte.Longueur());
    return morceaux;
}

std::vector<Cadrage> Alignements(const TexteRiche& texte)
{
    std::vector<Cadrage> alignements;
    for (std::size_t i = 0; i <= texte.Longueur(); ++i)
        if (i == 0 || texte.Caractères()[i - 1] == u'\n')
            alignements.push_back(texte.ParagrapheEn(i).Alignement);
    return alignements;
}

constexpr auto Gauche = Cadrage::Gauche;
constexpr auto Centre = Cadrage::Centre;
constexpr auto Droite = Cadrage::Droite;

// Three paragraphs: left, centred, right.
TexteRiche TroisParagraphes()
{
    TexteRiche texte{u"un\r\ndeux\r\ntrois"};
    texte.FormaterParagraphes(5, 0, Centrer);
    texte.FormaterParagraphes(12, 0, [](FormatParagraphe& p) { p.Alignement = Cadrage::Droite; });
    return texte;
}

} // namespace

TEST(TexteRiche, UnTexteNeufEstVideEtGardeSonFormat)
{
    const TexteRiche texte;
    EXPECT_EQ(texte.Longueur(), 0U);
    EXPECT_EQ(texte.FormatEn(0), Format{});
    EXPECT_EQ(texte.FormatEn(99).Police, u"Comic Sans MS");
    EXPECT_EQ(texte.ParagrapheEn(99), FormatParagraphe{});
    EXPECT_TRUE(Morceaux(texte).empty());
    EXPECT_TRUE(MotsMarqués(texte).empty());
}

TEST(TexteRiche, LeFormatDUnTexteVideAttendLeProchainCaractère)
{
    TexteRiche texte;
    texte.Formater(0, 0, Barrer);
    EXPECT_TRUE(texte.FormatEn(0).Barré);
    texte.Remplacer(0, 0, u"mot");
    EXPECT_EQ(MotsMarqués(texte), std::vector<Texte>{u"mot"});
}

TEST(TexteRiche, UnTexteVidéGardeLeFormatDeSonPremierCaractère)
{
    TexteRiche texte{u"abc"};
    texte.Formater(0, 1, Rougir);
    texte.Formater(1, 2, Barrer);
    texte.Remplacer(0, 3, u"");
    EXPECT_EQ(texte.FormatEn(0).Teinte, Rouge);
    EXPECT_FALSE(texte.FormatEn(0).Barré);
}

TEST(TexteRiche, LesPositionsTropGrandesSontRamenéesÀLaFin)
{
    TexteRiche texte{u"abc"};
    texte.Remplacer(99, 99, u"d");
    EXPECT_EQ(texte.Caractères(), u"abcd");
    texte.Remplacer(2, static_cast<std::size_t>(-1), u"");
    EXPECT_EQ(texte.Caractères(), u"ab");
    texte.Formater(1, static_cast<std::size_t>(-1), Barrer);
    EXPECT_EQ(Morceaux(texte), (std::vector<Morceau>{{u"a", false, CouleurAuto}, {u"b", true, CouleurAuto}}));
    texte.Formater(99, 1, Rougir);
    EXPECT_EQ(texte.FormatEn(1).Teinte, CouleurAuto);
    texte.FormaterParagraphes(99, 99, Centrer);
    EXPECT_EQ(texte.ParagrapheEn(0).Alignement, Centre);
}

TEST(TexteRiche, LeFormatÀLaFinEstCeluiDuDernierCaractère)
{
    TexteRiche texte{u"ab"};
    texte.Formater(1, 1, Barrer);
    EXPECT_TRUE(texte.FormatEn(2).Barré);
    EXPECT_FALSE(texte.FormatEn(0).Barré);
}

TEST(TexteRiche, UnRemplacementPrendLeFormatDuPremierCaractèreRemplacé)
{
    TexteRiche texte{u"abcd"};
    texte.Formater(1, 1, Barrer);
    texte.Remplacer(1, 2, u"XYZ");
    EXPECT_EQ(
        Morceaux(texte),
        (std::vector<Morceau>{{u"a", false, CouleurAuto}, {u"XYZ", true, CouleurAuto}, {u"d", false, CouleurAuto}}));
}

TEST(TexteRiche, UneInsertionPrendLeFormatDuCaractèreDAvantOuDAprèsAuDébut)
{
    TexteRiche texte{u"ab"};
    texte.Formater(0, 1, Barrer);
    texte.Remplacer(1, 0, u"x");
    EXPECT_EQ(Morceaux(texte), (std::vector<Morceau>{{u"ax", true, CouleurAuto}, {u"b", false, CouleurAuto}}));
    texte.Remplacer(0, 0, u"y");
    EXPECT_EQ(Morceaux(texte), (std::vector<Morceau>{{u"yax", true, CouleurAuto}, {u"b", false, CouleurAuto}}));
}

TEST(TexteRiche, UnFormatDonnéNEstPasHérité)
{
    TexteRiche texte{u"ab"};
    const auto barrée = Barrée();
    texte.Remplacer(1, 0, u"x", &barrée);
    EXPECT_EQ(MotsMarqués(texte), std::vector<Texte>{u"x"});
    const auto& propre = texte.FormatEn(1); // a format that the text itself owns
    texte.Remplacer(3, 0, u"y", &propre);
    EXPECT_EQ(MotsMarqués(texte), (std::vector<Texte>{u"x", u"y"}));
}

TEST(TexteRiche, LesTranchesVoisinesEtÉgalesSeRejoignent)
{
    TexteRiche texte{u"abcd"};
    texte.Formater(1, 2, Barrer);
    texte.Formater(0, 4, [](Format& format) { format.Barré = false; });
    EXPECT_EQ(Morceaux(texte).size(), 1U);
    texte.Formater(1, 1, Barrer);
    texte.Formater(3, 1, Barrer);
    texte.Remplacer(2, 1, u"");
    EXPECT_EQ(Morceaux(texte), (std::vector<Morceau>{{u"a", false, CouleurAuto}, {u"bd", true, CouleurAuto}}));
}

TEST(TexteRiche, FormaterRetoucheChaqueTrancheUneFois)
{
    TexteRiche texte{u"abcdef"};
    texte.Formater(2, 2, Barrer);
    int fois = 0;
    texte.Formater(1, 4, [&](Format& format) {
        ++fois;
        format.Teinte = Rouge;
    });
    EXPECT_EQ(fois, 3);
    EXPECT_EQ(Morceaux(texte), (std::vector<Morceau>{{u"a", false, CouleurAuto},
                                                     {u"b", false, Rouge},
                                                     {u"cd", true, Rouge},
                                                     {u"e", false, Rouge},
                                                     {u"f", false, CouleurAuto}}));
}

TEST(TexteRiche, FormaterUneÉtendueVideNeToucheARien)
{
    TexteRiche texte{u"un\r\ndeux"};
    const auto avant = texte;
    int retouches = 0;
    for (const auto& [début, longueur] : {std::pair{0, 0}, {3, 0}, {5, 0}, {8, 0}, {8, 5}, {100, 5}})
        texte.Formater(static_cast<std::size_t>(début), static_cast<std::size_t>(longueur), [&](Format& format) {
            format.Gras = true;
            ++retouches;
        });
    EXPECT_EQ(retouches, 0);
    EXPECT_TRUE(texte == avant);
}

TEST(TexteRiche, UneFinDeLigneNAQuUnFormat)
{
    TexteRiche texte{u"a\r\nb"};
    texte.Formater(0, 2, Barrer);
    EXPECT_EQ(MotsMarqués(texte), std::vector<Texte>{u"a\r\n"});
    texte.Formater(2, 1, [](Format& format) { format.Barré = false; });
    EXPECT_EQ(MotsMarqués(texte), std::vector<Texte>{u"a"});

    TexteRiche assemblé{u"\r"};
    const auto barrée = Barrée();
    assemblé.Remplacer(1, 0, u"\n", &barrée);
    EXPECT_TRUE(MotsMarqués(assemblé).empty());
}

TEST(TexteRiche, UneTrancheDemandéeEstCoupéeAuxBornes)
{
    TexteRiche texte{u"abcdef"};
    texte.Formater(1, 4, Barrer);
    std::vector<std::pair<std::size_t, std::size_t>> bornes;
    texte.PourChaqueTranche(2, 99, [&](const Tranche& t) { bornes.emplace_back(t.Début, t.Fin); });
    EXPECT_EQ(bornes, (std::vector<std::pair<std::size_t, std::size_t>>{{2, 5}, {5, 6}}));
    texte.PourChaqueTranche(3, 3, [&](const Tranche&) { ADD_FAILURE() << "empty range"; });
}

TEST(TexteRiche, ChaqueParagrapheASonFormatMêmeLeDernierVide)
{
    TexteRiche texte{u"a\r\n"};
    texte.FormaterParagraphes(3, 0, Centrer);
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Centre}));
    texte.FormaterParagraphes(0, 4, [](FormatParagraphe& p) { p.RetraitGauche = 100; });
    EXPECT_EQ(texte.ParagrapheEn(0).RetraitGauche, 100);
    EXPECT_EQ(texte.ParagrapheEn(3).RetraitGauche, 100);
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Centre}));
}

TEST(TexteRiche, UneÉtendueToucheTousSesParagraphes)
{
    TexteRiche texte{u"un\r\ndeux\r\ntrois"};
    texte.FormaterParagraphes(3, 2, Centrer); // from the line end of the first to the first letter of the second
    EXPECT_EQ(Alignements(texte), (std::vector{Centre, Centre, Gauche}));
    std::vector<std::pair<std::size_t, std::size_t>> bornes;
    texte.PourChaqueParagraphe(1, 99, [&](const TrancheParagraphes& t) { bornes.emplace_back(t.Début, t.Fin); });
    EXPECT_EQ(bornes, (std::vector<std::pair<std::size_t, std::size_t>>{{1, 10}, {10, 15}}));
}

TEST(TexteRiche, UneFinDeLigneEffacéeRejointLeFormatDuPremierParagraphe)
{
    auto texte = TroisParagraphes();
    texte.Remplacer(2, 2, u"");
    EXPECT_EQ(texte.Caractères(), u"undeux\r\ntrois");
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Droite}));

    texte = TroisParagraphes();
    texte.Remplacer(5, 6, u" "); // from inside the second to inside the third
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Centre}));
    EXPECT_EQ(texte.ParagrapheEn(texte.Longueur()).Alignement, Centre);
}

TEST(TexteRiche, UnParagrapheEffacéEnEntierEmporteSonFormat)
{
    auto texte = TroisParagraphes();
    texte.Remplacer(4, 6, u"");
    EXPECT_EQ(texte.Caractères(), u"un\r\ntrois");
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Droite}));
    texte.Remplacer(0, 4, u"");
    EXPECT_EQ(Alignements(texte), (std::vector{Droite}));
}

TEST(TexteRiche, UneFinDeLigneInséréeDonneLeMêmeFormatAuxDeuxMoitiés)
{
    auto texte = TroisParagraphes();
    texte.Remplacer(6, 0, u"\r\n");
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Centre, Centre, Droite}));
    texte.Remplacer(texte.Longueur(), 0, u"\r\n");
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Centre, Centre, Droite, Droite}));
}

TEST(TexteRiche, UneMoitiéDeFinDeLigneRemplacéeLaisseLAutre)
{
    auto texte = TroisParagraphes();
    texte.Remplacer(2, 1, u"_");
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Centre, Droite}));
    texte.Remplacer(3, 1, u"_");
    EXPECT_EQ(texte.Caractères(), u"un__deux\r\ntrois");
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Droite}));
}

TEST(TexteRiche, AjouterFormeLeTexteEtSonDernierParagraphe)
{
    TexteRiche texte;
    const FormatParagraphe centré{.Alignement = Centre};
    texte.Ajouter(u"a\r\nb", Format{}, FormatParagraphe{});
    texte.Ajouter(u"c\r\n", Barrée(), centré);
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Centre, Centre}));
    EXPECT_EQ(MotsMarqués(texte), std::vector<Texte>{u"c\r\n"});
    texte.Ajouter(u"", Format{}, FormatParagraphe{});
    EXPECT_EQ(Alignements(texte), (std::vector{Gauche, Centre, Gauche}));
}

TEST(TexteRiche, LÉgalitéNeDépendPasDesRetouches)
{
    TexteRiche a{u"abc"};
    TexteRiche b{u"abc"};
    EXPECT_EQ(a, b);
    a.Formater(0, 3, Rougir);
    a.Formater(1, 1, Barrer);
    EXPECT_FALSE(a == b);
    b.Formater(1, 1, Barrer);
    b.Formater(0, 3, Rougir);
    EXPECT_EQ(a, b);
    b.FormaterParagraphes(0, 0, Centrer);
    EXPECT_FALSE(a == b);
    a.FormaterParagraphes(0, 0, Centrer);
    EXPECT_EQ(a, b);
    a.Remplacer(0, 1, u"x");
    EXPECT_FALSE(a == b);
}

TEST(TexteRiche, UneCopieEstIndépendante)
{
    TexteRiche original{u"abc"};
    const auto copie = original;
    original.Formater(0, 1, Barrer);
    original.Remplacer(2, 1, u"d");
    EXPECT_EQ(copie, TexteRiche{u"abc"});
}

TEST(TexteRiche, LesMotsMarquésSontLesTranchesBarrées)
{
    TexteRiche texte{u"un deux trois quatre"};
    texte.Formater(3, 10, Barrer);
    texte.Formater(5, 2, Rougir); // one word, whatever else changes inside it
    texte.Formater(14, 6, Barrer);
    EXPECT_EQ(MotsMarqués(texte), (std::vector<Texte>{u"deux trois", u"quatre"}));
}

TEST(TexteRiche, LesLignesNormaliséesFinissentParCrLf)
{
    EXPECT_EQ(NormaliserLignes(u""), u"");
    EXPECT_EQ(NormaliserLignes(u"a\nb\rc\r\nd\u2028e\u2029"), u"a\r\nb\r\nc\r\nd\r\ne\r\n");
    EXPECT_EQ(NormaliserLignes(u"\n\r\n\r\r\n\n"), u"\r\n\r\n\r\n\r\n\r\n");
}

// Against a model of one format to a character, over many edits.
TEST(TexteRiche, LesRetouchesEnchaînéesDonnentLeMêmeTexteCaractèreParCaractère)
{
    TexteRiche texte;
    Texte caractères;
    std::vector<int> tailles;
    std::uint32_t graine = 12345;
    const auto tirer = [&](std::size_t sous) {
        graine = graine * 1664525U + 1013904223U;
        return (graine >> 8U) % sous;
    };
    for (int tour = 0; tour < 20'000; ++tour) {
        const auto début = tirer(caractères.size() + 1);
        const auto longueur = std::min(tirer(6), caractères.size() - début);
        const auto taille = static_cast<int>(tirer(200)) + 1; // more than the table keeps unused
        if (tirer(2) == 0) {
            const Texte nouveau(tirer(caractères.size() > 300 ? 3 : 7), static_cast<char16_t>(u'a' + tirer(26)));
            const Format format{.Taille = static_cast<double>(taille)};
            texte.Remplacer(début, longueur, nouveau, &format);
            caractères.replace(début, longueur, nouveau);
            const auto place = tailles.begin() + static_cast<std::ptrdiff_t>(début);
            tailles.insert(tailles.erase(place, place + static_cast<std::ptrdiff_t>(longueur)), nouveau.size(), taille);
        } else {
            texte.Formater(début, longueur, [&](Format& format) { format.Taille = taille; });
            std::fill_n(tailles.begin() + static_cast<std::ptrdiff_t>(début), longueur, taille);
        }
        if (tour % 50 != 0)
            continue;
        ASSERT_EQ(texte.Caractères(), caractères);
        double précédente = -1;
        texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
            EXPECT_NE(tranche.Style->Taille, précédente);
            précédente = tranche.Style->Taille;
            for (auto i = tranche.Début; i < tranche.Fin; ++i)
                ASSERT_EQ(tailles[i], tranche.Style->Taille);
        });
    }
}

} // namespace tirelune
