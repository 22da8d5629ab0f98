// Edits in a text of 500,000 characters with 10,000 runs.
#include "core/TexteRiche.h"

#include <benchmark/benchmark.h>

using namespace tirelune;

namespace {

TexteRiche TexteLong()
{
    TexteRiche texte{Texte(500'000, u'a')};
    for (std::size_t i = 0; i < texte.Longueur(); i += 100)
        texte.Formater(i, 5, [](Format& format) { format.Barré = true; });
    return texte;
}

void RemplacerUnCaractère(benchmark::State& état)
{
    auto texte = TexteLong();
    std::size_t i = 0;
    for ([[maybe_unused]] auto tour : état) {
        texte.Remplacer(i, 1, u"_");
        i = (i + 7919) % texte.Longueur();
    }
}
BENCHMARK(RemplacerUnCaractère);

void ColorierUnCaractère(benchmark::State& état)
{
    auto texte = TexteLong();
    std::size_t i = 0;
    for ([[maybe_unused]] auto tour : état) {
        texte.Formater(i, 1, [](Format& format) { format.Teinte = Rouge; });
        i = (i + 7919) % texte.Longueur();
    }
}
BENCHMARK(ColorierUnCaractère);

void InsérerAuMilieu(benchmark::State& état)
{
    auto texte = TexteLong();
    for ([[maybe_unused]] auto tour : état) {
        texte.Remplacer(250'000, 0, u"b");
        texte.Remplacer(250'000, 1, u"");
    }
}
BENCHMARK(InsérerAuMilieu);

void Copier(benchmark::State& état)
{
    const auto texte = TexteLong();
    for ([[maybe_unused]] auto tour : état) {
        auto copie = texte;
        benchmark::DoNotOptimize(copie);
    }
}
BENCHMARK(Copier);

} // namespace

BENCHMARK_MAIN();
