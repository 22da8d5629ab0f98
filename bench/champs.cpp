// Reading fields: what a file of values, one to a line or all on one line, costs by its size. Linear, or it shows.
#include "core/FichierChamps.h"

#include <benchmark/benchmark.h>

using namespace tirelune;

namespace {

std::string Répéter(std::string_view motif, std::size_t taille)
{
    std::string octets;
    octets.reserve(taille);
    while (octets.size() + motif.size() <= taille)
        octets += motif;
    return octets;
}

// The arguments: the size in kB, and whether values may take several lines.
void Lire(benchmark::State& état, std::string_view motif)
{
    const auto octets = Répéter(motif, static_cast<std::size_t>(état.range(0)) * 1000);
    const auto valeurs = état.range(1) == 0 ? Valeurs::SurUneLigne : Valeurs::SurPlusieursLignes;
    for (auto _ : état)
        benchmark::DoNotOptimize(DécouperChamps(octets, valeurs));
    état.SetBytesProcessed(static_cast<std::int64_t>(état.iterations() * octets.size()));
}

void Tailles(benchmark::internal::Benchmark* banc)
{
    for (const int plusieurs : {0, 1}) {
        for (const int taille : {40, 400, 4'000, 64'000})
            banc->Args({taille, plusieurs});
    }
    banc->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK_CAPTURE(Lire, UnChampParLigne, "\"Le chat dort au soleil.\"\r\n")->Apply(Tailles);
BENCHMARK_CAPTURE(Lire, ToutSurUneLigne, "\"a\",")->Apply(Tailles);
BENCHMARK_CAPTURE(Lire, GuillemetsJamaisFermés, "\"a")->Apply(Tailles);
BENCHMARK_CAPTURE(Lire, LignesJamaisFermées, "\"a\n")->Apply(Tailles);

BENCHMARK_MAIN();
