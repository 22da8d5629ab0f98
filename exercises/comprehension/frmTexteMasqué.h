// Texte masqué: every letter of the text is hidden; the pupil picks a place and names its letter, which then shows
// everywhere.
#pragma once
#include "core/Ecran.h"
#include "exercises/BandeDePoints.h"
#include "exercises/FinDeTexte.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmTexteMasqué final : public Ecran {
public:
    explicit frmTexteMasqué(frmExercices& choix);

    RichTextBox rtfMasqué{*this, "rtfMasqué"};
    Label Label1{*this, "Label1",
                 u"Choisis le caractère à remplacer dans le texte, puis clique sur la lettre ou utilise le clavier."};
    Tableau<Label> lblLettre{
        *this,
        "lblLettre",
        26,
        {.ForeColor = Bleu, .FontSize = 14, .Gras = true, .Police = u"Comic Sans MS", .Centré = true, .Bordure = true}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints(14)};
    FinDeTexte fin{*this};

private:
    void Load() override;
    void Unload() override;
    void Resize() override;
    Arrangement Disposer() override;

    void rtfMasqué_Click();
    void rtfMasqué_KeyPress(Touche& touche);

    void MasquerTexte();
    void ProposerLettre(int k);
    void DévoilerLettre(int k, VueTexte classe);

    frmExercices& choix_;
};

} // namespace tirelune
