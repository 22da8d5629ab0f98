#include "core/Passages.h"

#include <algorithm>

namespace tirelune {

namespace {

// Where a search from the front found something, or the text's end.
std::size_t OuFin(std::size_t trouvée, VueTexte texte)
{
    return std::min(trouvée, texte.size());
}

// Behind what a search from the back found; nothing found is the text's start.
std::size_t Derrière(std::size_t trouvée)
{
    return trouvée + 1; // npos wraps round to 0
}

} // namespace

Passage MotAutour(VueTexte texte, std::size_t place, VueTexte lettres)
{
    return {Derrière(texte.substr(0, place).find_last_not_of(lettres)),
            OuFin(texte.find_first_not_of(lettres, place), texte)};
}

Passage MorceauAutour(VueTexte texte, std::size_t place, VueTexte séparateurs)
{
    return {Derrière(texte.substr(0, place).find_last_of(séparateurs)),
            OuFin(texte.find_first_of(séparateurs, place), texte)};
}

Passage PhraseAutour(VueTexte texte, std::size_t place, VueTexte signes)
{
    const auto début = Derrière(texte.substr(0, place).find_last_of(signes));
    const auto signe = texte.find_first_of(signes, début + 1);
    return {début, OuFin(Derrière(OuFin(signe, texte)), texte)};
}

} // namespace tirelune
