#include "core/Passages.h"

#include <gtest/gtest.h>

namespace tirelune {

namespace {

constexpr VueTexte Lettres = u"abcdeé-";

VueTexte Mot(VueTexte texte, std::size_t place)
{
    return MotAutour(texte, place, Lettres).Dans(texte);
}

VueTexte MorceauEn(VueTexte texte, std::size_t place)
{
    return MorceauAutour(texte, place, u" |").Dans(texte);
}

VueTexte Phrase(VueTexte texte, std::size_t place)
{
    return PhraseAutour(texte, place, u".?!").Dans(texte);
}

} // namespace

TEST(Passages, MotVuDeSonDébutDeSonMilieuEtDeSaFin)
{
    const VueTexte texte = u"ba, cé-d! e";
    for (const std::size_t place : {4U, 5U, 7U, 8U}) // the last one is the sign behind it
        EXPECT_EQ(Mot(texte, place), u"cé-d") << place;
    EXPECT_EQ(MotAutour(texte, 5, Lettres), (Passage{4, 8}));
}

TEST(Passages, MotAuxBoutsDuTexte)
{
    EXPECT_EQ(Mot(u"ba cd", 0), u"ba");
    EXPECT_EQ(Mot(u"ba cd", 3), u"cd");
    EXPECT_EQ(Mot(u"ba cd", 5), u"cd");
    EXPECT_EQ(Mot(u"a", 0), u"a");
    EXPECT_EQ(Mot(u"bac", 1), u"bac");
}

TEST(Passages, PasDeMotEntreDeuxSignes)
{
    EXPECT_EQ(Mot(u"a ; b", 2), u"");
    EXPECT_EQ(MotAutour(u"a ; b", 2, Lettres), (Passage{2, 2}));
    EXPECT_EQ(Mot(u"", 0), u"");
    EXPECT_EQ(Mot(u"  ", 2), u"");
    EXPECT_EQ(Mot(u"\r\na", 1), u"");
}

TEST(Passages, SansLettresPasDeMot)
{
    EXPECT_EQ(MotAutour(u"abc", 1, u""), (Passage{1, 1}));
}

TEST(Passages, MorceauVaDUnSéparateurAuSuivant)
{
    EXPECT_EQ(MorceauEn(u"un|l'été deux", 5), u"l'été");
    EXPECT_EQ(MorceauEn(u"un|l'été deux", 0), u"un");
    EXPECT_EQ(MorceauEn(u"un|l'été deux", 12), u"deux");
    EXPECT_EQ(MorceauEn(u"un|l'été deux", 13), u"deux");
    EXPECT_EQ(MorceauEn(u"seul", 2), u"seul");
    EXPECT_EQ(MorceauEn(u"", 0), u"");
}

TEST(Passages, SurUnSéparateurLeMorceauQuiFinitLà)
{
    EXPECT_EQ(MorceauEn(u"un deux", 2), u"un");
    EXPECT_EQ(MorceauEn(u" deux", 0), u"");
    EXPECT_EQ(MorceauEn(u"a  b", 2), u"");
}

TEST(Passages, PhraseVaDerrièreUnSigneJusquAuSuivantCompris)
{
    const VueTexte texte = u"Un. Deux ? Trois, et quatre";
    EXPECT_EQ(Phrase(texte, 0), u"Un.");
    EXPECT_EQ(Phrase(texte, 5), u" Deux ?");
    EXPECT_EQ(Phrase(texte, 21), u" Trois, et quatre");
    EXPECT_EQ(PhraseAutour(texte, 5, u".?!"), (Passage{3, 10}));
}

TEST(Passages, PhraseSansSigneEstToutLeTexte)
{
    EXPECT_EQ(Phrase(u"Un deux", 3), u"Un deux");
    EXPECT_EQ(Phrase(u"Un deux", 7), u"Un deux");
    EXPECT_EQ(Phrase(u"", 0), u"");
    EXPECT_EQ(Phrase(u"a", 0), u"a");
}

TEST(Passages, SigneEnTêteNeFinitPasSaPhrase)
{
    EXPECT_EQ(Phrase(u".a.b", 1), u"a.");
    EXPECT_EQ(Phrase(u"!a b. c", 0), u"!a b.");
    EXPECT_EQ(Phrase(u"Un.. Deux.", 3), u". Deux.");
    EXPECT_EQ(Phrase(u"Un.", 3), u"");
}

} // namespace tirelune
