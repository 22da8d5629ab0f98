// Texts that want one click: a double click is refused with a message, and the selection that it makes is wiped when it
// comes.
#pragma once
#include "core/RichTextBox.h"

namespace tirelune {

void RefuserDoubleClic(RichTextBox& boîte, VueTexte message);
void EffacerSélectionRefusée(RichTextBox& boîte);

} // namespace tirelune
