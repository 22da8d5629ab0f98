#include "exercises/order/frmMotsInversés.h"

#include "tests/support/Banc.h"
#include "tests/support/Notices.h"

namespace tirelune {

namespace {

constexpr int MotsInversés = 18;
constexpr VueTexte Première = u"Le petit chat noir dort bien.";

// A draw that falls on the full stop before the sentence of that number.
double TirageDeLaPhrase(VueTexte texte, int numéro)
{
    std::size_t point = 0;
    for (int i = 0; i < numéro; ++i)
        point = texte.find(u'.', i == 0 ? 0 : point + 1);
    return (static_cast<double>(point) + 0.5) / static_cast<double>(texte.size());
}

// A draw of that word among as many.
double TirageDuMot(int mot, int nombre)
{
    return (mot + 0.5) / nombre;
}

class MotsInversésEssai : public ::testing::Test {
protected:
    Banc banc;
    Texte texte = Texte{u"Début. "}.append(Première).append(
        u" Une souris grise trotte sous la vieille table. Demain nous irons tous au bord du lac. Fin.");

    frmMotsInversés& OuvrirAvec(std::initializer_list<double> tirages)
    {
        banc.ChargerTexte(texte);
        banc.Index(MotsInversés);
        banc.Hasards(tirages);
        return banc.Ouvrir<frmMotsInversés>();
    }
    // "Le noir chat petit dort bien."
    frmMotsInversés& OuvrirLaPremière()
    {
        return OuvrirAvec({TirageDeLaPhrase(texte, 1), TirageDuMot(1, 6), TirageDuMot(3, 6)});
    }
    frmMotsInversés& OuvrirSur(VueTexte phrase, std::initializer_list<double> mots)
    {
        texte = Texte{u"Début. "}.append(phrase);
        banc.Hasards({TirageDeLaPhrase(texte, 1)});
        return OuvrirAvec(mots);
    }
    static void Choisir(frmMotsInversés& écran, VueTexte mot)
    {
        const auto place = (u' ' + écran.rtfPhrase.Text() + u' ').find(Texte{u' '}.append(mot).append(u" "));
        ASSERT_NE(place, Texte::npos) << EnUtf8(mot);
        écran.rtfPhrase.Cliquer(place + 1);
    }
    static void Echanger(frmMotsInversés& écran, VueTexte un, VueTexte autre)
    {
        Choisir(écran, un);
        Choisir(écran, autre);
        écran.cmdTerminé.Cliquer();
    }
    static void Essayer(frmMotsInversés& écran, VueTexte un, VueTexte autre)
    {
        Echanger(écran, un, autre);
        écran.cmdOk.Cliquer();
    }
    // The right exchange, whatever was drawn.
    static void Réussir(frmMotsInversés& écran)
    {
        const auto& ordre = écran.cmbOrdre.Eléments();
        const auto& mots = écran.cmbMots.Eléments();
        std::size_t place = 0;
        for (std::size_t i = 0; i < mots.size(); ++i) {
            if (mots[i] != ordre[i])
                écran.rtfPhrase.Cliquer(place);
            place += mots[i].size() + 1;
        }
        écran.cmdTerminé.Cliquer();
        écran.cmdOk.Cliquer();
    }
    static std::vector<Texte> Colorés(const frmMotsInversés& écran, Couleur teinte)
    {
        std::vector<Texte> mots;
        const auto& phrase = écran.rtfPhrase.TextRTF();
        phrase.PourChaqueTranche(0, phrase.Longueur(), [&](const Tranche& tranche) {
            if (tranche.Style->Teinte == teinte)
                mots.push_back(phrase.Caractères().substr(tranche.Début, tranche.Fin - tranche.Début));
        });
        return mots;
    }
    static std::vector<Texte> Choisis(const frmMotsInversés& écran) { return Colorés(écran, Rouge); }
};

using SuiteDeMots = std::vector<Texte>;

} // namespace

// ---- The sentence ------------------------------------------------------------------------------------------------

TEST_F(MotsInversésEssai, AuDébutDeuxMotsOntChangéDePlace)
{
    auto& écran = OuvrirLaPremière();
    EXPECT_EQ(écran.Caption, u"Mots inversés / Léa");
    EXPECT_EQ(écran.rtfPhrase.Text(), u"Le noir chat petit dort bien.");
    EXPECT_EQ(Colorés(écran, Bleu), (SuiteDeMots{u"Le noir chat petit dort bien."}));
    EXPECT_EQ(écran.rtfPhrase.SelStart(), 0U);
    EXPECT_EQ(écran.cmbOrdre.Eléments(), (SuiteDeMots{u"Le", u"petit", u"chat", u"noir", u"dort", u"bien."}));
    EXPECT_EQ(écran.cmbMots.Eléments(), (SuiteDeMots{u"Le", u"noir", u"chat", u"petit", u"dort", u"bien."}));
    EXPECT_EQ(écran.lblCorrigé.Caption, Première);
    EXPECT_EQ(écran.lblBanque.Caption, Texte{Première} + u' ');
    EXPECT_EQ(écran.lblNombreMots.Caption, u"0");
    EXPECT_EQ(écran.lblCoups.Caption, u"0");
    EXPECT_EQ(écran.lblEssais.Caption, u"2");
    EXPECT_EQ(écran.lblEssaisMax.Caption, u"2");
    VérifierPointsDeDépart(écran.lblPoints);
    for (const auto* bouton : {&écran.cmdTerminé, &écran.cmdOk, &écran.cmdAnnuler, &écran.cmdSuivant})
        EXPECT_FALSE(bouton->Visible) << bouton->Nom;
    EXPECT_FALSE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.Focus(), &écran.rtfPhrase);
}

TEST_F(MotsInversésEssai, LesTextesSontCeuxDuDépart)
{
    auto& écran = OuvrirLaPremière();
    EXPECT_EQ(écran.lblConsigne.Caption, u"Clique sur les 2 mots inversés dans la phrase.");
    EXPECT_EQ(écran.cmdTerminé.Caption, u"&J'ai fini");
    EXPECT_EQ(écran.cmdOk.Caption, u"&Ok");
    EXPECT_EQ(écran.cmdOk.ToolTipText, u" Clique sur ce bouton si la phrase te semble correcte. ");
    EXPECT_EQ(écran.cmdAnnuler.Caption, u"&Annuler");
    EXPECT_EQ(écran.cmdAnnuler.ToolTipText, u" Clique sur ce bouton pour annuler. ");
    EXPECT_EQ(écran.cmdSuivant.Caption, u"&Suivant");
    EXPECT_EQ(écran.cmdSuivant.ToolTipText, écran.cmdOk.ToolTipText());
}

TEST_F(MotsInversésEssai, DeuxPlacesPareillesOuDeuxMotsEgauxSeTirentANouveau)
{
    auto& écran = OuvrirSur(u"le chat et le chien dort.",
                            {TirageDuMot(0, 6), TirageDuMot(0, 6), TirageDuMot(3, 6), TirageDuMot(5, 6)});
    EXPECT_EQ(écran.rtfPhrase.Text(), u"dort. chat et le chien le");
}

TEST_F(MotsInversésEssai, DesMotsQueSeulsLaCapitaleOuLAccentSéparentSEchangent)
{
    EXPECT_EQ(OuvrirSur(u"Le le le le le le", {TirageDuMot(0, 6), TirageDuMot(3, 6)}).rtfPhrase.Text(),
              u"le le le Le le le");
    EXPECT_EQ(OuvrirSur(u"ou où où où où où", {TirageDuMot(0, 6), TirageDuMot(1, 6)}).rtfPhrase.Text(),
              u"où ou où où où où");
}

TEST_F(MotsInversésEssai, UnePhraseDontTousLesMotsSontEgauxNEstPasJouée)
{
    texte = u"Début. Le petit chat noir dort bien. ah ah ah ah ah ah";
    auto& écran = OuvrirAvec({TirageDeLaPhrase(texte, 2), TirageDeLaPhrase(texte, 1), TirageDuMot(0, 6), 0.99});
    EXPECT_EQ(écran.lblCorrigé.Caption, Première);
}

TEST_F(MotsInversésEssai, UnTexteDUnSeulMotRépétéMèneALaSortie)
{
    texte = u"ah ah ah ah ah ah ah ah ah ah";
    int tirages = 0;
    banc.plateforme.toujours = [&] {
        ++tirages;
        return 0.0;
    };
    auto& écran = OuvrirAvec({});
    EXPECT_EQ(tirages, 99);
    EXPECT_TRUE(écran.notice.Cadre.Visible);
}

TEST_F(MotsInversésEssai, UneSeulePhraseFinitLExerciceAprèsElle)
{
    texte = Texte{u"Début. "}.append(Première);
    auto& écran = OuvrirLaPremière();
    Réussir(écran);
    banc.plateforme.toujours = [] { return 0.0; };
    écran.cmdSuivant.Cliquer();
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Phrases trop courtes ou trop longues");
    EXPECT_EQ(écran.notice.Phrase.Caption, u"L'exercice est terminé.");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Quitter");
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(MotsInversés), u"10");
}

TEST_F(MotsInversésEssai, SansPhraseQuiConvienneRienNEstEnregistré)
{
    texte = u"Trop court. Vraiment. Oui.";
    banc.plateforme.toujours = [] { return 0.0; };
    auto& écran = OuvrirAvec({});
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(MotsInversés), u"");
}

TEST_F(MotsInversésEssai, CinqMotsSontTropPeuEtVingtEtUnTrop)
{
    texte = u"Début. un deux trois quatre cinq. a b c d e f g h i j k l m n o p q r s t u. "
            u"a b c d e f g h i j k l m n o p q r s t.";
    auto& écran = OuvrirAvec({TirageDeLaPhrase(texte, 1), TirageDeLaPhrase(texte, 2), TirageDeLaPhrase(texte, 3),
                              TirageDuMot(0, 20), TirageDuMot(1, 20)});
    EXPECT_EQ(écran.cmbOrdre.ListCount(), 20);
}

// ---- The words chosen --------------------------------------------------------------------------------------------

TEST_F(MotsInversésEssai, UnMotCliquéDevientRougeOùQuOnLeTouche)
{
    auto& écran = OuvrirLaPremière();
    for (const std::size_t place : {3U, 5U, 6U, 7U}) { // "noir", and the blank behind it
        écran.rtfPhrase.Cliquer(place);
        EXPECT_EQ(Choisis(écran), (SuiteDeMots{u"noir"})) << place;
        EXPECT_EQ(écran.lblNombreMots.Caption, u"1");
        EXPECT_EQ(écran.rtfPhrase.SelLength(), 0U);
        écran.rtfPhrase.Cliquer(place);
        EXPECT_EQ(Choisis(écran), SuiteDeMots{});
    }
    écran.rtfPhrase.Cliquer(0);
    EXPECT_EQ(Choisis(écran), (SuiteDeMots{u"Le"}));
    écran.rtfPhrase.Cliquer(écran.rtfPhrase.Longueur());
    EXPECT_EQ(Choisis(écran), (SuiteDeMots{u"Le", u"bien."}));
}

TEST_F(MotsInversésEssai, UnMotChoisiDeuxFoisNeLEstPlusEtLeBoutonSEnVa)
{
    auto& écran = OuvrirLaPremière();
    Choisir(écran, u"noir");
    EXPECT_FALSE(écran.cmdTerminé.Visible);
    Choisir(écran, u"chat");
    EXPECT_TRUE(écran.cmdTerminé.Visible);
    Choisir(écran, u"chat");
    EXPECT_FALSE(écran.cmdTerminé.Visible);
    EXPECT_EQ(Choisis(écran), (SuiteDeMots{u"noir"}));
    EXPECT_EQ(écran.lblNombreMots.Caption, u"1");
    EXPECT_EQ(Colorés(écran, Bleu), (SuiteDeMots{u"Le ", u" chat petit dort bien."}));
}

TEST_F(MotsInversésEssai, UnTroisièmeMotNeSeChoisitPas)
{
    auto& écran = OuvrirLaPremière();
    for (const auto mot : {u"Le", u"noir", u"chat"})
        Choisir(écran, mot);
    EXPECT_EQ(Choisis(écran), (SuiteDeMots{u"Le", u"noir"}));
    EXPECT_EQ(écran.lblNombreMots.Caption, u"2");
    EXPECT_TRUE(écran.cmdTerminé.Visible);
}

TEST_F(MotsInversésEssai, LEchangeSeVoitEtAttendOk)
{
    auto& écran = OuvrirLaPremière();
    Echanger(écran, u"petit", u"noir");
    EXPECT_EQ(écran.rtfPhrase.Text(), Première);
    EXPECT_EQ(écran.lblMot(0).Caption, u"noir");
    EXPECT_EQ(écran.lblMot(1).Caption, u"petit");
    EXPECT_EQ(Choisis(écran), (SuiteDeMots{u"petit", u"noir"}));
    EXPECT_FALSE(écran.cmdTerminé.Visible);
    EXPECT_TRUE(écran.cmdOk.Visible);
    EXPECT_TRUE(écran.cmdAnnuler.Visible);
    EXPECT_EQ(écran.Focus(), &écran.cmdOk);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
}

TEST_F(MotsInversésEssai, LesMotsEchangésNeSeChoisissentPlusAvantOk)
{
    auto& écran = OuvrirLaPremière();
    Echanger(écran, u"noir", u"chat");
    Choisir(écran, u"noir");
    Choisir(écran, u"petit");
    EXPECT_EQ(Choisis(écran), (SuiteDeMots{u"chat", u"noir"}));
    EXPECT_EQ(écran.lblNombreMots.Caption, u"2");
    EXPECT_FALSE(écran.cmdTerminé.Visible);
}

TEST_F(MotsInversésEssai, LePremierEtLeDernierMotSEchangent)
{
    auto& écran = OuvrirLaPremière();
    Echanger(écran, u"Le", u"bien.");
    EXPECT_EQ(écran.rtfPhrase.Text(), u"bien. noir chat petit dort Le");
}

TEST_F(MotsInversésEssai, AnnulerRendLesMotsEnRougeSansCoûterDEssai)
{
    auto& écran = OuvrirLaPremière();
    Echanger(écran, u"noir", u"chat");
    écran.cmdAnnuler.Cliquer();
    EXPECT_EQ(écran.rtfPhrase.Text(), u"Le noir chat petit dort bien.");
    EXPECT_EQ(Choisis(écran), (SuiteDeMots{u"noir", u"chat"}));
    EXPECT_EQ(écran.lblNombreMots.Caption, u"0");
    EXPECT_EQ(écran.lblEssais.Caption, u"2");
    EXPECT_FALSE(écran.cmdOk.Visible);
    EXPECT_FALSE(écran.cmdAnnuler.Visible);
    EXPECT_FALSE(écran.cmdTerminé.Visible);
    EXPECT_EQ(écran.Focus(), &écran.rtfPhrase);
    Choisir(écran, u"noir");
    EXPECT_EQ(Choisis(écran), (SuiteDeMots{u"noir", u"chat"})) << "rouge, il n'est pas compté";
}

TEST_F(MotsInversésEssai, AprèsAnnulerLesDeuxPremiersMotsRougesSEchangent)
{
    auto& écran = OuvrirLaPremière();
    Echanger(écran, u"noir", u"petit");
    écran.cmdAnnuler.Cliquer();
    Echanger(écran, u"dort", u"bien.");
    EXPECT_EQ(écran.rtfPhrase.Text(), Première);
}

TEST_F(MotsInversésEssai, AnnulerTropSouventRendTousLesMotsBleus)
{
    auto& écran = OuvrirLaPremière();
    const std::vector<std::pair<VueTexte, VueTexte>> annulés{
        {u"Le", u"noir"}, {u"chat", u"petit"}, {u"dort", u"bien."}};
    for (const auto& [un, autre] : annulés) {
        Echanger(écran, un, autre);
        écran.cmdAnnuler.Cliquer();
    }
    EXPECT_EQ(Choisis(écran), SuiteDeMots{}) << "sans mot bleu, rien ne se choisirait plus";
    Essayer(écran, u"noir", u"petit");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
}

// ---- Its check ---------------------------------------------------------------------------------------------------

TEST_F(MotsInversésEssai, LaPhraseJusteDevientVerteEtVautDeuxPoints)
{
    auto& écran = OuvrirLaPremière();
    Essayer(écran, u"noir", u"petit");
    EXPECT_EQ(Colorés(écran, VertFoncé), (SuiteDeMots{Texte{Première}}));
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
    EXPECT_EQ(écran.lblCoups.Caption, u"1");
    EXPECT_EQ(écran.lblEssais.Caption, u"2");
    EXPECT_TRUE(écran.cmdSuivant.Visible);
    EXPECT_FALSE(écran.cmdOk.Visible);
    EXPECT_FALSE(écran.cmdAnnuler.Visible);
    EXPECT_EQ(écran.lblVerdict.Caption, u"C'est juste !");
    EXPECT_EQ(écran.Focus(), &écran.cmdSuivant);
    écran.rtfPhrase.Cliquer(0);
    EXPECT_FALSE(écran.cmdTerminé.Visible) << "la phrase est finie";
}

TEST_F(MotsInversésEssai, DeuxAutresMotsFontUnePhraseFausseQuiRevientCommeElleEtait)
{
    auto& écran = OuvrirLaPremière();
    Essayer(écran, u"chat", u"dort");
    EXPECT_EQ(écran.rtfPhrase.Text(), u"Le noir chat petit dort bien.");
    EXPECT_EQ(Colorés(écran, Bleu), (SuiteDeMots{u"Le noir chat petit dort bien."}));
    EXPECT_EQ(écran.lblNombreMots.Caption, u"0");
    EXPECT_EQ(écran.lblEssais.Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_EQ(écran.lblVerdict.Caption, u"Ce n'est pas cela. Cherche encore !");
    Essayer(écran, u"noir", u"petit");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
}

TEST_F(MotsInversésEssai, LeTroisièmeEssaiVautZéro)
{
    auto& écran = OuvrirLaPremière();
    Essayer(écran, u"chat", u"dort");
    Essayer(écran, u"chat", u"dort");
    EXPECT_EQ(écran.lblEssais.Caption, u"0");
    Essayer(écran, u"noir", u"petit");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
    EXPECT_EQ(écran.lblCoups.Caption, u"1");
    EXPECT_EQ(Colorés(écran, VertFoncé), (SuiteDeMots{Texte{Première}}));
}

TEST_F(MotsInversésEssai, TroisEchecsMontrentLaPhrase)
{
    auto& écran = OuvrirLaPremière();
    for (int i = 0; i < 3; ++i)
        Essayer(écran, u"chat", u"dort");
    EXPECT_EQ(écran.rtfPhrase.Text(), Première);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
    EXPECT_EQ(écran.lblCoups.Caption, u"1");
    EXPECT_EQ(écran.lblEssais.Caption, u"2");
    EXPECT_TRUE(écran.cmdSuivant.Visible);
    écran.rtfPhrase.Cliquer(0);
    EXPECT_FALSE(écran.cmdTerminé.Visible);
    EXPECT_EQ(Choisis(écran), SuiteDeMots{});
}

TEST_F(MotsInversésEssai, DeuxAutresMotsQuiDonnentLeMêmeTexteSontJustes)
{
    // "le chien et le chat dort.": either "le" may be left alone, and "chien" with "chat" is right.
    auto& écran = OuvrirSur(u"le chat et le chien le suit.", {TirageDuMot(0, 7), TirageDuMot(6, 7)});
    ASSERT_EQ(écran.rtfPhrase.Text(), u"suit. chat et le chien le le");
    écran.rtfPhrase.Cliquer(0);
    écran.rtfPhrase.Cliquer(écran.rtfPhrase.Text().rfind(u"le"));
    écran.cmdTerminé.Cliquer();
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
    auto& autre = OuvrirSur(u"le chat et le chien le suit.", {TirageDuMot(1, 7), TirageDuMot(3, 7)});
    ASSERT_EQ(autre.rtfPhrase.Text(), u"le le et chat chien le suit.");
    autre.rtfPhrase.Cliquer(0);
    autre.rtfPhrase.Cliquer(autre.rtfPhrase.Text().find(u"chat"));
    autre.cmdTerminé.Cliquer();
    autre.cmdOk.Cliquer();
    EXPECT_EQ(autre.lblPoints(0).Caption, u"0") << "« chat le et le chien… » : un autre texte";
}

TEST_F(MotsInversésEssai, UnAutreOrdrePossibleEstFaux)
{
    auto& écran = OuvrirSur(u"Hier le chat et le chien dormaient.", {TirageDuMot(0, 7), TirageDuMot(6, 7)});
    ASSERT_EQ(écran.rtfPhrase.Text(), u"dormaient. le chat et le chien Hier");
    Essayer(écran, u"chat", u"chien");
    EXPECT_EQ(écran.lblEssais.Caption, u"1");
}

TEST_F(MotsInversésEssai, LaSuivanteRecommenceEnBleu)
{
    auto& écran = OuvrirLaPremière();
    Essayer(écran, u"noir", u"petit");
    banc.Hasards({TirageDeLaPhrase(texte, 1), TirageDeLaPhrase(texte, 2), TirageDuMot(0, 8), TirageDuMot(7, 8)});
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(écran.rtfPhrase.Text(), u"table. souris grise trotte sous la vieille Une");
    EXPECT_EQ(Colorés(écran, Bleu).size(), 1U);
    EXPECT_EQ(écran.cmbOrdre.ListCount(), 8);
    EXPECT_EQ(écran.cmbMots.ListCount(), 8);
    EXPECT_EQ(écran.lblNombreMots.Caption, u"0");
    EXPECT_EQ(écran.lblMot(0).Caption, u"");
    EXPECT_EQ(écran.lblMot(1).Caption, u"");
    EXPECT_EQ(écran.lblVerdict.Caption, u"");
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    Réussir(écran);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"4");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"4");
}

// ---- The end -----------------------------------------------------------------------------------------------------

TEST_F(MotsInversésEssai, AprèsDixPhrasesLaNoteEstEnregistrée)
{
    texte = u"Début.";
    for (int i = 0; i < 10; ++i)
        texte += u" a" + EnTexte(i) + u" b c d e f" + EnTexte(i) + u".";
    auto& écran = OuvrirAvec({TirageDeLaPhrase(texte, 1), TirageDuMot(0, 6), TirageDuMot(5, 6)});
    for (int numéro = 2; numéro <= 10; ++numéro) {
        Réussir(écran);
        EXPECT_EQ(écran.cmdSuivant.Caption, u"&Suivant");
        banc.Hasards({TirageDeLaPhrase(texte, numéro), TirageDuMot(0, 6), TirageDuMot(5, 6)});
        écran.cmdSuivant.Cliquer();
    }
    Essayer(écran, u"b", u"c");
    Réussir(écran);
    EXPECT_EQ(écran.lblCoups.Caption, u"10");
    EXPECT_EQ(écran.cmdSuivant.Caption, u"&Quitter");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"19");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"20");
    écran.cmdSuivant.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(MotsInversés), u"9,5");
}

TEST_F(MotsInversésEssai, UneDixièmePhrasePerdueFinitAussi)
{
    auto& écran = OuvrirLaPremière();
    écran.lblCoups.Caption = u"9";
    for (int i = 0; i < 3; ++i)
        Essayer(écran, u"chat", u"dort");
    EXPECT_EQ(écran.cmdSuivant.Caption, u"&Quitter");
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(banc.Note(MotsInversés), u"0");
}

TEST_F(MotsInversésEssai, LaCroixNEnregistreRien)
{
    auto& écran = OuvrirLaPremière();
    Réussir(écran);
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(MotsInversés), u"");
    EXPECT_EQ(banc.Choix().rtfTexte.Text(), texte);
}

} // namespace tirelune
