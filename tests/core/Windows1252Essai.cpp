#include "core/Windows1252.h"

#include "tests/support/Banc.h"

namespace tirelune {

TEST(Windows1252, SelonLaTable)
{
    const Texte haut = u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ";
    std::string octets;
    for (int code = 0; code < 256; ++code)
        octets += static_cast<char>(code);
    const auto texte = DepuisWindows1252(octets);
    ASSERT_EQ(texte.size(), 256U);
    for (std::size_t code = 0; code < 256; ++code) {
        const bool table = code >= 0x80 && code < 0xA0;
        EXPECT_EQ(texte[code], table ? haut[code - 0x80] : static_cast<char16_t>(code)) << code;
    }
    EXPECT_EQ(EnWindows1252(texte), octets);
}

TEST(Windows1252, CeQuiEnEstAbsentNeDevientJamaisUnPointDInterrogation)
{
    for (const auto* texte : {u"Ω", u"e\u0301", u"\U0001F600", u"ł", u"\uFFFD", u"\u0100"}) {
        EXPECT_FALSE(EnWindows1252(texte).has_value());
        EXPECT_FALSE(TientEnWindows1252(texte));
    }
    EXPECT_TRUE(TientEnWindows1252(u"œ€Ÿ"));
    EXPECT_TRUE(TientEnWindows1252(u""));
}

} // namespace tirelune
