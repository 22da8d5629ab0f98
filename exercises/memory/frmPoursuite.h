// The text comes up letter by letter and stops behind a word that the pupil must find among ten. Right answers make it
// faster, wrong ones slower. Five chases.
#pragma once
#include "core/Ecran.h"
#include "core/Passages.h"
#include "exercises/BandeDePoints.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmPoursuite final : public Ecran {
public:
    explicit frmPoursuite(frmExercices& choix);

    Frame frameConsigne{*this, "frameConsigne"};
    Label lblConsigne{
        *this,
        "lblConsigne",
        {.Caption = u"Le texte va apparaître progressivement. Essaie de me suivre !", .FontSize = 18, .Centré = true}};
    Button cmdCommencer{*this, "cmdCommencer", {.Caption = u"&Commencer"}};

    RichTextBox rtfPoursuite{*this, "rtfPoursuite", {.Visible = false, .BackColor = Blanc}};
    Timer Horloge{*this, "Horloge", 100};   // letters, ms
    Timer Horloge2{*this, "Horloge2", 400}; // the last pause, ms

    Frame frameMot{*this, "frameMot", {.Visible = false}};
    Label Label1{
        *this, "Label1", {.Caption = u"Clique sur le dernier mot qui est apparu.", .FontSize = 16, .Gras = true}};
    Tableau<Label> lblMot{*this, "lblMot", 10, {.BackColor = Blanc, .ForeColor = Bleu, .FontSize = 18}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Button cmdContinuer{*this, "cmdContinuer", {.Caption = u"&Continuer", .Visible = false}};

    Label lblPassage{*this, "lblPassage", {.Visible = false}}; // the last word that TirerMotTexte got
    Label lblCorrigé{*this, "lblCorrigé", {.Visible = false}}; // the right word

private:
    void Load() override;
    void Resize() override;
    Arrangement Disposer() override;

    void cmdCommencer_Click();
    void Horloge_Tick();
    void Horloge2_Tick();
    void lblMot_Click(int i);
    void cmdContinuer_Click();

    void CacherTexte();
    void ChercherMots();
    // The word that the first blank at or after a place follows; nothing when it follows none, or there is no blank.
    [[nodiscard]] std::optional<Passage> MotDepuis(std::size_t place) const;
    // Nothing when no draw leads to a word.
    [[nodiscard]] std::optional<Passage> TirerArrêt();
    void TirerMotFinal(const Passage& arrêt);
    // Puts in lblPassage a word that isn't proposed yet. False: there is none.
    bool TirerMotTexte();
    void RemplirPropositions();
    [[nodiscard]] bool EstProposé(VueTexte mot) const;
    // False: the screen was closed meanwhile.
    [[nodiscard]] bool FaireApparaître(std::size_t fin);
    void DemanderMot();

    frmExercices& choix_;
    std::vector<Passage> mots_; // what stands before each blank of the text: a word, or nothing
};

} // namespace tirelune
