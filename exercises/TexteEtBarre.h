// The exercises played in the text itself: a text that fills its screen, a bar of tools below it, and an end frame
// that comes to stand over its middle.
#pragma once
#include "core/Ecran.h"

namespace tirelune {

// Below the text stands `barre`, in the strip that Ecran::AjusterBoîte leaves; above it `fin`, with what it holds.
Arrangement TexteEtBarre(RichTextBox& texte, Arrangement barre, Frame& fin, TextBox& message, Button& quitter);

} // namespace tirelune
