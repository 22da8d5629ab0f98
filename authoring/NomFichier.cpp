#include "authoring/NomFichier.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr std::size_t LongueurProposée = 25; // characters
constexpr VueTexte AutresCaractères = u" 'àâçéèêëîïôöûü";

bool TientDansLeNom(char16_t caractère)
{
    return (caractère >= u'a' && caractère <= u'z') || (caractère >= u'A' && caractère <= u'Z') ||
           Contient(AutresCaractères, caractère);
}

} // namespace

Texte CouperNomFichier(VueTexte nom)
{
    return {nom.begin(), std::find_if_not(nom.begin(), nom.end(), TientDansLeNom)};
}

Texte NomProposé(VueTexte texte)
{
    const auto début = std::min(texte.find_first_not_of(u' '), texte.size());
    // The blanks that end the text are trimmed with the name.
    return Rogner(CouperNomFichier(texte.substr(début, LongueurProposée))) + u".rtf";
}

} // namespace tirelune
