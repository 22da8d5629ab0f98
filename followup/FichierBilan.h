// The pupil's file: where it lies, and the copies that are set aside.
#pragma once
#include "core/Texte.h"

#include <optional>

namespace tirelune {

// Path of the pupil's file in a folder.
Texte FichierBilan(VueTexte dossier, VueTexte nomElève);

// Copies a pupil's file beside itself, under its name, `suffixe` and the first number that is free: the copy's name.
// Nothing when it can't be copied.
std::optional<Texte> CopierBilan(const Texte& fichier, VueTexte suffixe);

} // namespace tirelune
