// A series of at most ten words in a secret order, shown once more with one more word each time; the pupil clicks the
// words in their order. Three series at most, the best one counts.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmSérie final : public Ecran {
public:
    explicit frmSérie(frmExercices& choix);

    Tableau<Label> lblMot{
        *this,
        "lblMot",
        10,
        {.Visible = false, .BackColor = Blanc, .ForeColor = Noir, .FontSize = TailleMots, .Bordure = true}};
    Tableau<Label> lblRéponse{
        *this, "lblRéponse", 10, {.Visible = false, .BackColor = Blanc, .ForeColor = Noir, .FontSize = TailleMots}};
    Label lblConsigne{*this,
                      "lblConsigne",
                      {.Caption = u" Clique sur les mots dans l'ordre dans lequel ils sont apparus. ",
                       .Visible = false,
                       .FontSize = 14}};
    Button cmdVoir{*this, "cmdVoir", {.Caption = u"&Voir"}};
    Frame frameChoix{*this, "frameChoix", u"Clique sur ces mots"};
    Tableau<Label> lblChoix{
        *this, "lblChoix", 10, {.Visible = false, .BackColor = Blanc, .ForeColor = Bleu, .FontSize = TailleMots}};
    Label lblCompteur{*this, "lblCompteur", {.Caption = u"0", .Visible = false}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Button cmdContinuer{*this, "cmdContinuer", {.Caption = u"Série suivante", .Visible = false}};

    Notice notice{*this, PasAssezDeVocabulaire};

private:
    static constexpr double TailleMots = 18; // points

    void Load() override;
    void Resize() override;
    Arrangement Disposer() override;

    void cmdVoir_Click();
    void lblChoix_Click(int c);
    void cmdContinuer_Click();

    void NouvelleSérie();
    void ChoisirMots();
    void CacherOrdre();
    // Width in twips that a word wants, and that it may have.
    [[nodiscard]] int LargeurPour(const Texte& mot) const;
    [[nodiscard]] int LargeurMaximum() const;
    void ElargirCases(const Texte& mot);
    void AjusterRéponse(int i);
    void AllongerSuite();
    // False: the screen was closed while the words came up.
    [[nodiscard]] bool MontrerSuite();
    void ViderCases();
    void DemanderSuite();
    [[nodiscard]] bool EstDansLaSuite(int i) const;
    [[nodiscard]] std::optional<int> CaseARemplir() const;
    void ProposerDeQuitter();
    void EffacerSérie();

    frmExercices& choix_;
};

} // namespace tirelune
