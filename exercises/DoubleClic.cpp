#include "exercises/DoubleClic.h"

#include "core/Ecran.h"

namespace tirelune {

void RefuserDoubleClic(RichTextBox& boîte, VueTexte message)
{
    auto& écran = boîte.EcranDe();
    écran.ApplicationDe().Avertir(Texte{message});
    if (écran.EstChargé())
        écran.ApplicationDe().état.CorrectionEnCours = true;
}

void EffacerSélectionRefusée(RichTextBox& boîte)
{
    auto& refusée = boîte.EcranDe().ApplicationDe().état.CorrectionEnCours;
    if (!refusée)
        return;
    refusée = false;
    boîte.SelLength(0);
}

} // namespace tirelune
