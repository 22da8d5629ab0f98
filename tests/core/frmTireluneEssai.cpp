#include "core/frmTirelune.h"

#include "core/FichierChamps.h"
#include "core/Remplacement.h"
#include "followup/frmExercices.h"
#include "tests/support/Banc.h"

namespace tirelune {

namespace {

// What the table opens under that name in these tests.
class Bouchon final : public Ecran {
public:
    using Ecran::Ecran;
    Label lblRien{*this, "lblRien"};

private:
    Arrangement Disposer() override { return Colonne{lblRien}; }
};

frmTirelune& OuvrirTirelune(Banc& banc)
{
    banc.application.écrans["frmEnseignant"] = [](Ecran& ouvreur) {
        return std::make_unique<Bouchon>(ouvreur.ApplicationDe(), "frmEnseignant", u"");
    };
    return banc.Ouvrir<frmTirelune>();
}

void Valider(TextBox& boîte, const Texte& code)
{
    ASSERT_TRUE(boîte.Saisir(code));
    boîte.Taper({u'\r', Touche::Entrée});
}

} // namespace

TEST(Tirelune, PolicesTriéesPuisSeptLignesVides)
{
    Banc banc;
    banc.plateforme.polices = {u"Verdana", u"Arial", u"Écolier"};
    auto& écran = OuvrirTirelune(banc);
    EXPECT_EQ(écran.cmbPassagePolices.Eléments(), (std::vector<Texte>{u"Arial", u"Écolier", u"Verdana"}));
    ASSERT_EQ(écran.cmbPolices.ListCount(), 10);
    EXPECT_EQ(écran.cmbPolices.List(2), u"Verdana");
    for (int i = 3; i < 10; ++i)
        EXPECT_EQ(écran.cmbPolices.List(i), u"");
}

TEST(Tirelune, LégendesAvecLeursBlancs)
{
    Banc banc;
    auto& écran = OuvrirTirelune(banc);
    EXPECT_EQ(écran.Caption, u"Tirelune");
    EXPECT_EQ(écran.mnuEnseignant.Caption, u"        E&nseignant        ");
    EXPECT_EQ(écran.mnuElève.Caption, u"        E&lève        ");
    EXPECT_EQ(écran.mnuQuitter.Caption, u"                      &Quitter                      ");
    EXPECT_EQ(écran.Frame1.Caption, u"Avertissement");
    EXPECT_TRUE(écran.Label2(0).Caption().starts_with(
        u"     Tirelune nécessite un affichage de 800x600, avec 65 000 couleurs (24 bits) ou plus pour un meilleur "
        u"confort.  "));
    EXPECT_EQ(écran.Label2(1).Caption,
              u"Une banque de textes régulièrement mise à jour est disponible sur le site suivant :");
    EXPECT_EQ(écran.Label2(2).Caption, u"[adresse du site : à compléter par l'école]");
    EXPECT_EQ(écran.Label2(3).Caption, u"Pour nous écrire : [adresse : à compléter par l'école]");
    EXPECT_EQ(écran.Label2(4).Caption,
              u"Les textes livrés avec Tirelune sont dans le dossier du programme : " + DepuisChemin(banc.dossier));
    EXPECT_EQ(écran.frameCodeEnseignant.Caption, u"Code d'accès requis pour le module Enseignant");
    EXPECT_EQ(écran.lblCodeEnseignant.Caption, u"Saisissez votre code :");
    EXPECT_EQ(écran.Label1.Caption, u"(6 caratères maximum)");
    EXPECT_EQ(écran.lblVérificationCode.Caption, u"Saisissez votre code à nouveau :");
    EXPECT_EQ(écran.lblCodeRappel.Caption, u"Retenez bien ce code qui vous sera demandé à chaque accès enseignant.");
    EXPECT_EQ(écran.cmdCode.Caption, u"O&k");
    EXPECT_EQ(écran.cmdAnnuler.Caption, u"&Annuler");
    EXPECT_EQ(écran.Menus().size(), 3U);
    EXPECT_FALSE(écran.frameCodeEnseignant.Visible);
}

TEST(Tirelune, DégradéDeDeuxCentCinquanteSixBandes)
{
    Banc banc;
    auto& écran = OuvrirTirelune(banc);
    const auto& dessin = écran.Fond();
    ASSERT_EQ(dessin.Formes.size(), 256U);
    EXPECT_EQ(dessin.Hauteur, 256);
    for (unsigned i = 0; i < 256; ++i) {
        const auto& bande = dessin.Formes[i];
        EXPECT_EQ(bande.Fond, Couleur::Rvb(0, i, 255));
        EXPECT_EQ(bande.Points[0], (Point{0, double(i)}));
        EXPECT_EQ(bande.Points[2], (Point{dessin.Largeur, double(i) + 1}));
    }
}

TEST(Tirelune, SansFichierDeCheminRienNeChange)
{
    Banc banc;
    banc.état.CheminBilans.clear();
    banc.état.CheminAppli.clear();
    OuvrirTirelune(banc);
    EXPECT_EQ(banc.état.CheminAppli, DepuisChemin(banc.dossier));
    EXPECT_EQ(banc.état.CheminBilans, u"");
}

TEST(Tirelune, FichierDeCheminVideOuAbsentGardeLesChemins)
{
    Banc banc;
    banc.Ecrire("Chemin.txt", "");
    banc.état.CheminRéseau = u"/réseau";
    banc.état.CheminBilans = u"/bilans";
    OuvrirTirelune(banc);
    EXPECT_EQ(banc.état.CheminRéseau, u"/réseau");
    EXPECT_EQ(banc.état.CheminBilans, u"/bilans");
}

TEST(Tirelune, CheminLuVautPourLesBilans)
{
    Banc banc;
    banc.EcrireChamps("Chemin.txt", {u"/réseau/élèves", u"autre"});
    OuvrirTirelune(banc);
    EXPECT_EQ(banc.état.CheminRéseau, u"/réseau/élèves");
    EXPECT_EQ(banc.état.CheminBilans, u"/réseau/élèves");
}

TEST(Tirelune, CheminVideRevientAuProgramme)
{
    Banc banc;
    banc.EcrireChamps("Chemin.txt", {u""});
    banc.état.CheminBilans = u"/ailleurs";
    OuvrirTirelune(banc);
    EXPECT_EQ(banc.état.CheminRéseau, u"");
    EXPECT_EQ(banc.état.CheminBilans, DepuisChemin(banc.dossier));
}

TEST(Tirelune, AprèsUnRôleLeCheminEstRelu)
{
    Banc banc;
    banc.Ecrire("Léa.bil", "");
    auto& écran = OuvrirTirelune(banc);
    banc.QuandOuvert<frmExercices>(
        [&](frmExercices&) { banc.EcrireChamps("Chemin.txt", {DepuisChemin(banc.dossier / "réseau")}); });
    écran.Fond = Dessin{};
    écran.mnuElève.Cliquer();
    EXPECT_EQ(banc.état.CheminBilans, DepuisChemin(banc.dossier / "réseau"));
    EXPECT_EQ(écran.Fond().Formes.size(), 256U); // painted again
}

TEST(Tirelune, PremierCodeSeConfirmePuisOuvre)
{
    Banc banc;
    auto& écran = OuvrirTirelune(banc);
    écran.mnuEnseignant.Cliquer();
    EXPECT_TRUE(écran.frameCodeEnseignant.Visible);
    EXPECT_EQ(écran.Focus(), &écran.txtCodeEnseignant);
    EXPECT_FALSE(écran.txtVérificationCode.Visible);

    Valider(écran.txtCodeEnseignant, u"Abc12é");
    EXPECT_TRUE(écran.txtVérificationCode.Visible && écran.lblVérificationCode.Visible && écran.lblCodeRappel.Visible);
    EXPECT_EQ(écran.Focus(), &écran.txtVérificationCode);
    EXPECT_FALSE(banc.Existe("CodeEnseignant.txt"));

    Valider(écran.txtVérificationCode, u"abc12é"); // case counts
    EXPECT_FALSE(banc.Existe("CodeEnseignant.txt"));
    EXPECT_EQ(écran.txtCodeEnseignant.Text, u"Abc12é");
    EXPECT_EQ(écran.txtVérificationCode.Text, u"abc12é");

    banc.QuandOuvert<Bouchon>([](Bouchon&) {});
    Valider(écran.txtVérificationCode, u"Abc12é");
    EXPECT_EQ(LireChamps(banc.dossier / "CodeEnseignant.txt"), (std::vector<Texte>{u"Abc12é"}));
    EXPECT_FALSE(écran.frameCodeEnseignant.Visible || écran.txtVérificationCode.Visible ||
                 écran.lblVérificationCode.Visible || écran.lblCodeRappel.Visible);
}

TEST(Tirelune, CodeJusteOuvreCodeFauxRevientAuMenu)
{
    Banc banc;
    banc.EcrireChamps("CodeEnseignant.txt", {u"ancien", u"Secret"});
    auto& écran = OuvrirTirelune(banc);
    for (const auto* faux : {u"secret", u"ancien", u"", u"Secre"}) {
        écran.mnuEnseignant.Cliquer();
        EXPECT_EQ(écran.txtCodeEnseignant.Text, u"");
        EXPECT_FALSE(écran.txtVérificationCode.EstAtteignable()); // no second entry while there is a code
        Valider(écran.txtCodeEnseignant, faux);
        EXPECT_FALSE(écran.frameCodeEnseignant.Visible);
        EXPECT_TRUE(banc.plateforme.écransMontrés.empty());
    }
    écran.mnuEnseignant.Cliquer();
    écran.txtCodeEnseignant.Saisir(u"Secret");
    banc.QuandOuvert<Bouchon>([](Bouchon&) {});
    écran.cmdCode.Cliquer();
    EXPECT_EQ(banc.plateforme.écransMontrés, (std::vector<std::string>{"frmEnseignant"}));
}

TEST(Tirelune, CodeVideOuvreAvecUneBoîteVide)
{
    for (const auto* octets : {"", "\"\"\r\n"}) {
        Banc banc;
        banc.Ecrire("CodeEnseignant.txt", octets);
        auto& écran = OuvrirTirelune(banc);
        écran.mnuEnseignant.Cliquer();
        banc.QuandOuvert<Bouchon>([](Bouchon&) {});
        écran.cmdCode.Cliquer();
    }
}

TEST(Tirelune, PremierCodeVideOuvreAuPremierClic)
{
    Banc banc;
    auto& écran = OuvrirTirelune(banc);
    écran.mnuEnseignant.Cliquer();
    banc.QuandOuvert<Bouchon>([](Bouchon&) {});
    écran.cmdCode.Cliquer();
    EXPECT_EQ(banc.Lire("CodeEnseignant.txt"), "\"\"\r\n");
}

TEST(Tirelune, CodeQuiNeSEcritPasEstDit)
{
    Banc banc;
    auto& écran = OuvrirTirelune(banc);
    écran.mnuEnseignant.Cliquer();
    Valider(écran.txtCodeEnseignant, u"abc");
    banc.plateforme.échecEcriture = [&](const Chemin&) {
        banc.Ecrire("CodeEnseignant.txt", "\"ab"); // the disk is full
        return EchecFichier::Ecriture;
    };
    banc.AnnoncerBoîte(MessageEchec({EchecFichier::Ecriture, true}, DepuisChemin(banc.dossier / "CodeEnseignant.txt")));
    Valider(écran.txtVérificationCode, u"abc");
    EXPECT_TRUE(écran.frameCodeEnseignant.Visible);
    EXPECT_TRUE(banc.plateforme.écransMontrés.empty());
    EXPECT_FALSE(banc.Existe("CodeEnseignant.txt"));

    banc.plateforme.échecEcriture = nullptr;
    banc.QuandOuvert<Bouchon>([](Bouchon&) {});
    Valider(écran.txtVérificationCode, u"abc");
    EXPECT_EQ(banc.Lire("CodeEnseignant.txt"), "\"abc\"\r\n");
}

TEST(Tirelune, CeQuiTientLieuDeCodeSansEnÊtreUnNeSeRemplacePas)
{
    Banc banc;
    auto& écran = OuvrirTirelune(banc);
    écran.mnuEnseignant.Cliquer();
    const auto fichier = DepuisChemin(banc.dossier / "CodeEnseignant.txt");
    std::filesystem::create_directory(EnChemin(fichier));
    banc.AnnoncerBoîte(MessageLecture(EchecLecture::PasUnFichier, fichier));
    Valider(écran.txtCodeEnseignant, u"abc");
    EXPECT_FALSE(écran.txtVérificationCode.Visible);
}

TEST(Tirelune, UnNulDansCheminNEmpêchePasDeContinuer)
{
    Banc banc;
    banc.Ecrire("Chemin.txt", std::string("\"/tmp\0\"\r\n", 9));
    auto& écran = OuvrirTirelune(banc);
    static_cast<void>(écran);
    std::error_code erreur;
    EXPECT_FALSE(std::filesystem::exists(EnChemin(banc.état.CheminBilans), erreur)); // "/tmp" is another folder
    banc.état.CheminRéseau.clear();
}

TEST(Tirelune, LeCodePrendSixCaractèresQueLeFichierPeutGarder)
{
    Banc banc;
    auto& écran = OuvrirTirelune(banc);
    for (auto* boîte : {&écran.txtCodeEnseignant, &écran.txtVérificationCode}) {
        EXPECT_FALSE(boîte->Saisir(u"1234567"));
        banc.AnnoncerBoîte(u"Le guillemet droit…");
        EXPECT_FALSE(boîte->Saisir(u"\""));
        banc.AnnoncerBoîte(u"Ce caractère n'est pas possible ici…");
        EXPECT_FALSE(boîte->Saisir(u"Ω"));
        EXPECT_EQ(boîte->Text, u"");
        EXPECT_EQ(boîte->PasswordChar, u'*');
        EXPECT_EQ(boîte->ToolTipText, u" 6 caractères maximum ");
    }
}

TEST(Tirelune, AnnulerCacheEtVide)
{
    Banc banc;
    auto& écran = OuvrirTirelune(banc);
    écran.mnuEnseignant.Cliquer();
    Valider(écran.txtCodeEnseignant, u"abc");
    écran.txtVérificationCode.Saisir(u"ab");
    écran.cmdAnnuler.Cliquer();
    EXPECT_FALSE(écran.frameCodeEnseignant.Visible || écran.txtVérificationCode.Visible ||
                 écran.lblVérificationCode.Visible || écran.lblCodeRappel.Visible);
    EXPECT_EQ(écran.txtCodeEnseignant.Text, u"");
    EXPECT_EQ(écran.txtVérificationCode.Text, u"");
}

TEST(Tirelune, QuitterTermineLeProgramme)
{
    Banc banc;
    OuvrirTirelune(banc).mnuQuitter.Cliquer();
    EXPECT_TRUE(banc.plateforme.terminé);
}

TEST(Tirelune, LaCroixTermineLeProgramme)
{
    Banc banc;
    OuvrirTirelune(banc).FermerParCroix();
    EXPECT_TRUE(banc.plateforme.terminé);
}

} // namespace tirelune
