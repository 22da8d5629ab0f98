#include "exercises/memory/frmTrouveMoi.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

namespace tirelune {

namespace {

constexpr int IndexTrouveMoi = 15;
constexpr VueTexte TexteÀFouiller =
    u"Le chat dort sur le mur. Le petit chien joue avec un arc-en-ciel d'été, et le chat rêve.";

// The draw that leads to the word at a place: to the blank before it.
double TirageVers(VueTexte texte, std::size_t place)
{
    return (static_cast<double>(place) - 1 + 0.5) / (0.9 * static_cast<double>(texte.size()));
}

double TirageVers(VueTexte mot, int rang = 0)
{
    auto place = TexteÀFouiller.find(mot);
    for (; rang > 0; --rang)
        place = TexteÀFouiller.find(mot, place + 1);
    return TirageVers(TexteÀFouiller, place);
}

frmTrouveMoi& OuvrirTrouveMoi(Banc& banc, std::initializer_list<double> tirages, VueTexte texte = TexteÀFouiller)
{
    banc.ChargerTexte(Texte{texte});
    banc.Index(IndexTrouveMoi);
    banc.Hasards(tirages);
    return banc.Ouvrir<frmTrouveMoi>();
}

std::size_t PlaceDuMot(const frmTrouveMoi& écran)
{
    return écran.rtfTexte.SelStart();
}

void RépondreAuMot(frmTrouveMoi& écran, bool juste)
{
    écran.rtfRéponse.Cliquer(juste ? PlaceDuMot(écran) + 1 : 0);
}

} // namespace

TEST(TrouveMoi, LégendePorteLeNomDeLElève)
{
    Banc banc;
    EXPECT_EQ(OuvrirTrouveMoi(banc, {0.0}).Caption, u"Trouve-moi / Léa");
}

TEST(TrouveMoi, TextesEtCouleursDuDépart)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit")});
    VérifierPointsDeDépart(écran.lblPoints);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(écran.lblPoints(i).ToolTipText, u" Seul le score de la meilleur série est retenu. ");
    EXPECT_EQ(écran.lblConsigne.Caption,
              u"Un mot est écrit en jaune dans le texte de gauche. Clique sur ce mot dans le texte de droite "
              u"(ATTENTION : il y a un temps de réponse limité)");
    EXPECT_TRUE(écran.lblConsigne.Visible);
    EXPECT_EQ(écran.lblTemps.Caption, u"28");
    EXPECT_EQ(écran.lblTempsRéf.Caption, u"28");
    EXPECT_EQ(écran.lblTemps.BackColor, Rouge);
    EXPECT_EQ(écran.lblTemps.ForeColor, Jaune);
    EXPECT_EQ(écran.lblTemps.ToolTipText, u" Temps restant (en secondes) ");
    EXPECT_EQ(écran.Horloge.Interval, 1000);
    EXPECT_TRUE(écran.Horloge.Enabled);
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_TRUE(écran.rtfTexte.Visible && écran.rtfRéponse.Visible && écran.lblTemps.Visible);
}

TEST(TrouveMoi, TexteDeGaucheEstEnCapitalesEtLeMotEnJaune)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit")});
    EXPECT_EQ(écran.rtfTexte.Text(), Majuscules(TexteÀFouiller));
    EXPECT_EQ(écran.rtfTexte.SelText(), u"PETIT");
    const auto& texte = écran.rtfTexte.TextRTF();
    const auto mot = PlaceDuMot(écran);
    for (std::size_t p = 0; p < texte.Longueur(); ++p) {
        const auto& format = texte.FormatEn(p);
        const bool dansLeMot = p >= mot && p < mot + 5;
        EXPECT_EQ(format.Teinte, dansLeMot ? Jaune : Cyan) << p;
        EXPECT_EQ(format.Taille, dansLeMot ? 14 : 12) << p;
        EXPECT_EQ(format.Souligné, dansLeMot) << p;
        EXPECT_TRUE(format.Gras);
        EXPECT_EQ(format.Police, u"MS Sans Serif");
    }
}

TEST(TrouveMoi, TexteDeDroiteGardeSaFormeSansBarres)
{
    Banc banc;
    TexteRiche riche{Texte{TexteÀFouiller}};
    riche.Formater(3, 4, [](Format& format) {
        format.Barré = true;
        format.Italique = true;
    });
    banc.ChargerTexte(riche);
    banc.Hasards({0.0});
    auto& écran = banc.Ouvrir<frmTrouveMoi>();
    riche.Formater(3, 4, [](Format& format) { format.Barré = false; });
    EXPECT_EQ(écran.rtfRéponse.TextRTF(), riche);
    EXPECT_TRUE(banc.Choix().rtfTexte.TextRTF().FormatEn(3).Barré);
}

TEST(TrouveMoi, TailleDeLEcranPlaceLesTextes)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {0.0, 0.0});
    écran.lblConsigne.Height = 500;
    écran.lblPoints(0).Height = 400;
    écran.Dimensionner(14000, 9000);
    EXPECT_EQ(écran.rtfTexte.Width, 4000);
    EXPECT_EQ(écran.rtfTexte.Height, 8500);
    EXPECT_EQ(écran.rtfRéponse.Left, 4400);
    EXPECT_EQ(écran.rtfRéponse.Width, 9400);
    EXPECT_EQ(écran.rtfRéponse.Height, 8500 - 500 - 400 - 65);
    EXPECT_EQ(écran.lblConsigne.Left, 4450);
    EXPECT_EQ(écran.lblTemps.Left, 9420);
}

TEST(TrouveMoi, FenêtreMinusculeNEstPasUneFaute)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {0.0, 0.0});
    écran.Dimensionner(200, 100);
    EXPECT_GE(écran.rtfRéponse.Width, 0);
    EXPECT_GE(écran.rtfRéponse.Height, 0);
    EXPECT_GE(écran.rtfTexte.Height, 0);
}

// ---- The draw ----------------------------------------------------------------------------------------------------

TEST(TrouveMoi, PremierMotNEstJamaisTiré)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {0.0});
    EXPECT_EQ(écran.rtfTexte.SelText(), u"CHAT");
    EXPECT_EQ(PlaceDuMot(écran), 3U);
}

TEST(TrouveMoi, MotDeDeuxLettresEstTiréDeNouveau)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"le mur"), TirageVers(u"un arc"), TirageVers(u"mur")});
    EXPECT_EQ(écran.rtfTexte.SelText(), u"MUR");
}

TEST(TrouveMoi, TraitDUnionEtApostropheFontUnSeulMot)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"arc-en"), TirageVers(u"d'été")});
    EXPECT_EQ(écran.rtfTexte.SelText(), u"ARC-EN-CIEL");
    écran.rtfRéponse.Cliquer(PlaceDuMot(écran) + 8);
    EXPECT_EQ(écran.rtfRéponse.SelText(), u"arc-en-ciel");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(écran.rtfTexte.SelText(), u"D'ÉTÉ");
    écran.rtfRéponse.Cliquer(PlaceDuMot(écran));
    EXPECT_EQ(écran.rtfRéponse.SelText(), u"d'été");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
}

TEST(TrouveMoi, DernierMotSansRienDerrièreFinitAvecLeTexte)
{
    static constexpr VueTexte texte = u"un chat et un chien";
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(texte, texte.find(u"chien"))}, texte);
    EXPECT_EQ(écran.rtfTexte.SelText(), u"CHIEN");
    écran.rtfRéponse.Cliquer(texte.size());
    EXPECT_EQ(écran.rtfRéponse.SelText(), u"chien");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(TrouveMoi, MotDerrièreLeBlancQuiOuvreLeTexteSeTrouve)
{
    static constexpr VueTexte texte = u" chat et un os";
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {0.0}, texte);
    EXPECT_EQ(écran.rtfTexte.SelText(), u"CHAT");
    écran.rtfRéponse.Cliquer(2);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(TrouveMoi, TexteSansMotÀChercherFermeAprèsUnMessage)
{
    for (const VueTexte texte : {u"a b c d e f", u"chat", u"chat\r\nchien\r\nloup", u" , ! ? ."}) {
        Banc banc;
        banc.AnnoncerBoîte(u"Ce texte ne convient pas à cet exercice : je n'y trouve pas de mot à chercher !");
        auto& écran = OuvrirTrouveMoi(banc, {}, texte);
        EXPECT_FALSE(écran.EstChargé());
        EXPECT_FALSE(écran.Horloge.Enabled);
        EXPECT_EQ(banc.plateforme.tirages, 0);
        EXPECT_EQ(banc.Note(IndexTrouveMoi), u"");
    }
}

TEST(TrouveMoi, ChaqueChangementDeTailleTireUnMot)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit"), TirageVers(u"chien"), TirageVers(u"joue")});
    EXPECT_EQ(banc.plateforme.tirages, 1);
    écran.Dimensionner(12000, 8000);
    EXPECT_EQ(écran.rtfTexte.SelText(), u"CHIEN");
    écran.Dimensionner(12000, 8100);
    EXPECT_EQ(écran.rtfTexte.SelText(), u"JOUE");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_EQ(écran.rtfTexte.TextRTF().FormatEn(TexteÀFouiller.find(u"petit")).Teinte, Cyan);
}

TEST(TrouveMoi, RienDAutreNeTireDeMot)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit")});
    écran.Dimensionner(écran.Width, écran.Height);
    écran.Activer();
    écran.rtfTexte.RecevoirFocus();
    écran.rtfRéponse.RecevoirFocus();
    EXPECT_EQ(écran.rtfTexte.SelText(), u"PETIT");
    EXPECT_EQ(banc.plateforme.tirages, 1);
}

TEST(TrouveMoi, NouvelleTailleAprèsUnJugementPasseAuMotSuivant)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit"), TirageVers(u"chien")});
    RépondreAuMot(écran, true);
    écran.Dimensionner(12000, 8000);
    EXPECT_EQ(écran.rtfTexte.SelText(), u"CHIEN");
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_TRUE(écran.rtfRéponse.Enabled);
    RépondreAuMot(écran, true);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
}

TEST(TrouveMoi, NouvelleTailleAprèsLaFinNeRelancePasLeJeu)
{
    Banc banc;
    TirerVarié(banc);
    banc.ChargerTexte(Texte{TexteÀFouiller});
    banc.Index(IndexTrouveMoi);
    auto& écran = banc.Ouvrir<frmTrouveMoi>();
    for (int mot = 1; mot <= 10; ++mot) {
        RépondreAuMot(écran, true);
        if (mot < 10)
            écran.cmdSuivant.Cliquer();
    }
    écran.Dimensionner(12000, 8000);
    EXPECT_FALSE(écran.Horloge.Enabled);
    banc.Avancer(120s);
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(banc.Note(IndexTrouveMoi), u"10");
}

// ---- The answer --------------------------------------------------------------------------------------------------

TEST(TrouveMoi, DixBonnesRéponsesLaissentHuitSecondesEtDix)
{
    Banc banc;
    TirerVarié(banc);
    banc.ChargerTexte(Texte{TexteÀFouiller});
    banc.Index(IndexTrouveMoi);
    auto& écran = banc.Ouvrir<frmTrouveMoi>();
    for (int mot = 1; mot <= 10; ++mot) {
        RépondreAuMot(écran, true);
        EXPECT_EQ(écran.lblTempsRéf.Caption, EnTexte(28 - 2 * mot));
        EXPECT_EQ(écran.cmdSuivant.Caption, mot == 10 ? u"&Quitter" : u"&Suivant");
        if (mot < 10)
            écran.cmdSuivant.Cliquer();
    }
    EXPECT_EQ(écran.lblTempsRéf.Caption, u"8");
    écran.cmdSuivant.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTrouveMoi), u"10");
}

TEST(TrouveMoi, DixErreursLaissentTrenteHuitSecondesEtZéro)
{
    Banc banc;
    TirerVarié(banc);
    banc.ChargerTexte(Texte{TexteÀFouiller});
    banc.Index(IndexTrouveMoi);
    auto& écran = banc.Ouvrir<frmTrouveMoi>();
    for (int mot = 1; mot <= 10; ++mot) {
        RépondreAuMot(écran, false);
        if (mot < 10)
            écran.cmdSuivant.Cliquer();
    }
    EXPECT_EQ(écran.lblTempsRéf.Caption, u"38");
    écran.cmdSuivant.Cliquer();
    EXPECT_EQ(banc.Note(IndexTrouveMoi), u"0");
}

TEST(TrouveMoi, UneJusteEtUneFausseMènentÀVingtSixPuisVingtSept)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit"), TirageVers(u"chien")});
    RépondreAuMot(écran, true);
    EXPECT_EQ(écran.lblTempsRéf.Caption, u"26");
    EXPECT_EQ(écran.lblTemps.Caption, u"26");
    écran.cmdSuivant.Cliquer();
    RépondreAuMot(écran, false);
    EXPECT_EQ(écran.lblTempsRéf.Caption, u"27");
}

TEST(TrouveMoi, MêmeMotÀUneAutrePlaceEstFauxEtLaBonnePlaceSeMontre)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"chat", 1), TirageVers(u"petit")});
    const auto bonne = TexteÀFouiller.rfind(u"chat");
    EXPECT_EQ(PlaceDuMot(écran), bonne);
    écran.rtfRéponse.Cliquer(5);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    for (std::size_t p = 0; p < TexteÀFouiller.size(); ++p)
        EXPECT_EQ(écran.rtfRéponse.TextRTF().FormatEn(p).Barré, p >= 3 && p < 7) << p;
    EXPECT_EQ(écran.rtfRéponse.SelStart(), bonne);
    EXPECT_EQ(écran.rtfRéponse.SelText(), u"chat");
    écran.cmdSuivant.Cliquer();
    EXPECT_FALSE(écran.rtfRéponse.TextRTF().FormatEn(4).Barré);
}

TEST(TrouveMoi, ClicDansTousLesCaractèresDuMotEstJuste)
{
    for (std::size_t décalage = 0; décalage <= 5; ++décalage) { // the blank behind it too
        Banc banc;
        auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit")});
        écran.rtfRéponse.Cliquer(PlaceDuMot(écran) + décalage);
        EXPECT_EQ(écran.lblPoints(0).Caption, u"1") << décalage;
        EXPECT_EQ(écran.rtfRéponse.SelText(), u"petit");
    }
}

TEST(TrouveMoi, ClicAuxBoutsDuTexte)
{
    for (const auto place : {std::size_t{0}, TexteÀFouiller.size()}) {
        Banc banc;
        auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit")});
        écran.rtfRéponse.Cliquer(place);
        EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
        EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    }
}

TEST(TrouveMoi, JugementÉteintLeTexteEtCacheLaConsigneJusquÀLaFin)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit"), TirageVers(u"chien")});
    RépondreAuMot(écran, true);
    EXPECT_FALSE(écran.rtfRéponse.Enabled);
    EXPECT_FALSE(écran.lblConsigne.Visible);
    EXPECT_TRUE(écran.cmdSuivant.Visible);
    EXPECT_EQ(écran.Focus(), &écran.cmdSuivant);
    écran.rtfRéponse.Cliquer(3);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    écran.cmdSuivant.Cliquer();
    EXPECT_TRUE(écran.rtfRéponse.Enabled);
    EXPECT_FALSE(écran.lblConsigne.Visible);
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    EXPECT_EQ(écran.Focus(), &écran.rtfRéponse);
}

// ---- The time ----------------------------------------------------------------------------------------------------

TEST(TrouveMoi, FinDuTempsCompteCommeUneErreur)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit"), TirageVers(u"petit")});
    banc.Avancer(28'500ms);
    EXPECT_EQ(écran.lblTemps.Caption, u"0");
    EXPECT_FALSE(écran.cmdSuivant.Visible);
    banc.Avancer(1s);
    EXPECT_TRUE(écran.cmdSuivant.Visible);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_EQ(écran.lblTemps.Caption, u"29");
    EXPECT_EQ(écran.rtfRéponse.SelText(), u"petit");
    for (std::size_t p = 0; p < TexteÀFouiller.size(); ++p)
        EXPECT_FALSE(écran.rtfRéponse.TextRTF().FormatEn(p).Barré);
    // The same word again: what was shown then is no answer now.
    écran.cmdSuivant.Cliquer();
    banc.Avancer(30s);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
}

TEST(TrouveMoi, UnCurseurSurLeMotSansClicNEstPasUneRéponse)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit")});
    écran.rtfRéponse.Sélectionner(PlaceDuMot(écran), 5);
    banc.Avancer(30s);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    for (std::size_t p = 0; p < TexteÀFouiller.size(); ++p)
        EXPECT_FALSE(écran.rtfRéponse.TextRTF().FormatEn(p).Barré);
}

TEST(TrouveMoi, AprèsUnJugementLeTempsNeCourtPlus)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit")});
    banc.Avancer(3s);
    RépondreAuMot(écran, true);
    banc.Avancer(60s);
    EXPECT_EQ(écran.lblTemps.Caption, u"26");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
}

TEST(TrouveMoi, FermerArrêteLeTempsEtNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirTrouveMoi(banc, {TirageVers(u"petit")});
    banc.Avancer(3s);
    écran.FermerParCroix();
    banc.Avancer(60s);
    EXPECT_EQ(écran.lblTemps.Caption, u"25");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_EQ(banc.Note(IndexTrouveMoi), u"");
}

TEST(TrouveMoi, MotSuivantNeRefaitPasLesTextes)
{
    Texte texte;
    while (texte.size() < 500'000)
        texte += TexteÀFouiller;
    Banc banc;
    TirerVarié(banc);
    banc.ChargerTexte(texte);
    auto& écran = banc.Ouvrir<frmTrouveMoi>();
    std::size_t refaits = 0;
    for (auto* boîte : {&écran.rtfTexte, &écran.rtfRéponse})
        boîte->EditionFaite = [&](const RichTextBox::Edition& édition) { refaits += édition.Ajoutés; };
    for (int mot = 1; mot < 10; ++mot) {
        RépondreAuMot(écran, mot % 2 == 0);
        écran.cmdSuivant.Cliquer();
    }
    EXPECT_LT(refaits, 1000U);
    EXPECT_GT(refaits, 0U);
}

} // namespace tirelune
