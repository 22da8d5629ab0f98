#include "core/TexteSimple.h"

#include "core/Windows1252.h"

#include <algorithm>
#include <array>

namespace tirelune {

namespace {

// Archives (and the documents that are some), pictures, print files: the short ones may lack a NUL.
constexpr std::array<std::string_view, 9> Signatures{"PK\x03\x04", "PK\x05\x06",         "\x89PNG",
                                                     "GIF8",       "\xFF\xD8\xFF",       "%PDF-",
                                                     "\x1F\x8B",   "7z\xBC\xAF\x27\x1C", "Rar!\x1A\x07"};

enum class Ordre { PetitEnTête, GrandEnTête };

// An odd byte at the end is left out.
Texte DepuisUtf16(std::string_view octets, Ordre ordre)
{
    Texte texte;
    texte.reserve(octets.size() / 2);
    for (std::size_t i = 0; i + 1 < octets.size(); i += 2) {
        const auto premier = static_cast<unsigned char>(octets[i]);
        const auto second = static_cast<unsigned char>(octets[i + 1]);
        texte += static_cast<char16_t>(ordre == Ordre::PetitEnTête ? second << 8 | premier : premier << 8 | second);
    }
    return texte;
}

Texte Décoder(std::string_view octets)
{
    if (octets.starts_with("\xFF\xFE"))
        return DepuisUtf16(octets.substr(2), Ordre::PetitEnTête);
    if (octets.starts_with("\xFE\xFF"))
        return DepuisUtf16(octets.substr(2), Ordre::GrandEnTête);
    if (octets.starts_with("\xEF\xBB\xBF"))
        return DepuisUtf8(octets.substr(3));
    auto texte = DepuisUtf8(octets);
    return EnUtf8(texte) == octets ? texte : DepuisWindows1252(octets);
}

} // namespace

std::optional<Texte> LireTexteSimple(std::string_view octets)
{
    if (std::any_of(Signatures.begin(), Signatures.end(),
                    [&](auto signature) { return octets.starts_with(signature); }))
        return std::nullopt;
    auto texte = Décoder(octets);
    return Contient(texte, u'\0') ? std::nullopt : std::optional{std::move(texte)};
}

} // namespace tirelune
