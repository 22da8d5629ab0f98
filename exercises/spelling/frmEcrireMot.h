// The words of the vocabulary, one by one in their sentence: the pupil reads it, the word is wiped from it, and is to
// be written without a fault.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmEcrireMot final : public Ecran {
public:
    explicit frmEcrireMot(frmExercices& choix);

    Label lblConsigne{*this,
                      "lblConsigne",
                      {.Caption = u"Lis attentivement cette phrase. Un mot va s'effacer : tu devras le copier sans "
                                  u"aucune erreur."}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Label lblPhrase{
        *this,
        "lblPhrase",
        {.BackColor = Blanc, .ForeColor = Bleu, .FontSize = 30, .Police = u"Comic Sans MS", .Centré = true}};
    Frame frameMot{
        *this,
        "frameMot",
        {.Caption = u"Ecris le mot caché dans cette zone", .Visible = false, .BackColor = Bleu, .ForeColor = Cyan}};
    TextBox txtRéponse{*this, "txtRéponse", {.Libellé = u"Le mot caché", .FontSize = 24}};
    Button cmdOk{*this, "cmdOk", {.Caption = u"&Ok", .FontSize = 16}};
    Label lblCorrigé{*this,
                     "lblCorrigé",
                     {.Visible = false,
                      .BackColor = Blanc,
                      .ForeColor = Rouge,
                      .FontSize = 24,
                      .Gras = true,
                      .Centré = true,
                      .SensDesCouleurs = Sens::Rien}};
    Button cmdCommencer{*this, "cmdCommencer", {.Caption = u"&Commencer"}};

    Notice notice{
        *this, {u"Pas de mot sélectionné", u"Il doit y avoir au moins 1 mot pour lancer l'exercice. ", u"&Abandonner"}};

    // Out of sight: what the exercise remembers.
    ComboBox cmbMots{*this, "cmbMots", {.Visible = false}}; // words still to come
    Label lblMot{*this, "lblMot", {.Visible = false}};      // the word in play
    Label lblRéf{*this, "lblRéf", {.Visible = false}};      // its whole sentence

private:
    void Load() override;
    Arrangement Disposer() override;

    void cmdCommencer_Click();
    void cmdOk_Click();

    void TirerPhrase();
    void EffacerMot();
    void MotSuivant();

    frmExercices& choix_;
};

} // namespace tirelune
