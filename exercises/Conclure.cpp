#include "exercises/Conclure.h"

#include "core/Ecran.h"
#include "followup/EnregistrerNotes.h"

namespace tirelune {

void Conclure(Ecran& exercice, frmExercices& choix, float note)
{
    EnregistrerNote(choix, note);
    SauverBilan(choix);
    exercice.Décharger();
}

} // namespace tirelune
