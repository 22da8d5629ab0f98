// Rewriting a small file whose old content must outlive a failure.
#pragma once
#include "core/Fichiers.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tirelune {

class Plateforme;

struct EchecRemplacement {
    EchecFichier Cause;
    bool CommeAvant; // the file is what it was, or as absent as it was
};

// Writes the file anew. A failure puts back what it held; a file that there wasn't leaves nothing half made.
std::optional<EchecRemplacement> RemplacerFichier(Plateforme& plateforme, const Chemin& fichier,
                                                  std::string_view contenu);

// The same of a file of these fields. Where they can't be composed, the file isn't touched.
std::optional<EchecRemplacement> RemplacerChamps(Plateforme& plateforme, const Chemin& fichier,
                                                 const std::vector<Texte>& champs);

// For a grown-up: names the file, says what to do and what has become of it.
Texte MessageEchec(const EchecRemplacement& échec, VueTexte fichier);

} // namespace tirelune
