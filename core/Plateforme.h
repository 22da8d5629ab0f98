// All that comes from outside: clock, dice, boxes, dialogs, fonts, clipboard, modal display, waiting.
#pragma once
#include "core/Couleur.h"
#include "core/Fichiers.h"
#include "core/Texte.h"
#include "core/TexteRiche.h"

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace tirelune {

class Ecran;
class Elément;
class RichTextBox;
class Timer;

enum class Boutons { Ok, OkAnnuler, OuiNon };
enum class Réponse { Ok, Annuler, Oui, Non };
enum class Icône { Information, Question, Critique };
// Which answer destroys or loses something: the other one is at hand, and closing the box never gives this one.
enum class Perte { Aucune, ParOui, ParNon };

struct Boîte {
    Texte Message{};
    Texte Titre = u"Avertissement";
    Boutons Choix = Boutons::Ok;
    Icône Symbole = Icône::Information;
    Perte Danger = Perte::Aucune;
    Texte Objet{}; // what the question is about, on a line of its own
};

// Filter as "Textes RTF|*.rtf|Tous fichiers|*.*".
struct DialogueFichier {
    Texte Titre{};
    Texte Filtre{};
    Texte Dossier{};
    Texte NomFichier{};
    Texte Extension{}; // added to a name typed without one; empty: nothing is added
};

struct ChoixPolice {
    Texte Nom;         // empty: mixed, leave it
    double Taille = 0; // points; 0: mixed, leave it
    std::optional<bool> Gras{};
    std::optional<bool> Italique{};
};

class Plateforme {
public:
    virtual ~Plateforme() = default;

    // Clock and dice.
    virtual double Horloge() = 0;     // seconds since midnight, with hundredths
    virtual void AmorcerHasard() = 0; // seeds the dice from the clock
    virtual double Hasard() = 0;      // uniform in [0, 1)

    // Files. Reading goes through the standard library; writing is here so that failures can be played.
    virtual Chemin DossierProgramme() = 0;
    virtual std::vector<Texte> Lecteurs() = 0; // where the list of drives may lead
    virtual std::optional<EchecFichier> Réécrire(const Chemin& fichier, std::string_view contenu) = 0;
    // How long ago a file was written, by this machine's clock: below zero where the file's own machine is ahead.
    // Nothing when there is no such file.
    virtual std::optional<std::chrono::seconds> AgeFichier(const Chemin& fichier) = 0;
    // What numbers are written with: a point, or else a comma, even where the machine's locale has another sign.
    char16_t SéparateurDécimal() { return SigneDécimal() == u'.' ? u'.' : u','; }

    // Boxes and dialogs. A dialog that is cancelled gives nothing.
    virtual Réponse AfficherBoîte(const Boîte& boîte) = 0;
    virtual std::optional<Texte> DemanderFichierAOuvrir(const DialogueFichier& dialogue) = 0;
    virtual std::optional<Texte> DemanderFichierAEnregistrer(const DialogueFichier& dialogue) = 0;
    virtual std::optional<Couleur> DemanderCouleur(Couleur départ) = 0;
    virtual std::optional<ChoixPolice> DemanderPolice(const ChoixPolice& départ) = 0;
    // Shows the print dialog and prints; `sélection` is offered when it isn't empty. False: cancelled.
    virtual bool Imprimer(const TexteRiche& texte, const TexteRiche& sélection) = 0;

    virtual Texte LirePressePapiers() = 0;
    virtual void EcrirePressePapiers(const Texte& texte) = 0;

    // Hands over the font names, in the machine's order, when they are known; the first picture doesn't wait.
    virtual void DemanderPolices(std::function<void(std::vector<Texte>)> reçues) = 0;
    // Width in twips of a text in the program's own font, of a size in points (0: the usual one).
    virtual double LargeurTexte(const Texte& texte, double taille) = 0;

    // Shows a loaded screen, gives it its size and activates it once, and comes back when it is closed.
    virtual void AfficherModal(Ecran& écran) = 0;
    // The screen is unloaded: nothing of it is to be shown, ticked or waited for any more.
    virtual void EcranFermé(Ecran& écran) = 0;
    // Ends the program, closing all screens.
    virtual void Terminer() = 0;

    // Paints now what has changed, before coming back.
    virtual void Repeindre(Ecran& écran) = 0;
    // Lets the time pass while nothing else happens: input is dropped, the window stays alive. False: the
    // screen was closed meanwhile, and the handler must end without touching it.
    [[nodiscard]] virtual bool Attendre(Ecran& écran, std::chrono::milliseconds durée) = 0;
    // Lets events pass until the timer has switched itself off. False: as above.
    [[nodiscard]] virtual bool AttendreArrêt(Timer& minuterie) = 0;
    // The timer's interval or state has changed.
    virtual void RéglerMinuterie(Timer& minuterie) = 0;

private:
    virtual char16_t SigneDécimal() = 0; // of the machine's locale
};

} // namespace tirelune
