// What a key costs in the editor's core, in the middle of a long text: the edit, the events that follow it, and the
// format shown anew; beside it, what the actions on the whole text cost.
#include "authoring/frmEnseignant.h"
#include "tests/support/PlateformeMuette.h"

#include <benchmark/benchmark.h>

using namespace tirelune;

namespace {

struct Bureau {
    PlateformeMuette plateforme;
    Application application{plateforme};
    frmTirelune accueil{application};
    frmEnseignant éditeur{accueil};

    // Short paragraphs, each with a bold word and a word struck through, as in a text made ready for pupils.
    explicit Bureau(std::size_t caractères)
    {
        accueil.Charger();
        éditeur.Charger();
        Format gras;
        gras.Gras = true;
        Format barré;
        barré.Barré = true;
        FormatParagraphe paragraphe;
        paragraphe.RetraitGauche = 100;
        TexteRiche texte;
        while (texte.Longueur() < caractères) {
            texte.Ajouter(u"Le petit ", {}, paragraphe);
            texte.Ajouter(u"chat", barré, paragraphe);
            texte.Ajouter(u" gris dort au soleil, tout en haut du ", {}, paragraphe);
            texte.Ajouter(u"vieux", gras, paragraphe);
            texte.Ajouter(u" mur de la ferme. Il rêve.\r\n", {}, paragraphe);
        }
        éditeur.rtfTexte.TextRTF(std::move(texte));
        éditeur.rtfTexte.Sélectionner(caractères / 2, 0);
    }
};

// As the drawing side hands a key over: the edit, then the caret.
void Frappe(benchmark::State& mesure)
{
    Bureau bureau{static_cast<std::size_t>(mesure.range(0))};
    auto& boîte = bureau.éditeur.rtfTexte;
    const TexteRiche lettre{u"e"};
    while (mesure.KeepRunning()) {
        const auto place = boîte.SelStart();
        boîte.Editer(place, 0, lettre);
        boîte.Sélectionner(place, 0); // two moves, so that the second is one
        boîte.Sélectionner(place + 1, 0);
        benchmark::DoNotOptimize(bureau.application.état.TexteModifié);
    }
}
BENCHMARK(Frappe)->Arg(5'000)->Arg(50'000)->Arg(500'000)->Unit(benchmark::kMicrosecond);

void ToutSélectionner(benchmark::State& mesure)
{
    Bureau bureau{static_cast<std::size_t>(mesure.range(0))};
    while (mesure.KeepRunning()) {
        bureau.éditeur.mnuSélectionner.Cliquer();
        bureau.éditeur.rtfTexte.SelLength(0);
    }
}
BENCHMARK(ToutSélectionner)->Arg(500'000)->Unit(benchmark::kMicrosecond);

void GrasAvecCopie(benchmark::State& mesure)
{
    Bureau bureau{static_cast<std::size_t>(mesure.range(0))};
    bureau.éditeur.rtfTexte.Sélectionner(bureau.éditeur.rtfTexte.SelStart(), 100);
    while (mesure.KeepRunning())
        bureau.éditeur.tlbBoutons.Cliquer("btnGras");
}
BENCHMARK(GrasAvecCopie)->Arg(500'000)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
