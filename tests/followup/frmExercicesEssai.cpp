#include "followup/frmExercices.h"

#include "core/EcrivainRtf.h"
#include "core/FichierChamps.h"
#include "exercises/comprehension/frmQuestionnaire1.h"
#include "followup/EnregistrerNotes.h"
#include "followup/GrilleRésultats.h"
#include "tests/support/Banc.h"
#include "tests/support/Notices.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr VueTexte AFaire = u" A faire ";
constexpr int PetitsTitres = 5000;

// A record of 30 fields with its marker.
std::vector<Texte> Fiche(Texte titre, Texte vitesse, std::vector<Texte> notes = {})
{
    std::vector<Texte> champs{Texte{Marqueur}, std::move(titre), std::move(vitesse)};
    champs.insert(champs.end(), notes.begin(), notes.end());
    champs.resize(NombreColonnes + 1);
    return champs;
}

std::vector<Texte> Fiches(std::initializer_list<std::vector<Texte>> fiches)
{
    std::vector<Texte> champs;
    for (const auto& fiche : fiches)
        champs.insert(champs.end(), fiche.begin(), fiche.end());
    return champs;
}

// A chooser with that pupil file, signed in.
class Connexion {
public:
    explicit Connexion(Banc& banc, std::string_view octets = {}) : choix_(banc.application)
    {
        banc.Ecrire("Zoé.bil", octets);
        OuvrirExercices();
    }
    Connexion(Banc& banc, const std::vector<Texte>& champs) : Connexion(banc, *ComposerChamps(champs)) {}
    Connexion(const Connexion&) = delete;
    Connexion& operator=(const Connexion&) = delete;
    ~Connexion() { choix_.Décharger(); }

    frmExercices* operator->() { return &choix_; }
    frmExercices& operator*() { return choix_; }

private:
    void OuvrirExercices()
    {
        choix_.Charger();
        choix_.Dimensionner(12000, 9000);
        choix_.Activer();
        choix_.cmdOk.Cliquer();
    }
    frmExercices choix_;
};

Texte EcrireTexte(Banc& banc, const std::string& nom, const TexteRiche& texte)
{
    return DepuisChemin(banc.Ecrire(nom, EcrireRtf(texte)));
}

Texte Long(std::size_t caractères = 300)
{
    return Texte(caractères, u'a');
}

void ChargerTexte(Banc& banc, frmExercices& choix, const Texte& fichier)
{
    banc.AnnoncerFichier(fichier);
    choix.cmdCharger.Cliquer();
}

} // namespace

// ---- Signing in --------------------------------------------------------------------------------------------------

TEST(Exercices, ListeLesElèvesSousLeCadre)
{
    Banc banc;
    banc.Ecrire("Zoé.bil", "");
    banc.Ecrire("Éva & Tom.bil", "");
    banc.Ecrire("texte.rtf", "");
    auto& choix = banc.Ouvrir<frmExercices>();
    EXPECT_EQ(choix.Caption, u"Choix des exercices");
    EXPECT_EQ(choix.cmbNoms.Eléments(), (std::vector<Texte>{u"Éva & Tom", u"Zoé"}));
    EXPECT_EQ(choix.cmbNoms.Text, u"Éva & Tom");
    EXPECT_TRUE(choix.frameElève.Visible);
    EXPECT_EQ(choix.frameElève.Width, choix.Width());
    EXPECT_EQ(choix.frameElève.Height, choix.Height());
    choix.cmdCharger.Cliquer(); // under the frame: no dialog
    choix.lblExo(0).Cliquer();
    EXPECT_TRUE(banc.plateforme.dialogues.empty());
}

TEST(Exercices, EntréeSurLaListeDesNomsConfirme)
{
    Banc banc;
    banc.Ecrire("Zoé.bil", "");
    auto& choix = banc.Ouvrir<frmExercices>();
    EXPECT_FALSE(choix.cmbNoms.Taper({u'\r', Touche::Entrée}));
    EXPECT_EQ(choix.Caption, u"Choix des exercices / Zoé");
    EXPECT_FALSE(choix.frameElève.Visible);
}

TEST(Exercices, LégendesEtBulles)
{
    Banc banc;
    banc.Ecrire("Zoé.bil", "");
    auto& choix = banc.Ouvrir<frmExercices>();
    EXPECT_EQ(choix.frameElève.Caption, u"Elève");
    EXPECT_EQ(choix.cmdCharger.Caption, u"C&harger un fichier texte");
    EXPECT_EQ(choix.cmdCode.Caption, u"&Code des Couleurs");
    EXPECT_EQ(choix.cmdQuitter.Caption, u"&Quitter");
    EXPECT_EQ(choix.Label1.Caption, u" Afficher les résultats (textes déjà étudiés) :");
    EXPECT_EQ(choix.Label2.Caption, u" Vitesse de lecture (signes par minute) ");
    EXPECT_EQ(
        choix.lblConsigne.Caption,
        u"            AVERTISSEMENT                    Afficher les résultats ne charge pas le texte en mémoire.  "
        u"                     Pour cela, vous devez cliquer sur le bouton \"Charger un fichier texte\".");
    EXPECT_EQ(choix.lblTexte.ToolTipText, u" Texte chargé ");
    EXPECT_FALSE(choix.lblTexte.Visible);
    EXPECT_EQ(choix.cmbTextes.ToolTipText, u" Affiche les résultats dans l'ordre des textes étudiés. ");
    EXPECT_EQ(choix.lblVitesse.ToolTipText, u" Texte en cours ");
    EXPECT_EQ(choix.lblVitesseMoyenne.ToolTipText, u" Moyenne ");
    for (const auto& moyenne : choix.lblMoyenne)
        EXPECT_EQ(moyenne.ToolTipText, u" Moyenne sur 10 pour tous les textes étudiés. ");
    const Frame* const cadres[] = {&choix.frmCompréhension, &choix.frmVocabulaire, &choix.frmVitesse, &choix.frmOrdre,
                                   &choix.frmOrthographe};
    for (std::size_t groupe = 0; groupe < Groupes.size(); ++groupe) {
        EXPECT_EQ(cadres[groupe]->Caption, Texte{Groupes[groupe].Titre});
        EXPECT_EQ(cadres[groupe]->ToolTipText, u" Cliquer sur le cadre de couleur pour voir la progression. ");
    }
    for (const auto& image : choix.imgCourbes)
        EXPECT_EQ(image.ToolTipText, u" Cliquer ici pour voir les courbes de progression. ");
}

TEST(Exercices, SansElèveLeDitEtSeConnecteSansNom)
{
    Banc banc;
    banc.AnnoncerBoîte(u"Il n'y a aucun fichier élève enregistré !");
    auto& choix = banc.Ouvrir<frmExercices>();
    EXPECT_TRUE(choix.frameElève.Visible);
    choix.cmdOk.Cliquer();
    EXPECT_EQ(banc.état.NomElève, u"");
    EXPECT_FALSE(choix.frameElève.Visible);
}

TEST(Exercices, SansElèveCeQuiAEtéEnregistréSansNomSeRetrouve)
{
    Banc banc;
    banc.EcrireChamps(".bil", Fiche(u"A", u"90"));
    banc.AnnoncerBoîte(u"Il n'y a aucun fichier élève enregistré !");
    auto& choix = banc.Ouvrir<frmExercices>();
    choix.cmdOk.Cliquer();
    EXPECT_EQ(choix.fgRésultats.Rows(), 2);
}

TEST(Exercices, PremierDépartSansCheminListeLeDossierDuProgramme)
{
    Banc banc;
    banc.Ecrire("Zoé.bil", "");
    banc.état.CheminBilans.clear();
    EXPECT_EQ(banc.Ouvrir<frmExercices>().cmbNoms.Text, u"Zoé");
}

TEST(Exercices, DossierInaccessibleRéessaiePuisRevientAuProgramme)
{
    Banc banc;
    banc.Ecrire("Zoé.bil", "");
    banc.état.CheminBilans = u"/parti";
    banc.AnnoncerBoîte(Texte{DossierInaccessible}, Réponse::Ok);
    banc.AnnoncerBoîte(Texte{DossierInaccessible}, Réponse::Annuler);
    auto& choix = banc.Ouvrir<frmExercices>();
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Titre, u"CONNEXION RESEAU DEFECTUEUSE");
    EXPECT_EQ(banc.état.CheminBilans, banc.état.CheminAppli);
    EXPECT_EQ(choix.cmbNoms.Text, u"Zoé");
}

TEST(Exercices, NouvelElèveNARien)
{
    Banc banc;
    Connexion choix{banc};
    EXPECT_EQ(banc.état.NomElève, u"Zoé");
    EXPECT_EQ(choix->Caption, u"Choix des exercices / Zoé");
    EXPECT_FALSE(choix->frameElève.Visible);
    EXPECT_EQ(choix->fgRésultats.Rows(), 1);
    EXPECT_EQ(choix->cmbTextes.ListCount(), 0);
    for (int i = 0; i < NombreExercices; ++i) {
        EXPECT_EQ(choix->lblExo(i).BackColor, Blanc);
        EXPECT_EQ(choix->lblExo(i).ToolTipText, AFaire);
        EXPECT_EQ(choix->lblMoyenne(i).Caption, u"");
        EXPECT_EQ(choix->lblExo(i).Caption, Exercices[static_cast<std::size_t>(i)].Libellé);
    }
}

// ---- The pupil's file --------------------------------------------------------------------------------------------

TEST(Bilan, RelitCeQuIlAEcrit)
{
    Banc banc;
    const auto champs = Fiches({Fiche(u"Le chat", u"120", {u"10", u"", u"6,666667"}), Fiche(u"L'été", u"", {u"5"})});
    Connexion choix{banc, champs};
    ASSERT_EQ(choix->fgRésultats.Rows(), 3);
    EXPECT_EQ(choix->fgRésultats.TextMatrix(0, 2), u"7,5");
    EXPECT_EQ(choix->fgRésultats.TextMatrix(0, 1), u"120");
    EXPECT_EQ(choix->lblVitesseMoyenne.Caption, u"120");
    EXPECT_EQ(choix->lblMoyenne(0).Caption, u"7.5");
    EXPECT_EQ(choix->lblMoyenne(2).Caption, u"6.66");
    EXPECT_EQ(choix->lblMoyenne(2).BackColor, Jaune);
    EXPECT_EQ(choix->lblMoyenne(1).BackColor, Blanc);
    EXPECT_EQ(choix->cmbTextes.Eléments(), (std::vector<Texte>{u"Le chat", u"L'été"}));
    EXPECT_EQ(choix->cmbTextes.Text, u"L'été"); // the last one, painted
    EXPECT_EQ(choix->lblExo(0).BackColor, Jaune);
    EXPECT_EQ(choix->lblExo(0).ToolTipText, u"5");
    EXPECT_EQ(choix->lblExo(2).ToolTipText, AFaire);
    EXPECT_TRUE(SauverBilan(*choix));
    EXPECT_EQ(LireChamps(banc.dossier / "Zoé.bil"), champs);
}

TEST(Bilan, VitesseMoyenneEstLaPartieEntière)
{
    Banc banc;
    Connexion choix{banc, Fiches({Fiche(u"A", u"100"), Fiche(u"B", u"101"), Fiche(u"C", u"")})};
    EXPECT_EQ(choix->fgRésultats.TextMatrix(0, ColonneVitesse), u"100");
    EXPECT_EQ(choix->lblVitesseMoyenne.Caption, u"100");
}

TEST(Bilan, VirguleEtPointSeLisentTousDeux)
{
    Banc banc;
    Connexion choix{banc, Fiches({Fiche(u"A", u"", {u"6,5"}), Fiche(u"B", u"", {u"7.5"})})};
    EXPECT_EQ(choix->lblMoyenne(0).Caption, u"7");
    EXPECT_TRUE(SauverBilan(*choix));
    EXPECT_NE(banc.Lire("Zoé.bil")->find("\"7,5\""), std::string::npos); // this machine's own separator
}

TEST(Bilan, FicheTropCourteLaisseDesCellulesVides)
{
    Banc banc;
    Connexion choix{banc, Fiches({{u"*", u"A", u"100", u"5"}, Fiche(u"B", u"")})};
    ASSERT_EQ(choix->fgRésultats.Rows(), 3);
    EXPECT_EQ(choix->fgRésultats.TextMatrix(1, 2), u"5");
    EXPECT_EQ(choix->fgRésultats.TextMatrix(1, 28), u"");
    EXPECT_EQ(choix->fgRésultats.TextMatrix(2, 0), u"B");
    EXPECT_TRUE(banc.plateforme.boîtesMontrées.empty());
}

TEST(Bilan, FicheTropLongueSeLitEtLeFichierEstGardé)
{
    Banc banc;
    auto fiche = Fiche(u"A", u"100", {u"5"});
    fiche.emplace_back(u"de trop");
    const auto champs = Fiches({fiche, Fiche(u"B", u"90")});
    banc.AnnoncerBoîte(u"Ton fichier de résultats est abîmé. Ce qui se lit encore est là.…");
    Connexion choix{banc, champs};
    EXPECT_EQ(choix->fgRésultats.Rows(), 3);
    EXPECT_EQ(choix->fgRésultats.TextMatrix(2, 0), u"B");
    EXPECT_EQ(LireChamps(banc.dossier / "Zoé.bil.abîmé1"), champs);
}

TEST(Bilan, SansAstérisqueEnTêteLeDébutEstPasséEtGardé)
{
    Banc banc;
    banc.Ecrire("Zoé.bil.abîmé1", "d'avant");
    banc.AnnoncerBoîte(u"Ton fichier de résultats est abîmé. Ce qui se lit encore est là.…");
    Connexion choix{banc, Fiches({{u"perdu", u"12"}, Fiche(u"A", u"100")})};
    EXPECT_EQ(choix->fgRésultats.Rows(), 2);
    EXPECT_EQ(choix->cmbTextes.Eléments(), (std::vector<Texte>{u"A"}));
    EXPECT_EQ(banc.Lire("Zoé.bil.abîmé1"), "d'avant");
    EXPECT_TRUE(banc.Existe("Zoé.bil.abîmé2"));
}

TEST(Bilan, LettresPourNoteComptentCommeNonFait)
{
    Banc banc;
    Connexion choix{banc, Fiches({Fiche(u"A", u"vite", {u"bien", u"8"}), Fiche(u"B", u"80", {u"4", u"très bien"})})};
    EXPECT_EQ(choix->lblMoyenne(0).Caption, u"4");
    EXPECT_EQ(choix->lblMoyenne(1).Caption, u"8");
    EXPECT_EQ(choix->lblExo(1).BackColor, Blanc);
    EXPECT_EQ(choix->lblExo(1).ToolTipText, AFaire);
    EXPECT_EQ(choix->lblVitesseMoyenne.Caption, u"80");
}

TEST(Bilan, ToutesLesFinsDeLigneSeLisent)
{
    for (const auto* fin : {"\r\n", "\n", "\r"}) {
        Banc banc;
        std::string octets;
        for (const auto& champ : Fiche(u"A", u"100", {u"5"}))
            octets += '"' + EnUtf8(champ) + '"' + fin;
        Connexion choix{banc, octets};
        EXPECT_EQ(choix->fgRésultats.Rows(), 2);
        EXPECT_EQ(choix->fgRésultats.TextMatrix(1, 2), u"5");
    }
}

TEST(Bilan, GuillemetSeulNeToucheQueSaLigne)
{
    Banc banc;
    const std::string abîmée{"\"*\"\r\n\"Le chat\r\n\"100\"\r\n\"\r\n\"6\"\r\n"};
    Connexion choix{banc, abîmée + *ComposerChamps(Fiche(u"B", u""))};
    ASSERT_EQ(choix->fgRésultats.Rows(), 3);
    EXPECT_EQ(choix->fgRésultats.TextMatrix(1, 0), u"Le chat");
    EXPECT_EQ(choix->fgRésultats.TextMatrix(1, 1), u"100");
    EXPECT_EQ(choix->fgRésultats.TextMatrix(1, 2), u"");
    EXPECT_EQ(choix->fgRésultats.TextMatrix(1, 3), u"6");
    EXPECT_EQ(choix->fgRésultats.TextMatrix(2, 0), u"B");
}

TEST(Bilan, AstérisqueEntreBlancsOuvreUneFicheDèsLaLecture)
{
    Banc banc;
    Connexion choix{banc, Fiches({{u"*", u"A", u" * ", u"B"}, std::vector<Texte>(29)})};
    ASSERT_EQ(choix->fgRésultats.Rows(), 3);
    EXPECT_TRUE(SauverBilan(*choix));
    EXPECT_EQ(LireChamps(banc.dossier / "Zoé.bil"), Fiches({Fiche(u"A", u""), Fiche(u"B", u"")}));
}

TEST(Bilan, OctetsQuelconquesEtNulsNeCassentRien)
{
    Banc banc;
    banc.plateforme.boîtes.push_back({u"…", Réponse::Ok, std::nullopt, {}});
    std::string octets;
    for (int i = 0; i < 4096; ++i)
        octets += static_cast<char>(i * 37 % 256);
    octets += std::string(100, '\0');
    Connexion choix{banc, octets};
    EXPECT_TRUE(SauverBilan(*choix));
    EXPECT_EQ(banc.Lire("Zoé.bil.abîmé1"), octets);
}

TEST(Bilan, NombreDémesuréCompteCommeNonFait)
{
    Banc banc;
    Connexion choix{banc, Fiches({Fiche(u"A", Texte(400, u'9'), {Texte(30, u'9')})})};
    EXPECT_EQ(choix->lblVitesseMoyenne.Caption, u"");
    EXPECT_EQ(choix->lblExo(0).ToolTipText, AFaire);
}

TEST(Bilan, FinAuMilieuDUneValeurOuDUneFicheEstUnDommage)
{
    const auto entier = *ComposerChamps(Fiches({Fiche(u"A", u"100", {u"5"}), Fiche(u"B", u"90", {u"6,5"})}));
    const auto sansFin = entier.substr(0, entier.size() - 2); // no line end
    for (const auto& octets :
         {sansFin, sansFin.substr(0, sansFin.size() - 1), sansFin.substr(0, sansFin.size() - 1) + "\r\n",
          entier.substr(0, entier.size() - 4), entier.substr(0, entier.find("6,5") + 1), entier + "\"*",
          entier + "\"*\"\r\n", entier.substr(0, 3)}) {
        Banc banc;
        banc.AnnoncerBoîte(
            u"Ton fichier de résultats est abîmé. Ce qui se lit encore est là.\n\nLe fichier tel qu'il était "
            u"est gardé sous le nom\n" +
            DepuisChemin(banc.dossier / "Zoé.bil.abîmé1") + u"\n\nPréviens ton enseignant.");
        Connexion choix{banc, octets};
        EXPECT_EQ(banc.Lire("Zoé.bil.abîmé1"), octets);
        EXPECT_FALSE(choix->frameElève.Visible);
    }
    for (const auto* fin : {"", "\r\n", "\n\n"}) {
        Banc banc;
        Connexion choix{banc, entier + fin};
        EXPECT_EQ(choix->fgRésultats.Rows(), 3);
    }
}

TEST(Bilan, UnDommageNEstMisDeCôtéEtDitQuUneFois)
{
    Banc banc;
    banc.AnnoncerBoîte(u"Ton fichier de résultats est abîmé.…");
    for (int fois = 0; fois < 3; ++fois)
        Connexion{banc, "\"*\"\r\n\"A"};
    EXPECT_FALSE(banc.Existe("Zoé.bil.abîmé2"));
    banc.Ecrire("Zoé.bil.abîmé1", ""); // a power cut had left nothing of it
    banc.AnnoncerBoîte(u"Ton fichier de résultats est abîmé.…");
    Connexion{banc, "\"*\"\r\n\"A"};
    EXPECT_EQ(banc.Lire("Zoé.bil.abîmé2"), "\"*\"\r\n\"A");
}

TEST(Bilan, CeQuiNEstPasMisDeCôtéNEstPasRemplacé)
{
    Banc banc;
    static constexpr std::string_view Abîmé = "\"*\"\r\n\"A";
    const auto fichier = DepuisChemin(banc.dossier / "Zoé.bil");
    banc.plateforme.échecEcriture = [&](const Chemin& visé) -> std::optional<EchecFichier> {
        if (visé == banc.dossier / "Zoé.bil")
            return std::nullopt;
        banc.Ecrire(EnUtf8(DepuisChemin(visé.filename())), "moitié");
        return EchecFichier::Ecriture;
    };
    banc.AnnoncerBoîte(u"Ton fichier de résultats est abîmé, et il n'a pas pu être mis de côté :\n" + fichier + u"…");
    Connexion choix{banc, Abîmé};
    EXPECT_FALSE(banc.Existe("Zoé.bil.abîmé1"));
    choix->lblIndex.Caption = u"0";
    choix->lblTexte.Caption = u"Le chat";
    EnregistrerNote(*choix, 5);
    banc.AnnoncerBoîte(
        u"Ton fichier de résultats est abîmé :\n" + fichier +
        u"\n\nCe fichier n'a pas pu être mis de côté : rien n'a été enregistré. Préviens ton enseignant.");
    EXPECT_FALSE(SauverBilan(*choix));
    EXPECT_EQ(banc.Lire("Zoé.bil"), Abîmé);
    EXPECT_FALSE(choix->BilanEnregistré);

    banc.plateforme.échecEcriture = nullptr;
    EXPECT_TRUE(SauverBilan(*choix));
    EXPECT_EQ(banc.Lire("Zoé.bil.abîmé1"), Abîmé);
    EXPECT_NE(banc.Lire("Zoé.bil")->find("\"5\""), std::string::npos);
    EXPECT_TRUE(SauverBilan(*choix));
    EXPECT_FALSE(banc.Existe("Zoé.bil.abîmé2"));
}

// ---- While another machine saves ---------------------------------------------------------------------------------

TEST(Bilan, FichierPartiEstRegardéDeuxSecondesPuisDit)
{
    Banc banc;
    banc.Ecrire("Zoé.bil", "");
    auto& choix = banc.Ouvrir<frmExercices>();
    std::filesystem::remove(banc.dossier / "Zoé.bil");
    const double avant = banc.plateforme.Horloge();
    banc.AnnoncerBoîte(u"Ton fichier de résultats n'est plus là :\n" + DepuisChemin(banc.dossier / "Zoé.bil") +
                       u"\n\nPréviens ton enseignant.");
    choix.cmdOk.Cliquer();
    EXPECT_NEAR(banc.plateforme.Horloge() - avant, 2, 0.001);
    EXPECT_TRUE(choix.frameElève.Visible);
    EXPECT_EQ(choix.Caption, u"Choix des exercices");
}

TEST(Bilan, FichierQuiRevientDansLesDeuxSecondesSeLitSansUnMot)
{
    for (const char* pendant : {"", "\"*\"\r\n\"A", static_cast<const char*>(nullptr)}) {
        for (const auto quand : {0ms, 50ms, 950ms, 1900ms}) {
            Banc banc;
            banc.Ecrire("Zoé.bil", pendant == nullptr ? "" : pendant);
            auto& choix = banc.Ouvrir<frmExercices>();
            if (pendant == nullptr)
                std::filesystem::remove(banc.dossier / "Zoé.bil");
            banc.plateforme.âge = 0s;
            banc.plateforme.Prévoir(quand, [&] { banc.EcrireChamps("Zoé.bil", Fiche(u"A", u"90")); });
            choix.cmdOk.Cliquer();
            EXPECT_EQ(choix.fgRésultats.Rows(), 2) << quand.count();
            EXPECT_FALSE(choix.frameElève.Visible);
            EXPECT_FALSE(banc.Existe("Zoé.bil.abîmé1"));
        }
    }
}

TEST(Bilan, UnFichierJeuneSeLitDeuxFoisPareil)
{
    Banc banc;
    banc.EcrireChamps("Zoé.bil", Fiche(u"A", u"90")); // its first part is on the disk, up to the end of a record
    auto& choix = banc.Ouvrir<frmExercices>();
    banc.plateforme.âge = -5s; // the other machine's clock is ahead
    banc.plateforme.Prévoir(80ms, [&] {
        banc.EcrireChamps("Zoé.bil", Fiches({Fiche(u"A", u"90"), Fiche(u"B", u"80")}));
    });
    const double avant = banc.plateforme.Horloge();
    choix.cmdOk.Cliquer();
    EXPECT_EQ(choix.fgRésultats.Rows(), 3);
    EXPECT_NEAR(banc.plateforme.Horloge() - avant, 0.2, 0.001);
}

TEST(Bilan, UnFichierQuiChangeSansCesseEstLuEntier)
{
    Banc banc;
    banc.EcrireChamps("Zoé.bil", Fiche(u"A", u"90"));
    auto& choix = banc.Ouvrir<frmExercices>();
    banc.plateforme.âge = 0s;
    for (int fois = 0; fois < 20; ++fois) {
        banc.plateforme.Prévoir(fois * 100ms + 50ms, [&banc, fois] {
            if (fois % 2 == 0)
                banc.Ecrire("Zoé.bil", "");
            else
                banc.EcrireChamps("Zoé.bil", Fiche(u"A", EnTexte(static_cast<long long>(fois))));
        });
    }
    banc.plateforme.Prévoir(1960ms, [&] { banc.Ecrire("Zoé.bil", ""); });
    choix.cmdOk.Cliquer();
    EXPECT_EQ(choix.fgRésultats.TextMatrix(1, ColonneVitesse), u"17"); // the last whole one that was seen
}

TEST(Bilan, FichierVideDUnNouvelElèveNAlarmePas)
{
    for (const auto& [âge, attente] : {std::pair{3600s, 0.1}, std::pair{10s, 0.1}, std::pair{9s, 2.0}}) {
        Banc banc;
        banc.Ecrire("Zoé.bil", "");
        auto& choix = banc.Ouvrir<frmExercices>();
        banc.plateforme.âge = âge;
        const double avant = banc.plateforme.Horloge();
        choix.cmdOk.Cliquer();
        EXPECT_NEAR(banc.plateforme.Horloge() - avant, attente, 0.001);
        EXPECT_EQ(choix.fgRésultats.Rows(), 1);
        EXPECT_FALSE(choix.frameElève.Visible);
    }
}

TEST(Bilan, FermerPendantLAttenteNeLitPlusRien)
{
    Banc banc;
    banc.Ecrire("Zoé.bil", "");
    auto& choix = banc.Ouvrir<frmExercices>();
    std::filesystem::remove(banc.dossier / "Zoé.bil");
    banc.plateforme.Prévoir(500ms, [&] { choix.FermerParCroix(); });
    choix.cmdOk.Cliquer();
    EXPECT_FALSE(choix.EstChargé());
    EXPECT_EQ(choix.Caption, u"Choix des exercices");
    EXPECT_TRUE(banc.plateforme.boîtesMontrées.empty());
}

// ---- Names in another case ---------------------------------------------------------------------------------------

TEST(Bilan, UneExtensionEnCapitalesSeLitEtSEnregistreSousSonNom)
{
    Banc banc;
    banc.EcrireChamps("Abel.BIL", Fiche(u"A", u"90"));
    auto& choix = banc.Ouvrir<frmExercices>();
    choix.cmdOk.Cliquer();
    EXPECT_EQ(banc.état.NomElève, u"Abel");
    EXPECT_EQ(choix.fgRésultats.Rows(), 2);
    choix.lblIndex.Caption = u"0";
    choix.lblTexte.Caption = u"B";
    EnregistrerNote(choix, 5);
    std::filesystem::remove(banc.dossier / "Abel.BIL"); // another machine is saving it
    EXPECT_TRUE(SauverBilan(choix));
    EXPECT_NE(banc.Lire("Abel.BIL")->find("\"5\""), std::string::npos);
    EXPECT_FALSE(banc.Existe("Abel.bil"));
}

TEST(Bilan, DeuxFichiersQuiDiffèrentParLaCasseSontDeuxElèves)
{
    Banc banc;
    banc.EcrireChamps("abel.bil", Fiche(u"petit", u"1"));
    banc.EcrireChamps("Abel.BIL", Fiche(u"grand", u"2"));
    banc.EcrireChamps("Abel.bil", Fiche(u"moyen", u"3"));
    for (int i = 0; i < 3; ++i) {
        auto& choix = banc.Ouvrir<frmExercices>();
        ASSERT_EQ(choix.cmbNoms.ListCount(), 3);
        choix.cmbNoms.Choisir(i);
        const auto fichier = choix.listeBil.List(i);
        choix.cmdOk.Cliquer();
        EXPECT_EQ(choix.fgRésultats.TextMatrix(1, ColonneTitre), fichier == u"abel.bil"   ? u"petit"
                                                                 : fichier == u"Abel.BIL" ? u"grand"
                                                                                          : u"moyen");
        choix.fgRésultats.TextMatrix(1, ColonneVitesse, fichier);
        EXPECT_TRUE(SauverBilan(choix));
    }
    for (const auto* nom : {"abel.bil", "Abel.BIL", "Abel.bil"})
        EXPECT_NE(banc.Lire(nom)->find(nom), std::string::npos);
}

TEST(Bilan, FichierIllisibleEstDit)
{
    Banc banc;
    banc.Ecrire("Zoé.bil", "");
    auto& choix = banc.Ouvrir<frmExercices>();
    std::filesystem::remove(banc.dossier / "Zoé.bil");
    std::filesystem::create_directory(banc.dossier / "Zoé.bil");
    banc.AnnoncerBoîte(u"Impossible de lire le fichier\n" + DepuisChemin(banc.dossier / "Zoé.bil") +
                       u"\n\nPréviens ton enseignant.");
    choix.cmdOk.Cliquer();
    EXPECT_TRUE(choix.frameElève.Visible); // a save would replace it: nobody plays before it can be read
    EXPECT_EQ(choix.Caption, u"Choix des exercices");
    std::filesystem::remove(banc.dossier / "Zoé.bil");
    banc.EcrireChamps("Zoé.bil", Fiche(u"A", u"90"));
    choix.cmdOk.Cliquer();
    EXPECT_FALSE(choix.frameElève.Visible);
    EXPECT_EQ(choix.Caption, u"Choix des exercices / Zoé");
    EXPECT_EQ(choix.fgRésultats.TextMatrix(1, ColonneVitesse), u"90");
}

TEST(Bilan, DossierPerduEntreLaListeEtLaConnexionEstDit)
{
    Banc banc;
    banc.EcrireChamps("réseau/Zoé.bil", Fiche(u"A", u"90"));
    banc.état.CheminBilans = banc.état.CheminAppli + u"/réseau";
    auto& choix = banc.Ouvrir<frmExercices>();
    std::filesystem::rename(banc.dossier / "réseau", banc.dossier / "parti");
    banc.AnnoncerBoîte(u"Impossible de lire le fichier\n" + DepuisChemin(banc.dossier / "réseau" / "Zoé.bil") + u"…");
    choix.cmdOk.Cliquer();
    EXPECT_TRUE(choix.frameElève.Visible);
    std::filesystem::rename(banc.dossier / "parti", banc.dossier / "réseau");
    choix.cmdOk.Cliquer();
    EXPECT_EQ(choix.fgRésultats.Rows(), 2);
}

TEST(Bilan, CinqMilleTextes)
{
    Banc banc;
    std::vector<Texte> champs;
    for (int i = 0; i < PetitsTitres; ++i) {
        const auto fiche = Fiche(u"Texte " + EnTexte(i), u"100", {u"4", u"8"});
        champs.insert(champs.end(), fiche.begin(), fiche.end());
    }
    Connexion choix{banc, champs};
    EXPECT_EQ(choix->fgRésultats.Rows(), PetitsTitres + 1);
    EXPECT_EQ(choix->lblMoyenne(0).Caption, u"4");
    EXPECT_EQ(choix->lblVitesseMoyenne.Caption, u"100");
    EXPECT_EQ(choix->cmbTextes.Text, u"Texte 4999");
    EXPECT_TRUE(SauverBilan(*choix));
    EXPECT_EQ(LireChamps(banc.dossier / "Zoé.bil"), champs);
}

// ---- Choosing among the texts ------------------------------------------------------------------------------------

TEST(Exercices, ChoisirUnTexteMontreSesRésultatsSansLeCharger)
{
    Banc banc;
    Connexion choix{banc, Fiches({Fiche(u"A", u"90", {u"10"}), Fiche(u"B", u"80", {u"2"})})};
    choix->cmbTextes.Choisir(0);
    EXPECT_EQ(choix->lblExo(0).BackColor, Cyan);
    EXPECT_EQ(choix->lblVitesse.Caption, u"90");
    EXPECT_EQ(choix->lblTexte.Caption, u"");
    banc.AnnoncerBoîte(u"Vous devez d'abord ouvrir un fichier texte !");
    choix->lblExo(0).Cliquer();
}

TEST(Exercices, LesExercicesSuiventLeTexteChargéPasLeTexteMontré)
{
    Banc banc;
    Connexion choix{banc, Fiches({Fiche(u"A", u"90", {u"10"}), Fiche(u"B", u"80", {u"2"})})};
    ChargerTexte(banc, *choix, EcrireTexte(banc, "B.rtf", TexteRiche{Long()}));
    choix->cmbTextes.Choisir(0);
    EXPECT_EQ(choix->lblTexte.Caption, u" B ");
    choix->lblIndex.Caption = u"0";
    EnregistrerNote(*choix, 4);
    EXPECT_EQ(choix->fgRésultats.TextMatrix(1, 2), u"10");
    EXPECT_EQ(choix->fgRésultats.TextMatrix(2, 2), u"4");
    EXPECT_EQ(choix->lblExo(0).BackColor, Orange); // the loaded text's score
}

TEST(Exercices, ChoisirUnTexteSansFicheEffaceLesCouleurs)
{
    Banc banc;
    Connexion choix{banc, Fiches({Fiche(u"A", u"90", {u"10"})})};
    ChargerTexte(banc, *choix, EcrireTexte(banc, "Neuf.rtf", TexteRiche{Long()}));
    choix->cmbTextes.Choisir(0);
    EXPECT_EQ(choix->lblExo(0).BackColor, Cyan);
    choix->cmbTextes.Choisir(1);
    EXPECT_EQ(choix->lblExo(0).BackColor, Blanc);
    EXPECT_EQ(choix->lblExo(0).ToolTipText, AFaire);
}

// ---- Loading a text ----------------------------------------------------------------------------------------------

TEST(Exercices, ChargerUnTexteNeuf)
{
    Banc banc;
    Connexion choix{banc};
    const auto fichier = EcrireTexte(banc, "textes/Le chat.rtf", TexteRiche{Long()});
    ChargerTexte(banc, *choix, fichier);
    EXPECT_EQ(banc.plateforme.dialogues.back().Titre, u"Ouvrir un fichier texte");
    EXPECT_EQ(banc.plateforme.dialogues.back().Filtre, u"Textes RTF|*.rtf");
    EXPECT_EQ(banc.plateforme.dialogues.back().Dossier, banc.état.CheminAppli);
    EXPECT_EQ(choix->lblTexte.Caption, u" Le chat ");
    EXPECT_TRUE(choix->lblTexte.Visible);
    EXPECT_EQ(choix->lblVitesse.Caption, u"");
    EXPECT_EQ(choix->cmbTextes.Text, u"Le chat");
    EXPECT_EQ(choix->rtfTexte.Text(), Long());
    EXPECT_EQ(banc.état.CheminTexteElève, banc.état.CheminAppli + u"/textes/");

    banc.AnnoncerFichier(std::nullopt); // cancelled: all stays, and the dialog starts in the text's folder
    choix->cmdCharger.Cliquer();
    EXPECT_EQ(banc.plateforme.dialogues.back().Dossier, banc.état.CheminTexteElève);
    EXPECT_EQ(choix->lblTexte.Caption, u" Le chat ");
}

TEST(Exercices, ApostrophesTypographiquesDeviennentDroitesDansLaCopie)
{
    Banc banc;
    Connexion choix{banc};
    TexteRiche texte{u"L’eau de l’étang, l'air. " + Long()};
    texte.Formater(0, 5, [](Format& format) { format.Barré = true; });
    const auto fichier = EcrireTexte(banc, "A.rtf", texte);
    const auto avant = banc.Lire("A.rtf");
    ChargerTexte(banc, *choix, fichier);
    EXPECT_TRUE(choix->rtfTexte.Text().starts_with(u"L'eau de l'étang, l'air. "));
    EXPECT_EQ(choix->rtfTexte.Longueur(), texte.Longueur());
    EXPECT_EQ(choix->cmbVocabulaire.Eléments(), (std::vector<Texte>{u"L'eau"}));
    EXPECT_EQ(banc.Lire("A.rtf"), avant);
}

TEST(Exercices, ChargerUnTexteDéjàEtudiéMontreSesNotesEtSaVitesse)
{
    Banc banc;
    Connexion choix{banc, Fiches({Fiche(u"Le chat", u"90", {u"10"}), Fiche(u"B", u"", {u"2"})})};
    ChargerTexte(banc, *choix, EcrireTexte(banc, "Le chat.rtf", TexteRiche{Long()}));
    EXPECT_EQ(choix->lblVitesse.Caption, u"90");
    EXPECT_EQ(choix->lblExo(0).BackColor, Cyan);
    EXPECT_EQ(choix->cmbTextes.ListCount(), 2);
    ChargerTexte(banc, *choix, EcrireTexte(banc, "B.rtf", TexteRiche{Long()}));
    EXPECT_EQ(choix->lblVitesse.Caption, u""); // the cell as it stands
    EXPECT_EQ(choix->lblExo(0).BackColor, Rouge);
}

TEST(Exercices, TitreCoupéAuPremierPoint)
{
    Banc banc;
    Connexion choix{banc};
    ChargerTexte(banc, *choix, EcrireTexte(banc, "Le.chat.rtf", TexteRiche{Long()}));
    EXPECT_EQ(choix->lblTexte.Caption, u" Le ");
    EXPECT_EQ(banc.état.CheminTexteElève, banc.état.CheminAppli + u"/");
}

TEST(Exercices, DossierNomméCommeLeTexteEstEffacéALaPlaceDuTitre)
{
    Banc banc;
    Connexion choix{banc};
    ChargerTexte(banc, *choix, EcrireTexte(banc, "Le chat.rtf/Le chat.rtf", TexteRiche{Long()}));
    EXPECT_EQ(banc.état.CheminTexteElève, banc.état.CheminAppli + u"/            Le chat.rtf");
    EXPECT_EQ(choix->lblTexte.Caption, u" Le chat ");
}

TEST(Exercices, TitreQueLeBilanNePeutPasGarderEstRefusé)
{
    for (const auto* nom : {"Ωmega.rtf", "dit \"oui\".rtf", "*.rtf", " * .rtf", ".rtf", "deux\nlignes.rtf"}) {
        Banc banc;
        Connexion choix{banc};
        banc.AnnoncerBoîte(u"Le nom de ce fichier ne peut pas servir de titre…");
        ChargerTexte(banc, *choix, EcrireTexte(banc, nom, TexteRiche{Long()}));
        EXPECT_EQ(choix->lblTexte.Caption, u"");
        EXPECT_EQ(choix->rtfTexte.Text(), u"");
    }
}

TEST(Exercices, FichierIllisibleLaisseToutEnPlace)
{
    Banc banc;
    Connexion choix{banc};
    ChargerTexte(banc, *choix, EcrireTexte(banc, "A.rtf", TexteRiche{Long()}));
    banc.plateforme.boîtes.push_back(
        {u"Impossible de lire ce format de fichier !", Réponse::Ok, u"Erreur lors de l'ouverture", {}});
    ChargerTexte(banc, *choix, DepuisChemin(banc.Ecrire("B.rtf", "pas du RTF")));
    EXPECT_EQ(choix->lblTexte.Caption, u" A ");
    EXPECT_EQ(choix->rtfTexte.Text(), Long());
}

TEST(Exercices, LesMotsMarquésFontLeVocabulaire)
{
    Banc banc;
    Connexion choix{banc};
    TexteRiche texte{u"un zèbre et un âne et un âne"};
    const auto barrer = [](Format& format) { format.Barré = true; };
    texte.Formater(3, 5, barrer);
    texte.Formater(15, 3, barrer);
    texte.Formater(25, 3, barrer); // ends the text
    ChargerTexte(banc, *choix, EcrireTexte(banc, "A.rtf", texte));
    EXPECT_EQ(choix->cmbVocabulaire.Eléments(), (std::vector<Texte>{u"âne", u"âne", u"zèbre"}));
    ChargerTexte(banc, *choix, EcrireTexte(banc, "B.rtf", TexteRiche{Long()}));
    EXPECT_EQ(choix->cmbVocabulaire.ListCount(), 0);
}

// ---- The click on an exercise ------------------------------------------------------------------------------------

TEST(Exercices, DeuxCentCinquanteCaractèresSuffisentUnDeMoinsNon)
{
    Banc banc;
    Connexion choix{banc};
    const Texte blancs(40, u' ');
    ChargerTexte(banc, *choix, EcrireTexte(banc, "A.rtf", TexteRiche{blancs + Long(249) + blancs}));
    banc.AnnoncerBoîte(u"Le texte est trop court !");
    choix->lblExo(0).Cliquer();
    EXPECT_EQ(choix->lblIndex.Caption, u"");
    ChargerTexte(banc, *choix, EcrireTexte(banc, "A.rtf", TexteRiche{blancs + Long(250) + blancs}));
    banc.QuandOuvert<frmQuestionnaire1>([](frmQuestionnaire1&) {});
    choix->lblExo(0).Cliquer();
    EXPECT_EQ(choix->lblIndex.Caption, u"0");
}

TEST(Exercices, SansTexteAucunExercice)
{
    Banc banc;
    Connexion choix{banc};
    for (int i = 0; i < NombreExercices; ++i) {
        banc.AnnoncerBoîte(u"Vous devez d'abord ouvrir un fichier texte !");
        choix->lblExo(i).Cliquer();
    }
}

TEST(Exercices, SansVitesseLeQuestionnaireUnPasseEnPremier)
{
    Banc banc;
    Connexion choix{banc};
    ChargerTexte(banc, *choix, EcrireTexte(banc, "A.rtf", TexteRiche{Long()}));
    for (int i = 1; i < NombreExercices; ++i) {
        banc.AnnoncerBoîte(u"Tu dois faire l'exercice - QUESTIONNAIRE 1 - avant tous les autres.");
        choix->lblExo(i).Cliquer();
        EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Titre, u"Avertissement");
        EXPECT_FALSE(choix->lblExo(i).Bordure);
        EXPECT_EQ(choix->lblExo(i).MousePointer, Pointeur::Normal);
        EXPECT_EQ(choix->lblIndex.Caption, EnTexte(i));
    }
}

TEST(Exercices, CeQuiAttendLeQuestionnaireUnPorteUnVerrou)
{
    Banc banc;
    Connexion choix{banc, Fiches({Fiche(u"B", u"80")})};
    const auto verrous = [&] {
        return std::count_if(choix->lblExo.begin(), choix->lblExo.end(),
                             [](const Label& un) { return un.Verrouillé(); });
    };
    EXPECT_EQ(verrous(), 0) << "a text comes first";
    ChargerTexte(banc, *choix, EcrireTexte(banc, "A.rtf", TexteRiche{Long()}));
    EXPECT_EQ(verrous(), NombreExercices - 1);
    EXPECT_FALSE(choix->lblExo(0).Verrouillé);
    banc.QuandOuvert<frmQuestionnaire1>([&](frmQuestionnaire1&) { choix->lblVitesse.Caption = u"90"; });
    choix->lblExo(0).Cliquer();
    EXPECT_EQ(verrous(), 0) << "the text has been read";
    ChargerTexte(banc, *choix, EcrireTexte(banc, "C.rtf", TexteRiche{Long()}));
    EXPECT_EQ(verrous(), NombreExercices - 1);
    choix->cmbTextes.Choisir(0);
    EXPECT_EQ(verrous(), 0) << "the speed that shows is the one that counts";
}

TEST(Exercices, QuestionnaireDeuxVeutSonFichier)
{
    Banc banc;
    Connexion choix{banc, Fiches({Fiche(u"A", u"90")})};
    ChargerTexte(banc, *choix, EcrireTexte(banc, "A.rtf", TexteRiche{Long()}));
    banc.AnnoncerBoîte(u"Je ne trouve pas de questionnaire associé au texte !");
    choix->lblExo(1).Cliquer();
    EXPECT_FALSE(choix->lblExo(1).Bordure);
    EXPECT_FALSE(banc.Existe("A.qst"));
    banc.EcrireChamps("A.qst", {u"Pourquoi ?", u"Oui.", u"1"});
    banc.QuandOuvert<frmQuestionnaire1>([&](frmQuestionnaire1&) {
        EXPECT_TRUE(choix->lblExo(1).Bordure);
        EXPECT_EQ(choix->lblExo(1).MousePointer, Pointeur::Sablier);
    });
    choix->lblExo(1).Cliquer();
    EXPECT_FALSE(choix->lblExo(1).Bordure);
    EXPECT_EQ(choix->lblExo(1).MousePointer, Pointeur::Normal);
}

TEST(Exercices, LesVingtSeptEtiquettesOntLeurEcran)
{
    Banc banc;
    for (const auto& exercice : Exercices)
        EXPECT_TRUE(banc.application.écrans.contains(exercice.NomEcran)) << exercice.NomEcran;
}

TEST(Exercices, QuitterFermeEtPlusRienNeRépond)
{
    Banc banc;
    Connexion choix{banc};
    choix->cmdQuitter.Cliquer();
    EXPECT_FALSE(choix->EstChargé());
    choix->lblExo(0).Cliquer(); // closed: nothing answers
    choix->cmdCharger.Cliquer();
    EXPECT_TRUE(banc.plateforme.dialogues.empty());
}

} // namespace tirelune
