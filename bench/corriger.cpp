// The automatic formatting of texts of 100 KB, 1 MB and 10 MB, with marks, bold words and centred paragraphs.
#include "authoring/CorrigerTexte.h"
#include "core/TexteRiche.h"

#include <benchmark/benchmark.h>

using namespace tirelune;

namespace {

// One byte a character, as the texts have them in their files.
TexteRiche Prose(std::size_t octets)
{
    static constexpr VueTexte Phrases[] = {
        u"Le  renard_roux , dit-il , court  vers l' orée du bois ! ",
        u"\" Où vas-tu ? \" demanda la chouette : il faisait nuit.Rien ne bougeait . . . ",
        u"- Je rentre (enfin) chez moi ; à demain !\u00A0» \r\n",
    };
    Format barré;
    barré.Barré = true;
    Format gras;
    gras.Gras = true;
    FormatParagraphe centré;
    centré.Alignement = Cadrage::Centre;

    TexteRiche texte;
    for (std::size_t i = 0; texte.Longueur() < octets; ++i) {
        const auto& paragraphe = i / std::size(Phrases) % 4 == 0 ? centré : FormatParagraphe{};
        const auto phrase = Phrases[i % std::size(Phrases)];
        texte.Ajouter(phrase.substr(0, 4), {}, paragraphe);
        texte.Ajouter(phrase.substr(4, 6), i % 2 == 0 ? barré : gras, paragraphe);
        texte.Ajouter(phrase.substr(10), {}, paragraphe);
    }
    return texte;
}

void Corriger(benchmark::State& état)
{
    const auto texte = Prose(static_cast<std::size_t>(état.range(0)));
    for (auto _ : état)
        benchmark::DoNotOptimize(TexteCorrigé(texte));
    état.SetBytesProcessed(état.iterations() * état.range(0));
}
BENCHMARK(Corriger)->Arg(100'000)->Arg(1'000'000)->Arg(10'000'000)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
