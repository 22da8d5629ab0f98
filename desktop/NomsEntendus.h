// What a person who doesn't see the screen should hear its elements called.
#pragma once
#include "core/Elements.h"

#include <QString>

namespace tirelune {

// The caption, a field's own label, a tick box's choice, a word's text; then what state it shows.
[[nodiscard]] QString NomEntendu(const Elément& élément);
// What it says by itself: a caption, or a text that is only read. Empty for what the user fills or presses.
[[nodiscard]] QString TexteLu(const Elément& élément);
// What is said of it when that has changed by itself: what it says, the title of a frame, what it shows of an answer.
[[nodiscard]] QString Annonçable(const Elément& élément);
// What it says, with the captions around it that make one phrase of it: the points are "3 sur 5".
[[nodiscard]] QString PhraseAutour(const Elément& élément);
// A caption as it is heard: no "&", and no blanks that only spread it out.
[[nodiscard]] QString Prononçable(VueTexte légende);

} // namespace tirelune
