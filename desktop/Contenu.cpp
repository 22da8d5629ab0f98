#include "desktop/Contenu.h"

#include "desktop/Apparence.h"
#include "desktop/Conversions.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace tirelune {

Contenu::Contenu(Ecran& écran, QWidget* parent) : QWidget(parent), écran_(écran), plan_(new QWidget{this}) {}

void Contenu::Couvrir(Vue& couverture)
{
    couverture.widget->hide();
    couvertures_.push_back(&couverture);
}

bool Contenu::EstCouverture(const Vue& vue) const
{
    return std::find(couvertures_.begin(), couvertures_.end(), &vue) != couvertures_.end();
}

void Contenu::MontrerCouvertures()
{
    bool couvert = false;
    for (auto* une : couvertures_) {
        if (!une->élément.Visible)
            continue;
        couvert = true;
        une->widget->setGeometry(rect());
        une->widget->raise();
    }
    // What is covered is out of the keyboard's reach too.
    plan_->setEnabled(!couvert);
}

QSize Contenu::sizeHint() const
{
    auto taille = plan_->sizeHint();
    for (const auto* une : couvertures_)
        taille = taille.expandedTo(une->widget->sizeHint());
    return taille;
}

void Contenu::paintEvent(QPaintEvent* événement)
{
    QPainter peintre{this};
    peintre.setClipRect(événement->rect());
    peintre.fillRect(événement->rect(), EnQColor(écran_.BackColor, Teinte::Fond));
    Peindre(peintre, écran_.Fond, rect());
    peint();
}

void Contenu::resizeEvent(QResizeEvent* /*événement*/)
{
    plan_->setGeometry(rect());
    for (auto* une : couvertures_)
        une->widget->setGeometry(rect());
    tailleChangée();
}

void Contenu::mousePressEvent(QMouseEvent* événement)
{
    cliqué(childAt(événement->position().toPoint()));
}

} // namespace tirelune
