// The grid of a pupil's results: a row for each text, its means in row 0.
#pragma once
#include "core/Texte.h"

#include <optional>

namespace tirelune {

class frmExercices;

// The grid's columns: title, speed, one for each exercise, and one that nobody writes.
inline constexpr int ColonneTitre = 0;
inline constexpr int ColonneVitesse = 1;
inline constexpr int PremièreColonneNote = 2;
inline constexpr int NombreColonnes = 30;

// Row of the text of that title (the last of several is never reached), made at the end when there is none yet.
int RangéeDuTexte(frmExercices& choix, const Texte& titre);

// Mean of the numbers of a column over rows 1 to the last; nothing when there is none.
std::optional<float> MoyenneColonne(const frmExercices& choix, int colonne);

// The whole part of the mean speed goes in row 0 and on the chooser; nothing changes while no speed is known.
void MontrerVitesseMoyenne(frmExercices& choix);

} // namespace tirelune
