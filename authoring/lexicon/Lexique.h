// What the lexicon's editor does to the grids that hold its files. Words are compared exactly.
#pragma once
#include "core/FichiersLexique.h"

#include <vector>

namespace tirelune {

// Which cells of a row go to the file.
enum class Cellules {
    Toutes,       // of the dictionaries
    SansLesVides, // of the families, which keep an empty sub-theme in its place
    JusquAuVide,  // of the synonyms and the contraries: up to the first empty one
    DeuxAuPlus,   // of the genders: the same, of the first two
};

// The fields of a grid, a record to a row.
std::vector<Texte> ChampsDuLexique(const Grid& grille, Cellules écrites);

enum class Chargement {
    Aucun,
    Partiel, // writing the grid would leave something of the file out
    Entier,
};
Chargement ChargerLexique(const Chemin& fichier, Grid& grille, Cellules écrites);

// The first row from there on whose cell is the text; -1: none.
int RangéeDe(const Grid& grille, int colonne, VueTexte texte, int départ = 0);
// The same of the cells of a row.
int CelluleDe(const Grid& grille, int rangée, int départ, VueTexte texte);
// The words of a row from that column to the first empty cell.
void Relever(const Grid& grille, int rangée, int départ, std::vector<Texte>& mots);
// The first cells of all rows, each text once.
std::vector<Texte> Clés(const Grid& grille);
void SansDoublons(std::vector<Texte>& mots);

void AjouterRangée(Grid& grille, Texte clé);
// In the first empty cell from that column on; a full row makes the grid wider.
void AjouterCellule(Grid& grille, int rangée, int départ, Texte mot);
// Takes a cell out, and closes the row up.
void RetirerCellule(Grid& grille, int rangée, int colonne);
// Every cell of the column that is the text takes the new one.
void RenommerPartout(Grid& grille, int colonne, VueTexte ancien, const Texte& nouveau);
// Takes out every row whose cell is the text.
void RetirerRangées(Grid& grille, int colonne, VueTexte texte);

// The words of the dictionary of a text that the general one doesn't hold go to its end; an empty first row goes.
// What was added.
std::vector<Texte> FusionnerDictionnaires(const Grid& duTexte, Grid& général);

} // namespace tirelune
