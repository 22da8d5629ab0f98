// The editor's recent files: at most nine paths, the latest first, in a list and in a plain file of lines.
#pragma once
#include "core/Elements.h"

#include <string>

namespace tirelune {

class Plateforme;

inline constexpr int RécentsMaximum = 9;

// Beside the program's folder, under a name that starts with the folder's own: existing lists lie there.
Texte FichierRécents(VueTexte cheminAppli);

// Puts a path at the top, unless it is empty; what comes after the ninth goes.
void MettreEnTête(ListBox& récents, const Texte& chemin);

// Lists the file's first nine paths; one that comes twice moves to the top. False, and an empty list, when the file
// can't be read. A list that the file could not take whole is left as it is.
bool LireRécents(ListBox& récents, const Texte& fichier);

// Rewrites the file: a convenience, which tells nobody when it fails.
void EcrireRécents(Plateforme& plateforme, ListBox& récents, const Texte& fichier);

// The file's bytes, Windows-1252. A path that such a line can't hold is left out.
std::string ComposerRécents(const ListBox& récents);

} // namespace tirelune
