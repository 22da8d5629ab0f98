#include "followup/frmGestionEleves.h"

#include "core/FichierChamps.h"
#include "core/Remplacement.h"
#include "followup/EnregistrerNotes.h"
#include "followup/frmExercices.h"
#include "tests/support/Banc.h"
#include "tests/support/Notices.h"

namespace tirelune {

namespace {

void Valider(frmGestionEleves& écran, const Texte& nom)
{
    écran.cmdAjouter.Cliquer();
    ASSERT_TRUE(écran.txtNom.Saisir(nom));
    écran.txtNom.Taper({u'\r', Touche::Entrée});
}

// Key by key, as on a keyboard.
void Frapper(TextBox& boîte, VueTexte touches)
{
    for (const char16_t c : touches) {
        if (boîte.Taper({c, c}))
            boîte.Saisir(boîte.Text() + c);
    }
}

std::size_t NombreDeFichiers(const Chemin& dossier)
{
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator{dossier}, {}));
}

constexpr VueTexte QuestionDestruction = u"Destruction irréversible. Souhaitez-vous continuer ?";

} // namespace

// ---- Showing -----------------------------------------------------------------------------------------------------

TEST(GestionEleves, OuvertureMontreLesNomsEtLeDossier)
{
    Banc banc;
    banc.Ecrire("Zoé.bil", "");
    banc.Ecrire("Éric.bil", "");
    banc.Ecrire("autre.txt", "");
    banc.état.CodeValide = true;
    banc.état.CheminRéseau = u"/réseau";
    auto& écran = banc.Ouvrir<frmGestionEleves>();

    EXPECT_EQ(écran.Caption, u"Gestion du fichier \"élèves\"");
    EXPECT_EQ(écran.cmbNoms.Eléments(), (std::vector<Texte>{u"Éric", u"Zoé"}));
    EXPECT_EQ(écran.cmbNoms.Text, u"Éric");
    EXPECT_EQ(écran.lblRéseau.Caption, DepuisChemin(banc.dossier));
    EXPECT_EQ(écran.lblRéseau.ToolTipText, u"/réseau");
    EXPECT_EQ(écran.dirLecteurs.Path(), DepuisChemin(banc.dossier));
    EXPECT_FALSE(banc.état.CodeValide);
    EXPECT_FALSE(écran.txtNom.Visible || écran.txtCode.Visible || écran.txtVérif.Visible || écran.lblCode.Visible);
    EXPECT_FALSE(écran.drvLecteurs.Visible || écran.dirLecteurs.Visible || écran.cmdValiderCheminRéseau.Visible);
}

TEST(GestionEleves, LégendesEtBulles)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    EXPECT_EQ(écran.cmdAjouter.Caption, u"&Ajouter");
    EXPECT_EQ(écran.cmdAjouter.ToolTipText, u" Ajouter un élève. ");
    EXPECT_EQ(écran.cmdSupprimer.Caption, u"&Supprimer");
    EXPECT_EQ(écran.cmdSupprimer.ToolTipText, u" Supprimer un fichier élève ");
    EXPECT_EQ(écran.cmdAnnuler.Caption, u"A&nnuler");
    EXPECT_FALSE(écran.cmdAnnuler.Visible || écran.lblConsigne.Visible);
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Modifications terminées");
    EXPECT_EQ(écran.txtNom.ToolTipText, u" Entrée pour valider ");
    EXPECT_EQ(écran.lblConsigne.Caption, u"Entrée pour valider");
    EXPECT_EQ(écran.txtCode.ToolTipText,
              u" Entrez votre code à 6 chiifres (votre date de naissance par exemple) et retenez bien ce code. ");
    EXPECT_EQ(écran.txtVérif.ToolTipText, u" Confirmez votre code ici. ");
    EXPECT_EQ(écran.lblCode.Caption, u"Code erroné");
    EXPECT_EQ(écran.cmdCheminRéseau.Caption, u"Travailler en réseau");
    EXPECT_EQ(écran.cmdValiderCheminRéseau.Caption, u"Valider le chemin réseau");
    EXPECT_EQ(écran.cmdValiderCheminRéseau.ToolTipText,
              u" C'est le chemin qui sera désormais utilisé pour l'enregistrement des bilans. ");
    EXPECT_EQ(écran.Label2.Caption, u"Chemin Réseau actuel pour les bilans des élèves :");
}

TEST(GestionEleves, OuvertureSansElèveNAfficheAucuneBoîte)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    EXPECT_EQ(écran.cmbNoms.ListCount(), 0);
    EXPECT_TRUE(banc.plateforme.boîtesMontrées.empty());
}

TEST(GestionEleves, SansCheminLeDossierDuProgrammeSert)
{
    Banc banc;
    banc.Ecrire("Paul.bil", "");
    banc.état.CheminBilans.clear();
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    EXPECT_EQ(écran.cmbNoms.Text, u"Paul");
    EXPECT_EQ(banc.état.CheminBilans, banc.état.CheminAppli);
}

TEST(GestionEleves, DossierInaccessibleDemandeEtAnnulerRevientAuProgramme)
{
    Banc banc;
    banc.Ecrire("Paul.bil", "");
    banc.état.CheminBilans = banc.état.CheminAppli + u"/parti";
    banc.AnnoncerBoîte(Texte{DossierInaccessible}, Réponse::Ok);
    banc.AnnoncerBoîte(Texte{DossierInaccessible}, Réponse::Annuler);
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    EXPECT_EQ(banc.plateforme.boîtesMontrées.at(0).Titre, u"CONNEXION RESEAU DEFECTUEUSE");
    EXPECT_EQ(banc.plateforme.boîtesMontrées.at(0).Choix, Boutons::OkAnnuler);
    EXPECT_EQ(banc.état.CheminBilans, banc.état.CheminAppli);
    EXPECT_EQ(écran.cmbNoms.Text, u"Paul");
}

TEST(GestionEleves, DossierRevenuEntreTempsEstListé)
{
    Banc banc;
    banc.état.CheminBilans = banc.état.CheminAppli + u"/parti";
    banc.plateforme.boîtes.push_back(
        {Texte{DossierInaccessible}, Réponse::Ok, std::nullopt, [&] { banc.Ecrire("parti/Paul.bil", ""); }});
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    EXPECT_EQ(écran.cmbNoms.Text, u"Paul");
    EXPECT_EQ(banc.état.CheminBilans, banc.état.CheminAppli + u"/parti");
}

TEST(GestionEleves, DeuxMilleElèvesSontListésEnUneFois)
{
    Banc banc;
    for (int i = 0; i < 2000; ++i)
        banc.Ecrire("Élève " + std::to_string(i) + ".bil", "");
    auto écran = std::make_unique<frmGestionEleves>(banc.application);
    int changements = 0;
    écran->cmbNoms.Observateur = [&] { ++changements; };
    auto& gestion = *écran;
    banc.Montrer(std::move(écran));
    EXPECT_EQ(gestion.cmbNoms.ListCount(), 2000);
    EXPECT_LE(changements, 5);
}

// ---- Creating ----------------------------------------------------------------------------------------------------

TEST(GestionEleves, AjouterOuvreLaSaisie)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.txtNom.Text = u"reste";
    écran.cmdAjouter.Cliquer();
    EXPECT_EQ(écran.txtNom.Text, u"");
    EXPECT_TRUE(écran.txtNom.Visible && écran.lblConsigne.Visible && écran.cmdAnnuler.Visible);
    EXPECT_EQ(écran.Focus(), &écran.txtNom);
}

TEST(GestionEleves, EntréeCréeUnFichierVide)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    Valider(écran, u"Zoé");
    EXPECT_EQ(banc.Lire("Zoé.bil"), "");
    EXPECT_EQ(écran.cmbNoms.Eléments(), (std::vector<Texte>{u"Zoé"}));
    EXPECT_EQ(écran.cmbNoms.Text, u"Zoé");
    EXPECT_TRUE(écran.cmbNoms.Visible);
}

TEST(GestionEleves, NomRognéPourLeFichierMaisMontréCommeSaisi)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    Valider(écran, u"  Paul ");
    EXPECT_TRUE(banc.Existe("Paul.bil"));
    EXPECT_EQ(écran.cmbNoms.Text, u"  Paul ");
}

TEST(GestionEleves, NomVideOuBlancNeFaitRien)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    Valider(écran, u"");
    Valider(écran, u"   ");
    EXPECT_EQ(NombreDeFichiers(banc.dossier), 0U);
    EXPECT_TRUE(banc.plateforme.boîtesMontrées.empty());
}

TEST(GestionEleves, AjouterDésactivéNeCréeRien)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdAjouter.Cliquer();
    écran.cmdAjouter.Enabled = false;
    écran.txtNom.Saisir(u"Paul");
    écran.txtNom.Taper({u'\r', Touche::Entrée});
    EXPECT_FALSE(banc.Existe("Paul.bil"));
}

TEST(GestionEleves, NomDéjàPrisEstRefuséMêmeSousUneAutreCasse)
{
    Banc banc;
    banc.Ecrire("Élodie.bil", "gardé");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    banc.AnnoncerBoîte(u"Le fichier \néLODIE.bil. existe déjà !\n");
    Valider(écran, u" éLODIE ");
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Titre, u"Avertissement");
    banc.AnnoncerBoîte(u"Le fichier \nÉlodie.bil. existe déjà !\n");
    Valider(écran, u"Élodie");
    EXPECT_EQ(banc.Lire("Élodie.bil"), "gardé");
    EXPECT_EQ(NombreDeFichiers(banc.dossier), 1U);
}

TEST(GestionEleves, NomCrééEntreTempsParUneAutreMachineNEstPasEcrasé)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    banc.Ecrire("paul.bil", "ailleurs");
    banc.AnnoncerBoîte(u"Le fichier \nPaul.bil. existe déjà !\n");
    Valider(écran, u"Paul");
    EXPECT_EQ(banc.Lire("paul.bil"), "ailleurs");
    EXPECT_FALSE(banc.Existe("Paul.bil"));
}

TEST(GestionEleves, DossierDuMêmeNomNEstPasEcrasé)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    std::filesystem::create_directory(banc.dossier / "Paul.bil");
    banc.AnnoncerBoîte(u"Le fichier \nPaul.bil. existe déjà !\n");
    Valider(écran, u"Paul");
    EXPECT_TRUE(std::filesystem::is_directory(banc.dossier / "Paul.bil"));
}

TEST(GestionEleves, NomImpossibleEstRefuséSansRienFaire)
{
    Banc banc;
    std::filesystem::create_directory(banc.dossier / "élèves");
    banc.état.CheminBilans = banc.état.CheminAppli + u"/élèves";
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    for (const auto* nom : {u"../Paul", u"..\\Paul", u"a/b", u"a\\b", u"Paul?", u"CON", u"lpt1.x", u"Pa\tul"}) {
        banc.AnnoncerBoîte(u"Le nom\n" + Texte{nom} + u"\nest refusé : …");
        Valider(écran, nom);
    }
    EXPECT_EQ(NombreDeFichiers(banc.dossier), 1U);
    EXPECT_EQ(NombreDeFichiers(banc.dossier / "élèves"), 0U);
    EXPECT_EQ(écran.cmbNoms.ListCount(), 0);
}

TEST(GestionEleves, NomsOrdinairesViventDeLaCréationALaSuppression)
{
    for (const auto* nom :
         {u"Paul D.", u"J.-C.", u"Łukasz", u"Ștefan", u"Иван", u"..", u".Zoé", u"e\u0301ric", u"\U0001F600"}) {
        Banc banc;
        banc.EcrireChamps("Code.txt", {u"123456"});
        auto& écran = banc.Ouvrir<frmGestionEleves>();
        Valider(écran, nom);
        const auto fichier = EnUtf8(nom) + ".bil";
        EXPECT_EQ(banc.Lire(fichier), "");
        EXPECT_EQ(écran.cmbNoms.Eléments(), (std::vector<Texte>{nom}));

        auto& choix = banc.Ouvrir<frmExercices>();
        choix.cmdOk.Cliquer();
        EXPECT_EQ(choix.Caption, u"Choix des exercices / " + Texte{nom});
        choix.lblTexte.Caption = u"Le chat";
        choix.lblIndex.Caption = u"0";
        EnregistrerNote(choix, 5);
        EXPECT_TRUE(SauverBilan(choix));
        EXPECT_NE(banc.Lire(fichier)->find("\"5\""), std::string::npos);
        choix.Décharger();

        auto& relu = banc.Ouvrir<frmExercices>();
        relu.cmdOk.Cliquer();
        EXPECT_EQ(relu.lblExo(0).ToolTipText, u"5");

        écran.cmdSupprimer.Cliquer();
        banc.AnnoncerBoîte(Texte{QuestionDestruction}, Réponse::Oui);
        Frapper(écran.txtCode, u"123456");
        EXPECT_FALSE(banc.Existe(fichier));
        EXPECT_EQ(écran.cmbNoms.ListCount(), 0);
    }
}

TEST(GestionEleves, NomPrisSousUneAutreCasseHorsDuFrançais)
{
    Banc banc;
    banc.Ecrire("Ștefan.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    banc.AnnoncerBoîte(u"Le fichier \nșTEFAN.bil. existe déjà !\n");
    Valider(écran, u"șTEFAN");
}

TEST(GestionEleves, CréationImpossibleEstDite)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ouverture; };
    const auto fichier = DepuisChemin(banc.dossier / "Paul.bil");
    banc.AnnoncerBoîte(MessageEchec({EchecFichier::Ouverture, true}, fichier));
    Valider(écran, u"Paul");
    EXPECT_EQ(écran.cmbNoms.ListCount(), 0);
    EXPECT_EQ(écran.txtNom.Text, u"Paul");
}

TEST(GestionEleves, FichierAMoitiéFaitNeRestePas)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    banc.plateforme.échecEcriture = [&](const Chemin& fichier) {
        banc.Ecrire(EnUtf8(DepuisChemin(fichier.filename())), "");
        return EchecFichier::Ecriture;
    };
    banc.AnnoncerBoîte(u"Impossible d'enregistrer…");
    Valider(écran, u"Paul");
    EXPECT_FALSE(banc.Existe("Paul.bil"));
}

TEST(GestionEleves, AprèsUnAjoutLeNomSuivantRemplaceLePrécédent)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    Valider(écran, u" Zoé");
    EXPECT_EQ(écran.txtNom.SelText(), u" Zoé");
    EXPECT_TRUE(écran.txtNom.Visible);
    EXPECT_EQ(écran.Focus(), &écran.txtNom);
    écran.txtNom.SelText(u"Tom");
    écran.txtNom.Taper({u'\r', Touche::Entrée});
    EXPECT_EQ(écran.cmbNoms.Eléments(), (std::vector<Texte>{u"Tom", u"Zoé"}));
}

TEST(GestionEleves, AnnulerRevientALaListe)
{
    Banc banc;
    banc.Ecrire("Paul.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdAjouter.Cliquer();
    écran.txtNom.Saisir(u"Zo");
    écran.cmdAnnuler.Cliquer();
    EXPECT_FALSE(écran.txtNom.Visible || écran.lblConsigne.Visible || écran.cmdAnnuler.Visible);
    EXPECT_TRUE(écran.cmbNoms.Visible && écran.cmdSupprimer.Visible);
    EXPECT_EQ(écran.txtNom.Text, u"Paul");
    EXPECT_EQ(écran.Focus(), &écran.cmbNoms);
}

TEST(GestionEleves, ChoisirUnNomCacheLeCode)
{
    Banc banc;
    banc.Ecrire("Paul.bil", "");
    banc.Ecrire("Zoé.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    écran.cmbNoms.Choisir(1);
    EXPECT_EQ(écran.txtNom.Text, u"Zoé");
    EXPECT_FALSE(écran.txtCode.Visible || écran.txtVérif.Visible || écran.lblCode.Visible);
}

// ---- Deleting ----------------------------------------------------------------------------------------------------

TEST(GestionEleves, PremièreSuppressionCréeLeCodeEtPoseLaQuestion)
{
    Banc banc;
    banc.Ecrire("Paul.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    EXPECT_EQ(écran.lblCode.Caption, u"Tapez votre code d'accès (6 chiffres ou lettres).");
    EXPECT_EQ(écran.Focus(), &écran.txtCode);
    Frapper(écran.txtCode, u"120388");
    EXPECT_TRUE(écran.txtVérif.Visible);
    EXPECT_EQ(écran.lblCode.Caption, u"Confirmez votre code.");
    EXPECT_EQ(écran.Focus(), &écran.txtVérif);
    EXPECT_TRUE(banc.Existe("Paul.bil"));

    banc.AnnoncerBoîte(Texte{QuestionDestruction}, Réponse::Oui);
    Frapper(écran.txtVérif, u"120388");
    EXPECT_EQ(banc.Lire("Code.txt"), "\"120388\"\r\n");
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Choix, Boutons::OuiNon);
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Titre, u"Avertissement");
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Danger, Perte::ParOui);
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Objet, u"Elève : Paul");
    EXPECT_FALSE(banc.Existe("Paul.bil"));
    EXPECT_FALSE(écran.txtCode.Visible || écran.txtVérif.Visible || écran.lblCode.Visible);
    EXPECT_TRUE(banc.état.CodeValide);
    EXPECT_EQ(écran.Focus(), &écran.cmbNoms);
}

TEST(GestionEleves, LeCodeVautPourTouteLaVisite)
{
    Banc banc;
    banc.EcrireChamps("Code.txt", {u"123456"});
    banc.Ecrire("Paul.bil", "");
    banc.Ecrire("Zoé.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    banc.AnnoncerBoîte(Texte{QuestionDestruction}, Réponse::Non);
    Frapper(écran.txtCode, u"123456");
    EXPECT_TRUE(banc.Existe("Paul.bil"));
    banc.AnnoncerBoîte(Texte{QuestionDestruction}, Réponse::Oui);
    écran.cmbNoms.Choisir(1);
    écran.cmdSupprimer.Cliquer();
    EXPECT_FALSE(banc.Existe("Zoé.bil"));
    EXPECT_TRUE(banc.Existe("Paul.bil"));
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_FALSE(banc.état.CodeValide);
}

TEST(GestionEleves, SupprimerLeDernierLaisseUneListeVide)
{
    Banc banc;
    banc.EcrireChamps("Code.txt", {u"123456"});
    banc.Ecrire("Paul.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    banc.AnnoncerBoîte(Texte{QuestionDestruction}, Réponse::Oui);
    Frapper(écran.txtCode, u"123456");
    EXPECT_EQ(écran.cmbNoms.ListCount(), 0);
    EXPECT_EQ(écran.cmbNoms.Text, u"");
    écran.cmdSupprimer.Cliquer(); // nothing to ask about any more
    EXPECT_EQ(banc.plateforme.boîtesMontrées.size(), 1U);
    banc.AnnoncerBoîte(u"Il n'y a aucun fichier élève enregistré !");
    banc.Montrer(std::make_unique<frmExercices>(banc.application));
}

TEST(GestionEleves, NomSaisiAvecDesBlancsSeSupprimeAussitôt)
{
    Banc banc;
    banc.EcrireChamps("Code.txt", {u"123456"});
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    Valider(écran, u" Paul ");
    écran.cmdSupprimer.Cliquer();
    banc.AnnoncerBoîte(Texte{QuestionDestruction}, Réponse::Oui);
    Frapper(écran.txtCode, u"123456");
    EXPECT_FALSE(banc.Existe("Paul.bil"));
}

TEST(GestionEleves, NomQueLeDisqueEcritAutrementNeFaitPasSupprimerUnAutre)
{
    Banc banc;
    banc.EcrireChamps("Code.txt", {u"123456"});
    banc.Ecrire("Paul.bil", "gardé");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmbNoms.Observateur = [&] {
        if (const int place = écran.cmbNoms.Chercher(u"Zoé"); place >= 0)
            écran.cmbNoms.RemoveItem(place);
    };
    Valider(écran, u"Zoé ");
    EXPECT_EQ(écran.cmbNoms.Text, u"Zoé ");
    EXPECT_EQ(écran.cmbNoms.ListIndex, -1);
    écran.cmdSupprimer.Cliquer();
    banc.AnnoncerBoîte(Texte{QuestionDestruction}, Réponse::Oui);
    Frapper(écran.txtCode, u"123456");
    EXPECT_EQ(banc.Lire("Paul.bil"), "gardé");
    EXPECT_FALSE(banc.Existe("Zoé.bil"));
}

TEST(GestionEleves, SuppressionImpossibleEstDite)
{
    Banc banc;
    banc.EcrireChamps("Code.txt", {u"123456"});
    banc.Ecrire("Paul.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    // A folder that isn't empty takes the file's place: it can't be removed.
    banc.plateforme.boîtes.push_back({Texte{QuestionDestruction}, Réponse::Oui, std::nullopt, [&] {
                                          std::filesystem::remove(banc.dossier / "Paul.bil");
                                          banc.Ecrire("Paul.bil/x", "");
                                      }});
    banc.AnnoncerBoîte(u"Impossible de supprimer le fichier\n" + DepuisChemin(banc.dossier / "Paul.bil") + u"…");
    Frapper(écran.txtCode, u"123456");
    EXPECT_TRUE(banc.Existe("Paul.bil/x"));
}

TEST(GestionEleves, SupprimerCeQuiNEstPlusLàEstDit)
{
    Banc banc;
    banc.EcrireChamps("Code.txt", {u"123456"});
    banc.Ecrire("Paul.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    banc.plateforme.boîtes.push_back({Texte{QuestionDestruction}, Réponse::Oui, std::nullopt,
                                      [&] { std::filesystem::remove(banc.dossier / "Paul.bil"); }});
    banc.AnnoncerBoîte(u"Le fichier\n" + DepuisChemin(banc.dossier / "Paul.bil") +
                       u"\nn'est plus là : rien n'a été supprimé.");
    Frapper(écran.txtCode, u"123456");
    EXPECT_EQ(écran.cmbNoms.ListCount(), 0);
}

TEST(GestionEleves, LeFichierSeSupprimeSousLeNomQuIlA)
{
    Banc banc;
    banc.EcrireChamps("Code.txt", {u"123456"});
    banc.Ecrire("abel.bil", "");
    banc.Ecrire("Abel.BIL", "");
    banc.Ecrire("Abel.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    int place = 0;
    while (écran.listeBil.List(place) != u"Abel.BIL")
        ++place;
    écran.cmbNoms.Choisir(place);
    écran.cmdSupprimer.Cliquer();
    banc.AnnoncerBoîte(Texte{QuestionDestruction}, Réponse::Oui);
    Frapper(écran.txtCode, u"123456");
    EXPECT_FALSE(banc.Existe("Abel.BIL"));
    EXPECT_TRUE(banc.Existe("Abel.bil") && banc.Existe("abel.bil"));
    EXPECT_FALSE(écran.lblMisDeCôté.Visible); // one to each name now
}

TEST(GestionEleves, UnNomRefuséGardeLaListeEtLeFichierMontré)
{
    Banc banc;
    banc.EcrireChamps("Code.txt", {u"123456"});
    banc.Ecrire("Paul.bil", "");
    banc.Ecrire("Zoé.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmbNoms.Choisir(1);
    banc.Ecrire("Abel.bil", ""); // made on another machine: the places have moved
    banc.AnnoncerBoîte(u"Le fichier \nPaul.bil. existe déjà !\n");
    Valider(écran, u"Paul");
    EXPECT_EQ(écran.cmbNoms.Text, u"Zoé");
    EXPECT_EQ(écran.cmbNoms.ListCount(), 3);
    écran.cmdSupprimer.Cliquer();
    banc.AnnoncerBoîte(Texte{QuestionDestruction}, Réponse::Oui);
    Frapper(écran.txtCode, u"123456");
    EXPECT_FALSE(banc.Existe("Zoé.bil"));
    EXPECT_TRUE(banc.Existe("Abel.bil") && banc.Existe("Paul.bil"));
}

TEST(GestionEleves, UnNomRefuséGardeLePremierNomMontré)
{
    Banc banc;
    banc.Ecrire("Paul.bil", "");
    banc.Ecrire("Zoé.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    ASSERT_EQ(écran.cmbNoms.ListIndex, 0);
    banc.Ecrire("Abel.bil", ""); // made on another machine: it comes first now
    banc.AnnoncerBoîte(u"Le fichier \nZoé.bil. existe déjà !\n");
    Valider(écran, u"Zoé");
    EXPECT_EQ(écran.cmbNoms.Text, u"Paul");
}

// ---- What was set aside ------------------------------------------------------------------------------------------

TEST(GestionEleves, SansFichierMisDeCôtéAucuneNote)
{
    Banc banc;
    banc.Ecrire("Zoé.bil", "");
    banc.Ecrire("Zoé.bil.sauve1", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    EXPECT_FALSE(écran.lblMisDeCôté.Visible);
    EXPECT_EQ(écran.lblMisDeCôté.Caption, u"");
}

TEST(GestionEleves, LaNoteNommeLesFichiersMisDeCôtéEtLeurDossier)
{
    Banc banc;
    banc.Ecrire("réseau/Zoé.bil.autre1", "");
    banc.Ecrire("réseau/Éric.bil.abîmé2", "");
    banc.Ecrire("Tom.bil.abîmé1", "");
    const auto appli = banc.état.CheminAppli;
    banc.état.CheminBilans = appli + u"/réseau";
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    EXPECT_TRUE(écran.lblMisDeCôté.Visible);
    static constexpr VueTexte Sens = u".\n« abîmé » : le fichier de l'élève ne se lisait plus en entier. « autre » : "
                                     u"d'autres résultats du même élève, trouvés au retour du réseau.";
    EXPECT_EQ(écran.lblMisDeCôté.Caption, u"Fichiers mis de côté dans le dossier " + appli +
                                              u"/réseau : Éric.bil.abîmé2, Zoé.bil.autre1" + Texte{Sens} +
                                              u"\nFichiers mis de côté dans le dossier " + appli +
                                              u" : Tom.bil.abîmé1" + Texte{Sens});
    EXPECT_TRUE(banc.plateforme.boîtesMontrées.empty());
}

TEST(GestionEleves, LaNoteDUnDossierSeDitUneFoisEtSeCompte)
{
    Banc banc;
    for (int i = 1; i <= 10; ++i)
        banc.Ecrire("Zoé.bil.abîmé" + std::to_string(i), "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    const Texte note = écran.lblMisDeCôté.Caption;
    EXPECT_NE(note.find(u" et 2 de plus."), Texte::npos);
    EXPECT_EQ(note.find(u"Fichiers"), note.rfind(u"Fichiers"));
}

TEST(GestionEleves, DeuxFichiersDUnMêmeNomSontDits)
{
    Banc banc;
    banc.Ecrire("Abel.BIL", "");
    banc.Ecrire("Abel.bil", "");
    banc.Ecrire("abel.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    EXPECT_EQ(écran.lblMisDeCôté.Caption,
              u"Fichiers qui portent le même nom dans le dossier " + banc.état.CheminAppli + u" : Abel.bil, Abel.BIL.");
    EXPECT_EQ(écran.cmbNoms.ListCount(), 3);
}

TEST(GestionEleves, LaNoteSuitLeDossierChoisi)
{
    Banc banc;
    banc.Ecrire("partagé/Zoé.bil.abîmé1", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    EXPECT_FALSE(écran.lblMisDeCôté.Visible);
    écran.cmdCheminRéseau.Cliquer();
    écran.dirLecteurs.Ouvrir(0);
    écran.cmdValiderCheminRéseau.Cliquer();
    EXPECT_TRUE(écran.lblMisDeCôté.Visible);
}

TEST(GestionEleves, CodeErronéVideLaBoîteSansLimiteDEssais)
{
    Banc banc;
    banc.EcrireChamps("Code.txt", {u"123456"});
    banc.Ecrire("Paul.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    for (int essai = 0; essai < 5; ++essai) {
        Frapper(écran.txtCode, u"999999");
        EXPECT_EQ(écran.lblCode.Caption, u"Code erroné !");
        EXPECT_EQ(écran.txtCode.Text, u"");
        EXPECT_TRUE(écran.txtCode.Visible);
    }
    EXPECT_FALSE(banc.état.CodeValide);
    banc.AnnoncerBoîte(Texte{QuestionDestruction}, Réponse::Non);
    Frapper(écran.txtCode, u"123456");
}

TEST(GestionEleves, LeDernierChampEstLeCode)
{
    Banc banc;
    banc.EcrireChamps("Code.txt", {u"111111", u"222222"});
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    Frapper(écran.txtCode, u"111111");
    EXPECT_FALSE(banc.état.CodeValide);
    Frapper(écran.txtCode, u"222222");
    EXPECT_TRUE(banc.état.CodeValide);
}

TEST(GestionEleves, ConfirmationDifférenteRecommenceSansMessage)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    Frapper(écran.txtCode, u"123456");
    Frapper(écran.txtVérif, u"123457");
    EXPECT_EQ(écran.txtCode.Text, u"");
    EXPECT_EQ(écran.txtVérif.Text, u"");
    EXPECT_FALSE(écran.txtCode.Visible || écran.txtVérif.Visible || écran.lblCode.Visible);
    EXPECT_EQ(écran.Focus(), &écran.cmbNoms);
    EXPECT_FALSE(banc.état.CodeValide);
    EXPECT_FALSE(banc.Existe("Code.txt") && !banc.Lire("Code.txt")->empty());
}

TEST(GestionEleves, SeulsLesChiffresEntrentDansLeCode)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    for (auto* boîte : {&écran.txtCode, &écran.txtVérif}) {
        EXPECT_FALSE(boîte->Taper({u'\b', Touche::RetourArrière}));
        EXPECT_FALSE(boîte->Taper({u'a', 'a'}));
        EXPECT_FALSE(boîte->Taper({u' ', ' '}));
        EXPECT_TRUE(boîte->Taper({u'0', '0'}));
        EXPECT_TRUE(boîte->Taper({u'9', '9'}));
    }
    écran.cmdSupprimer.Cliquer();
    écran.txtCode.Saisir(u"\"1a2b"); // pasted
    EXPECT_EQ(écran.txtCode.Text, u"12");
}

TEST(GestionEleves, SaisieInterrompueRecommenceAVide)
{
    Banc banc;
    banc.Ecrire("Paul.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    Frapper(écran.txtCode, u"123456");
    Frapper(écran.txtVérif, u"12");
    écran.cmbNoms.Choisir(0);
    écran.cmdSupprimer.Cliquer();
    EXPECT_EQ(écran.txtCode.Text, u"");
    EXPECT_EQ(écran.txtVérif.Text, u"");
    EXPECT_FALSE(écran.txtVérif.Visible);
    EXPECT_TRUE(écran.txtCode.Visible);
}

TEST(GestionEleves, CodeQuiNeSEcritPasEstDitEtNOuvreRien)
{
    Banc banc;
    banc.Ecrire("Paul.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    Frapper(écran.txtCode, u"123456");
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ecriture; };
    banc.AnnoncerBoîte(MessageEchec({EchecFichier::Ecriture, true}, DepuisChemin(banc.dossier / "Code.txt")));
    Frapper(écran.txtVérif, u"123456");
    EXPECT_FALSE(banc.état.CodeValide);
    EXPECT_TRUE(banc.Existe("Paul.bil"));
    EXPECT_EQ(écran.Focus(), &écran.cmbNoms);
}

TEST(GestionEleves, UnCodeEcritAMoitiéNeRestePas)
{
    Banc banc;
    banc.Ecrire("Paul.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdSupprimer.Cliquer();
    Frapper(écran.txtCode, u"123456");
    banc.plateforme.échecEcriture = [&](const Chemin&) {
        banc.Ecrire("Code.txt", "\"123");
        return EchecFichier::Ecriture;
    };
    banc.AnnoncerBoîte(u"Impossible d'enregistrer…");
    Frapper(écran.txtVérif, u"123456");
    EXPECT_FALSE(banc.Existe("Code.txt"));
}

TEST(GestionEleves, CodeIllisibleNeSeRedéfinitPas)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    std::filesystem::create_directory(banc.dossier / "Code.txt"); // can't be read as a file
    écran.cmdSupprimer.Cliquer();
    banc.AnnoncerBoîte(u"Impossible de lire le fichier…");
    Frapper(écran.txtCode, u"123456");
    EXPECT_FALSE(écran.txtVérif.Visible);
}

// ---- The folder --------------------------------------------------------------------------------------------------

TEST(GestionEleves, ChoisirUnDossierLEcritEtLeListe)
{
    Banc banc;
    banc.Ecrire("Paul.bil", "");
    banc.Ecrire("partagé/Zoé.bil", "");
    banc.Ecrire("Chemin.txt", "\"ancien\"\r\n");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdCheminRéseau.Cliquer();
    EXPECT_FALSE(écran.cmdCheminRéseau.Visible);
    EXPECT_TRUE(écran.drvLecteurs.Visible && écran.dirLecteurs.Visible && écran.cmdValiderCheminRéseau.Visible);
    ASSERT_EQ(écran.dirLecteurs.SousDossiers(), (std::vector<Texte>{u"partagé"}));
    écran.dirLecteurs.Ouvrir(0);
    écran.cmdValiderCheminRéseau.Cliquer();

    const auto dossier = DepuisChemin(banc.dossier / "partagé");
    EXPECT_EQ(LireChamps(banc.dossier / "Chemin.txt"), (std::vector<Texte>{dossier}));
    EXPECT_EQ(banc.état.CheminRéseau, dossier);
    EXPECT_EQ(banc.état.CheminBilans, dossier);
    EXPECT_EQ(écran.lblRéseau.Caption, dossier);
    EXPECT_EQ(écran.lblRéseau.ToolTipText, dossier);
    EXPECT_EQ(écran.cmbNoms.Eléments(), (std::vector<Texte>{u"Zoé"}));
    EXPECT_TRUE(écran.cmdCheminRéseau.Visible);
    EXPECT_FALSE(écran.drvLecteurs.Visible || écran.dirLecteurs.Visible || écran.cmdValiderCheminRéseau.Visible);
    EXPECT_TRUE(banc.Existe("Paul.bil")); // not moved
}

TEST(GestionEleves, ValiderPrendLeDossierSurligné)
{
    Banc banc;
    banc.Ecrire("partagé/a/Zoé.bil", "");
    banc.Ecrire("partagé/b/Tom.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdCheminRéseau.Cliquer();
    écran.dirLecteurs.Ouvrir(0);
    écran.dirLecteurs.Surligner(1);
    EXPECT_EQ(écran.dirLecteurs.Path(), DepuisChemin(banc.dossier / "partagé"));
    écran.cmdValiderCheminRéseau.Cliquer();
    EXPECT_EQ(banc.état.CheminRéseau, DepuisChemin(banc.dossier / "partagé" / "b"));
    EXPECT_EQ(écran.cmbNoms.Text, u"Tom");
}

TEST(GestionEleves, LaListeDesLecteursMontreOùLOnEst)
{
    Banc banc;
    banc.plateforme.lecteurs = {u"/", DepuisChemin(banc.dossier)};
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    EXPECT_EQ(écran.drvLecteurs.Drive, DepuisChemin(banc.dossier));
    écran.cmdCheminRéseau.Cliquer();
    écran.dirLecteurs.Ouvrir(-1); // out of it
    EXPECT_EQ(écran.drvLecteurs.Drive, u"/");
    écran.drvLecteurs.Choisir(1);
    EXPECT_EQ(écran.drvLecteurs.Drive, DepuisChemin(banc.dossier));
    EXPECT_EQ(écran.dirLecteurs.Path(), DepuisChemin(banc.dossier));
}

TEST(GestionEleves, UnVoisinDontLeNomCommencePareilNEstPasLeLecteur)
{
    Banc banc;
    std::filesystem::create_directory(banc.dossier / "maison");
    std::filesystem::create_directory(banc.dossier / "maisonnette");
    banc.plateforme.lecteurs = {u"/", DepuisChemin(banc.dossier / "maison")};
    banc.état.CheminBilans = DepuisChemin(banc.dossier / "maisonnette");
    EXPECT_EQ(banc.Ouvrir<frmGestionEleves>().drvLecteurs.Drive, u"/");
}

TEST(GestionEleves, LecteurChoisiMontreSesDossiers)
{
    Banc banc;
    banc.Ecrire("clé/Zoé.bil", "");
    banc.plateforme.lecteurs.push_back(DepuisChemin(banc.dossier / "clé"));
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdCheminRéseau.Cliquer();
    écran.drvLecteurs.Choisir(1);
    EXPECT_EQ(écran.dirLecteurs.Path(), DepuisChemin(banc.dossier / "clé"));
}

TEST(GestionEleves, LecteurVideEstIgnoré)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdCheminRéseau.Cliquer();
    const Texte lecteur = écran.drvLecteurs.Drive;
    écran.drvLecteurs.Drive = u"/n'existe pas";
    écran.drvLecteurs.Change();
    EXPECT_EQ(écran.dirLecteurs.Path(), DepuisChemin(banc.dossier));
    EXPECT_EQ(écran.drvLecteurs.Drive, lecteur); // and the list says so
}

TEST(GestionEleves, CheminQuiNeSEcritPasEstDitEtLAncienReste)
{
    Banc banc;
    banc.Ecrire("partagé/Zoé.bil", "");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdCheminRéseau.Cliquer();
    écran.dirLecteurs.Ouvrir(0);
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ouverture; };
    banc.AnnoncerBoîte(MessageEchec({EchecFichier::Ouverture, true}, DepuisChemin(banc.dossier / "Chemin.txt")));
    écran.cmdValiderCheminRéseau.Cliquer();
    EXPECT_EQ(banc.état.CheminBilans, DepuisChemin(banc.dossier));
    EXPECT_EQ(banc.état.CheminRéseau, u"");
    EXPECT_TRUE(écran.cmdCheminRéseau.Visible);
}

TEST(GestionEleves, CheminCoupéParUnDisquePleinRetrouveSonAncienContenu)
{
    for (const int échecs : {1, 2}) {
        Banc banc;
        banc.Ecrire("partagé/Zoé.bil", "");
        banc.EcrireChamps("Chemin.txt", {u"/ancien"});
        auto& écran = banc.Ouvrir<frmGestionEleves>();
        écran.cmdCheminRéseau.Cliquer();
        écran.dirLecteurs.Ouvrir(0);
        banc.plateforme.échecEcriture = [&banc, reste = échecs](const Chemin&) mutable -> std::optional<EchecFichier> {
            if (reste-- == 0)
                return std::nullopt;
            banc.Ecrire("Chemin.txt", "\"/par");
            return EchecFichier::Ecriture;
        };
        banc.AnnoncerBoîte(
            MessageEchec({EchecFichier::Ecriture, échecs == 1}, DepuisChemin(banc.dossier / "Chemin.txt")));
        écran.cmdValiderCheminRéseau.Cliquer();
        if (échecs == 1)
            EXPECT_EQ(LireChamps(banc.dossier / "Chemin.txt"), (std::vector<Texte>{u"/ancien"}));
        else
            EXPECT_FALSE(banc.Existe("Chemin.txt"));
        EXPECT_EQ(banc.état.CheminRéseau, u"");
    }
}

TEST(GestionEleves, DossierQueLeFichierNePeutPasGarderEstRefusé)
{
    Banc banc;
    std::filesystem::create_directory(banc.dossier / "Ω");
    auto& écran = banc.Ouvrir<frmGestionEleves>();
    écran.cmdCheminRéseau.Cliquer();
    écran.dirLecteurs.Ouvrir(0);
    banc.AnnoncerBoîte(u"Le dossier\n" + DepuisChemin(banc.dossier / "Ω") + u"\nne peut pas servir…");
    écran.cmdValiderCheminRéseau.Cliquer();
    EXPECT_FALSE(banc.Existe("Chemin.txt"));
    EXPECT_EQ(banc.état.CheminRéseau, u"");
}

} // namespace tirelune
