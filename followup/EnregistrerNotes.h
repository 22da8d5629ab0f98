// Recording of scores: what every exercise calls at its end, and the colours that scores have everywhere.
#pragma once
#include "core/Couleur.h"
#include "core/Texte.h"

#include <optional>

namespace tirelune {

class Application;
class frmExercices;
class Label;

// The grid's columns: title, speed, one for each exercise, and one that nobody writes.
inline constexpr int ColonneTitre = 0;
inline constexpr int ColonneVitesse = 1;
inline constexpr int PremièreColonneNote = 2;
inline constexpr int NombreColonnes = 30;

// Puts a score on ten in the grid, for the exercise of lblIndex and the text of lblTexte, works out the mean of that
// exercise anew and paints both labels.
void EnregistrerNote(frmExercices& choix, float note);

// Rewrites the pupil's file from the grid. False when it could not be written, which the pupil has been told: the
// grid still holds everything, and the next save writes it.
bool SauverBilan(frmExercices& choix);

// Row of the text of that title (the last of several is never reached), made at the end when there is none yet.
int RangéeDuTexte(frmExercices& choix, const Texte& titre);

// A score cell as a number; nothing when it is empty, no number or out of all measure: the exercise
// counts as not done.
std::optional<float> LireNote(const Texte& cellule);

// Mean of the numbers of a column over rows 1 to the last; nothing when there is none.
std::optional<float> MoyenneColonne(const frmExercices& choix, int colonne);

// The whole part of the mean speed goes in row 0 and on the chooser; nothing changes while no speed is known.
void MontrerVitesseMoyenne(frmExercices& choix);

Couleur CouleurDeNote(float note);

// Points gained of points possible, on ten, not rounded; 0 when none was possible.
float NoteSurDix(const Label& gagnés, const Label& possibles);

// First four characters of a score's text, with a point as decimal separator: cut, not rounded.
Texte NoteCourte(VueTexte note);

// Path of the pupil's file in a folder.
Texte FichierBilan(VueTexte dossier, VueTexte nomElève);

// Copies a pupil's file beside itself, under its name, `suffixe` and the first number that is free: the copy's name.
// Nothing when it can't be copied.
std::optional<Texte> CopierBilan(const Texte& fichier, VueTexte suffixe);

// The box for a pupils' folder out of reach. True: try again; false: go on in the program's own folder.
bool RéessayerRéseau(Application& application);

} // namespace tirelune
