// What hands can do on a screen, whatever it is, and what holds on every screen afterwards.
#pragma once
#include "core/Ecran.h"
#include "fuzz/Plateforme.h"
#include "fuzz/SuiteDOctets.h"

namespace tirelune {

// One gesture of the bytes' choosing: a click, a key, a drag, a tick, another size, the close box.
void FaireUnGeste(Ecran& écran, PlateformeFuzz& plateforme, SuiteDOctets& suite);

void VérifierEcran(const Ecran& écran);

} // namespace tirelune
