#include "exercises/comprehension/frmClosures.h"
#include "tests/support/Banc.h"
#include "tests/support/Notices.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int IndexClosures = 3;
constexpr auto TropCourt = u"Le texte est trop court pour cet exercice !";
// Twenty-six words, "huit", "quinze" and "vingt-deux" being the eighth, the fifteenth and the twenty-second.
constexpr auto Nombres =
    u"un deux trois quatre cinq six sept huit neuf dix onze douze treize quatorze quinze seize dix-sept dix-huit "
    u"dix-neuf vingt vingt-et-un vingt-deux vingt-trois vingt-quatre vingt-cinq vingt-six";

frmClosures& OuvrirClosures(Banc& banc, const Texte& texte, std::size_t départ = 0)
{
    banc.ChargerTexte(texte);
    banc.Index(IndexClosures);
    banc.Hasards({(static_cast<double>(départ) + 0.5) / 80});
    return banc.Ouvrir<frmClosures>();
}

frmClosures& OuvrirTropCourt(Banc& banc, const Texte& texte, std::size_t départ = 0)
{
    banc.plateforme.boîtes.push_back({TropCourt, Réponse::Ok, u"Avertissement", {}});
    return OuvrirClosures(banc, texte, départ);
}

void Placer(frmClosures& écran, VueTexte mot, VueTexte choisi)
{
    écran.rtfClosures.Cliquer(Texte{Nombres}.find(mot));
    écran.cmbClosures.Choisir(écran.cmbClosures.Chercher(choisi));
    écran.cmdOk.Cliquer();
}

// The walk as it is told, character by character.
struct Marche {
    Texte Corps;
    std::vector<Texte> Liste;

    friend bool operator==(const Marche&, const Marche&) = default;
};

double FinPasÀPas(Texte texte)
{
    while (texte.ends_with(u' '))
        texte.pop_back();
    double p = 0.9 * static_cast<double>(texte.size());
    while (p >= 0) {
        auto rang = static_cast<std::size_t>(p);
        const double reste = p - static_cast<double>(rang);
        if (reste > 0.5 || (reste == 0.5 && rang % 2 == 1))
            ++rang;
        if (rang < texte.size() && texte[rang] == u' ')
            return p;
        p -= 1;
    }
    return 0;
}

Marche MarcherPasÀPas(const Texte& texte, std::size_t départ)
{
    const Texte séparateurs = Texte{u" ?,.;:!()"} + Texte{8, 9, 10, 13, 34, 171, 187};
    const double fin = FinPasÀPas(texte);
    Marche marche{.Corps = texte, .Liste = {}};
    int compte = 0;
    bool précédent = false;
    Texte mot;
    for (std::size_t i = départ; i <= texte.size(); ++i) {
        const auto car = texte.substr(i, 1);
        const bool séparateur = car.empty() || séparateurs.find(car) != Texte::npos;
        if (séparateur && !précédent) {
            if (compte == 8) {
                marche.Liste.push_back(mot);
                mot.clear();
                compte = 1;
                if (static_cast<double>(i) >= fin)
                    break;
            }
            ++compte;
        }
        précédent = séparateur;
        if (!séparateur && compte == 7) {
            mot += car;
            marche.Corps[i] = u'_';
        }
    }
    return marche;
}

Marche Marcher(const Texte& texte, std::size_t départ)
{
    const auto trous = ChoisirLacunes(texte, départ);
    auto liste = MotsEnlevés(texte, trous.Lacunes);
    liste.resize(trous.Annoncées);
    return {.Corps = OuvrirLacunes(TexteRiche{texte}, trous.Lacunes).Caractères(), .Liste = std::move(liste)};
}

} // namespace

// ---- The choice of the gaps --------------------------------------------------------------------------------------

TEST(ChoisirLacunes, DonneCeQueDonnentLesPas)
{
    const Texte long_ = u"Aujourd'hui, l'école est fermée ! « Où vas-tu ? » dit-il à Zoé. \t(Elle part.)\r\n"
                        u"Un a b c d e f g h i j k l m n o p; x: y, z ... encore\r\n\r\nun \"mot\" ou deux, "
                        u"puis_trois et quatre-vingts pages  à lire avant  le soir qui vient doucement sur la mer.   ";
    for (std::size_t longueur = 0; longueur <= long_.size(); ++longueur) {
        const auto texte = long_.substr(0, longueur);
        for (std::size_t départ = 0; départ < 80; départ += 3)
            ASSERT_EQ(Marcher(texte, départ), MarcherPasÀPas(texte, départ)) << longueur << " de " << départ;
    }
}

TEST(ChoisirLacunes, DansUnMotLeHuitièmePartLePremier)
{
    const auto marche = Marcher(Nombres, 1);
    EXPECT_EQ(marche.Liste, (std::vector<Texte>{u"huit", u"quinze", u"vingt-deux"}));
    EXPECT_EQ(marche.Corps.substr(30, 22), u"sept ____ neuf dix onz");
}

TEST(ChoisirLacunes, SurUnSéparateurLeSeptièmeMotEntierPartLePremier)
{
    const auto marche = Marcher(Nombres, 2); // the blank behind "un"
    EXPECT_EQ(marche.Liste.front(), u"huit");
    EXPECT_EQ(Marcher(Nombres, 3).Liste.front(), u"neuf") << "dans le mot suivant : un mot plus loin";
}

TEST(ChoisirLacunes, ApostropheEtTraitDUnionFontPartieDuMot)
{
    const auto marche = Marcher(u"un deux trois quatre cinq six sept l'arc-en-ciel est beau", 0);
    EXPECT_EQ(marche.Liste, (std::vector<Texte>{u"l'arc-en-ciel"}));
    EXPECT_EQ(marche.Corps, u"un deux trois quatre cinq six sept _____________ est beau");
}

TEST(ChoisirLacunes, MotDUneLettreEstUnMot)
{
    EXPECT_EQ(Marcher(u"a b c d e f g h i j k", 0).Liste, (std::vector<Texte>{u"h"}));
}

TEST(ChoisirLacunes, SixMotsAuMoinsEntreDeuxLacunes)
{
    for (std::size_t départ = 0; départ < 80; ++départ) {
        const auto trous = ChoisirLacunes(Nombres, départ);
        for (std::size_t i = 1; i < trous.Lacunes.size(); ++i) {
            const auto fin = trous.Lacunes[i - 1].Début + trous.Lacunes[i - 1].Longueur;
            const auto entre = Texte{Nombres}.substr(fin, trous.Lacunes[i].Début - fin);
            EXPECT_EQ(std::count(entre.begin(), entre.end(), u' '), 7) << départ;
        }
    }
}

TEST(ChoisirLacunes, SansBlancUneSeuleLacune)
{
    Texte texte;
    for (int i = 0; i < 60; ++i)
        texte += u"mot,";
    EXPECT_EQ(FinDesLacunes(texte), 0);
    const auto trous = ChoisirLacunes(texte, 0);
    EXPECT_EQ(trous.Lacunes, (std::vector<Lacune>{{28, 3}}));
    EXPECT_EQ(trous.Annoncées, 1U);
}

TEST(ChoisirLacunes, DernierMotEnlevéManqueDansLaListe)
{
    const auto trous = ChoisirLacunes(u"un deux trois quatre cinq six sept huit", 0);
    EXPECT_EQ(trous.Lacunes, (std::vector<Lacune>{{35, 4}}));
    EXPECT_EQ(trous.Annoncées, 0U);
}

TEST(ChoisirLacunes, DépartAuDelàDuTexte)
{
    EXPECT_TRUE(ChoisirLacunes(u"court", 79).Lacunes.empty());
    EXPECT_TRUE(ChoisirLacunes(u"", 0).Lacunes.empty());
}

TEST(FinDesLacunes, DernierBlancDesNeufDixièmesNonArrondi)
{
    EXPECT_DOUBLE_EQ(FinDesLacunes(u"abcd efghi"), 4);
    EXPECT_DOUBLE_EQ(FinDesLacunes(u"abcd efg hij"), 7.8);
    EXPECT_DOUBLE_EQ(FinDesLacunes(u"abcd efg hij   "), 7.8) << "les blancs de la fin ne comptent pas";
    EXPECT_DOUBLE_EQ(FinDesLacunes(u"abcd "), 3.6) << "mais l'arrondi peut tomber sur eux";
    EXPECT_DOUBLE_EQ(FinDesLacunes(u"    "), 0);
    EXPECT_DOUBLE_EQ(FinDesLacunes(u""), 0);
}

TEST(FinDesLacunes, LesMoitiésVontAuNombrePair)
{
    EXPECT_DOUBLE_EQ(FinDesLacunes(u"ab defghijklmno"), 2.5);
    EXPECT_DOUBLE_EQ(FinDesLacunes(u"abc efghijklmno"), 0) << "3.5 va à 4 et 2.5 à 2 : le blanc en 3 n'est jamais vu";
    EXPECT_DOUBLE_EQ(FinDesLacunes(u"abcd fghijklmno"), 4.5);
}

// ---- The screen --------------------------------------------------------------------------------------------------

TEST(Closures, OuvertureTroueLeTexteEtRemplitLaListe)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);

    EXPECT_EQ(écran.Caption, u"Closures / Léa");
    EXPECT_EQ(écran.cmbClosures.Eléments(), (std::vector<Texte>{u"huit", u"quinze", u"vingt-deux"}));
    EXPECT_EQ(écran.cmbClosures.Text, u"huit");
    EXPECT_EQ(écran.rtfClosures.Longueur(), Texte{Nombres}.size());
    EXPECT_EQ(écran.rtfClosures.SelStart(), 0U);
    EXPECT_EQ(écran.rtfClosures.SelLength(), 0U);
    EXPECT_FALSE(écran.fin.Cadre.Visible);
}

TEST(Closures, LesPointsOntLeursCouleursEtLesBoutonsLeurLégende)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    VérifierPointsDeDépart(écran.lblPoints);
    EXPECT_EQ(écran.cmdOk.Caption, u"&Ok");
    EXPECT_EQ(écran.fin.Bouton.Caption, u"&Quitter");
    EXPECT_FALSE(écran.Image1.Picture().Formes.empty());
    EXPECT_TRUE(écran.cmbClosures.Sorted);
}

TEST(Closures, LaListeMontreSonTitreTantQuElleEstVide)
{
    Banc banc;
    EXPECT_EQ(OuvrirTropCourt(banc, u"court").cmbClosures.Text, u" Liste des mots enlevés ");
}

TEST(Closures, LesMarquesDuMaîtreDisparaissent)
{
    Banc banc;
    Format format;
    format.Barré = true;
    format.Souligné = true;
    format.Italique = true;
    format.Teinte = Bleu;
    banc.ChargerTexte(TexteRiche{Nombres, format});
    banc.Hasards({0.0});
    auto& écran = banc.Ouvrir<frmClosures>();

    for (std::size_t i = 0; i < écran.rtfClosures.Longueur(); ++i) {
        const auto& reste = écran.rtfClosures.TextRTF().FormatEn(i);
        ASSERT_FALSE(reste.Barré || reste.Souligné) << i;
        ASSERT_TRUE(reste.Italique) << i;
        ASSERT_EQ(reste.Teinte, écran.rtfClosures.Text()[i] == u'_' ? Noir : Bleu) << i;
    }
}

TEST(Closures, TexteTropCourtLeDitEtSEnVa)
{
    for (const auto* texte : {u"", u"un", u"un deux trois quatre cinq six sept", u"... !!! ... !!!"}) {
        Banc banc;
        auto& écran = OuvrirTropCourt(banc, texte);
        EXPECT_FALSE(écran.EstChargé());
        EXPECT_EQ(banc.Note(IndexClosures), u"");
    }
}

TEST(Closures, UnDépartAuDelàDUnTexteCourtEstTropCourt)
{
    Banc banc;
    const Texte texte = u"a b c d e f g h i j k l";
    EXPECT_TRUE(OuvrirClosures(banc, texte, 0).EstChargé());
    EXPECT_FALSE(OuvrirTropCourt(banc, texte, 79).EstChargé());
}

TEST(Closures, HuitMotsJusteTropCourt)
{
    Banc banc;
    EXPECT_FALSE(OuvrirTropCourt(banc, u"un deux trois quatre cinq six sept huit").EstChargé());
    EXPECT_TRUE(OuvrirClosures(banc, u"un deux trois quatre cinq six sept huit neuf").EstChargé());
}

TEST(Closures, FerméPendantLeMessageDeTexteTropCourt)
{
    Banc banc;
    auto écran = std::make_unique<frmClosures>(banc.Choix());
    auto& référence = *écran;
    banc.ChargerTexte(u"court");
    banc.Hasards({0.0});
    banc.plateforme.boîtes.push_back({TropCourt, Réponse::Ok, {}, [&] { référence.FermerParCroix(); }});
    banc.Montrer(std::move(écran));
    EXPECT_FALSE(référence.EstChargé());
}

TEST(Closures, LExamenDeLaListeRevientAChaqueActivation)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    écran.Activer();
    EXPECT_TRUE(écran.EstChargé());
    écran.cmbClosures.Clear();
    banc.AnnoncerBoîte(TropCourt);
    écran.Activer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexClosures), u"");
}

TEST(Closures, DernierMotEnlevéEmpêcheLaFin)
{
    Banc banc;
    auto& écran =
        OuvrirClosures(banc, u"un deux trois quatre cinq six sept huit neuf dix onze douze treize quatorze quinze");
    EXPECT_EQ(écran.cmbClosures.Eléments(), (std::vector<Texte>{u"huit"}));
    EXPECT_TRUE(écran.rtfClosures.Text().ends_with(u"quatorze ______"));

    écran.rtfClosures.Cliquer(36);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.cmbClosures.Text, u"huit") << "la liste vide garde son dernier texte";
    écran.rtfClosures.Cliquer(écran.rtfClosures.Longueur() - 1);
    EXPECT_EQ(écran.rtfClosures.SelLength(), 6U);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
    EXPECT_FALSE(écran.fin.Cadre.Visible);

    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexClosures), u"");
}

TEST(Closures, LacuneRougePuisVerteEtSoulignée)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    const auto place = Texte{Nombres}.find(u"quinze");

    Placer(écran, u"quinze", u"huit");
    EXPECT_EQ(écran.rtfClosures.TextRTF().FormatEn(place).Teinte, Rouge);
    EXPECT_EQ(écran.rtfClosures.SelLength(), 0U);
    EXPECT_EQ(écran.cmbClosures.Text, u"huit") << "après un mot faux, le choix reste";

    Placer(écran, u"quinze", u"quinze");
    EXPECT_EQ(écran.rtfClosures.TextRTF().FormatEn(place).Teinte, VertFoncé);
    EXPECT_TRUE(écran.rtfClosures.TextRTF().FormatEn(place + 5).Souligné);
    EXPECT_EQ(écran.rtfClosures.Text().substr(place, 6), u"quinze");
    EXPECT_EQ(écran.cmbClosures.Text, u"huit") << "après un mot juste, le premier qui reste";
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
}

TEST(Closures, LacuneDUnMotAvecApostropheEstUneSeule)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, u"un deux trois quatre cinq six sept l'arc-en-ciel est beau");
    écran.rtfClosures.Cliquer(36); // the apostrophe
    EXPECT_EQ(écran.rtfClosures.SelStart(), 35U);
    EXPECT_EQ(écran.rtfClosures.SelLength(), 13U);
}

TEST(Closures, MotDeuxFoisDansLaListeVaDansSesDeuxLacunes)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, u"a b c d e f g le i j k l m n le p q r s t u v w x y z");
    EXPECT_EQ(écran.cmbClosures.Eléments(), (std::vector<Texte>{u"le", u"le", u"v"}));
    for (const std::size_t place : {30U, 14U}) {
        écran.rtfClosures.Cliquer(place);
        écran.cmbClosures.Choisir(0);
        écran.cmdOk.Cliquer();
    }
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
    EXPECT_EQ(écran.cmbClosures.Eléments(), (std::vector<Texte>{u"v"}));
}

TEST(Closures, EntréeSélectionneLaLacuneCommeUnClic)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    const auto place = Texte{Nombres}.find(u"huit");
    écran.rtfClosures.Sélectionner(place + 2, 0);
    écran.rtfClosures.Taper({.Caractère = u'\r', .Code = Touche::Entrée});
    EXPECT_EQ(écran.rtfClosures.SelStart(), place);
    EXPECT_EQ(écran.rtfClosures.SelLength(), 4U);

    écran.rtfClosures.Sélectionner(0, 3);
    écran.rtfClosures.Taper({.Caractère = u'\r', .Code = Touche::Entrée});
    EXPECT_EQ(écran.rtfClosures.SelLength(), 0U);
    EXPECT_TRUE(écran.rtfClosures.Taper({.Code = Touche::Droite}));
    EXPECT_EQ(écran.rtfClosures.Longueur(), Texte{Nombres}.size());
}

TEST(Closures, ClicHorsDesTraitsPuisOkNeCompteRien)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    écran.rtfClosures.Cliquer(Texte{Nombres}.find(u"huit"));
    écran.rtfClosures.Cliquer(0);
    EXPECT_EQ(écran.rtfClosures.SelLength(), 0U);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_FALSE(écran.fin.Cadre.Visible);
}

TEST(Closures, DoubleClicEstRefusé)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    const auto place = Texte{Nombres}.find(u"huit");
    banc.plateforme.boîtes.push_back({UneSeuleFois, Réponse::Ok, u"Avertissement", {}});
    écran.rtfClosures.Cliquer(place);
    écran.rtfClosures.DoubleCliquer(place);
    EXPECT_EQ(écran.rtfClosures.SelLength(), 0U);
    EXPECT_FALSE(banc.état.CorrectionEnCours);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
}

TEST(Closures, OuvertureOublieUnDoubleClicPassé)
{
    Banc banc;
    banc.état.CorrectionEnCours = true;
    auto& écran = OuvrirClosures(banc, Nombres);
    EXPECT_FALSE(banc.état.CorrectionEnCours);
    écran.rtfClosures.Cliquer(Texte{Nombres}.find(u"huit"));
    EXPECT_EQ(écran.rtfClosures.SelLength(), 4U);
}

TEST(Closures, FerméPendantLeMessageDuDoubleClic)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    banc.plateforme.boîtes.push_back({UneSeuleFois, Réponse::Ok, u"Avertissement", [&] { écran.FermerParCroix(); }});
    écran.rtfClosures.DoubleCliquer(35);
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_FALSE(banc.état.CorrectionEnCours);
    EXPECT_EQ(banc.Note(IndexClosures), u"");
}

TEST(Closures, LaListeNeSeTapePas)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    EXPECT_FALSE(écran.cmbClosures.Taper({.Caractère = u'q', .Code = 'Q'}));
    EXPECT_TRUE(écran.cmbClosures.Taper({.Code = Touche::Bas})) << "les flèches parcourent la liste";
    écran.cmbClosures.Saisir(u"quinze et demi");
    EXPECT_EQ(écran.cmbClosures.Text, u"huit");
}

TEST(Closures, QuitterEnregistreLaNote)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    Placer(écran, u"quinze", u"huit");
    Placer(écran, u"huit", u"huit");
    Placer(écran, u"quinze", u"quinze");
    EXPECT_FALSE(écran.fin.Cadre.Visible);
    Placer(écran, u"vingt-deux", u"vingt-deux");
    EXPECT_TRUE(écran.fin.Cadre.Visible);
    EXPECT_EQ(écran.fin.Cadre.Caption, u"Texte complété");
    EXPECT_EQ(écran.fin.Cadre.BackColor, Couleur{0xFFC0C0});
    EXPECT_EQ(écran.fin.Message.Text, u"C'est fini !");
    EXPECT_EQ(écran.rtfClosures.Text(), Nombres);

    écran.fin.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexClosures), u"7,5");
}

TEST(Closures, FinitAvecSaDernièreLacuneMalgréLesTraitsDuTexte)
{
    Banc banc;
    const Texte texte = u"Nom : ____ deux trois quatre cinq six sept huit neuf dix onze douze treize";
    auto& écran = OuvrirClosures(banc, texte);
    ASSERT_EQ(écran.cmbClosures.Eléments(), (std::vector<Texte>{u"sept"}));
    écran.rtfClosures.Cliquer(texte.find(u"____"));
    EXPECT_EQ(écran.rtfClosures.SelLength(), 0U);
    écran.rtfClosures.Cliquer(texte.find(u"sept"));
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.rtfClosures.Text(), texte);
    EXPECT_TRUE(écran.fin.Cadre.Visible);
}

TEST(Closures, FermerNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    Placer(écran, u"huit", u"huit");
    écran.FermerParCroix();
    EXPECT_EQ(banc.Note(IndexClosures), u"");
}

TEST(Closures, LeTexteRemplitLEcranMoinsLaBarre)
{
    Banc banc;
    auto& écran = OuvrirClosures(banc, Nombres);
    écran.Dimensionner(20000, 12000);
    EXPECT_EQ(écran.rtfClosures.Width, 19850);
    EXPECT_EQ(écran.rtfClosures.Height, 10900);
}

TEST(Closures, UnLongTexteSOuvreEnUneEdition)
{
    Banc banc;
    Texte texte;
    constexpr std::size_t Mots = 125'000;
    for (std::size_t i = 0; i < Mots; ++i)
        texte += i % 20 == 19 ? u"mot\r" : u"mot ";
    banc.ChargerTexte(texte);
    banc.Hasards({0.0});
    auto écran = std::make_unique<frmClosures>(banc.Choix());
    auto& boîte = écran->rtfClosures;
    auto& liste = écran->cmbClosures;
    int éditions = 0;
    boîte.EditionFaite = [&](const RichTextBox::Edition&) { ++éditions; };
    banc.Montrer(std::move(écran));

    EXPECT_EQ(éditions, 1);
    EXPECT_EQ(boîte.Longueur(), banc.Choix().rtfTexte.Longueur());
    EXPECT_NEAR(liste.ListCount(), static_cast<double>(Mots) * 0.9 / 7, 2);
}

} // namespace tirelune
