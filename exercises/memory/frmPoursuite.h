// The text comes up letter by letter and stops behind a word that the pupil must find among ten. Right answers make it
// faster, wrong ones slower. Five chases.
#pragma once
#include "core/Ecran.h"
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
    Button cmdCommencer{*this, "cmdCommencer", {.Caption = u"&Commencer", .FontSize = 16}};

    RichTextBox rtfPoursuite{*this, "rtfPoursuite", {.Visible = false, .BackColor = Blanc}};
    Timer Horloge{*this, "Horloge", 100};   // letters, ms
    Timer Horloge2{*this, "Horloge2", 400}; // the last pause, ms

    Frame frameMot{*this, "frameMot", {.Visible = false}};
    Label Label1{
        *this, "Label1", {.Caption = u"Clique sur le dernier mot qui est apparu.", .FontSize = 16, .Gras = true}};
    Tableau<Label> lblMot{*this, "lblMot", 10, {.BackColor = Blanc, .ForeColor = Bleu, .FontSize = 18}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Button cmdContinuer{*this, "cmdContinuer", {.Caption = u"&Continuer", .Visible = false, .FontSize = 16}};

    Label lblPassage{*this, "lblPassage", {.Visible = false}}; // the last word that TirerMotTexte got
    Label lblCorrigé{*this, "lblCorrigé", {.Visible = false}}; // the right word

private:
    // A blank of the text, and where the run of word characters that ends there begins; places from 0.
    struct Butée {
        std::size_t Début;
        std::size_t Blanc;

        [[nodiscard]] bool SuitUnMot() const { return Début < Blanc; }
    };

    void Load() override;
    void Resize() override;
    Arrangement Disposer() override;

    void cmdCommencer_Click();
    void Horloge_Tick();
    void Horloge2_Tick();
    void lblMot_Click(int i);
    void cmdContinuer_Click();

    void CacherTexte();
    void ChercherBlancs();
    [[nodiscard]] std::vector<Butée>::const_iterator BlancDepuis(std::size_t place) const;
    // The first blank at or after a place, if it stands behind a word.
    [[nodiscard]] std::optional<Butée> ButéeDepuis(std::size_t place) const;
    // All that a draw from `premier` to `dernier` can lead to.
    [[nodiscard]] std::vector<Butée> ButéesEntre(std::size_t premier, std::size_t dernier) const;
    [[nodiscard]] VueTexte MotDe(const Butée& butée) const;
    // Nothing when no draw leads to a word.
    [[nodiscard]] std::optional<Butée> TirerArrêt();
    void TirerMotFinal(const Butée& arrêt);
    void TirerMotTexte();
    void RemplirPropositions();
    // The different words that TirerMotTexte can get, without the right one.
    [[nodiscard]] int CompterAutresMots() const;
    [[nodiscard]] bool EstProposé(VueTexte mot) const;
    // False: the screen was closed meanwhile.
    [[nodiscard]] bool FaireApparaître(std::size_t fin);
    void DemanderMot();
    [[nodiscard]] bool EstRépondu() const;

    frmExercices& choix_;
    std::vector<Butée> blancs_; // all of the text, in its order
};

} // namespace tirelune
