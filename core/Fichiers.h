// Finding, reading and rewriting whole files.
#pragma once
#include "core/Texte.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tirelune {

enum class EchecFichier {
    Ouverture, // the file could not be created: the folder is missing, out of reach or read-only
    Ecriture,  // the file was created but not written whole: the disk is full or was lost
    Contenu,   // a character has no place in such a file, which stays as it was
};

enum class EchecLecture {
    Absent,
    PasUnFichier, // a folder, a device, a pipe: never opened
    TropGrand,
    Illisible,
};

// What was read, or why nothing was.
template <class T>
struct Lecture : std::optional<T> {
    Lecture(T lu) : std::optional<T>(std::move(lu)) {}
    Lecture(EchecLecture échec) : Echec(échec) {}

    EchecLecture Echec = EchecLecture::Illisible; // of no meaning when something was read
};

// The name under which a folder holds that file: this one, or else the one with the extension in capitals, small
// letters or both. The name itself when there is none.
Texte NomRéel(VueTexte dossier, VueTexte nom);

inline constexpr std::uintmax_t TailleDUnTexte = 512U << 20U; // bytes; pictures make texts long

// A plain file of at most that many bytes.
Lecture<std::string> LireFichier(const Chemin& fichier, std::uintmax_t limite = TailleDUnTexte);

// Deletes the file, then writes it anew in one piece, flushed to the disk, with the permissions that it had.
std::optional<EchecFichier> RéécrireFichier(const Chemin& fichier, std::string_view contenu);

// Makes the list of a folder's files outlast a power cut, where the system has a way to.
void PousserDossier(const Chemin& dossier);

// Why it could not be written, and what to look at.
VueTexte CauseDe(EchecFichier échec);

// For a text that could not be written: its editor still holds it, and can save it elsewhere.
Texte MessageEchec(EchecFichier échec, VueTexte fichier);

// For whatever could not be read: names the file and says why.
Texte MessageLecture(EchecLecture échec, VueTexte fichier);

} // namespace tirelune
