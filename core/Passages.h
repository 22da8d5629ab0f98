// Words and sentences around a place of a text: what makes or parts them comes from the rule that asks.
#pragma once
#include "core/Texte.h"

namespace tirelune {

struct Passage {
    std::size_t Début = 0;
    std::size_t Fin = 0; // behind the last character

    [[nodiscard]] std::size_t Longueur() const { return Fin - Début; }
    [[nodiscard]] VueTexte Dans(VueTexte texte) const { return texte.substr(Début, Longueur()); }

    friend bool operator==(const Passage&, const Passage&) = default;
};

// The characters of `lettres` that stand without a break before a place and from it on. Where the place itself holds
// another character, the word that ends there.
Passage MotAutour(VueTexte texte, std::size_t place, VueTexte lettres);

// What lies between the nearest characters of `séparateurs`, before a place and from it on, or the text's ends.
Passage MorceauAutour(VueTexte texte, std::size_t place, VueTexte séparateurs);

// From behind the last sign of `signes` before a place to the next one, which belongs to the sentence; or the text's
// ends. A sign that opens the sentence doesn't end it.
Passage PhraseAutour(VueTexte texte, std::size_t place, VueTexte signes);

} // namespace tirelune
