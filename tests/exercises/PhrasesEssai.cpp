#include "exercises/Phrases.h"

#include "tests/support/Banc.h"

namespace tirelune {

namespace {

constexpr VueTexte Lettres = u"abcdefghijklmnopqrstuvwxyzéê'-,";

Texte Nettoyé(VueTexte passage)
{
    return NettoyerPassage(passage, Lettres);
}

// The words of the sentence behind the first full stop.
std::optional<std::vector<Texte>> Tirée(VueTexte texte, NombreDeMots longueur, VueTexte banque = {})
{
    Banc banc;
    banc.plateforme.toujours = [] { return 0.0; };
    return TirerPhrase(banc.plateforme, texte, Lettres, longueur, banque);
}

} // namespace

TEST(Phrases, AlphabetDesPhrasesRepartDuDébut)
{
    Constantes état;
    EcrireAlphabetDesPhrases(état);
    const auto lettres = état.LettresEtSignes;
    for (const char16_t c : VueTexte{u"aÉ7+(),'-\"«»"})
        EXPECT_TRUE(Contient(lettres, c)) << static_cast<int>(c);
    for (const char16_t c : VueTexte{u" .?!;:œ\r\n"})
        EXPECT_FALSE(Contient(lettres, c)) << static_cast<int>(c);
    EcrireAlphabetDesPhrases(état);
    EXPECT_EQ(état.LettresEtSignes, lettres);
}

TEST(Phrases, LongueurVautBornesComprises)
{
    EXPECT_TRUE(Tirée(u". a b c.", {3, 3}));
    EXPECT_FALSE(Tirée(u". a b c.", {4, 9}));
    EXPECT_FALSE(Tirée(u". a b c.", {1, 2}));
    EXPECT_TRUE(Tirée(u". a b c d e f g h i j k l m n o p q r s t u v.", {11})) << "sans maximum";
}

TEST(Phrases, SigneResteContreLeDernierMot)
{
    EXPECT_EQ(Tirée(u"un  l'été\r\nvient ; non", {1}), (std::vector<Texte>{u"un", u"l'été", u"vient;"}));
    EXPECT_EQ(Tirée(u"a b", {1}), (std::vector<Texte>{u"a", u"b"}));
}

TEST(Phrases, PhraseDeLaBanqueEstRefusée)
{
    EXPECT_FALSE(Tirée(u". a b c.", {1}, u"z a b c. "));
    EXPECT_TRUE(Tirée(u". a b c.", {1}, u"a b d. "));
}

TEST(Phrases, PhraseRefuséeEstTiréeANouveau)
{
    Banc banc;
    banc.Hasards({0.0, 0.5});
    const auto commenceParA = [](const std::vector<Texte>& mots) { return mots.front() == u"a"; };
    EXPECT_EQ(TirerPhrase(banc.plateforme, u". a b. c d.", Lettres, {1}, {}, commenceParA),
              (std::vector<Texte>{u"c", u"d."}));
}

TEST(Phrases, CentièmeTirageNAPasLieu)
{
    Banc banc;
    for (int i = 0; i < 99; ++i)
        banc.Hasards({0.0});
    EXPECT_FALSE(TirerPhrase(banc.plateforme, u"a b", Lettres, {3}));
    EXPECT_TRUE(banc.plateforme.hasards.empty());
}

TEST(Phrases, DépartDerrièreLePremierPoint)
{
    const VueTexte texte = u"Un. Deux ! Trois. Quatre";
    EXPECT_EQ(DépartDePhrase(texte, 0), 3U);
    EXPECT_EQ(DépartDePhrase(texte, 2), 3U);
    EXPECT_EQ(DépartDePhrase(texte, 3), 17U);
    EXPECT_EQ(DépartDePhrase(texte, 17), 0U);
    EXPECT_EQ(DépartDePhrase(u"", 0), 0U);
    EXPECT_EQ(DépartDePhrase(u"Fin.", 1), 4U);
}

TEST(Phrases, PhraseNaitDeSesMots)
{
    EXPECT_EQ(EnPhrase({}), u"");
    EXPECT_EQ(EnPhrase(std::vector<Texte>{u"un"}), u"un");
    EXPECT_EQ(EnPhrase(std::vector<Texte>{u"un", u"deux."}), u"un deux.");
}

TEST(Phrases, PassageSurUneLigneSansBlancsDeTrop)
{
    EXPECT_EQ(Nettoyé(u"  un\r\n\tdeux * trois.  quatre !  "), u"un deux trois. quatre !");
    EXPECT_EQ(Nettoyé(u"l'été, peut-être ; non : oui ?"), u"l'été, peut-être ; non : oui ?");
    EXPECT_EQ(Nettoyé(u"a\u00A0œ b"), u"a b");
    EXPECT_EQ(Nettoyé(u""), u"");
    EXPECT_EQ(Nettoyé(u" \r\n* "), u"");
    EXPECT_EQ(Nettoyé(u"*a*"), u"a");
}

TEST(Phrases, PassageNeCommencePasParLaFinDUnAutre)
{
    EXPECT_EQ(SansFinEnTête(u".?!;:un. deux."), u"un. deux.");
    EXPECT_EQ(SansFinEnTête(u". !un"), u" !un") << "le premier blanc arrête";
    EXPECT_EQ(SansFinEnTête(u"un."), u"un.");
    EXPECT_EQ(SansFinEnTête(u"..."), u"");
    EXPECT_EQ(SansFinEnTête(u""), u"");
}

} // namespace tirelune
