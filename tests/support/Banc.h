// The test platform: a virtual clock, dice, boxes and dialogs that the test has announced, and a folder of its own.
// A draw, a box or a dialog that was not announced fails the test, and so does one announced that never came, an action
// planned that was never due, and a draw that isn't seeded once. After `Terminer` nothing is shown, asked or waited
// for.
#pragma once
#include "core/Application.h"
#include "core/Ecran.h"

#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

namespace tirelune {

class frmExercices;

using namespace std::chrono_literals;

// Text prints as text when it differs.
void PrintTo(const Touche& touche, std::ostream* flux);
template <class T>
void PrintTo(const Propriété<T>& propriété, std::ostream* flux)
{
    *flux << ::testing::PrintToString(propriété());
}
void PrintTo(Couleur couleur, std::ostream* flux);
template <class T>
void PrintTo(const Lecture<T>& lu, std::ostream* flux)
{
    *flux << ::testing::PrintToString(static_cast<const std::optional<T>&>(lu));
}

class PlateformeEssai final : public Plateforme {
public:
    double Horloge() override { return heure_; }
    void AmorcerHasard() override;
    double Hasard() override;
    Chemin DossierProgramme() override { return dossier; }
    std::vector<Texte> Lecteurs() override { return lecteurs; }
    std::optional<EchecFichier> Réécrire(const Chemin& fichier, std::string_view contenu) override;
    std::optional<std::chrono::seconds> AgeFichier(const Chemin& fichier) override;
    Réponse AfficherBoîte(const Boîte& boîte) override;
    std::optional<Texte> DemanderFichierAOuvrir(const DialogueFichier& dialogue) override;
    std::optional<Texte> DemanderFichierAEnregistrer(const DialogueFichier& dialogue) override;
    std::optional<Couleur> DemanderCouleur(Couleur départ) override;
    std::optional<ChoixPolice> DemanderPolice(const ChoixPolice& départ) override;
    bool Imprimer(const TexteRiche& texte, const TexteRiche& sélection) override;
    Texte LirePressePapiers() override { return pressePapiers; }
    void EcrirePressePapiers(const Texte& texte) override { pressePapiers = texte; }
    void DemanderPolices(std::function<void(std::vector<Texte>)> reçues) override { reçues(polices); }
    double LargeurTexte(const Texte& texte, double taille) override;
    void AfficherModal(Ecran& écran) override;
    void EcranFermé(Ecran& écran) override;
    void Terminer() override;
    void Repeindre(Ecran& écran) override;
    [[nodiscard]] bool Attendre(Ecran& écran, std::chrono::milliseconds durée) override;
    [[nodiscard]] bool AttendreArrêt(Timer& minuterie) override;
    void RéglerMinuterie(Timer& minuterie) override;

    struct BoîteAnnoncée {
        Texte Message; // whole, or its start when it ends in "…"
        Réponse Choix = Réponse::Ok;
        std::optional<Texte> Titre;
        std::function<void()> Pendant; // what happens while the box is open
    };

    // The script.
    Chemin dossier;
    char16_t séparateur = u',';
    std::chrono::seconds âge = 1h; // of every file
    std::vector<Texte> polices{u"Comic Sans MS"};
    std::vector<Texte> lecteurs; // the bench's folder alone
    std::deque<double> hasards;
    std::function<double()> toujours; // a draw for ever, for the tests that don't mind which
    bool amorcesLibres = false;       // for the rules that don't seed once before each draw
    std::deque<BoîteAnnoncée> boîtes;
    std::deque<std::optional<Texte>> fichiers; // answers of the file dialogs
    std::deque<std::optional<Couleur>> couleurs;
    std::deque<std::optional<ChoixPolice>> choixPolices;
    std::deque<bool> impressions;
    std::deque<std::pair<std::string, std::function<void(Ecran&)>>> modaux;  // name and what is done on the screen
    std::function<std::optional<EchecFichier>(const Chemin&)> échecEcriture; // a failure to play, or nothing

    // The record.
    std::vector<Boîte> boîtesMontrées;
    std::vector<DialogueFichier> dialogues;
    std::vector<std::string> écransMontrés;
    std::vector<std::pair<Texte, Texte>> imprimés; // whole text, selection
    std::vector<Couleur> couleursProposées;        // what the dialogs started with
    std::vector<ChoixPolice> policesProposées;
    Texte pressePapiers;
    int amorces = 0; // seeds of the dice
    int tirages = 0; // draws
    int repeints = 0;
    std::function<void(Ecran&)> auRepeint; // looks at what is painted
    bool terminé = false;

    void Régler(double heure) { heure_ = heure; } // seconds since midnight
    // Lets time pass, with its ticks and its planned actions.
    void Avancer(std::chrono::milliseconds durée);
    // Plans an action that long from now: also during waits.
    void Prévoir(std::chrono::milliseconds délai, std::function<void()> action);
    // Fails the test for each answer and action that was announced and never used, and for a seed without its draw.
    void VérifierFin() const;

private:
    struct Action {
        double Quand;
        std::function<void()> Faire;
    };
    // Runs what is due first up to `limite`; false when nothing is. Ticks wait while `minuteries` is false.
    bool Suivant(double limite, bool minuteries);
    // What waits for this screen goes on.
    [[nodiscard]] bool Vit(const Ecran& écran) const { return écran.EstChargé() && !terminé; }
    void Passer(double temps);

    char16_t SigneDécimal() override { return séparateur; }

    bool amorcé_ = false;
    double heure_ = 36000; // ten o'clock
    double temps_ = 0;     // seconds since the start of the test
    std::vector<Action> actions_;
    std::map<Timer*, double> échéances_;
};

class Banc {
public:
    Banc();
    ~Banc();
    Banc(const Banc&) = delete;
    Banc& operator=(const Banc&) = delete;

    PlateformeEssai plateforme;
    Application application;
    Constantes& état;
    const Chemin dossier; // the program's own folder, gone after the test

    // ---- Script
    void Hasards(std::initializer_list<double> tirages)
    {
        plateforme.hasards.insert(plateforme.hasards.end(), tirages);
    }
    void AnnoncerBoîte(Texte message, Réponse réponse = Réponse::Ok)
    {
        plateforme.boîtes.push_back({std::move(message), réponse, std::nullopt, {}});
    }
    void AnnoncerFichier(std::optional<Texte> fichier) { plateforme.fichiers.push_back(std::move(fichier)); }
    // The next screen to be shown above is this one, and this is what the user does on it. If it is still loaded
    // afterwards, it is closed by its close box.
    template <class E>
    void QuandOuvert(std::function<void(E&)> faire)
    {
        plateforme.modaux.emplace_back(typeid(E).name(), [faire](Ecran& écran) { faire(dynamic_cast<E&>(écran)); });
    }
    void Avancer(std::chrono::milliseconds durée) { plateforme.Avancer(durée); }

    // ---- Files of the folder
    Chemin Ecrire(const std::string& nom, std::string_view octets);
    [[nodiscard]] std::optional<std::string> Lire(const std::string& nom) const;
    [[nodiscard]] bool Existe(const std::string& nom) const;
    // Field file of these values.
    Chemin EcrireChamps(const std::string& nom, const std::vector<Texte>& champs);

    // ---- Screens
    // The chooser, loaded, with the pupil "Léa" signed in and no text.
    frmExercices& Choix();
    // Text, title and vocabulary of the chooser, as if loaded; the speed is known, so that all exercises are open.
    void ChargerTexte(Texte texte, Texte titre = u"Le chat");
    void ChargerTexte(TexteRiche texte, Texte titre = u"Le chat");
    void Vocabulaire(std::initializer_list<Texte> mots);
    void Vocabulaire(std::vector<Texte> mots);
    // The index that lblIndex holds while an exercise runs.
    void Index(int exercice);
    // A loaded, sized and activated screen, shown above nothing: the test goes on while it is open.
    template <class E>
    E& Ouvrir()
    {
        std::unique_ptr<E> écran;
        if constexpr (std::is_constructible_v<E, frmExercices&>)
            écran = std::make_unique<E>(Choix());
        else
            écran = std::make_unique<E>(application);
        auto& référence = *écran;
        Montrer(std::move(écran));
        return référence;
    }
    // For screens that need more than the application or the chooser.
    void Montrer(std::unique_ptr<Ecran> écran);
    // Score of an exercise on the current text as the grid holds it.
    [[nodiscard]] Texte Note(int exercice);

private:
    std::unique_ptr<frmExercices> choix_;
    std::vector<std::unique_ptr<Ecran>> écrans_;
};

} // namespace tirelune
