// What comes in from the clipboard, made fit for a text.
#pragma once
#include "core/Texte.h"

namespace tirelune {

// Line ends become CR LF, soft line and page breaks too; typographic apostrophes become straight ones, narrow and
// thin spaces ordinary blanks; control characters other than the tab are left out.
Texte NormaliserCollage(VueTexte collé);

} // namespace tirelune
