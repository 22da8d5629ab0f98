// Five sentences of the text, their words in alphabetical order on labels: the pupil rebuilds each of them. A failed
// check costs a point and shows one more word of the sentence's beginning.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmMotsEnDésordre final : public Ecran {
public:
    explicit frmMotsEnDésordre(frmExercices& choix);

    static constexpr int MotsMaximum = 20; // a label for each

    Label Label1{*this, "Label1", {.Caption = u"Phrases à reconstituer :", .FontSize = 14}};
    Label lblCoups{*this, "lblCoups", {.Caption = u"5", .ForeColor = Rouge, .FontSize = 14, .Gras = true}};
    Label Label3{*this, "Label3", {.Caption = u"Essais :", .FontSize = 14}};
    Label lblEssais{*this, "lblEssais", {.ForeColor = Rouge, .FontSize = 14, .Gras = true}};
    Label Label4{*this, "Label4", {.Caption = u" / ", .FontSize = 14}};
    Label lblEssaisMax{*this, "lblEssaisMax", {.FontSize = 14, .Gras = true}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Label lblConsigne{*this,
                      "lblConsigne",
                      {.Caption = u"Clique sur les étiquettes pour placer les mots. Pour enlever un mot de la phrase, "
                                  u"clique sur ce mot, puis sur une étiquette vide. Pour placer un mot entre deux "
                                  u"autres, clique entre ces deux mots, puis clique sur l'étiquette."}};
    Tableau<Label> lblMot{*this,
                          "lblMot",
                          MotsMaximum,
                          {.Visible = false,
                           .ToolTipText = u" Clique sur les étiquettes pour reconstituer la phrase. ",
                           .BackColor = Blanc,
                           .ForeColor = Bleu,
                           .FontSize = 16,
                           .Gras = true,
                           .Centré = true}};
    TextBox txtPhrase{*this, "txtPhrase", {.Libellé = u"Ta phrase", .FontSize = 22, .MultiLine = true}};
    Label lblPlace{*this, "lblPlace", {.ForeColor = VertFoncé, .FontSize = 14}}; // what the next click works on
    Frame frameAide{*this, "frameAide", {.Visible = false, .BackColor = BleuClair}};
    TextBox txtAide{*this, "txtAide", {.Libellé = u"Aide", .FontSize = 16, .MultiLine = true}};
    Button cmdTerminé{*this, "cmdTerminé", {.Caption = u"J'ai &fini"}};
    Button cmdSuivant{*this, "cmdSuivant", {.Caption = u"&Suivant", .Visible = false}};

    Notice notice{*this, PhrasesMalTaillées};

    // Out of sight: what the exercise remembers.
    ComboBox cmbOrdre{*this, "cmbOrdre", {.Visible = false}};               // the words in the sentence's order
    ComboBox cmbMots{*this, "cmbMots", {.Visible = false, .Sorted = true}}; // and in the alphabet's
    Label lblCorrigé{*this, "lblCorrigé", {.Visible = false}};
    Label lblBanque{*this, "lblBanque", {.Visible = false}};   // all sentences used so far
    Label lblPassage{*this, "lblPassage", {.Visible = false}}; // the word taken out of the sentence

private:
    void Load() override;
    Arrangement Disposer() override;

    void lblMot_Click(int i);
    void txtPhrase_Click();
    void txtPhrase_KeyPress(Touche& touche);
    void cmdTerminé_Click();
    void cmdSuivant_Click();
    void cmdAbandonner_Click();

    void TirerPhrase();
    void CommencerPhrase();
    void MontrerMots();
    void RemplacerSélection(VueTexte nouveau);
    void SélectionnerSous(std::size_t position);
    void Sélectionner(std::size_t début, std::size_t longueur);
    [[nodiscard]] bool UnePlaceOuUnMot() const;
    [[nodiscard]] Texte DécrireSélection() const;
    void PhraseJuste();
    void AiderAuDébut();
    void MontrerPhrase();
    void FinirPhrase();

    frmExercices& choix_;
};

} // namespace tirelune
