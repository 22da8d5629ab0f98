// Up to ten words of the vocabulary, twice: the lower halves of their letters on the left, the upper ones on the right,
// in another order. The pupil pairs them.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmTronqué final : public Ecran {
public:
    explicit frmTronqué(frmExercices& choix);

    static constexpr int MotsMaximum = 10;

    Label lblConsigne{*this, "lblConsigne",
                      u" Retrouve les 2 parties de chaque mot en cliquant sur les étiquettes (gauche puis droite)."};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Tableau<Label> lblMot1{*this, "lblMot1", MotsMaximum, EtatDuMot()};
    Tableau<Label> lblMot2{*this, "lblMot2", MotsMaximum, EtatDuMot()};
    Tableau<Rectangle> cache1{*this, "cache1", MotsMaximum, {.Visible = false}}; // upper half of lblMot1
    Tableau<Rectangle> cache2{*this, "cache2", MotsMaximum, {.Visible = false}}; // lower half of lblMot2
    Label lblNon{
        *this,
        "lblNon",
        {.Caption = u"Non", .Visible = false, .BackColor = Rouge, .ForeColor = Blanc, .FontSize = 16, .Gras = true}};
    Button cmdQuitter{*this, "cmdQuitter", {.Caption = u"&Quitter", .Visible = false, .FontSize = 16}};

    Notice notice{*this, PasAssezDeVocabulaire};

private:
    static EtatInitial EtatDuMot();

    void Load() override;
    Arrangement Disposer() override;

    void lblMot1_Click(int i);
    void lblMot2_Click(int i);

    void PlacerMots();
    void Choisir(int i);
    void Reposer();
    void Unir(int gauche, int droite);
    void DireNon(int i);
    [[nodiscard]] std::optional<int> MotChoisi() const;
    [[nodiscard]] bool ToutTrouvé() const;
    // The keyboard goes to the first word of a column that is still to be found.
    static void Guider(Tableau<Label>& colonne);

    frmExercices& choix_;
};

} // namespace tirelune
