#include "exercises/comprehension/frmTexteMasqué.h"
#include "tests/support/Banc.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int IndexTexteMasqué = 2;
constexpr auto Aide = u"Tu dois d'abord sélectionner un des caractères dans le texte !";

frmTexteMasqué& OuvrirTexteMasqué(Banc& banc, const Texte& texte)
{
    banc.ChargerTexte(texte);
    banc.Index(IndexTexteMasqué);
    return banc.Ouvrir<frmTexteMasqué>();
}

void AnnoncerAide(Banc& banc)
{
    banc.plateforme.boîtes.push_back({Aide, Réponse::Ok, u"Aide", {}});
}

Label& Lettre(frmTexteMasqué& écran, char16_t capitale)
{
    return écran.lblLettre(static_cast<int>(capitale) - u'A');
}

void Proposer(frmTexteMasqué& écran, std::size_t place, char16_t capitale)
{
    écran.rtfMasqué.Cliquer(place);
    Lettre(écran, capitale).Cliquer();
}

bool Frapper(frmTexteMasqué& écran, char16_t caractère)
{
    return écran.rtfMasqué.Taper({.Caractère = caractère, .Code = Majuscule(caractère)});
}

// Mask characters as dots, to be read.
Texte Lisible(const frmTexteMasqué& écran)
{
    auto texte = écran.rtfMasqué.Text();
    std::replace(texte.begin(), texte.end(), Masque, u'.');
    return texte;
}

Texte Points(const frmTexteMasqué& écran)
{
    return écran.lblPoints(0).Caption() + écran.lblPoints(2).Caption() + écran.lblPoints(1).Caption();
}

} // namespace

TEST(TexteMasqué, OuvertureMasqueLesLettresEtRienDAutre)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"L'été, 2 œufs\r\nà 10°C : ÇA va !");

    EXPECT_EQ(écran.Caption, u"Texte Masqué / Léa");
    EXPECT_EQ(Lisible(écran), u".'..., 2 œ...\r\n. 10°. : .. .. !");
    EXPECT_EQ(écran.rtfMasqué.SelStart(), 0U);
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 0U);
    EXPECT_EQ(Points(écran), u"0 / 0");
    EXPECT_FALSE(écran.fin.Cadre.Visible);
    EXPECT_TRUE(écran.rtfMasqué.Locked);
}

TEST(TexteMasqué, LesÉtiquettesVontDeAàZ)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"abc");
    EXPECT_EQ(écran.lblLettre.Nombre(), 26);
    EXPECT_EQ(écran.lblLettre(0).Caption, u"A");
    EXPECT_EQ(écran.lblLettre(0).ToolTipText, u" a ");
    EXPECT_EQ(écran.lblLettre(25).Caption, u"Z");
    EXPECT_EQ(écran.lblLettre(25).ToolTipText, u" z ");
    EXPECT_EQ(écran.lblLettre(25).Police, u"Comic Sans MS");
    for (auto& lettre : écran.lblLettre)
        EXPECT_TRUE(lettre.Visible);
}

TEST(TexteMasqué, LaConsigneEtLeBoutonDeFin)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"abc");
    EXPECT_EQ(écran.Label1.Caption,
              u"Choisis le caractère à remplacer dans le texte, puis clique sur la lettre ou utilise le clavier.");
    EXPECT_EQ(écran.fin.Bouton.Caption, u"&Quitter");
}

TEST(TexteMasqué, LeMasqueGardeLesFormatsSaufLaBarre)
{
    Banc banc;
    Format format;
    format.Barré = true;
    format.Souligné = true;
    format.Gras = true;
    format.Teinte = Rouge;
    format.Taille = 20;
    TexteRiche texte{u"Un "};
    texte.Ajouter(u"mot", format, {});
    banc.ChargerTexte(texte);
    auto& écran = banc.Ouvrir<frmTexteMasqué>();

    auto attendu = format;
    attendu.Barré = false;
    EXPECT_EQ(écran.rtfMasqué.TextRTF().FormatEn(4), attendu);
    EXPECT_EQ(écran.rtfMasqué.TextRTF().FormatEn(0), Format{});
    Proposer(écran, 4, u'O');
    EXPECT_EQ(écran.rtfMasqué.TextRTF().FormatEn(4), attendu);
    EXPECT_TRUE(banc.Choix().rtfTexte.TextRTF().FormatEn(4).Barré) << "le texte de l'élève ne change pas";
}

TEST(TexteMasqué, LettreJusteDévoileToutesSesFormes)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"eéèêëEÊËÈÉ et aàâäÂAÀ");

    Proposer(écran, 2, u'E');

    EXPECT_EQ(Lisible(écran), u"eéèêëEÊËÈÉ e. .......");
    EXPECT_FALSE(Lettre(écran, u'E').Visible);
    EXPECT_EQ(Points(écran), u"1 / 1");
    EXPECT_EQ(écran.rtfMasqué.SelStart(), 2U);
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 0U);
    EXPECT_FALSE(écran.fin.Cadre.Visible);
    EXPECT_EQ(banc.plateforme.repeints, 1);

    Proposer(écran, 18, u'A'); // "Â"
    EXPECT_EQ(Lisible(écran), u"eéèêëEÊËÈÉ e. aàâäÂAÀ");
}

TEST(TexteMasqué, UneLettreDévoiléeNAPlusDePlace)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"été");
    Proposer(écran, 0, u'E');
    écran.rtfMasqué.Cliquer(2);
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 0U);
    Lettre(écran, u'E').Cliquer(); // gone: out of reach
    EXPECT_EQ(Points(écran), u"1 / 1");
}

TEST(TexteMasqué, LettreFausseRetireUnPointEtReste)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"abc");
    Proposer(écran, 0, u'A');
    Proposer(écran, 1, u'X');

    EXPECT_EQ(Points(écran), u"0 / 2");
    EXPECT_EQ(Lisible(écran), u"a..");
    EXPECT_TRUE(Lettre(écran, u'X').Visible);
    EXPECT_EQ(écran.rtfMasqué.SelStart(), 1U);
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 0U);

    Proposer(écran, 2, u'X');
    EXPECT_EQ(Points(écran), u"0 / 3") << "jamais moins de zéro, mais chaque essai compte";
}

TEST(TexteMasqué, PremièreLettreFausseLaisseZéroEtCompteUnEssai)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"abc");
    Proposer(écran, 0, u'B');
    EXPECT_EQ(Points(écran), u"0 / 1");
}

TEST(TexteMasqué, LettreDUnAutreMotEstFausseIci)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"ab");
    Proposer(écran, 0, u'B');
    EXPECT_EQ(Lisible(écran), u"..");
    EXPECT_TRUE(Lettre(écran, u'B').Visible);
}

TEST(TexteMasqué, SansPlaceChoisieUneAideEtRienNeCompte)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"a, b");
    AnnoncerAide(banc);
    Lettre(écran, u'A').Cliquer();
    écran.rtfMasqué.Cliquer(0);
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 1U);
    écran.rtfMasqué.Cliquer(1); // the comma
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 0U);
    AnnoncerAide(banc);
    Lettre(écran, u'A').Cliquer();
    écran.rtfMasqué.Cliquer(4); // behind the text
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 0U);
    écran.rtfMasqué.Sélectionner(0, 4);
    AnnoncerAide(banc);
    Lettre(écran, u'A').Cliquer();
    EXPECT_EQ(Points(écran), u"0 / 0");
}

TEST(TexteMasqué, FerméPendantLAide)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"abc");
    banc.plateforme.boîtes.push_back({Aide, Réponse::Ok, u"Aide", [&] { écran.FermerParCroix(); }});
    Frapper(écran, u'a');
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTexteMasqué), u"");
}

TEST(TexteMasqué, LeClavierVautUneÉtiquette)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"Le chat à côté");
    écran.rtfMasqué.Cliquer(5);
    EXPECT_FALSE(Frapper(écran, u'a')) << "la frappe n'entre jamais dans le texte";
    EXPECT_EQ(Lisible(écran), u".. ..a. à ....");
    EXPECT_FALSE(Lettre(écran, u'A').Visible);
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 0U);
    EXPECT_EQ(Points(écran), u"1 / 1");
}

TEST(TexteMasqué, FrappesAccentuéesSuiventLeurTable)
{
    struct Cas {
        char16_t Frappe;
        Texte Résultat; // one letter of the class
    };
    for (const auto& [frappe, texte] : {Cas{u'à', u"a"}, Cas{u'A', u"â"}, Cas{u'ç', u"C"}, Cas{u'É', u"e"},
                                        Cas{u'Ï', u"i"}, Cas{u'ö', u"O"}, Cas{u'Û', u"ù"}, Cas{u'z', u"Z"}}) {
        Banc banc;
        auto& écran = OuvrirTexteMasqué(banc, texte);
        écran.rtfMasqué.Cliquer(0);
        EXPECT_FALSE(Frapper(écran, frappe));
        EXPECT_EQ(écran.rtfMasqué.Text(), texte);
        EXPECT_TRUE(écran.fin.Cadre.Visible);
    }
}

TEST(TexteMasqué, FrappesSansÉtiquetteNeFontQuEffacerLaSélection)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"Âüù");
    for (const char16_t frappe : VueTexte{u"ÂüÙÄœ5;\x1B"}) {
        écran.rtfMasqué.Cliquer(0);
        EXPECT_EQ(écran.rtfMasqué.SelLength(), 1U);
        EXPECT_FALSE(Frapper(écran, frappe)) << static_cast<int>(frappe);
        EXPECT_EQ(écran.rtfMasqué.SelLength(), 0U);
    }
    EXPECT_EQ(Points(écran), u"0 / 0");
    EXPECT_EQ(Lisible(écran), u"...");
}

TEST(TexteMasqué, FrappeDUneLettreDévoiléeNeCompteRien)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"ab");
    Proposer(écran, 0, u'A');
    écran.rtfMasqué.Cliquer(1);
    Frapper(écran, u'a');
    EXPECT_EQ(Points(écran), u"1 / 1");
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 0U);
}

TEST(TexteMasqué, FrappeSansPlaceChoisieDonneLAide)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"ab");
    AnnoncerAide(banc);
    EXPECT_FALSE(Frapper(écran, u'a'));
    EXPECT_EQ(Points(écran), u"0 / 0");
}

TEST(TexteMasqué, SeJoueAuClavierSeul)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"ab");
    écran.rtfMasqué.Cliquer(0);
    EXPECT_TRUE(écran.rtfMasqué.Taper({.Code = Touche::Droite})) << "les flèches déplacent le curseur";
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 1U) << "elles n'effacent rien d'elles-mêmes";
    EXPECT_TRUE(Frapper(écran, u' ')) << "l'espace vaut un clic";
    EXPECT_TRUE(écran.rtfMasqué.Taper({.Caractère = u'\r', .Code = Touche::Entrée}));
    EXPECT_EQ(écran.rtfMasqué.SelLength(), 0U);
    EXPECT_EQ(Lisible(écran), u"..");
}

TEST(TexteMasqué, TexteCompletMontreLaFinEtLaNoteSEnregistre)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"Été au lac");
    Proposer(écran, 0, u'E');
    Proposer(écran, 1, u'T');
    Proposer(écran, 4, u'Z');
    Proposer(écran, 4, u'A');
    Proposer(écran, 5, u'U');
    Proposer(écran, 7, u'L');
    EXPECT_FALSE(écran.fin.Cadre.Visible);
    Proposer(écran, 9, u'C');

    EXPECT_TRUE(écran.fin.Cadre.Visible);
    EXPECT_EQ(écran.fin.Cadre.Caption, u"Texte complété");
    EXPECT_EQ(écran.fin.Cadre.BackColor, Couleur{0xFFC0C0});
    EXPECT_EQ(écran.fin.Message.Text, u"C'est fini !");
    EXPECT_EQ(écran.rtfMasqué.Text(), u"Été au lac");
    EXPECT_EQ(Points(écran), u"5 / 7");

    AnnoncerAide(banc); // the letters that remain find no mask
    Proposer(écran, 0, u'Z');
    EXPECT_EQ(Points(écran), u"5 / 7");

    écran.fin.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTexteMasqué), u"7,142857");
}

TEST(TexteMasqué, VingtLettresEtCinqErreursFontSix)
{
    Banc banc;
    const Texte lettres = u"abcdefghijklmnopqrst";
    auto& écran = OuvrirTexteMasqué(banc, lettres);
    for (std::size_t i = 0; i + 1 < lettres.size(); ++i)
        Proposer(écran, i, Majuscule(lettres[i]));
    for (int i = 0; i < 5; ++i)
        Proposer(écran, lettres.size() - 1, u'Z');
    Proposer(écran, lettres.size() - 1, u'T');
    EXPECT_EQ(Points(écran), u"15 / 25");
    écran.fin.Bouton.Cliquer();
    EXPECT_EQ(banc.Note(IndexTexteMasqué), u"6");
}

TEST(TexteMasqué, LaFinNeSeVoitQuAprèsUneLettreJuste)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"1, 2, 3...");
    EXPECT_FALSE(écran.fin.Cadre.Visible);
    écran.rtfMasqué.Sélectionner(0, 1); // a digit, in clear
    Lettre(écran, u'A').Cliquer();
    EXPECT_EQ(Points(écran), u"0 / 1");
    EXPECT_FALSE(écran.fin.Cadre.Visible);
    EXPECT_FALSE(écran.fin.Bouton.EstAtteignable());

    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTexteMasqué), u"");
}

TEST(TexteMasqué, TexteVideEtUnSeulMot)
{
    Banc banc;
    EXPECT_EQ(OuvrirTexteMasqué(banc, u"").rtfMasqué.Longueur(), 0U);
    auto& écran = OuvrirTexteMasqué(banc, u"oh");
    Proposer(écran, 0, u'O');
    Proposer(écran, 1, u'H');
    EXPECT_TRUE(écran.fin.Cadre.Visible);
}

TEST(TexteMasqué, FermerNEnregistreRienEtVideLettresEtSignes)
{
    Banc banc;
    banc.état.LettresEtSignes = u"abc";
    auto& écran = OuvrirTexteMasqué(banc, u"abc");
    Proposer(écran, 0, u'A');
    EXPECT_EQ(banc.état.LettresEtSignes, u"abc");
    EXPECT_FALSE(banc.état.LettresSeules.empty());
    écran.FermerParCroix();
    EXPECT_EQ(banc.état.LettresEtSignes, u"");
    EXPECT_EQ(banc.Note(IndexTexteMasqué), u"");
}

TEST(TexteMasqué, LeTexteRemplitLEcranMoinsLaBarre)
{
    Banc banc;
    auto& écran = OuvrirTexteMasqué(banc, u"abc");
    écran.Dimensionner(12000, 9000);
    EXPECT_EQ(écran.rtfMasqué.Width, 11850);
    EXPECT_EQ(écran.rtfMasqué.Height, 7900);
}

TEST(TexteMasqué, UnLongTexteSeMasqueEtSeDévoileEnUneEdition)
{
    Banc banc;
    Texte texte;
    while (texte.size() < 500'000)
        texte += u"Le chat de Zoé a vu l'été. ";
    banc.ChargerTexte(texte);
    auto nouvel = std::make_unique<frmTexteMasqué>(banc.Choix());
    auto& écran = *nouvel;
    std::vector<RichTextBox::Edition> éditions;
    écran.rtfMasqué.EditionFaite = [&](const RichTextBox::Edition& édition) { éditions.push_back(édition); };
    banc.Montrer(std::move(nouvel));
    EXPECT_EQ(éditions.size(), 1U);

    Proposer(écran, 1, u'E');

    ASSERT_EQ(éditions.size(), 2U);
    EXPECT_EQ(éditions[1].Retirés, éditions[1].Ajoutés);
    EXPECT_TRUE(Lisible(écran).starts_with(u".e .... .e ..é . .. .'é.é. .e "));
}

} // namespace tirelune
