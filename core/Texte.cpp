#include "core/Texte.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tirelune {

namespace {

constexpr char16_t Remplacement = 0xFFFD;

bool EstBlanc(char16_t c)
{
    return c == u' ';
}

bool EstChiffre(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

// The longest leading number: sign, digits, one point or, when allowed, one comma.
std::string NombreEnTête(VueTexte texte, bool virgule, std::size_t& lus)
{
    std::string nombre;
    std::size_t i = 0;
    if (i < texte.size() && (texte[i] == u'-' || texte[i] == u'+')) {
        if (texte[i] == u'-')
            nombre += '-';
        ++i;
    }
    bool chiffre = false;
    bool séparateur = false;
    for (; i < texte.size(); ++i) {
        if (EstChiffre(texte[i])) {
            nombre += static_cast<char>(texte[i]);
            chiffre = true;
        } else if (!séparateur && (texte[i] == u'.' || (virgule && texte[i] == u','))) {
            nombre += '.';
            séparateur = true;
        } else {
            break;
        }
    }
    lus = i;
    return chiffre ? nombre : std::string{};
}

// Nothing without a digit, and out of all measure.
std::optional<double> Convertir(const std::string& nombre)
{
    double valeur = 0;
    const auto [fin, erreur] = std::from_chars(nombre.data(), nombre.data() + nombre.size(), valeur);
    return erreur == std::errc{} ? std::optional{valeur} : std::nullopt;
}

} // namespace

Texte RognerAGauche(VueTexte texte)
{
    const auto début = texte.find_first_not_of(u' ');
    return début == VueTexte::npos ? Texte{} : Texte{texte.substr(début)};
}

Texte Rogner(VueTexte texte)
{
    const auto début = texte.find_first_not_of(u' ');
    if (début == VueTexte::npos)
        return {};
    return Texte{texte.substr(début, texte.find_last_not_of(u' ') - début + 1)};
}

namespace {

// Beyond Latin-1 letters go by pairs, capital first: on an even code, or in two runs on an odd one.
bool PaireCapitalePaire(char16_t c)
{
    return (c >= 0x100 && c <= 0x137) || (c >= 0x14A && c <= 0x177) || (c >= 0x200 && c <= 0x21F);
}

bool PaireCapitaleImpaire(char16_t c)
{
    return (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
}

} // namespace

char16_t Minuscule(char16_t c)
{
    if ((c >= u'A' && c <= u'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return static_cast<char16_t>(c + 0x20);
    if (c == 0x178) // Ÿ
        return 0xFF;
    if (c == 0x130) // dotted capital I has no single small letter here
        return c;
    if ((PaireCapitalePaire(c) && c % 2 == 0) || (PaireCapitaleImpaire(c) && c % 2 == 1))
        return static_cast<char16_t>(c + 1);
    return c;
}

char16_t Majuscule(char16_t c)
{
    if ((c >= u'a' && c <= u'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7))
        return static_cast<char16_t>(c - 0x20);
    if (c == 0xFF)
        return 0x178;
    if (c == 0x131) // dotless small i
        return c;
    if ((PaireCapitalePaire(c) && c % 2 == 1) || (PaireCapitaleImpaire(c) && c % 2 == 0))
        return static_cast<char16_t>(c - 1);
    return c;
}

Texte Minuscules(VueTexte texte)
{
    Texte résultat{texte};
    std::transform(résultat.begin(), résultat.end(), résultat.begin(), Minuscule);
    return résultat;
}

Texte Majuscules(VueTexte texte)
{
    Texte résultat{texte};
    std::transform(résultat.begin(), résultat.end(), résultat.begin(), Majuscule);
    return résultat;
}

Texte DepuisUtf8(std::string_view octets)
{
    Texte texte;
    texte.reserve(octets.size());
    for (std::size_t i = 0; i < octets.size();) {
        const auto premier = static_cast<unsigned char>(octets[i]);
        const int suite = premier < 0x80       ? 0
                          : premier >> 5 == 6  ? 1
                          : premier >> 4 == 14 ? 2
                          : premier >> 3 == 30 ? 3
                                               : -1;
        if (suite <= 0) {
            texte += suite == 0 ? static_cast<char16_t>(premier) : Remplacement;
            ++i;
            continue;
        }
        char32_t code = premier & (0x3FU >> static_cast<unsigned>(suite));
        std::size_t j = i + 1;
        for (; j < octets.size() && j <= i + static_cast<std::size_t>(suite) && (octets[j] & 0xC0) == 0x80; ++j)
            code = code << 6U | (static_cast<unsigned char>(octets[j]) & 0x3FU);
        static constexpr std::array<char32_t, 4> Minimum{0, 0x80, 0x800, 0x10000};
        const bool complète = j == i + static_cast<std::size_t>(suite) + 1;
        if (!complète || code < Minimum[static_cast<std::size_t>(suite)] || code > 0x10FFFF ||
            (code >= 0xD800 && code <= 0xDFFF)) {
            texte += Remplacement;
        } else if (code < 0x10000) {
            texte += static_cast<char16_t>(code);
        } else {
            texte += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10U));
            texte += static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FFU));
        }
        i = j;
    }
    return texte;
}

std::string EnUtf8(VueTexte texte)
{
    std::string octets;
    octets.reserve(texte.size());
    for (std::size_t i = 0; i < texte.size(); ++i) {
        char32_t code = texte[i];
        if (code >= 0xD800 && code <= 0xDFFF) {
            const bool paire =
                code < 0xDC00 && i + 1 < texte.size() && texte[i + 1] >= 0xDC00 && texte[i + 1] <= 0xDFFF;
            code = paire ? 0x10000 + ((code - 0xD800) << 10U) + (texte[++i] - 0xDC00U) : Remplacement;
        }
        if (code < 0x80) {
            octets += static_cast<char>(code);
            continue;
        }
        const unsigned suite = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
        octets += static_cast<char>((0xF0U << (3 - suite) & 0xFFU) | code >> 6 * suite);
        for (unsigned reste = suite; reste-- > 0;)
            octets += static_cast<char>(0x80U | (code >> 6 * reste & 0x3FU));
    }
    return octets;
}

Chemin EnChemin(VueTexte texte)
{
    Texte nom{texte};
    std::replace(nom.begin(), nom.end(), u'\0', Remplacement); // the system would take what stands before it
    const auto octets = EnUtf8(nom);
    return {std::u8string(octets.begin(), octets.end())};
}

Texte DepuisChemin(const Chemin& chemin)
{
    const auto octets = chemin.u8string();
    return DepuisUtf8({reinterpret_cast<const char*>(octets.data()), octets.size()});
}

Texte Joindre(VueTexte dossier, VueTexte nom)
{
    Texte chemin{dossier};
    if (!chemin.empty() && chemin.back() != u'/' && chemin.back() != Chemin::preferred_separator)
        chemin += u'/';
    return chemin.append(nom);
}

double Valeur(VueTexte texte)
{
    const auto début = std::find_if_not(texte.begin(), texte.end(), EstBlanc);
    std::size_t lus = 0;
    return Convertir(NombreEnTête(texte.substr(static_cast<std::size_t>(début - texte.begin())), false, lus))
        .value_or(0);
}

std::optional<double> LireNombre(VueTexte texte)
{
    const auto rogné = Rogner(texte);
    std::size_t lus = 0;
    const auto nombre = NombreEnTête(rogné, true, lus);
    if (nombre.empty() || lus != rogné.size())
        return std::nullopt;
    return Convertir(nombre);
}

Texte EnTexte(int nombre)
{
    return DepuisUtf8(std::to_string(nombre));
}

Texte EnTexte(long long nombre)
{
    return DepuisUtf8(std::to_string(nombre));
}

Texte EnTexte(float nombre, char16_t séparateurDécimal)
{
    static constexpr float PlusPetitAvecChiffres = 1e-4F; // smaller ones would take an exponent
    if (std::abs(nombre) < PlusPetitAvecChiffres)
        return u"0";
    std::array<char, 64> tampon{};
    const auto [fin, erreur] =
        std::to_chars(tampon.data(), tampon.data() + tampon.size(), nombre, std::chars_format::general, 7);
    auto texte = DepuisUtf8({tampon.data(), static_cast<std::size_t>(fin - tampon.data())});
    std::replace(texte.begin(), texte.end(), u'.', séparateurDécimal);
    return erreur == std::errc{} ? texte : Texte{};
}

} // namespace tirelune
