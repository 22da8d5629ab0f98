#include "desktop/Anneau.h"

#include "desktop/Apparence.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>

namespace tirelune {

namespace {

constexpr int Epaisseur = 4; // pixels around the element

// Above what it surrounds, and that much larger.
class Pose final : public QProxyStyle {
public:
    int styleHint(StyleHint question, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* réponse) const override
    {
        if (question == SH_FocusFrame_Mask)
            return 0; // it is round, and comes a little over the element
        return question == SH_FocusFrame_AboveWidget ? 1 : QProxyStyle::styleHint(question, option, widget, réponse);
    }
    int pixelMetric(PixelMetric mesure, const QStyleOption* option, const QWidget* widget) const override
    {
        return mesure == PM_FocusFrameHMargin || mesure == PM_FocusFrameVMargin
                   ? Epaisseur
                   : QProxyStyle::pixelMetric(mesure, option, widget);
    }
};

bool MèneAilleurs(const QKeyEvent& touche)
{
    switch (touche.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true;
    default:
        return false;
    }
}

} // namespace

class Anneau::Cadre final : public QFocusFrame {
public:
    Cadre()
    {
        auto* pose = new Pose;
        pose->setParent(this);
        setStyle(pose);
    }

protected:
    void paintEvent(QPaintEvent* /*événement*/) override
    {
        static constexpr double Coin = 8;
        QPainter peintre{this};
        peintre.setRenderHint(QPainter::Antialiasing);
        const auto place = QRectF{rect()}.adjusted(2.5, 2.5, -2.5, -2.5);
        for (const auto& trait : {QPen{Qt::white, 5}, QPen{Teinte::Anneau, 3}}) { // seen on any ground
            peintre.setPen(trait);
            peintre.drawRoundedRect(place, Coin, Coin);
        }
    }
};

Anneau::~Anneau()
{
    delete cadre_;
}

void Anneau::Voir(const QEvent& événement)
{
    const bool clic = événement.type() == QEvent::MouseButtonPress;
    const bool touche = événement.type() == QEvent::KeyPress && MèneAilleurs(static_cast<const QKeyEvent&>(événement));
    if (!clic && !touche)
        return;
    voulu_ = touche;
    Montrer();
}

void Anneau::Suivre(QWidget* foyer)
{
    // A list in which something can be typed gives its keys to the field inside.
    auto* liste = foyer != nullptr ? qobject_cast<QComboBox*>(foyer->parentWidget()) : nullptr;
    foyer_ = liste != nullptr ? liste : foyer;
    Montrer();
}

const QWidget* Anneau::Autour() const
{
    return cadre_ != nullptr && cadre_->isVisible() ? cadre_->widget() : nullptr;
}

void Anneau::Montrer()
{
    const bool montré =
        voulu_ && foyer_ != nullptr && !foyer_->isWindow() && foyer_->window()->windowType() != Qt::Popup;
    if (!montré) {
        if (cadre_ != nullptr)
            cadre_->setWidget(nullptr);
        return;
    }
    if (cadre_ == nullptr)
        cadre_ = new Cadre;
    cadre_->setWidget(foyer_);
}

} // namespace tirelune
