// The end of the exercises that are played in the text itself: a frame that comes to stand over its middle.
#pragma once
#include "core/Ecran.h"

namespace tirelune {

// The end frame, hidden at the start. The screen binds the button, which records the score.
struct FinDeTexte {
    explicit FinDeTexte(Ecran& écran);

    Frame Cadre;
    TextBox Message;
    Button Bouton;
};

void Montrer(FinDeTexte& fin);

// The end frame, in the middle of what it comes to stand over.
Arrangement EnPlace(FinDeTexte& fin);

} // namespace tirelune
