// From an arrangement to the toolkit's layouts, with a view for each element.
#pragma once
#include <functional>
#include <vector>

class QLayout;
class QWidget;

namespace tirelune {

class Contenu;
class Hôte;
class JeuDeVues;
class Vue;
struct Arrangement;

class Bâtisseur {
public:
    // The views go into `vues`, the widgets into `contenu`.
    Bâtisseur(Hôte& hôte, JeuDeVues& vues, Contenu& contenu) : hôte_(hôte), vues_(vues), contenu_(contenu) {}

    void BâtirPlan(const Arrangement& plan);
    // The sizes that were asked for, at the present scale.
    void RéglerMinimums() const;

private:
    struct Place {
        QWidget* Widget = nullptr;
        QLayout* Layout = nullptr;
    };

    Place Bâtir(const Arrangement& place, QWidget* parent, bool garder);
    Place BâtirBoîte(const Arrangement& place, QWidget* parent);
    Place BâtirGrille(const Arrangement& place, QWidget* parent);
    Place BâtirCadre(const Arrangement& place, QWidget* parent, bool garder);
    Place BâtirLibre(const Arrangement& place, QWidget* parent);
    Place BâtirToile(const Arrangement& place, QWidget* parent);
    void BâtirCouverture(const Arrangement& place);
    void Remplir(QWidget* cadre, const Arrangement& contenu);
    Place AvecMinimum(Place une, const Arrangement& place);
    Vue& Créer(const Arrangement& place, QWidget* parent);

    Hôte& hôte_;
    JeuDeVues& vues_;
    Contenu& contenu_;
    std::vector<std::function<void()>> minimums_;
};

} // namespace tirelune
