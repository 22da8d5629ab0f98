// Questionnaires: (1) times the reading of the text, then asks with the text out of sight; (2) asks with the text in
// view, in a frame that the pupil can drag away.
#pragma once
#include "core/Ecran.h"
#include "core/Questionnaire.h"
#include "exercises/BandeDePoints.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmQuestionnaire1 final : public Ecran {
public:
    explicit frmQuestionnaire1(frmExercices& choix);

    Frame frameConsigne{*this, "frameConsigne"};
    TextBox Text1{*this,
                  "Text1",
                  {.Caption = u"Lis bien le texte qui va s'afficher : tu devras ensuite répondre à des questions sans "
                              u"pouvoir le relire.\r\n",
                   .FontSize = 18,
                   .MultiLine = true}};
    Button cmdCommencer{*this, "cmdCommencer", {.Caption = u"Afficher le texte"}};

    RichTextBox rtfTexte{*this, "rtfTexte", {.Visible = false}};
    Button cmdOk{
        *this, "cmdOk", {.Caption = u"Clique ici quand tu as lu tout le texte", .Visible = false, .FontSize = 16}};
    Label lblConseil{*this,
                     "lblConseil",
                     {.Caption = u"Clique sur le cadre gris du questionnaire pour le déplacer.", .Visible = false}};
    Button cmdInitialise{*this, "cmdInitialise", {.Caption = u"Questions disparues ! Clique ici.", .Visible = false}};

    Frame frameQuestions{*this, "frameQuestions", {.Caption = u"   Questionnaire", .Visible = false}};
    Label Label1{*this, "Label1", {.Caption = u"Question N° ", .FontSize = 13, .Gras = true}};
    Label lblNuméro{*this, "lblNuméro", {.Caption = u"1", .FontSize = 13, .Gras = true}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    TextBox txtQuestion{*this, "txtQuestion", {.FontSize = 15, .Gras = true, .MultiLine = true}};
    Tableau<CheckBox> chkRéponse{*this, "chkRéponse", ChoixParQuestion};
    Tableau<TextBox> txtChoix{
        *this,
        "txtChoix",
        {u"C'est vrai.", u"C'est faux.", u"Le texte ne le dit pas.", u"", u""},
        {.FontSize = 14},
    };
    Label lblOuiNon{*this,
                    "lblOuiNon",
                    {.Visible = false, .FontSize = 16, .Gras = true, .Centré = true, .SensDesCouleurs = Sens::Verdict}};
    Button cmdVérifier{*this, "cmdVérifier", u"&Vérifier"};
    Button cmdQuitter{*this, "cmdQuitter", u"&Quitter"};

    Grid fgQuestions{*this, "fgQuestions", QuestionsMaximum, ChampsParQuestion};

private:
    void Load() override;
    void Resize() override;
    Arrangement Disposer() override;

    void cmdCommencer_Click();
    void cmdOk_Click();
    void cmdVérifier_Click();
    void cmdQuitter_Click();
    void txtChoix_Click(int i);
    void frameQuestions_MouseMove(double x, double y);
    void frameQuestions_DragDrop(const Elément* cible, double x, double y);

    [[nodiscard]] bool TexteEnVue() const; // Questionnaire (2)
    void CommencerTexteEnVue();
    void PlacerQuestions();
    void EnregistrerVitesse(double secondes);
    void MontrerQuestionsSansTexte();
    void ChargerQuestions();
    void AfficherQuestion(int rangée);
    void CorrigerQuestion();
    [[nodiscard]] bool RéponseJuste(int rangée) const;
    [[nodiscard]] bool EstDernièreQuestion() const;

    frmExercices& choix_;
};

} // namespace tirelune
