#include "desktop/VueToile.h"

#include "desktop/Conversions.h"

#include <QPainter>

#include <algorithm>

namespace tirelune {

VueToile::VueToile(Hôte& hôte, QWidget* parent, QSize étendue) : QWidget(parent), hôte_(hôte), unités_(étendue)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

double VueToile::EchelleDesPlaces() const
{
    if (unités_.isEmpty())
        return 1;
    return std::max(0.01, std::min(static_cast<double>(width()) / unités_.width(),
                                   static_cast<double>(height()) / unités_.height()));
}

QPointF VueToile::Origine() const
{
    const auto étendue = QSizeF{unités_} * EchelleDesPlaces();
    return {(width() - étendue.width()) / 2, (height() - étendue.height()) / 2};
}

void VueToile::Ajouter(Vue& vue)
{
    vue.placeur = this;
    vues_.push_back(&vue);
}

void VueToile::Placer(Vue& vue)
{
    const double facteur = EchelleDesPlaces();
    const auto& élément = vue.élément;
    const auto naturelle = vue.widget->sizeHint();
    const QSizeF taille{élément.Width > 0 ? élément.Width * facteur : naturelle.width(),
                        élément.Height > 0 ? élément.Height * facteur : naturelle.height()};
    const QPointF place = Origine() + QPointF(élément.Left, élément.Top) * facteur;
    vue.widget->setGeometry(QRectF{place, taille}.toRect());
}

void VueToile::resizeEvent(QResizeEvent* /*événement*/)
{
    for (auto* vue : vues_) {
        Placer(*vue);
        hôte_.Marquer(*vue); // the letters have another size
    }
}

void VueToile::paintEvent(QPaintEvent* /*événement*/)
{
    QPainter peintre{this};
    peintre.setRenderHint(QPainter::Antialiasing);
    const auto origine = Origine();
    const double facteur = EchelleDesPlaces();
    for (const auto* trait : traits_) {
        if (!trait->Visible)
            continue;
        peintre.setPen(QPen{EnQColor(trait->BorderColor, Qt::black), std::max(1.0, trait->BorderWidth * facteur),
                            Qt::SolidLine, Qt::RoundCap});
        peintre.drawLine(origine + QPointF(trait->X1, trait->Y1) * facteur,
                         origine + QPointF(trait->X2, trait->Y2) * facteur);
    }
}

} // namespace tirelune
