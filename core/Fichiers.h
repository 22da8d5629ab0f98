// Reading and rewriting whole files.
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

// Nothing when the file can't be opened or read.
std::optional<std::string> LireFichier(const Chemin& fichier);

// Deletes the file, then writes it anew in one piece, flushed to the disk.
std::optional<EchecFichier> RéécrireFichier(const Chemin& fichier, std::string_view contenu);

// Windows-1252 after the WHATWG index; the five unassigned bytes map to the same code.
Texte DepuisWindows1252(std::string_view octets);
// Nothing when a character has no place in Windows-1252.
std::optional<std::string> EnWindows1252(VueTexte texte);
bool TientEnWindows1252(VueTexte texte);

// The message for a file that could not be written; names the file and says what to do.
Texte MessageEchec(EchecFichier échec, VueTexte fichier);

} // namespace tirelune
