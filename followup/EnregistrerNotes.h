// Recording of scores: what every exercise calls at its end.
#pragma once

namespace tirelune {

class frmExercices;

// Puts a score on ten in the grid, for the exercise of lblIndex and the text of lblTexte, works out the mean of that
// exercise anew and paints both labels.
void EnregistrerNote(frmExercices& choix, float note);

// Rewrites the pupil's file from the grid. False when it could not be written, which the pupil has been told: the
// grid still holds everything, and the next save writes it.
bool SauverBilan(frmExercices& choix);

} // namespace tirelune
