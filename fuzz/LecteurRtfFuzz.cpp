// Reads any bytes as a text. What was read obeys the text's own rules, and comes back equal once written and read.
//
//     tests/outils/fuzzer build/fuzz/fuzz/LecteurRtfFuzz FOLDER
#include "core/EcrivainRtf.h"
#include "core/LecteurRtf.h"
#include "fuzz/Agrandir.h"
#include "fuzz/Exiger.h"

#include <cstdint>

using namespace tirelune;

namespace {

void Vérifier(const TexteRiche& texte)
{
    std::size_t attendu = 0;
    const Format* précédent = nullptr;
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        Exiger(tranche.Début == attendu && tranche.Fin > tranche.Début);
        Exiger(précédent == nullptr || !(*précédent == *tranche.Style));
        attendu = tranche.Fin;
        précédent = tranche.Style;
    });
    Exiger(attendu == texte.Longueur());
    std::size_t marqués = 0;
    for (const auto& mot : MotsMarqués(texte))
        marqués += mot.size();
    Exiger(marqués <= texte.Longueur());
}

// Edits drawn from the bytes themselves.
void Retoucher(TexteRiche& texte, std::string_view octets)
{
    const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(octets[i]); };
    for (std::size_t i = 0; i + 3 < octets.size() && i < 64; i += 4) {
        const auto début = octet(i) * std::size_t{3};
        const auto longueur = octet(i + 1) % 16U;
        const Texte nouveau(octet(i + 2) % 4U, static_cast<char16_t>(octet(i + 3) % 16U));
        texte.Remplacer(début, longueur, nouveau);
        texte.Formater(début / 2, longueur, [](Format& format) { format.Barré = !format.Barré; });
        texte.FormaterParagraphes(début / 3, longueur, [&](FormatParagraphe& p) { p.RetraitGauche += octet(i); });
    }
}

void Essayer(std::string_view octets)
{
    auto texte = LireRtf(octets);
    if (!texte)
        return;
    Exiger(texte->Longueur() <= octets.size());
    Vérifier(*texte);
    const auto relu = LireRtf(EcrireRtf(*texte));
    Exiger(relu && *relu == *texte);

    Retoucher(*texte, octets);
    Vérifier(*texte);
    const auto écrit = EcrireRtf(*texte);
    Exiger(EcrireRtf(*LireRtf(écrit)) == écrit);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* données, std::size_t taille)
{
    static constexpr std::string_view Tête = "{\\rtf1";
    const std::string_view octets{reinterpret_cast<const char*>(données), taille};
    Essayer(octets);
    if (VautEnGrand(octets) && octets.starts_with(Tête))
        Essayer(Agrandir(Tête, octets.substr(Tête.size())));
    return 0;
}
