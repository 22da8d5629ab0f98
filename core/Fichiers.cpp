#include "core/Fichiers.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <system_error>

#if __has_include(<unistd.h>)
#include <unistd.h>
#endif

namespace tirelune {

namespace {

struct Fermeture {
    void operator()(std::FILE* fichier) const { std::fclose(fichier); }
};
using Flux = std::unique_ptr<std::FILE, Fermeture>;

bool PousserSurLeDisque(std::FILE* fichier)
{
#if __has_include(<unistd.h>)
    return ::fsync(::fileno(fichier)) == 0;
#else
    return fichier != nullptr;
#endif
}

// Codes 0x80 to 0x9F of Windows-1252 (WHATWG index); the unassigned ones map to themselves.
constexpr std::array<char16_t, 32> Haut{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                        0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> OctetDe(char16_t caractère)
{
    if (caractère < 0x80 || (caractère >= 0xA0 && caractère <= 0xFF))
        return static_cast<char>(caractère);
    const auto* place = std::find(Haut.begin(), Haut.end(), caractère);
    if (place == Haut.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (place - Haut.begin()));
}

} // namespace

std::optional<std::string> LireFichier(const Chemin& fichier)
{
    std::error_code erreur;
    if (std::filesystem::is_directory(fichier, erreur))
        return std::nullopt;
    std::ifstream flux{fichier, std::ios::binary};
    if (!flux)
        return std::nullopt;
    std::string contenu;
    if (const auto taille = std::filesystem::file_size(fichier, erreur); !erreur)
        contenu.reserve(static_cast<std::size_t>(taille));
    std::array<char, 1 << 16> tampon{};
    while (flux.read(tampon.data(), tampon.size()) || flux.gcount() > 0)
        contenu.append(tampon.data(), static_cast<std::size_t>(flux.gcount()));
    if (flux.bad())
        return std::nullopt;
    return contenu;
}

std::optional<EchecFichier> RéécrireFichier(const Chemin& fichier, std::string_view contenu)
{
    std::error_code ignorée; // a missing file is no error
    std::filesystem::remove(fichier, ignorée);
    const Flux flux{std::fopen(fichier.c_str(), "wb")};
    if (!flux)
        return EchecFichier::Ouverture;
    std::setvbuf(flux.get(), nullptr, _IONBF, 0); // the content is in memory already
    const bool écrit = contenu.empty() || std::fwrite(contenu.data(), contenu.size(), 1, flux.get()) == 1;
    if (!écrit || !PousserSurLeDisque(flux.get()))
        return EchecFichier::Ecriture;
    return std::nullopt;
}

Texte DepuisWindows1252(std::string_view octets)
{
    Texte texte;
    texte.reserve(octets.size());
    for (const char octet : octets) {
        const auto code = static_cast<unsigned char>(octet);
        texte += code >= 0x80 && code < 0xA0 ? Haut[code - 0x80U] : static_cast<char16_t>(code);
    }
    return texte;
}

std::optional<std::string> EnWindows1252(VueTexte texte)
{
    std::string octets;
    octets.reserve(texte.size());
    for (const char16_t caractère : texte) {
        const auto octet = OctetDe(caractère);
        if (!octet)
            return std::nullopt;
        octets += *octet;
    }
    return octets;
}

bool TientEnWindows1252(VueTexte texte)
{
    return std::all_of(texte.begin(), texte.end(), [](char16_t c) { return OctetDe(c).has_value(); });
}

Texte MessageEchec(EchecFichier échec, VueTexte fichier)
{
    Texte message = u"Impossible d'enregistrer le fichier\n" + Texte{fichier} + u"\n\n";
    message += échec == EchecFichier::Ouverture
                   ? u"Vérifiez que son dossier existe et que vous avez le droit d'y écrire."
                   : u"Le disque est peut-être plein ou n'est plus accessible.";
    return message + u"\nRien n'est perdu : recommencez quand ce sera réparé, ou enregistrez ailleurs.";
}

} // namespace tirelune
