// Sentences and passages that exercises take out of a text.
#pragma once
#include "core/Constantes.h"
#include "core/Plateforme.h"

#include <functional>
#include <limits>
#include <optional>
#include <span>
#include <vector>

namespace tirelune {

inline constexpr VueTexte FinsDePhrase = u".?!;:";

// Rebuilds LettresEtSignes with what else belongs to a sentence: apostrophe, hyphen, brackets, comma and quotes.
void EcrireAlphabetDesPhrases(Constantes& état);

struct NombreDeMots {
    std::size_t Minimum;
    std::size_t Maximum = std::numeric_limits<std::size_t>::max();
};

using RefusDePhrase = std::function<bool(const std::vector<Texte>& mots)>;

// The words of a sentence of that length that `banque` doesn't hold anywhere in it, and that nothing else refuses. At
// most 99 draws, one for each try; nothing when none of them brings such a sentence. A character that is in `lettres`
// belongs to a word, a sign of FinsDePhrase ends the sentence and its last word, and anything else parts two words.
std::optional<std::vector<Texte>> TirerPhrase(Plateforme& plateforme, VueTexte texte, VueTexte lettres,
                                              NombreDeMots longueur, VueTexte banque = {},
                                              const RefusDePhrase& refusée = {});

// The words joined by single blanks.
Texte EnPhrase(std::span<const Texte> mots);

// Behind the first full stop at or after a place; the text's start when there is none.
std::size_t DépartDePhrase(VueTexte texte, std::size_t place);

// The passage on one line: what is neither in `lettres` nor a sign of FinsDePhrase becomes a blank, blanks in a row
// become one, and none is left at the ends.
Texte NettoyerPassage(VueTexte passage, VueTexte lettres);

// Without the signs of FinsDePhrase that it begins with, which end the sentence before.
VueTexte SansFinEnTête(VueTexte passage);

} // namespace tirelune
