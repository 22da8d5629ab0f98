#include "tests/support/Banc.h"
#include "tests/support/EcranTexte.h"

namespace tirelune {

namespace {

std::vector<RichTextBox::Edition> Editions(RichTextBox& boîte, const Texte& nouveaux)
{
    std::vector<RichTextBox::Edition> éditions;
    boîte.EditionFaite = [&](const RichTextBox::Edition& édition) { éditions.push_back(édition); };
    boîte.Transcrire(nouveaux);
    boîte.EditionFaite = nullptr;
    return éditions;
}

} // namespace

TEST(Transcrire, UneSeuleEditionDuPremierAuDernierChangement)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranTexte>();
    écran.rtfTexte.Text(u"0123456789");

    const auto éditions = Editions(écran.rtfTexte, u"01x345x789");

    ASSERT_EQ(éditions.size(), 1U);
    EXPECT_EQ(éditions[0].Début, 2U);
    EXPECT_EQ(éditions[0].Retirés, 5U);
    EXPECT_EQ(éditions[0].Ajoutés, 5U);
    EXPECT_EQ(écran.rtfTexte.Text(), u"01x345x789");
}

TEST(Transcrire, GardeFormatsEtSélection)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranTexte>();
    écran.rtfTexte.Text(u"abcdef");
    écran.rtfTexte.Sélectionner(2, 2);
    écran.rtfTexte.SelBold = true;

    écran.rtfTexte.Transcrire(u"ABCDEF");

    EXPECT_EQ(écran.rtfTexte.SelText(), u"CD");
    EXPECT_EQ(écran.rtfTexte.SelBold(), true);
    EXPECT_FALSE(écran.rtfTexte.TextRTF().FormatEn(1).Gras);
    EXPECT_FALSE(écran.rtfTexte.TextRTF().FormatEn(4).Gras);
}

TEST(Transcrire, MêmeTexteNeDitRien)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranTexte>();
    écran.rtfTexte.Text(u"abc");
    EXPECT_TRUE(Editions(écran.rtfTexte, u"abc").empty());
    écran.rtfTexte.Text(u"");
    EXPECT_TRUE(Editions(écran.rtfTexte, u"").empty());
}

TEST(DoubleClic, LeSecondAppuiDéplaceLeCurseur)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranTexte>();
    écran.rtfTexte.Text(u"abc");
    écran.rtfTexte.Sélectionner(1, 1);
    std::size_t longueur = 99;
    écran.rtfTexte.DblClick = [&] { longueur = écran.rtfTexte.SelLength(); };

    écran.rtfTexte.DoubleCliquer(1);

    EXPECT_EQ(longueur, 0U);
    EXPECT_EQ(écran.rtfTexte.SelText(), u"b");
}

} // namespace tirelune
