#include "desktop/Signes.h"

#include "core/RichTextBox.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace tirelune {

namespace {

Signe SigneDuFond(Couleur fond)
{
    if (fond == Vert)
        return Signe::Juste;
    if (fond == Rouge)
        return Signe::Faux;
    return fond == Jaune ? Signe::Choisi : Signe::Aucun;
}

Signe SigneDeLEncre(Couleur encre)
{
    if (encre == VertFoncé)
        return Signe::Juste;
    return encre == Rouge ? Signe::Faux : Signe::Aucun;
}

} // namespace

Signe SigneDe(const Elément& élément)
{
    if (const auto* label = dynamic_cast<const Label*>(&élément); label != nullptr) {
        if (label->Verrouillé)
            return Signe::Verrou;
        switch (label->SensDesCouleurs) {
        case Sens::Réponse:
            return SigneDuFond(label->BackColor);
        case Sens::Verdict:
            return SigneDeLEncre(label->ForeColor);
        case Sens::Rien:
            return Signe::Aucun;
        }
    }
    if (const auto* ligne = dynamic_cast<const RichTextBox*>(&élément); ligne != nullptr && ligne->UneLigne)
        return élément.BackColor == Bleu ? Signe::Choisi : SigneDuFond(élément.BackColor);
    if (dynamic_cast<const TextBox*>(&élément) != nullptr)
        return SigneDuFond(élément.BackColor);
    return Signe::Aucun;
}

void PeindreSigne(QPainter& peintre, Signe signe, const QRectF& place, const QColor& encre)
{
    const double côté = std::min(place.width(), place.height());
    const auto point = [centre = place.center(), côté](double x, double y) {
        return centre + QPointF{(x - 0.5) * côté, (y - 0.5) * côté};
    };
    peintre.setPen(QPen{encre, côté * 0.14, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    peintre.setBrush(Qt::NoBrush);
    switch (signe) {
    case Signe::Juste:
        peintre.drawPolyline(QPolygonF{{point(0.16, 0.56), point(0.4, 0.8), point(0.84, 0.22)}});
        break;
    case Signe::Faux:
        peintre.drawLine(point(0.22, 0.22), point(0.78, 0.78));
        peintre.drawLine(point(0.22, 0.78), point(0.78, 0.22));
        break;
    case Signe::Choisi:
        peintre.setBrush(encre);
        peintre.drawPolygon(QPolygonF{{point(0.7, 0.24), point(0.32, 0.5), point(0.7, 0.76)}});
        break;
    case Signe::Verrou: { // a padlock
        peintre.drawArc(QRectF{point(0.3, 0.1), point(0.7, 0.66)}, 0, 180 * 16);
        peintre.setBrush(encre);
        peintre.setPen(Qt::NoPen);
        peintre.drawRoundedRect(QRectF{point(0.16, 0.42), point(0.84, 0.92)}, côté * 0.1, côté * 0.1);
        break;
    }
    case Signe::Aucun:
        break;
    }
}

} // namespace tirelune
