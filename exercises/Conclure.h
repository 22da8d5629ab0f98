// The end of an exercise that has a score.
#pragma once

namespace tirelune {

class Ecran;
class frmExercices;

// Records the score on ten, saves the pupil's results and closes the exercise.
void Conclure(Ecran& exercice, frmExercices& choix, float note);

} // namespace tirelune
