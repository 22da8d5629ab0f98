// The running program: its platform, its public state, and the table of screens that others open by name.
#pragma once
#include "core/Constantes.h"
#include "core/Plateforme.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace tirelune {

class Ecran;

// Which answer to a question loses something, and what it is about where its text doesn't tell.
struct Enjeu {
    Perte Danger = Perte::Aucune;
    Texte Objet{};
    Texte Titre = u"Avertissement";
};

class Application {
public:
    // Makes the screen; the opener is the screen that asks for it.
    using Fabrique = std::function<std::unique_ptr<Ecran>(Ecran& ouvreur)>;

    explicit Application(Plateforme& p) : plateforme(p) {}
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    Plateforme& plateforme;
    Constantes état;
    std::map<std::string, Fabrique, std::less<>> écrans; // filled by the unit that knows them all

    // A box with one button.
    void Avertir(Texte message, Texte titre = u"Avertissement", Icône symbole = Icône::Information);
    // A box with Yes and No.
    bool Demander(Texte question, Enjeu enjeu = {});
};

} // namespace tirelune
