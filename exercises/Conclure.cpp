#include "exercises/Conclure.h"

#include "core/Ecran.h"
#include "followup/EnregistrerNotes.h"
#include "followup/Notes.h"

namespace tirelune {

void Conclure(Ecran& exercice, frmExercices& choix, float note)
{
    EnregistrerNote(choix, note);
    SauverBilan(choix);
    exercice.Décharger();
}

void ConclureSurPoints(Ecran& exercice, frmExercices& choix, const Tableau<Label>& lblPoints)
{
    Conclure(exercice, choix, NoteSurDix(lblPoints(0), lblPoints(1)));
}

} // namespace tirelune
