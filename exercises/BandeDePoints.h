// The strip that shows an exercise's points: gained, " / ", tries or possible.
#pragma once
#include "core/Ecran.h"

namespace tirelune {

// What lblPoints(0), lblPoints(1) and lblPoints(2) are created with: "0" and "0" in red on yellow, then the separator
// in blue on yellow. Size in points.
std::vector<EtatInitial> EtatsDesPoints(double taille = 16);

// The separator stands between the two counts, which are as wide as one another.
Arrangement BandeDePoints(Tableau<Label>& lblPoints);

} // namespace tirelune
