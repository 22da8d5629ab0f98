#include "exercises/ClassesDeLettres.h"

#include <gtest/gtest.h>

namespace tirelune {

TEST(ClassesDeLettres, SixLettresOntDesFormesAccentuées)
{
    EXPECT_EQ(ClasseDeLettre(u'a'), u"aAàâäÂÀ");
    EXPECT_EQ(ClasseDeLettre(u'c'), u"cCçÇ");
    EXPECT_EQ(ClasseDeLettre(u'e'), u"eEéèêëÊËÈÉ");
    EXPECT_EQ(ClasseDeLettre(u'i'), u"iIîïÎÏ");
    EXPECT_EQ(ClasseDeLettre(u'o'), u"oOôöÔÖ");
    EXPECT_EQ(ClasseDeLettre(u'u'), u"uUùûüÛÜÙ");
}

TEST(ClassesDeLettres, LesAutresNOntQueLaPetiteEtLaGrande)
{
    for (const char16_t lettre : VueTexte{u"bdfghjklmnpqrstvwxyz"})
        EXPECT_EQ(ClasseDeLettre(lettre), (Texte{lettre, Majuscule(lettre)}));
}

TEST(ClassesDeLettres, LaCapitaleDonneLaMêmeClasse)
{
    for (char16_t lettre = u'a'; lettre <= u'z'; ++lettre)
        EXPECT_EQ(ClasseDeLettre(Majuscule(lettre)), ClasseDeLettre(lettre));
}

TEST(ClassesDeLettres, FrappeAccentuéeTrouveSaLettre)
{
    const auto frappes = [](char16_t lettre, VueTexte tapées) {
        for (const char16_t tapée : tapées)
            EXPECT_EQ(LettreTapée(tapée), lettre) << static_cast<int>(tapée);
    };
    frappes(u'a', u"aàâäAÀ");
    frappes(u'c', u"cçCÇ");
    frappes(u'e', u"eéèêëEÊËÈÉ");
    frappes(u'i', u"iîïIÎÏ");
    frappes(u'o', u"oôöOÔÖ");
    frappes(u'u', u"uùûUÛÜ");
    frappes(u'z', u"zZ");
}

TEST(ClassesDeLettres, FrappesSansTouche)
{
    for (const char16_t tapée : VueTexte{u"ÂÄüÙœæñÿ7-' "}) {
        const auto lettre = LettreTapée(tapée);
        EXPECT_TRUE(lettre < u'a' || lettre > u'z') << static_cast<int>(tapée);
    }
}

} // namespace tirelune
