// What assistive tools are told of a screen's elements: names, roles, states, actions, and the formats of rich texts.
// Nothing is made before such a tool asks.
#pragma once

namespace tirelune {

class JeuDeVues;

void InstallerAccessibilité();
// Such a tool listens to the program.
[[nodiscard]] bool QuelquUnEcoute();
// The toolkit speaks for some widgets itself: their names are set anew.
void NommerChamps(const JeuDeVues& vues);

} // namespace tirelune
