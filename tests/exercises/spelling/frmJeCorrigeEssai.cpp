#include "exercises/spelling/frmJeCorrige.h"

#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

#include <set>

namespace tirelune {

namespace {

constexpr int IndexJeCorrige = 24;
constexpr int Oi = 0;           // "oi" for "io"
constexpr int EspaceM = 30;     // " m" for " n"
constexpr int Accent = 44;      // "é" for "è"
constexpr int Introuvable = 49; // "ff"

// A try: the grapheme's index, and the place from which it is sought.
struct EssaiDeFaute {
    int Son;
    std::size_t Départ;
};

// All tries after these look for what these texts don't have.
frmJeCorrige& OuvrirJeCorrige(Banc& banc, TexteRiche texte, std::initializer_list<EssaiDeFaute> essais)
{
    const auto longueur = static_cast<double>(texte.Longueur());
    banc.ChargerTexte(std::move(texte));
    banc.Index(IndexJeCorrige);
    for (const auto& [son, départ] : essais)
        banc.Hasards({(son + 0.5) / 72, (static_cast<double>(départ) + 0.5) / longueur});
    banc.plateforme.toujours = [] { return (Introuvable + 0.5) / 72; };
    return banc.Ouvrir<frmJeCorrige>();
}

frmJeCorrige& OuvrirJeCorrige(Banc& banc, VueTexte texte, std::initializer_list<EssaiDeFaute> essais)
{
    return OuvrirJeCorrige(banc, TexteRiche{Texte{texte}}, essais);
}

// The runs of a colour.
std::vector<Texte> EnCouleur(const frmJeCorrige& écran, Couleur voulue)
{
    std::vector<Texte> morceaux;
    const auto& texte = écran.rtfCorrige.TextRTF();
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        if (tranche.Style->Teinte == voulue)
            morceaux.push_back(texte.Caractères().substr(tranche.Début, tranche.Fin - tranche.Début));
    });
    return morceaux;
}

void CorrigerMot(frmJeCorrige& écran, std::size_t place, Texte réponse)
{
    écran.rtfCorrige.Cliquer(place);
    écran.txtMot.Saisir(std::move(réponse));
    écran.cmdOk.Cliquer();
}

constexpr VueTexte Roi = u"Le roi voit sa maison. Un bébé rit.";

} // namespace

TEST(JeCorrige, LégendePorteLeNomDeLElève)
{
    Banc banc;
    EXPECT_EQ(OuvrirJeCorrige(banc, Roi, {{Oi, 0}}).Caption, u"Je corrige / Léa");
}

TEST(JeCorrige, TextesEtCouleursDuDépart)
{
    Banc banc;
    banc.état.CorrectionEnCours = true;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 0}});
    VérifierPointsDeDépart(écran.lblPoints);
    EXPECT_FALSE(banc.état.CorrectionEnCours);
    EXPECT_EQ(écran.lblConsigne.Caption,
              u"Les mots écrits en violet sont mal orthographiés. Clique dessus pour les corriger.");
    EXPECT_FALSE(écran.txtMot.Visible);
    EXPECT_EQ(écran.txtMot.BackColor, Cyan);
    EXPECT_EQ(écran.txtMot.ForeColor, Bleu);
    EXPECT_EQ(écran.txtMot.ToolTipText, u" Tape le mot corrigé dans cette zone. ");
    EXPECT_FALSE(écran.cmdOk.Visible);
    EXPECT_EQ(écran.cmdOk.Caption, u"&Ok");
    EXPECT_FALSE(écran.fin.Cadre.Visible);
    EXPECT_EQ(écran.fin.Cadre.Caption, u"Texte complété");
    EXPECT_EQ(écran.fin.Message.Text, u"C'est fini !");
    EXPECT_EQ(écran.fin.Bouton.Caption, u"&Quitter");
    EXPECT_TRUE(écran.rtfCorrige.Visible);
    EXPECT_EQ(écran.rtfCorrige.SelStart(), 0U);
    EXPECT_EQ(écran.rtfCorrige.Width, écran.Width - 150);
    EXPECT_EQ(écran.rtfCorrige.Height, écran.Height - 1200);
}

TEST(JeCorrige, TableDesSons)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 0}});
    ASSERT_EQ(écran.lblSon.Nombre(), 72);
    EXPECT_EQ(écran.lblSon(0).Caption, u"") << "paire utilisée";
    EXPECT_EQ(écran.lblSon(1).Caption, u"") << "paire utilisée";
    EXPECT_EQ(écran.lblSon(2).Caption, u"on");
    EXPECT_EQ(écran.lblSon(3).Caption, u"ou");
    EXPECT_EQ(écran.lblSon(31).Caption, u" n");
    EXPECT_EQ(écran.lblSon(50).Caption, u" ç");
    EXPECT_EQ(écran.lblSon(71).Caption, u"tri");
}

// ---- The faults --------------------------------------------------------------------------------------------------

TEST(JeCorrige, FautePeintToutLeMotEnViolet)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 5}});
    EXPECT_EQ(écran.rtfCorrige.Text(), u"Le roi viot sa maison. Un bébé rit.");
    EXPECT_EQ(EnCouleur(écran, Violet), (std::vector<Texte>{u"viot"}));
    EXPECT_EQ(EnCouleur(écran, Bleu), (std::vector<Texte>{u"Le roi ", u" sa maison. Un bébé rit."}));
    EXPECT_EQ(écran.lblGraphèmes.Caption, u"1");
}

TEST(JeCorrige, SonDeDébutDeMotLaisseLeBlancEtLeMotDAvantEnBleu)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{EspaceM, 0}});
    EXPECT_EQ(écran.rtfCorrige.Text(), u"Le roi voit sa naison. Un bébé rit.");
    EXPECT_EQ(EnCouleur(écran, Violet), (std::vector<Texte>{u"naison"}));
}

TEST(JeCorrige, FauteAuToutDébutEtÀLaToutFin)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, u"oiseau bébé", {{Oi, 0}, {Accent, 9}});
    EXPECT_EQ(écran.rtfCorrige.Text(), u"ioseau bébè");
    EXPECT_EQ(EnCouleur(écran, Violet), (std::vector<Texte>{u"ioseau", u"bébè"}));
    CorrigerMot(écran, 0, u"oiseau");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    écran.rtfCorrige.Cliquer(11);
    EXPECT_FALSE(écran.txtMot.Visible) << "derrière le texte";
    écran.rtfCorrige.Cliquer(10);
    EXPECT_EQ(écran.rtfCorrige.SelText(), u"bébè");
    CorrigerMot(écran, 10, u"bébé");
    EXPECT_TRUE(écran.fin.Cadre.Visible);
}

TEST(JeCorrige, FauteDansUnMotVioletEstRefusée)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, u"Le bébé boit.", {{Accent, 0}, {32, 0}, {Oi, 0}});
    EXPECT_EQ(écran.rtfCorrige.Text(), u"Le bèbé biot.");
    EXPECT_EQ(EnCouleur(écran, Violet), (std::vector<Texte>{u"bèbé", u"biot"}));
    EXPECT_EQ(écran.lblGraphèmes.Caption, u"2");
    EXPECT_EQ(écran.lblSon(32).Caption, u" b") << "une paire refusée reste";
}

TEST(JeCorrige, PaireUtiliséeNeSertPlus)
{
    Banc banc;
    banc.ChargerTexte(Texte{Roi});
    const auto tirage = [](int son) { return (son + 0.5) / 72; };
    banc.Hasards({tirage(Oi), 0.0, tirage(Oi), tirage(Oi + 1)}); // a used pair draws no place
    banc.plateforme.toujours = [&] { return tirage(Introuvable); };
    auto& écran = banc.Ouvrir<frmJeCorrige>();
    EXPECT_EQ(écran.rtfCorrige.Text(), u"Le rio voit sa maison. Un bébé rit.");
    EXPECT_EQ(écran.lblGraphèmes.Caption, u"1");
}

TEST(JeCorrige, VingtFautesAuPlusChacuneDUneAutrePaire)
{
    Texte texte;
    for (int i = 0; i < 20; ++i) {
        for (const auto graphème : Graphèmes)
            texte += u" z" + Texte{graphème} + u"z";
    }
    Banc banc;
    TirerVarié(banc);
    banc.ChargerTexte(texte);
    auto& écran = banc.Ouvrir<frmJeCorrige>();
    EXPECT_EQ(écran.lblGraphèmes.Caption, u"20");
    EXPECT_EQ(EnCouleur(écran, Violet).size(), 20U);
    int vidés = 0;
    for (int i = 0; i < 72; i += 2) {
        EXPECT_EQ(écran.lblSon(i).Caption().empty(), écran.lblSon(i + 1).Caption().empty());
        vidés += écran.lblSon(i).Caption().empty() ? 1 : 0;
    }
    EXPECT_EQ(vidés, 20);
    EXPECT_EQ(écran.rtfCorrige.Longueur(), texte.size());
    EXPECT_NE(écran.rtfCorrige.Text(), texte);
}

TEST(JeCorrige, MilleEssaisAuPlus)
{
    Banc banc;
    OuvrirJeCorrige(banc, Roi, {{Oi, 0}});
    EXPECT_EQ(banc.plateforme.tirages, 2000);
    EXPECT_EQ(banc.plateforme.amorces, 2000);
}

TEST(JeCorrige, TexteSansPlaceDeFauteNAPasDeMotVioletEtFermeAprèsUnMessage)
{
    Banc banc;
    banc.AnnoncerBoîte(u"Ce texte ne convient pas à cet exercice : je n'y trouve rien où mettre une faute !");
    auto& écran = OuvrirJeCorrige(banc, u"Zut ! Élu. 12 345 67", {});
    EXPECT_TRUE(EnCouleur(écran, Violet).empty());
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexJeCorrige), u"");
}

TEST(JeCorrige, TexteDeLElèveResteEntier)
{
    Banc banc;
    TexteRiche riche{Texte{Roi}};
    riche.Formater(3, 3, [](Format& format) { format.Barré = true; });
    auto& écran = OuvrirJeCorrige(banc, riche, {{Oi, 0}});
    EXPECT_EQ(banc.Choix().rtfTexte.TextRTF(), riche);
    EXPECT_FALSE(écran.rtfCorrige.TextRTF().FormatEn(4).Barré);
}

// ---- The correction ----------------------------------------------------------------------------------------------

TEST(JeCorrige, ClicPartoutDansLeMotVioletLeChoisit)
{
    for (std::size_t place = 7; place <= 11; ++place) { // its first letter to the blank behind it
        Banc banc;
        auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 5}});
        écran.rtfCorrige.Cliquer(place);
        EXPECT_EQ(écran.rtfCorrige.SelText(), u"viot") << place;
        EXPECT_TRUE(écran.txtMot.Visible);
        EXPECT_TRUE(écran.cmdOk.Visible);
        EXPECT_EQ(écran.Focus(), &écran.txtMot);
    }
}

TEST(JeCorrige, ClicHorsDUnMotVioletCacheLaRéponse)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 5}});
    for (const std::size_t place : {0U, 4U, 6U, 12U, 22U}) {
        écran.rtfCorrige.Cliquer(8);
        écran.txtMot.Saisir(u"voi");
        écran.rtfCorrige.Cliquer(place);
        EXPECT_FALSE(écran.txtMot.Visible) << place;
        EXPECT_FALSE(écran.cmdOk.Visible);
        EXPECT_EQ(écran.txtMot.Text, u"");
        EXPECT_EQ(écran.rtfCorrige.SelLength(), 0U);
    }
}

TEST(JeCorrige, BonneRéponseEstVerteEtSoulignée)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 5}, {Accent, 0}});
    CorrigerMot(écran, 8, u"voit");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_EQ(EnCouleur(écran, VertFoncé), (std::vector<Texte>{u"voit"}));
    EXPECT_TRUE(écran.rtfCorrige.TextRTF().FormatEn(8).Souligné);
    EXPECT_FALSE(écran.rtfCorrige.TextRTF().FormatEn(6).Souligné);
    EXPECT_EQ(écran.rtfCorrige.SelLength(), 0U) << "sa couleur se voit";
    EXPECT_FALSE(écran.txtMot.Visible);
    EXPECT_FALSE(écran.cmdOk.Visible);
    EXPECT_FALSE(écran.fin.Cadre.Visible);
}

TEST(JeCorrige, MauvaiseRéponseEstCorrigéeEnRougeEtNeSeRetentePas)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 5}, {Accent, 0}});
    CorrigerMot(écran, 8, u"vois");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_EQ(EnCouleur(écran, Rouge), (std::vector<Texte>{u"voit"}));
    EXPECT_TRUE(écran.rtfCorrige.TextRTF().FormatEn(8).Souligné);
    écran.rtfCorrige.Cliquer(8);
    EXPECT_FALSE(écran.txtMot.Visible);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
}

TEST(JeCorrige, CasseNeComptePasEtAccentsComptent)
{
    const std::vector<std::pair<Texte, Texte>> cas{{u"bébé", u"1"}, {u"BÉBÉ", u"1"}, {u"  Bébé ", u"1"},
                                                   {u"bebe", u"0"}, {u"BEBE", u"0"}, {u"bèbé", u"0"}};
    for (const auto& [réponse, points] : cas) {
        Banc banc;
        auto& écran = OuvrirJeCorrige(banc, Roi, {{Accent, 0}});
        CorrigerMot(écran, Roi.find(u"bébé"), réponse);
        EXPECT_EQ(écran.lblPoints(0).Caption, points) << ::testing::PrintToString(réponse);
    }
}

TEST(JeCorrige, RéponseVideEstRefuséeEnSilence)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 5}});
    CorrigerMot(écran, 8, u"   ");
    EXPECT_EQ(écran.txtMot.Text, u"");
    EXPECT_TRUE(écran.txtMot.Visible);
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
}

TEST(JeCorrige, EntréeVautOk)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 5}});
    écran.rtfCorrige.Cliquer(8);
    écran.txtMot.Saisir(u"voit");
    écran.txtMot.Taper({.Caractère = u'\r', .Code = Touche::Entrée});
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(JeCorrige, DoubleClicEstRefuséEtNeChoisitRien)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 5}});
    écran.rtfCorrige.Cliquer(8);
    banc.AnnoncerBoîte(u"Clique UNE SEULE FOIS sur les mots écrits en violet !");
    écran.rtfCorrige.DoubleCliquer(8);
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Titre, u"Avertissement");
    EXPECT_EQ(écran.rtfCorrige.SelLength(), 0U);
    EXPECT_FALSE(banc.état.CorrectionEnCours);
    EXPECT_FALSE(écran.txtMot.Visible);
    CorrigerMot(écran, 8, u"voit");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(JeCorrige, TexteRéparéEgaleLOriginalJusquÀLaForme)
{
    TexteRiche riche{u"Le roi voit sa maison.\r\nUn bébé rit, un oiseau chante."};
    riche.Formater(0, 4, [](Format& format) { format.Gras = true; });
    riche.Formater(8, 2, [](Format& format) { // inside the word
        format.Italique = true;
        format.Taille = 30;
    });
    riche.Formater(25, 10, [](Format& format) {
        format.Souligné = true;
        format.Barré = true;
        format.Teinte = Orange;
    });
    riche.FormaterParagraphes(30, 1, [](FormatParagraphe& format) { format.Alignement = Cadrage::Centre; });
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, riche, {{Oi, 7}, {Accent, 0}, {EspaceM, 0}});
    EXPECT_EQ(EnCouleur(écran, Violet).size(), 5U) << "trois mots, dont un de trois formes";
    CorrigerMot(écran, 8, u"voit");
    CorrigerMot(écran, riche.Caractères().find(u"maison"), u"raison");
    CorrigerMot(écran, riche.Caractères().find(u"bébé"), u"BÉBÉ");
    const auto neutre = [](TexteRiche texte) {
        texte.Formater(0, texte.Longueur(), [](Format& format) {
            format.Teinte = CouleurAuto;
            format.Souligné = false;
            format.Barré = false;
        });
        return texte;
    };
    EXPECT_EQ(écran.rtfCorrige.Text(), riche.Caractères());
    EXPECT_EQ(neutre(écran.rtfCorrige.TextRTF()), neutre(riche));
    EXPECT_TRUE(écran.fin.Cadre.Visible);
    EXPECT_EQ(écran.Focus(), &écran.fin.Bouton);
    écran.fin.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexJeCorrige), u"6,666667");
}

TEST(JeCorrige, FermerAvantLaFinNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, Roi, {{Oi, 5}, {Accent, 0}});
    CorrigerMot(écran, 8, u"voit");
    écran.FermerParCroix();
    EXPECT_EQ(banc.Note(IndexJeCorrige), u"");
}

TEST(JeCorrige, ApostropheEtTraitDUnionSéparentLesMots)
{
    Banc banc;
    auto& écran = OuvrirJeCorrige(banc, u"Voici l'oiseau-lyre !", {{Oi, 8}});
    EXPECT_EQ(EnCouleur(écran, Violet), (std::vector<Texte>{u"ioseau"}));
    CorrigerMot(écran, 9, u"oiseau");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_TRUE(écran.fin.Cadre.Visible);
}

} // namespace tirelune
