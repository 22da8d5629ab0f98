#include "followup/EnregistrerNotes.h"

#include "core/FichierChamps.h"
#include "followup/FichierBilan.h"
#include "followup/GrilleRésultats.h"
#include "followup/frmExercices.h"
#include "tests/support/Banc.h"
#include "tests/support/Notices.h"

#include <array>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

namespace tirelune {

namespace {

void Noter(Banc& banc, int exercice, float note)
{
    banc.Index(exercice);
    EnregistrerNote(banc.Choix(), note);
}

void Titre(Banc& banc, const Texte& titre)
{
    banc.Choix().lblTexte.Caption = u" " + titre + u" ";
}

} // namespace

// ---- Scores in the grid ------------------------------------------------------------------------------------------

TEST(EnregistrerNotes, PremierExerciceFaitUneRangéeEtTrenteEtUneLignes)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.", u"Le chat");
    Noter(banc, 3, 7.5F);
    ASSERT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_EQ(banc.Choix().fgRésultats.Rows(), 2);
    const auto octets = banc.Lire("Léa.bil").value_or("");
    EXPECT_EQ(std::count(octets.begin(), octets.end(), '\n'), 31);
    EXPECT_TRUE(octets.starts_with("\"*\"\r\n\"Le chat\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"7,5\"\r\n"));
    EXPECT_TRUE(octets.ends_with("\"\"\r\n"));
}

TEST(EnregistrerNotes, SecondeNoteRemplaceLaPremièreMêmeMeilleure)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 9);
    Noter(banc, 0, 4);
    EXPECT_EQ(banc.Choix().fgRésultats.Rows(), 2);
    EXPECT_EQ(banc.Note(0), u"4");
    EXPECT_EQ(banc.Choix().fgRésultats.TextMatrix(0, PremièreColonneNote), u"4");
    EXPECT_EQ(banc.Choix().lblMoyenne(0).Caption, u"4");
}

TEST(EnregistrerNotes, MoyenneSurTousLesTextes)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.", u"A");
    Noter(banc, 26, 10);
    Titre(banc, u"B");
    Noter(banc, 26, 5);
    Titre(banc, u"C");
    Noter(banc, 25, 1); // another exercise doesn't count
    EXPECT_EQ(banc.Choix().fgRésultats.TextMatrix(0, 28), u"7,5");
    EXPECT_EQ(banc.Choix().lblMoyenne(26).Caption, u"7.5");
    EXPECT_EQ(banc.Choix().lblMoyenne(26).BackColor, Vert);
    EXPECT_EQ(banc.Choix().lblExo(26).BackColor, Jaune);
}

TEST(EnregistrerNotes, InfoBulleCoupéeSansArrondir)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 1, 10);
    EXPECT_EQ(banc.Choix().lblExo(1).ToolTipText, u"10");
    Noter(banc, 1, 6.6666F);
    EXPECT_EQ(banc.Choix().lblExo(1).ToolTipText, u"6.66");
    Noter(banc, 1, 20.0F / 3);
    EXPECT_EQ(banc.Note(1), u"6,666667");
    EXPECT_EQ(banc.Choix().lblExo(1).ToolTipText, u"6.66");
    Noter(banc, 1, 0);
    EXPECT_EQ(banc.Choix().lblExo(1).ToolTipText, u"0");
}

TEST(EnregistrerNotes, TitresQuiDiffèrentParLaCasseFontDeuxRangées)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.", u"Le Chat");
    Noter(banc, 0, 5);
    Titre(banc, u"Le chat");
    Noter(banc, 0, 6);
    EXPECT_EQ(banc.Choix().fgRésultats.Rows(), 3);
}

TEST(EnregistrerNotes, MêmeTitreDansDeuxDossiersPartageSaRangée)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 5);
    banc.état.CheminTexteElève = u"/ailleurs/";
    Noter(banc, 0, 6);
    EXPECT_EQ(banc.Choix().fgRésultats.Rows(), 2);
}

TEST(EnregistrerNotes, PointDécimalSelonLaMachine)
{
    Banc banc;
    banc.plateforme.séparateur = u'.';
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 6.25F);
    EXPECT_EQ(banc.Note(0), u"6.25");
    EXPECT_EQ(banc.Choix().lblExo(0).ToolTipText, u"6.25");
}

TEST(EnregistrerNotes, UnAutreSigneDécimalQuePointOuVirguleDevientUneVirgule)
{
    for (const char16_t signe : {u'\u066B', u'·', u'\'', u'\u06F0', u'\0'}) { // the first one is Persian and Arabic
        Banc banc;
        banc.plateforme.séparateur = signe;
        banc.ChargerTexte(u"Un texte.");
        Noter(banc, 0, 6.25F);
        EXPECT_EQ(banc.Note(0), u"6,25");
        EXPECT_TRUE(SauverBilan(banc.Choix()));
        EXPECT_NE(banc.Lire("Léa.bil")->find("\"6,25\""), std::string::npos);
    }
}

// ---- The file ----------------------------------------------------------------------------------------------------

TEST(SauverBilan, SansRéseauLeDossierDuProgrammeSert)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 5);
    banc.état.CheminBilans = u"/ailleurs";
    EXPECT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_EQ(banc.état.CheminBilans, banc.état.CheminAppli);
    EXPECT_FALSE(banc.Lire("Léa.bil")->empty());
}

TEST(SauverBilan, DossierPerduEnCoursDeRouteOkRéessaie)
{
    Banc banc;
    std::filesystem::create_directory(banc.dossier / "réseau");
    banc.ChargerTexte(u"Un texte.");
    banc.état.CheminRéseau = banc.état.CheminAppli + u"/réseau";
    Noter(banc, 0, 5);
    ASSERT_TRUE(SauverBilan(banc.Choix()));
    std::filesystem::remove_all(banc.dossier / "réseau");
    banc.AnnoncerBoîte(Texte{DossierInaccessible}, Réponse::Ok);
    banc.plateforme.boîtes.push_back({Texte{DossierInaccessible}, Réponse::Ok, u"CONNEXION RESEAU DEFECTUEUSE",
                                      [&] { std::filesystem::create_directory(banc.dossier / "réseau"); }});
    Noter(banc, 0, 6);
    EXPECT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_TRUE(banc.Lire("réseau/Léa.bil")->find("\"6\"") != std::string::npos);
}

TEST(SauverBilan, AnnulerEnregistreSurPlaceEtLeSuivantRevientAuRéseau)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    banc.état.CheminRéseau = banc.état.CheminAppli + u"/réseau";
    Noter(banc, 0, 5);
    banc.AnnoncerBoîte(Texte{DossierInaccessible}, Réponse::Annuler);
    EXPECT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Choix, Boutons::OkAnnuler);
    EXPECT_EQ(banc.état.CheminBilans, banc.état.CheminAppli);
    EXPECT_EQ(banc.état.CheminRéseau, banc.état.CheminAppli + u"/réseau");
    EXPECT_FALSE(banc.Lire("Léa.bil")->empty());

    std::filesystem::create_directory(banc.dossier / "réseau");
    EXPECT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_TRUE(banc.Existe("réseau/Léa.bil"));
    EXPECT_EQ(banc.état.CheminBilans, banc.état.CheminRéseau);
}

TEST(SauverBilan, CeQuUnAutreDossierContenaitEstGardéUneFois)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 5);
    banc.Ecrire("réseau/Léa.bil", "des années de résultats"); // read here while the network was out of reach
    banc.état.CheminRéseau = banc.état.CheminAppli + u"/réseau";
    const auto fichier = banc.état.CheminRéseau + u"/Léa.bil";
    banc.AnnoncerBoîte(u"Il y avait déjà d'autres résultats à ton nom :\n" + fichier +
                       u"\n\nIls sont gardés sous le nom\n" + fichier + u".autre1\n\nPréviens ton enseignant.");
    EXPECT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_EQ(banc.Lire("réseau/Léa.bil.autre1"), "des années de résultats");
    EXPECT_NE(banc.Lire("réseau/Léa.bil")->find("\"5\""), std::string::npos);
    EXPECT_TRUE(SauverBilan(banc.Choix())); // its own now
    EXPECT_FALSE(banc.Existe("réseau/Léa.bil.autre2"));
}

TEST(SauverBilan, CeQuiNeSeCopiePasNEstPasRemplacé)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 5);
    banc.Ecrire("réseau/Léa.bil", "des années de résultats");
    banc.état.CheminRéseau = banc.état.CheminAppli + u"/réseau";
    banc.plateforme.échecEcriture = [&](const Chemin& visé) {
        return visé.filename() == "Léa.bil" ? std::nullopt : std::optional{EchecFichier::Ouverture};
    };
    banc.AnnoncerBoîte(
        u"Il y a déjà d'autres résultats à ton nom :\n" + banc.état.CheminRéseau +
        u"/Léa.bil\n\nCe fichier n'a pas pu être mis de côté : rien n'a été enregistré. Préviens ton enseignant.");
    EXPECT_FALSE(SauverBilan(banc.Choix()));
    EXPECT_FALSE(banc.Choix().BilanEnregistré);
    EXPECT_EQ(banc.Lire("réseau/Léa.bil"), "des années de résultats");
}

TEST(SauverBilan, AucunDossierNAccepteLeDitEtGardeTout)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 5);
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ouverture; };
    banc.AnnoncerBoîte(Texte{DossierInaccessible}, Réponse::Annuler);
    const auto fichier = DepuisChemin(banc.dossier / "Léa.bil");
    banc.AnnoncerBoîte(u"Tes résultats n'ont pas pu être enregistrés :\n" + fichier +
                       u"\n\nSon dossier n'est pas accessible.…");
    EXPECT_FALSE(SauverBilan(banc.Choix()));
    EXPECT_FALSE(banc.Choix().BilanEnregistré);

    banc.plateforme.échecEcriture = nullptr;
    Noter(banc, 1, 8);
    EXPECT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_TRUE(banc.Choix().BilanEnregistré);
    EXPECT_NE(banc.Lire("Léa.bil")->find("\"5\"\r\n\"8\""), std::string::npos);
}

TEST(SauverBilan, EcritureQuiEchoueAprèsOuvertureNommeLeFichier)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 5);
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ecriture; };
    banc.AnnoncerBoîte(u"Tes résultats n'ont pas pu être enregistrés :\n" + DepuisChemin(banc.dossier / "Léa.bil") +
                       u"\n\nLe disque est peut-être plein…");
    EXPECT_FALSE(SauverBilan(banc.Choix()));
    EXPECT_EQ(banc.Note(0), u"5");
    banc.plateforme.échecEcriture = nullptr;
    EXPECT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_NE(banc.Lire("Léa.bil")->find("\"5\""), std::string::npos);
}

TEST(SauverBilan, CeQuUnFichierNePeutPasGarderLaisseLAncienEnPlace)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    banc.Ecrire("Léa.bil", "ancien");
    Noter(banc, 0, 6.5F);
    banc.Choix().fgRésultats.TextMatrix(1, ColonneTitre, u"Łódź"); // no place in the file
    banc.AnnoncerBoîte(u"Tes résultats contiennent un caractère que leur fichier ne peut pas garder…");
    EXPECT_FALSE(SauverBilan(banc.Choix()));
    EXPECT_FALSE(banc.Choix().BilanEnregistré);
    EXPECT_EQ(banc.Lire("Léa.bil"), "ancien");
}

TEST(SauverBilan, UnAutreFichierVideOuDéjàGardéNeSeDitPas)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 5);
    banc.Ecrire("réseau/Léa.bil", "");
    banc.état.CheminRéseau = banc.état.CheminAppli + u"/réseau";
    EXPECT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_FALSE(banc.Existe("réseau/Léa.bil.autre1"));
    banc.Ecrire("autre/Léa.BIL", "des résultats");
    banc.Ecrire("autre/Léa.BIL.autre1", "des résultats");
    banc.état.CheminRéseau = banc.état.CheminAppli + u"/autre";
    EXPECT_TRUE(SauverBilan(banc.Choix()));
    EXPECT_NE(banc.Lire("autre/Léa.BIL")->find("\"5\""), std::string::npos);
    EXPECT_FALSE(banc.Existe("autre/Léa.BIL.autre2") || banc.Existe("autre/Léa.bil"));
}

TEST(SauverBilan, FermerLeChoixRéessaieCeQuiNAPasPuSEcrire)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 5);
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ecriture; };
    banc.AnnoncerBoîte(u"Tes résultats n'ont pas pu être enregistrés…");
    EXPECT_FALSE(SauverBilan(banc.Choix()));
    banc.plateforme.échecEcriture = nullptr;
    banc.Choix().cmdQuitter.Cliquer();
    EXPECT_NE(banc.Lire("Léa.bil")->find("\"5\""), std::string::npos);
}

TEST(SauverBilan, QuitterSansPouvoirEnregistrerSeDemande)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    Noter(banc, 0, 5);
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ecriture; };
    banc.AnnoncerBoîte(u"Tes résultats n'ont pas pu être enregistrés…");
    EXPECT_FALSE(SauverBilan(banc.Choix()));
    for (const auto réponse : {Réponse::Non, Réponse::Oui}) {
        banc.AnnoncerBoîte(u"Tes résultats n'ont pas pu être enregistrés…");
        banc.AnnoncerBoîte(u"Les résultats de Léa ne sont pas enregistrés. Si tu quittes maintenant, ils peuvent être "
                           u"tous perdus, même ceux des "
                           u"autres jours.…",
                           réponse);
        banc.Choix().FermerParCroix();
        EXPECT_EQ(banc.Choix().EstChargé(), réponse == Réponse::Non);
        EXPECT_EQ(banc.Note(0), u"5");
    }
}

// ---- Many machines -----------------------------------------------------------------------------------------------

TEST(SauverBilan, HuitMachinesEnregistrentEnsembleSansSeGêner)
{
    static constexpr int Machines = 8;
    static constexpr int Enregistrements = 200;
    Banc banc;
    // Each time another length, so that a leftover of an earlier save would show.
    const auto contenu = [](int machine, int fois) {
        std::vector<Texte> champs;
        for (int texte = 0; texte <= fois % 7; ++texte) {
            champs.emplace_back(Marqueur);
            champs.push_back(u"Texte " + EnTexte(texte));
            champs.insert(champs.end(), NombreColonnes - 1, EnTexte(machine * 1000 + fois));
        }
        return ComposerChamps(champs).value();
    };
    const auto fichier = [&](int machine) {
        return EnChemin(FichierBilan(banc.état.CheminBilans, u"Élève " + EnTexte(machine)));
    };
    std::array<pid_t, Machines> enfants{};
    for (int machine = 0; machine < Machines; ++machine) {
        enfants[static_cast<std::size_t>(machine)] = ::fork();
        if (enfants[static_cast<std::size_t>(machine)] != 0)
            continue;
        int échecs = 0;
        for (int fois = 0; fois < Enregistrements; ++fois) {
            const auto octets = contenu(machine, fois);
            if (RéécrireFichier(fichier(machine), octets) || LireFichier(fichier(machine)) != octets)
                ++échecs;
        }
        ::_exit(échecs == 0 ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    for (const auto enfant : enfants) {
        ASSERT_GT(enfant, 0);
        int fin = -1;
        EXPECT_EQ(::waitpid(enfant, &fin, 0), enfant);
        EXPECT_EQ(fin, 0);
    }
    for (int machine = 0; machine < Machines; ++machine)
        EXPECT_EQ(LireFichier(fichier(machine)), contenu(machine, Enregistrements - 1));
}

} // namespace tirelune
