#include "desktop/VueToile.h"

#include "desktop/Conversions.h"

#include <QPainter>

#include <algorithm>

namespace tirelune {

VueToile::VueToile(QWidget* parent, QSize étendue_) : QWidget(parent), unités_(étendue_)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

double VueToile::Facteur() const
{
    if (unités_.isEmpty())
        return 1;
    return std::max(0.01, std::min(static_cast<double>(width()) / unités_.width(),
                                   static_cast<double>(height()) / unités_.height()));
}

QPointF VueToile::Origine() const
{
    const auto étendue_ = QSizeF{unités_} * Facteur();
    return {(width() - étendue_.width()) / 2, (height() - étendue_.height()) / 2};
}

void VueToile::Placer()
{
    const auto origine = Origine();
    const double facteur = Facteur();
    for (auto* vue : vues_) {
        const auto& élément = vue->élément;
        const auto naturelle = vue->widget->sizeHint();
        const QSizeF taille{élément.Width > 0 ? élément.Width * facteur : naturelle.width(),
                            élément.Height > 0 ? élément.Height * facteur : naturelle.height()};
        const QPointF coin = origine + QPointF(élément.Left, élément.Top) * facteur;
        vue->widget->setGeometry(QRectF{coin, taille}.toRect());
    }
}

void VueToile::resizeEvent(QResizeEvent* /*événement*/)
{
    Placer();
    if (étendue)
        étendue();
}

void VueToile::paintEvent(QPaintEvent* /*événement*/)
{
    QPainter peintre{this};
    peintre.setRenderHint(QPainter::Antialiasing);
    const auto origine = Origine();
    const double facteur = Facteur();
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
