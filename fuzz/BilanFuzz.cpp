// Any bytes as a pupil's file: the means are those of its marks, the curves stay on their sheet, and what is saved of
// it reads back equal.
#include "TableEcrans.h"
#include "followup/EnregistrerNotes.h"
#include "followup/GrilleRésultats.h"
#include "followup/Notes.h"
#include "followup/frmExercices.h"
#include "followup/frmProgression.h"
#include "fuzz/Gestes.h"

#include <cmath>

using namespace tirelune;

namespace {

// Signs Léa in. False: the file was refused.
bool Connecter(frmExercices& choix)
{
    choix.Charger();
    choix.Dimensionner(12000, 9000);
    choix.cmbNoms.Montrer(choix.cmbNoms.Chercher(u"Léa"));
    choix.cmdOk.Cliquer();
    return choix.EstChargé() && !choix.frameElève.Visible;
}

void VérifierMoyennes(const Grid& grille)
{
    for (int colonne = PremièreColonneNote; colonne < grille.Cols() - 1; ++colonne) {
        double somme = 0;
        int nombre = 0;
        for (int rangée = 1; rangée < grille.Rows(); ++rangée) {
            if (const auto note = LireNote(grille.TextMatrix(rangée, colonne))) {
                Exiger(std::isfinite(*note));
                somme += *note;
                ++nombre;
            }
        }
        const auto moyenne = LireNote(grille.TextMatrix(0, colonne));
        if (nombre == 0)
            Exiger(!moyenne);
        else
            Exiger(moyenne && std::abs(*moyenne - somme / nombre) <= 1e-3 * (1 + std::abs(somme)));
    }
}

void RegarderCourbes(frmExercices& choix)
{
    for (std::uint8_t groupe = 1; groupe <= Groupes.size(); ++groupe) {
        choix.ApplicationDe().état.GroupeCourbes = groupe;
        frmProgression courbes{choix};
        courbes.Charger();
        courbes.Dimensionner(12000, 9000);
        courbes.Activer();
        for (auto& légende : courbes.lblLégende)
            légende.Cliquer();
        for (const auto& forme : courbes.imgCourbes.Picture().Formes) {
            for (const auto& point : forme.Points)
                Exiger(std::isfinite(point.X) && std::isfinite(point.Y));
        }
        courbes.cmdQuitter.Cliquer();
        Exiger(!courbes.EstChargé());
    }
}

std::vector<Texte> Cellules(const Grid& grille)
{
    std::vector<Texte> toutes;
    for (int rangée = 0; rangée < grille.Rows(); ++rangée) {
        for (int colonne = 0; colonne < grille.Cols(); ++colonne)
            toutes.push_back(Rogner(grille.TextMatrix(rangée, colonne)));
    }
    return toutes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille)
{
    SuiteDOctets suite{{}};
    PlateformeFuzz plateforme{suite};
    plateforme.Poser("Léa.bil", {reinterpret_cast<const char*>(octets), taille});
    Application application{plateforme};
    application.état.CheminAppli = DepuisChemin(plateforme.dossier);
    application.état.CheminBilans = application.état.CheminAppli;
    RemplirTable(application);

    frmExercices choix{application};
    if (!Connecter(choix)) {
        Exiger(plateforme.Boîtes > 0); // never without a word
        Exiger(LireFichier(plateforme.dossier / "Léa.bil")->size() == taille);
        return 0;
    }
    VérifierMoyennes(choix.fgRésultats);
    RegarderCourbes(choix);
    if (!SauverBilan(choix))
        return 0;
    const auto écrit = *LireFichier(plateforme.dossier / "Léa.bil");

    const int boîtes = plateforme.Boîtes;
    frmExercices relu{application};
    Exiger(Connecter(relu));
    Exiger(plateforme.Boîtes == boîtes); // what the program has written is no damage
    Exiger(Cellules(relu.fgRésultats) == Cellules(choix.fgRésultats));
    Exiger(SauverBilan(relu));
    Exiger(*LireFichier(plateforme.dossier / "Léa.bil") == écrit);
    return 0;
}
