// Ten sentences of the text, each with two of its words exchanged: the pupil clicks both, and sees them change places.
// Two tries, a point for each that is left.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmMotsInversés final : public Ecran {
public:
    explicit frmMotsInversés(frmExercices& choix);

    Label lblConsigne{*this, "lblConsigne", u"Clique sur les 2 mots inversés dans la phrase."};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    RichTextBox rtfPhrase{*this, "rtfPhrase", {.Libellé = u"La phrase"}};
    Label lblVerdict{
        *this, "lblVerdict", {.FontSize = 18, .Gras = true, .Centré = true, .SensDesCouleurs = Sens::Verdict}};
    Label Label1{*this, "Label1", {.Caption = u"Phrases terminées :", .FontSize = 14}};
    Label lblCoups{*this, "lblCoups", {.Caption = u"0", .ForeColor = Rouge, .FontSize = 14, .Gras = true}};
    Label Label3{*this, "Label3", {.Caption = u"Essais :", .FontSize = 14}};
    Label lblEssais{*this, "lblEssais", {.Caption = u"2", .ForeColor = Rouge, .FontSize = 14, .Gras = true}};
    Label Label4{*this, "Label4", {.Caption = u" / ", .FontSize = 14}};
    Label lblEssaisMax{*this, "lblEssaisMax", {.Caption = u"2", .FontSize = 14, .Gras = true}};
    Button cmdTerminé{*this, "cmdTerminé", {.Caption = u"&J'ai fini", .Visible = false}};
    Button cmdOk{*this,
                 "cmdOk",
                 {.Caption = u"&Ok",
                  .Visible = false,
                  .ToolTipText = u" Clique sur ce bouton si la phrase te semble correcte. "}};
    Button cmdAnnuler{
        *this,
        "cmdAnnuler",
        {.Caption = u"&Annuler", .Visible = false, .ToolTipText = u" Clique sur ce bouton pour annuler. "}};
    Button cmdSuivant{*this,
                      "cmdSuivant",
                      {.Caption = u"&Suivant",
                       .Visible = false,
                       .ToolTipText = u" Clique sur ce bouton si la phrase te semble correcte. "}};

    Notice notice{*this, PhrasesMalTaillées};

    // Out of sight: what the exercise remembers.
    RichTextBox rtfPassage{*this, "rtfPassage", {.Visible = false}};     // the sentence after the exchange
    RichTextBox rtfInversion{*this, "rtfInversion", {.Visible = false}}; // and before it
    ComboBox cmbOrdre{*this, "cmbOrdre", {.Visible = false}};            // the words in the sentence's order
    ComboBox cmbMots{*this, "cmbMots", {.Visible = false}};              // and in the order shown
    Label lblCorrigé{*this, "lblCorrigé", {.Visible = false}};
    Label lblBanque{*this, "lblBanque", {.Visible = false}};                          // all sentences used so far
    Tableau<Label> lblMot{*this, "lblMot", 2, {.Visible = false}};                    // the words chosen
    Label lblNombreMots{*this, "lblNombreMots", {.Caption = u"0", .Visible = false}}; // how many they are

private:
    void Load() override;
    Arrangement Disposer() override;

    void rtfPhrase_Click();
    void cmdTerminé_Click();
    void cmdAnnuler_Click();
    void cmdOk_Click();
    void cmdSuivant_Click();
    void cmdAbandonner_Click();

    void TirerInversion();
    void InverserDeuxMots();
    void EchangerMotsChoisis();
    void PhraseJuste();
    void Réessayer();
    void MontrerPhrase();
    void FinirPhrase();
    void Dire(Texte verdict, Couleur encre = CouleurAuto);

    frmExercices& choix_;
};

} // namespace tirelune
