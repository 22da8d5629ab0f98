// The exercises played in the text itself: a text that fills its screen, a bar of tools below it, and an end frame
// that comes to stand over its middle.
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

// Below the text stands `barre`, in the strip that Ecran::AjusterBoîte leaves; above it the end frame.
Arrangement TexteEtBarre(RichTextBox& texte, Arrangement barre, FinDeTexte& fin);

} // namespace tirelune
