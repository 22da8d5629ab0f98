#include "TableEcrans.h"

#include "core/Application.h"
#include "core/Ecran.h"
#include "exercises/comprehension/frmClosures.h"
#include "exercises/comprehension/frmQuestionnaire1.h"
#include "exercises/comprehension/frmTexteMasqué.h"
#include "exercises/memory/frmPhotographier.h"
#include "exercises/memory/frmPoursuite.h"
#include "exercises/memory/frmSérie.h"
#include "exercises/spelling/frmPendu.h"
#include "exercises/vocabulary/frmTrous.h"
#include "followup/frmExercices.h"

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
        {"frmClosures", SurLeChoix<frmClosures>},   {"frmExercices", Seul<frmExercices>},
        {"frmPendu", SurLeChoix<frmPendu>},         {"frmPhotographier", SurLeChoix<frmPhotographier>},
        {"frmPoursuite", SurLeChoix<frmPoursuite>}, {"frmQuestionnaire1", SurLeChoix<frmQuestionnaire1>},
        {"frmSérie", SurLeChoix<frmSérie>},         {"frmTexteMasqué", SurLeChoix<frmTexteMasqué>},
        {"frmTrous", SurLeChoix<frmTrous>},
    };
}
