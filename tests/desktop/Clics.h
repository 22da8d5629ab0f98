// Every row of the table of screens, opened by its real opener with real widgets.
#pragma once
#include "authoring/frmEnseignant.h"
#include "core/frmTirelune.h"
#include "followup/frmExercices.h"
#include "tests/desktop/Atelier.h"

#include <QTemporaryDir>

#include <set>
#include <string>
#include <vector>

namespace tirelune {

using Noms = std::set<std::string>;

class Ecrans : public Atelier {
protected:
    Ecrans();

    [[nodiscard]] Noms Table() const;
    // A screen of that name, made by the first opener that suits it.
    std::unique_ptr<Ecran> Créer(const std::string& nom);
    // Opens each screen of the table at 800 by 600, and plays the script on it.
    void SurChacun(const std::function<void(Ecran&)>& script);
    // The screen, opened anew, as the script finds it.
    void Montrer(const std::string& nom, const std::function<void(Ecran&)>& script);

    [[nodiscard]] QRect Place(const QWidget& widget) { return {widget.mapTo(&Devant(), QPoint{0, 0}), widget.size()}; }
    // What is hit at the point is the widget, or a part of it.
    [[nodiscard]] bool EstTouché(const QWidget& widget, QPoint lieu);

    QTemporaryDir dossier;
    frmTirelune accueil{application};
    frmExercices choix{application};
    frmEnseignant éditeur{accueil};
};

// What a click on an element sets off, and how it is given.
struct Clic {
    std::string Nom;
    std::function<void()> Donner;
    QWidget* Widget = nullptr; // none for an option of a menu
    QPoint Lieu{};             // inside it
};

class Clics : public Ecrans {
protected:
    // All clicks that the screen answers as it stands; each handler counts before it does its work.
    std::vector<Clic> Recenser(Ecran& écran);
    // Plays the script on each click of each screen, on a screen opened anew; `réponses` starts from 0.
    void SurChaqueClic(const std::function<void(Ecran&, const Clic&)>& script);
    // One step back from what has come up: a box is refused, a screen above is closed, then the screen itself.
    void Sortir(Ecran& écran);

    int réponses = 0;

private:
    void Compter(std::function<void()>& gestionnaire)
    {
        gestionnaire = [this, vrai = gestionnaire] {
            ++réponses;
            vrai();
        };
    }
    void Presser(Elément& élément, std::vector<Clic>& clics);
};

} // namespace tirelune
