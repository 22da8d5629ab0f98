#include "core/OrdreAlphabetique.h"

#include <algorithm>
#include <array>
#include <compare>
#include <utility>

namespace tirelune {

namespace {

// The plain letters that a character counts as: two of a ligature, none of a sign.
struct Lettres {
    char16_t Première = 0;
    char16_t Seconde = 0;
};

// Letters of the neighbours' languages: each run of codes is one letter under its ornaments.
char16_t LettreVoisine(char16_t c)
{
    struct Suite {
        char16_t Début;
        char16_t Lettre; // 0: no plain letter
    };
    static constexpr std::array<Suite, 23> Suites{
        {{0x100, u'a'}, {0x106, u'c'}, {0x10E, u'd'}, {0x112, u'e'}, {0x11C, u'g'}, {0x124, u'h'},
         {0x128, u'i'}, {0x132, 0},    {0x134, u'j'}, {0x136, u'k'}, {0x139, u'l'}, {0x143, u'n'},
         {0x14C, u'o'}, {0x152, 0},    {0x154, u'r'}, {0x15A, u's'}, {0x162, u't'}, {0x168, u'u'},
         {0x174, u'w'}, {0x176, u'y'}, {0x179, u'z'}, {0x17F, u's'}, {0x180, 0}}};
    if (c == 0x219) // s and t with a comma below stand apart
        return u's';
    if (c == 0x21B)
        return u't';
    const auto* suite =
        std::upper_bound(Suites.begin(), Suites.end(), c, [](char16_t code, const Suite& s) { return code < s.Début; });
    return suite == Suites.begin() ? u'\0' : std::prev(suite)->Lettre;
}

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
    default:
        break;
    }
    if (c <= 0xFF || (c >= 0x300 && c <= 0x36F)) // a sign, or an accent apart from its letter
        return {};
    const char16_t lettre = LettreVoisine(c);
    return {lettre != 0 ? lettre : c};
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
