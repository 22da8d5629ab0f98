#include "core/OrdreAlphabetique.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace tirelune {

namespace {

std::vector<Texte> Triés(std::vector<Texte> mots)
{
    std::sort(mots.begin(), mots.end(), AvantDansLOrdre);
    return mots;
}

} // namespace

TEST(OrdreAlphabétique, LettresAvantAccents)
{
    EXPECT_EQ(Triés({u"été", u"etc", u"été", u"étage", u"zèbre", u"âne", u"abri"}),
              (std::vector<Texte>{u"abri", u"âne", u"étage", u"etc", u"été", u"été", u"zèbre"}));
    EXPECT_EQ(Triés({u"pêche", u"péché", u"pécher", u"peche"}),
              (std::vector<Texte>{u"peche", u"péché", u"pêche", u"pécher"}));
}

TEST(OrdreAlphabétique, LigaturesComptentPourDeuxLettres)
{
    EXPECT_EQ(Triés({u"oeuvre", u"œuf", u"ode", u"of"}), (std::vector<Texte>{u"ode", u"œuf", u"oeuvre", u"of"}));
    EXPECT_EQ(Triés({u"af", u"æther", u"ad"}), (std::vector<Texte>{u"ad", u"æther", u"af"}));
}

TEST(OrdreAlphabétique, LettresDesVoisinsParmiLesAutres)
{
    EXPECT_EQ(Triés({u"Zoé", u"Ștefan", u"Łukasz", u"E\u0301ric", u"Adam", u"Tom", u"Lucie", u"Žofie", u"Ω", u"Đuro"}),
              (std::vector<Texte>{u"Adam", u"Đuro", u"E\u0301ric", u"Lucie", u"Łukasz", u"Ștefan", u"Tom", u"Zoé",
                                  u"Žofie", u"Ω"}));
    for (char16_t c = 0x100; c < 0x180; ++c) {
        if (c != u'Œ' && c != u'œ' && c != u'Ĳ' && c != u'ĳ') {
            EXPECT_TRUE(AvantDansLOrdre(Texte(1, c), u"zz")) << static_cast<int>(c);
        }
    }
}

TEST(OrdreAlphabétique, SignesNeComptentPas)
{
    EXPECT_EQ(Triés({u"aujourd'hui", u"au-dessus", u"audace", u"aulx"}),
              (std::vector<Texte>{u"audace", u"au-dessus", u"aujourd'hui", u"aulx"}));
}

TEST(OrdreAlphabétique, MinusculeAvantMajuscule)
{
    EXPECT_EQ(Triés({u"Pierre", u"pierre"}), (std::vector<Texte>{u"pierre", u"Pierre"}));
    EXPECT_TRUE(AvantDansLOrdre(u"a", u"A"));
    EXPECT_FALSE(AvantDansLOrdre(u"A", u"a"));
}

TEST(OrdreAlphabétique, VideEtSignesSeulsEnTête)
{
    EXPECT_EQ(Triés({u"a", u"", u"-", u"1"}), (std::vector<Texte>{u"", u"-", u"1", u"a"}));
}

TEST(OrdreAlphabétique, OrdreStrictSurTousLesCouples)
{
    const std::vector<Texte> mots{u"",    u"a",    u"A",    u"à", u"À",   u"ae",  u"æ",   u"Æ", u"-a",   u"a-",
                                  u"œuf", u"oeuf", u"Oeuf", u"Ω", u"été", u"ete", u"Été", u"ÿ", u"ete ", u"1"};
    for (const auto& a : mots) {
        EXPECT_FALSE(AvantDansLOrdre(a, a)) << EnUtf8(a);
        for (const auto& b : mots) {
            if (a != b) {
                EXPECT_NE(AvantDansLOrdre(a, b), AvantDansLOrdre(b, a)) << EnUtf8(a) << " " << EnUtf8(b);
            }
            for (const auto& c : mots) {
                if (AvantDansLOrdre(a, b) && AvantDansLOrdre(b, c)) {
                    EXPECT_TRUE(AvantDansLOrdre(a, c));
                }
            }
        }
    }
}

} // namespace tirelune
