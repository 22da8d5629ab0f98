#include "core/Windows1252.h"

#include "core/PagesDeCodes.h"

#include <algorithm>

namespace tirelune {

namespace {

const MoitiéHaute& Page()
{
    static const MoitiéHaute& page = *TrouverPageDeCodes(1252);
    return page;
}

} // namespace

Texte DepuisWindows1252(std::string_view octets)
{
    Texte texte;
    texte.reserve(octets.size());
    for (const char octet : octets) {
        const auto code = static_cast<unsigned char>(octet);
        texte += code < 0x80 ? static_cast<char16_t>(code) : Page()[code - 0x80U];
    }
    return texte;
}

std::optional<char> OctetWindows1252(char16_t caractère)
{
    if (caractère < 0x80 || (caractère >= 0xA0 && caractère <= 0xFF))
        return static_cast<char>(caractère);
    const auto& page = Page();
    const auto* place = std::find(page.begin(), page.end(), caractère);
    if (place == page.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (place - page.begin()));
}

std::optional<std::string> EnWindows1252(VueTexte texte)
{
    std::string octets;
    octets.reserve(texte.size());
    for (const char16_t caractère : texte) {
        const auto octet = OctetWindows1252(caractère);
        if (!octet)
            return std::nullopt;
        octets += *octet;
    }
    return octets;
}

bool TientEnWindows1252(VueTexte texte)
{
    return std::all_of(texte.begin(), texte.end(), [](char16_t c) { return OctetWindows1252(c).has_value(); });
}

} // namespace tirelune
