// Random acts on a screen of the table: clicks, keys, drags, ticks, boxes answered, saves that fail, closing in waits.
// The first byte chooses the screen, the second the text and the exercise; the others are the acts.
#include "TableEcrans.h"
#include "authoring/frmEnseignant.h"
#include "core/FichierChamps.h"
#include "core/frmTirelune.h"
#include "followup/FichierBilan.h"
#include "followup/GrilleRésultats.h"
#include "followup/Notes.h"
#include "followup/frmExercices.h"
#include "fuzz/Gestes.h"

#include <algorithm>
#include <array>
#include <typeinfo>

using namespace tirelune;

namespace {

constexpr VueTexte Phrases =
    u"Le petit chat de la voisine dort sur le mur du jardin. La pluie tombe sur les toits rouges "
    u"du village. Un vieux pêcheur raconte une longue histoire aux enfants du port. Dans la "
    u"forêt, l'écureuil cache ses noisettes sous les feuilles mortes. Demain matin, nous irons "
    u"cueillir des mûres au bord du chemin.\r\nLe soir, grand-mère allume la lampe et lit.\r\n";

// A text of its own kind: ordinary, with few marks, without a blank, with underscores, nearly empty.
TexteRiche TexteTiré(SuiteDOctets& suite)
{
    const auto choix = suite.Octet();
    Texte lettres{Phrases};
    if (choix % 8 == 1)
        lettres += lettres;
    else if (choix % 8 == 2)
        lettres.assign(300, u'a');
    else if (choix % 8 == 3)
        lettres = u"_ _ " + lettres;
    else if (choix % 8 == 4)
        lettres = u"a.";
    else if (choix % 8 == 5)
        lettres = {};
    TexteRiche texte{lettres};
    const std::size_t pas = 5 + choix / 8U;
    for (std::size_t début = 0; début + 4 < lettres.size(); début += pas) {
        if (lettres[début] == u' ')
            texte.Formater(début + 1, 4, [](Format& format) { format.Barré = true; });
    }
    return texte;
}

// A file of the lexicon that will do for all: its records have up to seven words, the last one none.
std::string Fiches()
{
    std::string octets;
    for (char rang = 0; rang < 14; ++rang) {
        octets += "\"*\"\r\n";
        for (char colonne = 0; colonne < rang % 8 && rang < 13; ++colonne)
            octets += {'"', static_cast<char>('a' + colonne), static_cast<char>('A' + rang), '"', '\r', '\n'};
    }
    return octets;
}

void PoserFichiers(const PlateformeFuzz& plateforme)
{
    plateforme.Poser("Léa.bil", "");
    plateforme.Poser("Zoé.bil", "");
    plateforme.Poser("Le chat.rtf",
                     R"({\rtf1\ansi Le {\strike chat} dort. Il {\strike mange} et {\strike court} vite.})");
    plateforme.Poser("Le chat.qst", "\"Qui dort ?\"\r\n\"Le chat\"\r\n\"1\"\r\n\"Le chien\"\r\n\"0\"\r\n");
    for (const auto* nom :
         {"Le chat.dic", "DicPrinc.dat", "Familles.dat", "Synonymes.dat", "Contraires.dat", "Genre.dat"})
        plateforme.Poser(nom, Fiches());
    std::filesystem::create_directory(plateforme.dossier / "partage");
}

void SeConnecter(frmExercices& choix, TexteRiche texte, int index)
{
    choix.Charger();
    choix.cmbNoms.Montrer(choix.cmbNoms.Chercher(u"Léa"));
    choix.cmdOk.Cliquer();
    choix.rtfTexte.TextRTF(std::move(texte));
    choix.lblTexte.Caption = u" Le chat ";
    choix.lblVitesse.Caption = u"100";
    choix.cmbVocabulaire.AddItems(MotsMarqués(choix.rtfTexte.TextRTF()));
    choix.lblIndex.Caption = EnTexte(static_cast<long long>(index));
}

// The screen of that row, on the first opener that it takes.
std::unique_ptr<Ecran> Fabriquer(const Application::Fabrique& fabrique, std::initializer_list<Ecran*> ouvreurs)
{
    for (auto* ouvreur : ouvreurs) {
        try {
            return fabrique(*ouvreur);
        } catch (const std::bad_cast&) {
            continue;
        }
    }
    return nullptr;
}

// All marks of the grid are marks. After an exercise, what is told to be on the disk is there; other screens may have
// deleted the pupil, moved the files, or had results of their own.
void VérifierRésultats(const frmExercices& choix, bool exercice)
{
    const auto& grille = choix.fgRésultats;
    std::vector<Texte> attendus;
    for (int rangée = 1; rangée < grille.Rows(); ++rangée) {
        attendus.emplace_back(Marqueur);
        for (int colonne = 0; colonne < grille.Cols(); ++colonne) {
            const auto& cellule = grille.TextMatrix(rangée, colonne);
            attendus.push_back(Rogner(cellule));
            if (colonne >= PremièreColonneNote && !cellule.empty()) {
                const auto note = LireNote(cellule);
                Exiger(note && *note >= 0 && *note <= 10);
            }
        }
    }
    const auto& état = choix.ApplicationDe().état;
    if (exercice && choix.BilanEnregistré)
        Exiger(LireChamps(EnChemin(FichierBilan(état.CheminBilans, état.NomElève)), Valeurs::SurUneLigne) == attendus);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille)
{
    SuiteDOctets suite{{octets, taille}};
    PlateformeFuzz plateforme{suite};
    plateforme.Geste = [&](Ecran& écran) { FaireUnGeste(écran, plateforme, suite); };
    PoserFichiers(plateforme);

    Application application{plateforme};
    application.état.CheminAppli = DepuisChemin(plateforme.dossier);
    application.état.CheminBilans = application.état.CheminAppli;
    application.état.CheminTexteElève = application.état.CheminAppli + u"/";
    RemplirTable(application);
    const auto rangée =
        std::next(application.écrans.begin(), static_cast<long>(suite.Parmi(application.écrans.size())));
    const int index = static_cast<int>(suite.Parmi(NombreExercices));
    application.état.GroupeCourbes = static_cast<std::uint8_t>(1 + index % static_cast<int>(Groupes.size()));

    frmTirelune accueil{application};
    frmExercices choix{application};
    frmEnseignant éditeur{accueil};
    SeConnecter(choix, TexteTiré(suite), index);
    accueil.Charger();
    éditeur.Charger();
    application.état.NomFichierTexte =
        application.état.CheminTexteElève + u"Le chat.rtf"; // its tools ask for a saved text
    application.état.CheminTextes = application.état.CheminTexteElève;

    const auto écran = Fabriquer(rangée->second, {&choix, &éditeur, &accueil});
    Exiger(écran != nullptr);
    écran->Afficher();
    VérifierRésultats(choix, std::any_of(Exercices.begin(), Exercices.end(),
                                         [&](const Exercice& un) { return un.NomEcran == rangée->first; }));
    for (const auto* resté : std::initializer_list<const Ecran*>{&choix, &éditeur, &accueil})
        VérifierEcran(*resté);
    return 0;
}
