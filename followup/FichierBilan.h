// The pupil's file: where it lies, what it holds, and the copies that are set aside.
#pragma once
#include "core/MiseDeCôté.h"

#include <optional>
#include <string>
#include <vector>

namespace tirelune {

class Plateforme;

inline constexpr VueTexte ExtensionBilan = u".bil";

// Path of the pupil's file in a folder, with the case that its extension has there.
Texte FichierBilan(VueTexte dossier, VueTexte nomElève);

// The extension in any case, and a name before it.
bool EstFichierBilan(VueTexte nom);
// The pupil's name in that of such a file.
VueTexte RacineBilan(VueTexte nom);

struct LectureBilan {
    std::optional<std::string> Octets; // nothing: it isn't there, or can't be read
    std::vector<Texte> Champs;
    bool Entier = false;  // it holds records, and ends where one ends
    bool Mouvant = false; // written a moment ago, or gone: another machine may be saving it

    // It ends in the middle of a value or of a record.
    [[nodiscard]] bool Coupé() const { return Octets && !Octets->empty() && !Entier; }
};

LectureBilan LireBilan(Plateforme& plateforme, const Texte& fichier);

// True for the name of a copy of such a file that was set aside.
bool EstMisDeCôté(VueTexte nom);

} // namespace tirelune
