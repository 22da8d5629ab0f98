// The exercises played in the text itself, without their window: opening on a long text, and the widest move.
#include "exercises/comprehension/frmClosures.h"
#include "exercises/comprehension/frmTexteMasqué.h"
#include "exercises/vocabulary/frmTrous.h"
#include "tests/support/PlateformeMuette.h"

#include <benchmark/benchmark.h>

using namespace tirelune;

namespace {

constexpr std::size_t Caractères = 20'000;
constexpr std::size_t MotsMarquésDuTexte = 500;

// Lines of words of which every few are marked, one in four formats.
TexteRiche LongTexte()
{
    static constexpr VueTexte Mots =
        u"Le petit chat de Zoé a vu, l'été dernier, une hirondelle sous le toit du préau. ";
    TexteRiche texte;
    std::size_t marqués = 0;
    for (std::size_t place = 0, mot = 0; texte.Longueur() < Caractères; ++mot) {
        const auto fin = Mots.find(u' ', place) + 1;
        Format format;
        format.Gras = mot % 30 == 0;
        format.Italique = mot % 45 == 0;
        format.Barré = mot % 7 == 3 && marqués < MotsMarquésDuTexte;
        marqués += format.Barré ? 1U : 0U;
        texte.Ajouter(Mots.substr(place, fin - place - 1), format, {});
        texte.Ajouter(mot % 60 == 59 ? FinDeLigne : VueTexte{u" "}, {}, {});
        place = fin == Mots.size() ? 0 : fin;
    }
    return texte;
}

// The chooser, holding the text.
struct Classe {
    PlateformeMuette plateforme;
    Application application{plateforme};
    frmExercices choix{application};

    Classe() { choix.rtfTexte.TextRTF(LongTexte()); }
};

template <class E>
void Ouvrir(benchmark::State& état)
{
    Classe classe;
    while (état.KeepRunning()) {
        E écran{classe.choix};
        écran.Charger();
        benchmark::DoNotOptimize(écran.EstChargé());
    }
}

void DévoilerE(benchmark::State& état)
{
    Classe classe;
    const auto place = classe.choix.rtfTexte.Text().find(u'e');
    while (état.KeepRunning()) {
        état.PauseTiming();
        frmTexteMasqué écran{classe.choix};
        écran.Charger();
        écran.rtfMasqué.Cliquer(place);
        état.ResumeTiming();
        écran.lblLettre(u'E' - u'A').Cliquer();
    }
}

BENCHMARK(Ouvrir<frmTexteMasqué>)->Name("Ouvrir Texte masqué")->Unit(benchmark::kMillisecond);
BENCHMARK(Ouvrir<frmClosures>)->Name("Ouvrir Closures")->Unit(benchmark::kMillisecond);
BENCHMARK(Ouvrir<frmTrous>)->Name("Ouvrir Texte à trous")->Unit(benchmark::kMillisecond);
BENCHMARK(DévoilerE)->Name("Dévoiler e")->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
