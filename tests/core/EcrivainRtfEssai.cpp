#include "core/EcrivainRtf.h"

#include "core/LecteurRtf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace tirelune {

namespace {

void RelireÉgal(const TexteRiche& texte)
{
    const auto rtf = EcrireRtf(texte);
    const auto relu = LireRtf(rtf);
    ASSERT_TRUE(relu) << rtf;
    EXPECT_EQ(relu->Caractères(), texte.Caractères()) << rtf;
    EXPECT_TRUE(*relu == texte) << rtf;
    EXPECT_EQ(EcrireRtf(*relu), rtf);
}

std::string Ecrit(VueTexte texte)
{
    return EcrireRtf(TexteRiche{Texte(texte)});
}
bool Contient(const std::string& rtf, std::string_view morceau)
{
    return rtf.find(morceau) != std::string::npos;
}

// A fixed sequence of numbers, so that every run tries the same texts.
class Suite {
public:
    explicit Suite(std::uint32_t graine) : graine_(graine) {}
    std::uint32_t Tirer(std::uint32_t sous)
    {
        graine_ = graine_ * 1664525U + 1013904223U;
        return (graine_ >> 8U) % sous;
    }

private:
    std::uint32_t graine_;
};

constexpr std::array<VueTexte, 22> Matières{
    u"a",  u"mot", u" ",      u"\r\n", u"\r\n\r\n", u"\t",   u"é’œ€", u"\\{}", u"\u00A0", u"\u2011", u"\x1F",
    u"\r", u"\n",  u"\u0081", u"🦉", u"Ω語",      u"-1 0", u";",    u"\x7F", u"\u00AD", u"\u2028", u"\x01"};
constexpr std::array<VueTexte, 5> Polices{u"Comic Sans MS", u"Arial", u"Écriture A", u"Police {à} 2; \\", u"楷体"};

TexteRiche AuHasard(Suite& suite)
{
    TexteRiche texte;
    const auto morceaux = suite.Tirer(40);
    for (std::uint32_t i = 0; i < morceaux; ++i) {
        const Format format{.Police = Texte(Polices[suite.Tirer(Polices.size())]),
                            .Taille = (suite.Tirer(80) + 1) / 2.0,
                            .Teinte = suite.Tirer(2) == 0 ? CouleurAuto : Couleur{suite.Tirer(0x1000000)},
                            .Gras = suite.Tirer(3) == 0,
                            .Italique = suite.Tirer(3) == 0,
                            .Souligné = suite.Tirer(3) == 0,
                            .Barré = suite.Tirer(3) == 0};
        texte.Remplacer(suite.Tirer(static_cast<std::uint32_t>(texte.Longueur()) + 1), suite.Tirer(3),
                        Matières[suite.Tirer(Matières.size())], &format);
        texte.FormaterParagraphes(suite.Tirer(static_cast<std::uint32_t>(texte.Longueur()) + 1), suite.Tirer(5),
                                  [&](FormatParagraphe& paragraphe) {
                                      paragraphe.Alignement = static_cast<Cadrage>(suite.Tirer(4));
                                      paragraphe.RetraitGauche = static_cast<int>(suite.Tirer(3)) * 100;
                                      paragraphe.RetraitPremièreLigne = static_cast<int>(suite.Tirer(3)) * -50;
                                  });
    }
    // A pair of surrogates cut in two can't come back: no character stands there.
    Texte caractères = texte.Caractères();
    for (std::size_t i = 0; i < caractères.size(); ++i) {
        const bool haute = caractères[i] >= 0xD800 && caractères[i] <= 0xDBFF;
        const bool suivie = i + 1 < caractères.size() && caractères[i + 1] >= 0xDC00 && caractères[i + 1] <= 0xDFFF;
        if (haute && suivie)
            ++i;
        else if (caractères[i] >= 0xD800 && caractères[i] <= 0xDFFF)
            texte.Remplacer(i, 1, u"?");
    }
    return texte;
}

} // namespace

TEST(EcrivainRtf, UnTexteVideGardeSonFormatEtSonParagraphe)
{
    RelireÉgal(TexteRiche{});
    TexteRiche texte{u"", Format{.Police = u"Arial", .Taille = 20, .Barré = true}};
    texte.FormaterParagraphes(0, 0, [](FormatParagraphe& p) { p.Alignement = Cadrage::Centre; });
    RelireÉgal(texte);
    EXPECT_EQ(LireRtf(EcrireRtf(texte))->FormatEn(0), texte.FormatEn(0));
}

TEST(EcrivainRtf, LaDernièreLigneNeGagneNiNePerdSaFin)
{
    for (const auto* texte : {u"", u"a", u"a\r\n", u"\r\n", u"\r\n\r\n", u"a\r\nb", u"a\r\n\r\n"}) {
        RelireÉgal(TexteRiche{texte});
        TexteRiche barré{texte};
        barré.Formater(0, 99, [](Format& format) { format.Barré = true; });
        RelireÉgal(barré);
    }
}

TEST(EcrivainRtf, LeFichierEstEnAsciiPur)
{
    const auto rtf = EcrireRtf(TexteRiche{u"Été œuvre « 🦉 » \u0081\x1F", Format{.Police = u"Écriture"}});
    EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](char c) {
        return (c >= ' ' && c < 0x7F) || c == '\r' || c == '\n';
    })) << rtf;
    EXPECT_TRUE(rtf.starts_with("{\\rtf1\\ansi\\ansicpg1252\\deff0"));
}

TEST(EcrivainRtf, LesCaractèresSÉcriventSelonLeurPlace)
{
    EXPECT_TRUE(Contient(Ecrit(u"é œ €"), " \\'e9 \\'9c \\'80}"));
    EXPECT_TRUE(Contient(Ecrit(u"\u2011Ω\uFFFD"), " \\u8209?\\u937?\\u-3?}"));
    EXPECT_TRUE(Contient(Ecrit(u"🦉"), " \\u-10178?\\u-8823?}"));
    EXPECT_TRUE(Contient(Ecrit(u"a\\b{c}d"), " a\\\\b\\{c\\}d}"));
    EXPECT_TRUE(Contient(Ecrit(u"a\tb\u00A0c"), " a\\tab b\\~c}"));
    EXPECT_TRUE(Contient(Ecrit(u"a\r\nb"), " a\\par\r\nb}"));
    EXPECT_TRUE(Contient(Ecrit(u"\x1F"), " \\u31?}"));
}

TEST(EcrivainRtf, ChaqueCaractèreSeRelit)
{
    Texte texte;
    for (char32_t c = 0; c < 0x10000; ++c)
        if (c < 0xD800 || c > 0xDFFF)
            texte += static_cast<char16_t>(c);
    RelireÉgal(TexteRiche{texte});
    RelireÉgal(TexteRiche{u"1\r2\n3\r\r\n4\n\r5\r\n\n"});
}

TEST(EcrivainRtf, UneDemiePaireDevientUnCarréDeRemplacement)
{
    const Texte moitiés{0xD83E, u'a', 0xDD89, 0xDD89, 0xD83E};
    EXPECT_EQ(LireRtf(EcrireRtf(TexteRiche{moitiés}))->Caractères(), u"\uFFFDa\uFFFD\uFFFD\uFFFD");
    for (const char16_t seule : {0xD800, 0xDBFF, 0xDC00, 0xDFFF}) {
        for (const auto& texte : {Texte{seule}, Texte{seule, u'a'}, Texte{u'a', seule}, Texte{seule, seule}})
            EXPECT_EQ(Contient(LireRtf(EcrireRtf(TexteRiche{texte}))->Caractères(), u'\uFFFD'), true);
    }
    for (const auto& paire : {Texte{0xD800, 0xDC00}, Texte{0xDBFF, 0xDFFF}, Texte{0xD7FF, 0xE000}})
        EXPECT_EQ(LireRtf(EcrireRtf(TexteRiche{paire}))->Caractères(), paire);
    TexteRiche coupée{u"🦉🦉"};
    coupée.Formater(1, 2, [](Format& format) { format.Gras = true; });
    EXPECT_EQ(LireRtf(EcrireRtf(coupée))->Caractères(), u"🦉🦉");
}

TEST(EcrivainRtf, UneMoitiéDePaireNeSEmpruntePasUneVoisine)
{
    const auto relire = [](const Texte& texte) { return LireRtf(EcrireRtf(TexteRiche{texte}))->Caractères(); };
    EXPECT_EQ(relire({0xD83E, 0xDD89, 0xDD89}), (Texte{0xD83E, 0xDD89, 0xFFFD}));
    EXPECT_EQ(relire({0xD83E, 0xD83E, 0xDD89}), (Texte{0xFFFD, 0xD83E, 0xDD89}));
    EXPECT_EQ(relire({0xDD89}), u"\uFFFD");
    EXPECT_EQ(relire({0xD83E}), u"\uFFFD");
    EXPECT_EQ(relire({0xDD89, 0xD83E}), u"\uFFFD\uFFFD");
    // The first and the last of both halves, and what stands beside them.
    EXPECT_EQ(relire({0xD800, 0xDC00, 0xDBFF, 0xDFFF}), (Texte{0xD800, 0xDC00, 0xDBFF, 0xDFFF}));
    EXPECT_EQ(relire({0xD7FF, 0xDC00, 0xDBFF, 0xE000}), u"\uD7FF\uFFFD\uFFFD\uE000");
    TexteRiche coupée{Texte{0xD83E, 0xDD89}};
    coupée.Formater(1, 1, [](Format& format) { format.Gras = true; });
    EXPECT_TRUE(*LireRtf(EcrireRtf(coupée)) == coupée); // its halves may differ in format
}

TEST(EcrivainRtf, LesFormatsSeRelisent)
{
    TexteRiche texte{u"gras italique souligné barré rouge grand police"};
    texte.Formater(0, 4, [](Format& f) { f.Gras = true; });
    texte.Formater(5, 8, [](Format& f) { f.Italique = true; });
    texte.Formater(14, 8, [](Format& f) { f.Souligné = true; });
    texte.Formater(23, 5, [](Format& f) { f.Barré = true; });
    texte.Formater(29, 5, [](Format& f) { f.Teinte = Rouge; });
    texte.Formater(35, 5, [](Format& f) { f.Taille = 20.5; });
    texte.Formater(41, 6, [](Format& f) { f.Police = u"Arial"; });
    RelireÉgal(texte);
    EXPECT_TRUE(Contient(EcrireRtf(texte), "{\\colortbl ;\\red255\\green0\\blue0;}"));
    EXPECT_TRUE(Contient(EcrireRtf(texte), "\\strike barr\\'e9\\strike0 "));
}

TEST(EcrivainRtf, UneMarqueQuiFinitLeTexteSeRelit)
{
    TexteRiche texte{u"la fin"};
    texte.Formater(3, 3, [](Format& f) { f.Barré = true; });
    EXPECT_EQ(MotsMarqués(*LireRtf(EcrireRtf(texte))), std::vector<Texte>{u"fin"});
}

TEST(EcrivainRtf, LesParagraphesSeRelisent)
{
    TexteRiche texte{u"a\r\nb\r\nc\r\nd\r\n"};
    for (const auto alignement : {Cadrage::Droite, Cadrage::Centre, Cadrage::Justifié})
        texte.FormaterParagraphes(static_cast<std::size_t>(alignement) * 3, 0, [&](FormatParagraphe& p) {
            p = {alignement, 100, 200, -50};
        });
    RelireÉgal(texte);
    texte.FormaterParagraphes(texte.Longueur(), 0, [](FormatParagraphe& p) { p.RetraitDroit = -7; });
    RelireÉgal(texte);
}

TEST(EcrivainRtf, CeQueLeFormatNePeutPasDireEstRamenéÀSesLimites)
{
    TexteRiche texte{u"abc"};
    texte.Formater(0, 1, [](Format& f) { f.Taille = 10.3; });
    texte.Formater(1, 1, [](Format& f) { f.Taille = -5; });
    texte.Formater(2, 1, [](Format& f) { f.Taille = 1e9; });
    texte.FormaterParagraphes(0, 0, [](FormatParagraphe& p) { p.RetraitGauche = 1'000'000; });
    const auto relu = LireRtf(EcrireRtf(texte));
    EXPECT_EQ(relu->FormatEn(0).Taille, 10.5);
    EXPECT_EQ(relu->FormatEn(1).Taille, 0.5);
    EXPECT_EQ(relu->FormatEn(2).Taille, 1638);
    EXPECT_EQ(relu->ParagrapheEn(0).RetraitGauche, 31'680);
}

TEST(EcrivainRtf, TousLesTextesTirésSeRelisentÉgaux)
{
    Suite suite(2024);
    for (int fois = 0; fois < 3'000; ++fois) {
        RelireÉgal(AuHasard(suite));
        if (HasFailure())
            FAIL() << "text number " << fois;
    }
}

} // namespace tirelune
