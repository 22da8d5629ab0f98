// What stands where on a screen: a tree of rows, columns, grids and stacks of elements.
// The drawing side turns it into the toolkit's own layouts.
#pragma once
#include <initializer_list>
#include <type_traits>
#include <vector>

namespace tirelune {

class Elément;
template <class T>
class Tableau;

enum class Disposition {
    Vide,       // nothing
    Elément,    // one element
    Ligne,      // children side by side
    Colonne,    // children one under the other
    Grille,     // children in rows of `Colonnes`
    Pile,       // children one upon the other, all as large as the place
    Ressort,    // takes the room that is left
    Centré,     // its child, as small as it is, in the middle of the place
    Cadre,      // a frame element and what it holds
    Suite,      // more of what a frame element holds, away from it: shown and reached while the frame is
    Carte,      // its child on a card of its own
    Page,       // the page of an exercise: see Page
    Couverture, // a frame element that covers the whole screen while it is visible, and what it holds
    Libre,      // children at their own Left, Top, Width, Height, in twips
    Toile,      // children at their own places in a drawing of Largeur x Hauteur, scaled to the place
};

struct Arrangement {
    Disposition Genre = Disposition::Vide;
    Elément* Occupant = nullptr; // of Elément, Cadre, Suite and Couverture
    std::vector<Arrangement> Enfants;
    int Colonnes = 0;
    int Largeur = 0; // of a Toile, in its own units; else minimum in twips, 0: as the toolkit likes
    int Hauteur = 0;
    int Etirement = 0; // share of the room that is left; 0: only what it needs

    Arrangement() = default;
    Arrangement(Elément& un) : Genre(Disposition::Elément), Occupant(&un) {} // NOLINT(google-explicit-constructor)
    Arrangement(Disposition g, std::initializer_list<Arrangement> e) : Genre(g), Enfants(e) {}
    Arrangement(Disposition g, std::vector<Arrangement> e) : Genre(g), Enfants(std::move(e)) {}
};

struct Ligne : Arrangement {
    Ligne(std::initializer_list<Arrangement> e) : Arrangement(Disposition::Ligne, e) {}
    template <class T>
    explicit Ligne(Tableau<T>& éléments);
};
struct Colonne : Arrangement {
    Colonne(std::initializer_list<Arrangement> e) : Arrangement(Disposition::Colonne, e) {}
    template <class T>
    explicit Colonne(Tableau<T>& éléments);
};
struct Grille : Arrangement {
    Grille(int colonnes, std::initializer_list<Arrangement> e) : Arrangement(Disposition::Grille, e)
    {
        Colonnes = colonnes;
    }
    template <class T>
    Grille(int colonnes, Tableau<T>& éléments);
};
struct Pile : Arrangement {
    Pile(std::initializer_list<Arrangement> e) : Arrangement(Disposition::Pile, e) {}
};
struct Ressort : Arrangement {
    Ressort() : Arrangement(Disposition::Ressort, std::vector<Arrangement>{}) { Etirement = 1; }
};
// Side by side in the middle of the place, each as wide as what it shows: letters, for example.
struct Rangée : Ligne {
    template <class T>
    explicit Rangée(Tableau<T>& éléments);
};
// Keys to press, in rows that share the whole width, all as wide as one another.
struct Touches : Grille {
    template <class T>
    explicit Touches(Tableau<T>& éléments, int rangées = 2);
};
struct Centré : Arrangement {
    Centré(Arrangement un) : Arrangement(Disposition::Centré, {std::move(un)}) {} // NOLINT(google-explicit-constructor)
};
struct Cadre : Arrangement {
    Cadre(Elément& cadre, Arrangement contenu) : Arrangement(Disposition::Cadre, {std::move(contenu)})
    {
        Occupant = &cadre;
    }
    // With an element beside its title.
    Cadre(Elément& cadre, Arrangement contenu, Elément& enTête)
        : Arrangement(Disposition::Cadre, {std::move(contenu), enTête})
    {
        Occupant = &cadre;
    }
};
struct Couverture : Arrangement {
    Couverture(Elément& cadre, Arrangement contenu) : Arrangement(Disposition::Couverture, {std::move(contenu)})
    {
        Occupant = &cadre;
    }
};
struct Suite : Arrangement {
    Suite(Elément& cadre, Arrangement contenu) : Arrangement(Disposition::Suite, {std::move(contenu)})
    {
        Occupant = &cadre;
    }
};
struct Carte : Arrangement {
    explicit Carte(Arrangement un) : Arrangement(Disposition::Carte, {std::move(un)}) {}
};
// The same parts for all exercises, always at the same places. What the work's rules compute from the screen's size
// knows of the work and the foot alone.
struct PartiesDePage {
    Arrangement Consigne{}; // what the pupil has to do
    Arrangement Points{};
    Arrangement Travail{};
    Arrangement Pied{};   // the buttons, the one to press next at the right end
    Arrangement Dessus{}; // what comes to stand over the work
};
struct Page : Arrangement {
    Page(PartiesDePage parties) // NOLINT(google-explicit-constructor)
        : Arrangement(Disposition::Page,
                      {std::move(parties.Consigne), std::move(parties.Points), std::move(parties.Travail),
                       std::move(parties.Pied), std::move(parties.Dessus)})
    {
    }
    // Places of the parts among the children.
    static constexpr std::size_t Consigne = 0;
    static constexpr std::size_t Points = 1;
    static constexpr std::size_t Travail = 2;
    static constexpr std::size_t Pied = 3;
    static constexpr std::size_t Dessus = 4;
};
struct Libre : Arrangement {
    Libre(std::initializer_list<Arrangement> e) : Arrangement(Disposition::Libre, e) {}
};
struct Toile : Arrangement {
    Toile(int largeur, int hauteur, std::vector<Arrangement> e) : Arrangement(Disposition::Toile, std::move(e))
    {
        Largeur = largeur;
        Hauteur = hauteur;
        Etirement = 1;
    }
};

// The same place, taking its share of the room that is left.
inline Arrangement Extensible(Arrangement un, int part = 1)
{
    un.Etirement = part;
    return un;
}
// The same place, never smaller than this (twips).
inline Arrangement AuMoins(int largeur, int hauteur, Arrangement un)
{
    un.Largeur = largeur;
    un.Hauteur = hauteur;
    return un;
}

} // namespace tirelune
