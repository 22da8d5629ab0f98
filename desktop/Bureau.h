// What the desktop asks of its programs for people who see badly.
#pragma once

class QFont;
class QPalette;

namespace tirelune {

// Black on white, or white on black, wherever something is read.
[[nodiscard]] bool EstContrastée(const QPalette& palette);
// How much larger than usual letters are to be, told by the desktop's own font and by how many dots it gives an inch:
// that is where its "large text" goes.
[[nodiscard]] double AgrandissementDesLettres(const QFont& police, double pointsParPouce);

} // namespace tirelune
