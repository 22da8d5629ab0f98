// The end of an exercise that has a score.
#pragma once
#include "core/Elements.h"

namespace tirelune {

class frmExercices;

// What a button says once its click ends the exercise.
inline constexpr VueTexte Quitter = u"&Quitter";

// Records the score on ten, saves the pupil's results and closes the exercise.
void Conclure(Ecran& exercice, frmExercices& choix, float note);
// The same with the points gained, lblPoints(0), of the tries or the points possible, lblPoints(1).
void ConclureSurPoints(Ecran& exercice, frmExercices& choix, const Tableau<Label>& lblPoints);

} // namespace tirelune
