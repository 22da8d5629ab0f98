#include "core/LecteurRtf.h"

#include "core/EcrivainRtf.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <iterator>

namespace tirelune {

namespace {

// The plain text of a whole file, its outer braces included.
Texte Brut(std::string_view rtf)
{
    const auto texte = LireRtf(rtf);
    if (!texte) {
        ADD_FAILURE() << "not read";
        return {};
    }
    return texte->Caractères();
}

// Of a body between the usual head and the closing brace.
TexteRiche Lire(const std::string& corps)
{
    auto texte = LireRtf("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}"
                         "{\\f1\\fswiss\\fcharset204 Times New Roman Cyr{\\*\\falt Times};}}"
                         "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green128\\blue0;}\\uc1 " +
                         corps + "}");
    EXPECT_TRUE(texte);
    return texte.value_or(TexteRiche{});
}
Texte Corps(const std::string& corps)
{
    return Lire(corps).Caractères();
}
std::vector<Texte> Marqués(const std::string& corps)
{
    return MotsMarqués(Lire(corps));
}

std::string Donnée(const std::string& nom)
{
    std::ifstream flux(Chemin(DOSSIER_SOURCES) / "tests" / "donnees" / nom, std::ios::binary);
    EXPECT_TRUE(flux.is_open()) << nom;
    return {std::istreambuf_iterator<char>(flux), {}};
}

constexpr std::array Données{"libreoffice-marques.rtf", "libreoffice-mise-en-forme.rtf", "libreoffice-structure.rtf",
                             "abiword-marques.rtf",     "abiword-mise-en-forme.rtf",     "abiword-structure.rtf"};

const std::vector<Texte> MarquesDeLaChouette{u"chouette",  u"chou",     u"clocher", u"vole",   u"jardins",
                                             u"ruisseau",  u"hérisson", u"cœur",    u"là-bas", u"œil",
                                             u"cou tordu", u" ",        u"Élise",   u"fenêtre"};

} // namespace

TEST(LecteurRtf, CeQuiNEstPasDuRtfNEstPasLu)
{
    EXPECT_FALSE(LireRtf(""));
    EXPECT_FALSE(LireRtf("{"));
    EXPECT_FALSE(LireRtf("{\\rt"));
    EXPECT_FALSE(LireRtf("Il était une fois"));
    EXPECT_FALSE(LireRtf("\\rtf1 a"));
    EXPECT_FALSE(LireRtf("x{\\rtf1 a}"));
    EXPECT_FALSE(LireRtf(" \t\r\n"));
    EXPECT_FALSE(LireRtf(std::string_view("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16)));
}

TEST(LecteurRtf, UnTexteVideSeLit)
{
    EXPECT_EQ(Brut("{\\rtf1}"), u"");
    EXPECT_EQ(Brut("{\\rtf"), u"");
    EXPECT_EQ(Brut("{\\rtf1\\ansi"), u"");
}

TEST(LecteurRtf, LesBlancsEtLaMarqueDEncodageDuDébutSontSautés)
{
    EXPECT_EQ(Brut("\xEF\xBB\xBF \r\n\t{\\rtf1 a}"), u"a");
    EXPECT_EQ(Brut("{ \r\n\t\\rtf1 a{\\b b}c}"), u"abc");
    EXPECT_FALSE(LireRtf(" \\rtf1 a}"));
    EXPECT_FALSE(LireRtf("{ a\\rtf1 a}"));
}

TEST(LecteurRtf, UnCaractèreAsciiPeutÊtreEchappé)
{
    EXPECT_EQ(Corps("\\'41\\'7b\\'5Cb\\'7D\\'20\\'7f\\'80"), u"A{\\b} \u007F€");
    EXPECT_EQ(Corps("\\f1\\'41\\'e0"), u"Aа"); // in any code page
    EXPECT_EQ(Lire("\\strike\\'41").Longueur(), 1U);
    EXPECT_EQ(Marqués("\\strike \\'41b\\strike0 c"), std::vector<Texte>{u"Ab"});
    EXPECT_EQ(LireRtf("{\\rtf1\\deff0{\\fonttbl{\\f0 \\'41rial;}}a}")->FormatEn(0).Police, u"Arial");
}

TEST(LecteurRtf, LÉtoileQuiNOuvrePasLeGroupeNeLAvalePas)
{
    EXPECT_EQ(Corps("a\\*\\inconnu b"), u"ab");
    EXPECT_EQ(Corps("{a\\*\\inconnu b\\*\\bkmkstart c}d"), u"abcd");
    EXPECT_EQ(Corps("\\{\\*\\inconnu b"), u"{b");
    EXPECT_EQ(Corps("{\\b\\*\\inconnu b}"), u"b");
    EXPECT_EQ(Corps("a\\* b\\*\\par c"), u"a b\r\nc");
    EXPECT_EQ(Corps("{\\*\\inconnu b}{\r\n\\*\\inconnu c}d"), u"d"); // line ends mean nothing
}

TEST(LecteurRtf, CeQuiSuitLAccoladeFinaleEstIgnoré)
{
    EXPECT_EQ(Brut("{\\rtf1 a}b{\\rtf1 c}"), u"a");
}

TEST(LecteurRtf, LesAccoladesQuiManquentNEmpêchentPasDeLire)
{
    EXPECT_EQ(Brut("{\\rtf1 a{\\b b{\\i c"), u"abc");
    EXPECT_EQ(Brut("{\\rtf1 a\\"), u"a");
    EXPECT_EQ(Brut("{\\rtf1 a\\'"), u"a");
    EXPECT_EQ(Brut("{\\rtf1 a\\'e"), u"ae");
    EXPECT_EQ(Brut("{\\rtf1 a\\u"), u"a");
    EXPECT_EQ(Brut("{\\rtf1 a\\u233"), u"aé");
    EXPECT_EQ(Brut("{\\rtf1 a\\*"), u"a");
    EXPECT_EQ(Brut("{\\rtf1 a{\\*\\inconnu b"), u"a");
}

TEST(LecteurRtf, LesNulsSontIgnorés)
{
    EXPECT_EQ(Brut(std::string_view("\0{\\rtf1 a\0b\\b\0 c}\0", 18)), u"ab c");
}

// Wherever it stands among plain letters, and whatever stands beside it.
TEST(LecteurRtf, UnOctetJusquAuBlancSeLitPartoutDeMême)
{
    const std::string lettres = "abcdefghijklmnopq";
    const auto attendu = [](const std::string& octets) {
        Texte texte;
        for (const char c : octets) {
            if (c != '\0' && c != '\r' && c != '\n')
                texte += static_cast<char16_t>(c);
        }
        return texte;
    };
    for (char octet = 0; octet <= ' '; ++octet) {
        for (const auto& bout : {std::string{octet}, {octet, ' '}, {' ', octet}, {octet, '\x1F'}, {'\x1F', octet}}) {
            for (std::size_t place = 1; place <= lettres.size(); ++place) {
                auto corps = lettres;
                corps.insert(place, bout);
                ASSERT_EQ(Corps(corps), attendu(corps)) << static_cast<int>(octet) << " en " << place;
            }
        }
    }
}

TEST(LecteurRtf, UnMillionDeGroupesEmboîtésSeLit)
{
    const std::size_t profondeur = 1'000'000;
    std::string rtf = "{\\rtf1 ";
    for (std::size_t i = 0; i < profondeur; ++i)
        rtf += '{';
    rtf += "fond";
    for (std::size_t i = 0; i < profondeur; ++i)
        rtf += '}';
    EXPECT_EQ(Brut(rtf + "\\b suite}"), u"fondsuite");
    EXPECT_EQ(Brut(rtf.substr(0, profondeur + 11)), u"fond");
}

TEST(LecteurRtf, LesGroupesTropProfondsPartagentLeDernierÉtat)
{
    std::string rtf;
    for (int i = 0; i < 20'000; ++i)
        rtf += "{";
    rtf += "{\\strike a}{\\*\\inconnu x}";
    for (int i = 0; i < 20'000; ++i)
        rtf += "}";
    EXPECT_EQ(Marqués(rtf + "b"), std::vector<Texte>{u"a"});
}

TEST(LecteurRtf, UnMillionDeGroupesSautésOuDePucesSeLit)
{
    std::string rtf;
    for (int i = 0; i < 1'000'000; ++i)
        rtf += "{\\listtext ";
    EXPECT_EQ(Corps(rtf + "a\\par"), u"a\r\n");
    rtf.clear();
    for (int i = 0; i < 1'000'000; ++i)
        rtf += "{\\*\\x{}";
    EXPECT_EQ(Corps(rtf), u"");
}

TEST(LecteurRtf, LesParagraphesFinissentParCrLf)
{
    EXPECT_EQ(Brut("{\\rtf1 a\\par }"), u"a\r\n");
    EXPECT_EQ(Brut("{\\rtf1 a\\par b}"), u"a\r\nb");
    EXPECT_EQ(Corps("a\\line b\\sect c\\page d\\column e"), u"a\r\nb\r\nc\r\nd\r\ne");
    EXPECT_EQ(Corps("a\\\nb\\\r\nc\\\rd"), u"a\r\nb\r\nc\r\nd");
    EXPECT_EQ(Corps("a\r\nb\nc"), u"abc");
}

TEST(LecteurRtf, LesCaractèresNommésSontLus)
{
    EXPECT_EQ(Corps("\\tab\\emdash\\endash\\lquote\\rquote\\ldblquote\\rdblquote\\bullet"), u"\t—–‘’“”•");
    EXPECT_EQ(Corps("\\enspace\\emspace\\qmspace"), u"\u2002\u2003\u2005");
    EXPECT_EQ(Corps("a\\~b\\_c\\-d\\\\e\\{f\\}g\th"), u"a\u00A0b-cd\\e{f}g\th");
}

TEST(LecteurRtf, LeBlancDUnMotDeCommandeNEstPasDuTexte)
{
    EXPECT_EQ(Corps("\\b  a\\b0\\i-1b \\fs24c\\i0 - 1"), u" ab c- 1");
    EXPECT_EQ(Corps("a\\b\r\nb\\inconnu12c\\Inconnu d\\B e"), u"abcde");
}

TEST(LecteurRtf, LesOctetsSuiventLaPageDeCodesDuDocument)
{
    EXPECT_EQ(Brut("{\\rtf1\\ansi \\'e9\\'9C\\'80\\'81\\'8d}"), u"éœ€\u0081\u008D");
    EXPECT_EQ(Brut("{\\rtf1\\ansi \xE9\x9C}"), u"éœ");
    EXPECT_EQ(Brut("{\\rtf1\\mac \\'8e\\'cf\\'d5}"), u"éœ’");
    EXPECT_EQ(Brut("{\\rtf1\\pc \\'82\\'8a}"), u"éè");
    EXPECT_EQ(Brut("{\\rtf1\\pca \\'82\\'d5}"), u"éı");
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg1250 \\'b9\\'e6}"), u"ąć");
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg1251 \\'e9}"), u"й");
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg858 \\'d5}"), u"€");
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg99999 \\'e9}"), u"é");
}

TEST(LecteurRtf, LesOctetsSansCaractèreDeviennentUnCarréDeRemplacement)
{
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg1253 \\'aa\\'81}"), u"\uFFFD\u0081");
    EXPECT_EQ(Corps("a\\'zzb\\'"), u"azzb");
}

TEST(LecteurRtf, LaPoliceDonneSaPageDeCodes)
{
    EXPECT_EQ(Corps("\\f0\\'e9{\\f1\\'e9}\\'e9\\f1\\plain\\'e9"), u"éйéé");
    EXPECT_EQ(Brut("{\\rtf1\\ansi{\\fonttbl{\\f7\\fcharset0\\cpg1253 Grec;}}\\f7 \\'e1}"), u"α");
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\deff3{\\fonttbl{\\f3\\fcharset238 Est;}}\\'e6}"), u"ć");
}

TEST(LecteurRtf, LesPairesDOctetsDAsieNeDéraillentPas)
{
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg932 a\\'82\\'a0b\\'b1c}"), u"a\uFFFDb\uFF71c");
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg936 a\xB0\xA1"
                   "b\\'b0\\'5cc}"),
              u"a\uFFFDb\uFFFDc");
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg950 a\\'a4\\b b\\'a4}"), u"a\uFFFDb\uFFFD");
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg950 a\\'a4 b\\'a4\\'20c}"), u"a\uFFFD b\uFFFD c"); // no second byte: it stays
}

TEST(LecteurRtf, LUtf8DUnDocumentSeLit)
{
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg65001 \xC3\xA9\\'c3\\'a9\xE2\x80\x99\xF0\x9F\xA6\x89\xC3}"),
              u"éé’🦉\uFFFD");
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg65001 \xED\xA0\x80\xC0\x80x}"), u"\uFFFD\uFFFD\uFFFDx");
    // The first and the last code of each length, and the ones that are longer than they need be.
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg65001 \xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBD}"),
              (Texte{0x80, 0x7FF, 0x800, 0xFFFD}));
    EXPECT_EQ(Brut("{\\rtf1\\ansi\\ansicpg65001 \xF0\x90\x80\x80\xF4\x8F\xBF\xBF}"),
              (Texte{0xD800, 0xDC00, 0xDBFF, 0xDFFF}));
    for (const char* trop : {"\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80"}) {
        const auto lu = Brut(std::string{"{\\rtf1\\ansi\\ansicpg65001 "} + trop + "x}");
        EXPECT_EQ(lu.back(), u'x');
        EXPECT_EQ(lu.find_first_not_of(u'\uFFFD'), lu.size() - 1);
    }
}

TEST(LecteurRtf, LesCodesUnicodeRemplacentLeurRepli)
{
    EXPECT_EQ(Corps("\\u233?\\u-3?\\u8217\\'92x"), u"é\uFFFD’x");
    EXPECT_EQ(Corps("\\uc0\\u233 a\\uc2\\u233?\\'e9b\\uc3\\u233?\\b?c{\\uc0\\u233 d}\\u233???e"), u"éaébécédée");
    EXPECT_EQ(Corps("{\\uc5\\u233?}a\\u233{b}\\u233\r\n?c"), u"éaébéc");
    EXPECT_EQ(Corps("\\u233\\bin3 }}}a"), u"éa");
    EXPECT_EQ(Corps("\\uc99999\\u233 abc"), u"é");
    EXPECT_EQ(Corps("\\uc-4\\u233abc"), u"éabc");
    EXPECT_EQ(Corps("\\uc2\\uc\\u233?abc"), u"éabc"); // without a number: one
}

TEST(LecteurRtf, LesCodesImpossiblesDeviennentUnCarréDeRemplacement)
{
    EXPECT_EQ(Corps("\\u65536?\\u-65537?\\u99999999999?\\u-99999999999?"), u"\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(Corps("\\u?a"), u"?a");
}

TEST(LecteurRtf, LesPairesDeSubstitutionVontParDeux)
{
    EXPECT_EQ(Corps("\\u-10178?\\u-8823?"), u"🦉");
    EXPECT_EQ(Corps("\\u55358?{\\strike\\u56713?}"), u"🦉");
    EXPECT_EQ(Corps("\\u-10178?a\\u-8823?\\u-10178?\\u-10178?\\u-8823?\\u-10178?"), u"\uFFFDa\uFFFD\uFFFD🦉\uFFFD");
}

TEST(LecteurRtf, DesDeuxVersionsDUnTexteCelleEnUnicodeEstLue)
{
    EXPECT_EQ(Corps("a{\\upr{b?}{\\*\\ud{b\\u233?}}}c"), u"abéc");
}

TEST(LecteurRtf, CeQuiNEstPasDuTexteEstSauté)
{
    EXPECT_EQ(Corps("a{\\header x\\par}{\\headerl x}{\\footer x}{\\footerf x}{\\footnote x}b"), u"ab");
    EXPECT_EQ(Corps("a{\\info{\\title x}{\\author y}}{\\stylesheet{\\s0 Normal;}}b"), u"ab");
    EXPECT_EQ(Corps("a{\\pict\\pngblip 89504e47}{\\*\\shppict{\\pict 00}}{\\nonshppict{\\pict 00}}b"), u"ab");
    EXPECT_EQ(Corps("a{\\object\\objemb{\\*\\objdata 00}{\\result x}}{\\*\\annotation x}{\\xe{x}}{\\tc x}b"), u"ab");
    EXPECT_EQ(Corps("a{\\*\\bkmkstart x}{\\*\\bkmkend x}{\\* \r\n\\inconnu x{y}\\}z}b{\\*\\b x}"), u"ab");
    EXPECT_EQ(Corps("a{\\v caché\\par}\\v x\\v0 b\\deleted x\\deleted0 c"), u"abc");
    EXPECT_EQ(Corps("{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt{\\pntxtb\\'B7}}a{\\listtext 1.\\tab}b"), u"ab");
    EXPECT_EQ(Corps("{\\shp{\\*\\shpinst{\\shptxt x\\par}}{\\shprslt y}}a"), u"a");
}

TEST(LecteurRtf, LesDonnéesBinairesSontSautées)
{
    EXPECT_EQ(Corps("a\\bin4 }{\\\\b{\\pict\\bin3 }}}}c"), u"abc");
    EXPECT_EQ(Corps("a\\bin-5 b\\bin0 c\\bin d"), u"abcd");
    EXPECT_EQ(Corps("a\\bin99999999999 b"), u"a");
    EXPECT_EQ(Corps("a{\\pict\\bin2147483647 b}c"), u"a");
}

TEST(LecteurRtf, LesChampsMontrentLeurRésultat)
{
    EXPECT_EQ(Corps("a{\\field{\\*\\fldinst HYPERLINK \"http://exemple.fr\"}{\\fldrslt{\\ul lien}}}b"), u"alienb");
    EXPECT_EQ(Corps("{\\field{\\*\\fldinst PAGE}{\\*\\fldrslt 3}}"), u"3");
}

TEST(LecteurRtf, LesÉlémentsDeListeRangésDansLeurPuceSontLus)
{
    EXPECT_EQ(Corps("{\\listtext{\\tab un}{\\par}\n}{\\listtext deux\\par}{\\listtext\\bullet}trois\\pard"),
              u"\tun\r\ndeux\r\ntrois");
}

TEST(LecteurRtf, LesCellulesSontSéparéesParUneTabulation)
{
    EXPECT_EQ(Corps("\\trowd\\intbl a\\cell b\\cell c\\cell\\row\\pard d"), u"a\tb\tc\r\nd");
    EXPECT_EQ(Corps("\\trowd\\cell\\cell\\row\\trowd\\cell\\row"), u"\t\r\n\r\n");
    EXPECT_EQ(Corps("a\\cell b\\par c\\cell\\row"), u"a\tb\r\nc\r\n");
    EXPECT_EQ(Corps("a\\cell b\\cell"), u"a\tb");
}

TEST(LecteurRtf, LesCellulesEmboîtéesSontSéparéesDeMême)
{
    EXPECT_EQ(Corps("x\\cell a\\nestcell b\\nestcell{\\*\\nesttableprops\\trowd\\nestrow}{\\nonesttables\\par}"
                    "c\\cell\\row"),
              u"x\ta\tb\r\nc\r\n");
}

TEST(LecteurRtf, LesSéparateursDUnTableauNeSontPasMarqués)
{
    EXPECT_EQ(Marqués("\\strike a\\cell b\\cell\\row c"), (std::vector<Texte>{u"a", u"b", u"c"}));
    EXPECT_EQ(Marqués("a\\cell{\\strike b}\\cell\\row"), std::vector<Texte>{u"b"});
}

TEST(LecteurRtf, UneRangéePrendLAlignementDeSaPremièreCellule)
{
    const auto texte = Lire("\\pard\\qr a\\cell\\pard\\qc b\\cell\\pard\\row\\qj c");
    EXPECT_EQ(texte.ParagrapheEn(0).Alignement, Cadrage::Droite);
    EXPECT_EQ(texte.ParagrapheEn(5).Alignement, Cadrage::Justifié);
}

TEST(LecteurRtf, LeBarréMarqueLesMots)
{
    EXPECT_EQ(Marqués("un \\strike deux\\strike0  trois {\\strike quatre}"), (std::vector<Texte>{u"deux", u"quatre"}));
    EXPECT_EQ(Marqués("\\striked1 a\\striked0 b{\\striked1 c}d\\strike e\\plain f"),
              (std::vector<Texte>{u"a", u"c", u"e"}));
    EXPECT_EQ(Marqués("pré{\\strike fi}xe, \\strike1 un {\\b deux} trois"),
              (std::vector<Texte>{u"fi", u"un deux trois"}));
    EXPECT_EQ(Marqués("{\\strike fin\\par}"), std::vector<Texte>{u"fin\r\n"});
}

TEST(LecteurRtf, LesAttributsSontLus)
{
    const auto texte = Lire("\\b a\\b0\\i b\\i0\\ul c\\ulnone\\uldb d\\ul0\\ulw e\\plain\\ulc1 f");
    EXPECT_TRUE(texte.FormatEn(0).Gras);
    EXPECT_TRUE(texte.FormatEn(1).Italique && !texte.FormatEn(1).Gras);
    EXPECT_TRUE(texte.FormatEn(2).Souligné && texte.FormatEn(3).Souligné && texte.FormatEn(4).Souligné);
    EXPECT_FALSE(texte.FormatEn(5).Souligné);
}

TEST(LecteurRtf, LaFinDUnGroupeRendLeFormatDAvant)
{
    const auto texte = Lire("\\fs40 a{\\b\\fs20\\cf1\\f1\\qc b}c");
    EXPECT_EQ(texte.FormatEn(0), texte.FormatEn(2));
    EXPECT_EQ(texte.FormatEn(1).Taille, 10);
    EXPECT_EQ(texte.FormatEn(1).Police, u"Times New Roman Cyr");
    EXPECT_EQ(texte.FormatEn(1).Teinte, Rouge);
    EXPECT_EQ(texte.ParagrapheEn(0).Alignement, Cadrage::Gauche);
}

TEST(LecteurRtf, LesTaillesImpossiblesSontIgnorées)
{
    const auto texte = Lire("\\fs30 a\\fs-4 b\\fs0 c\\fs999999 d\\fs25 e\\fs f");
    EXPECT_EQ(texte.FormatEn(0).Taille, 15);
    EXPECT_EQ(texte.FormatEn(3).Taille, 15);
    EXPECT_EQ(texte.FormatEn(4).Taille, 12.5);
    EXPECT_EQ(texte.FormatEn(5).Taille, 12);
}

TEST(LecteurRtf, UneSecondeTableDeCouleursRemplaceLaPremière)
{
    const auto texte = LireRtf("{\\rtf1{\\colortbl;\\red255;\\red9;}{\\colortbl;\\blue255;}\\cf1 a\\cf2 b}");
    ASSERT_TRUE(texte);
    EXPECT_EQ(texte->FormatEn(0).Teinte, Bleu);
    EXPECT_EQ(texte->FormatEn(1).Teinte, CouleurAuto);
}

TEST(LecteurRtf, LesCouleursViennentDeLeurTable)
{
    const auto texte = Lire("\\cf1 a\\cf2 b\\cf0 c\\cf77 d\\cf-1 e");
    EXPECT_EQ(texte.FormatEn(0).Teinte, Rouge);
    EXPECT_EQ(texte.FormatEn(1).Teinte, Couleur::Rvb(0, 128, 0));
    EXPECT_EQ(texte.FormatEn(2).Teinte, CouleurAuto);
    EXPECT_EQ(texte.FormatEn(4).Teinte, CouleurAuto);
    const auto premier = LireRtf("{\\rtf1{\\colortbl\\red1\\green2\\blue300;\\blue9;}\\cf0 a\\cf1 b}");
    EXPECT_EQ(premier->FormatEn(0).Teinte, Couleur::Rvb(1, 2, 255));
    EXPECT_EQ(premier->FormatEn(1).Teinte, Couleur::Rvb(0, 0, 9));
}

TEST(LecteurRtf, LesPolicesViennentDeLeurTable)
{
    EXPECT_EQ(Lire("a").FormatEn(0).Police, u"Arial");
    EXPECT_EQ(Lire("\\f99 a").FormatEn(0).Police, u"Arial");
    EXPECT_EQ(LireRtf("{\\rtf1 a}")->FormatEn(0), Format{});
    const auto sansGroupes =
        LireRtf("{\\rtf1\\ansi{\\fonttbl\\f0\\fswiss Helvetica;\\f1\\fnil \\'c9cole;}\\f0 a\\f1 b}");
    EXPECT_EQ(sansGroupes->FormatEn(0).Police, u"Helvetica");
    EXPECT_EQ(sansGroupes->FormatEn(1).Police, u"École");
    const auto annotée =
        LireRtf("{\\rtf1{\\fonttbl{\\f2\\froman{\\*\\panose 0202}Georgia{\\*\\falt x};}{\\f3 Sans fin}}"
                "\\f2 a\\f3 b}");
    EXPECT_EQ(annotée->FormatEn(0).Police, u"Georgia");
    EXPECT_EQ(annotée->FormatEn(1).Police, u"Sans fin");
}

TEST(LecteurRtf, DeuxPolicesDuMêmeNomFontUneTranche)
{
    const auto texte = LireRtf("{\\rtf1{\\fonttbl{\\f0\\fcharset0 Arial;}{\\f1\\fcharset238 Arial;}}\\f0 a\\f1 b}");
    int tranches = 0;
    texte->PourChaqueTranche(0, 2, [&](const Tranche&) { ++tranches; });
    EXPECT_EQ(tranches, 1);
}

TEST(LecteurRtf, LesParagraphesPrennentLeFormatDeLeurFin)
{
    const auto texte = Lire("\\ql a\\qc\\par b\\qj\\li100\\ri-200\\fi50\\par\\pard c\\qr");
    EXPECT_EQ(texte.ParagrapheEn(0).Alignement, Cadrage::Centre);
    EXPECT_EQ(texte.ParagrapheEn(3), (FormatParagraphe{Cadrage::Justifié, 100, -200, 50}));
    EXPECT_EQ(texte.ParagrapheEn(6), (FormatParagraphe{Cadrage::Droite, 0, 0, 0}));
    EXPECT_EQ(Lire("\\li20\\li99999999 a").ParagrapheEn(0).RetraitGauche, 20);
}

TEST(LecteurRtf, LesTablesDémesuréesRestentBornées)
{
    std::string rtf = "{\\rtf1{\\fonttbl";
    for (int i = 0; i < 70'000; ++i)
        rtf += "{\\f" + std::to_string(i) + " P" + std::to_string(i) + ";}";
    rtf += "{\\f1 " + std::string(100'000, 'x') + ";}}{\\colortbl;";
    for (int i = 0; i < 70'000; ++i)
        rtf += "\\red" + std::to_string(i % 256) + "\\blue" + std::to_string(i / 256) + ";";
    rtf += "}";
    for (int i = 0; i < 40'000; ++i)
        rtf += "\\cf" + std::to_string(i) + "\\fs" + std::to_string(i % 3000 + 1) + " a";
    rtf += "\\strike fin}";
    const auto texte = LireRtf(rtf);
    ASSERT_TRUE(texte);
    EXPECT_EQ(texte->Longueur(), 40'003U);
    EXPECT_EQ(MotsMarqués(*texte), std::vector<Texte>{u"fin"});
}

TEST(LecteurRtf, UnTexteDeWordPadSeLit)
{
    const auto texte = LireRtf(
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\nouicompat\\deflang1036{\\fonttbl{\\f0\\fnil\\fcharset0 Comic Sans MS;}"
        "{\\f1\\fnil\\fcharset2 Symbol;}}\r\n{\\colortbl ;\\red0\\green0\\blue255;}\r\n"
        "{\\*\\generator Riched20 10.0.19041}\\viewkind4\\uc1 \r\n"
        "\\pard\\sa200\\sl276\\slmult1\\qc\\b\\f0\\fs28\\lang12 Le phare\\b0\\fs22\\par\r\n\r\n"
        "\\pard\\sa200 Le \\strike gardien\\strike0  du \\cf1\\strike phare\\cf0\\strike0  veille.\\par\r\n"
        "{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}\\fi-360\\li720 la lampe\\par\r\n"
        "}\r\n\0");
    ASSERT_TRUE(texte);
    EXPECT_EQ(texte->Caractères(), u"Le phare\r\nLe gardien du phare veille.\r\nla lampe\r\n");
    EXPECT_EQ(MotsMarqués(*texte), (std::vector<Texte>{u"gardien", u"phare"}));
    EXPECT_EQ(texte->FormatEn(0), (Format{.Taille = 14, .Gras = true}));
    EXPECT_EQ(texte->FormatEn(26), (Format{.Taille = 11, .Teinte = Bleu, .Barré = true}));
    EXPECT_EQ(texte->ParagrapheEn(0).Alignement, Cadrage::Centre);
    EXPECT_EQ(texte->ParagrapheEn(12).Alignement, Cadrage::Gauche);
    EXPECT_EQ(texte->ParagrapheEn(45), (FormatParagraphe{Cadrage::Gauche, 720, 0, -360}));
}

TEST(LecteurRtf, UnTexteDeWordSeLit)
{
    const auto texte = LireRtf(
        "{\\rtf1\\adeflang1025\\ansi\\ansicpg1252\\uc1\\adeff0\\deff0\\stshfdbch31505\\deflang1036\\themelang1036"
        "{\\fonttbl{\\f0\\fbidi \\froman\\fcharset0\\fprq2{\\*\\panose 02020603050405020304}Times New Roman;}"
        "{\\f37\\fbidi \\fswiss\\fcharset0\\fprq2{\\*\\panose 020f0502020204030204}Calibri;}"
        "{\\flomajor\\f31500\\fbidi \\froman\\fcharset238\\fprq2 Times New Roman CE;}}"
        "{\\colortbl;\\red0\\green0\\blue0;\\red192\\green0\\blue0;}{\\*\\defchp \\fs22\\loch\\af37 }"
        "{\\stylesheet{\\ql \\li0\\ri0\\f37\\fs22 \\snext0 Normal;}{\\*\\cs10 \\additive Default;}}"
        "{\\*\\rsidtbl \\rsid1}{\\info{\\author Moi}{\\nofwords5}}{\\*\\xmlnstbl {\\xmlns1 http://x}}"
        "\\paperw11906\\pard\\plain \\ltrpar\\ql \\li0\\ri0\\sa160\\widctlpar\\rin0\\lin0\\itap0 "
        "\\rtlch\\fcs1 \\af0\\afs22\\alang1025 \\ltrch\\fcs0 \\f37\\fs22\\lang1036 {\\rtlch\\fcs1 \\af0 \\ltrch\\fcs0 "
        "\\insrsid1 L\\rquote }{\\rtlch\\fcs1 \\af0 \\ltrch\\fcs0 \\strike\\insrsid1 \\'e9l\\'e8ve}{\\rtlch\\fcs1 "
        "\\af0 "
        "\\ltrch\\fcs0 \\b\\cf2\\insrsid1  \\hich\\af37\\dbch\\af31505\\loch\\f37 a lu.}{\\insrsid1 \r\n\\par }"
        "\\trowd\\cellx100\\pard\\intbl {un\\cell deux\\cell }\\pard \\intbl {\\trowd\\cellx100\\row }"
        "\\pard {\\*\\bkmkstart a}{\\*\\bkmkend a}fin\\par {\\*\\themedata 504b}{\\*\\datastore 00}}");
    ASSERT_TRUE(texte);
    EXPECT_EQ(texte->Caractères(), u"L’élève a lu.\r\nun\tdeux\r\nfin\r\n");
    EXPECT_EQ(MotsMarqués(*texte), std::vector<Texte>{u"élève"});
    EXPECT_EQ(texte->FormatEn(10),
              (Format{.Police = u"Calibri", .Taille = 11, .Teinte = Couleur::Rvb(192, 0, 0), .Gras = true}));
}

TEST(LecteurRtf, UnTexteDeTextEditSeLit)
{
    const auto texte = LireRtf(
        "{\\rtf1\\ansi\\ansicpg1252\\cocoartf2639\n\\cocoatextscaling0{\\fonttbl\\f0\\fswiss\\fcharset0 Helvetica;"
        "\\f1\\fswiss\\fcharset0 Helvetica-Bold;}\n{\\colortbl;\\red255\\green255\\blue255;\\red255\\green38\\blue0;}\n"
        "{\\*\\expandedcolortbl;;}\n{\\*\\listtable{\\list{\\listlevel{\\leveltext\\'01\\uc0\\u8226 ;}}}}\n"
        "\\paperw11900\\vieww9000\n\\pard\\tx566\\pardirnatural\\qc\\partightenfactor0\n\n"
        "\\f0\\fs36 \\cf0 L\\'92\\strike \\strikec0 \\'e9cole\\strike0\\striked0 \\\n\\pard\\pardirnatural\n"
        "\\ls1\\ilvl0\\cf2 {\\listtext\t\\uc0\\u8226 \t}une \\uc0\\u339 uvre\\\n}");
    ASSERT_TRUE(texte);
    EXPECT_EQ(texte->Caractères(), u"L’école\r\nune œuvre\r\n");
    EXPECT_EQ(MotsMarqués(*texte), std::vector<Texte>{u"école"});
    EXPECT_EQ(texte->FormatEn(0).Taille, 18);
    EXPECT_EQ(texte->FormatEn(0).Police, u"Helvetica");
    EXPECT_EQ(texte->ParagrapheEn(0).Alignement, Cadrage::Centre);
    EXPECT_EQ(texte->FormatEn(9).Teinte, Couleur::Rvb(255, 38, 0));
}

TEST(LecteurRtf, LesMarquesDeLibreOfficeEtDAbiWordSontLesMêmes)
{
    const auto libreoffice = LireRtf(Donnée("libreoffice-marques.rtf"));
    const auto abiword = LireRtf(Donnée("abiword-marques.rtf"));
    ASSERT_TRUE(libreoffice && abiword);
    EXPECT_EQ(MotsMarqués(*libreoffice), MarquesDeLaChouette);
    EXPECT_EQ(MotsMarqués(*abiword), MarquesDeLaChouette);
    EXPECT_EQ(libreoffice->Caractères(), abiword->Caractères());
    EXPECT_TRUE(libreoffice->Caractères().starts_with(u"La chouette du clocher\r\n\r\nChaque soir, une chouette"));
    EXPECT_TRUE(libreoffice->Caractères().ends_with(u"Élise l’attend à sa fenêtre\r\n"));
}

TEST(LecteurRtf, LaMiseEnFormeDeLibreOfficeEtDAbiWordEstLue)
{
    for (const auto* nom : {"libreoffice-mise-en-forme.rtf", "abiword-mise-en-forme.rtf"}) {
        const auto texte = LireRtf(Donnée(nom));
        ASSERT_TRUE(texte);
        const auto& caractères = texte->Caractères();
        const auto format = [&](VueTexte mot) { return texte->FormatEn(caractères.find(mot)); };
        const auto paragraphe = [&](VueTexte mot) { return texte->ParagrapheEn(caractères.find(mot)); };
        EXPECT_EQ(format(u"Le cerf").Police, u"Arial") << nom;
        EXPECT_EQ(format(u"Le cerf").Taille, 20) << nom;
        EXPECT_TRUE(format(u"Le cerf").Gras) << nom;
        EXPECT_TRUE(format(u"Anaïs").Gras) << nom;
        EXPECT_TRUE(format(u"ficelle").Italique) << nom;
        EXPECT_TRUE(format(u"vent").Souligné) << nom;
        EXPECT_EQ(format(u"fort").Teinte, Rouge) << nom;
        EXPECT_EQ(format(u"fort").Taille, 18) << nom;
        EXPECT_EQ(format(u"le cerf-volant s").Police, u"Comic Sans MS") << nom;
        EXPECT_EQ(format(u"le cerf-volant s").Teinte, Bleu) << nom;
        EXPECT_EQ(paragraphe(u"Le cerf").Alignement, Cadrage::Centre) << nom;
        EXPECT_EQ(paragraphe(u"Il monte").Alignement, Cadrage::Centre) << nom;
        EXPECT_EQ(paragraphe(u"Il n’est").Alignement, Cadrage::Droite) << nom;
        EXPECT_EQ(paragraphe(u"Anaïs tire").Alignement, Cadrage::Justifié) << nom;
        EXPECT_EQ(paragraphe(u"Soudain"), (FormatParagraphe{Cadrage::Gauche, 1440, 720, -360})) << nom;
        EXPECT_EQ(MotsMarqués(*texte), (std::vector<Texte>{u"casse", u"le cerf-volant"})) << nom;
    }
}

TEST(LecteurRtf, LaStructureDeLibreOfficeEstLueCommeDuTexte)
{
    const auto texte = LireRtf(Donnée("libreoffice-structure.rtf"));
    ASSERT_TRUE(texte);
    EXPECT_EQ(texte->Caractères(), u"La recette de Mamie\r\nIngrédients\u00A0:\ttrois œufs\tdu lait\r\n"
                                   u"casser les œufs\r\nbattre la pâte\r\npremier essai\r\nsecond essai\r\n"
                                   u"Première ligne\r\nseconde ligne\r\n"
                                   u"farine\tsucre\tsel\r\n\tdeux\t\r\nun peu\r\nde tout\t\tfin\r\n"
                                   u"Une image  au milieu.\r\nLe site des recettes est fermé.\r\n"
                                   u"Une note en bas.\r\nUn commentaire ici.\r\n\r\nBon appétit\u00A0!\r\n");
    EXPECT_EQ(MotsMarqués(*texte), (std::vector<Texte>{u"œufs", u"sucre"}));
}

TEST(LecteurRtf, LaStructureDAbiWordEstLueCommeDuTexte)
{
    const auto texte = LireRtf(Donnée("abiword-structure.rtf"));
    ASSERT_TRUE(texte);
    EXPECT_EQ(texte->Caractères(), u"La recette de Mamie\r\nIngrédients\u00A0:\ttrois œufs\tdu lait\r\n"
                                   u"\tcasser les œufs\r\n\tbattre la pâte\r\n\tpremier essai\r\n\tsecond essai\r\n"
                                   u"Première ligne\r\nseconde ligne\r\n"
                                   u"farine\tsucre\tsel\r\n\tdeux\t\r\nun peu\r\nde tout\t\tfin\r\n\r\n"
                                   u"Une image  au milieu.\r\nLe site des recettes est fermé.\r\n"
                                   u"Une note en bas.\r\nUn commentaire ici.\r\n\r\nBon appétit\u00A0!\r\n");
    EXPECT_EQ(MotsMarqués(*texte), (std::vector<Texte>{u"œufs", u"sucre"}));
}

TEST(LecteurRtf, UnTexteCoupéNImporteOùSeLitJusquÀLaCoupure)
{
    for (const auto* nom : Données) {
        const auto octets = Donnée(nom);
        std::size_t précédente = 0;
        for (std::size_t taille = 5; taille <= octets.size(); ++taille) {
            const auto texte = LireRtf(std::string_view(octets).substr(0, taille));
            ASSERT_TRUE(texte) << nom << " " << taille;
            ASSERT_GE(texte->Longueur() + 40, précédente)
                << nom << " " << taille; // a skipped group may take back a bit
            précédente = texte->Longueur();
        }
    }
}

TEST(LecteurRtf, DesOctetsAbîmésNArrêtentPasLaLecture)
{
    std::uint32_t graine = 1;
    for (const auto* nom : Données) {
        const auto original = Donnée(nom);
        for (int fois = 0; fois < 300; ++fois) {
            auto octets = original;
            for (int i = 0; i < 20; ++i) {
                graine = graine * 1664525U + 1013904223U;
                octets[5 + (graine >> 8U) % (octets.size() - 5)] = static_cast<char>(graine >> 16U);
            }
            const auto texte = LireRtf(octets);
            ASSERT_TRUE(texte);
            ASSERT_EQ(*LireRtf(EcrireRtf(*texte)), *texte) << nom << " " << fois;
        }
    }
}

} // namespace tirelune
