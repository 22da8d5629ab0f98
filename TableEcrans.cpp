#include "TableEcrans.h"

#include "authoring/frmEnseignant.h"
#include "core/Application.h"
#include "core/Ecran.h"
#include "core/frmTirelune.h"
#include "exercises/comprehension/frmQuestionnaire1.h"
#include "followup/frmExercices.h"

namespace {

// A screen that the program opens with itself alone.
template <class E>
std::unique_ptr<Ecran> Seul(Ecran& ouvreur)
{
    return std::make_unique<E>(ouvreur.ApplicationDe());
}

// A screen that works on the lists of the first screen.
template <class E>
std::unique_ptr<Ecran> SurLAccueil(Ecran& ouvreur)
{
    return std::make_unique<E>(dynamic_cast<frmTirelune&>(ouvreur));
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
        {"frmEnseignant", SurLAccueil<frmEnseignant>},
        {"frmExercices", Seul<frmExercices>},
        {"frmQuestionnaire1", SurLeChoix<frmQuestionnaire1>},
    };
}
