// Copies of files whose content would otherwise be lost.
#pragma once
#include "core/Fichiers.h"

#include <optional>
#include <string>

namespace tirelune {

class Plateforme;

// What the names of copies end in, before their number: of a damaged file, and of other results than the pupil's
// present ones.
inline constexpr VueTexte SuffixeAbîmé = u".abîmé";
inline constexpr VueTexte SuffixeAutre = u".autre";

struct Copie {
    Texte Fichier;
    bool Nouvelle; // false: the same bytes had been set aside before
};

// Sets these bytes of a file aside, on the disk for good, beside it: under its name, the suffix and the first number
// that is free. Nothing when that fails.
std::optional<Copie> MettreDeCôté(Plateforme& plateforme, const Texte& fichier, const std::string& octets,
                                  VueTexte suffixe);

} // namespace tirelune
