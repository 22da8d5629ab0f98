#include "desktop/Batisseur.h"

#include "core/Arrangement.h"
#include "desktop/Composants.h"
#include "desktop/Contenu.h"
#include "desktop/Conversions.h"
#include "desktop/JeuDeVues.h"
#include "desktop/Places.h"
#include "desktop/VueToile.h"
#include "desktop/Vues.h"

#include <QGridLayout>

#include <algorithm>
#include <cassert>

namespace tirelune {

void Bâtisseur::BâtirPlan(const Arrangement& plan)
{
    auto& cadre = contenu_.Plan();
    Remplir(&cadre, plan);
    if (cadre.layout() == nullptr)
        return;
    const int bord = plan.Genre == Disposition::Libre ? 0 : 8;
    cadre.layout()->setContentsMargins(bord, bord, bord, bord);
    cadre.layout()->setSizeConstraint(QLayout::SetNoConstraint);
}

void Bâtisseur::RéglerMinimums() const
{
    for (const auto& minimum : minimums_)
        minimum();
}

Vue& Bâtisseur::Créer(const Arrangement& place, QWidget* parent)
{
    assert(place.Occupant != nullptr);
    return vues_.Ajouter(CréerVue(hôte_, *place.Occupant, parent));
}

void Bâtisseur::Remplir(QWidget* cadre, const Arrangement& contenu)
{
    const auto place = Bâtir(contenu, cadre, true);
    if (place.Layout != nullptr) {
        cadre->setLayout(place.Layout);
    } else if (place.Widget != nullptr) {
        auto* boîte = new QVBoxLayout{cadre};
        boîte->addWidget(place.Widget);
    }
}

namespace {

// Hidden, the widget still takes its room: nothing around it jumps.
void GarderPlace(QWidget& widget)
{
    auto politique = widget.sizePolicy();
    politique.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(politique);
}

} // namespace

Bâtisseur::Place Bâtisseur::Bâtir(const Arrangement& place, QWidget* parent, bool garder)
{
    switch (place.Genre) {
    case Disposition::Elément: {
        auto& vue = Créer(place, parent);
        if (garder)
            GarderPlace(*vue.widget);
        return AvecMinimum({vue.widget, nullptr}, place);
    }
    case Disposition::Ligne:
    case Disposition::Colonne:
        return AvecMinimum(BâtirBoîte(place, parent), place);
    case Disposition::Grille:
        return AvecMinimum(BâtirGrille(place, parent), place);
    case Disposition::Pile: {
        auto pile = std::make_unique<Superposition>();
        for (const auto& enfant : place.Enfants) {
            const auto un = Bâtir(enfant, parent, false);
            if (un.Widget != nullptr)
                pile->Ajouter(un.Widget);
            else if (un.Layout != nullptr)
                pile->Ajouter(un.Layout);
        }
        return AvecMinimum({nullptr, pile.release()}, place);
    }
    case Disposition::Centré: {
        const auto un = Bâtir(place.Enfants.front(), parent, garder);
        auto* grille = new QGridLayout;
        grille->setContentsMargins(0, 0, 0, 0);
        grille->setRowStretch(0, 1);
        grille->setRowStretch(2, 1);
        grille->setColumnStretch(0, 1);
        grille->setColumnStretch(2, 1);
        if (un.Widget != nullptr)
            grille->addWidget(un.Widget, 1, 1);
        else if (un.Layout != nullptr)
            grille->addLayout(un.Layout, 1, 1);
        return AvecMinimum({nullptr, grille}, place);
    }
    case Disposition::Cadre:
        return AvecMinimum(BâtirCadre(place, parent, garder), place);
    case Disposition::Couverture:
        BâtirCouverture(place);
        return {};
    case Disposition::Libre:
        return AvecMinimum(BâtirLibre(place, parent), place);
    case Disposition::Toile:
        return BâtirToile(place, parent);
    case Disposition::Vide:
    case Disposition::Ressort:
        return {};
    }
    return {};
}

Bâtisseur::Place Bâtisseur::AvecMinimum(Place une, const Arrangement& place)
{
    if (place.Largeur == 0 && place.Hauteur == 0)
        return une;
    const auto minimum = [this, largeur = place.Largeur, hauteur = place.Hauteur] {
        return QSize{EnPixels(largeur, hôte_.Echelle()), EnPixels(hauteur, hôte_.Echelle())};
    };
    if (une.Widget != nullptr) {
        minimums_.emplace_back([minimum, widget = une.Widget] { widget->setMinimumSize(minimum()); });
    } else {
        auto* boîte = new Superposition;
        if (une.Layout != nullptr)
            boîte->Ajouter(une.Layout);
        minimums_.emplace_back([minimum, boîte] {
            boîte->tailleMinimale = minimum();
            boîte->invalidate();
        });
        une = {nullptr, boîte};
    }
    minimums_.back()();
    return une;
}

Bâtisseur::Place Bâtisseur::BâtirBoîte(const Arrangement& place, QWidget* parent)
{
    const bool ligne = place.Genre == Disposition::Ligne;
    auto* boîte = new QBoxLayout{ligne ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom};
    boîte->setContentsMargins(0, 0, 0, 0);
    boîte->setSpacing(6);
    for (const auto& enfant : place.Enfants) {
        if (enfant.Genre == Disposition::Ressort) {
            boîte->addStretch(std::max(1, enfant.Etirement));
            continue;
        }
        const auto un = Bâtir(enfant, parent, true);
        if (un.Widget != nullptr)
            boîte->addWidget(un.Widget, enfant.Etirement);
        else if (un.Layout != nullptr)
            boîte->addLayout(un.Layout, enfant.Etirement);
    }
    return {nullptr, boîte};
}

Bâtisseur::Place Bâtisseur::BâtirGrille(const Arrangement& place, QWidget* parent)
{
    auto* grille = new QGridLayout;
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setSpacing(6);
    const int colonnes = std::max(1, place.Colonnes);
    int rang = 0;
    for (const auto& enfant : place.Enfants) {
        const auto un = Bâtir(enfant, parent, true);
        const int ligne = rang / colonnes;
        const int colonne = rang % colonnes;
        if (un.Widget != nullptr)
            grille->addWidget(un.Widget, ligne, colonne);
        else if (un.Layout != nullptr)
            grille->addLayout(un.Layout, ligne, colonne);
        if (enfant.Etirement > 0) {
            grille->setColumnStretch(colonne, std::max(grille->columnStretch(colonne), enfant.Etirement));
            grille->setRowStretch(ligne, std::max(grille->rowStretch(ligne), enfant.Etirement));
        }
        ++rang;
    }
    return {nullptr, grille};
}

Bâtisseur::Place Bâtisseur::BâtirCadre(const Arrangement& place, QWidget* parent, bool garder)
{
    auto& panneau = dynamic_cast<Panneau&>(*Créer(place, parent).widget);
    Remplir(&panneau, place.Enfants.front());
    panneau.AjusterMarges();
    if (garder)
        GarderPlace(panneau);
    return {&panneau, nullptr};
}

void Bâtisseur::BâtirCouverture(const Arrangement& place)
{
    auto& vue = Créer(place, &contenu_);
    contenu_.Couvrir(vue);
    auto& panneau = dynamic_cast<Panneau&>(*vue.widget);
    const Arrangement milieu{Centré{place.Enfants.front()}};
    Remplir(&panneau, milieu);
    panneau.couvrant = true;
    panneau.AjusterMarges();
    panneau.layout()->setSizeConstraint(QLayout::SetNoConstraint);
}

Bâtisseur::Place Bâtisseur::BâtirLibre(const Arrangement& place, QWidget* parent)
{
    auto* libre = new PlacementLibre{hôte_};
    for (const auto& enfant : place.Enfants) {
        Bâtir(enfant, parent, false);
        if (enfant.Occupant != nullptr)
            libre->Ajouter(*vues_.VueDe(*enfant.Occupant));
    }
    return {nullptr, libre};
}

Bâtisseur::Place Bâtisseur::BâtirToile(const Arrangement& place, QWidget* parent)
{
    auto* toile = new VueToile{hôte_, parent, QSize{place.Largeur, place.Hauteur}};
    for (const auto& enfant : place.Enfants) {
        if (auto* trait = dynamic_cast<Line*>(enfant.Occupant)) {
            vues_.Ajouter(std::make_unique<VueTrait>(hôte_, *trait, *toile));
            toile->Ajouter(*trait);
        } else if (enfant.Occupant != nullptr) {
            Bâtir(enfant, toile, false);
            toile->Ajouter(*vues_.VueDe(*enfant.Occupant));
        }
    }
    return {toile, nullptr};
}

} // namespace tirelune
