#include "TableEcrans.h"

#include "authoring/frmEnseignant.h"
#include "authoring/frmQuestions.h"
#include "authoring/frmRechercher.h"
#include "authoring/lexicon/frmLexique.h"
#include "core/Application.h"
#include "core/Ecran.h"
#include "core/frmTirelune.h"
#include "exercises/comprehension/frmClosures.h"
#include "exercises/comprehension/frmQuestionnaire1.h"
#include "exercises/comprehension/frmTexteMasqué.h"
#include "exercises/memory/frmAbsent.h"
#include "exercises/memory/frmPhotographier.h"
#include "exercises/memory/frmPoursuite.h"
#include "exercises/memory/frmSérie.h"
#include "exercises/memory/frmTronqué.h"
#include "exercises/memory/frmTrouveMoi.h"
#include "exercises/order/frmLignesEnDésordre.h"
#include "exercises/order/frmMotsEnDésordre.h"
#include "exercises/order/frmMotsInversés.h"
#include "exercises/order/frmPhrasesEnDésordre.h"
#include "exercises/spelling/frmAlphabet.h"
#include "exercises/spelling/frmEcrireMot.h"
#include "exercises/spelling/frmEcrirePhrase.h"
#include "exercises/spelling/frmJeCorrige.h"
#include "exercises/spelling/frmMotsCoupés.h"
#include "exercises/spelling/frmPendu.h"
#include "exercises/vocabulary/frmContraires.h"
#include "exercises/vocabulary/frmDico.h"
#include "exercises/vocabulary/frmGenre.h"
#include "exercises/vocabulary/frmSynonymes.h"
#include "exercises/vocabulary/frmThèmes.h"
#include "exercises/vocabulary/frmThèmes2.h"
#include "exercises/vocabulary/frmTrous.h"
#include "followup/frmCodeCouleur.h"
#include "followup/frmExercices.h"
#include "followup/frmGestionEleves.h"
#include "followup/frmProgression.h"

namespace tirelune {

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
    auto& choix = dynamic_cast<frmExercices&>(ouvreur);
    auto écran = std::make_unique<E>(choix);
    choix.Présenter(*écran);
    return écran;
}

// A screen that works on the text of the editor.
template <class E>
std::unique_ptr<Ecran> SurLEditeur(Ecran& ouvreur)
{
    auto& éditeur = dynamic_cast<frmEnseignant&>(ouvreur);
    return std::make_unique<E>(éditeur.ApplicationDe(), éditeur.rtfTexte, éditeur.rtfSauve);
}

} // namespace

void RemplirTable(Application& application)
{
    auto& table = application.écrans;
    table["frmAbsent"] = SurLeChoix<frmAbsent>;
    table["frmAlphabet"] = SurLeChoix<frmAlphabet>;
    table["frmClosures"] = SurLeChoix<frmClosures>;
    table["frmCodeCouleur"] = SurLeChoix<frmCodeCouleur>;
    table["frmContraires"] = SurLeChoix<frmContraires>;
    table["frmDico"] = SurLeChoix<frmDico>;
    table["frmEcrireMot"] = SurLeChoix<frmEcrireMot>;
    table["frmEcrirePhrase"] = SurLeChoix<frmEcrirePhrase>;
    table["frmEnseignant"] = SurLAccueil<frmEnseignant>;
    table["frmExercices"] = Seul<frmExercices>;
    table["frmGenre"] = SurLeChoix<frmGenre>;
    table["frmGestionEleves"] = Seul<frmGestionEleves>;
    table["frmLexique"] = Seul<frmLexique>;
    table["frmLignesEnDésordre"] = SurLeChoix<frmLignesEnDésordre>;
    table["frmMotsCoupés"] = SurLeChoix<frmMotsCoupés>;
    table["frmJeCorrige"] = SurLeChoix<frmJeCorrige>;
    table["frmMotsEnDésordre"] = SurLeChoix<frmMotsEnDésordre>;
    table["frmMotsInversés"] = SurLeChoix<frmMotsInversés>;
    table["frmPendu"] = SurLeChoix<frmPendu>;
    table["frmPhotographier"] = SurLeChoix<frmPhotographier>;
    table["frmPhrasesEnDésordre"] = SurLeChoix<frmPhrasesEnDésordre>;
    table["frmPoursuite"] = SurLeChoix<frmPoursuite>;
    table["frmProgression"] = SurLeChoix<frmProgression>;
    table["frmQuestionnaire1"] = SurLeChoix<frmQuestionnaire1>;
    table["frmQuestions"] = Seul<frmQuestions>;
    table["frmRechercher"] = SurLEditeur<frmRechercher>;
    table["frmSynonymes"] = SurLeChoix<frmSynonymes>;
    table["frmSérie"] = SurLeChoix<frmSérie>;
    table["frmTexteMasqué"] = SurLeChoix<frmTexteMasqué>;
    table["frmThèmes"] = SurLeChoix<frmThèmes>;
    table["frmThèmes2"] = SurLeChoix<frmThèmes2>;
    table["frmTronqué"] = SurLeChoix<frmTronqué>;
    table["frmTrous"] = SurLeChoix<frmTrous>;
    table["frmTrouveMoi"] = SurLeChoix<frmTrouveMoi>;
}

} // namespace tirelune
