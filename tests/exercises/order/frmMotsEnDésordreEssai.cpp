#include "exercises/order/frmMotsEnDésordre.h"

#include "exercises/Phrases.h"
#include "tests/support/Banc.h"

namespace tirelune {

namespace {

constexpr int MotsEnDésordre = 17;

using Mots = std::vector<Texte>;

// A draw that falls just before the sentence of that number: on the full stop that precedes it.
double TirageDe(VueTexte texte, int numéro)
{
    std::size_t point = 0;
    for (int i = 0; i < numéro; ++i)
        point = texte.find(u'.', i == 0 ? 0 : point + 1);
    return (static_cast<double>(point) + 0.5) / static_cast<double>(texte.size());
}

class MotsEnDésordreEssai : public ::testing::Test {
protected:
    Banc banc;
    Texte texte = u"Début. "
                  u"Le petit chat noir dort bien. "
                  u"Une souris grise trotte sous la vieille table. "
                  u"Demain nous irons tous au bord du lac. "
                  u"Le vent souffle fort dans les arbres nus. "
                  u"La lune brille au-dessus de la forêt. "
                  u"Fin.";

    frmMotsEnDésordre& OuvrirMotsEnDésordre(std::initializer_list<double> tirages)
    {
        banc.ChargerTexte(texte);
        banc.Index(MotsEnDésordre);
        banc.Hasards(tirages);
        return banc.Ouvrir<frmMotsEnDésordre>();
    }
    frmMotsEnDésordre& OuvrirLaPremière() { return OuvrirMotsEnDésordre({TirageDe(texte, 1)}); }
    frmMotsEnDésordre& OuvrirSur(VueTexte phrase)
    {
        texte = Texte{u"Début. "}.append(phrase);
        return OuvrirLaPremière();
    }

    static int EtiquetteDe(frmMotsEnDésordre& écran, VueTexte mot)
    {
        for (int i = 0; i < écran.lblMot.Nombre(); ++i)
            if (écran.lblMot(i).Visible && écran.lblMot(i).Caption == mot)
                return i;
        ADD_FAILURE() << "pas d'étiquette " << EnUtf8(mot);
        return 0;
    }
    static void Placer(frmMotsEnDésordre& écran, const Mots& mots)
    {
        for (const auto& mot : mots)
            écran.lblMot(EtiquetteDe(écran, mot)).Cliquer();
    }
    static void Reconstituer(frmMotsEnDésordre& écran)
    {
        const auto ordre = écran.cmbOrdre.Eléments();
        Placer(écran, ordre);
        écran.cmdTerminé.Cliquer();
    }
    void Suivante(frmMotsEnDésordre& écran, int numéro)
    {
        banc.Hasards({TirageDe(texte, numéro)});
        écran.cmdSuivant.Cliquer();
    }
    static Mots Etiquettes(frmMotsEnDésordre& écran)
    {
        Mots mots;
        for (auto& mot : écran.lblMot)
            if (mot.Visible)
                mots.push_back(mot.Caption);
        return mots;
    }
    static std::pair<std::size_t, std::size_t> Sélection(const frmMotsEnDésordre& écran)
    {
        return {écran.txtPhrase.SelStart(), écran.txtPhrase.SelLength()};
    }
    static void Taper(frmMotsEnDésordre& écran, int code) { écran.txtPhrase.Taper({.Code = code}); }
};

using Etendue = std::pair<std::size_t, std::size_t>;

Texte Phrase(int mots, VueTexte fin = u".")
{
    Texte phrase;
    for (int i = 0; i < mots; ++i)
        phrase.append(i == 0 ? u"" : u" ").append(u"mot").append(EnTexte(i));
    return phrase.append(fin);
}

} // namespace

// ---- The sentence ------------------------------------------------------------------------------------------------

TEST_F(MotsEnDésordreEssai, AuDébutLesMotsSontDansLOrdreAlphabétique)
{
    auto& écran = OuvrirLaPremière();
    EXPECT_EQ(écran.Caption, u"Mots en désordre / Léa");
    EXPECT_EQ(Etiquettes(écran), (Mots{u"bien.", u"chat", u"dort", u"Le", u"noir", u"petit"}));
    EXPECT_EQ(écran.lblCorrigé.Caption, u"Le petit chat noir dort bien.");
    EXPECT_EQ(écran.lblBanque.Caption, u"Le petit chat noir dort bien. ");
    EXPECT_EQ(écran.txtPhrase.Text, u" ");
    EXPECT_EQ(Sélection(écran), Etendue(0, 1));
    EXPECT_EQ(écran.lblCoups.Caption, u"5");
    EXPECT_EQ(écran.lblEssais.Caption, u"3");
    EXPECT_EQ(écran.lblEssaisMax.Caption, u"3");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(2).Caption, u" / ");
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_FALSE(écran.frameAide.Visible);
    EXPECT_FALSE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.lblMot(0).ToolTipText, u" Clique sur les étiquettes pour reconstituer la phrase. ");
    EXPECT_EQ(écran.lblMot(0).BackColor, Blanc);
    EXPECT_EQ(écran.lblMot(0).ForeColor, Bleu);
}

TEST_F(MotsEnDésordreEssai, SixMotsOntTroisEssaisEtSeptAussi)
{
    EXPECT_EQ(OuvrirSur(Phrase(6)).lblEssais.Caption, u"3");
    EXPECT_EQ(OuvrirSur(Phrase(7)).lblEssais.Caption, u"3");
}

TEST_F(MotsEnDésordreEssai, VingtMotsPrennentToutesLesEtiquettesEtOntDixEssais)
{
    auto& écran = OuvrirSur(Phrase(20));
    EXPECT_EQ(Etiquettes(écran).size(), 20U);
    EXPECT_EQ(écran.lblEssais.Caption, u"10");
}

TEST_F(MotsEnDésordreEssai, CinqEtVingtEtUnMotsSontRefusés)
{
    texte = u"Début. " + Phrase(5) + u" " + Phrase(21) + u" " + Phrase(6);
    auto& écran = OuvrirMotsEnDésordre({TirageDe(texte, 1), TirageDe(texte, 2), TirageDe(texte, 3)});
    EXPECT_EQ(écran.cmbOrdre.ListCount(), 6);
}

TEST_F(MotsEnDésordreEssai, LaPremièrePhraseNEstTiréeQueSansPointAprèsLaPosition)
{
    texte = u"Le premier chat du monde ronronne. Puis rien ne";
    auto& écran = OuvrirMotsEnDésordre({0.0, 0.99});
    EXPECT_EQ(écran.lblCorrigé.Caption, u"Le premier chat du monde ronronne.");
}

TEST_F(MotsEnDésordreEssai, LeTexteSansPointFinalDonneUnePhrase)
{
    EXPECT_EQ(OuvrirSur(u"le chat noir dort très bien").lblCorrigé.Caption, u"le chat noir dort très bien");
}

TEST_F(MotsEnDésordreEssai, LePointVirguleEtLesDeuxPointsRestentAuDernierMot)
{
    EXPECT_EQ(OuvrirSur(u"Le chat noir dort très bien ; il rêve.").lblCorrigé.Caption, u"Le chat noir dort très bien;");
    EXPECT_EQ(OuvrirSur(u"Le chat noir dort très bien : il rêve.").lblCorrigé.Caption, u"Le chat noir dort très bien:");
}

TEST_F(MotsEnDésordreEssai, LesAutresCaractèresSéparentLesMots)
{
    auto& écran = OuvrirSur(u"\n\t«L'œuf», dit-il (très bas),  12 fois\nà la poule !");
    EXPECT_EQ(écran.cmbOrdre.Eléments(),
              (Mots{u"«L'", u"uf»,", u"dit-il", u"(très", u"bas),", u"12", u"fois", u"à", u"la", u"poule!"}));
}

TEST_F(MotsEnDésordreEssai, DeuxMotsEgauxPrennentDeuxEtiquettesEtVontLUnPourLAutre)
{
    auto& écran = OuvrirSur(u"le chat et le chien et le loup.");
    EXPECT_EQ(Etiquettes(écran), (Mots{u"chat", u"chien", u"et", u"et", u"le", u"le", u"le", u"loup."}));
    écran.lblMot(6).Cliquer();
    écran.lblMot(0).Cliquer();
    écran.lblMot(3).Cliquer();
    écran.lblMot(4).Cliquer();
    écran.lblMot(1).Cliquer();
    écran.lblMot(2).Cliquer();
    écran.lblMot(5).Cliquer();
    écran.lblMot(7).Cliquer();
    écran.cmdTerminé.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"4");
}

TEST_F(MotsEnDésordreEssai, UnePhraseDéjàPriseNEstPlusOfferte)
{
    auto& écran = OuvrirLaPremière();
    Reconstituer(écran);
    banc.Hasards({TirageDe(texte, 1), TirageDe(texte, 1)});
    Suivante(écran, 2);
    EXPECT_EQ(écran.lblCorrigé.Caption, u"Une souris grise trotte sous la vieille table.");
}

TEST_F(MotsEnDésordreEssai, UnePhraseQuiSeTrouveDansUnePlusLongueEstDéjàPrise)
{
    texte = u"Début. Hier le petit chat noir dort bien. le petit chat noir dort bien. Un loup gris passe sous la lune.";
    auto& écran = OuvrirLaPremière();
    Reconstituer(écran);
    banc.Hasards({TirageDe(texte, 2)});
    Suivante(écran, 3);
    EXPECT_EQ(écran.lblCorrigé.Caption, u"Un loup gris passe sous la lune.");
}

TEST_F(MotsEnDésordreEssai, SansPhraseQuiConvienneQuatreVingtDixNeufTiragesMènentALaSortie)
{
    texte = u"Trop court. Vraiment. Oui.";
    int tirages = 0;
    banc.plateforme.toujours = [&] {
        ++tirages;
        return 0.0;
    };
    auto& écran = OuvrirMotsEnDésordre({});
    EXPECT_EQ(tirages, 99);
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Phrases trop courtes ou trop longues");
    EXPECT_EQ(écran.notice.Phrase.Caption, u"L'exercice est terminé.");
    EXPECT_EQ(écran.Focus(), &écran.notice.Bouton);
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(MotsEnDésordre), u"");
}

TEST_F(MotsEnDésordreEssai, UnTexteVideMèneALaSortie)
{
    texte = u"";
    banc.plateforme.toujours = [] { return 0.5; };
    EXPECT_TRUE(OuvrirMotsEnDésordre({}).notice.Cadre.Visible);
}

TEST_F(MotsEnDésordreEssai, UnTexteSansBlancNiSigneMèneALaSortie)
{
    texte = Texte(100000, u'a');
    banc.plateforme.toujours = [] { return 0.5; };
    EXPECT_TRUE(OuvrirMotsEnDésordre({}).notice.Cadre.Visible);
}

// ---- Its construction --------------------------------------------------------------------------------------------

TEST_F(MotsEnDésordreEssai, UnMotCliquéVientALaFinEtSonEtiquetteSeVide)
{
    auto& écran = OuvrirLaPremière();
    Placer(écran, {u"Le"});
    EXPECT_EQ(écran.txtPhrase.Text, u" Le ");
    EXPECT_EQ(Sélection(écran), Etendue(3, 1));
    EXPECT_EQ(écran.lblMot(3).Caption, u"");
    EXPECT_TRUE(écran.lblMot(3).Visible);
    EXPECT_FALSE(écran.lblMot(3).AutoSize);
    EXPECT_EQ(écran.lblPassage.Caption, u"");
    Placer(écran, {u"petit"});
    EXPECT_EQ(écran.txtPhrase.Text, u" Le petit ");
}

TEST_F(MotsEnDésordreEssai, UnClicChoisitLaPlaceOuLeMotSousLeCurseur)
{
    auto& écran = OuvrirLaPremière();
    Placer(écran, {u"Le", u"chat"});
    écran.txtPhrase.Cliquer(0);
    EXPECT_EQ(Sélection(écran), Etendue(0, 1));
    écran.txtPhrase.Cliquer(1);
    EXPECT_EQ(Sélection(écran), Etendue(0, 4));
    écran.txtPhrase.Cliquer(3);
    EXPECT_EQ(Sélection(écran), Etendue(3, 1));
    écran.txtPhrase.DoubleCliquer(6);
    EXPECT_EQ(Sélection(écran), Etendue(3, 6));
    écran.txtPhrase.Cliquer(9);
    EXPECT_EQ(Sélection(écran), Etendue(8, 1));
}

TEST_F(MotsEnDésordreEssai, UnMotVientEntreDeuxAutres)
{
    auto& écran = OuvrirLaPremière();
    Placer(écran, {u"Le", u"chat"});
    écran.txtPhrase.Cliquer(3);
    Placer(écran, {u"petit"});
    EXPECT_EQ(écran.txtPhrase.Text, u" Le petit chat ");
    EXPECT_EQ(Sélection(écran), Etendue(14, 1));
    écran.txtPhrase.Cliquer(0);
    Placer(écran, {u"noir"});
    EXPECT_EQ(écran.txtPhrase.Text, u" noir Le petit chat ");
}

TEST_F(MotsEnDésordreEssai, UnMotChoisiChangeDePlaceAvecCeluiDeLEtiquette)
{
    auto& écran = OuvrirLaPremière();
    Placer(écran, {u"Le", u"chat", u"dort"});
    écran.txtPhrase.Cliquer(5);
    const int noir = EtiquetteDe(écran, u"noir");
    écran.lblMot(noir).Cliquer();
    EXPECT_EQ(écran.txtPhrase.Text, u" Le noir dort ");
    EXPECT_EQ(écran.lblMot(noir).Caption, u"chat");
    EXPECT_TRUE(écran.lblMot(noir).AutoSize);
    EXPECT_EQ(Sélection(écran), Etendue(13, 1));
}

TEST_F(MotsEnDésordreEssai, UnMotChoisiRetourneSurUneEtiquetteVide)
{
    auto& écran = OuvrirLaPremière();
    Placer(écran, {u"Le", u"chat", u"dort"});
    écran.txtPhrase.Cliquer(5);
    écran.lblMot(3).Cliquer(); // left by "Le"
    EXPECT_EQ(écran.txtPhrase.Text, u" Le dort ");
    EXPECT_EQ(écran.lblMot(3).Caption, u"chat");
    EXPECT_TRUE(écran.lblMot(3).AutoSize);
    EXPECT_EQ(Sélection(écran), Etendue(8, 1));
}

TEST_F(MotsEnDésordreEssai, UneEtiquetteVideSansMotChoisiNeFaitRien)
{
    auto& écran = OuvrirLaPremière();
    Placer(écran, {u"Le"});
    écran.lblMot(3).Cliquer();
    EXPECT_EQ(écran.txtPhrase.Text, u" Le ");
    EXPECT_EQ(écran.lblMot(3).Caption, u"");
    EXPECT_EQ(Sélection(écran), Etendue(3, 1));
}

TEST_F(MotsEnDésordreEssai, SansSélectionUneEtiquetteNeFaitRien)
{
    auto& écran = OuvrirLaPremière();
    écran.txtPhrase.SelLength = 0;
    écran.lblMot(0).Cliquer();
    EXPECT_EQ(écran.txtPhrase.Text, u" ");
    EXPECT_EQ(écran.lblMot(0).Caption, u"bien.");
}

TEST_F(MotsEnDésordreEssai, UneSélectionALaSourisNeCoupeAucunMot)
{
    auto& écran = OuvrirLaPremière();
    Placer(écran, {u"Le", u"chat", u"dort"});
    for (const auto& [début, longueur] : {Etendue(2, 4), Etendue(0, 14), Etendue(4, 2), Etendue(3, 2)}) {
        écran.txtPhrase.SelStart = début;
        écran.txtPhrase.SelLength = longueur;
        const int étiquette = EtiquetteDe(écran, u"noir");
        écran.lblMot(étiquette).Cliquer();
        const auto phrase = u' ' + écran.txtPhrase.Text();
        for (const auto mot : {u" Le ", u" chat ", u" dort ", u" noir "})
            EXPECT_TRUE(phrase.find(mot) != Texte::npos || écran.lblMot(étiquette).Caption == Rogner(mot))
                << EnUtf8(phrase);
        écran.txtPhrase.Cliquer(écran.txtPhrase.Text().find(u"noir"));
        écran.lblMot(étiquette).Cliquer();
    }
}

TEST_F(MotsEnDésordreEssai, LEcranDitCeQuiEstChoisi)
{
    auto& écran = OuvrirLaPremière();
    EXPECT_EQ(écran.lblPlace.Caption, u"Place choisie : le début de la phrase");
    Placer(écran, {u"Le", u"chat"});
    EXPECT_EQ(écran.lblPlace.Caption, u"Place choisie : après « chat »");
    écran.txtPhrase.Cliquer(0);
    EXPECT_EQ(écran.lblPlace.Caption, u"Place choisie : devant « Le »");
    écran.txtPhrase.Cliquer(3);
    EXPECT_EQ(écran.lblPlace.Caption, u"Place choisie : entre « Le » et « chat »");
    écran.txtPhrase.Cliquer(5);
    EXPECT_EQ(écran.lblPlace.Caption, u"Mot choisi : « chat »");
}

TEST_F(MotsEnDésordreEssai, LesFlèchesVontDePlaceEnMotEtRienNeSEcrit)
{
    auto& écran = OuvrirLaPremière();
    Placer(écran, {u"Le", u"chat"});
    const std::vector<Etendue> versLaGauche{{3, 6}, {3, 1}, {0, 4}, {0, 1}, {0, 1}};
    for (const auto& attendue : versLaGauche) {
        Taper(écran, Touche::Gauche);
        EXPECT_EQ(Sélection(écran), attendue);
    }
    const std::vector<Etendue> versLaDroite{{0, 4}, {3, 1}, {3, 6}, {8, 1}, {8, 1}};
    for (const auto& attendue : versLaDroite) {
        Taper(écran, Touche::Droite);
        EXPECT_EQ(Sélection(écran), attendue);
    }
    EXPECT_FALSE(écran.txtPhrase.Taper({.Caractère = u'a', .Code = 'A'}));
    EXPECT_FALSE(écran.txtPhrase.Taper({.Caractère = u' ', .Code = ' '}));
    EXPECT_FALSE(écran.txtPhrase.Taper({.Code = Touche::Entrée}));
    EXPECT_FALSE(écran.txtPhrase.Saisir(u"abc"));
    EXPECT_EQ(écran.txtPhrase.Text, u" Le chat ");
    EXPECT_EQ(Sélection(écran), Etendue(8, 1));
}

// ---- Its check ---------------------------------------------------------------------------------------------------

TEST_F(MotsEnDésordreEssai, LaPhraseJusteDonneAutantDePointsQuIlResteDEssais)
{
    auto& écran = OuvrirLaPremière();
    Reconstituer(écran);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"3");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
    EXPECT_EQ(écran.lblCoups.Caption, u"4");
    EXPECT_TRUE(Etiquettes(écran).empty());
    EXPECT_TRUE(écran.cmdSuivant.Visible);
    EXPECT_EQ(écran.cmdSuivant.Caption, u"&Suivant");
    EXPECT_FALSE(écran.frameAide.Visible);
    EXPECT_EQ(écran.Focus(), &écran.cmdSuivant);
}

TEST_F(MotsEnDésordreEssai, UnePhraseJusteNeCompteQuUneFois)
{
    auto& écran = OuvrirLaPremière();
    Reconstituer(écran);
    écran.cmdTerminé.Cliquer();
    écran.lblMot(0).Cliquer();
    écran.txtPhrase.Cliquer(0);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"3");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
    EXPECT_EQ(écran.lblCoups.Caption, u"4");
}

TEST_F(MotsEnDésordreEssai, ChaqueEchecMontreUnMotDePlusEtCoûteUnPoint)
{
    auto& écran = OuvrirLaPremière();
    Placer(écran, {u"chat", u"Le"});
    écran.cmdTerminé.Cliquer();
    EXPECT_TRUE(écran.frameAide.Visible);
    EXPECT_EQ(écran.frameAide.Caption, u"Voici le début de la phrase");
    EXPECT_EQ(écran.txtAide.Text, u"Le");
    EXPECT_EQ(écran.lblEssais.Caption, u"2");
    EXPECT_EQ(écran.txtPhrase.Text, u" ");
    EXPECT_EQ(Sélection(écran), Etendue(0, 1));
    EXPECT_EQ(Etiquettes(écran), (Mots{u"bien.", u"chat", u"dort", u"Le", u"noir", u"petit"}));
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");

    écran.cmdTerminé.Cliquer();
    EXPECT_EQ(écran.txtAide.Text, u"Le petit");
    Reconstituer(écran);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
    EXPECT_FALSE(écran.frameAide.Visible);
    EXPECT_EQ(écran.txtAide.Text, u"");
}

TEST_F(MotsEnDésordreEssai, LaDernièreVérificationVautZéroPoint)
{
    auto& écran = OuvrirLaPremière();
    for (int i = 0; i < 3; ++i)
        écran.cmdTerminé.Cliquer();
    EXPECT_EQ(écran.lblEssais.Caption, u"0");
    EXPECT_EQ(écran.txtAide.Text, u"Le petit chat");
    Reconstituer(écran);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
    EXPECT_EQ(écran.lblCoups.Caption, u"4");
}

TEST_F(MotsEnDésordreEssai, UnEchecSansEssaiMontreLaPhrase)
{
    auto& écran = OuvrirLaPremière();
    for (int i = 0; i < 4; ++i)
        écran.cmdTerminé.Cliquer();
    EXPECT_EQ(écran.frameAide.Caption, u"Voici la phrase");
    EXPECT_TRUE(écran.frameAide.Visible);
    EXPECT_EQ(écran.txtAide.Text, u"Le petit chat noir dort bien.");
    EXPECT_EQ(écran.txtPhrase.Text, u"");
    EXPECT_TRUE(Etiquettes(écran).empty());
    EXPECT_EQ(écran.lblMot(0).Caption, u"");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
    EXPECT_EQ(écran.lblCoups.Caption, u"4");
    EXPECT_TRUE(écran.cmdSuivant.Visible);

    écran.cmdTerminé.Cliquer();
    écran.txtPhrase.Cliquer(0);
    Taper(écran, Touche::Gauche);
    Taper(écran, Touche::Droite);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"3");
}

TEST_F(MotsEnDésordreEssai, LaSuivanteRecommenceAvecUneAutrePhrase)
{
    auto& écran = OuvrirLaPremière();
    for (int i = 0; i < 4; ++i)
        écran.cmdTerminé.Cliquer();
    Suivante(écran, 2);
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_FALSE(écran.frameAide.Visible);
    EXPECT_EQ(écran.txtAide.Text, u"");
    EXPECT_EQ(écran.lblEssais.Caption, u"4");
    EXPECT_EQ(écran.lblEssaisMax.Caption, u"4");
    EXPECT_EQ(écran.txtPhrase.Text, u" ");
    EXPECT_EQ(Etiquettes(écran).size(), 8U);
    Reconstituer(écran);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"4");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"7");
}

// ---- The end -----------------------------------------------------------------------------------------------------

TEST_F(MotsEnDésordreEssai, AprèsCinqPhrasesLaNoteEstEnregistrée)
{
    auto& écran = OuvrirLaPremière();
    for (int numéro = 2; numéro <= 5; ++numéro) {
        Reconstituer(écran);
        EXPECT_EQ(écran.cmdSuivant.Caption, u"&Suivant");
        Suivante(écran, numéro);
    }
    for (int i = 0; i < 4; ++i)
        écran.cmdTerminé.Cliquer(); // the last one, seven words: found at the fourth check, worth nothing
    EXPECT_EQ(écran.lblCoups.Caption, u"0");
    EXPECT_EQ(écran.cmdSuivant.Caption, u"&Quitter");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"15");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"18");
    écran.cmdSuivant.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(MotsEnDésordre), u"8,333333");
}

TEST_F(MotsEnDésordreEssai, TroisPhrasesJustesPuisLaSortieValentDix)
{
    texte = u"Début. Le petit chat noir dort bien. Une souris grise trotte sous la table. "
            u"Demain nous irons tous au bord du lac. Fin.";
    auto& écran = OuvrirLaPremière();
    Reconstituer(écran);
    Suivante(écran, 2);
    Reconstituer(écran);
    Suivante(écran, 3);
    Reconstituer(écran);
    banc.plateforme.toujours = [] { return 0.0; };
    écran.cmdSuivant.Cliquer();
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.lblCorrigé.Caption, u"");
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(MotsEnDésordre), u"10");
}

TEST_F(MotsEnDésordreEssai, LaCroixNEnregistreRien)
{
    auto& écran = OuvrirLaPremière();
    Reconstituer(écran);
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(MotsEnDésordre), u"");
}

TEST_F(MotsEnDésordreEssai, LeTexteDeLElèveResteTelQuel)
{
    auto& écran = OuvrirLaPremière();
    Reconstituer(écran);
    EXPECT_EQ(banc.Choix().rtfTexte.Text(), texte);
}

} // namespace tirelune
