// Any bytes read as fields, in both modes; what is written of them reads back equal.
#include "core/FichierChamps.h"
#include "fuzz/Agrandir.h"
#include "fuzz/Exiger.h"

#include <algorithm>
#include <cstdint>

using namespace tirelune;

namespace {

bool TientSurUneLigne(const Texte& champ)
{
    return !Contient(champ, u'\r') && !Contient(champ, u'\n');
}

void RelireEgal(const std::vector<Texte>& champs, Valeurs valeurs)
{
    const auto octets = ComposerChamps(champs);
    Exiger(octets.has_value()); // what came out of Windows-1252 goes back
    Exiger(DécouperChamps(*octets, valeurs) == champs);
}

void Essayer(std::string_view octets)
{
    for (const auto valeurs : {Valeurs::SurPlusieursLignes, Valeurs::SurUneLigne}) {
        const auto champs = DécouperChamps(octets, valeurs);
        if (valeurs == Valeurs::SurUneLigne)
            Exiger(std::all_of(champs.begin(), champs.end(), TientSurUneLigne));
        RelireEgal(champs, valeurs);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* données, std::size_t taille)
{
    const std::string_view octets{reinterpret_cast<const char*>(données), taille};
    Essayer(octets);
    if (VautEnGrand(octets))
        Essayer(Agrandir({}, octets));
    // Values as a screen would hand them over: the input cut at every NUL.
    std::vector<Texte> champs{Texte{}};
    for (const char octet : octets) {
        if (octet == '\0')
            champs.emplace_back();
        else
            champs.back() += static_cast<char16_t>(static_cast<unsigned char>(octet) & 0x7FU);
    }
    std::erase_if(champs, [](const Texte& champ) { return !TientDansUnChamp(champ); });
    RelireEgal(champs, Valeurs::SurPlusieursLignes);
    std::erase_if(champs, [](const Texte& champ) { return !TientSurUneLigne(champ); });
    RelireEgal(champs, Valeurs::SurUneLigne);
    return 0;
}
