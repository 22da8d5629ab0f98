#include "exercises/vocabulary/frmTrous.h"
#include "tests/support/Banc.h"
#include "tests/support/Notices.h"

namespace tirelune {

namespace {

constexpr int IndexTrous = 4;
// A text in which what stands between "[" and "]" is marked.
TexteRiche Marquer(VueTexte texte)
{
    Format barré;
    barré.Barré = true;
    TexteRiche résultat;
    bool marqué = false;
    for (const char16_t c : texte) {
        if (c == u'[' || c == u']')
            marqué = c == u'[';
        else
            résultat.Ajouter(VueTexte{&c, 1}, marqué ? barré : Format{}, {});
    }
    return résultat;
}

frmTrous& OuvrirTrous(Banc& banc, VueTexte texte)
{
    banc.ChargerTexte(Marquer(texte));
    banc.Index(IndexTrous);
    return banc.Ouvrir<frmTrous>();
}

void Placer(frmTrous& écran, std::size_t place, VueTexte mot)
{
    écran.rtfTrous.Cliquer(place);
    écran.cmbTrous.Choisir(écran.cmbTrous.Chercher(mot));
    écran.cmdOk.Cliquer();
}

} // namespace

TEST(Trous, ChaqueMarqueDevientUneLacuneEtUnMotDeLaListe)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] voit la [belle] souris.");

    EXPECT_EQ(écran.Caption, u"Texte à trous / Léa");
    EXPECT_EQ(écran.rtfTrous.Text(), u"Le ____ voit la _____ souris.");
    EXPECT_EQ(écran.cmbTrous.Eléments(), (std::vector<Texte>{u"belle", u"chat"}));
    EXPECT_EQ(écran.cmbTrous.Text, u"belle");
    EXPECT_TRUE(écran.rtfTrous.Visible);
    EXPECT_FALSE(écran.notice.Cadre.Visible);
    EXPECT_FALSE(écran.fin.Cadre.Visible);
    EXPECT_EQ(écran.rtfTrous.SelStart(), 0U);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 0U);
}

TEST(Trous, LesPointsOntLeursCouleursEtLesBoutonsLeurLégende)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] dort.");
    VérifierPointsDeDépart(écran.lblPoints);
    EXPECT_EQ(écran.cmdOk.Caption, u"&Ok");
    EXPECT_EQ(écran.fin.Bouton.Caption, u"&Quitter");
    EXPECT_FALSE(écran.Image1.Picture().Formes.empty());
    EXPECT_TRUE(écran.cmbTrous.Sorted);
    EXPECT_TRUE(écran.rtfTrous.Locked) << "le texte ne se tape pas";
    EXPECT_TRUE(écran.fin.Message.Locked);
}

TEST(Trous, LaLacuneEstNoireSansBarreNiSoulignement)
{
    Banc banc;
    Format format;
    format.Barré = true;
    format.Souligné = true;
    format.Gras = true;
    format.Teinte = Rouge;
    Format souligné;
    souligné.Souligné = true;
    TexteRiche texte{u"Un ", souligné};
    texte.Ajouter(u"mot", format, {});
    texte.Ajouter(u" rare", souligné, {});
    banc.ChargerTexte(texte);
    auto& écran = banc.Ouvrir<frmTrous>();

    const auto lacune = écran.rtfTrous.TextRTF().FormatEn(4);
    EXPECT_EQ(lacune.Teinte, Noir);
    EXPECT_FALSE(lacune.Barré);
    EXPECT_FALSE(lacune.Souligné);
    EXPECT_TRUE(lacune.Gras);
    EXPECT_FALSE(écran.rtfTrous.TextRTF().FormatEn(7).Souligné);
    EXPECT_FALSE(écran.rtfTrous.TextRTF().FormatEn(0).Souligné);
    EXPECT_TRUE(banc.Choix().rtfTexte.TextRTF().FormatEn(4).Barré) << "le texte de l'élève ne change pas";
}

TEST(Trous, UneMarqueAvecUneEspaceEstUneSeuleLacune)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Il dort [tout le jour] ici.");
    EXPECT_EQ(écran.rtfTrous.Text(), u"Il dort ____________ ici.");
    EXPECT_EQ(écran.cmbTrous.Eléments(), (std::vector<Texte>{u"tout le jour"}));

    écran.rtfTrous.Cliquer(12); // the blank
    EXPECT_EQ(écran.rtfTrous.SelStart(), 8U);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 12U);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.rtfTrous.Text(), u"Il dort tout le jour ici.");
    EXPECT_TRUE(écran.fin.Cadre.Visible);
}

TEST(Trous, UneMarqueSurDeuxLignesRendSesLignes)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Un [mot\r\net] un autre.");
    EXPECT_EQ(écran.rtfTrous.Text(), u"Un _______ un autre.");

    Placer(écran, 6, u"mot\r\net");
    EXPECT_EQ(écran.rtfTrous.Text(), banc.Choix().rtfTexte.Text());
    EXPECT_TRUE(écran.fin.Cadre.Visible);
}

TEST(Trous, MarquesQuiSeTouchentNeFontQuUne)
{
    Banc banc;
    Format grasBarré;
    grasBarré.Barré = true;
    grasBarré.Gras = true;
    auto texte = Marquer(u"Un [arc]");
    texte.Ajouter(u"ad", grasBarré, {});
    texte.Ajouter(u"e.", {}, {});
    banc.ChargerTexte(texte);
    auto& écran = banc.Ouvrir<frmTrous>();

    EXPECT_EQ(écran.rtfTrous.Text(), u"Un _____e.");
    EXPECT_EQ(écran.cmbTrous.Eléments(), (std::vector<Texte>{u"arcad"}));
    Placer(écran, 7, u"arcad");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(Trous, MotJusteEnVertSoulignéQuitteLaListe)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] voit la [souris] et l'[œuf].");

    Placer(écran, 5, u"chat");

    EXPECT_EQ(écran.rtfTrous.Text(), u"Le chat voit la ______ et l'___.");
    EXPECT_EQ(écran.rtfTrous.TextRTF().FormatEn(3).Teinte, VertFoncé);
    EXPECT_TRUE(écran.rtfTrous.TextRTF().FormatEn(6).Souligné);
    EXPECT_FALSE(écran.rtfTrous.TextRTF().FormatEn(7).Souligné);
    EXPECT_EQ(écran.cmbTrous.Eléments(), (std::vector<Texte>{u"œuf", u"souris"}));
    EXPECT_EQ(écran.cmbTrous.Text, u"œuf") << "après un mot juste, le premier qui reste";
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_FALSE(écran.fin.Cadre.Visible);
}

TEST(Trous, MotFauxRougitEtPeutÊtreRefait)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] voit la [souris].");

    Placer(écran, 5, u"souris");

    EXPECT_EQ(écran.rtfTrous.Text(), u"Le ____ voit la ______.");
    EXPECT_EQ(écran.rtfTrous.TextRTF().FormatEn(4).Teinte, Rouge);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 0U);
    EXPECT_EQ(écran.cmbTrous.Text, u"souris") << "après un mot faux, le choix reste";
    EXPECT_EQ(écran.cmbTrous.ListCount(), 2);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");

    Placer(écran, 3, u"chat");
    EXPECT_EQ(écran.rtfTrous.TextRTF().FormatEn(4).Teinte, VertFoncé);
    EXPECT_TRUE(écran.rtfTrous.TextRTF().FormatEn(4).Souligné);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
}

TEST(Trous, AccentsEtCapitalesComptent)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Il a [Pêché] un [péché].");
    Placer(écran, 5, u"péché");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    Placer(écran, 5, u"Pêché");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST(Trous, MotMarquéDeuxFoisVaDansSesDeuxLacunes)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Un [chat] et un [chat] et un [chien].");
    EXPECT_EQ(écran.cmbTrous.Eléments(), (std::vector<Texte>{u"chat", u"chat", u"chien"}));

    écran.rtfTrous.Cliquer(15);
    écran.cmbTrous.Choisir(1);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.cmbTrous.Eléments(), (std::vector<Texte>{u"chat", u"chien"}));
    Placer(écran, 3, u"chat");
    EXPECT_EQ(écran.rtfTrous.Text(), u"Un chat et un chat et un _____.");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
}

TEST(Trous, SansMarqueLaNoticeCouvreToutEtNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le chat dort.");

    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Pas de vocabulaire sélectionné");
    EXPECT_EQ(écran.notice.Phrase.Caption, u"L'exercice est terminé.");
    EXPECT_EQ(écran.notice.Cadre.Width, écran.Width());
    EXPECT_EQ(écran.notice.Cadre.Height, écran.Height());
    EXPECT_FALSE(écran.rtfTrous.Visible);
    EXPECT_FALSE(écran.cmdOk.EstAtteignable());
    EXPECT_EQ(écran.cmbTrous.Text, u" Liste des mots enlevés ");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Quitter");
    EXPECT_EQ(écran.Focus(), &écran.notice.Bouton);

    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTrous), u"");
}

TEST(Trous, TexteVideDonneLaNotice)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"");
    EXPECT_TRUE(écran.notice.Cadre.Visible);
}

TEST(Trous, MarqueAuPremierCaractèreNePeutÊtreRemplie)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"[Chat] et [chien].");
    écran.rtfTrous.Cliquer(2);
    EXPECT_EQ(écran.rtfTrous.SelStart(), 1U);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 3U);

    Placer(écran, 0, u"Chat");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    Placer(écran, 8, u"chien");
    EXPECT_EQ(écran.rtfTrous.Text(), u"____ et chien.");
    EXPECT_FALSE(écran.fin.Cadre.Visible);

    écran.FermerParCroix(); // the one way out
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTrous), u"");
}

TEST(Trous, MarqueDUnSeulCaractèreEnTêteNeSeSélectionnePas)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"[A] table !");
    écran.rtfTrous.Cliquer(0);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 0U);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
}

TEST(Trous, LacuneEnFinDeTexteVaJusquAuBout)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Voici la [fin]");
    EXPECT_EQ(écran.rtfTrous.Text(), u"Voici la ___");
    écran.rtfTrous.Cliquer(11);
    EXPECT_EQ(écran.rtfTrous.SelStart(), 9U);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 3U);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.rtfTrous.Text(), u"Voici la fin");
    EXPECT_TRUE(écran.fin.Cadre.Visible);
}

TEST(Trous, ToutMarqué)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"[Tout est marqué.]");
    EXPECT_EQ(écran.rtfTrous.Text(), Texte(16, u'_'));
    EXPECT_EQ(écran.cmbTrous.Eléments(), (std::vector<Texte>{u"Tout est marqué."}));
}

TEST(Trous, FinitAvecSaDernièreLacuneMalgréLesTraitsDuTexte)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Nom : ____ Le [chat] dort.");
    Placer(écran, 16, u"chat");
    EXPECT_EQ(écran.rtfTrous.Text(), u"Nom : ____ Le chat dort.");
    EXPECT_TRUE(écran.fin.Cadre.Visible);
    EXPECT_EQ(écran.Focus(), &écran.fin.Bouton);
}

TEST(Trous, TraitDuTexteContreUneLacuneNEnEstPas)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le _[chat]_ dort.");
    EXPECT_EQ(écran.rtfTrous.Text(), u"Le ______ dort.");
    for (const std::size_t place : {3U, 8U}) {
        écran.rtfTrous.Cliquer(place);
        EXPECT_EQ(écran.rtfTrous.SelLength(), 0U);
    }
    Placer(écran, 5, u"chat");
    EXPECT_EQ(écran.rtfTrous.Text(), u"Le _chat_ dort.");
    EXPECT_TRUE(écran.fin.Cadre.Visible);
}

TEST(Trous, TraitDuTexteSélectionnéNEstPasUnEssai)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Nom : ____ Le [chat] dort.");
    écran.rtfTrous.Sélectionner(6, 4);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0");
    EXPECT_NE(écran.rtfTrous.TextRTF().FormatEn(7).Teinte, Rouge);
}

TEST(Trous, TraitsMarquésSontUneLacuneARemplir)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Un [a_b] et [__] ici.");
    Placer(écran, 4, u"a_b");
    EXPECT_FALSE(écran.fin.Cadre.Visible) << "l'autre reste à remplir";
    Placer(écran, 10, u"__");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"2");
    EXPECT_TRUE(écran.fin.Cadre.Visible);
    écran.rtfTrous.Cliquer(10);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 0U) << "remplie une fois pour toutes";
}

TEST(Trous, UnePartieDeLacuneRemplieLaLaisseOuverte)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [petit] a un [petit-fils].");
    écran.rtfTrous.Sélectionner(14, 5); // a drag over the beginning of the gap
    écran.cmbTrous.Choisir(écran.cmbTrous.Chercher(u"petit"));
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.rtfTrous.Text(), u"Le _____ a un petit_____.");
    écran.rtfTrous.Cliquer(22);
    EXPECT_EQ(écran.rtfTrous.SelStart(), 19U);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 5U);
    Placer(écran, 22, u"petit-fils");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"2");
}

TEST(Trous, ClicHorsDesTraitsEffaceLaSélection)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] dort.");
    écran.rtfTrous.Cliquer(4);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 4U);
    écran.rtfTrous.Cliquer(1);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 0U);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"0") << "sans sélection, pas d'essai";
    EXPECT_FALSE(écran.fin.Cadre.Visible);
}

TEST(Trous, SélectionQuiDébordeEstSansEffet)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] dort.");
    Placer(écran, 4, u"chat");
    écran.fin.Cadre.Visible = false;
    écran.rtfTrous.Sélectionner(2, 5);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_FALSE(écran.fin.Cadre.Visible) << "pas même l'examen de fin";

    écran.rtfTrous.Sélectionner(0, 0);
    écran.cmdOk.Cliquer();
    EXPECT_TRUE(écran.fin.Cadre.Visible);
}

TEST(Trous, DoubleClicEstRefusé)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] [a] faim.");
    for (const std::size_t place : {4U, 8U}) {
        banc.AnnoncerBoîte(UneSeuleFois);
        écran.rtfTrous.Cliquer(place);
        écran.rtfTrous.DoubleCliquer(place);

        EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Titre, u"Avertissement");
        EXPECT_EQ(écran.rtfTrous.SelLength(), 0U) << place;
        EXPECT_FALSE(banc.état.CorrectionEnCours);
    }
    écran.rtfTrous.Cliquer(4);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 4U) << "le clic suivant est de nouveau bon";
}

TEST(Trous, FerméPendantLeMessageDuDoubleClic)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] dort.");
    banc.plateforme.boîtes.push_back({UneSeuleFois, Réponse::Ok, u"Avertissement", [&] { écran.FermerParCroix(); }});
    écran.rtfTrous.DoubleCliquer(4);
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_FALSE(banc.état.CorrectionEnCours);
    EXPECT_EQ(banc.Note(IndexTrous), u"");
}

TEST(Trous, OuvertureOublieUnDoubleClicPassé)
{
    Banc banc;
    banc.état.CorrectionEnCours = true;
    auto& écran = OuvrirTrous(banc, u"Le [chat] dort.");
    écran.rtfTrous.Cliquer(4);
    EXPECT_EQ(écran.rtfTrous.SelLength(), 4U);
}

TEST(Trous, TouchesDeLaListeSontDésamorcées)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] dort.");
    EXPECT_FALSE(écran.cmbTrous.Taper({.Caractère = u'c', .Code = 'C'}));
    EXPECT_FALSE(écran.cmbTrous.Taper({.Code = Touche::Bas}));
    EXPECT_FALSE(écran.cmbTrous.Taper({.Caractère = u'\r', .Code = Touche::Entrée}));
    écran.cmbTrous.Saisir(u"chat noir");
    EXPECT_EQ(écran.cmbTrous.Text, u"chat");
}

TEST(Trous, EntréeNAPasDEffetDansLeTexte)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] dort.");
    écran.rtfTrous.Sélectionner(4, 0);
    EXPECT_FALSE(écran.rtfTrous.Taper({.Caractère = u'\r', .Code = Touche::Entrée}));
    EXPECT_EQ(écran.rtfTrous.SelLength(), 0U);
    EXPECT_TRUE(écran.rtfTrous.Taper({.Code = Touche::Droite}));
}

TEST(Trous, QuitterEnregistreLaNote)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] voit la [souris].");
    EXPECT_FALSE(écran.fin.Bouton.EstAtteignable());
    Placer(écran, 3, u"souris");
    Placer(écran, 3, u"chat");
    Placer(écran, 17, u"souris");
    EXPECT_TRUE(écran.fin.Cadre.Visible);
    EXPECT_EQ(écran.fin.Cadre.Caption, u"Texte complété");
    EXPECT_EQ(écran.fin.Cadre.BackColor, Couleur{0xFFC0C0});
    EXPECT_EQ(écran.fin.Message.Text, u"C'est fini !");
    EXPECT_EQ(écran.cmbTrous.Text, u"souris") << "la liste vide garde son dernier texte";

    écran.fin.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTrous), u"6,666667");
    EXPECT_NE(banc.Lire("Léa.bil").value_or("").find("6,666667"), std::string::npos);
}

TEST(Trous, FermerNEnregistreRien)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] dort.");
    Placer(écran, 4, u"chat");
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexTrous), u"");
}

TEST(Trous, LeTexteRemplitLEcranMoinsLaBarre)
{
    Banc banc;
    auto& écran = OuvrirTrous(banc, u"Le [chat] dort.");
    écran.Dimensionner(12000, 9000);
    EXPECT_EQ(écran.rtfTrous.Width, 11850);
    EXPECT_EQ(écran.rtfTrous.Height, 7900);
    écran.Dimensionner(1000, 9000);
    EXPECT_EQ(écran.Width, 1000);
    EXPECT_EQ(écran.Height, 1000);
}

TEST(Trous, UnLongTexteSOuvreEnUneEdition)
{
    Banc banc;
    TexteRiche texte;
    Format barré;
    barré.Barré = true;
    constexpr int Mots = 100'000;
    for (int i = 0; i < Mots; ++i) {
        texte.Ajouter(u"mot ", i % 2 == 0 ? Format{} : barré, {});
    }
    banc.ChargerTexte(texte);
    auto écran = std::make_unique<frmTrous>(banc.Choix());
    auto& boîte = écran->rtfTrous;
    int éditions = 0;
    boîte.EditionFaite = [&](const RichTextBox::Edition&) { ++éditions; };
    auto& liste = écran->cmbTrous;
    banc.Montrer(std::move(écran));

    EXPECT_EQ(éditions, 1);
    EXPECT_EQ(liste.ListCount(), Mots / 2);
    EXPECT_EQ(boîte.Longueur(), 4U * Mots);
    EXPECT_TRUE(boîte.Text().starts_with(u"mot ____mot ____"));
}

} // namespace tirelune
