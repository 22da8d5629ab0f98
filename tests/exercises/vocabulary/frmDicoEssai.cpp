#include "exercises/vocabulary/frmDico.h"

#include "tests/support/Associations.h"

#include <set>

namespace tirelune {

namespace {

constexpr int IndexDico = 5;
constexpr auto TropLimités = u"Il doit y avoir au moins 1 mot dans le dictionnaire attaché au texte\n"
                             u"et au moins 10 mots dans le dictionnaire principal.";
constexpr auto PasDeDictionnaire = u"Il n'y a pas de dictionnaire dans ce répertoire !";

// Words "a0"... with their definitions "b0"... and their examples "c0"...
FichesEssai DixMots()
{
    return FichesDeMots(10, 3);
}

frmDico& OuvrirDico(Banc& banc, const FichesEssai& texte, const FichesEssai& général)
{
    EcrireFiches(banc, "DicPrinc.dat", général);
    EcrireFiches(banc, "Le chat.dic", texte);
    return OuvrirExercice<frmDico>(banc, IndexDico);
}

void AnnoncerTropLimités(Banc& banc)
{
    banc.plateforme.boîtes.push_back({TropLimités, Réponse::Ok, u"Impossible de lancer l'exercice", {}});
}

TextBox& Définition(frmDico& écran, const Texte& texte)
{
    for (auto& une : écran.txtDéf) {
        if (une.Visible && une.Text == texte)
            return une;
    }
    ADD_FAILURE() << "pas de définition " << EnUtf8(texte);
    return écran.txtDéf(0);
}

Label& MotMontré(frmDico& écran, const Texte& texte)
{
    for (auto& un : écran.lblMot) {
        if (un.Visible && un.Caption == texte)
            return un;
    }
    ADD_FAILURE() << "pas de mot " << EnUtf8(texte);
    return écran.lblMot(0);
}

// Answers a round rightly, and goes on.
void JouerJuste(frmDico& écran, const FichesEssai& texte, int rang)
{
    const auto& fiche = texte.at(static_cast<std::size_t>(rang) % texte.size());
    if (rang < std::ssize(texte))
        Définition(écran, fiche[1]).Cliquer(0);
    else
        MotMontré(écran, fiche[0]).Cliquer();
    écran.cmdSuivant.Cliquer();
}

} // namespace

TEST(Dico, PremierTour)
{
    Banc banc;
    TirerVarié(banc);
    banc.Hasards({0.75});
    auto& écran = OuvrirDico(banc, {{u"chat", u"animal", u"Le chat dort."}}, DixMots());
    EXPECT_EQ(écran.lblConsigne.Caption, u"Quelle est la définition correspondant à ce mot ?");
    EXPECT_TRUE(écran.lblConsigne.Visible);
    EXPECT_EQ(écran.lblConsigne.ForeColor, Bleu);
    EXPECT_EQ(écran.Label1.Caption,
              u"En pointant la souris sur une étiquette jaune, tu pourras lire un exemple utilisant ce mot.");
    EXPECT_EQ(écran.lblMot(4).Caption, u"chat");
    EXPECT_EQ(écran.lblMot(4).BackColor, Jaune);
    EXPECT_EQ(écran.lblMot(4).ToolTipText, u" Le chat dort. ");
    EXPECT_EQ(écran.txtDéf(7).Text, u"animal");
    std::set<Texte> définitions;
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(écran.lblMot(i).Visible, i == 4);
        EXPECT_TRUE(écran.txtDéf(i).Visible);
        EXPECT_TRUE(écran.txtDéf(i).Locked);
        EXPECT_EQ(écran.txtDéf(i).BackColor, Blanc);
        définitions.insert(écran.txtDéf(i).Text);
    }
    EXPECT_EQ(définitions.size(), 10U);
    EXPECT_EQ(écran.cmdSuivant.Caption, u"Sui&vant");
    EXPECT_TRUE(écran.cmdSuivant.Visible);
    EXPECT_FALSE(écran.cmdSuivant.Enabled);
    VérifierPointsDeDépart(écran.lblPoints);
}

TEST(Dico, UnExerciceLancéPorteDeuxFoisLeNomDansSonTitre)
{
    Banc banc;
    TirerVarié(banc);
    EXPECT_EQ(OuvrirDico(banc, FichesDeMots(1, 3), DixMots()).Caption, u"Dictionnaire / Léa / Léa");
}

TEST(Dico, SansDictionnaireGénéralDeuxMessagesPuisLaSortie)
{
    Banc banc;
    EcrireFiches(banc, "Le chat.dic", DixMots());
    banc.plateforme.boîtes.push_back({PasDeDictionnaire, Réponse::Ok, u"Avertissement", {}});
    AnnoncerTropLimités(banc);
    auto& écran = OuvrirExercice<frmDico>(banc, IndexDico);
    EXPECT_EQ(écran.Caption, u"Dictionnaire / Léa");
    EXPECT_EQ(écran.fgDic.Rows(), 10) << "lu tout de même";
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Dictionnaires trop limités ou absents");
    EXPECT_EQ(écran.notice.Cadre.Nom, "frameSortie");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Quitter");
    EXPECT_EQ(écran.notice.Bouton.Nom, "cmdQuitter");
    EXPECT_FALSE(écran.lblConsigne.Visible);
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexDico), u"");
}

TEST(Dico, UnDictionnaireAbîméSeLitCommeAbsent)
{
    Banc banc;
    banc.Ecrire("DicPrinc.dat", "\"chat\"\r\n\"*\"\r\n\"a\"\r\n");
    EcrireFiches(banc, "Le chat.dic", DixMots());
    banc.AnnoncerBoîte(PasDeDictionnaire);
    AnnoncerTropLimités(banc);
    auto& écran = OuvrirExercice<frmDico>(banc, IndexDico);
    EXPECT_EQ(écran.fgDicoPrinc.Rows(), 0);
    EXPECT_TRUE(écran.notice.Cadre.Visible);
}

TEST(Dico, SansDictionnaireDuTexteOuAvecNeufMotsUnSeulMessage)
{
    {
        Banc banc;
        EcrireFiches(banc, "DicPrinc.dat", DixMots());
        AnnoncerTropLimités(banc);
        EXPECT_TRUE(OuvrirExercice<frmDico>(banc, IndexDico).notice.Cadre.Visible);
    }
    {
        Banc banc;
        AnnoncerTropLimités(banc);
        EXPECT_TRUE(OuvrirDico(banc, {}, DixMots()).notice.Cadre.Visible);
    }
    for (const int mots : {0, 9}) {
        Banc banc;
        AnnoncerTropLimités(banc);
        EXPECT_TRUE(OuvrirDico(banc, DixMots(), FichesDeMots(mots, 3)).notice.Cadre.Visible);
    }
}

TEST(Dico, FerméPendantUnMessage)
{
    for (const int message : {0, 1}) {
        Banc banc;
        auto écran = std::make_unique<frmDico>(banc.Choix());
        auto& référence = *écran;
        banc.ChargerTexte(u"Un texte.");
        banc.AnnoncerBoîte(PasDeDictionnaire);
        if (message == 1)
            AnnoncerTropLimités(banc);
        banc.plateforme.boîtes.back().Pendant = [&] { référence.FermerParCroix(); };
        banc.Montrer(std::move(écran));
        EXPECT_FALSE(référence.notice.Cadre.Visible);
    }
}

TEST(Dico, BonneDéfinition)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirDico(banc, {{u"chat", u"animal", u""}}, DixMots());
    auto& juste = Définition(écran, u"animal");
    juste.Cliquer(0);
    EXPECT_EQ(juste.BackColor, Vert);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_TRUE(écran.cmdSuivant.Enabled);
    for (auto& une : écran.txtDéf)
        une.Cliquer(0); // answered already
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
}

TEST(Dico, MauvaiseDéfinitionMontreLaBonneEnJaune)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirDico(banc, {{u"chat", u"animal", u""}}, DixMots());
    auto& fausse = écran.txtDéf(écran.txtDéf(0).Text == u"animal" ? 1 : 0);
    fausse.Cliquer(0);
    EXPECT_EQ(fausse.BackColor, Rouge);
    EXPECT_EQ(Définition(écran, u"animal").BackColor, Jaune);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_TRUE(écran.cmdSuivant.Enabled);
}

TEST(Dico, UnMotFaitDeuxTours)
{
    Banc banc;
    TirerVarié(banc);
    const FichesEssai texte{{u"chat", u"animal", u"Le chat dort."}};
    auto& écran = OuvrirDico(banc, texte, DixMots());
    EXPECT_TRUE(banc.état.MotDicoFini);
    EXPECT_EQ(banc.état.IndexMotDico, 0);
    JouerJuste(écran, texte, 0);
    EXPECT_EQ(écran.cmdSuivant.Caption, u"&Quitter");
    EXPECT_FALSE(écran.cmdSuivant.Enabled);
    EXPECT_EQ(écran.lblConsigne.Caption, u"Quel est le mot correspondant à cette définition ?");
    EXPECT_EQ(écran.txtDéf(4).Text, u"animal");
    EXPECT_EQ(écran.txtDéf(4).BackColor, Jaune);
    std::set<Texte> mots;
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(écran.txtDéf(i).Visible, i == 4);
        EXPECT_TRUE(écran.lblMot(i).Visible);
        mots.insert(écran.lblMot(i).Caption);
    }
    EXPECT_EQ(mots.size(), 10U);
    EXPECT_EQ(MotMontré(écran, u"chat").ToolTipText, u" Le chat dort. ");
    for (auto& un : écran.lblMot) {
        if (un.Caption().front() != u'a')
            continue;
        EXPECT_EQ(un.ToolTipText(), u" c" + un.Caption().substr(1) + u" ") << "chaque mot a son exemple";
    }
    JouerJuste(écran, texte, 1);
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexDico), u"10");
}

TEST(Dico, LesMotsViennentDansLOrdreDuFichier)
{
    Banc banc;
    TirerVarié(banc);
    const FichesEssai texte{{u"zèbre", u"rayé"}, {u"âne", u"gris"}, {u"merle", u"noir"}};
    auto& écran = OuvrirDico(banc, texte, DixMots());
    for (int rang = 0; rang < 6; ++rang) {
        const auto& fiche = texte[static_cast<std::size_t>(rang % 3)];
        EXPECT_EQ(rang < 3 ? écran.lblMot(4).Caption() : écran.txtDéf(4).Text(), fiche[rang < 3 ? 0 : 1]);
        EXPECT_EQ(écran.cmdSuivant.Caption, rang == 5 ? u"&Quitter" : u"Sui&vant");
        JouerJuste(écran, texte, rang);
    }
    EXPECT_EQ(banc.Note(IndexDico), u"10");
}

TEST(Dico, UneErreurSurQuatreDonneSeptEtDemi)
{
    Banc banc;
    TirerVarié(banc);
    const FichesEssai texte{{u"zèbre", u"rayé"}, {u"âne", u"gris"}};
    auto& écran = OuvrirDico(banc, texte, DixMots());
    écran.txtDéf(écran.txtDéf(0).Text == u"rayé" ? 1 : 0).Cliquer(0);
    écran.cmdSuivant.Cliquer();
    for (const int rang : {1, 2, 3})
        JouerJuste(écran, texte, rang);
    EXPECT_EQ(banc.Note(IndexDico), u"7,5");
}

TEST(Dico, MauvaisMotMontreLeBonEnJaune)
{
    Banc banc;
    TirerVarié(banc);
    const FichesEssai texte{{u"chat", u"animal"}};
    auto& écran = OuvrirDico(banc, texte, DixMots());
    JouerJuste(écran, texte, 0);
    auto& faux = écran.lblMot(écran.lblMot(0).Caption == u"chat" ? 1 : 0);
    faux.Cliquer();
    EXPECT_EQ(faux.BackColor, Rouge);
    EXPECT_EQ(MotMontré(écran, u"chat").BackColor, Jaune);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
    MotMontré(écran, u"chat").Cliquer();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
}

TEST(Dico, CeQuiEstDemandéNeRépondPas)
{
    Banc banc;
    TirerVarié(banc);
    const FichesEssai texte{{u"chat", u"animal"}};
    auto& écran = OuvrirDico(banc, texte, DixMots());
    écran.lblMot(4).Cliquer();
    EXPECT_EQ(écran.lblMot(4).BackColor, Jaune);
    JouerJuste(écran, texte, 0);
    écran.txtDéf(4).Cliquer(0);
    EXPECT_EQ(écran.txtDéf(4).BackColor, Jaune);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_FALSE(écran.cmdSuivant.Enabled);
}

// The right answer, shown in yellow, may stand where the other rounds have their question.
TEST(Dico, CeQuiEstDemandéNeRépondPasNonPlusAprèsUneErreur)
{
    Banc banc;
    TirerVarié(banc);
    banc.Hasards({0.45});
    auto& écran = OuvrirDico(banc, {{u"chat", u"animal"}}, DixMots());
    écran.txtDéf(0).Cliquer(0);
    ASSERT_EQ(écran.txtDéf(4).BackColor, Jaune);
    écran.lblMot(4).Cliquer();
    EXPECT_EQ(écran.lblMot(4).BackColor, Jaune);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");

    banc.Hasards({0.45});
    écran.cmdSuivant.Cliquer();
    écran.lblMot(0).Cliquer();
    ASSERT_EQ(écran.lblMot(4).BackColor, Jaune);
    écran.txtDéf(4).Cliquer(0);
    EXPECT_EQ(écran.txtDéf(4).BackColor, Jaune);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
}

TEST(Dico, UnBonMotEstVert)
{
    Banc banc;
    TirerVarié(banc);
    const FichesEssai texte{{u"chat", u"animal"}};
    auto& écran = OuvrirDico(banc, texte, DixMots());
    JouerJuste(écran, texte, 0);
    MotMontré(écran, u"chat").Cliquer();
    EXPECT_EQ(MotMontré(écran, u"chat").BackColor, Vert);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
}

TEST(Dico, UneNouvellePartieReprendAuPremierMot)
{
    Banc banc;
    TirerVarié(banc);
    const FichesEssai texte{{u"zèbre", u"rayé"}, {u"âne", u"gris"}};
    banc.état.MotDicoFini = true; // of a game before
    banc.état.IndexMotDico = 1;
    auto& écran = OuvrirDico(banc, texte, DixMots());
    EXPECT_EQ(écran.lblMot(4).Caption, u"zèbre");
    EXPECT_FALSE(banc.état.MotDicoFini);
    JouerJuste(écran, texte, 0);
    EXPECT_EQ(écran.lblMot(4).Caption, u"âne");
    EXPECT_EQ(écran.lblConsigne.Caption, u"Quelle est la définition correspondant à ce mot ?");
}

TEST(Dico, UnMotSansDéfinitionNAPasDeBonneRéponse)
{
    Banc banc;
    TirerVarié(banc);
    auto& écran = OuvrirDico(banc, {{u"chat", u"", u""}}, DixMots());
    for (int i = 0; i < 10; ++i)
        EXPECT_NE(écran.txtDéf(i).Text, u"");
    écran.txtDéf(3).Cliquer(0);
    EXPECT_EQ(écran.txtDéf(3).BackColor, Rouge);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(écran.txtDéf(i).BackColor, i == 3 ? Rouge : Blanc);
    EXPECT_TRUE(écran.cmdSuivant.Enabled);
}

TEST(Dico, DeuxMotsDeMêmeDéfinitionLePremierEstJuste)
{
    const FichesEssai texte{{u"auto", u"véhicule"}, {u"voiture", u"véhicule"}};
    for (const bool montré : {true, false}) {
        auto général = DixMots();
        if (montré)
            général[0][0] = général[1][0] = u"auto"; // nine different words: all of them come
        Banc banc;
        TirerVarié(banc);
        auto& écran = OuvrirDico(banc, texte, général);
        for (const int rang : {0, 1, 2})
            JouerJuste(écran, texte, rang);
        MotMontré(écran, u"voiture").Cliquer();
        for (const auto& un : écran.lblMot) {
            const auto couleur = un.Caption == u"auto" ? Jaune : Blanc;
            EXPECT_EQ(un.BackColor, un.Caption == u"voiture" ? Rouge : couleur);
        }
        EXPECT_EQ(écran.lblPoints(0).Caption, u"3");
        if (montré) {
            EXPECT_EQ(MotMontré(écran, u"auto").BackColor, Jaune);
        }
    }
}

TEST(Dico, LaMêmeDéfinitionNeVientPasDeuxFois)
{
    Banc banc;
    TirerVarié(banc);
    auto général = FichesDeMots(11, 3);
    général[0] = {u"chat", u"animal", u""};
    général[1] = {u"chat", u"petit félin", u""};
    auto& écran = OuvrirDico(banc, {{u"chat", u"animal", u""}}, général);
    int fois = 0;
    for (const auto& une : écran.txtDéf)
        fois += une.Text == u"animal" ? 1 : 0;
    EXPECT_EQ(fois, 1);
    for (auto& une : écran.txtDéf) {
        if (une.Text != u"petit félin")
            continue;
        une.Cliquer(0);
        EXPECT_EQ(une.BackColor, Rouge) << "une autre définition du même mot est fausse";
    }
}

TEST(Dico, MoinsDeDixDéfinitionsOuMotsDifférentsLaissentDesPlacesVides)
{
    Banc banc;
    TirerVarié(banc);
    FichesEssai général;
    for (int i = 0; i < 12; ++i)
        général.push_back({u"mot" + EnTexte(i % 4), u"définition" + EnTexte(i % 3), u""});
    const FichesEssai texte{{u"mot0", u"définition0", u""}};
    auto& écran = OuvrirDico(banc, texte, général);
    int montrées = 0;
    for (const auto& une : écran.txtDéf)
        montrées += une.Visible ? 1 : 0;
    EXPECT_EQ(montrées, 3);
    Définition(écran, u"définition0").Cliquer(0);
    banc.Hasards({0.0});
    écran.cmdSuivant.Cliquer();
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(écran.lblMot(i).Visible, i < 4) << "celui qui était demandé ne reste pas";
    JouerJuste(écran, texte, 1);
    EXPECT_EQ(banc.Note(IndexDico), u"10");
}

TEST(Dico, SansAucuneDéfinitionLeTourSeJoueEncore)
{
    Banc banc;
    TirerVarié(banc);
    FichesEssai général;
    for (int i = 0; i < 10; ++i)
        général.push_back({u"mot" + EnTexte(i), u"", u""});
    auto& écran = OuvrirDico(banc, {{u"mot3", u"", u""}}, général);
    for (auto& une : écran.txtDéf) {
        if (une.Visible)
            une.Cliquer(0);
    }
    EXPECT_TRUE(écran.cmdSuivant.Enabled);
}

TEST(Dico, TroisCentsMotsSeJouentTous)
{
    Banc banc;
    TirerVarié(banc);
    const auto texte = FichesDeMots(300, 3);
    auto& écran = OuvrirDico(banc, texte, texte);
    for (int rang = 0; rang < 600; ++rang) {
        ASSERT_TRUE(écran.EstChargé());
        JouerJuste(écran, texte, rang);
    }
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexDico), u"10");
}

TEST(Dico, ClavierSuitLeCoursDuJeu)
{
    Banc banc;
    TirerVarié(banc);
    const FichesEssai texte{{u"zèbre", u"rayé"}, {u"âne", u"gris"}};
    auto& écran = OuvrirDico(banc, texte, DixMots());
    Définition(écran, u"rayé").Cliquer(0);
    EXPECT_EQ(écran.Focus(), &écran.cmdSuivant);
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(écran.Focus(), &écran.txtDéf(0));
    JouerJuste(écran, texte, 1);
    EXPECT_EQ(écran.Focus(), &écran.lblMot(0));
}

TEST(Dico, FermerNEnregistreRien)
{
    Banc banc;
    TirerVarié(banc);
    const FichesEssai texte{{u"chat", u"animal"}};
    auto& écran = OuvrirDico(banc, texte, DixMots());
    JouerJuste(écran, texte, 0);
    MotMontré(écran, u"chat").Cliquer();
    écran.FermerParCroix();
    EXPECT_EQ(banc.Note(IndexDico), u"");
}

} // namespace tirelune
