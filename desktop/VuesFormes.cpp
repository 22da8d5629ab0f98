// Scroll bars and shapes.
#include "desktop/Apparence.h"
#include "desktop/Conversions.h"
#include "desktop/Vues.h"

#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace tirelune {

namespace {

class VueDéfilement final : public Vue {
public:
    VueDéfilement(Hôte& hôte, ScrollBar& barre, QWidget* parent)
        : Vue(hôte, barre, new QScrollBar{Qt::Vertical, parent}),
          barre_(barre),
          défilement_(static_cast<QScrollBar&>(*widget))
    {
        QObject::connect(&défilement_, &QScrollBar::valueChanged, [this](int valeur) {
            if (Agissante())
                barre_.Déplacer(valeur);
        });
    }

    void Synchroniser() override
    {
        const QSignalBlocker silence{défilement_};
        défilement_.setRange(barre_.Min, barre_.Max);
        défilement_.setValue(barre_.Value);
        Vue::Synchroniser();
    }

private:
    ScrollBar& barre_;
    QScrollBar& défilement_;
};

// A coloured rectangle; the mouse goes through to what lies below.
class Surface final : public QWidget {
public:
    explicit Surface(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_TransparentForMouseEvents); }
    QColor fond;
    QColor bord;

protected:
    void paintEvent(QPaintEvent* /*événement*/) override
    {
        QPainter peintre{this};
        if (fond.isValid())
            peintre.fillRect(rect(), fond);
        if (!bord.isValid())
            return;
        peintre.setPen(bord);
        peintre.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

class VueRectangle final : public Vue {
public:
    VueRectangle(Hôte& hôte, Rectangle& rectangle, QWidget* parent)
        : Vue(hôte, rectangle, new Surface{parent}), rectangle_(rectangle), surface_(static_cast<Surface&>(*widget))
    {
    }

    void Synchroniser() override
    {
        surface_.fond = EnQColor(rectangle_.FillColor, {});
        surface_.bord = EnQColor(rectangle_.BorderColor, {});
        surface_.update();
        Vue::Synchroniser();
    }

private:
    Rectangle& rectangle_;
    Surface& surface_;
};

// A line that stands among other elements.
class VueFilet final : public Vue {
public:
    VueFilet(Hôte& hôte, Line& trait, QWidget* parent)
        : Vue(hôte, trait, new Surface{parent}), trait_(trait), surface_(static_cast<Surface&>(*widget))
    {
    }

    void Synchroniser() override
    {
        surface_.fond = EnQColor(trait_.BorderColor, Teinte::Encre);
        surface_.setFixedHeight(std::max(1, trait_.BorderWidth()));
        surface_.update();
        Vue::Synchroniser();
    }

private:
    Line& trait_;
    Surface& surface_;
};

} // namespace

std::unique_ptr<Vue> Créer(Hôte& hôte, ScrollBar& barre, QWidget* parent)
{
    return std::make_unique<VueDéfilement>(hôte, barre, parent);
}

std::unique_ptr<Vue> Créer(Hôte& hôte, Rectangle& rectangle, QWidget* parent)
{
    return std::make_unique<VueRectangle>(hôte, rectangle, parent);
}

std::unique_ptr<Vue> Créer(Hôte& hôte, Line& trait, QWidget* parent)
{
    return std::make_unique<VueFilet>(hôte, trait, parent);
}

} // namespace tirelune
