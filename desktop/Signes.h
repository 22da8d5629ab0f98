// The signs that say without colour what an element's told colours say.
#pragma once
#include "core/Elements.h"

class QColor;
class QPainter;
class QRectF;

namespace tirelune {

enum class Signe { Aucun, Juste, Faux, Choisi, Verrou };

[[nodiscard]] Signe SigneDe(const Elément& élément);

// In the middle of the place, as large as it has room for.
void PeindreSigne(QPainter& peintre, Signe signe, const QRectF& place, const QColor& encre);

} // namespace tirelune
