// What a letter key stands for: the letters of a text that it uncovers, and the typed characters that it answers to.
#pragma once
#include "core/Texte.h"

namespace tirelune {

inline constexpr VueTexte Voyelles = u"aeiouy"; // of the alphabet

// The letter, small and capital, with the accented forms that go with it. The letter may come in either case.
Texte ClasseDeLettre(char16_t lettre);

// The small letter without accent whose key a typed character stands for; a character with no such key comes back
// in small. Narrower than the classes on purpose: a typed "Â" or "ü" has no key.
char16_t LettreTapée(char16_t caractère);

} // namespace tirelune
