// A platform that answers nothing and shows nothing, for measuring what the screens do by themselves, and for feeding
// them.
#pragma once
#include "core/Plateforme.h"

namespace tirelune {

class PlateformeMuette : public Plateforme {
public:
    double Horloge() override { return 0; }
    void AmorcerHasard() override {}
    double Hasard() override { return 0; }
    Chemin DossierProgramme() override { return {}; }
    std::vector<Texte> Lecteurs() override { return {}; }
    std::optional<EchecFichier> Réécrire(const Chemin&, std::string_view) override { return std::nullopt; }
    std::optional<std::chrono::seconds> AgeFichier(const Chemin&) override { return std::chrono::hours{1}; }
    Réponse AfficherBoîte(const Boîte&) override { return Réponse::Ok; }
    std::optional<Texte> DemanderFichierAOuvrir(const DialogueFichier&) override { return std::nullopt; }
    std::optional<Texte> DemanderFichierAEnregistrer(const DialogueFichier&) override { return std::nullopt; }
    std::optional<Couleur> DemanderCouleur(Couleur) override { return std::nullopt; }
    std::optional<ChoixPolice> DemanderPolice(const ChoixPolice&) override { return std::nullopt; }
    bool Imprimer(const TexteRiche&, const TexteRiche&) override { return false; }
    Texte LirePressePapiers() override { return {}; }
    void EcrirePressePapiers(const Texte&) override {}
    void DemanderPolices(std::function<void(std::vector<Texte>)> reçues) override { reçues({}); }
    double LargeurTexte(const Texte& texte, double) override { return 100.0 * static_cast<double>(texte.size()); }
    void AfficherModal(Ecran&) override {}
    void EcranFermé(Ecran&) override {}
    void Terminer() override {}
    void Repeindre(Ecran&) override {}
    bool Attendre(Ecran&, std::chrono::milliseconds) override { return true; }
    bool AttendreArrêt(Timer&) override { return true; }
    void RéglerMinuterie(Timer&) override {}

private:
    char16_t SigneDécimal() override { return u','; }
};

} // namespace tirelune
