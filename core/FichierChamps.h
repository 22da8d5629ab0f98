// Field files: Windows-1252, each value alone on its line between double quotes, lines ended by CR LF.
// An inner double quote has no escape. A value of a single asterisk opens a record, where the file has records.
#pragma once
#include "core/Fichiers.h"
#include "core/Texte.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tirelune {

inline constexpr VueTexte Marqueur = u"*";

enum class Valeurs {
    SurPlusieursLignes, // a value may hold line ends
    SurUneLigne,        // a value ends with its line at the latest, so that damage stays where it is
};

// All fields to the end, in order. Blanks before a value and empty lines are skipped; any line end will do. A quote
// closes a value where a line end or the end follows, or a comma with a further quoted value. A value without quotes
// runs to the next comma or line end; where values stay on one line, it is one whose first quote is lost.
// What was read, written and read again is the same, whatever the bytes were.
std::vector<Texte> DécouperChamps(std::string_view octets, Valeurs valeurs = Valeurs::SurPlusieursLignes);

// What a file may hold, so that a damaged one can't take all the memory.
inline constexpr std::uintmax_t TailleDUnFichierDeChamps = 64U << 20U; // bytes
inline constexpr std::size_t ChampsDUnFichier = 1'000'000;

// The same of a file, and of the bytes of one. Too large with more bytes or fields than a file may hold.
Lecture<std::vector<Texte>> DécouperFichier(std::string_view octets, Valeurs valeurs = Valeurs::SurPlusieursLignes);
Lecture<std::vector<Texte>> LireChamps(const Chemin& fichier, Valeurs valeurs = Valeurs::SurPlusieursLignes);

// The file's bytes. Nothing when a character has no place in Windows-1252.
std::optional<std::string> ComposerChamps(const std::vector<Texte>& champs);

// True when a value comes back as it was: no double quote, every character in Windows-1252.
bool TientDansUnChamp(VueTexte valeur);

} // namespace tirelune
