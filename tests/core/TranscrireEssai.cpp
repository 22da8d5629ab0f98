#include "tests/support/Banc.h"

namespace tirelune {

namespace {

class EcranDEssai final : public Ecran {
public:
    explicit EcranDEssai(Application& application) : Ecran(application, "EcranDEssai", u"Essai") {}

    RichTextBox rtf{*this, "rtf"};

private:
    Arrangement Disposer() override { return Libre{rtf}; }
};

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
    auto& écran = banc.Ouvrir<EcranDEssai>();
    écran.rtf.Text(u"0123456789");

    const auto éditions = Editions(écran.rtf, u"01x345x789");

    ASSERT_EQ(éditions.size(), 1U);
    EXPECT_EQ(éditions[0].Début, 2U);
    EXPECT_EQ(éditions[0].Retirés, 5U);
    EXPECT_EQ(éditions[0].Ajoutés, 5U);
    EXPECT_EQ(écran.rtf.Text(), u"01x345x789");
}

TEST(Transcrire, GardeFormatsEtSélection)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranDEssai>();
    écran.rtf.Text(u"abcdef");
    écran.rtf.Sélectionner(2, 2);
    écran.rtf.SelBold = true;

    écran.rtf.Transcrire(u"ABCDEF");

    EXPECT_EQ(écran.rtf.SelText(), u"CD");
    EXPECT_EQ(écran.rtf.SelBold(), true);
    EXPECT_FALSE(écran.rtf.TextRTF().FormatEn(1).Gras);
    EXPECT_FALSE(écran.rtf.TextRTF().FormatEn(4).Gras);
}

TEST(Transcrire, MêmeTexteNeDitRien)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranDEssai>();
    écran.rtf.Text(u"abc");
    EXPECT_TRUE(Editions(écran.rtf, u"abc").empty());
    écran.rtf.Text(u"");
    EXPECT_TRUE(Editions(écran.rtf, u"").empty());
}

TEST(DoubleClic, LeSecondAppuiDéplaceLeCurseur)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranDEssai>();
    écran.rtf.Text(u"abc");
    écran.rtf.Sélectionner(1, 1);
    std::size_t longueur = 99;
    écran.rtf.DblClick = [&] { longueur = écran.rtf.SelLength(); };

    écran.rtf.DoubleCliquer(1);

    EXPECT_EQ(longueur, 0U);
    EXPECT_EQ(écran.rtf.SelText(), u"b");
}

} // namespace tirelune
