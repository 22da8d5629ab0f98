// Field files: Windows-1252, each value alone on its line between double quotes, lines ended by CR LF.
// An inner double quote has no escape. A value of a single asterisk opens a record, where the file has records.
#pragma once
#include "core/Texte.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tirelune {

inline constexpr VueTexte Marqueur = u"*";

enum class Valeurs {
    SurPlusieursLignes, // a value may hold line ends; a quote closes it where a comma, a line end or the end follows
    SurUneLigne,        // a value ends with its line at the latest, so that damage stays where it is
};

// All fields to the end, in order. Blanks before a value and empty lines are skipped; a value without quotes runs to
// the end of its line, or, where values may take several lines, to the next comma. Any line end will do.
std::vector<Texte> DécouperChamps(std::string_view octets, Valeurs valeurs = Valeurs::SurPlusieursLignes);

// The same of a file. Nothing when it can't be read.
std::optional<std::vector<Texte>> LireChamps(const Chemin& fichier, Valeurs valeurs = Valeurs::SurPlusieursLignes);

// The file's bytes. Nothing when a character has no place in Windows-1252.
std::optional<std::string> ComposerChamps(const std::vector<Texte>& champs);

// True when a value comes back as it was: no double quote, every character in Windows-1252.
bool TientDansUnChamp(VueTexte valeur);

} // namespace tirelune
