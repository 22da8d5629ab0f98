// A long sentence of the text written from memory, letter by letter: twice with every other word masked, for training,
// then with all words masked, for points.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmEcrirePhrase final : public Ecran {
public:
    explicit frmEcrirePhrase(frmExercices& choix);

    Label lblConsigne{*this,
                      "lblConsigne",
                      {.Caption = u"Lis bien cette phrase que tu vas devoir écrire sans modèle.", .FontSize = 14}};
    Label lblMaj{*this,
                 "lblMaj",
                 {.Caption = u"Attention aux majuscules !!!",
                  .Visible = false,
                  .BackColor = Blanc,
                  .ForeColor = Bleu,
                  .FontSize = 14,
                  .Gras = true}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Label lblTest{*this,
                  "lblTest",
                  {.Caption = u"Entraînement",
                   .Visible = false,
                   .ToolTipText = u" Cette partie n'est pas notée. ",
                   .BackColor = Jaune,
                   .ForeColor = Bleu,
                   .FontSize = 18,
                   .Gras = true,
                   .Centré = true,
                   .SensDesCouleurs = Sens::Rien}};
    RichTextBox rtfPhrase{*this, "rtfPhrase", {.Libellé = u"Phrase", .BackColor = Blanc, .FontSize = 24}};
    Button cmdErreur{*this,
                     "cmdErreur",
                     {.Caption = u"Clique ici pour indiquer que tu as vu ton erreur.",
                      .Visible = false,
                      .BackColor = Rouge,
                      .ForeColor = Blanc,
                      .FontSize = 16,
                      .Gras = true}};
    Button cmdCommencer{*this, "cmdCommencer", {.Caption = u"&Commencer", .FontSize = 16}};

    TextBox txtCorrigé{*this, "txtCorrigé", {.Visible = false}}; // the model; what is chosen in it follows rtfPhrase
    ComboBox cmbOrdre{*this, "cmbOrdre", {.Visible = false}};    // its words
    Label lblPassage{*this, "lblPassage", {.Caption = u"0", .Visible = false}}; // number of the stage

    Notice notice{*this,
                  {u"Phrases trop courtes", u"Il n'y a pas de phrase assez longue pour cet exercice.", u"&Abandonner"}};

private:
    void Load() override;
    Arrangement Disposer() override;

    void cmdCommencer_Click();
    void cmdErreur_Click();
    void rtfPhrase_KeyPress(Touche& touche);

    void ChoisirPhrase();
    [[nodiscard]] bool EstTest() const;
    [[nodiscard]] bool EstMasqué(int mot) const;
    [[nodiscard]] Texte PhraseMasquée() const;
    void ProchainTrou();
    void Juger(char16_t lettre);
    void FinirSiComplète();

    frmExercices& choix_;
};

} // namespace tirelune
