// From an arrangement to the toolkit's layouts, with a view for each element.
#pragma once
#include <functional>
#include <vector>

class QBoxLayout;
class QLayout;
class QWidget;

namespace tirelune {

class Bandeau;
class Contenu;
class Hôte;
class JeuDeVues;
class Panneau;
class Vue;
struct Arrangement;

class Bâtisseur {
public:
    // The views go into `vues`, the widgets into `contenu`.
    Bâtisseur(Hôte& hôte, JeuDeVues& vues, Contenu& contenu) : hôte_(hôte), vues_(vues), contenu_(contenu) {}

    void BâtirPlan(const Arrangement& plan);
    // A page: the parts that stand outside the screen's inner size go into the band.
    void BâtirPage(const Arrangement& page, Bandeau& bandeau);
    // Margins, and the sizes that were asked for, at the present scale.
    void Mesurer() const;

private:
    struct Place {
        QWidget* Widget = nullptr;
        QLayout* Layout = nullptr;
    };

    Place Bâtir(const Arrangement& place, QWidget* parent, bool garder);
    Place BâtirBoîte(const Arrangement& place, QWidget* parent);
    Place BâtirGrille(const Arrangement& place, QWidget* parent);
    Place BâtirCadre(const Arrangement& place, QWidget* parent, bool garder);
    void BâtirEnTête(Panneau& panneau, const Arrangement& place);
    Place BâtirSuite(const Arrangement& place, QWidget* parent);
    Place BâtirCarte(const Arrangement& place, QWidget* parent);
    Place BâtirLibre(const Arrangement& place, QWidget* parent);
    Place BâtirToile(const Arrangement& place, QWidget* parent);
    void BâtirCouverture(const Arrangement& place);
    void Remplir(QWidget* cadre, const Arrangement& contenu);
    Place AvecMinimum(Place une, const Arrangement& place);
    // Pixels of an 800 x 600 display.
    void AvecMarges(QLayout& layout, int gauche, int haut, int droite, int bas);
    void AvecEspace(QLayout& layout);
    void SelonEchelle(std::function<void()> mesure);
    Vue& Créer(const Arrangement& place, QWidget* parent);

    Hôte& hôte_;
    JeuDeVues& vues_;
    Contenu& contenu_;
    std::vector<std::function<void()>> mesures_;
    double pointsDesBoutons_ = 0; // in the part of the page that is being built; 0: each button's own
};

} // namespace tirelune
