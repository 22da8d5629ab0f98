#include "desktop/Batisseur.h"

#include "core/Arrangement.h"
#include "desktop/Bandeau.h"
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

namespace {

constexpr int Bord = 8;   // around what a screen shows; pixels of an 800 x 600 display, as all here
constexpr int Espace = 6; // between two neighbours
constexpr int HauteurPied = 66;
constexpr double PointsDuPied = 14; // of all buttons there

// Rules compute the places of such work: it has the screen's corner, and nearly its width.
bool EstPlacéParLesRègles(const Arrangement& travail)
{
    const auto libre = [](const Arrangement& un) { return un.Genre == Disposition::Libre; };
    return libre(travail) ||
           (travail.Genre == Disposition::Pile && std::any_of(travail.Enfants.begin(), travail.Enfants.end(), libre));
}

} // namespace

void Bâtisseur::BâtirPlan(const Arrangement& plan)
{
    auto& cadre = contenu_.Plan();
    Remplir(&cadre, plan);
    if (cadre.layout() == nullptr)
        return;
    const int bord = plan.Genre == Disposition::Libre ? 0 : Bord;
    AvecMarges(*cadre.layout(), bord, bord, bord, bord);
    cadre.layout()->setSizeConstraint(QLayout::SetNoConstraint);
}

void Bâtisseur::BâtirPage(const Arrangement& page, Bandeau& bandeau)
{
    auto& plan = contenu_.Plan();
    const auto& parties = page.Enfants;
    const auto garnir = [this](QWidget& widget, const Arrangement& partie) {
        if (partie.Genre != Disposition::Vide)
            Remplir(&widget, partie);
    };
    garnir(bandeau.Consigne(), parties[Page::Consigne]);
    garnir(bandeau.Points(), parties[Page::Points]);
    SelonEchelle([this, &bandeau] { bandeau.Mesurer(hôte_.Echelle()); });

    auto* colonne = new QVBoxLayout;
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->setSpacing(0);
    const auto& travail = parties[Page::Travail];
    auto* place = new Superposition;
    const auto un = Bâtir(travail, &plan, true);
    if (un.Widget != nullptr)
        place->Ajouter(un.Widget);
    else if (un.Layout != nullptr)
        place->Ajouter(un.Layout);
    static constexpr int MoitiéDeCeQuiReste = 5; // of the 10 pixels that such a text leaves in width
    const int bord = EstPlacéParLesRègles(travail) ? MoitiéDeCeQuiReste : Bord;
    AvecMarges(*place, bord, bord, bord, bord);
    colonne->addLayout(place, 1);
    if (parties[Page::Pied].Genre != Disposition::Vide) {
        auto* pied = new PiedDePage{&plan};
        pointsDesBoutons_ = PointsDuPied;
        Remplir(pied, parties[Page::Pied]);
        pointsDesBoutons_ = 0;
        AvecMarges(*pied->layout(), Bord, Espace, Bord, Espace);
        SelonEchelle([this, pied] { pied->setFixedHeight(qRound(HauteurPied * hôte_.Echelle())); });
        colonne->addWidget(pied);
    }
    auto* tout = new Superposition;
    tout->setContentsMargins(0, 0, 0, 0);
    tout->Ajouter(colonne);
    const auto dessus = Bâtir(parties[Page::Dessus], &plan, false);
    if (dessus.Layout != nullptr)
        tout->Ajouter(dessus.Layout);
    tout->setSizeConstraint(QLayout::SetNoConstraint);
    plan.setLayout(tout);
}

void Bâtisseur::Mesurer() const
{
    for (const auto& mesure : mesures_)
        mesure();
}

void Bâtisseur::SelonEchelle(std::function<void()> mesure)
{
    mesure();
    mesures_.push_back(std::move(mesure));
}

void Bâtisseur::AvecMarges(QLayout& layout, int gauche, int haut, int droite, int bas)
{
    SelonEchelle([this, &layout, marges = QMarginsF(gauche, haut, droite, bas)] {
        layout.setContentsMargins((marges * hôte_.Echelle()).toMargins());
    });
}

void Bâtisseur::AvecEspace(QLayout& layout)
{
    SelonEchelle([this, &layout] { layout.setSpacing(qRound(Espace * hôte_.Echelle())); });
}

Vue& Bâtisseur::Créer(const Arrangement& place, QWidget* parent)
{
    assert(place.Occupant != nullptr);
    auto& vue = vues_.Ajouter(CréerVue(hôte_, *place.Occupant, parent));
    if (dynamic_cast<const Button*>(place.Occupant) != nullptr)
        vue.points = pointsDesBoutons_;
    return vue;
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
    case Disposition::Suite:
        return AvecMinimum(BâtirSuite(place, parent), place);
    case Disposition::Carte:
        return AvecMinimum(BâtirCarte(place, parent), place);
    case Disposition::Page:
        assert(!"a page is a whole screen");
        return {};
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
        SelonEchelle([minimum, widget = une.Widget] { widget->setMinimumSize(minimum()); });
    } else {
        auto* boîte = new Superposition;
        if (une.Layout != nullptr)
            boîte->Ajouter(une.Layout);
        SelonEchelle([minimum, boîte] {
            boîte->tailleMinimale = minimum();
            boîte->invalidate();
        });
        une = {nullptr, boîte};
    }
    return une;
}

Bâtisseur::Place Bâtisseur::BâtirBoîte(const Arrangement& place, QWidget* parent)
{
    const bool ligne = place.Genre == Disposition::Ligne;
    auto* boîte = new Alignés{ligne ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom};
    boîte->setContentsMargins(0, 0, 0, 0);
    AvecEspace(*boîte);
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
    AvecEspace(*grille);
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
    if (place.Enfants.size() > 1)
        BâtirEnTête(panneau, place);
    else
        Remplir(&panneau, place.Enfants.front());
    panneau.AjusterMarges();
    if (garder)
        GarderPlace(panneau);
    return {&panneau, nullptr};
}

void Bâtisseur::BâtirEnTête(Panneau& panneau, const Arrangement& place)
{
    panneau.enTête = true;
    auto* colonne = new QVBoxLayout{&panneau};
    AvecEspace(*colonne);
    auto& élément = *Créer(place.Enfants.back(), &panneau).widget;
    colonne->addWidget(&élément, 0, Qt::AlignRight);
    static constexpr QSizeF Taille{42, 28};
    SelonEchelle([this, &élément] { élément.setFixedSize((Taille * hôte_.Echelle()).toSize()); });
    const auto contenu = Bâtir(place.Enfants.front(), &panneau, true);
    if (contenu.Widget != nullptr)
        colonne->addWidget(contenu.Widget, 1);
    else if (contenu.Layout != nullptr)
        colonne->addLayout(contenu.Layout, 1);
}

Bâtisseur::Place Bâtisseur::BâtirSuite(const Arrangement& place, QWidget* parent)
{
    auto* suite = new QWidget{parent};
    Remplir(suite, place.Enfants.front());
    suite->layout()->setContentsMargins(0, 0, 0, 0);
    GarderPlace(*suite);
    vues_.Suivre(*place.Occupant, *suite);
    return {suite, nullptr};
}

Bâtisseur::Place Bâtisseur::BâtirCarte(const Arrangement& place, QWidget* parent)
{
    auto* carte = new Papier{parent};
    if (place.Enfants.front().Genre == Disposition::Toile) // drawings are told for a white ground
        carte->fond = Qt::white;
    Remplir(carte, place.Enfants.front());
    AvecMarges(*carte->layout(), Bord, Bord, Bord, Bord);
    return {carte, nullptr};
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
