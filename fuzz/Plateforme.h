// A platform whose user, clock, dice and disk are the bytes of an input: boxes are answered, dialogs choose, saves fail
// and screens are closed as they say. Files lie in a folder in memory.
#pragma once
#include "core/Ecran.h"
#include "fuzz/Exiger.h"
#include "fuzz/SuiteDOctets.h"
#include "tests/support/PlateformeMuette.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tirelune {

class PlateformeFuzz final : public PlateformeMuette {
public:
    explicit PlateformeFuzz(SuiteDOctets& suite);

    double Horloge() override { return heure_; }
    double Hasard() override;
    Chemin DossierProgramme() override { return dossier; }
    std::vector<Texte> Lecteurs() override;
    std::optional<EchecFichier> Réécrire(const Chemin& fichier, std::string_view contenu) override;
    Réponse AfficherBoîte(const Boîte& boîte) override;
    std::optional<Texte> DemanderFichierAOuvrir(const DialogueFichier& dialogue) override;
    std::optional<Texte> DemanderFichierAEnregistrer(const DialogueFichier& dialogue) override;
    std::optional<Couleur> DemanderCouleur(Couleur départ) override;
    std::optional<ChoixPolice> DemanderPolice(const ChoixPolice& départ) override;
    bool Imprimer(const TexteRiche& texte, const TexteRiche& sélection) override;
    Texte LirePressePapiers() override { return pressePapiers_; }
    void EcrirePressePapiers(const Texte& texte) override { pressePapiers_ = texte; }
    void DemanderPolices(std::function<void(std::vector<Texte>)> reçues) override;
    void AfficherModal(Ecran& écran) override;
    void EcranFermé(Ecran& écran) override;
    void Terminer() override;
    bool Attendre(Ecran& écran, std::chrono::milliseconds durée) override;
    bool AttendreArrêt(Timer& minuterie) override;
    void RéglerMinuterie(Timer& minuterie) override;

    const Chemin dossier; // empty at the start, but for what the target puts there
    bool PannesPermises = true;
    int Boîtes = 0; // shown so far
    // What the user does on a screen in front of all others, once.
    std::function<void(Ecran&)> Geste;

    void Poser(const std::string& nom, std::string_view octets) const;
    // Lets time pass, with its ticks.
    void Passer(std::chrono::milliseconds durée);

private:
    [[nodiscard]] bool Vit(const Ecran& écran) const { return écran.EstChargé() && !terminé_; }
    // The next tick up to `limite`; false when none is due.
    bool Battre(double limite);
    void Avancer(double temps);
    [[nodiscard]] std::optional<Texte> ChoisirFichier();

    SuiteDOctets& suite_;
    double heure_ = 36000;
    double temps_ = 0;
    std::uint64_t dés_ = 0x9E3779B97F4A7C15;
    int tirages_ = 0;    // since time last passed or a box was shown
    int profondeur_ = 0; // of waits inside waits
    bool terminé_ = false;
    Texte pressePapiers_ = u"collé\u2019 ici\n";
    std::map<Timer*, double> échéances_;
};

} // namespace tirelune
