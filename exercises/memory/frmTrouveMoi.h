// One word is picked out in the text on the left; the pupil clicks the same place in the text on the right before the
// time is up. Right answers shorten the time, wrong ones lengthen it. Ten words.
#pragma once
#include "core/Ecran.h"
#include "core/Passages.h"
#include "exercises/BandeDePoints.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmTrouveMoi final : public Ecran {
public:
    explicit frmTrouveMoi(frmExercices& choix);

    Label lblConsigne{*this, "lblConsigne",
                      u"Un mot est écrit en jaune dans le texte de gauche. Clique sur ce mot dans le texte de droite "
                      u"(ATTENTION : il y a un temps de réponse limité)"};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    RichTextBox rtfTexte{*this, "rtfTexte", {.Visible = false, .Libellé = u"Texte de gauche", .BackColor = Bleu}};
    RichTextBox rtfRéponse{*this, "rtfRéponse", {.Visible = false, .Libellé = u"Texte de droite", .BackColor = Blanc}};
    Label lblTemps{*this,
                   "lblTemps",
                   {.Caption = u"28",
                    .Visible = false,
                    .ToolTipText = u" Temps restant (en secondes) ",
                    .BackColor = Rouge,
                    .ForeColor = Jaune,
                    .FontSize = 20,
                    .Gras = true,
                    .Centré = true,
                    .SensDesCouleurs = Sens::Rien}};
    Label lblTempsRéf{*this, "lblTempsRéf", {.Caption = u"28", .Visible = false}}; // seconds for the next word
    Timer Horloge{*this, "Horloge", 1000};                                         // ms
    Button cmdSuivant{*this, "cmdSuivant", {.Caption = u"&Suivant", .Visible = false, .FontSize = 16}};

private:
    void Load() override;
    void Resize() override;
    Arrangement Disposer() override;

    void Horloge_Tick();
    void rtfRéponse_Click();
    void cmdSuivant_Click();

    void PlacerTextes();
    void NouveauMot();
    void RemplirTextes();
    // The words that follow a blank and are long enough.
    void ChercherMots();
    // False: the text has none.
    [[nodiscard]] bool ChoisirMot();
    void MontrerMot(const Passage& mot);
    void JugerRéponse();

    frmExercices& choix_;
    std::vector<Passage> mots_;
    Passage montré_;  // in yellow on the left
    Passage barré_;   // a wrong answer on the right
    int largeur_ = 0; // twips: the size that the word in play was drawn for
    int hauteur_ = 0;
};

} // namespace tirelune
