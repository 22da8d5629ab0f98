// The six files of the lexicon, in the folder of the texts: their names, their columns, and how they are read.
#pragma once
#include "core/Elements.h"

#include <string_view>

namespace tirelune {

// Those of all the texts of the folder.
inline constexpr VueTexte NomDicPrinc = u"DicPrinc.dat";
inline constexpr VueTexte NomFamilles = u"Familles.dat";
inline constexpr VueTexte NomSynonymes = u"Synonymes.dat";
inline constexpr VueTexte NomContraires = u"Contraires.dat";
inline constexpr VueTexte NomGenre = u"Genre.dat";
// That of one text.
Texte NomDicTexte(VueTexte titre);

// Columns of the two dictionaries.
inline constexpr int ColonneMot = 0;
inline constexpr int ColonneDéfinition = 1;
inline constexpr int ColonneExemple = 2;
inline constexpr int ColonnesDictionnaire = 3;
// Of the families: a row to a sub-theme, whose name is empty where the theme has none; then its words.
inline constexpr int ColonneThème = 0;
inline constexpr int ColonneSousThème = 1;
inline constexpr int PremierMotDeFamille = 2;
// Of the synonyms and the contraries: the reference word, then those that go with it.
inline constexpr int ColonneRéférent = 0;
inline constexpr int PremierDépendant = 1;
// Of the genders.
inline constexpr int ColonneMasculin = 0;
inline constexpr int ColonneFéminin = 1;
// Of these four, before they are read.
inline constexpr int ColonnesAuDépart = 2;

// Where the file of that name is, with the case that its extension has there.
Chemin FichierLexique(VueTexte dossier, VueTexte nom);

enum class LectureLexique {
    Faite,   // the grid holds all its records: none, of an empty file
    Absente, // there is no such file
    Refusée, // it can't be read, or is none: the bytes in it belong to no record
};

// Puts the records of a file in a grid, a row each, as wide as the longest. Without a reading the grid has no rows.
LectureLexique LireLexique(const Chemin& fichier, Grid& grille);
// The same of its bytes.
LectureLexique RangerLexique(std::string_view octets, Grid& grille);

} // namespace tirelune
