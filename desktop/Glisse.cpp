#include "desktop/Glisse.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>

#include <utility>

namespace tirelune {

namespace {

QWidget& SurfaceDe(QWidget& widget)
{
    auto* zone = qobject_cast<QAbstractScrollArea*>(&widget);
    return zone != nullptr ? *zone->viewport() : widget;
}

bool EstDeSouris(const QEvent& événement)
{
    return événement.type() >= QEvent::MouseButtonPress && événement.type() <= QEvent::MouseMove;
}

} // namespace

Glisse::Glisse(const Hôte& hôte, const Vue& vue)
    : QObject(vue.widget), hôte_(hôte), élément_(vue.élément), widget_(*vue.widget), surface_(SurfaceDe(widget_))
{
    surface_.installEventFilter(this);
}

bool Glisse::eventFilter(QObject* /*visé*/, QEvent* événement)
{
    // Of a window that is being destroyed the widgets still tell their end, and the host is no more.
    if (!EstDeSouris(*événement) || hôte_.Fermée())
        return false;
    switch (événement->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto& souris = static_cast<const QMouseEvent&>(*événement);
        Reposer(); // what a wait has swallowed the end of
        pressé_ = souris.button() == Qt::LeftButton && élément_.Enabled;
        prise_ = souris.globalPosition().toPoint();
        return false;
    }
    case QEvent::MouseMove:
        return Bouger(static_cast<const QMouseEvent&>(*événement));
    case QEvent::MouseButtonRelease:
        return Relâcher(static_cast<const QMouseEvent&>(*événement));
    default:
        return false;
    }
}

bool Glisse::Bouger(const QMouseEvent& événement)
{
    if (!pressé_)
        return false;
    const auto écart = événement.globalPosition().toPoint() - prise_;
    if (!emporté_) {
        if (écart.manhattanLength() < QApplication::startDragDistance())
            return false;
        pressé_ = élément_.Prendre();
        if (!pressé_ || hôte_.Fermée())
            return false;
        Emporter();
    }
    if (image_ != nullptr)
        image_->move(widget_.mapTo(widget_.window(), QPoint{0, 0}) + écart);
    return true;
}

void Glisse::Emporter()
{
    // The widget itself lets go where no click comes of it.
    QMouseEvent lâché{QEvent::MouseButtonRelease,
                      QPointF{-1, -1},
                      surface_.mapToGlobal(QPointF{-1, -1}),
                      Qt::LeftButton,
                      Qt::NoButton,
                      Qt::NoModifier};
    surface_.removeEventFilter(this);
    QCoreApplication::sendEvent(&surface_, &lâché);
    surface_.installEventFilter(this);
    emporté_ = true;
    image_ = new QLabel{widget_.window()};
    image_->setAttribute(Qt::WA_TransparentForMouseEvents);
    image_->setPixmap(widget_.grab());
    image_->adjustSize();
    image_->show();
    image_->raise();
    surface_.setCursor(Qt::ClosedHandCursor);
}

bool Glisse::Relâcher(const QMouseEvent& événement)
{
    if (événement.button() != Qt::LeftButton)
        return emporté_;
    pressé_ = false;
    if (!emporté_)
        return false;
    Reposer();
    élément_.Lâcher(Dessous(événement.globalPosition().toPoint()));
    return true;
}

void Glisse::Reposer()
{
    if (!std::exchange(emporté_, false))
        return;
    delete image_;
    surface_.setCursor(Qt::PointingHandCursor);
}

// A gap between two of them belongs to either.
const Elément* Glisse::Dessous(QPoint global) const
{
    static constexpr int Ecart = 10; // pixels
    const auto* fenêtre = widget_.window();
    for (const int décalage : {0, -Ecart, Ecart}) {
        const auto* dessous = fenêtre->childAt(fenêtre->mapFromGlobal(global) + QPoint{0, décalage});
        const auto* vue = dessous != nullptr ? hôte_.VueDuWidget(dessous) : nullptr;
        if (vue != nullptr && vue->élément.Lâcher)
            return &vue->élément;
    }
    return nullptr;
}

} // namespace tirelune
