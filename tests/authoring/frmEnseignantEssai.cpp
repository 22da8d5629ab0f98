#include "authoring/frmEnseignant.h"

#include "core/Dégradé.h"
#include "core/EcrivainRtf.h"
#include "core/LecteurRtf.h"
#include "tests/support/BancEditeur.h"

namespace tirelune {

namespace {

const Texte Question = u"Les modifications n'ont pas été enregistrées.\nSouhaitez-vous le faire?";

// Stands for a screen that the editor opens.
class Témoin final : public Ecran {
public:
    Témoin(Ecran& éditeur, std::string_view nom) : Ecran(éditeur.ApplicationDe(), nom, u"Témoin"), ouvreur(éditeur) {}
    Ecran& ouvreur;

private:
    Arrangement Disposer() override { return {}; }
};

void PlacerTémoin(BancEditeur& banc, const std::string& nom)
{
    banc.application.écrans[nom] = [nom](Ecran& ouvreur) { return std::make_unique<Témoin>(ouvreur, nom); };
}

Texte Entrée(int i, const Texte& chemin)
{
    return u" " + EnTexte(i) + u" - " + chemin;
}

std::string NomNuméroté(int i)
{
    auto nom = std::to_string(i);
    nom += ".rtf";
    return nom;
}

TexteRiche Marqué(Texte texte)
{
    TexteRiche riche{std::move(texte)};
    riche.Formater(0, 2, [](Format& format) { format.Barré = true; });
    return riche;
}

} // namespace

// ---- Opening and closing of the screen ---------------------------------------------------------------------------

TEST(Editeur, SOuvreSurUnDocumentSansNom)
{
    BancEditeur banc;
    EXPECT_EQ(banc.écran.Caption, u"Enseignant");
    EXPECT_EQ(banc.état.NomFichierTexte, u"");
    EXPECT_EQ(banc.état.TitreFichierTexte, u"Document");
    EXPECT_EQ(banc.écran.rtfTexte.Longueur(), 0U);
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
    EXPECT_EQ(banc.écran.txtPolices(0).Text, u"Comic Sans MS");
    EXPECT_EQ(banc.accueil.cmbPolices.Text, u"Comic Sans MS");
    EXPECT_EQ(banc.accueil.cmbPolices.Tag, u"1");
    EXPECT_EQ(banc.écran.cmbFontSize.Text, u"12");
    EXPECT_EQ(banc.écran.rtfTexte.SelIndent(), 100);
    EXPECT_TRUE(banc.écran.mnuAuto.Checked);
    EXPECT_FALSE(banc.écran.framePolices.Visible);
    EXPECT_FALSE(banc.écran.frameCorrection.Visible);
    EXPECT_FALSE(banc.écran.mnuSépa.Visible);
    EXPECT_EQ(banc.Etat("btnGauche"), Toolbar::Etat::Enfoncé);
    EXPECT_FALSE(banc.état.TexteModifié);
    EXPECT_EQ(banc.écran.Focus(), &banc.écran.rtfTexte);
    EXPECT_EQ(banc.écran.Fond, Dégradé());
    EXPECT_EQ(banc.écran.Fond->Formes.size(), 256U);
    EXPECT_EQ(banc.écran.Fond->Formes.back().Fond, Couleur::Rvb(0, 255, 255));
}

TEST(Editeur, LesNomsDUneSéanceAvantSontOubliésALOuverture)
{
    BancEditeur banc;
    frmEnseignant autre{banc.accueil};
    banc.état.NomFichierTexte = u"/vieux.rtf";
    banc.état.TexteModifié = true;
    autre.Charger();
    EXPECT_EQ(banc.état.NomFichierTexte, u"");
    EXPECT_EQ(banc.état.TitreFichierTexte, u"Document");
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, SOuvreDepuisLePremierEcran)
{
    BancEditeur banc;
    banc.QuandOuvert<frmEnseignant>([](frmEnseignant& éditeur) { EXPECT_EQ(éditeur.Caption, u"Enseignant"); });
    banc.EcrireChamps("CodeEnseignant.txt", {u"abc"});
    banc.accueil.mnuEnseignant.Cliquer();
    banc.accueil.txtCodeEnseignant.Text = u"abc";
    banc.accueil.cmdCode.Cliquer();
}

TEST(Editeur, LesMenusOntLeursLégendes)
{
    BancEditeur banc;
    auto& écran = banc.écran;
    const auto légendes = [](const std::vector<Menu>& menus) {
        std::vector<Texte> noms;
        noms.reserve(menus.size());
        for (const auto& menu : menus)
            noms.push_back(menu.Option != nullptr ? menu.Option->Caption() : Texte{u"-"});
        return noms;
    };
    const auto menus = écran.Menus();
    EXPECT_EQ(légendes(menus), (std::vector<Texte>{u"     &Fichier     ", u"     &Edition     ", u"     &Format     ",
                                                   u"    &Gestion du fichier \"Elèves\"    ",
                                                   u"               A&ccueil               "}));
    auto fichier = légendes(menus[0].Sous);
    ASSERT_EQ(fichier.size(), 20U);
    fichier.resize(11);
    EXPECT_EQ(fichier, (std::vector<Texte>{u"&Nouveau", u"-", u"&Ouvrir", u"-", u"Enregistrer &sous", u"&Enregistrer",
                                           u"-", u"&Imprimer", u"-", u"&Quitter", u"-"}));
    EXPECT_EQ(menus[0].Sous[10].Option, &écran.mnuSépa);
    EXPECT_EQ(menus[0].Sous[19].Option, &écran.mnuRécent(8));
    EXPECT_EQ(légendes(menus[1].Sous), (std::vector<Texte>{u"&Tout sélectionner", u"-", u"Cou&per", u"&Copier",
                                                           u"Co&ller", u"-", u"Rec&hercher", u"Rem&placer"}));
    EXPECT_EQ(légendes(menus[2].Sous),
              (std::vector<Texte>{u"&Caractères", u"-", u"&Gras", u"Soulig&né", u"&Italique", u"-", u"Aligné à &Gauche",
                                  u"Aligné au &Centre", u"Aligné à &Droite", u"-", u"Mise en forme &automatique"}));
}

TEST(Editeur, LesRaccourcisSontCeuxDesMenus)
{
    BancEditeur banc;
    auto& é = banc.écran;
    const std::vector<std::pair<MenuOption*, std::string>> attendus{
        {&é.mnuNouveau, "Ctrl+N"},      {&é.mnuOuvrir, "Ctrl+O"},   {&é.mnuEnregistrer, "Ctrl+S"},
        {&é.mnuSélectionner, "Ctrl+A"}, {&é.mnuCouper, "Ctrl+X"},   {&é.mnuCopier, "Ctrl+C"},
        {&é.mnuColler, "Ctrl+V"},       {&é.mnuAnnuler, "Ctrl+Z"},  {&é.mnuRechercher, "Ctrl+F"},
        {&é.mnuRemplacer, "Ctrl+H"},    {&é.mnuGras, "Ctrl+B"},     {&é.mnuItalique, "Ctrl+I"},
        {&é.mnuSouligné, "Ctrl+U"},     {&é.mnuImprimer, "Ctrl+P"},
    };
    for (const auto& [option, raccourci] : attendus)
        EXPECT_EQ(option->Raccourci, raccourci) << option->Nom;
    EXPECT_EQ(é.mnuQuitter.Raccourci, "");
    EXPECT_TRUE(é.mnuAnnuler.EstAtteignable());
}

TEST(Editeur, LesTaillesProposéesSontLesSeize)
{
    BancEditeur banc;
    EXPECT_EQ(banc.écran.cmbFontSize.Eléments(),
              (std::vector<Texte>{u"8", u"9", u"10", u"11", u"12", u"14", u"16", u"18", u"20", u"22", u"24", u"26",
                                  u"28", u"36", u"48", u"72"}));
}

TEST(Editeur, UneFenêtreTropPetiteRepasseAMille)
{
    BancEditeur banc;
    banc.écran.Dimensionner(999, 5000);
    EXPECT_EQ(banc.écran.Width, 1000);
    EXPECT_EQ(banc.écran.Height, 1000);
    banc.écran.Dimensionner(5000, 0);
    EXPECT_EQ(banc.écran.Width, 1000);
    banc.écran.Dimensionner(1000, 1000);
    EXPECT_EQ(banc.écran.Height, 1000);
    banc.écran.Dimensionner(6000, 4000);
    EXPECT_EQ(banc.écran.Width, 6000);
    EXPECT_EQ(banc.écran.Height, 4000);
}

namespace {
class Départ : public testing::TestWithParam<int> {
protected:
    static void Partir(frmEnseignant& écran)
    {
        GetParam() == 0   ? écran.mnuQuitter.Cliquer()
        : GetParam() == 1 ? écran.mnuArrêter.Cliquer()
                          : écran.FermerParCroix();
    }
};
} // namespace
INSTANTIATE_TEST_SUITE_P(Editeur, Départ, testing::Values(0, 1, 2));

TEST_P(Départ, SansChangementNeDemandeRienEtOublieLesNoms)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.état.TitreFichierTexte = u"chat";
    banc.état.CheminTextes = u"/ailleurs/";
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.écran.GarderCopie();
    banc.état.TexteModifié = false;
    Partir(banc.écran);
    EXPECT_FALSE(banc.écran.EstChargé());
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
    EXPECT_EQ(banc.état.NomFichierTexte, u"");
    EXPECT_EQ(banc.état.TitreFichierTexte, u"");
    EXPECT_EQ(banc.état.CheminTextes, banc.état.CheminAppli);
}

TEST_P(Départ, AvecDesChangementsDemandeEtNonLesLaisse)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le chat");
    banc.AnnoncerBoîte(Question, Réponse::Non);
    Partir(banc.écran);
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Titre, u"Avertissement");
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Choix, Boutons::OuiNon);
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Danger, Perte::ParNon);
    EXPECT_FALSE(banc.écran.EstChargé());
    EXPECT_FALSE(banc.Existe("chat.rtf"));
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST_P(Départ, AvecDesChangementsOuiEnregistre)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le chat");
    banc.AnnoncerBoîte(Question, Réponse::Oui);
    Partir(banc.écran);
    EXPECT_FALSE(banc.écran.EstChargé());
    EXPECT_EQ(LireRtf(banc.Lire("chat.rtf").value_or(""))->Caractères(), u"Le chat");
}

TEST_P(Départ, NAPasLieuQuandLEnregistrementVouluEchoue)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le chat");
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ecriture; };
    banc.AnnoncerBoîte(Question, Réponse::Oui);
    banc.AnnoncerBoîte(MessageEchec(EchecFichier::Ecriture, banc.CheminDe("chat.rtf")));
    Partir(banc.écran);
    EXPECT_TRUE(banc.écran.EstChargé());
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_EQ(banc.état.NomFichierTexte, banc.CheminDe("chat.rtf"));
}

TEST_P(Départ, NAPasLieuQuandLePremierEnregistrementEchoue)
{
    BancEditeur banc;
    banc.Taper(u"Le chat");
    const auto visé = banc.CheminDe("absent/chat.rtf");
    banc.AnnoncerBoîte(Question, Réponse::Oui);
    banc.AnnoncerFichier(visé);
    banc.AnnoncerBoîte(MessageEchec(EchecFichier::Ouverture, visé));
    Partir(banc.écran);
    EXPECT_TRUE(banc.écran.EstChargé());
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_EQ(banc.état.NomFichierTexte, u"");
}

// ---- The button bar ----------------------------------------------------------------------------------------------

TEST(Editeur, LaBarreALesBoutonsDansLOrdre)
{
    BancEditeur banc;
    std::vector<std::string> clés;
    for (const auto& bouton : banc.écran.tlbBoutons.Boutons()) {
        EXPECT_EQ(bouton.Clé.empty(), bouton.Icône.Formes.empty()) << bouton.Clé;
        EXPECT_EQ(bouton.Clé.empty(), bouton.ToolTipText.empty()) << bouton.Clé;
        if (!bouton.Clé.empty())
            clés.push_back(bouton.Clé);
    }
    EXPECT_EQ(clés, (std::vector<std::string>{"btnNouveau",  "btnOuvrir",    "btnEnregistrer", "btnSélectionner",
                                              "btnCouper",   "btnCopier",    "btnColler",      "btnAnnuler",
                                              "btnGras",     "btnSouligné",  "btnItalique",    "btnVocabulaire",
                                              "btnCouleurC", "btnGauche",    "btnDroite",      "btnCentrer",
                                              "btnChercher", "btnRemplacer", "btnImprimer",    "btnQuestion",
                                              "btnLexique"}));
}

namespace {
class AvecCopie : public testing::TestWithParam<const char*> {};
} // namespace
INSTANTIATE_TEST_SUITE_P(Editeur, AvecCopie,
                         testing::Values("btnCouper", "btnColler", "btnGras", "btnSouligné", "btnItalique",
                                         "btnVocabulaire", "btnCouleurC", "btnGauche", "btnDroite", "btnCentrer"));

TEST_P(AvecCopie, LeBoutonGardeLeTexteDAvant)
{
    BancEditeur banc;
    banc.écran.rtfTexte.TextRTF(Marqué(u"Le chat dort"));
    const auto avant = banc.écran.rtfTexte.TextRTF();
    banc.écran.rtfTexte.Sélectionner(3, 4);
    banc.plateforme.pressePapiers = u"chien";
    if (GetParam() == std::string_view{"btnCouleurC"})
        banc.plateforme.couleurs.emplace_back(Rouge);
    banc.Bouton(GetParam());
    EXPECT_EQ(banc.écran.rtfSauve.TextRTF(), avant);
    EXPECT_TRUE(banc.état.TexteModifié);

    banc.Bouton("btnAnnuler");
    EXPECT_EQ(banc.écran.rtfTexte.TextRTF(), avant);
    EXPECT_EQ(banc.écran.rtfTexte.SelText(), u"chat");
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
}

namespace {
class SansCopie : public testing::TestWithParam<const char*> {};
} // namespace
INSTANTIATE_TEST_SUITE_P(Editeur, SansCopie,
                         testing::Values("btnOuvrir", "btnEnregistrer", "btnSélectionner", "btnCopier", "btnAnnuler",
                                         "btnChercher", "btnRemplacer", "btnImprimer", "btnQuestion", "btnLexique"));

TEST_P(SansCopie, LeBoutonLaisseLaCopieCommeElleEst)
{
    BancEditeur banc;
    for (const auto* nom : {"frmRechercher", "frmQuestions", "frmLexique"})
        PlacerTémoin(banc, nom);
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.Nommer("chat.rtf");
    const std::string_view clé = GetParam();
    if (clé == "btnOuvrir")
        banc.AnnoncerFichier(std::nullopt);
    if (clé == "btnImprimer")
        banc.plateforme.impressions.push_back(true);
    if (clé == "btnChercher" || clé == "btnRemplacer" || clé == "btnQuestion" || clé == "btnLexique")
        banc.QuandOuvert<Témoin>([](Témoin&) {});
    banc.Bouton(clé);
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
}

TEST(Editeur, ChaqueBoutonFermeDAbordLaListeDesPolices)
{
    BancEditeur banc;
    banc.écran.flèchePolice.Cliquer();
    ASSERT_TRUE(banc.écran.framePolices.Visible);
    banc.Bouton("btnCopier");
    EXPECT_FALSE(banc.écran.framePolices.Visible);
    EXPECT_EQ(banc.écran.Focus(), &banc.écran.rtfTexte);
}

TEST(Editeur, UneCléInconnueNeFaitRien)
{
    BancEditeur banc;
    banc.Bouton("btnInconnu");
    banc.Bouton("");
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, AnnulerDeuxFoisNeFaitRienLaSecondeFois)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.Bouton("btnSélectionner");
    banc.Bouton("btnGras");
    banc.Bouton("btnAnnuler");
    EXPECT_EQ(banc.écran.rtfTexte.SelBold(), false);
    banc.Taper(u"Le chien");
    banc.Bouton("btnAnnuler");
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chien");
}

TEST(Editeur, LeRaccourciAnnuleAussi)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.Bouton("btnSélectionner");
    banc.Bouton("btnCouper");
    banc.écran.mnuAnnuler.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
}

TEST(Editeur, LAvantDernièreActionNeRevientPas)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.Bouton("btnSélectionner");
    banc.Bouton("btnGras");
    banc.Bouton("btnItalique");
    banc.Bouton("btnAnnuler");
    EXPECT_EQ(banc.écran.rtfTexte.SelBold(), true);
    EXPECT_EQ(banc.écran.rtfTexte.SelItalic(), false);
}

TEST(Editeur, LesOptionsDuMenuNeGardentPasDeCopie)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.écran.mnuSélectionner.Cliquer();
    banc.écran.mnuGras.Cliquer();
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
}

// ---- Other screens -----------------------------------------------------------------------------------------------

TEST(Editeur, RechercherEtRemplacerOuvrentLaMêmeFenêtre)
{
    BancEditeur banc;
    PlacerTémoin(banc, "frmRechercher");
    banc.état.ModeRechercher = false;
    banc.QuandOuvert<Témoin>([&](Témoin& fenêtre) {
        EXPECT_TRUE(banc.état.ModeRechercher);
        EXPECT_EQ(&fenêtre.ouvreur, &banc.écran);
    });
    banc.écran.mnuRechercher.Cliquer();
    banc.QuandOuvert<Témoin>([&](Témoin&) { EXPECT_FALSE(banc.état.ModeRechercher); });
    banc.écran.mnuRemplacer.Cliquer();
    EXPECT_EQ(banc.plateforme.écransMontrés, (std::vector<std::string>{"frmRechercher", "frmRechercher"}));
}

TEST(Editeur, LaGestionDesElèvesSOuvre)
{
    BancEditeur banc;
    PlacerTémoin(banc, "frmGestionEleves");
    banc.QuandOuvert<Témoin>([](Témoin&) {});
    banc.écran.mnuGestion.Cliquer();
    EXPECT_EQ(banc.plateforme.écransMontrés, std::vector<std::string>{"frmGestionEleves"});
}

TEST(Editeur, SansNomDeFichierLesOutilsDuTexteSontRefusés)
{
    BancEditeur banc;
    banc.AnnoncerBoîte(u"Enregistrez votre texte pour accéder au QCM.");
    banc.Bouton("btnQuestion");
    banc.AnnoncerBoîte(u"Enregistrez votre texte pour accéder au lexique.");
    banc.Bouton("btnLexique");
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Titre, u"Avertissement");
}

TEST(Editeur, AvecUnNomLesOutilsDuTexteSOuvrent)
{
    BancEditeur banc;
    PlacerTémoin(banc, "frmQuestions");
    PlacerTémoin(banc, "frmLexique");
    banc.Nommer("chat.rtf");
    banc.QuandOuvert<Témoin>([](Témoin& outil) { EXPECT_EQ(outil.Nom, "frmQuestions"); });
    banc.Bouton("btnQuestion");
    banc.QuandOuvert<Témoin>([](Témoin& outil) { EXPECT_EQ(outil.Nom, "frmLexique"); });
    banc.Bouton("btnLexique");
}

// ---- New ---------------------------------------------------------------------------------------------------------

TEST(Editeur, NouveauVideLeTexteEtLesNoms)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.Nommer("chat.rtf");
    banc.état.CheminTextes = u"/ailleurs/";
    banc.écran.GarderCopie();
    banc.écran.mnuNouveau.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Longueur(), 0U);
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
    EXPECT_EQ(banc.écran.Caption, u"Nouveau document");
    EXPECT_EQ(banc.état.NomFichierTexte, u"");
    EXPECT_EQ(banc.état.TitreFichierTexte, u"");
    EXPECT_EQ(banc.état.CheminTextes, banc.état.CheminAppli);
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, NouveauReprendLaPoliceDuDépart)
{
    BancEditeur banc;
    banc.écran.rtfTexte.TextRTF(TexteRiche{u"Le chat", {.Police = u"Arial", .Taille = 30}});
    banc.état.TexteModifié = false;
    banc.écran.mnuNouveau.Cliquer();
    EXPECT_EQ(banc.écran.txtPolices(0).Text, u"Comic Sans MS");
    EXPECT_EQ(banc.écran.cmbFontSize.Text, u"12");
}

TEST(Editeur, NouveauDemandeEtNonLaisseLesChangements)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le chat");
    banc.AnnoncerBoîte(Question, Réponse::Non);
    banc.écran.mnuNouveau.Cliquer();
    EXPECT_FALSE(banc.Existe("chat.rtf"));
    EXPECT_EQ(banc.écran.rtfTexte.Longueur(), 0U);
}

TEST(Editeur, NouveauDemandeEtOuiEnregistreDAbord)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le chat");
    banc.AnnoncerBoîte(Question, Réponse::Oui);
    banc.écran.mnuNouveau.Cliquer();
    EXPECT_TRUE(banc.Existe("chat.rtf"));
    EXPECT_EQ(banc.écran.rtfTexte.Longueur(), 0U);
    EXPECT_EQ(banc.écran.mnuRécent(0).Caption, Entrée(1, banc.CheminDe("chat.rtf")));
}

TEST(Editeur, NouveauGardeLeTexteQueLEnregistrementNAPasPuEcrire)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le chat");
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ouverture; };
    banc.AnnoncerBoîte(Question, Réponse::Oui);
    banc.AnnoncerBoîte(MessageEchec(EchecFichier::Ouverture, banc.CheminDe("chat.rtf")));
    banc.écran.mnuNouveau.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    EXPECT_TRUE(banc.état.TexteModifié);
}

// The question has no cancel of its own: giving up the file's name gives up the text.
TEST(Editeur, OuiPuisAnnulerLeDialogueContinueSansEnregistrer)
{
    BancEditeur banc;
    banc.Taper(u"Le chat");
    banc.AnnoncerBoîte(Question, Réponse::Oui);
    banc.AnnoncerFichier(std::nullopt);
    banc.écran.mnuNouveau.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Longueur(), 0U);
    EXPECT_FALSE(banc.état.TexteModifié);
}

// ---- Open --------------------------------------------------------------------------------------------------------

TEST(Editeur, OuvrirMontreSonDialogue)
{
    BancEditeur banc;
    banc.état.CheminTextes.clear();
    banc.AnnoncerFichier(std::nullopt);
    banc.écran.mnuOuvrir.Cliquer();
    const auto& dialogue = banc.plateforme.dialogues.at(0);
    EXPECT_EQ(dialogue.Titre, u"Ouvrir un fichier texte");
    EXPECT_EQ(dialogue.Filtre, u"Textes RTF|*.rtf|Textes TXT|*.txt|Tous fichiers|*.*");
    EXPECT_EQ(dialogue.Dossier, banc.état.CheminAppli);
    EXPECT_EQ(dialogue.NomFichier, u"*.rtf");
}

TEST(Editeur, OuvrirPrendLeTexteSesMarquesEtSesNoms)
{
    BancEditeur banc;
    banc.Ecrire("textes/Le chat.v2.rtf", EcrireRtf(Marqué(u"Le chat\r\ndort")));
    const auto chemin = banc.CheminDe("textes/Le chat.v2.rtf");
    banc.écran.GarderCopie();
    banc.AnnoncerFichier(chemin);
    banc.écran.mnuOuvrir.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat\r\ndort");
    EXPECT_EQ(MotsMarqués(banc.écran.rtfTexte.TextRTF()), std::vector<Texte>{u"Le"});
    EXPECT_EQ(banc.état.NomFichierTexte, chemin);
    EXPECT_EQ(banc.état.TitreFichierTexte, u"Le chat");
    EXPECT_EQ(banc.état.CheminTextes, banc.CheminDe("textes/"));
    EXPECT_EQ(banc.écran.Caption, chemin);
    EXPECT_EQ(banc.écran.mnuRécent(0).Caption, Entrée(1, chemin));
    EXPECT_TRUE(banc.écran.mnuSépa.Visible);
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, OuvrirDonneSaMargeATousLesParagraphes)
{
    BancEditeur banc;
    for (const Texte texte : {u"Un\r\n\r\ndeux", u"\r\nUn", u"", u"a"}) {
        banc.Ecrire("chat.rtf", EcrireRtf(TexteRiche{texte}));
        banc.AnnoncerFichier(banc.CheminDe("chat.rtf"));
        banc.écran.mnuOuvrir.Cliquer();
        EXPECT_EQ(banc.écran.rtfTexte.Text(), texte);
        banc.écran.mnuSélectionner.Cliquer();
        EXPECT_EQ(banc.écran.rtfTexte.SelIndent(), 100);
        EXPECT_EQ(banc.écran.rtfTexte.SelRightIndent(), 100);
        EXPECT_FALSE(banc.état.TexteModifié);
    }
}

TEST(Editeur, OuvrirMontreLaPoliceEtVideLaCopie)
{
    BancEditeur banc;
    banc.Ecrire("chat.rtf", EcrireRtf(TexteRiche{u"Le chat", {.Police = u"Inconnue", .Taille = 12.5}}));
    banc.écran.rtfTexte.Text(u"avant");
    banc.écran.GarderCopie();
    banc.AnnoncerFichier(banc.CheminDe("chat.rtf"));
    banc.écran.mnuOuvrir.Cliquer();
    EXPECT_EQ(banc.écran.txtPolices(0).Text, u"Inconnue");
    EXPECT_EQ(banc.écran.cmbFontSize.Text, u"12,5");
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
    EXPECT_EQ(banc.écran.rtfTexte.SelLength(), 0U);
}

TEST(Editeur, OuvrirAvecDesChangementsNeDemandeRienEtLesPerd)
{
    BancEditeur banc;
    banc.Taper(u"Perdu");
    banc.Ecrire("chat.rtf", EcrireRtf(TexteRiche{u"Le chat"}));
    banc.AnnoncerFichier(banc.CheminDe("chat.rtf"));
    banc.écran.mnuOuvrir.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, AnnulerLOuvertureEffaceLaMarqueDeChangement)
{
    BancEditeur banc;
    banc.Taper(u"Le chat");
    banc.AnnoncerFichier(std::nullopt);
    banc.écran.mnuOuvrir.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, UnFichierIllisibleEstDitEtLeTexteReste)
{
    BancEditeur banc;
    banc.Nommer("ancien.rtf");
    banc.Taper(u"Le chat");
    banc.AnnoncerFichier(banc.CheminDe("absent.rtf"));
    banc.AnnoncerBoîte(u"Impossible de lire ce format de fichier !");
    banc.écran.mnuOuvrir.Cliquer();
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Titre, u"Erreur d'ouverture de fichier");
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Symbole, Icône::Critique);
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    EXPECT_EQ(banc.état.NomFichierTexte, banc.CheminDe("ancien.rtf"));
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, UnTexteSimpleOuvertEtEnregistréDevientDuRtfSousSonNom)
{
    BancEditeur banc;
    banc.écran.mnuAuto.Checked = false;
    banc.Ecrire("chat.txt", "L'\xE9t\xE9\n\x9Cuf");
    banc.AnnoncerFichier(banc.CheminDe("chat.txt"));
    banc.écran.mnuOuvrir.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"L'été\r\nœuf");
    banc.écran.mnuEnregistrer.Cliquer();
    const auto octets = banc.Lire("chat.txt").value_or("");
    EXPECT_TRUE(octets.starts_with("{\\rtf"));
    EXPECT_EQ(LireRtf(octets)->Caractères(), u"L'été\r\nœuf");
}

TEST(Editeur, UnFichierQuiNEstPasDuTexteEstRefusé)
{
    BancEditeur banc;
    banc.Nommer("ancien.rtf");
    banc.Taper(u"Le chat");
    banc.Ecrire("lettre.docx", "PK\x03\x04");
    banc.AnnoncerFichier(banc.CheminDe("lettre.docx"));
    banc.AnnoncerBoîte(u"Impossible de lire ce format de fichier !");
    banc.écran.mnuOuvrir.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_EQ(banc.Lire("lettre.docx"), "PK\x03\x04");
    EXPECT_TRUE(banc.Existe("ancien.rtf"));
}

TEST(Editeur, CeQuiNEstPasUnTexteDuProgrammeNeSeRemplacePasSansDemander)
{
    for (const auto* nom : {"page.html", "Léa.bil", "MAJ.QST"}) {
        BancEditeur banc;
        banc.écran.mnuAuto.Checked = false;
        banc.Ecrire(nom, "\"abc\"");
        banc.AnnoncerFichier(banc.CheminDe(nom));
        banc.écran.mnuOuvrir.Cliquer();
        banc.Taper(u"x");

        banc.AnnoncerFichier(std::nullopt);
        banc.écran.mnuEnregistrer.Cliquer();
        EXPECT_EQ(banc.Lire(nom), "\"abc\"");
        EXPECT_EQ(banc.plateforme.dialogues.back().NomFichier,
                  banc.CheminDe(Chemin{nom}.replace_extension("rtf").string()));
        EXPECT_TRUE(banc.état.TexteModifié);

        banc.AnnoncerFichier(banc.CheminDe("texte.rtf"));
        banc.écran.mnuEnregistrer.Cliquer();
        banc.Taper(u"y");
        banc.écran.mnuEnregistrer.Cliquer();
        EXPECT_EQ(LireRtf(banc.Lire("texte.rtf").value_or(""))->Caractères(), u"xy\"abc\"");
        EXPECT_EQ(banc.Lire(nom), "\"abc\"");
    }
}

TEST(Editeur, DuTexteRicheSousUnAutreNomSEnregistreTelQuel)
{
    BancEditeur banc;
    banc.écran.mnuAuto.Checked = false;
    banc.Ecrire("chat.doc", "{\\rtf1 chat}");
    banc.AnnoncerFichier(banc.CheminDe("chat.doc"));
    banc.écran.mnuOuvrir.Cliquer();
    banc.Taper(u"x");
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_EQ(LireRtf(banc.Lire("chat.doc").value_or(""))->Caractères(), u"xchat");
}

// ---- Save --------------------------------------------------------------------------------------------------------

TEST(Editeur, EnregistrerEcritSousLeNomConnu)
{
    BancEditeur banc;
    banc.Ecrire("chat.rtf", "ancien");
    banc.Nommer("chat.rtf");
    banc.écran.rtfTexte.TextRTF(Marqué(u"Le chat"));
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_EQ(MotsMarqués(*LireRtf(banc.Lire("chat.rtf").value_or(""))), std::vector<Texte>{u"Le"});
    EXPECT_FALSE(banc.état.TexteModifié);
    EXPECT_EQ(banc.accueil.lstFichiers.List(0), banc.CheminDe("chat.rtf"));
}

TEST(Editeur, EnregistrerUneSecondeFoisRéussitAprèsUnEchec)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le chat");
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ecriture; };
    banc.AnnoncerBoîte(MessageEchec(EchecFichier::Ecriture, banc.CheminDe("chat.rtf")));
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_EQ(banc.accueil.lstFichiers.ListCount(), 0);

    banc.plateforme.échecEcriture = {};
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_FALSE(banc.état.TexteModifié);
    EXPECT_EQ(LireRtf(banc.Lire("chat.rtf").value_or(""))->Caractères(), u"Le chat");
}

// The file of before is gone: what the box holds is all there is.
TEST(Editeur, UnTexteSansChangementQuiNAPasPuEtreEcritEstAEnregistrer)
{
    BancEditeur banc;
    banc.Nommer("parti/chat.rtf");
    banc.AnnoncerBoîte(MessageEchec(EchecFichier::Ouverture, banc.CheminDe("parti/chat.rtf")));
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_TRUE(banc.état.TexteModifié);
}

TEST(Editeur, UnDossierDisparuEstDit)
{
    BancEditeur banc;
    banc.Nommer("parti/chat.rtf");
    banc.Taper(u"Le chat");
    banc.AnnoncerBoîte(MessageEchec(EchecFichier::Ouverture, banc.CheminDe("parti/chat.rtf")));
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
}

TEST(Editeur, EnregistrerMontreLAvisPendantLaCorrection)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le  chat .");
    banc.écran.rtfTexte.SelStart(4);
    bool vu = false;
    banc.plateforme.auRepeint = [&](Ecran&) {
        vu = banc.écran.frameCorrection.Visible && banc.écran.rtfTexte.Text() == u"Le  chat .";
    };
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_TRUE(vu);
    EXPECT_EQ(banc.plateforme.repeints, 1);
    EXPECT_FALSE(banc.écran.frameCorrection.Visible);
    EXPECT_EQ(banc.écran.frameCorrection.Caption, u"Patience...");
    EXPECT_EQ(banc.écran.txtMessageCorrection.Text,
              u"Correction en cours : erreurs de ponctuation et espaces multiples.");
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat. ");
    EXPECT_EQ(banc.écran.rtfTexte.SelStart(), 0U);
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
}

TEST(Editeur, SansMiseEnFormeAutomatiqueLeTexteEstEnregistréTelQuel)
{
    BancEditeur banc;
    banc.écran.mnuAuto.Checked = false;
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le  chat .");
    banc.écran.rtfTexte.SelStart(4);
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_EQ(LireRtf(banc.Lire("chat.rtf").value_or(""))->Caractères(), u"Le  chat .");
    EXPECT_EQ(banc.écran.rtfTexte.SelStart(), 4U);
    EXPECT_EQ(banc.plateforme.repeints, 0);
}

TEST(Editeur, RetirerLaMiseEnFormeAutomatiqueDemandeConfirmation)
{
    BancEditeur banc;
    const Texte message = u"La mise en forme automatique corrige les erreurs d'espaces multiples et\n"
                          u"et de ponctuation, remplaçant également certains caractères sans nuire\n"
                          u"au texte saisi (correction à l'enregistrement).\n\n"
                          u"Souhaitez-vous supprimer cette fonction ?\n\n"
                          u"La désactivation pourrait entraîner des problèmes dans le module Elève !!!";
    banc.AnnoncerBoîte(message, Réponse::Non);
    banc.écran.mnuAuto.Cliquer();
    EXPECT_TRUE(banc.écran.mnuAuto.Checked);
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Titre, u"Espaces et Ponctuation");
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Danger, Perte::ParOui);
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Choix, Boutons::OuiNon);
    banc.AnnoncerBoîte(message, Réponse::Oui);
    banc.écran.mnuAuto.Cliquer();
    EXPECT_FALSE(banc.écran.mnuAuto.Checked);
    banc.écran.mnuAuto.Cliquer(); // on again, with no question
    EXPECT_TRUE(banc.écran.mnuAuto.Checked);
}

TEST(Editeur, LePremierEnregistrementProposeLesPremiersMots)
{
    BancEditeur banc;
    banc.Taper(u"Le chat. Il dort.");
    banc.AnnoncerFichier(banc.CheminDe("Mon chat.v1.rtf"));
    banc.écran.mnuEnregistrer.Cliquer();
    const auto& dialogue = banc.plateforme.dialogues.at(0);
    EXPECT_EQ(dialogue.NomFichier, u"Le chat.rtf");
    EXPECT_EQ(dialogue.Dossier, banc.état.CheminAppli);
    EXPECT_EQ(dialogue.Filtre, u"Texte mis en forme (*.rtf)|*.rtf");
    EXPECT_TRUE(banc.Existe("Mon chat.v1.rtf"));
    EXPECT_EQ(banc.état.NomFichierTexte, banc.CheminDe("Mon chat.v1.rtf"));
    EXPECT_EQ(banc.état.TitreFichierTexte, u"Mon chat");
    EXPECT_EQ(banc.état.CheminTextes, banc.CheminDe(""));
    EXPECT_EQ(banc.écran.Caption, banc.état.NomFichierTexte);
    EXPECT_EQ(banc.écran.mnuRécent(0).Caption, Entrée(1, banc.état.NomFichierTexte));
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, EnregistrerSousProposeLeNomConnuEtEnPrendUnAutre)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le chat");
    banc.AnnoncerFichier(banc.CheminDe("chien.rtf"));
    banc.écran.mnuEnregistrerSous.Cliquer();
    EXPECT_EQ(banc.plateforme.dialogues.at(0).NomFichier, banc.CheminDe("chat.rtf"));
    EXPECT_FALSE(banc.Existe("chat.rtf"));
    EXPECT_TRUE(banc.Existe("chien.rtf"));
    EXPECT_EQ(banc.état.TitreFichierTexte, u"chien");
}

TEST(Editeur, EnregistrerSousCorrigeAussi)
{
    BancEditeur banc;
    banc.Taper(u"Le  chat .");
    banc.AnnoncerFichier(banc.CheminDe("chat.rtf"));
    banc.écran.mnuEnregistrerSous.Cliquer();
    EXPECT_EQ(LireRtf(banc.Lire("chat.rtf").value_or(""))->Caractères(), u"Le chat. ");
    EXPECT_EQ(banc.plateforme.repeints, 1);
}

TEST(Editeur, UnDocumentVideSansTitreSEnregistreSousDocument)
{
    BancEditeur banc;
    banc.AnnoncerFichier(u"");
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_EQ(banc.plateforme.dialogues.at(0).NomFichier, u".rtf");
    EXPECT_TRUE(banc.Existe("document.rtf"));
    EXPECT_EQ(banc.état.TitreFichierTexte, u"document");
}

TEST(Editeur, UnNomFaitDeLaSeuleExtensionEnFaitLeTitre)
{
    BancEditeur banc;
    banc.AnnoncerFichier(banc.CheminDe(".rtf"));
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_TRUE(banc.Existe(".rtf"));
    EXPECT_EQ(banc.état.TitreFichierTexte, u".rtf");
    EXPECT_EQ(banc.état.CheminTextes, banc.CheminDe(""));
}

TEST(Editeur, UnDossierSansTitreReçoitLeDocumentParDéfaut)
{
    BancEditeur banc;
    banc.Ecrire("textes/autre.rtf", "");
    banc.AnnoncerFichier(banc.CheminDe("textes/"));
    banc.écran.mnuEnregistrerSous.Cliquer();
    EXPECT_TRUE(banc.Existe("textes/document.rtf"));
}

TEST(Editeur, AnnulerEnregistrerSousLaisseToutCommeAvant)
{
    BancEditeur banc;
    banc.Taper(u"Le chat");
    banc.AnnoncerFichier(std::nullopt);
    banc.écran.mnuEnregistrerSous.Cliquer();
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_EQ(banc.état.NomFichierTexte, u"");
    EXPECT_EQ(banc.état.TitreFichierTexte, u"Document");

    banc.AnnoncerFichier(std::nullopt);
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_EQ(banc.état.NomFichierTexte, u"");
}

TEST(Editeur, UnEchecDEnregistrerSousEstDitEtLaisseLesNoms)
{
    BancEditeur banc;
    banc.Nommer("chat.rtf");
    banc.état.TitreFichierTexte = u"chat";
    banc.état.CheminTextes = banc.CheminDe("");
    banc.Taper(u"Le chat");
    const auto visé = banc.CheminDe("absent/chien.rtf");
    banc.AnnoncerFichier(visé);
    banc.AnnoncerBoîte(MessageEchec(EchecFichier::Ouverture, visé));
    banc.écran.mnuEnregistrerSous.Cliquer();
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    EXPECT_EQ(banc.état.NomFichierTexte, banc.CheminDe("chat.rtf"));
    EXPECT_EQ(banc.état.TitreFichierTexte, u"chat");
    EXPECT_EQ(banc.état.CheminTextes, banc.CheminDe(""));
    EXPECT_EQ(banc.écran.Caption, u"Enseignant");
}

TEST(Editeur, LesBlancsAutourDuNomSontRognés)
{
    BancEditeur banc;
    banc.Taper(u"Le chat");
    banc.état.NomFichierTexte = u"  " + banc.CheminDe("chat.rtf") + u" ";
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_TRUE(banc.Existe("chat.rtf"));
}

TEST(Editeur, CaractèresHorsDeWindows1252SurviventALEnregistrement)
{
    BancEditeur banc;
    banc.écran.mnuAuto.Checked = false;
    banc.Nommer("chat.rtf");
    banc.Taper(u"日本 \U0001F600 œuf");
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_EQ(LireRtf(banc.Lire("chat.rtf").value_or(""))->Caractères(), u"日本 \U0001F600 œuf");
}

// ---- Recent files ------------------------------------------------------------------------------------------------

TEST(Editeur, LesRécentsDeLaDernièreFoisSontAuMenu)
{
    BancEditeur banc;
    banc.EcrireRécents("/t/a.rtf\r\n\r\n/t/b.rtf\r\n");
    banc.écran.ChargerRécents();
    EXPECT_TRUE(banc.écran.mnuSépa.Visible);
    EXPECT_EQ(banc.écran.mnuRécent(0).Caption, u" 1 - /t/a.rtf");
    EXPECT_EQ(banc.écran.mnuRécent(1).Caption, u" 2 - /t/b.rtf");
    EXPECT_TRUE(banc.écran.mnuRécent(1).Visible);
    EXPECT_EQ(banc.écran.mnuRécent(2).Caption, u"");
    EXPECT_FALSE(banc.écran.mnuRécent(2).Visible);
}

TEST(Editeur, UnFichierDeRécentsVideVideLeMenu)
{
    BancEditeur banc;
    banc.EcrireRécents("/t/a.rtf\r\n");
    banc.écran.ChargerRécents();
    banc.EcrireRécents("");
    banc.écran.ChargerRécents();
    EXPECT_FALSE(banc.écran.mnuSépa.Visible);
    EXPECT_FALSE(banc.écran.mnuRécent(0).Visible);
}

TEST(Editeur, LeDixièmeFichierPousseLePlusAncienHorsDuMenuEtDuFichier)
{
    BancEditeur banc;
    for (int i = 1; i <= 10; ++i) {
        banc.AnnoncerFichier(banc.CheminDe(NomNuméroté(i)));
        banc.écran.mnuEnregistrerSous.Cliquer();
    }
    EXPECT_EQ(banc.écran.mnuRécent(0).Caption, Entrée(1, banc.CheminDe("10.rtf")));
    EXPECT_EQ(banc.écran.mnuRécent(8).Caption, Entrée(9, banc.CheminDe("2.rtf")));
    std::string attendu;
    for (int i = 10; i >= 2; --i)
        attendu += (banc.dossier / NomNuméroté(i)).string() + "\r\n";
    EXPECT_EQ(LireFichier(banc.Récents()), attendu);
}

TEST(Editeur, UneListeQuiNeSEcritPasResteAuMenu)
{
    BancEditeur banc;
    banc.plateforme.échecEcriture = [&](const Chemin& fichier) {
        return fichier == banc.Récents() ? std::optional{EchecFichier::Ouverture} : std::nullopt;
    };
    for (const auto* nom : {"a.rtf", "b.rtf"}) {
        banc.AnnoncerFichier(banc.CheminDe(nom));
        banc.écran.mnuEnregistrerSous.Cliquer();
    }
    EXPECT_EQ(banc.écran.mnuRécent(0).Caption, Entrée(1, banc.CheminDe("b.rtf")));
    EXPECT_EQ(banc.écran.mnuRécent(1).Caption, Entrée(2, banc.CheminDe("a.rtf")));
    frmEnseignant suivant{banc.accueil}; // for the whole run
    suivant.Charger();
    EXPECT_EQ(suivant.mnuRécent(1).Caption, Entrée(2, banc.CheminDe("a.rtf")));
    suivant.Décharger();

    banc.plateforme.échecEcriture = {};
    banc.AnnoncerFichier(banc.CheminDe("c.rtf"));
    banc.écran.mnuEnregistrerSous.Cliquer();
    banc.EcrireRécents("/t/a.rtf\r\n"); // whole on the disk: the file leads again
    banc.écran.ChargerRécents();
    EXPECT_EQ(banc.écran.mnuRécent(0).Caption, Entrée(1, u"/t/a.rtf"));
}

TEST(Editeur, UnRécentSOuvreEtPasseEnTête)
{
    BancEditeur banc;
    for (const auto* nom : {"un.deux.rtf", "b.rtf"}) {
        banc.Ecrire(nom, EcrireRtf(TexteRiche{DepuisUtf8(nom)}));
        banc.AnnoncerFichier(banc.CheminDe(nom));
        banc.écran.mnuOuvrir.Cliquer();
    }
    banc.écran.GarderCopie();
    banc.écran.mnuRécent(1).Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"un.deux.rtf");
    EXPECT_EQ(banc.écran.mnuRécent(0).Caption, Entrée(1, banc.CheminDe("un.deux.rtf")));
    EXPECT_EQ(banc.écran.mnuRécent(1).Caption, Entrée(2, banc.CheminDe("b.rtf")));
    EXPECT_FALSE(banc.écran.mnuRécent(2).Visible);
    EXPECT_EQ(banc.état.NomFichierTexte, banc.CheminDe("un.deux.rtf"));
    EXPECT_EQ(banc.état.TitreFichierTexte, u"un");
    EXPECT_EQ(banc.état.CheminTextes, banc.CheminDe(""));
    EXPECT_EQ(banc.écran.Caption, banc.CheminDe("un.deux.rtf"));
    EXPECT_EQ(banc.écran.rtfTexte.SelRightIndent(), 100);
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, UnRécentDemandeDAbordPourLesChangements)
{
    BancEditeur banc;
    banc.Ecrire("a.rtf", EcrireRtf(TexteRiche{u"a"}));
    banc.AnnoncerFichier(banc.CheminDe("a.rtf"));
    banc.écran.mnuOuvrir.Cliquer();
    banc.Taper(u"b");
    banc.AnnoncerBoîte(Question, Réponse::Oui);
    banc.écran.mnuRécent(0).Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"ba");
}

// The save puts a new path at the top, and what was clicked in another place.
TEST(Editeur, UnRécentRestéCeluiQuiEtaitCliqué)
{
    BancEditeur banc;
    for (const auto* nom : {"un.rtf", "deux.rtf"})
        banc.Ecrire(nom, EcrireRtf(TexteRiche{DepuisUtf8(nom)}));
    banc.EcrireRécents(EnUtf8(banc.CheminDe("un.rtf")) + "\r\n" + EnUtf8(banc.CheminDe("deux.rtf")) + "\r\n");
    banc.écran.ChargerRécents();
    banc.Taper(u"neuf");
    banc.AnnoncerBoîte(Question, Réponse::Oui);
    banc.AnnoncerFichier(banc.CheminDe("neuf.rtf"));
    banc.écran.mnuRécent(1).Cliquer();
    EXPECT_TRUE(banc.Existe("neuf.rtf"));
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"deux.rtf");
    EXPECT_EQ(banc.état.NomFichierTexte, banc.CheminDe("deux.rtf"));
}

TEST(Editeur, UneEsperluetteDUnRécentSeVoitEtSOuvre)
{
    BancEditeur banc;
    banc.Ecrire("chat & chien && co &.rtf", EcrireRtf(TexteRiche{u"miaou"}));
    const auto chemin = banc.CheminDe("chat & chien && co &.rtf");
    banc.EcrireRécents(EnUtf8(chemin) + "\r\n");
    banc.écran.ChargerRécents();
    EXPECT_EQ(banc.écran.mnuRécent(0).Caption, Entrée(1, banc.CheminDe("chat && chien &&&& co &&.rtf")));
    banc.écran.mnuRécent(0).Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"miaou");
    EXPECT_EQ(banc.état.NomFichierTexte, chemin);
}

TEST(Editeur, UnRécentNePerdPasLeTexteQuiNAPasPuEtreEcrit)
{
    BancEditeur banc;
    banc.Ecrire("a.rtf", EcrireRtf(TexteRiche{u"a"}));
    banc.AnnoncerFichier(banc.CheminDe("a.rtf"));
    banc.écran.mnuOuvrir.Cliquer();
    banc.Taper(u"b");
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ouverture; };
    banc.AnnoncerBoîte(Question, Réponse::Oui);
    banc.AnnoncerBoîte(MessageEchec(EchecFichier::Ouverture, banc.CheminDe("a.rtf")));
    banc.écran.mnuRécent(0).Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"ba");
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_EQ(LireRtf(banc.Lire("a.rtf").value_or(""))->Caractères(), u"a"); // not even started
}

TEST(Editeur, UnRécentDisparuEstDit)
{
    BancEditeur banc;
    banc.EcrireRécents("/nulle/part.rtf\r\n");
    banc.écran.ChargerRécents();
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.Nommer("chat.rtf");
    banc.AnnoncerBoîte(u"Je ne trouve pas le fichier sélectionné !");
    banc.écran.mnuRécent(0).Cliquer();
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Titre, u"Fichier non trouvé");
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    EXPECT_EQ(banc.état.NomFichierTexte, banc.CheminDe("chat.rtf"));
}

TEST(Editeur, DesRécentsImpossiblesAEcrireNArrêtentPersonne)
{
    BancEditeur banc;
    banc.plateforme.échecEcriture = [&](const Chemin& fichier) {
        return fichier == banc.Récents() ? std::optional{EchecFichier::Ouverture} : std::nullopt;
    };
    banc.Nommer("chat.rtf");
    banc.Taper(u"Le chat");
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_TRUE(banc.plateforme.boîtesMontrées.empty());
    EXPECT_TRUE(banc.Existe("chat.rtf"));
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, UnCheminQueLaListeNePeutGarderSOuvreQuandMême)
{
    BancEditeur banc;
    banc.Ecrire("日本.rtf", EcrireRtf(TexteRiche{u"a"}));
    banc.AnnoncerFichier(banc.CheminDe("日本.rtf"));
    banc.écran.mnuOuvrir.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"a");
    EXPECT_EQ(banc.état.TitreFichierTexte, u"日本");
    EXPECT_TRUE(banc.écran.mnuRécent(0).Visible); // while the program runs
}

// ---- Editing -----------------------------------------------------------------------------------------------------

TEST(Editeur, LaFrappeMarqueLeChangementEtFermeLaListe)
{
    BancEditeur banc;
    banc.écran.flèchePolice.Cliquer();
    banc.Taper(u"L");
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_FALSE(banc.écran.framePolices.Visible);
}

TEST(Editeur, LaFrappeSurUneSélectionMixteMontreLeFormatDeLaLettre)
{
    BancEditeur banc;
    auto& boîte = banc.écran.rtfTexte;
    boîte.Text(u"Le chat");
    boîte.Sélectionner(0, 2);
    boîte.SelBold = true;
    boîte.Sélectionner(0, 7);
    ASSERT_EQ(banc.Etat("btnGras"), Toolbar::Etat::Mixte);
    banc.Taper(u"L");
    EXPECT_EQ(banc.Etat("btnGras"), Toolbar::Etat::Relâché);
}

TEST(Editeur, UnClicDansLeTexteFermeLaListe)
{
    BancEditeur banc;
    banc.écran.flèchePolice.Cliquer();
    banc.écran.rtfTexte.Cliquer(0);
    EXPECT_FALSE(banc.écran.framePolices.Visible);
}

TEST(Editeur, UnClicHorsDesElémentsFermeLaListe)
{
    BancEditeur banc;
    banc.écran.flèchePolice.Cliquer();
    banc.écran.Cliquer();
    EXPECT_FALSE(banc.écran.framePolices.Visible);
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, DéplacerLaSélectionNEstPasUnChangement)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.état.TexteModifié = false;
    banc.écran.flèchePolice.Cliquer();
    banc.écran.rtfTexte.Sélectionner(2, 3);
    EXPECT_FALSE(banc.état.TexteModifié);
    EXPECT_FALSE(banc.écran.framePolices.Visible);
}

TEST(Editeur, CopierMetLaSélectionDansLePressePapiers)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.état.TexteModifié = false;
    banc.écran.rtfTexte.Sélectionner(3, 4);
    banc.écran.mnuCopier.Cliquer();
    EXPECT_EQ(banc.plateforme.pressePapiers, u"chat");
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, CouperVideLaSélection)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.état.TexteModifié = false;
    banc.écran.rtfTexte.Sélectionner(2, 5);
    banc.écran.mnuCouper.Cliquer();
    EXPECT_EQ(banc.plateforme.pressePapiers, u" chat");
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le");
    EXPECT_TRUE(banc.état.TexteModifié);
}

TEST(Editeur, CopierOuCouperRienLaisseLePressePapiers)
{
    BancEditeur banc;
    banc.plateforme.pressePapiers = u"gardé";
    banc.écran.mnuCopier.Cliquer();
    banc.écran.mnuCouper.Cliquer();
    EXPECT_EQ(banc.plateforme.pressePapiers, u"gardé");
}

TEST(Editeur, CollerRemplaceLaSélectionParDuTexteNormalisé)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.écran.rtfTexte.Sélectionner(3, 4);
    banc.plateforme.pressePapiers = u"l’œuf\u202F!\nfin";
    banc.écran.mnuColler.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le l'œuf !\r\nfin");
    EXPECT_EQ(banc.écran.rtfTexte.SelStart(), banc.écran.rtfTexte.Longueur());
}

TEST(Editeur, CollerUnPressePapiersVideNeRetireRien)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.écran.mnuSélectionner.Cliquer();
    banc.état.TexteModifié = false;
    banc.écran.mnuColler.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.Text(), u"Le chat");
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(Editeur, ImprimerOffreLaSélectionAvecSonFormat)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Un\r\ndeux\r\ntrois");
    banc.écran.rtfTexte.Sélectionner(5, 4);
    banc.plateforme.impressions = {true, false};
    banc.écran.mnuImprimer.Cliquer();
    banc.écran.rtfTexte.SelLength(0);
    banc.écran.mnuImprimer.Cliquer(); // cancelled
    EXPECT_EQ(banc.plateforme.imprimés[0], (std::pair<Texte, Texte>{u"Un\r\ndeux\r\ntrois", u"eux\r"}));
    EXPECT_EQ(banc.plateforme.imprimés[1].second, u"");
}

// ---- Word marking ------------------------------------------------------------------------------------------------

TEST(Editeur, LeMotSousLeCurseurEstMarquéPuisDémarqué)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat dort");
    banc.écran.rtfTexte.SelStart(5);
    banc.état.TexteModifié = false;
    banc.Bouton("btnVocabulaire");
    EXPECT_EQ(MotsMarqués(banc.écran.rtfTexte.TextRTF()), std::vector<Texte>{u"chat"});
    EXPECT_TRUE(banc.état.TexteModifié);
    banc.écran.rtfTexte.SelStart(5);
    banc.Bouton("btnVocabulaire");
    EXPECT_TRUE(MotsMarqués(banc.écran.rtfTexte.TextRTF()).empty());
}

TEST(Editeur, HorsDUnMotLeMarquageEstRefuséAvecUnMessage)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.écran.rtfTexte.SelStart(2);
    banc.état.TexteModifié = false;
    banc.AnnoncerBoîte(u"Vous devez cliquer sur le mot que vous voulez sélectionner\n"
                       u"(ou sélectionner les mots d'une seule lettre si c'est le cas).\n\n"
                       u"Les mots barrés seront utilisés pour certains exercices.");
    banc.Bouton("btnVocabulaire");
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Titre, u"Avertissement");
    EXPECT_EQ(banc.plateforme.boîtesMontrées[0].Symbole, Icône::Information);
    EXPECT_FALSE(banc.état.TexteModifié);
}

// ---- Format ------------------------------------------------------------------------------------------------------

namespace {

struct Bascule {
    const char* Clé;
    MenuOption frmEnseignant::*Option;
    bool Format::*Champ;
};

class Style : public testing::TestWithParam<Bascule> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Editeur, Style,
                         testing::Values(Bascule{"btnGras", &frmEnseignant::mnuGras, &Format::Gras},
                                         Bascule{"btnSouligné", &frmEnseignant::mnuSouligné, &Format::Souligné},
                                         Bascule{"btnItalique", &frmEnseignant::mnuItalique, &Format::Italique}));

TEST_P(Style, SAllumeSEteintEtSeMontre)
{
    const auto [clé, option, champ] = GetParam();
    BancEditeur banc;
    auto& boîte = banc.écran.rtfTexte;
    boîte.Text(u"Le chat");
    boîte.Sélectionner(0, 2);
    banc.état.TexteModifié = false;
    (banc.écran.*option).Cliquer();
    EXPECT_TRUE(boîte.TextRTF().FormatEn(0).*champ);
    EXPECT_FALSE(boîte.TextRTF().FormatEn(3).*champ);
    EXPECT_TRUE((banc.écran.*option).Checked);
    EXPECT_EQ(banc.Etat(clé), Toolbar::Etat::Enfoncé);
    EXPECT_TRUE(banc.état.TexteModifié);

    boîte.Sélectionner(0, 7); // mixed
    EXPECT_FALSE((banc.écran.*option).Checked);
    EXPECT_EQ(banc.Etat(clé), Toolbar::Etat::Mixte);
    banc.Bouton(clé); // mixed becomes on
    EXPECT_TRUE(boîte.TextRTF().FormatEn(6).*champ);
    EXPECT_EQ(banc.Etat(clé), Toolbar::Etat::Enfoncé);

    banc.Bouton(clé);
    EXPECT_FALSE(boîte.TextRTF().FormatEn(0).*champ);
    EXPECT_FALSE((banc.écran.*option).Checked);
    EXPECT_EQ(banc.Etat(clé), Toolbar::Etat::Relâché);
}

TEST_P(Style, AuCurseurVautPourCeQuiVient)
{
    const auto [clé, option, champ] = GetParam();
    BancEditeur banc;
    banc.Bouton(clé);
    EXPECT_EQ(banc.Etat(clé), Toolbar::Etat::Enfoncé);
    banc.plateforme.pressePapiers = u"chat";
    banc.écran.mnuColler.Cliquer();
    EXPECT_TRUE(banc.écran.rtfTexte.TextRTF().FormatEn(0).*champ);
}

TEST(Editeur, LesAlignementsPassentDeLUnALAutre)
{
    BancEditeur banc;
    auto& écran = banc.écran;
    écran.rtfTexte.Text(u"Un\r\ndeux");
    écran.rtfTexte.SelStart(5);
    banc.état.TexteModifié = false;
    écran.mnuCentre.Cliquer();
    EXPECT_EQ(écran.rtfTexte.SelAlignment(), Cadrage::Centre);
    EXPECT_TRUE(écran.mnuCentre.Checked);
    EXPECT_FALSE(écran.mnuGauche.Checked);
    EXPECT_EQ(banc.Etat("btnCentrer"), Toolbar::Etat::Enfoncé);
    EXPECT_EQ(banc.Etat("btnGauche"), Toolbar::Etat::Relâché);
    EXPECT_TRUE(banc.état.TexteModifié);

    écran.mnuSélectionner.Cliquer();
    for (const auto* clé : {"btnGauche", "btnCentrer", "btnDroite"})
        EXPECT_EQ(banc.Etat(clé), Toolbar::Etat::Mixte);
    EXPECT_FALSE(écran.mnuGauche.Checked);

    banc.Bouton("btnDroite");
    EXPECT_EQ(écran.rtfTexte.SelAlignment(), Cadrage::Droite);
    EXPECT_EQ(banc.Etat("btnDroite"), Toolbar::Etat::Enfoncé);
    EXPECT_EQ(banc.Etat("btnCentrer"), Toolbar::Etat::Relâché);
    banc.Bouton("btnGauche");
    EXPECT_EQ(écran.rtfTexte.SelAlignment(), Cadrage::Gauche);
    EXPECT_TRUE(écran.mnuGauche.Checked);
}

TEST(Editeur, UnParagrapheJustifiéRelâcheLesTroisBoutons)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Un");
    banc.écran.rtfTexte.SelAlignment = Cadrage::Justifié;
    banc.écran.ActualiserFormat();
    for (const auto* clé : {"btnGauche", "btnCentrer", "btnDroite"})
        EXPECT_EQ(banc.Etat(clé), Toolbar::Etat::Relâché);
}

TEST(Editeur, UneSélectionMixteNeMontreNiTailleNiPolice)
{
    BancEditeur banc;
    auto& boîte = banc.écran.rtfTexte;
    boîte.Text(u"Le chat");
    boîte.Sélectionner(0, 2);
    boîte.SelFontName = u"Arial";
    boîte.SelFontSize = 20;
    boîte.Sélectionner(0, 7);
    EXPECT_EQ(banc.écran.cmbFontSize.Text, u"");
    EXPECT_EQ(banc.écran.cmbFontSize.ListIndex, -1);
    EXPECT_EQ(banc.écran.txtPolices(0).Text, u"");
    boîte.Sélectionner(0, 2);
    EXPECT_EQ(banc.écran.cmbFontSize.Text, u"20");
    EXPECT_EQ(banc.écran.cmbFontSize.ListIndex, 8);
    EXPECT_EQ(banc.écran.txtPolices(0).Text, u"Arial");
}

TEST(Editeur, LaTailleChoisieVaALaSélectionEtGardeUneCopie)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.écran.mnuSélectionner.Cliquer();
    banc.état.TexteModifié = false;
    banc.écran.cmbFontSize.Choisir(15);
    EXPECT_EQ(banc.écran.rtfTexte.SelFontSize(), 72);
    EXPECT_EQ(banc.écran.rtfSauve.Text(), u"Le chat");
    EXPECT_TRUE(banc.état.TexteModifié);
    banc.Bouton("btnAnnuler");
    EXPECT_EQ(banc.écran.rtfTexte.SelFontSize(), 12);
}

TEST(Editeur, LaTailleChoisieRendLeFocusAuTexteEtSeMontre)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.écran.rtfTexte.Sélectionner(0, 2);
    banc.écran.cmbFontSize.SetFocus();
    banc.écran.cmbFontSize.Saisir(u"x");
    banc.écran.cmbFontSize.Taper({.Code = Touche::Entrée});
    EXPECT_EQ(banc.écran.Focus(), &banc.écran.cmbFontSize) << "une taille refusée se retape";
    banc.écran.cmbFontSize.Saisir(u"12,4");
    banc.écran.cmbFontSize.Taper({.Code = Touche::Entrée});
    EXPECT_EQ(banc.écran.Focus(), &banc.écran.rtfTexte);
    EXPECT_EQ(banc.écran.cmbFontSize.Text, u"12,5") << "la boîte montre la taille donnée";
    EXPECT_TRUE(banc.état.TexteModifié);
    banc.écran.cmbFontSize.SetFocus();
    banc.écran.cmbFontSize.Choisir(0);
    EXPECT_EQ(banc.écran.Focus(), &banc.écran.rtfTexte);
    EXPECT_EQ(banc.écran.rtfTexte.SelFontSize(), 8);
}

TEST(Editeur, CeQuiEstColléDerrièreUnMotMarquéNeLEstPas)
{
    BancEditeur banc;
    banc.écran.rtfTexte.TextRTF(Marqué(u"Le"));
    banc.écran.rtfTexte.SelStart(2);
    banc.plateforme.pressePapiers = u" chat";
    banc.écran.mnuColler.Cliquer();
    EXPECT_EQ(MotsMarqués(banc.écran.rtfTexte.TextRTF()), std::vector<Texte>{u"Le"});
    banc.écran.rtfTexte.SelStart(1);
    banc.plateforme.pressePapiers = u"s";
    banc.écran.mnuColler.Cliquer();
    EXPECT_EQ(MotsMarqués(banc.écran.rtfTexte.TextRTF()), std::vector<Texte>{u"Lse"});
}

TEST(Editeur, LaTailleTapéeVautALEntréeAuDemiPointPrès)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.écran.mnuSélectionner.Cliquer();
    const std::vector<std::pair<Texte, double>> saisies{
        {u"13", 13}, {u"12,5", 12.5}, {u" 14.4 ", 14.5}, {u"1", 1}, {u"400", 400}};
    for (const auto& [saisie, taille] : saisies) {
        banc.écran.cmbFontSize.Saisir(saisie);
        banc.écran.cmbFontSize.Taper({.Code = Touche::Entrée});
        EXPECT_EQ(banc.écran.rtfTexte.SelFontSize(), taille);
    }
}

TEST(Editeur, UneTailleInsenséeNeChangeRienEtLaVraieRevient)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.écran.mnuSélectionner.Cliquer();
    banc.état.TexteModifié = false;
    for (const auto* saisie : {u"0", u"-3", u"9999", u"401", u"0,5", u"abc", u"", u"12a", u"nan", u"inf", u"1e300"}) {
        banc.écran.cmbFontSize.Saisir(saisie);
        banc.écran.cmbFontSize.Taper({.Code = Touche::Entrée});
        EXPECT_EQ(banc.écran.rtfTexte.SelFontSize(), 12) << EnUtf8(saisie);
        EXPECT_EQ(banc.écran.cmbFontSize.Text, u"12") << EnUtf8(saisie);
    }
    EXPECT_FALSE(banc.état.TexteModifié);
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
}

TEST(Editeur, LaCouleurPartDeLaSélectionEtSAnnule)
{
    BancEditeur banc;
    auto& boîte = banc.écran.rtfTexte;
    boîte.Text(u"Le chat");
    boîte.Sélectionner(0, 2);
    banc.état.TexteModifié = false;
    banc.plateforme.couleurs = {std::nullopt, Rouge, std::nullopt, std::nullopt};
    banc.Bouton("btnCouleurC");
    EXPECT_FALSE(banc.état.TexteModifié);
    banc.Bouton("btnCouleurC");
    EXPECT_EQ(boîte.SelColor(), Rouge);
    EXPECT_TRUE(banc.état.TexteModifié);
    banc.Bouton("btnCouleurC");
    boîte.Sélectionner(0, 7);
    banc.Bouton("btnCouleurC");
    EXPECT_EQ(banc.plateforme.couleursProposées, (std::vector<Couleur>{Noir, Noir, Rouge, Noir}));
}

TEST(Editeur, LeDialogueDesCaractèresPartDeLaSélection)
{
    BancEditeur banc;
    auto& boîte = banc.écran.rtfTexte;
    boîte.Text(u"Le chat");
    boîte.Sélectionner(0, 2);
    boîte.SelBold = true;
    boîte.SelFontName = u"Arial";
    banc.plateforme.choixPolices = {std::nullopt, std::nullopt};
    banc.écran.mnuPolice.Cliquer();
    boîte.Sélectionner(0, 7);
    banc.écran.mnuPolice.Cliquer();
    const auto& un = banc.plateforme.policesProposées.at(0);
    EXPECT_EQ(un.Nom, u"Arial");
    EXPECT_EQ(un.Taille, 12);
    EXPECT_EQ(un.Gras, true);
    EXPECT_EQ(un.Italique, false);
    const auto& mixte = banc.plateforme.policesProposées.at(1);
    EXPECT_EQ(mixte.Nom, u"");
    EXPECT_EQ(mixte.Taille, 12);
    EXPECT_EQ(mixte.Gras, std::nullopt);
}

TEST(Editeur, LeDialogueDesCaractèresNeTouchePasACeQuiEstMixte)
{
    BancEditeur banc;
    auto& boîte = banc.écran.rtfTexte;
    boîte.Text(u"Le chat");
    boîte.Sélectionner(0, 2);
    boîte.SelBold = true;
    boîte.SelStrikeThru = true;
    boîte.Sélectionner(0, 7);
    banc.état.TexteModifié = false;
    banc.plateforme.choixPolices.push_back(ChoixPolice{.Nom = u"", .Taille = 0});
    banc.écran.mnuPolice.Cliquer();
    EXPECT_EQ(boîte.SelBold(), std::nullopt);
    EXPECT_EQ(boîte.SelFontName(), u"Comic Sans MS");
    EXPECT_EQ(boîte.SelFontSize(), 12);
    EXPECT_TRUE(banc.état.TexteModifié);

    banc.plateforme.choixPolices.push_back(
        ChoixPolice{.Nom = u"Verdana", .Taille = 18, .Gras = false, .Italique = true});
    banc.écran.mnuPolice.Cliquer();
    EXPECT_EQ(boîte.SelBold(), false);
    EXPECT_EQ(boîte.SelItalic(), true);
    EXPECT_EQ(banc.écran.txtPolices(0).Text, u"Verdana");
    EXPECT_EQ(banc.écran.cmbFontSize.Text, u"18");
    EXPECT_EQ(MotsMarqués(boîte.TextRTF()), std::vector<Texte>{u"Le"});
    EXPECT_EQ(banc.écran.rtfSauve.Text(), u"Le chat");
}

TEST(Editeur, AnnulerLeDialogueDesCaractèresLaisseLeTexte)
{
    BancEditeur banc;
    banc.écran.rtfTexte.Text(u"Le chat");
    banc.état.TexteModifié = false;
    banc.plateforme.choixPolices.emplace_back(std::nullopt);
    banc.écran.mnuPolice.Cliquer();
    EXPECT_FALSE(banc.état.TexteModifié);
    EXPECT_EQ(banc.écran.rtfTexte.TextRTF(), banc.écran.rtfSauve.TextRTF());
}

TEST(Editeur, UnePoliceQueLaMachineNAPasGardeSonNomDansLeFichier)
{
    BancEditeur banc;
    banc.Ecrire("chat.rtf", EcrireRtf(TexteRiche{u"Le chat", {.Police = u"Police Rare"}}));
    banc.AnnoncerFichier(banc.CheminDe("chat.rtf"));
    banc.écran.mnuOuvrir.Cliquer();
    banc.écran.mnuEnregistrer.Cliquer();
    EXPECT_EQ(LireRtf(banc.Lire("chat.rtf").value_or(""))->FormatEn(0).Police, u"Police Rare");
}

// ---- The font list -----------------------------------------------------------------------------------------------

namespace {

// Fonts "P01" to "P20", and what the list's lines show.
struct BancPolices : BancEditeur {
    BancPolices() : BancEditeur(Vingt())
    {
        écran.rtfTexte.TextRTF(TexteRiche{u"Le chat", {.Police = u"P05"}});
        écran.rtfTexte.Sélectionner(0, 2);
        état.TexteModifié = false;
        écran.flèchePolice.Cliquer();
    }
    static std::vector<Texte> Vingt()
    {
        std::vector<Texte> polices;
        for (int i = 1; i <= 20; ++i)
            polices.push_back(Nom(i));
        return polices;
    }
    static Texte Nom(int i) { return (i < 10 ? u"P0" : u"P") + EnTexte(i); }
    [[nodiscard]] std::vector<Texte> Lignes() const
    {
        std::vector<Texte> lignes;
        for (int i = 1; i <= 7; ++i)
            lignes.push_back(écran.txtPolices(i).Text());
        return lignes;
    }
    // The one line that is black on white turned round; it has the focus.
    [[nodiscard]] int Ligne() const
    {
        int place = 0;
        for (int i = 1; i <= 7; ++i) {
            const auto& ligne = écran.txtPolices(i);
            if (ligne.BackColor == Noir) {
                EXPECT_EQ(place, 0);
                EXPECT_EQ(ligne.ForeColor, Blanc);
                EXPECT_EQ(écran.Focus(), &ligne);
                place = i;
            } else {
                EXPECT_EQ(ligne.BackColor, Blanc);
                EXPECT_EQ(ligne.ForeColor, Noir);
            }
        }
        return place;
    }
    void Touche_(int code) { EXPECT_FALSE(écran.txtPolices(Ligne()).Taper({.Code = code})); }
};

} // namespace

TEST(ListePolices, SOuvreSurLaPoliceDeLaSélection)
{
    BancPolices banc;
    EXPECT_TRUE(banc.écran.framePolices.Visible);
    EXPECT_EQ(banc.écran.scrlPolices.Max, 19); // twenty fonts and seven blank rows, less eight
    EXPECT_EQ(banc.écran.scrlPolices.Value, 4);
    EXPECT_EQ(banc.écran.txtPolices(0).Text, u"P05");
    EXPECT_EQ(banc.Lignes(), (std::vector<Texte>{u"P05", u"P06", u"P07", u"P08", u"P09", u"P10", u"P11"}));
    EXPECT_EQ(banc.écran.txtPolices(3).Police, u"P07");
    EXPECT_EQ(banc.Ligne(), 1);
    EXPECT_EQ(banc.accueil.cmbPolices.Tag, u"");
    EXPECT_FALSE(banc.état.TexteModifié);
}

TEST(ListePolices, LaFlècheLaRefermeEtRendLeFocusAuTexte)
{
    BancPolices banc;
    banc.écran.flèchePolice.Cliquer();
    EXPECT_FALSE(banc.écran.framePolices.Visible);
    EXPECT_EQ(banc.écran.Focus(), &banc.écran.rtfTexte);
}

TEST(ListePolices, UnClicDonneLaPoliceALaSélection)
{
    BancPolices banc;
    banc.écran.txtPolices(3).Cliquer(0);
    EXPECT_EQ(banc.écran.rtfTexte.SelFontName(), u"P07");
    EXPECT_EQ(banc.écran.rtfTexte.TextRTF().FormatEn(3).Police, u"P05");
    EXPECT_EQ(banc.écran.txtPolices(0).Text, u"P07");
    EXPECT_EQ(banc.écran.rtfSauve.TextRTF().FormatEn(0).Police, u"P05");
    EXPECT_TRUE(banc.état.TexteModifié);
    EXPECT_FALSE(banc.écran.framePolices.Visible);
}

TEST(ListePolices, AuCurseurLaPoliceVautPourCeQuiVient)
{
    BancPolices banc;
    banc.écran.rtfTexte.Sélectionner(7, 0);
    banc.écran.flèchePolice.Cliquer();
    banc.écran.txtPolices(2).Cliquer(0);
    EXPECT_FALSE(banc.écran.framePolices.Visible);
    banc.plateforme.pressePapiers = u"!";
    banc.écran.mnuColler.Cliquer();
    EXPECT_EQ(banc.écran.rtfTexte.TextRTF().FormatEn(7).Police, u"P06");
}

TEST(ListePolices, LaSourisDéplaceLaLigneNoire)
{
    BancPolices banc;
    banc.écran.txtPolices(6).MouseMove();
    EXPECT_EQ(banc.Ligne(), 6);
}

TEST(ListePolices, LesFlèchesDescendentPuisDéfilent)
{
    BancPolices banc;
    for (int i = 2; i <= 7; ++i) {
        banc.Touche_(Touche::Bas);
        EXPECT_EQ(banc.Ligne(), i);
        EXPECT_EQ(banc.écran.scrlPolices.Value, 4);
    }
    banc.Touche_(Touche::Bas);
    EXPECT_EQ(banc.Ligne(), 7);
    EXPECT_EQ(banc.écran.scrlPolices.Value, 5);
    EXPECT_EQ(banc.Lignes().back(), u"P12");
}

TEST(ListePolices, EnBasElleSArrêteSurLaDernièrePolice)
{
    BancPolices banc;
    for (int i = 0; i < 50; ++i)
        banc.Touche_(Touche::Bas);
    EXPECT_EQ(banc.écran.scrlPolices.Value, 19);
    EXPECT_EQ(banc.Lignes(), (std::vector<Texte>{u"P20", u"", u"", u"", u"", u"", u""}));
}

TEST(ListePolices, LesFlèchesMontentPuisDéfilentJusquEnHaut)
{
    BancPolices banc;
    banc.Touche_(Touche::Bas);
    banc.Touche_(Touche::Haut);
    EXPECT_EQ(banc.Ligne(), 1);
    EXPECT_EQ(banc.écran.scrlPolices.Value, 4);
    for (int valeur : {3, 2, 1, 0, 0}) {
        banc.Touche_(Touche::Haut);
        EXPECT_EQ(banc.Ligne(), 1);
        EXPECT_EQ(banc.écran.scrlPolices.Value, valeur);
    }
    EXPECT_EQ(banc.Lignes().front(), u"P01");
}

TEST(ListePolices, LesPagesVontDeSeptEnSeptEtReviennentALaPremièreLigne)
{
    BancPolices banc;
    banc.Touche_(Touche::Bas);
    banc.Touche_(Touche::PageSuivante);
    EXPECT_EQ(banc.écran.scrlPolices.Value, 11);
    EXPECT_EQ(banc.Ligne(), 1);
    banc.Touche_(Touche::PageSuivante);
    banc.Touche_(Touche::PageSuivante);
    EXPECT_EQ(banc.écran.scrlPolices.Value, 19);
    banc.écran.txtPolices(4).MouseMove();
    for (int valeur : {12, 5, 0, 0}) {
        banc.Touche_(Touche::PagePrécédente);
        EXPECT_EQ(banc.écran.scrlPolices.Value, valeur);
        EXPECT_EQ(banc.Ligne(), 1);
    }
}

TEST(ListePolices, EntréeVautUnClicEtEchapFerme)
{
    BancPolices banc;
    banc.Touche_(Touche::Bas);
    banc.Touche_(Touche::Entrée);
    EXPECT_EQ(banc.écran.rtfTexte.SelFontName(), u"P06");
    banc.écran.flèchePolice.Cliquer();
    banc.Touche_(Touche::Echappement);
    EXPECT_FALSE(banc.écran.framePolices.Visible);
    EXPECT_EQ(banc.écran.rtfTexte.SelFontName(), u"P06");
}

TEST(ListePolices, LesAutresTouchesPassent)
{
    BancPolices banc;
    EXPECT_TRUE(banc.écran.txtPolices(1).Taper({.Caractère = u'a', .Code = 'A'}));
    EXPECT_TRUE(banc.écran.framePolices.Visible);
}

TEST(ListePolices, LeDéfilementRemplitLesLignesEtGardeLaLigneNoire)
{
    BancPolices banc;
    banc.écran.txtPolices(5).MouseMove();
    banc.écran.scrlPolices.SetFocus();
    banc.écran.scrlPolices.Déplacer(0);
    EXPECT_EQ(banc.Lignes().front(), u"P01");
    EXPECT_EQ(banc.Ligne(), 5);
}

TEST(ListePolices, UneLigneVideNeDonnePasDePolice)
{
    BancPolices banc;
    banc.écran.scrlPolices.Déplacer(19);
    banc.écran.txtPolices(7).Cliquer(0);
    EXPECT_EQ(banc.écran.rtfTexte.SelFontName(), u"P05");
    EXPECT_FALSE(banc.état.TexteModifié);
    EXPECT_EQ(banc.écran.rtfSauve.Longueur(), 0U);
}

TEST(ListePolices, UnePoliceInconnueOuMixteOuvreEnHaut)
{
    BancPolices banc;
    banc.écran.flèchePolice.Cliquer();
    banc.écran.rtfTexte.SelFontName = u"Inconnue";
    banc.écran.ActualiserFormat();
    banc.écran.flèchePolice.Cliquer();
    EXPECT_EQ(banc.écran.scrlPolices.Value, 0);
    EXPECT_EQ(banc.écran.txtPolices(0).Text, u"Inconnue");
    banc.écran.mnuSélectionner.Cliquer(); // mixed
    banc.écran.flèchePolice.Cliquer();
    EXPECT_EQ(banc.écran.scrlPolices.Value, 0);
    EXPECT_EQ(banc.écran.txtPolices(0).Text, u"");
}

TEST(ListePolices, SansAucunePoliceElleSOuvreVide)
{
    for (const bool reçues : {true, false}) {
        BancEditeur banc{{}};
        if (!reçues)
            banc.accueil.cmbPolices.Clear(); // the machine has not answered yet
        banc.écran.flèchePolice.Cliquer();
        EXPECT_EQ(banc.écran.scrlPolices.Max, 0);
        banc.écran.txtPolices(1).Taper({.Code = Touche::PageSuivante});
        banc.écran.txtPolices(1).Cliquer(0);
        EXPECT_EQ(banc.écran.rtfTexte.SelFontName(), u"Comic Sans MS");
    }
}

} // namespace tirelune
