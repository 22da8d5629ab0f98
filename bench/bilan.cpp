// The pupil's file: signing in with many texts behind, saving them, and recording one score down to the disk.
#include "core/FichierChamps.h"
#include "followup/EnregistrerNotes.h"
#include "followup/frmExercices.h"
#include "tests/support/PlateformeMuette.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

using namespace tirelune;

namespace {

constexpr int BeaucoupDeTextes = 5000;
constexpr int TextesDUneAnnée = 200;

// Writes for real.
class PlateformeSurDisque final : public PlateformeMuette {
public:
    std::optional<EchecFichier> Réécrire(const Chemin& fichier, std::string_view contenu) override
    {
        return RéécrireFichier(fichier, contenu);
    }
};

// A folder of its own, with the file of one pupil who has done every exercise of that many texts.
struct Classe {
    explicit Classe(int textes)
    {
        auto modèle = (std::filesystem::temp_directory_path() / "tirelune-XXXXXX").string();
        if (::mkdtemp(modèle.data()) == nullptr)
            std::abort();
        dossier = modèle;
        application.état.CheminAppli = DepuisChemin(dossier);
        application.état.CheminBilans = application.état.CheminAppli;
        std::vector<Texte> champs;
        for (int texte = 0; texte < textes; ++texte) {
            champs.insert(champs.end(), {Texte{Marqueur}, u"Texte " + EnTexte(texte), u"123"});
            champs.insert(champs.end(), NombreExercices, u"6,666667");
            champs.emplace_back();
        }
        if (RéécrireFichier(dossier / "Léa.bil", ComposerChamps(champs).value()))
            std::abort();
    }
    Classe(const Classe&) = delete;
    Classe& operator=(const Classe&) = delete;
    ~Classe()
    {
        std::error_code ignorée;
        std::filesystem::remove_all(dossier, ignorée);
    }

    void Connecter(frmExercices& choix)
    {
        choix.Charger();
        choix.cmdOk.Cliquer();
        choix.lblTexte.Caption = u" Texte 0 ";
        choix.lblIndex.Caption = u"3";
    }

    Chemin dossier;
    PlateformeSurDisque plateforme;
    Application application{plateforme};
};

void ChargerBilan(benchmark::State& état)
{
    Classe classe{BeaucoupDeTextes};
    for (auto _ : état) {
        frmExercices choix{classe.application};
        classe.Connecter(choix);
        benchmark::DoNotOptimize(choix.fgRésultats.Rows());
    }
}

void EnregistrerBilan(benchmark::State& état)
{
    Classe classe{BeaucoupDeTextes};
    frmExercices choix{classe.application};
    classe.Connecter(choix);
    for (auto _ : état)
        benchmark::DoNotOptimize(SauverBilan(choix));
}

void EnregistrerUneNote(benchmark::State& état)
{
    Classe classe{TextesDUneAnnée};
    frmExercices choix{classe.application};
    classe.Connecter(choix);
    for (auto _ : état) {
        EnregistrerNote(choix, 7.5F);
        benchmark::DoNotOptimize(SauverBilan(choix));
    }
}

BENCHMARK(ChargerBilan)->Name("Charger 5000 textes")->Unit(benchmark::kMillisecond);
BENCHMARK(EnregistrerBilan)->Name("Enregistrer 5000 textes")->Unit(benchmark::kMillisecond);
BENCHMARK(EnregistrerUneNote)->Name("Enregistrer une note, 200 textes")->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
