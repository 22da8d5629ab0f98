// The platform on a real display: windows, nested event loops, dialogs, clock and dice.
#pragma once
#include "core/Plateforme.h"
#include "desktop/Anneau.h"
#include "desktop/Gestes.h"

#include <QObject>

#include <map>
#include <memory>
#include <random>
#include <set>
#include <vector>

class QDialog;
class QEventLoop;
class QTimer;

namespace tirelune {

class Fenêtre;

class PlateformeQt final : public QObject, public Plateforme {
public:
    PlateformeQt();
    ~PlateformeQt() override;

    double Horloge() override;
    void AmorcerHasard() override;
    double Hasard() override;

    Chemin DossierProgramme() override;
    std::vector<Texte> Lecteurs() override;
    std::optional<EchecFichier> Réécrire(const Chemin& fichier, std::string_view contenu) override;
    std::optional<std::chrono::seconds> AgeFichier(const Chemin& fichier) override;

    Réponse AfficherBoîte(const Boîte& boîte) override;
    std::optional<Texte> DemanderFichierAOuvrir(const DialogueFichier& dialogue) override;
    std::optional<Texte> DemanderFichierAEnregistrer(const DialogueFichier& dialogue) override;
    std::optional<Couleur> DemanderCouleur(Couleur départ) override;
    std::optional<ChoixPolice> DemanderPolice(const ChoixPolice& départ) override;
    bool Imprimer(const TexteRiche& texte, const TexteRiche& sélection) override;

    Texte LirePressePapiers() override;
    void EcrirePressePapiers(const Texte& texte) override;

    void DemanderPolices(std::function<void(std::vector<Texte>)> reçues) override;
    double LargeurTexte(const Texte& texte, double taille) override;

    void AfficherModal(Ecran& écran) override;
    void EcranFermé(Ecran& écran) override;
    void Terminer() override;

    void Repeindre(Ecran& écran) override;
    [[nodiscard]] bool Attendre(Ecran& écran, std::chrono::milliseconds durée) override;
    [[nodiscard]] bool AttendreArrêt(Timer& minuterie) override;
    void RéglerMinuterie(Timer& minuterie) override;

    // The first window shows its background at once, and fills while the user looks.
    void MontrerFondDAbord() { fondDAbord_ = true; }
    // The window in front; none before the first.
    [[nodiscard]] Fenêtre* Devant() const { return fenêtres_.empty() ? nullptr : fenêtres_.back(); }

    bool eventFilter(QObject* visé, QEvent* événement) override;

private:
    // A nested loop, and what ends it before its time.
    struct Boucle {
        Ecran* Porteur;
        Timer* Attendue; // of a wait for a timer
        std::function<void()> Quitter;
    };
    class Séjour; // the time spent in such a loop

    char16_t SigneDécimal() override;
    // What the program's widgets get to see. True: swallowed.
    bool Filtrer(QWidget& visé, QEvent& événement);

    void MontrerFond(Fenêtre& fenêtre);
    // A window has been painted: what was put off until the first picture may come.
    void FenêtrePeinte();
    void MontrerDialogue(QDialog& dialogue);
    std::optional<Texte> DemanderFichier(const DialogueFichier& dialogue, bool enregistrer);
    [[nodiscard]] bool Montré(const Ecran& écran) const;
    void Armer(Timer& minuterie);
    void Désarmer(Timer& minuterie);
    void Battre(Timer& minuterie);
    void RendreRetardées();
    void FocusChangé();
    void ListerPolices();

    Gestes gestes_;
    Anneau anneau_;
    std::mt19937_64 dés_;
    unsigned long amorces_ = 0;
    std::vector<Fenêtre*> fenêtres_;
    std::vector<Boucle*> boucles_;
    std::map<Timer*, std::unique_ptr<QTimer, void (*)(QTimer*)>> minuteries_;
    std::set<Timer*> retardées_; // have ticked while nothing else was to happen
    std::vector<std::function<void(std::vector<Texte>)>> attendentPolices_;
    bool entréeJetée_ = false;
    bool fondDAbord_ = false;
    bool peinte_ = false;
    QEventLoop* jusquAuFond_ = nullptr; // waits for the background's painting
    bool terminé_ = false;
};

} // namespace tirelune
