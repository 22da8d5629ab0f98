#include "TableEcrans.h"

#include "core/Application.h"
#include "core/Ecran.h"
#include "exercises/comprehension/frmQuestionnaire1.h"
#include "followup/frmCodeCouleur.h"
#include "followup/frmExercices.h"
#include "followup/frmGestionEleves.h"
#include "followup/frmProgression.h"

namespace {

// A screen that the program opens with itself alone.
template <class E>
std::unique_ptr<Ecran> Seul(Ecran& ouvreur)
{
    return std::make_unique<E>(ouvreur.ApplicationDe());
}

// A screen that works on what the chooser holds.
template <class E>
std::unique_ptr<Ecran> SurLeChoix(Ecran& ouvreur)
{
    return std::make_unique<E>(dynamic_cast<frmExercices&>(ouvreur));
}

} // namespace

void RemplirTable(Application& application)
{
    application.écrans = {
        {"frmCodeCouleur", SurLeChoix<frmCodeCouleur>},       {"frmExercices", Seul<frmExercices>},
        {"frmGestionEleves", Seul<frmGestionEleves>},         {"frmProgression", SurLeChoix<frmProgression>},
        {"frmQuestionnaire1", SurLeChoix<frmQuestionnaire1>},
    };
}
