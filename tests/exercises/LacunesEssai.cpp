#include "exercises/Lacunes.h"
#include "tests/support/Banc.h"
#include "tests/support/EcranTexte.h"

namespace tirelune {

namespace {

// The selection of a gap step by step, as it is told for a box that knows nothing but its selection. A count below
// zero is none, and a gap that ends the text ends with it.
void SélectionnerPasÀPas(RichTextBox& boîte)
{
    boîte.SelLength(1);
    if (boîte.SelText() != u"_") {
        boîte.SelLength(0);
        return;
    }
    while (boîte.SelText() == u"_" && boîte.SelStart() != 0) {
        boîte.SelStart(boîte.SelStart() - 1);
        boîte.SelLength(1);
    }
    const auto début = boîte.SelStart() + 1;
    boîte.SelStart(début);
    boîte.SelLength(1);
    std::size_t compteur = 0;
    bool auBout = false;
    while (boîte.SelText().ends_with(u'_') && !auBout) {
        boîte.SelStart(début);
        ++compteur;
        boîte.SelLength(compteur);
        auBout = boîte.SelLength() < compteur;
    }
    boîte.SelLength(compteur == 0 ? 0 : compteur - 1);
}

// Every text of that length over the three characters.
std::vector<Texte> TextesPossibles(std::size_t longueur)
{
    std::vector<Texte> textes{u""};
    for (std::size_t i = 0; i < longueur; ++i) {
        std::vector<Texte> plusLongs;
        for (const auto& texte : textes) {
            for (const char16_t c : VueTexte{u"_a\n"})
                plusLongs.push_back(texte + c);
        }
        textes = std::move(plusLongs);
    }
    return textes;
}

// The gaps of a text that has no other underscores.
std::vector<Lacune> Lacunes(VueTexte texte)
{
    std::vector<Lacune> lacunes;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (texte[i] != u'_')
            continue;
        if (lacunes.empty() || lacunes.back().Début + lacunes.back().Longueur != i)
            lacunes.push_back({i, 0});
        ++lacunes.back().Longueur;
    }
    return lacunes;
}

Format Marqué()
{
    Format format;
    format.Barré = true;
    return format;
}

} // namespace

TEST(SélectionnerTrait, DonneCeQueDonnentLesPas)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranTexte>();
    for (std::size_t longueur = 0; longueur <= 6; ++longueur) {
        for (const auto& texte : TextesPossibles(longueur)) {
            écran.rtfTexte.TextRTF(TexteRiche{texte});
            for (std::size_t place = 0; place <= longueur; ++place) {
                écran.rtfTexte.Sélectionner(place, 0);
                SélectionnerPasÀPas(écran.rtfTexte);
                const auto début = écran.rtfTexte.SelStart();
                const auto attendue = écran.rtfTexte.SelLength();
                écran.rtfTexte.Sélectionner(place, 0);
                SélectionnerTrait(écran.rtfTexte, Lacunes(écran.rtfTexte.Text()));
                ASSERT_EQ(écran.rtfTexte.SelStart(), début) << EnUtf8(texte) << " en " << place;
                ASSERT_EQ(écran.rtfTexte.SelLength(), attendue) << EnUtf8(texte) << " en " << place;
            }
        }
    }
}

TEST(SélectionnerTrait, UneSeuleSélectionPourUneLacuneDeMilleTraits)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranTexte>();
    écran.rtfTexte.Text(u"a" + Texte(1000, u'_') + u"b");
    int changements = 0;
    écran.rtfTexte.Sélectionner(900, 0);
    écran.rtfTexte.SelChange = [&] { ++changements; };

    SélectionnerTrait(écran.rtfTexte, {{1, 1000}});

    EXPECT_EQ(changements, 1);
    EXPECT_EQ(écran.rtfTexte.SelStart(), 1U);
    EXPECT_EQ(écran.rtfTexte.SelLength(), 1000U);
}

TEST(SélectionnerTrait, LesTraitsDuTexteNEnSontPas)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranTexte>();
    écran.rtfTexte.Text(u"__a____b_");
    const std::vector<Lacune> ouvertes{{4, 2}}; // between two underscores of the text
    for (const std::size_t place : {0U, 1U, 3U, 6U, 8U}) {
        écran.rtfTexte.Sélectionner(place, 0);
        SélectionnerTrait(écran.rtfTexte, ouvertes);
        EXPECT_EQ(écran.rtfTexte.SelStart(), place);
        EXPECT_EQ(écran.rtfTexte.SelLength(), 0U);
    }
    for (const std::size_t place : {4U, 5U}) {
        écran.rtfTexte.Sélectionner(place, 0);
        SélectionnerTrait(écran.rtfTexte, ouvertes);
        EXPECT_EQ(écran.rtfTexte.SelStart(), 4U);
        EXPECT_EQ(écran.rtfTexte.SelLength(), 2U);
    }
}

TEST(OuvrirLacunes, GardeLeResteDuFormatEtNoircit)
{
    Format gras;
    gras.Gras = true;
    gras.Teinte = Rouge;
    TexteRiche texte;
    texte.Ajouter(u"un ", {}, {});
    texte.Ajouter(u"mot", gras, {});
    texte.Ajouter(u" là", {}, {});

    const auto troué = OuvrirLacunes(texte, {{3, 3}});

    EXPECT_EQ(troué.Caractères(), u"un ___ là");
    EXPECT_TRUE(troué.FormatEn(3).Gras);
    EXPECT_EQ(troué.FormatEn(3).Teinte, Noir);
    EXPECT_EQ(troué.FormatEn(2), Format{});
    EXPECT_EQ(troué.FormatEn(6), Format{});
}

TEST(OuvrirLacunes, UneLacuneSurPlusieursFormats)
{
    Format gras;
    gras.Gras = true;
    Format barréGras = gras;
    barréGras.Barré = true;
    TexteRiche texte;
    texte.Ajouter(u"ab", Marqué(), {});
    texte.Ajouter(u"cd", barréGras, {});
    texte.Ajouter(u"ef", Marqué(), {});
    texte.Ajouter(u"gh", gras, {});

    const auto troué = OuvrirLacunes(texte, {{1, 4}, {5, 1}, {7, 1}});

    EXPECT_EQ(troué.Caractères(), u"a_____g_");
    EXPECT_TRUE(troué.FormatEn(0).Barré);
    for (const std::size_t place : {1U, 2U, 3U, 4U, 5U, 7U}) {
        EXPECT_FALSE(troué.FormatEn(place).Barré) << place;
        EXPECT_EQ(troué.FormatEn(place).Teinte, Noir) << place;
    }
    EXPECT_FALSE(troué.FormatEn(1).Gras);
    EXPECT_TRUE(troué.FormatEn(2).Gras);
    EXPECT_FALSE(troué.FormatEn(4).Gras);
    EXPECT_EQ(troué.FormatEn(6), gras);
}

TEST(OuvrirLacunes, DonneCeQueDonnentLesRemplacements)
{
    FormatParagraphe centré;
    centré.Alignement = Cadrage::Centre;
    FormatParagraphe enRetrait;
    enRetrait.RetraitGauche = 300;
    TexteRiche texte;
    texte.Ajouter(u"un", {}, {});
    texte.Ajouter(u" deux\r\ntr", Marqué(), {});
    texte.Ajouter(u"ois\r\n", {}, centré);
    texte.Ajouter(u"quatre\r\n", {}, enRetrait);
    texte.Ajouter(u"cinq\r\n", Marqué(), centré);
    texte.Ajouter(u"", {}, enRetrait);
    const std::vector<Lacune> lacunes{{2, 9}, {texte.Longueur() - 6, 6}};

    auto attendu = texte;
    for (const auto& lacune : lacunes) {
        attendu.Formater(lacune.Début, lacune.Longueur, [](Format& format) {
            format.Barré = false;
            format.Teinte = Noir;
        });
        attendu.Remplacer(lacune.Début, lacune.Longueur, Texte(lacune.Longueur, u'_'));
    }

    EXPECT_EQ(OuvrirLacunes(texte, lacunes), attendu);
    EXPECT_EQ(attendu.Caractères(), u"un_________ois\r\nquatre\r\n______");
}

TEST(OuvrirLacunes, SansLacuneLeTexteResteLeMême)
{
    TexteRiche texte;
    texte.Ajouter(u"un\r\n", Marqué(), {});
    texte.Ajouter(u"deux", {}, {});
    EXPECT_EQ(OuvrirLacunes(texte, {}), texte);
    EXPECT_EQ(OuvrirLacunes(TexteRiche{}, {}), TexteRiche{});
}

TEST(OuvrirLacunes, ToutLeTexte)
{
    const TexteRiche texte{u"mot", Marqué()};
    EXPECT_EQ(OuvrirLacunes(texte, {{0, 3}}).Caractères(), u"___");
}

} // namespace tirelune
