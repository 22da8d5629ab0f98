// Reads any bytes as a text. What was read obeys the text's own rules, and comes back equal once written and read.
//
//     tests/outils/fuzzer build/fuzz/fuzz/LecteurRtfFuzz FOLDER
#include "core/EcrivainRtf.h"
#include "core/LecteurRtf.h"

#include <cstdlib>

using namespace tirelune;

namespace {

void Exiger(bool condition)
{
    if (!condition)
        std::abort();
}

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
void Retoucher(TexteRiche& texte, const std::uint8_t* octets, std::size_t taille)
{
    for (std::size_t i = 0; i + 3 < taille && i < 64; i += 4) {
        const auto début = octets[i] * std::size_t{3};
        const auto longueur = octets[i + 1] % 16U;
        const Texte nouveau(octets[i + 2] % 4U, static_cast<char16_t>(octets[i + 3] % 16U));
        texte.Remplacer(début, longueur, nouveau);
        texte.Formater(début / 2, longueur, [](Format& format) { format.Barré = !format.Barré; });
        texte.FormaterParagraphes(début / 3, longueur, [&](FormatParagraphe& p) { p.RetraitGauche += octets[i]; });
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille)
{
    auto texte = LireRtf({reinterpret_cast<const char*>(octets), taille});
    if (!texte)
        return 0;
    Exiger(texte->Longueur() <= taille);
    Vérifier(*texte);
    const auto relu = LireRtf(EcrireRtf(*texte));
    Exiger(relu && *relu == *texte);

    Retoucher(*texte, octets, taille);
    Vérifier(*texte);
    const auto écrit = EcrireRtf(*texte);
    Exiger(EcrireRtf(*LireRtf(écrit)) == écrit);
    return 0;
}
