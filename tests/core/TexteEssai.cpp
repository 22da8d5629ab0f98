#include "core/Texte.h"

#include <gtest/gtest.h>

namespace tirelune {

TEST(Texte, RognerNOteQueLesBlancs)
{
    EXPECT_EQ(Rogner(u""), u"");
    EXPECT_EQ(Rogner(u"   "), u"");
    EXPECT_EQ(Rogner(u"  a b  "), u"a b");
    EXPECT_EQ(Rogner(u"\ta\r\n"), u"\ta\r\n");
    EXPECT_EQ(Rogner(u"\u00A0a"), u"\u00A0a");
    EXPECT_EQ(RognerAGauche(u"  a  "), u"a  ");
    EXPECT_EQ(RognerAGauche(u"   "), u"");
}

TEST(Texte, CasseDesLettresFrançaises)
{
    EXPECT_EQ(Minuscules(u"ÀÂÄÇÉÈÊËÎÏÔÖÙÛÜŸŒÆ×ÐÞ"), u"àâäçéèêëîïôöùûüÿœæ×ðþ");
    EXPECT_EQ(Majuscules(u"àâäçéèêëîïôöùûüÿœæ÷ðþ"), u"ÀÂÄÇÉÈÊËÎÏÔÖÙÛÜŸŒÆ÷ÐÞ");
    EXPECT_EQ(Minuscules(u"ABCxyz 123-'"), u"abcxyz 123-'");
    EXPECT_EQ(Majuscule(u'ß'), u'ß');
    EXPECT_EQ(Minuscules(u"ŠŽĀĹŃŹĲŁȘȚ"), u"šžāĺńźĳłșț");
    EXPECT_EQ(Majuscules(u"šžāĺńźĳłșț"), u"ŠŽĀĹŃŹĲŁȘȚ");
    EXPECT_EQ(Minuscule(u'İ'), u'İ');
    EXPECT_EQ(Majuscule(u'ı'), u'ı');
}

TEST(Texte, MinusculeDefaitMajusculeDansToutLeJeu)
{
    for (char16_t c = 0; c < 0x250; ++c) {
        if (Majuscule(c) != c) {
            EXPECT_EQ(Minuscule(Majuscule(c)), c) << static_cast<int>(c);
        }
        if (Minuscule(c) != c) {
            EXPECT_EQ(Majuscule(Minuscule(c)), c) << static_cast<int>(c);
        }
    }
}

TEST(Texte, Utf8AllerEtRetour)
{
    for (const auto* texte : {u"", u"abc", u"été œuf", u"€", u"\U0001F600 fin", u"\uFFFD", u"\u07FF\u0800"})
        EXPECT_EQ(DepuisUtf8(EnUtf8(texte)), texte);
    EXPECT_EQ(EnUtf8(u"é€"), "\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(EnUtf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
}

TEST(Texte, Utf8AbîméDonneLeCaractèreDeRemplacement)
{
    EXPECT_EQ(DepuisUtf8("a\x80"
                         "b"),
              u"a\uFFFDb");
    EXPECT_EQ(DepuisUtf8("\xC3"), u"\uFFFD");
    EXPECT_EQ(DepuisUtf8("\xE2\x82"
                         "a"),
              u"\uFFFDa");
    EXPECT_EQ(DepuisUtf8("\xC0\xAF"), u"\uFFFD");         // overlong
    EXPECT_EQ(DepuisUtf8("\xED\xA0\x80"), u"\uFFFD");     // half of a pair
    EXPECT_EQ(DepuisUtf8("\xF4\x90\x80\x80"), u"\uFFFD"); // beyond the last code
    EXPECT_EQ(EnUtf8(Texte{0xD800}), "\xEF\xBF\xBD");
    EXPECT_EQ(EnUtf8(Texte{0xDC00, u'a'}), "\xEF\xBF\xBD"
                                           "a");
}

TEST(Texte, JoindreNeDoublePasLeSéparateur)
{
    EXPECT_EQ(Joindre(u"/a", u"b"), u"/a/b");
    EXPECT_EQ(Joindre(u"/a/", u"b"), u"/a/b");
    EXPECT_EQ(Joindre(u"", u"b"), u"b");
    EXPECT_EQ(Joindre(u"/", u"b"), u"/b");
}

TEST(Texte, CheminAllerEtRetour)
{
    EXPECT_EQ(DepuisChemin(EnChemin(u"/é/œ\U0001F600")), u"/é/œ\U0001F600");
}

TEST(Texte, ValeurLitLeNombreEnTête)
{
    EXPECT_EQ(Valeur(u""), 0);
    EXPECT_EQ(Valeur(u"  12abc"), 12);
    EXPECT_EQ(Valeur(u"3.5"), 3.5);
    EXPECT_EQ(Valeur(u"3,5"), 3); // the point alone is a separator here
    EXPECT_EQ(Valeur(u"-2"), -2);
    EXPECT_EQ(Valeur(u"+2"), 2);
    EXPECT_EQ(Valeur(u"abc"), 0);
    EXPECT_EQ(Valeur(u"-"), 0);
    EXPECT_EQ(Valeur(u".5"), 0.5);
}

TEST(Texte, LireNombreVeutToutLeTexte)
{
    EXPECT_EQ(LireNombre(u" 6,25 "), 6.25);
    EXPECT_EQ(LireNombre(u"6.25"), 6.25);
    EXPECT_EQ(LireNombre(u"10"), 10);
    for (const auto* texte : {u"", u" ", u"a", u"1a", u"1,2.3", u",", u"+", u"1 2"})
        EXPECT_FALSE(LireNombre(texte).has_value()) << EnUtf8(texte);
}

TEST(Texte, NombreEnTexteASeptChiffres)
{
    EXPECT_EQ(EnTexte(10.0F, u','), u"10");
    EXPECT_EQ(EnTexte(0.0F, u','), u"0");
    EXPECT_EQ(EnTexte(20.0F / 3, u','), u"6,666667");
    EXPECT_EQ(EnTexte(6.25F, u'.'), u"6.25");
    EXPECT_EQ(EnTexte(0.1F + 0.2F, u','), u"0,3");
    EXPECT_EQ(EnTexte(0.0001F, u','), u"0,0001");
    EXPECT_EQ(EnTexte(0.00005F, u','), u"0"); // no exponent, which no reader would take
    EXPECT_EQ(EnTexte(-12LL), u"-12");
    EXPECT_EQ(EnTexte(9007199254740993LL), u"9007199254740993");
    EXPECT_EQ(EnTexte(0), u"0");
    EXPECT_EQ(EnTexte(-2147483647 - 1), u"-2147483648");
}

TEST(Texte, ContientChercheUnCaractère)
{
    EXPECT_TRUE(Contient(u"abc", u'b'));
    EXPECT_FALSE(Contient(u"abc", u'B'));
    EXPECT_FALSE(Contient(u"", u'b'));
}

} // namespace tirelune
