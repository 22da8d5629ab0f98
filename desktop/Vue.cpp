#include "desktop/Vue.h"

#include "desktop/Apparence.h"
#include "desktop/Conversions.h"

namespace tirelune {

Vue::Vue(Hôte& hôte, Elément& élément_, QWidget* widget_) : élément(élément_), widget(widget_), hôte_(hôte)
{
    if (widget == nullptr)
        return;
    widget->setObjectName(EnQString(élément.Nom));
}

Vue::~Vue() = default;

bool Vue::Agissante() const
{
    return !hôte_.Fermée();
}

int Vue::Pixels(int twips) const
{
    return EnPixels(twips, hôte_.Echelle());
}

int Vue::Twips(int pixels) const
{
    return EnTwips(pixels, hôte_.Echelle());
}

void Vue::ColorerFond(const QColor& usuelle)
{
    auto palette = widget->palette();
    const auto fond = EnQColor(élément.BackColor, usuelle);
    const auto encre = EnQColor(élément.ForeColor, EncreSur(fond, Teinte::Encre));
    if (palette.color(QPalette::Active, QPalette::Base) == fond &&
        palette.color(QPalette::Active, QPalette::Text) == encre)
        return;
    palette.setColor(QPalette::Base, fond);
    palette.setColor(QPalette::Text, encre);
    widget->setPalette(palette);
}

QSize Vue::TailleLibre() const
{
    const auto* label = dynamic_cast<const Label*>(&élément);
    const bool auto_ = label != nullptr && label->AutoSize;
    const auto naturelle = widget->sizeHint();
    QSize taille{élément.Width, élément.Height};
    if (auto_ || taille.width() == 0 || taille.width() == notée_.width())
        taille.setWidth(Twips(naturelle.width()));
    if (auto_ || taille.height() == 0 || taille.height() == notée_.height())
        taille.setHeight(Twips(naturelle.height()));
    return taille;
}

QRect Vue::PlaceLibre() const
{
    const auto taille = TailleLibre();
    return {Pixels(élément.Left), Pixels(élément.Top), Pixels(taille.width()), Pixels(taille.height())};
}

void Vue::NoterTailleLibre()
{
    const auto taille = TailleLibre();
    if (taille.width() != élément.Width)
        notée_.setWidth(taille.width());
    if (taille.height() != élément.Height)
        notée_.setHeight(taille.height());
    élément.Width.Noter(taille.width());
    élément.Height.Noter(taille.height());
}

void Vue::NoterPlace(const QRect& place)
{
    élément.Left.Noter(Twips(place.x()));
    élément.Top.Noter(Twips(place.y()));
    élément.Width.Noter(Twips(place.width()));
    élément.Height.Noter(Twips(place.height()));
}

void Vue::Synchroniser()
{
    const double agrandissement = placeur != nullptr ? placeur->EchelleDesPlaces() : hôte_.Echelle();
    const auto police =
        PolicePour(élément.Police, points > 0 ? points : élément.FontSize(), élément.Gras, agrandissement);
    if (widget->font() != police)
        widget->setFont(police);
    if (const auto bulle = EnQString(élément.ToolTipText()).trimmed(); bulle != widget->toolTip())
        widget->setToolTip(bulle);
    if (widget->testAttribute(Qt::WA_ForceDisabled) == élément.Enabled)
        widget->setEnabled(élément.Enabled);
    if (placeur != nullptr)
        placeur->Placer(*this);
    // Said once at least, or the toolkit shows what comes into a window that is shown already.
    if (widget->isHidden() == élément.Visible || !widget->testAttribute(Qt::WA_WState_ExplicitShowHide))
        widget->setVisible(élément.Visible);
}

} // namespace tirelune
