// Finding, reading and rewriting whole files.
#pragma once
#include "core/Texte.h"

#include <optional>
#include <string>
#include <string_view>

namespace tirelune {

enum class EchecFichier {
    Ouverture, // the file could not be created: the folder is missing, out of reach or read-only
    Ecriture,  // the file was created but not written whole: the disk is full or was lost
};

// The name under which a folder holds that file: this one, or else the one with the extension in capitals, small
// letters or both. The name itself when there is none.
Texte NomRéel(VueTexte dossier, VueTexte nom);

// Nothing when the file can't be opened or read.
std::optional<std::string> LireFichier(const Chemin& fichier);

// Deletes the file, then writes it anew in one piece, flushed to the disk.
std::optional<EchecFichier> RéécrireFichier(const Chemin& fichier, std::string_view contenu);

// The message for a file that could not be written; names the file and says what to do.
Texte MessageEchec(EchecFichier échec, VueTexte fichier);

} // namespace tirelune
