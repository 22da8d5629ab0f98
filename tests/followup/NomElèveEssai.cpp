#include "followup/NomElève.h"

#include <gtest/gtest.h>

namespace tirelune {

namespace {

bool Accepté(VueTexte nom)
{
    return !RefusDuNom(nom).has_value();
}

Texte Avec(char16_t signe)
{
    return {u'L', u'e', signe, u'a'};
}

} // namespace

TEST(NomElève, PrénomsOrdinairesSontAcceptés)
{
    for (const auto* nom :
         {u"Léa", u"Jean-Noël", u"D'Artagnan", u"Zoé B.2", u"œuf", u"A", u"Élise & Tom", u"a..b", u"Console", u"COM",
          u"COM0", u"COM10", u"Auxane", u"Nulle", u"l€o", u"Paul D.", u"J.-C.", u".Paul"})
        EXPECT_TRUE(Accepté(nom)) << EnUtf8(nom);
}

TEST(NomElève, SéparateursEtSignesRéservésSontRefusés)
{
    for (const char16_t signe : VueTexte{u"/\\<>:\"|?*"}) {
        const auto refus = RefusDuNom(Avec(signe));
        ASSERT_TRUE(refus.has_value()) << EnUtf8(Texte(1, signe));
        EXPECT_TRUE(Contient(*refus, signe)) << EnUtf8(*refus);
    }
}

TEST(NomElève, ToutesLesEcrituresSontAcceptées)
{
    for (const auto* nom : {u"Łukasz", u"Ștefan", u"Ωmega", u"Иван", u"e\u0301", u"\U0001F600", u"Paul\u00A0"})
        EXPECT_TRUE(Accepté(nom)) << EnUtf8(nom);
}

TEST(NomElève, CheminVersUnAutreDossierEstRefusé)
{
    for (const auto* nom : {u"../Paul", u"..\\Paul", u"/etc/Paul", u"C:\\Paul", u"a/../b"})
        EXPECT_FALSE(Accepté(nom)) << EnUtf8(nom);
}

TEST(NomElève, CaractèresDeCommandeSontRefusés)
{
    for (char16_t c = 0; c < 0x20; ++c)
        EXPECT_FALSE(Accepté(Avec(c))) << static_cast<int>(c);
    EXPECT_TRUE(Accepté(Avec(0x20)));
}

TEST(NomElève, NomsDePériphériquesSontRefusésAvecOuSansExtension)
{
    for (const auto* nom : {u"CON", u"con", u"Prn", u"AUX", u"nul", u"COM1", u"com9", u"LPT1", u"lpt9", u"CON.txt",
                            u"nul.a.b", u"Aux .b", u"COM¹"})
        EXPECT_FALSE(Accepté(nom)) << EnUtf8(nom);
}

TEST(NomElève, UnNomVideOuCoupéEstRefusé)
{
    EXPECT_FALSE(Accepté(u""));
    EXPECT_FALSE(Accepté(Avec(0xD83D))); // half of a pair
    EXPECT_FALSE(Accepté(Avec(0xDE00)));
}

TEST(NomElève, LeFichierTientEnDeuxCentCinquanteCinqOctets)
{
    EXPECT_TRUE(Accepté(Texte(251, u'a')));
    EXPECT_FALSE(Accepté(Texte(252, u'a')));
    EXPECT_TRUE(Accepté(Texte(125, u'é') + u"a")); // two bytes each
    EXPECT_FALSE(Accepté(Texte(126, u'é')));
}

} // namespace tirelune
