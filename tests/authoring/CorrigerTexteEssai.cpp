#include "authoring/CorrigerTexte.h"

#include "tests/support/Banc.h"
#include "tests/support/EcranTexte.h"

#include <random>
#include <sstream>

namespace tirelune {

namespace {

Texte Corrigé(VueTexte texte)
{
    return TexteCorrigé(TexteRiche{NormaliserLignes(texte)}).Caractères();
}

// ---- The rules as they are told: replacement after replacement, through the selection ------------------------------

void RemplacerEn(RichTextBox& rtf, std::size_t place, std::size_t longueur, VueTexte remplacement)
{
    rtf.SelStart(place);
    rtf.SelLength(longueur);
    rtf.SelText(remplacement);
}

void RemplacerPartout(RichTextBox& rtf, VueTexte cherché, VueTexte remplacement)
{
    for (auto place = rtf.Text().find(cherché); place != Texte::npos; place = rtf.Text().find(cherché))
        RemplacerEn(rtf, place, cherché.size(), remplacement);
}

void RemplacerEnAvançant(RichTextBox& rtf, VueTexte cherché, VueTexte remplacement)
{
    for (auto place = rtf.Text().find(cherché); place != Texte::npos;
         place = rtf.Text().find(cherché, place + remplacement.size()))
        RemplacerEn(rtf, place, cherché.size(), remplacement);
}

// The blank goes; the line end, which is one, stays.
void RognerLesLignes(RichTextBox& rtf)
{
    for (auto place = rtf.Text().find(u" \r"); place != Texte::npos; place = rtf.Text().find(u" \r"))
        RemplacerEn(rtf, place, 1, u"");
}

void EspacerGuillemets(RichTextBox& rtf)
{
    bool impair = true;
    for (auto place = rtf.Text().find(u'"'); place != Texte::npos; place = rtf.Text().find(u'"', place + 2)) {
        RemplacerEn(rtf, place, 1, impair ? u" \"" : u"\" ");
        impair = !impair;
    }
}

void SupprimerTabulations(RichTextBox& rtf)
{
    for (auto place = rtf.Text().find(u'\t'); place != Texte::npos; place = rtf.Text().find(u'\t', place)) {
        rtf.SelStart(place);
        rtf.SelLength(1);
        const auto alignement = rtf.SelAlignment();
        rtf.SelText(u"");
        rtf.SelStart(place);
        ASSERT_TRUE(alignement.has_value());
        rtf.SelAlignment = *alignement;
    }
}

void InsérerTabulations(RichTextBox& rtf)
{
    for (auto place = rtf.Text().find(u"\r\n"); place != Texte::npos; place = rtf.Text().find(u"\r\n", place + 1)) {
        // The line end that comes back ends the paragraph before it: the next one keeps what it has.
        const auto suivant = rtf.TextRTF().ParagrapheEn(place + 2);
        RemplacerEn(rtf, place, 2, u"\r\n\t");
        rtf.SelStart(place + 2);
        rtf.FormaterParagraphes([&](FormatParagraphe& paragraphe) { paragraphe = suivant; });
    }
}

void NettoyerTabulations(RichTextBox& rtf)
{
    for (auto place = rtf.Text().find(u'\t'); place != Texte::npos; place = rtf.Text().find(u'\t', place + 1)) {
        rtf.SelStart(place);
        rtf.SelLength(1);
        rtf.SelUnderline = false;
    }
}

void CorrigerPasAPas(RichTextBox& rtf)
{
    RemplacerEnAvançant(rtf, Texte(1, 160), u" ");
    RemplacerPartout(rtf, u"  ", u" ");
    for (const char16_t signe : VueTexte(u".:;!?-'()"))
        RemplacerPartout(rtf, Texte{u' ', signe}, Texte(1, signe));
    RemplacerPartout(rtf, u"_", u"-");
    for (const char16_t signe : VueTexte(u".:;!?-'()"))
        RemplacerPartout(rtf, Texte{signe, u' '}, Texte(1, signe));
    RemplacerEnAvançant(rtf, u".", u". ");
    for (const char16_t signe : VueTexte(u":;!?"))
        RemplacerEnAvançant(rtf, Texte(1, signe), Texte{u' ', signe, u' '});
    RemplacerEnAvançant(rtf, u"(", u" (");
    RemplacerEnAvançant(rtf, u")", u") ");
    RognerLesLignes(rtf);
    RemplacerPartout(rtf, u". . .", u"...");
    RemplacerPartout(rtf, u" \"", u"\"");
    RemplacerPartout(rtf, u"\" ", u"\"");
    EspacerGuillemets(rtf);
    RemplacerPartout(rtf, Texte{171, u' '}, Texte(1, 171));
    RemplacerPartout(rtf, Texte{u' ', 187}, Texte(1, 187));
    RognerLesLignes(rtf);
    RemplacerPartout(rtf, u" .", u".");
    SupprimerTabulations(rtf);
    InsérerTabulations(rtf);
    NettoyerTabulations(rtf);
}

// ---- Random texts ------------------------------------------------------------------------------------------------

class TextesAuHasard {
public:
    std::size_t Moins(std::size_t n) { return std::uniform_int_distribution<std::size_t>{0, n - 1}(moteur_); }

    TexteRiche Prochain(const std::vector<Texte>& morceaux, std::size_t nombreMaximum)
    {
        Texte caractères;
        for (auto n = Moins(nombreMaximum + 1); n > 0; --n)
            caractères += morceaux[Moins(morceaux.size())];
        TexteRiche texte{std::move(caractères)};
        for (auto n = Moins(8); n > 0; --n)
            texte.Formater(Moins(texte.Longueur() + 1), Moins(10), [this](Format& format) { Retoucher(format); });
        for (auto n = Moins(4); n > 0; --n)
            texte.FormaterParagraphes(Moins(texte.Longueur() + 1), Moins(10), [this](FormatParagraphe& paragraphe) {
                paragraphe.Alignement = static_cast<Cadrage>(Moins(4));
                paragraphe.RetraitGauche = static_cast<int>(Moins(3) * 100);
                paragraphe.RetraitPremièreLigne = static_cast<int>(Moins(3) * 50);
            });
        return texte;
    }

private:
    void Retoucher(Format& format)
    {
        switch (Moins(5)) {
        case 0:
            format.Barré = !format.Barré;
            break;
        case 1:
            format.Gras = !format.Gras;
            break;
        case 2:
            format.Souligné = !format.Souligné;
            break;
        case 3:
            format.Taille = 10 + static_cast<double>(Moins(4));
            break;
        default:
            format.Teinte = Rouge;
        }
    }

    std::mt19937 moteur_{20240607}; // NOLINT(bugprone-random-generator-seed): the same texts at each run
};

// A text with its formats, readable in a failure: one line for each run and each paragraph.
std::string Décrire(const TexteRiche& texte)
{
    std::ostringstream description;
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        const auto& format = *tranche.Style;
        description << '[' << EnUtf8(VueTexte(texte.Caractères()).substr(tranche.Début, tranche.Fin - tranche.Début))
                    << ']' << (format.Barré ? " barré" : "") << (format.Gras ? " gras" : "")
                    << (format.Souligné ? " souligné" : "") << ' ' << format.Taille << ' ' << format.Teinte.Valeur
                    << '\n';
    });
    for (std::size_t i = 0; i <= texte.Longueur(); ++i) {
        if (i > 0 && texte.Caractères()[i - 1] != u'\n')
            continue;
        const auto& paragraphe = texte.ParagrapheEn(i);
        description << "paragraphe en " << i << " : " << static_cast<int>(paragraphe.Alignement) << ' '
                    << paragraphe.RetraitGauche << ' ' << paragraphe.RetraitPremièreLigne << '\n';
    }
    return description.str();
}

class CorrigerTexteEssai : public ::testing::Test {
protected:
    Banc banc;
    RichTextBox& rtfTexte = banc.Ouvrir<EcranTexte>().rtfTexte;

    void ComparerAuPasAPas(const std::vector<Texte>& morceaux, std::size_t nombreMaximum, int textes)
    {
        TextesAuHasard hasard;
        for (int i = 0; i < textes; ++i) {
            const auto texte = hasard.Prochain(morceaux, nombreMaximum);
            rtfTexte.TextRTF(texte);
            CorrigerPasAPas(rtfTexte);
            const auto corrigé = TexteCorrigé(texte);
            ASSERT_EQ(Décrire(corrigé), Décrire(rtfTexte.TextRTF())) << Décrire(texte);
            ASSERT_EQ(corrigé, rtfTexte.TextRTF());
        }
    }
};

} // namespace

// ---- Against the rules step by step ------------------------------------------------------------------------------

TEST_F(CorrigerTexteEssai, DonneLesPasALaLettreSurDesTextesPleinsDeSignes)
{
    ComparerAuPasAPas({u"a", u"mot", u" ", u" ", u"  ", u".",    u":",  u";",          u"!", u"?", u"-",
                       u"'", u"(",   u")", u"_", u"\"", u"\r\n", u"\t", Texte(1, 160), u"«", u"»"},
                      40, 4000);
}

TEST_F(CorrigerTexteEssai, DonneLesPasALaLettreSurDesSuitesDePointsEtDeBlancs)
{
    ComparerAuPasAPas({u".", u" ", Texte(1, 160), u"\r\n"}, 25, 3000);
}

TEST_F(CorrigerTexteEssai, DonneLesPasALaLettreSurDesGuillemetsEtDesLignes)
{
    ComparerAuPasAPas({u"\"", u" ", u"\r\n", u"\t", u"é", u".", u"«", u"»"}, 25, 3000);
}

TEST_F(CorrigerTexteEssai, DonneLesPasALaLettreSurDesTextesTrèsCourts)
{
    ComparerAuPasAPas({u" ", u"\t", u"\r\n", u".", u"\"", u"x"}, 3, 3000);
}

TEST_F(CorrigerTexteEssai, DonneLesPasALaLettreSurDeLongsTextes)
{
    ComparerAuPasAPas({u"chat ", u"É", u" ", u".", u" ; ", u"\"", u"\"", u"\r\n", u"\t", u"«", u"- ", u"petit "}, 12000,
                      4);
}

TEST_F(CorrigerTexteEssai, UneSecondeCorrectionNeChangePlusRienALaProse)
{
    const std::vector<Texte> morceaux{u"chat", u"Été ",        u"l'",        u" mot ",  u", ",  u".",      u" . ",
                                      u" ; ",  u": ",          u"!",         u" ?",     u"...", u" (oui)", u"- ",
                                      u"\r\n", u"arc-en-ciel", u" « bon » ", u"\r\n\t", u"  ",  u"a_b"};
    TextesAuHasard hasard;
    for (int i = 0; i < 2000; ++i) {
        const auto unefois = TexteCorrigé(hasard.Prochain(morceaux, 60));
        ASSERT_EQ(EnUtf8(TexteCorrigé(unefois).Caractères()), EnUtf8(unefois.Caractères()));
    }
}

// ---- What teachers see -------------------------------------------------------------------------------------------

TEST(CorrigerTexte, UnTexteVideNeChangePas)
{
    EXPECT_EQ(Corrigé(u""), u"");
}

TEST(CorrigerTexte, LesBlancsMultiplesSeResserrent)
{
    EXPECT_EQ(Corrigé(u"le    chat  noir"), u"le chat noir");
    EXPECT_EQ(Corrigé(u"    "), u" ");
}

TEST(CorrigerTexte, LesBlancsInsécablesDeviennentDesBlancs)
{
    EXPECT_EQ(Corrigé(u"dix\u00A0\u00A0mille"), u"dix mille");
}

TEST(CorrigerTexte, LaPonctuationDoubleEstEntouréeDeBlancs)
{
    EXPECT_EQ(Corrigé(u"Quoi?Oui!Ceci:cela;fin"), u"Quoi ? Oui ! Ceci : cela ; fin");
    EXPECT_EQ(Corrigé(u"Quoi   ?   Oui"), u"Quoi ? Oui");
}

TEST(CorrigerTexte, DeuxSignesDoublesGardentDeuxBlancsEntreEux)
{
    EXPECT_EQ(Corrigé(u"Quoi!?"), u"Quoi !  ? ");
    EXPECT_EQ(Corrigé(u"Quoi ! ?"), u"Quoi !  ? ");
}

TEST(CorrigerTexte, LePointEstSuiviDUnBlanc)
{
    EXPECT_EQ(Corrigé(u"Il dort .Il rêve."), u"Il dort. Il rêve. ");
}

TEST(CorrigerTexte, LePointDansUnMotNEstPasEpargné)
{
    EXPECT_EQ(Corrigé(u"3.14 et S.N.C.F."), u"3. 14 et S. N. C. F. ");
}

TEST(CorrigerTexte, LesPointsDeSuspensionRestentEntiersEtDeuxPointsSeTouchent)
{
    EXPECT_EQ(Corrigé(u"Il attend..."), u"Il attend... ");
    EXPECT_EQ(Corrigé(u"Il attend. . ."), u"Il attend... ");
    EXPECT_EQ(Corrigé(u"Il attend.."), u"Il attend.. ");
}

TEST(CorrigerTexte, LesTraitsDUnionPerdentLeursBlancs)
{
    EXPECT_EQ(Corrigé(u"arc - en - ciel"), u"arc-en-ciel");
    EXPECT_EQ(Corrigé(u"Il dit :\n- Viens"), u"Il dit :\r\n\t-Viens");
}

TEST(CorrigerTexte, LApostrophePerdSesBlancs)
{
    EXPECT_EQ(Corrigé(u"l ' école"), u"l'école");
}

TEST(CorrigerTexte, LesSoulignésDeviennentDesTraitsDUnion)
{
    EXPECT_EQ(Corrigé(u"a_b__ _c"), u"a-b---c");
}

TEST(CorrigerTexte, LesParenthèsesOntUnBlancAuDehorsEtAucunAuDedans)
{
    EXPECT_EQ(Corrigé(u"il(le chat)dort"), u"il (le chat) dort");
    EXPECT_EQ(Corrigé(u"il ( le chat ) dort"), u"il (le chat) dort");
}

TEST(CorrigerTexte, LesGuillemetsDroitsVontParDeux)
{
    EXPECT_EQ(Corrigé(u"il dit\"oui\"et\"non\"là"), u"il dit \"oui\" et \"non\" là");
    EXPECT_EQ(Corrigé(u"il dit \" oui \" puis"), u"il dit \"oui\" puis");
}

TEST(CorrigerTexte, UnNombreImpairDeGuillemetsChangeLesPairesDeLaSuite)
{
    EXPECT_EQ(Corrigé(u"a \" b \"c\" d"), u"a \"b\" c \"d");
}

TEST(CorrigerTexte, LesGuillemetsFrançaisNOntPasDeBlancAuDedans)
{
    EXPECT_EQ(Corrigé(u"il dit «  oui  » puis"), u"il dit «oui» puis");
    EXPECT_EQ(Corrigé(u"« Où ? »"), u"«Où ?»");
}

TEST(CorrigerTexte, LesLignesNeFinissentPasParUnBlancEtRestentDesLignes)
{
    EXPECT_EQ(Corrigé(u"Il dort.  \nEt rêve ! \nEncore"), u"Il dort.\r\n\tEt rêve !\r\n\tEncore");
    EXPECT_EQ(Corrigé(u"\"Oui\"\nNon"), u" \"Oui\"\r\n\tNon");
}

TEST(CorrigerTexte, LePointQuiSuitUnGuillemetLeTouche)
{
    EXPECT_EQ(Corrigé(u"Il dit \"oui\" ."), u"Il dit \"oui\". ");
}

TEST(CorrigerTexte, ChaqueParagrapheSaufLePremierCommenceParUneTabulation)
{
    EXPECT_EQ(Corrigé(u"un\ndeux\n\nquatre\n"), u"un\r\n\tdeux\r\n\t\r\n\tquatre\r\n\t");
    EXPECT_EQ(Corrigé(u"\tun\n\t\tdeux"), u"un\r\n\tdeux");
    EXPECT_EQ(Corrigé(u"\n"), u"\r\n\t");
}

TEST(CorrigerTexte, UnTexteDeTabulationsSeVide)
{
    TexteRiche texte{u"\t\t"};
    texte.Formater(1, 1, [](Format& format) { format.Gras = true; });
    const auto corrigé = TexteCorrigé(texte);
    EXPECT_EQ(corrigé.Caractères(), u"");
    EXPECT_TRUE(corrigé.FormatEn(0).Gras);
}

TEST(CorrigerTexte, LesSignesInconnusPassentTelsQuels)
{
    EXPECT_EQ(Corrigé(u"cœur, “ça” – 5 € …"), u"cœur, “ça” – 5 € …");
}

// ---- Formats and marks -------------------------------------------------------------------------------------------

TEST_F(CorrigerTexteEssai, LesMotsMarquésLeRestent)
{
    rtfTexte.Text(u"Le chat  , le  chien .Fin");
    for (const std::size_t mot : {3U, 15U}) {
        rtfTexte.Sélectionner(mot, mot == 3U ? 4 : 5);
        rtfTexte.SelStrikeThru = true;
    }
    CorrigerTexte(rtfTexte);
    EXPECT_EQ(rtfTexte.Text(), u"Le chat , le chien. Fin");
    EXPECT_EQ(MotsMarqués(rtfTexte.TextRTF()), (std::vector<Texte>{u"chat", u"chien"}));
}

TEST_F(CorrigerTexteEssai, UnBlancMarquéEnFinDeLigneNeMarquePasLaLigne)
{
    rtfTexte.Text(u"chat \nchien");
    rtfTexte.Sélectionner(0, 5);
    rtfTexte.SelStrikeThru = true;
    CorrigerTexte(rtfTexte);
    EXPECT_EQ(MotsMarqués(rtfTexte.TextRTF()), std::vector<Texte>{u"chat"});
}

TEST_F(CorrigerTexteEssai, LeTitreSoulignéNeSoulignePasLaTabulationQuiLeSuit)
{
    rtfTexte.Text(u"Titre\nSuite");
    rtfTexte.Sélectionner(0, 12);
    rtfTexte.SelUnderline = true;
    CorrigerTexte(rtfTexte);
    EXPECT_EQ(rtfTexte.Text(), u"Titre\r\n\tSuite");
    EXPECT_FALSE(rtfTexte.TextRTF().FormatEn(7).Souligné);
    EXPECT_TRUE(rtfTexte.TextRTF().FormatEn(0).Souligné);
    EXPECT_TRUE(rtfTexte.TextRTF().FormatEn(8).Souligné);
}

TEST_F(CorrigerTexteEssai, ChaqueParagrapheGardeSesRetraits)
{
    TexteRiche texte{u"Titre\r\nUn\r\n\r\nDeux"};
    const auto retrait = [&](std::size_t place, int première, int gauche) {
        texte.FormaterParagraphes(place, 0, [&](FormatParagraphe& paragraphe) {
            paragraphe.RetraitPremièreLigne = première;
            paragraphe.RetraitGauche = gauche;
        });
    };
    retrait(0, 700, 100);
    retrait(7, 300, 200);
    retrait(13, -50, 400);
    const auto corrigé = TexteCorrigé(texte);
    ASSERT_EQ(corrigé.Caractères(), u"Titre\r\n\tUn\r\n\t\r\n\tDeux");
    const std::vector<std::pair<std::size_t, std::size_t>> lignes{{0, 0}, {7, 7}, {8, 7}, {12, 11}, {15, 13}, {19, 17}};
    for (const auto& [après, avant] : lignes)
        EXPECT_EQ(corrigé.ParagrapheEn(après), texte.ParagrapheEn(avant)) << après;
}

TEST_F(CorrigerTexteEssai, ChaqueParagrapheGardeSonAlignement)
{
    rtfTexte.Text(u"Titre\nGauche\nDroite\n");
    rtfTexte.SelStart(0);
    rtfTexte.SelAlignment = Cadrage::Centre;
    rtfTexte.SelStart(15);
    rtfTexte.SelAlignment = Cadrage::Droite;
    CorrigerTexte(rtfTexte);
    const auto& texte = rtfTexte.TextRTF();
    EXPECT_EQ(texte.Caractères(), u"Titre\r\n\tGauche\r\n\tDroite\r\n\t");
    EXPECT_EQ(texte.ParagrapheEn(0).Alignement, Cadrage::Centre);
    EXPECT_EQ(texte.ParagrapheEn(7).Alignement, Cadrage::Gauche);
    EXPECT_EQ(texte.ParagrapheEn(16).Alignement, Cadrage::Droite);
    EXPECT_EQ(texte.ParagrapheEn(texte.Longueur()).Alignement, Cadrage::Gauche);
}

TEST_F(CorrigerTexteEssai, LaBoîteNEntendQuUneEdition)
{
    rtfTexte.Text(u"un . deux\ntrois ( quatre )");
    int éditions = 0;
    rtfTexte.EditionFaite = [&](const RichTextBox::Edition&) { ++éditions; };
    CorrigerTexte(rtfTexte);
    EXPECT_EQ(éditions, 1);
    EXPECT_EQ(rtfTexte.SelStart(), 0U);
}

TEST_F(CorrigerTexteEssai, UnTexteDéjàCorrectNEstPasTouché)
{
    rtfTexte.Text(u"Le chat dort. \r\n\tIl rêve");
    CorrigerTexte(rtfTexte);
    bool changé = false;
    rtfTexte.Change = [&] { changé = true; };
    CorrigerTexte(rtfTexte);
    EXPECT_FALSE(changé);
}

// ---- Cost --------------------------------------------------------------------------------------------------------

TEST(CorrigerTexte, UnMillionDeBlancsOuDePointsNeCoûteQueSaLongueur)
{
    static constexpr std::size_t Longueur = 1'000'000;
    EXPECT_EQ(Corrigé(Texte(Longueur, u' ')), u" ");
    EXPECT_EQ(Corrigé(Texte(Longueur, u' ') + u"."), u". ");
    EXPECT_EQ(Corrigé(Texte(Longueur, u'\t') + u"b"), u"b");
    EXPECT_EQ(Corrigé(Texte(Longueur, u'_')), Texte(Longueur, u'-'));
    EXPECT_EQ(Corrigé(Texte(Longueur, u' ') + u"\n"), u"\r\n\t");
}

} // namespace tirelune
