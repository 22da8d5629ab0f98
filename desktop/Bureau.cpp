#include "desktop/Bureau.h"

#include "desktop/Apparence.h"

#include <QFont>
#include <QPalette>

#include <algorithm>

namespace tirelune {

bool EstContrastée(const QPalette& palette)
{
    static constexpr double ContrasteEntier = 20; // of 21; the toolkit's usual grey has 18
    return Contraste(palette.color(QPalette::Window), palette.color(QPalette::WindowText)) >= ContrasteEntier &&
           Contraste(palette.color(QPalette::Base), palette.color(QPalette::Text)) >= ContrasteEntier;
}

double AgrandissementDesLettres(const QFont& police, double pointsParPouce)
{
    static constexpr double PlusGrandeUsuelle = 12; // points: what desktops come with is no larger
    static constexpr double PointsUsuels = 96;
    static constexpr double Maximum = 2;
    const double lettres = std::max(1.0, police.pointSizeF() / PlusGrandeUsuelle);
    return std::clamp(lettres * pointsParPouce / PointsUsuels, 1.0, Maximum);
}

} // namespace tirelune
