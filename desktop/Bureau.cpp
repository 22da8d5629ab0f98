#include "desktop/Bureau.h"

#include <QFont>

#include <algorithm>

namespace tirelune {

double AgrandissementDesLettres(const QFont& police, double pointsParPouce)
{
    static constexpr double PlusGrandeUsuelle = 12; // points: what desktops come with is no larger
    static constexpr double PointsUsuels = 96;
    static constexpr double Maximum = 2;
    const double lettres = std::max(1.0, police.pointSizeF() / PlusGrandeUsuelle);
    return std::clamp(lettres * pointsParPouce / PointsUsuels, 1.0, Maximum);
}

} // namespace tirelune
