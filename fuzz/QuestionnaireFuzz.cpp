// Any bytes as a questionnaire in play, both with the text out of sight and in view. Whoever ticks as the file says is
// always right, and the mark is the share of the right answers.
#include "TableEcrans.h"
#include "core/FichierChamps.h"
#include "exercises/comprehension/frmQuestionnaire1.h"
#include "followup/GrilleRésultats.h"
#include "followup/Notes.h"
#include "followup/frmExercices.h"
#include "fuzz/Gestes.h"

#include <cmath>

using namespace tirelune;

namespace {

constexpr int QuestionsMaximum = 12;

// Whether the choices shown can be ticked as the file wants them.
bool Cocher(frmQuestionnaire1& écran, int question, bool bien)
{
    bool possible = true;
    for (int i = 0; i < écran.chkRéponse.Nombre(); ++i) {
        if (!écran.chkRéponse(i).Visible)
            continue;
        const double voulu = Valeur(écran.fgQuestions.TextMatrix(question, 2 * i + 2));
        possible = possible && (voulu == 0 || voulu == 1);
        if ((voulu == 1) == bien)
            écran.txtChoix(i).Cliquer(0);
    }
    return possible;
}

void Jouer(frmExercices& choix, int index, bool bien)
{
    choix.lblIndex.Caption = EnTexte(static_cast<long long>(index));
    frmQuestionnaire1 écran{choix};
    écran.Charger();
    if (!écran.EstChargé())
        return; // a questionnaire of empty fields is none
    écran.Dimensionner(12000, 9000);
    écran.Activer();
    if (index == 0) {
        écran.cmdCommencer.Cliquer();
        dynamic_cast<PlateformeFuzz&>(choix.ApplicationDe().plateforme).Passer(std::chrono::milliseconds{1000});
        écran.cmdOk.Cliquer();
        if (!écran.EstChargé())
            return;
    }
    int question = 0;
    bool toutPossible = true;
    for (; écran.EstChargé(); ++question) {
        Exiger(question < QuestionsMaximum);
        const bool possible = Cocher(écran, question, bien);
        toutPossible = toutPossible && possible;
        écran.cmdVérifier.Cliquer();
        if (bien && possible)
            Exiger(écran.lblOuiNon.Caption == u"Bonne Réponse");
        Exiger(écran.lblPoints(1).Caption == EnTexte(static_cast<long long>(question + 1)));
        VérifierEcran(écran);
        écran.cmdVérifier.Cliquer();
    }
    const auto note = LireNote(choix.fgRésultats.TextMatrix(1, index + PremièreColonneNote));
    Exiger(note && *note >= 0 && *note <= 10);
    Exiger(!bien || !toutPossible || *note == 10);
    const double justes = Valeur(écran.lblPoints(0).Caption);
    Exiger(std::abs(*note - justes / question * 10) < 1e-4);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille)
{
    SuiteDOctets suite{{}};
    PlateformeFuzz plateforme{suite};
    plateforme.Poser("Léa.bil", "");
    Application application{plateforme};
    application.état.CheminAppli = DepuisChemin(plateforme.dossier);
    application.état.CheminBilans = application.état.CheminAppli;
    application.état.CheminTexteElève = application.état.CheminAppli + u"/";
    RemplirTable(application);

    frmExercices choix{application};
    choix.Charger();
    choix.cmbNoms.Montrer(0);
    choix.cmdOk.Cliquer();
    choix.rtfTexte.Text(u"Le chat dort.");
    choix.lblTexte.Caption = u" Le chat ";
    for (const int index : {0, 1}) {
        for (const bool bien : {true, false}) {
            plateforme.Poser("Le chat.qst", {reinterpret_cast<const char*>(octets), taille});
            Jouer(choix, index, bien);
        }
    }
    return 0;
}
