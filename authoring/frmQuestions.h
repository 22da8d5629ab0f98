// The questionnaire of the text in the editor: at most 12 questions of 5 choices, one on the screen at a time. Each
// move from one to another saves them.
#pragma once
#include "authoring/FichierTenu.h"
#include "core/Ecran.h"
#include "core/Questionnaire.h"

namespace tirelune {

class frmQuestions final : public Ecran {
public:
    explicit frmQuestions(Application& application);

    Frame frameQuestion{*this, "frameQuestion", {.Caption = u"Question", .BackColor = Couleur::Rvb(0xF6, 0xA0, 0x4D)}};
    Label Label1{*this, "Label1", u"Question N° "};
    Label lblNuméro{*this, "lblNuméro", {.Caption = u"1", .Gras = true}};
    TextBox txtQuestion{*this, "txtQuestion", {.Libellé = u"Question", .MultiLine = true, .PourFichier = true}};
    Frame frameChoix{*this,
                     "frameChoix",
                     {.Caption = u"Choix : cochez les bonnes réponses", .BackColor = Couleur::Rvb(0x4F, 0x9B, 0xE0)}};
    Tableau<TextBox> txtChoix;
    Tableau<CheckBox> chkRéponse{
        *this,
        "chkRéponse",
        ChoixParQuestion,
        {.ToolTipText = u" Il est possible que 2 ou 3 réponses soient autorisées, suivant vos libellés. ",
         .Libellé = u"Bonne réponse"}};
    Button cmdSuivante{
        *this, "cmdSuivante", {.Caption = u"Question &suivante", .ToolTipText = u" Pas plus de 12 questions ! "}};
    Button cmdPrécédente{*this, "cmdPrécédente", u"Question &précédente"};
    Button cmdInsérer{*this,
                      "cmdInsérer",
                      {.Caption = u"&Insérer une question", .ToolTipText = u" ... s'il y a moins de 12 questions ! "}};
    Button cmdSupprimer{*this, "cmdSupprimer", u"Suppri&mer une question"};
    Button cmdQuitter{*this, "cmdQuitter", u"&Quitter"};
    Grid fgQuestions{*this, "fgQuestions", QuestionsMaximum, ChampsParQuestion};

private:
    void Load() override;
    void Activate() override;
    void QueryUnload() override;
    Arrangement Disposer() override;

    void cmdSuivante_Click();
    void cmdPrécédente_Click();
    void cmdInsérer_Click();
    void cmdSupprimer_Click();
    void cmdQuitter_Click();

    void ChargerQuestions();
    [[nodiscard]] bool EnregistrerQuestions();
    void Ranger();
    void Montrer(int rangée);
    void CompléterChoix();
    void DéplacerRangée(int source, int cible);
    [[nodiscard]] int Rangée() const { return Compte(lblNuméro) - 1; }

    FichierTenu fichier_;
};

} // namespace tirelune
