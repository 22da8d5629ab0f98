// The sentences that exercises draw from a text: 6 to 20 words, from a full stop to the next sign.
#pragma once
#include "core/Plateforme.h"

#include <optional>
#include <span>
#include <vector>

namespace tirelune {

// The words of a sentence that `banque` doesn't hold anywhere in it. At most 99 draws, one for each try; nothing when
// none of them brings such a sentence. A character that is in `lettres` belongs to a word, a sign of ".?!;:" ends the
// sentence and its last word, and anything else parts two words.
// Without a full stop at or behind the place drawn, the sentence is the first one of the text.
std::optional<std::vector<Texte>> TirerPhrase(Plateforme& plateforme, VueTexte texte, VueTexte lettres,
                                              VueTexte banque);

// The words joined by single blanks.
Texte EnPhrase(std::span<const Texte> mots);

} // namespace tirelune
