#include "core/RichTextBox.h"

#include "tests/support/Banc.h"
#include "tests/support/EcranTexte.h"

namespace tirelune {

namespace {

// A box of "0123456789" that counts what it hears.
struct BoîteÉcoutée {
    BoîteÉcoutée()
    {
        rtf.Text(u"0123456789");
        rtf.Change = [this] { ++changements; };
        rtf.SelChange = [this] { ++déplacements; };
        rtf.EditionFaite = [this](const RichTextBox::Edition& édition) { dernière = édition; };
    }
    void Attendre(std::size_t début, std::size_t longueur) const
    {
        EXPECT_EQ(rtf.SelStart(), début);
        EXPECT_EQ(rtf.SelLength(), longueur);
    }

    Banc banc;
    RichTextBox& rtf = banc.Ouvrir<EcranTexte>().rtfTexte;
    int changements = 0;
    int déplacements = 0;
    RichTextBox::Edition dernière{};
};

} // namespace

TEST(RichTextBox, UneSélectionEstRamenéeAuTexte)
{
    BoîteÉcoutée boîte;
    boîte.rtf.Sélectionner(4, 100);
    boîte.Attendre(4, 6);
    boîte.rtf.Sélectionner(11, 3); // starts past the end
    boîte.Attendre(10, 0);
    boîte.rtf.SelStart(1000);
    boîte.Attendre(10, 0);
    boîte.rtf.SelLength(1);
    boîte.Attendre(10, 0);
    boîte.rtf.Sélectionner(10, 0);
    boîte.Attendre(10, 0);
    EXPECT_EQ(boîte.rtf.SelText(), u"");
}

TEST(RichTextBox, SeuleUneAutreSélectionSeDit)
{
    BoîteÉcoutée boîte;
    boîte.rtf.Sélectionner(2, 3);
    boîte.rtf.Sélectionner(2, 3);
    EXPECT_EQ(boîte.déplacements, 1);
    boîte.rtf.Sélectionner(2, 4);
    boîte.rtf.Sélectionner(3, 4);
    EXPECT_EQ(boîte.déplacements, 3);
    EXPECT_EQ(boîte.changements, 0);
}

TEST(RichTextBox, UnDébutNeufVideLaSélection)
{
    BoîteÉcoutée boîte;
    boîte.rtf.Sélectionner(2, 3);
    boîte.rtf.SelStart(2);
    boîte.Attendre(2, 0);
}

TEST(RichTextBox, LeCaractèreEnUnePlace)
{
    BoîteÉcoutée boîte;
    EXPECT_EQ(boîte.rtf.CaractèreEn(0), u"0");
    EXPECT_EQ(boîte.rtf.CaractèreEn(9), u"9");
    EXPECT_EQ(boîte.rtf.CaractèreEn(10), u"");
    EXPECT_EQ(boîte.rtf.CaractèreEn(11), u"");
}

TEST(RichTextBox, LeTexteMisALaPlaceDeLaSélectionLaisseLeCurseurDerrière)
{
    BoîteÉcoutée boîte;
    boîte.rtf.Sélectionner(2, 3);
    boîte.rtf.SelText(u"ab");
    EXPECT_EQ(boîte.rtf.Text(), u"01ab56789");
    boîte.Attendre(4, 0);
    EXPECT_EQ(boîte.dernière.Début, 2U);
    EXPECT_EQ(boîte.dernière.Retirés, 3U);
    EXPECT_EQ(boîte.dernière.Ajoutés, 2U);
    EXPECT_EQ(boîte.changements, 1);
    EXPECT_EQ(boîte.déplacements, 2);
}

TEST(RichTextBox, RemplacerPasséLaFinAjouteALaFin)
{
    BoîteÉcoutée boîte;
    boîte.rtf.Remplacer(100, 5, u"ab");
    EXPECT_EQ(boîte.rtf.Text(), u"0123456789ab");
    boîte.Attendre(12, 0);
    EXPECT_EQ(boîte.dernière.Début, 10U);
    EXPECT_EQ(boîte.dernière.Retirés, 0U);
    EXPECT_EQ(boîte.dernière.Ajoutés, 2U);
    boîte.rtf.Remplacer(8, 100, u"");
    EXPECT_EQ(boîte.rtf.Text(), u"01234567");
    boîte.Attendre(8, 0);
    EXPECT_EQ(boîte.dernière.Retirés, 4U);
}

TEST(RichTextBox, UnFormatMisAuCurseurVaAuProchainTexteSeul)
{
    BoîteÉcoutée boîte;
    boîte.rtf.SelStart(5);
    boîte.rtf.SelBold = true;
    EXPECT_EQ(boîte.rtf.SelBold(), true);
    boîte.rtf.SelText(u"ab");
    boîte.rtf.SelText(u"c");
    boîte.rtf.Sélectionner(5, 2);
    EXPECT_EQ(boîte.rtf.SelBold(), true);
    boîte.rtf.Sélectionner(5, 3);
    EXPECT_EQ(boîte.rtf.SelBold(), true); // what follows takes the format before it
    boîte.rtf.Sélectionner(4, 2);
    EXPECT_EQ(boîte.rtf.SelBold(), std::nullopt);
}

TEST(RichTextBox, DéplacerLeCurseurOublieSonFormat)
{
    BoîteÉcoutée boîte;
    boîte.rtf.SelStart(5);
    boîte.rtf.SelBold = true;
    boîte.rtf.SelStart(6);
    EXPECT_EQ(boîte.rtf.SelBold(), false);
    boîte.rtf.SelText(u"a");
    boîte.rtf.Sélectionner(6, 1);
    EXPECT_EQ(boîte.rtf.SelBold(), false);
}

TEST(RichTextBox, AuCurseurVautLeFormatDuCaractèreDAvantSaufEnDébutDeLigne)
{
    BoîteÉcoutée boîte;
    boîte.rtf.Text(u"un\r\ndeux");
    boîte.rtf.Sélectionner(0, 4);
    boîte.rtf.SelItalic = true;
    for (const auto& [place, attendu] : {std::pair{0, true}, {2, true}, {4, false}, {5, false}, {8, false}}) {
        boîte.rtf.SelStart(static_cast<std::size_t>(place));
        EXPECT_EQ(boîte.rtf.SelItalic(), attendu) << place;
    }
}

TEST(RichTextBox, UnTexteVerrouilléNeSEditePas)
{
    BoîteÉcoutée boîte;
    boîte.rtf.Locked = true;
    boîte.rtf.Editer(0, 2, TexteRiche{u"ab"});
    EXPECT_EQ(boîte.rtf.Text(), u"0123456789");
    boîte.rtf.Locked = false;
    boîte.rtf.Editer(8, 2, TexteRiche{u"ab"});
    EXPECT_EQ(boîte.rtf.Text(), u"01234567ab");
    boîte.Attendre(10, 0);
}

TEST(RichTextBox, UnDoubleClicSélectionneLeCaractèreUneFoisRépondu)
{
    BoîteÉcoutée boîte;
    int vus = -1;
    boîte.rtf.DblClick = [&] { vus = static_cast<int>(boîte.rtf.SelStart() * 10 + boîte.rtf.SelLength()); };
    boîte.rtf.DoubleCliquer(3);
    EXPECT_EQ(vus, 30);
    boîte.Attendre(3, 1);
    boîte.rtf.Enabled = false;
    boîte.rtf.DoubleCliquer(5);
    boîte.Attendre(3, 1);
}

TEST(RichTextBox, LeTexteSimplePrendLaPoliceDeLaBoîte)
{
    BoîteÉcoutée boîte;
    boîte.rtf.Police = u"Arial";
    boîte.rtf.FontSize = 30;
    boîte.rtf.Text(u"a\rb\nc\r\n");
    EXPECT_EQ(boîte.rtf.Text(), u"a\r\nb\r\nc\r\n");
    boîte.rtf.Sélectionner(0, 1);
    EXPECT_EQ(boîte.rtf.SelFontName(), u"Arial");
    EXPECT_EQ(boîte.rtf.SelFontSize(), 30);
    boîte.Attendre(0, 1);
    boîte.rtf.Text(u"court");
    boîte.Attendre(0, 0);
}

TEST(RichTextBox, UnFichierQuiNEstPasDuRtfVeutEtreDemandé)
{
    BoîteÉcoutée boîte;
    const auto fichier = boîte.banc.Ecrire("texte.txt", "\xE9t\xE9\n");
    EXPECT_FALSE(boîte.rtf.LoadFile(fichier));
    EXPECT_EQ(boîte.rtf.Text(), u"0123456789");
    EXPECT_TRUE(boîte.rtf.LoadFile(fichier, true));
    EXPECT_EQ(boîte.rtf.Text(), u"été\r\n");
    EXPECT_FALSE(boîte.rtf.LoadFile(boîte.banc.dossier / "absent.rtf", true));
    EXPECT_EQ(boîte.rtf.Text(), u"été\r\n");
}

TEST(RichTextBox, ChargeUnTexteSelonSonGenre)
{
    BoîteÉcoutée boîte;
    EXPECT_EQ(boîte.rtf.LoadFile(boîte.banc.Ecrire("a.rtf", "{\\rtf1 un}"), true), GenreDeTexte::Riche);
    EXPECT_EQ(boîte.rtf.Text(), u"un");
    EXPECT_EQ(boîte.rtf.LoadFile(boîte.banc.Ecrire("a.txt", "\xC3\xA9t\xC3\xA9\n\xC5\x93uf"), true),
              GenreDeTexte::Simple);
    EXPECT_EQ(boîte.rtf.Text(), u"été\r\nœuf");
}

TEST(RichTextBox, GardeSonTexteQuandLeFichierNEnEstPasUn)
{
    BoîteÉcoutée boîte;
    boîte.rtf.Text(u"chat");
    for (const auto& octets : {std::string("PK\x03\x04"), std::string("a\0b", 3)}) {
        const auto fichier = boîte.banc.Ecrire("a.docx", octets);
        EXPECT_FALSE(boîte.rtf.LoadFile(fichier, true));
        EXPECT_FALSE(boîte.rtf.LoadFile(fichier));
    }
    EXPECT_FALSE(boîte.rtf.LoadFile(boîte.banc.Ecrire("a.txt", "texte simple")));
    EXPECT_FALSE(boîte.rtf.LoadFile(boîte.banc.dossier, true));
    EXPECT_EQ(boîte.rtf.Text(), u"chat");
}

} // namespace tirelune
