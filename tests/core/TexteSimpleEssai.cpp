#include "core/TexteSimple.h"

#include <gtest/gtest.h>

#include <array>

namespace tirelune {

namespace {

std::string_view Octets(const auto& littéral)
{
    return {littéral, sizeof littéral - 1};
}

} // namespace

TEST(TexteSimple, LEncodageSeReconnaît)
{
    EXPECT_EQ(LireTexteSimple("L'\xE9t\xE9, \x9Cuf"), u"L'été, œuf");
    EXPECT_EQ(LireTexteSimple("L'\xC3\xA9t\xC3\xA9"), u"L'été");
    EXPECT_EQ(LireTexteSimple("\xEF\xBB\xBFL'\xC3\xA9t\xC3\xA9"), u"L'été");
    EXPECT_EQ(LireTexteSimple(Octets("\xFF\xFE\xE9\0\x53\x01")), u"éœ");
    EXPECT_EQ(LireTexteSimple(Octets("\xFE\xFF\0\xE9\x01\x53")), u"éœ");
    EXPECT_EQ(LireTexteSimple(Octets("\xFF\xFEz\0\x3D")), u"z"); // cut in the middle of a character
    EXPECT_EQ(LireTexteSimple("abc"), u"abc");
    for (const auto* vide : {"", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"})
        EXPECT_EQ(LireTexteSimple(vide), u"");
}

TEST(TexteSimple, UnSeulOctetHorsDUtf8FaitDuWindows1252)
{
    EXPECT_EQ(LireTexteSimple("\xC3\xA9\xE9"), u"Ã©é");
    EXPECT_EQ(LireTexteSimple("\xC0\xAF"), u"À¯"); // overlong
    EXPECT_EQ(LireTexteSimple("\xEF\xBF\xBD"), u"\uFFFD");
}

TEST(TexteSimple, CeQuiNEstPasDuTexteEstRefusé)
{
    EXPECT_FALSE(LireTexteSimple(Octets("a\0b")));
    EXPECT_FALSE(LireTexteSimple(Octets("\0")));
    EXPECT_FALSE(LireTexteSimple(Octets("\xFF\xFEz\0\0\0")));
    EXPECT_FALSE(LireTexteSimple(Octets("\xEF\xBB\xBF\0")));
    for (const auto* début : {"PK\x03\x04mimetype", "PK\x05\x06", "\x89PNG\r\n\x1A\n", "GIF89a", "\xFF\xD8\xFF\xE0",
                              "%PDF-1.7", "\x1F\x8B\x08", "7z\xBC\xAF\x27\x1C", "Rar!\x1A\x07"})
        EXPECT_FALSE(LireTexteSimple(début)) << début;
    for (const auto* texte : {"PK", "PNG", "GIF", "%PDF", "Rar!", "BM est ici"})
        EXPECT_TRUE(LireTexteSimple(texte)) << texte;
}

} // namespace tirelune
