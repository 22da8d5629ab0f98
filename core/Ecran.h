// A screen: elements, their arrangement, and the handlers of their events.
#pragma once
#include "core/Application.h"
#include "core/Arrangement.h"
#include "core/Elements.h"
#include "core/RichTextBox.h"

#include <chrono>

namespace tirelune {

// An entry of the menu bar, with what opens below it. A separator has no option, or, where it comes and goes, one
// captioned "-". An option of a screen that stands in no menu is there for its shortcut.
struct Menu {
    MenuOption* Option = nullptr;
    std::vector<Menu> Sous{};
};

// How an exercise presents itself above its page.
struct TitreDePage {
    Texte Titre{};
    Texte NomElève{};
    Dessin Pictogramme{};
    Couleur Bande = CouleurAuto;
    Couleur Profonde = CouleurAuto; // for letters and outlines on the band
};

class Ecran : public Observable {
public:
    Ecran(Application& application, std::string_view nom, Texte légende);
    Ecran(const Ecran&) = delete;
    Ecran& operator=(const Ecran&) = delete;
    virtual ~Ecran();

    const std::string Nom; // "frmPendu"
    Propriété<Texte> Caption;
    Propriété<Couleur> BackColor{*this, CouleurAuto};
    Propriété<int> Width{*this, 0}; // inner size in twips, once shown
    Propriété<int> Height{*this, 0};
    bool PetiteFenêtre = false; // as large as its contents, not as the display
    bool LaisseVoir = false;    // a small window that never covers what is chosen in the text below it

    TitreDePage Présentation; // set by who opens the screen, before it is shown

    // Filled rectangles and lines behind the elements, in a scale of their own: see Dessin.
    Propriété<Dessin> Fond{*this, Dessin{}};

    // Set by who draws the screen: something of it has changed; the keyboard is to go to the element of Focus.
    std::function<void()> Observateur;
    std::function<void()> FocusDemandé;

    // Loads the screen, shows it above the others and comes back when it is closed.
    void Afficher();
    // The load alone. A screen may unload itself during its load.
    void Charger();
    // The screen has come to the front, at its first showing or after one above it was closed.
    void Activer();
    // Its inner size has changed (twips).
    void Dimensionner(int largeur, int hauteur);
    // The user closes it by its close box.
    void FermerParCroix();
    // The user clicks where no element stands.
    void Cliquer();
    // A key before the focused element sees it. True: swallowed.
    bool Taper(Touche touche);
    void Décharger();
    [[nodiscard]] bool EstChargé() const { return chargé_; }

    [[nodiscard]] Application& ApplicationDe() const { return application_; }
    [[nodiscard]] const Arrangement& Plan() const { return arrangement_; }
    [[nodiscard]] virtual std::vector<Menu> Menus() { return {}; }
    [[nodiscard]] const std::vector<Elément*>& Eléments() const { return éléments_; }
    [[nodiscard]] const std::vector<Timer*>& Minuteries() const { return minuteries_; }
    // The frames that hide all the rest while they are visible: as large as the screen.
    [[nodiscard]] const std::vector<Elément*>& Couvertures() const { return couvertures_; }
    // The element that has the keyboard, as far as the screen or the user has said.
    [[nodiscard]] Elément* Focus() const { return focus_; }
    void PrendreFocus(Elément& élément);
    void FocusVenu(Elément& élément);
    void FocusParti(); // to no other element

    void Inscrire(Elément& élément) { éléments_.push_back(&élément); }
    void Inscrire(Timer& minuterie) { minuteries_.push_back(&minuterie); }
    void Changer() override;

protected:
    virtual void Load() {}
    virtual void Unload() {}
    virtual void Activate() {}
    virtual void Resize() {}
    virtual void Click() {}
    virtual void KeyPress(Touche&) {}
    // The close box; by default the screen is unloaded.
    virtual void QueryUnload() { Décharger(); }
    virtual Arrangement Disposer() = 0;

    Application& application_;
    Constantes& état;

    // Shorthands for what handlers say all the time.
    void Avertir(Texte message, Texte titre = u"Avertissement");
    // Shows a screen above this one, which is activated again afterwards.
    void Ouvrir(Ecran& autre);
    // The same with the screen of that name, which the table has.
    void Ouvrir(std::string_view nom);
    // Caption, " / ", the pupil's name.
    void AjouterNomElève();
    // The rule by which a text fills its screen: 150 twips less in width, `marge` less in height; a screen of
    // less than 1000 twips either way is set to 1000 by 1000.
    void AjusterBoîte(RichTextBox& boîte, int marge = 1100);
    // The usual size of letters (points), more where the window has grown faster than they have.
    [[nodiscard]] double PointsSelonPlace() const;
    [[nodiscard]] bool Attendre(std::chrono::milliseconds durée);
    [[nodiscard]] bool AttendreArrêt(Timer& minuterie);
    void Repeindre();

private:
    void Ranger(const Arrangement& place, const Elément* conteneur);

    bool chargé_ = false;
    Elément* focus_ = nullptr;
    std::vector<Elément*> éléments_;
    std::vector<Timer*> minuteries_;
    std::vector<Elément*> couvertures_;
    Arrangement arrangement_;
};

template <class T>
std::vector<Arrangement> EnPlaces(Tableau<T>& éléments)
{
    return {éléments.begin(), éléments.end()};
}
template <class T>
Rangée::Rangée(Tableau<T>& éléments) : Ligne{Ressort{}}
{
    for (auto& un : éléments)
        Enfants.emplace_back(un);
    Enfants.emplace_back(Ressort{});
}
template <class T>
Ligne::Ligne(Tableau<T>& éléments) : Arrangement(Disposition::Ligne, EnPlaces(éléments))
{
}
template <class T>
Colonne::Colonne(Tableau<T>& éléments) : Arrangement(Disposition::Colonne, EnPlaces(éléments))
{
}
template <class T>
Grille::Grille(int colonnes, Tableau<T>& éléments) : Arrangement(Disposition::Grille, EnPlaces(éléments))
{
    Colonnes = colonnes;
}
template <class T>
Touches::Touches(Tableau<T>& éléments, int rangées) : Grille((éléments.Nombre() + rangées - 1) / rangées, éléments)
{
    for (auto& touche : Enfants)
        touche.Etirement = 1;
}

} // namespace tirelune
