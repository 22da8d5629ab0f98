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
    // Each range ends where it ends.
    EXPECT_EQ(Minuscules(u"@AZ[ÀÖØÞß\u0100\u0136\u0138\u0139\u0147\u0149\u014A\u0176\u0178\u0179\u017D\u017F\u0180"),
              u"@az[àöøþß\u0101\u0137\u0138\u013A\u0148\u0149\u014B\u0177\u00FF\u017A\u017E\u017F\u0180");
    EXPECT_EQ(Majuscules(u"`az{ßàöøþ\u0101\u0137\u0138\u013A\u0148\u0149\u014B\u0177\u00FF\u017A\u017E\u017F\u0180"),
              u"`AZ{ßÀÖØÞ\u0100\u0136\u0138\u0139\u0147\u0149\u014A\u0176\u0178\u0179\u017D\u017F\u0180");
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
    for (const auto* tropLong :
         {"\xC0\xAF", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xF0\x80\x80\x80", "\xF0\x8F\xBF\xBF"})
        EXPECT_EQ(DepuisUtf8(tropLong), u"\uFFFD");
    EXPECT_EQ(DepuisUtf8("\xED\xA0\x80"), u"\uFFFD");     // half of a pair
    EXPECT_EQ(DepuisUtf8("\xF4\x90\x80\x80"), u"\uFFFD"); // beyond the last code
    EXPECT_EQ(EnUtf8(Texte{0xD800}), "\xEF\xBF\xBD");
    EXPECT_EQ(EnUtf8(Texte{0xDC00, u'a'}), "\xEF\xBF\xBD"
                                           "a");
}

TEST(Texte, Utf8ALaLimiteDeChaqueLongueur)
{
    EXPECT_EQ(DepuisUtf8("\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF"), (Texte{0x7F, 0x80, 0x7FF, 0x800, 0xFFFF}));
    EXPECT_EQ(DepuisUtf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"), (Texte{0xD800, 0xDC00, 0xDBFF, 0xDFFF}));
    EXPECT_EQ(DepuisUtf8("\xC1\xBF"), u"\uFFFD");         // overlong by one
    EXPECT_EQ(DepuisUtf8("\xE0\x9F\xBF"), u"\uFFFD");     // overlong by one
    EXPECT_EQ(DepuisUtf8("\xF0\x8F\xBF\xBF"), u"\uFFFD"); // overlong by one
    EXPECT_EQ(DepuisUtf8("\xED\x9F\xBF\xED\xA0\x80\xED\xBF\xBF\xEE\x80\x80"), u"\uD7FF\uFFFD\uFFFD\uE000");
    EXPECT_EQ(DepuisUtf8("\xF8\x88\x80\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"); // no such first byte
    EXPECT_EQ(EnUtf8(Texte{0x7F, 0x80, 0x7FF, 0x800, 0xFFFF}), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF");
    EXPECT_EQ(EnUtf8(Texte{0xD800, 0xDC00, 0xDBFF, 0xDFFF}), "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(Texte, UneMoitiéDePaireSeuleSEcritEnRemplacement)
{
    const std::string remplacement = "\xEF\xBF\xBD";
    EXPECT_EQ(EnUtf8(Texte{0xD800, 0xD800, 0xDC00}), remplacement + "\xF0\x90\x80\x80");
    EXPECT_EQ(EnUtf8(Texte{0xDBFF, 0xE000}), remplacement + "\xEE\x80\x80");
    EXPECT_EQ(EnUtf8(Texte{0xDFFF, 0xDC00}), remplacement + remplacement);
    EXPECT_EQ(EnUtf8(Texte{0xDBFF}), remplacement);
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

TEST(Texte, UnNulNeCoupePasUnChemin)
{
    EXPECT_EQ(DepuisChemin(EnChemin(Texte{u'/', u'\0', u'a'})), u"/\uFFFDa");
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
    EXPECT_EQ(Valeur(u"1.5.5"), 1.5);
    EXPECT_EQ(Valeur(u"--2"), 0);
    EXPECT_EQ(Valeur(u"0/:9"), 0);
    EXPECT_EQ(Valeur(u"9/0"), 9);
    EXPECT_EQ(Valeur(u"9:0"), 9);
    EXPECT_EQ(Valeur(Texte(400, u'9')), 0); // out of all measure
}

TEST(Texte, LireNombreVeutToutLeTexte)
{
    EXPECT_EQ(LireNombre(u" 6,25 "), 6.25);
    EXPECT_EQ(LireNombre(u"6.25"), 6.25);
    EXPECT_EQ(LireNombre(u"10"), 10);
    EXPECT_EQ(LireNombre(u"-0,5"), -0.5);
    EXPECT_EQ(LireNombre(u"+90"), 90);
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
