#include "desktop/Places.h"

#include "desktop/Conversions.h"

#include <algorithm>

namespace tirelune {

namespace {

// The largest that a layout may get: nothing, in the direction of the row or column around it, when it is empty.
QSize Plafond(const QLayout& layout, QSize usuel)
{
    const auto* autour = qobject_cast<const QBoxLayout*>(layout.parent());
    if (autour == nullptr || !layout.isEmpty())
        return usuel;
    const bool ligne = autour->direction() == QBoxLayout::LeftToRight;
    return ligne ? QSize{0, usuel.height()} : QSize{usuel.width(), 0};
}

} // namespace

QSize Alignés::maximumSize() const
{
    return Plafond(*this, QBoxLayout::maximumSize());
}

Superposition::~Superposition()
{
    // Out of the list first: a layout that goes takes itself out of the one it is in.
    while (!pièces_.empty()) {
        auto* pièce = pièces_.back();
        pièces_.pop_back();
        delete pièce;
    }
}

void Superposition::Ajouter(QWidget* un)
{
    addChildWidget(un);
    addItem(new QWidgetItem{un});
}

void Superposition::Ajouter(QLayout* un)
{
    addChildLayout(un);
    addItem(un);
}

QLayoutItem* Superposition::itemAt(int index) const
{
    return index >= 0 && index < count() ? pièces_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* Superposition::takeAt(int index)
{
    auto* pièce = itemAt(index);
    if (pièce != nullptr)
        pièces_.erase(pièces_.begin() + index);
    return pièce;
}

QSize Superposition::AvecMarges(QSize taille) const
{
    const auto marges = contentsMargins();
    return taille + QSize{marges.left() + marges.right(), marges.top() + marges.bottom()};
}

QSize Superposition::sizeHint() const
{
    QSize taille = tailleMinimale;
    for (auto* pièce : pièces_)
        taille = taille.expandedTo(pièce->sizeHint());
    return AvecMarges(taille);
}

QSize Superposition::minimumSize() const
{
    QSize taille = tailleMinimale;
    for (auto* pièce : pièces_)
        taille = taille.expandedTo(pièce->minimumSize());
    return AvecMarges(taille);
}

QSize Superposition::maximumSize() const
{
    return tailleMinimale.isValid() ? QLayout::maximumSize() : Plafond(*this, QLayout::maximumSize());
}

bool Superposition::hasHeightForWidth() const
{
    return std::any_of(pièces_.begin(), pièces_.end(), [](auto* pièce) { return pièce->hasHeightForWidth(); });
}

int Superposition::heightForWidth(int largeur) const
{
    const auto marges = contentsMargins();
    const int intérieure = largeur - marges.left() - marges.right();
    int hauteur = tailleMinimale.height();
    for (auto* pièce : pièces_)
        hauteur = std::max(hauteur,
                           pièce->hasHeightForWidth() ? pièce->heightForWidth(intérieure) : pièce->sizeHint().height());
    return hauteur + marges.top() + marges.bottom();
}

Qt::Orientations Superposition::expandingDirections() const
{
    Qt::Orientations directions;
    for (auto* pièce : pièces_)
        directions |= pièce->expandingDirections();
    return directions;
}

void Superposition::setGeometry(const QRect& place)
{
    QLayout::setGeometry(place);
    const auto intérieur = place.marginsRemoved(contentsMargins());
    for (auto* pièce : pièces_)
        pièce->setGeometry(intérieur);
}

void PlacementLibre::Ajouter(Vue& vue)
{
    Superposition::Ajouter(vue.widget);
    vue.placeur = this;
    vues_.push_back(&vue);
}

void PlacementLibre::Placer(Vue& vue)
{
    if (const auto* dessous = vue.élément.PoséSur(); dessous != nullptr) {
        if (const auto* autre = hôte_.VueDe(*dessous); autre != nullptr && autre->widget != nullptr)
            PoserSur(vue, *autre->widget);
        return;
    }
    vue.widget->setGeometry(vue.PlaceLibre().translated(Coin()));
    vue.NoterTailleLibre();
}

int MoitiéDe(const QWidget& widget)
{
    return widget.height() / 2;
}

void PlacementLibre::PoserSur(Vue& vue, const QWidget& dessous)
{
    static constexpr int EcartADroite = 100; // twips
    auto& dessus = *vue.widget;
    QRect place{dessus.parentWidget()->mapFromGlobal(dessous.mapToGlobal(QPoint{0, 0})), dessous.size()};
    const int moitié = MoitiéDe(dessous);
    switch (vue.élément.PartPosée()) {
    case Part::Tout:
        break;
    case Part::MoitiéHaute:
        place.setHeight(moitié);
        break;
    case Part::MoitiéBasse:
        place.setTop(place.top() + moitié);
        break;
    case Part::ADroite:
        place.moveLeft(place.right() + 1 + EnPixels(EcartADroite, hôte_.Echelle()));
        place.setWidth(dessus.sizeHint().width());
        break;
    }
    dessus.setGeometry(place);
    dessus.raise();
    vue.NoterPlace(place.translated(-Coin()));
}

QSize PlacementLibre::sizeHint() const
{
    QRect tout;
    for (const auto* vue : vues_) {
        if (vue->élément.PoséSur() == nullptr)
            tout |= vue->PlaceLibre();
    }
    return {tout.right() + 1, tout.bottom() + 1};
}

void PlacementLibre::setGeometry(const QRect& place)
{
    QLayout::setGeometry(place); // NOLINT(bugprone-parent-virtual-call): the children have places of their own
    for (auto* vue : vues_)
        Placer(*vue);
}

} // namespace tirelune
