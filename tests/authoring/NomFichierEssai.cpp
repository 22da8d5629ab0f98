#include "authoring/NomFichier.h"

#include <gtest/gtest.h>

namespace tirelune {

TEST(NomFichier, CoupeAuPremierCaractèreQuiNeConvientPas)
{
    EXPECT_EQ(CouperNomFichier(u"Le chat de l'île"), u"Le chat de l'île");
    EXPECT_EQ(CouperNomFichier(u"Le chat. Il dort"), u"Le chat");
    EXPECT_EQ(CouperNomFichier(u"Chapitre 1"), u"Chapitre ");
    EXPECT_EQ(CouperNomFichier(u"Peut-être"), u"Peut");
    EXPECT_EQ(CouperNomFichier(u"Un Éléphant"), u"Un ");
    EXPECT_EQ(CouperNomFichier(u"où"), u"o");
    EXPECT_EQ(CouperNomFichier(u"azAZ"), u"azAZ");
    for (const char16_t voisin : {u'`', u'{', u'@', u'['})
        EXPECT_EQ(CouperNomFichier(u"a" + Texte(1, voisin)), u"a");
    EXPECT_EQ(CouperNomFichier(u"../secret"), u"");
    EXPECT_EQ(CouperNomFichier(u""), u"");
}

TEST(NomFichier, ToutesLesLettresAccentuéesPrévuesConviennent)
{
    EXPECT_EQ(CouperNomFichier(u"azAZ 'àâçéèêëîïôöûü"), u"azAZ 'àâçéèêëîïôöûü");
}

TEST(NomFichier, ProposeLesPremiersMots)
{
    EXPECT_EQ(NomProposé(u"   Il était une fois un petit chat gris.\r\nFin"), u"Il était une fois un peti.rtf");
    EXPECT_EQ(NomProposé(u"Le chat"), u"Le chat.rtf");
    EXPECT_EQ(NomProposé(Texte(25, u'a')), Texte(25, u'a') + u".rtf");
    EXPECT_EQ(NomProposé(Texte(26, u'a')), Texte(25, u'a') + u".rtf");
    EXPECT_EQ(NomProposé(u"Le chat \r\ndort"), u"Le chat.rtf");
}

TEST(NomFichier, TexteVideOuSansDébutNAQueLExtension)
{
    EXPECT_EQ(NomProposé(u""), u".rtf");
    EXPECT_EQ(NomProposé(u"     "), u".rtf");
    EXPECT_EQ(NomProposé(u"\r\nLe chat"), u".rtf");
    EXPECT_EQ(NomProposé(u"\tLe chat"), u".rtf");
    EXPECT_EQ(NomProposé(u"1er jour"), u".rtf");
}

} // namespace tirelune
