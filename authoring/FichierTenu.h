// The field files that a teacher's screen holds in memory and writes whole.
#pragma once
#include "core/Fichiers.h"

#include <vector>

namespace tirelune {

class Application;

struct FichierTenu {
    Chemin Fichier;
    // The memory holds all that the file did, so that it may be replaced. Else what is there now is set aside first.
    bool Remplaçable = false;
};

// How many fields say something: fewer written than read, and something would be lost.
std::size_t NonVides(const std::vector<Texte>& champs);

// One save of several files: what became of them is told at its end, in as few boxes as possible.
class Enregistrement {
public:
    explicit Enregistrement(Application& application) : application_(application) {}

    void Ecrire(FichierTenu& tenu, const std::vector<Texte>& champs);
    // Tells what was not written, and what was set aside. True: all was written.
    [[nodiscard]] bool Conclure();

private:
    [[nodiscard]] bool MettreDeCôtéCeQuiReste(const FichierTenu& tenu);

    Application& application_;
    std::vector<Texte> ouvertures_; // files that could not be written, by their cause
    std::vector<Texte> écritures_;
    std::vector<Texte> gardés_; // damaged, and not to be set aside
    std::vector<Texte> copies_;
};

// After a failure. True: the user wants to leave all the same.
bool QuitterSansEnregistrer(Application& application);

} // namespace tirelune
