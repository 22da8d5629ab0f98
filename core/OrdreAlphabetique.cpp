#include "core/OrdreAlphabetique.h"

#include <algorithm>
#include <compare>
#include <utility>

namespace tirelune {

namespace {

// The plain letters that a character counts as: two of a ligature, none of a sign.
struct Lettres {
    char16_t Première = 0;
    char16_t Seconde = 0;
};

Lettres SansOrnement(char16_t caractère)
{
    const char16_t c = Minuscule(caractère);
    if ((c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9'))
        return {c};
    if (c >= u'à' && c <= u'å')
        return {u'a'};
    if (c >= u'è' && c <= u'ë')
        return {u'e'};
    if (c >= u'ì' && c <= u'ï')
        return {u'i'};
    if (c >= u'ò' && c <= u'ö')
        return {u'o'};
    if (c >= u'ù' && c <= u'ü')
        return {u'u'};
    switch (c) {
    case u'ç':
        return {u'c'};
    case u'ñ':
        return {u'n'};
    case u'ý':
    case u'ÿ':
        return {u'y'};
    case u'æ':
        return {u'a', u'e'};
    case u'œ':
        return {u'o', u'e'};
    case u'š':
        return {u's'};
    case u'ž':
        return {u'z'};
    default:
        return c > 0xFF ? Lettres{c} : Lettres{};
    }
}

// Walks the plain letters of a text without building them.
class Lecteur {
public:
    explicit Lecteur(VueTexte texte) : reste_(texte) {}

    // 0 at the end.
    char16_t Suivante()
    {
        if (attente_ != 0)
            return std::exchange(attente_, u'\0');
        while (!reste_.empty()) {
            const auto [première, seconde] = SansOrnement(reste_.front());
            reste_.remove_prefix(1);
            attente_ = seconde;
            if (première != 0)
                return première;
        }
        return 0;
    }

private:
    VueTexte reste_;
    char16_t attente_ = 0;
};

int ComparerLettres(VueTexte a, VueTexte b)
{
    Lecteur gauche{a};
    Lecteur droite{b};
    for (;;) {
        const int g = gauche.Suivante();
        const int d = droite.Suivante();
        if (g != d || g == 0)
            return g - d;
    }
}

} // namespace

bool AvantDansLOrdre(VueTexte a, VueTexte b)
{
    if (const int écart = ComparerLettres(a, b); écart != 0)
        return écart < 0;
    const auto accents = std::lexicographical_compare_three_way(
        a.begin(), a.end(), b.begin(), b.end(), [](char16_t g, char16_t d) { return Minuscule(g) <=> Minuscule(d); });
    if (std::is_neq(accents))
        return std::is_lt(accents);
    return a > b; // capitals have the lower codes
}

} // namespace tirelune
