#include "exercises/ClassesDeLettres.h"

#include <algorithm>
#include <array>

namespace tirelune {

namespace {

struct Famille {
    char16_t Lettre;
    VueTexte Classe;  // what the key uncovers besides the letter, small and capital
    VueTexte Frappes; // what is typed for the key besides the letter, small and capital
};

constexpr std::array<Famille, 6> Familles{{
    {u'a', u"àâäÂÀ", u"àâäÀ"},
    {u'c', u"çÇ", u"çÇ"},
    {u'e', u"éèêëÊËÈÉ", u"éèêëÊËÈÉ"},
    {u'i', u"îïÎÏ", u"îïÎÏ"},
    {u'o', u"ôöÔÖ", u"ôöÔÖ"},
    {u'u', u"ùûüÛÜÙ", u"ùûÛÜ"},
}};

} // namespace

Texte ClasseDeLettre(char16_t lettre)
{
    const auto petite = Minuscule(lettre);
    const auto famille =
        std::find_if(Familles.begin(), Familles.end(), [&](const Famille& une) { return une.Lettre == petite; });
    Texte classe{petite, Majuscule(petite)};
    if (famille != Familles.end())
        classe += famille->Classe;
    return classe;
}

char16_t LettreTapée(char16_t caractère)
{
    const auto famille = std::find_if(Familles.begin(), Familles.end(),
                                      [&](const Famille& une) { return Contient(une.Frappes, caractère); });
    return famille == Familles.end() ? Minuscule(caractère) : famille->Lettre;
}

} // namespace tirelune
