// The text with at most twenty faults, each a sound written as the one it is confused with: the pupil clicks the words
// that have one and types them right.
#pragma once
#include "core/Ecran.h"
#include "core/Passages.h"
#include "exercises/BandeDePoints.h"
#include "exercises/FinDeTexte.h"
#include "exercises/spelling/Graphèmes.h"
#include "followup/frmExercices.h"

namespace tirelune {

class frmJeCorrige final : public Ecran {
public:
    explicit frmJeCorrige(frmExercices& choix);

    Label lblConsigne{*this, "lblConsigne",
                      u"Les mots écrits en violet sont mal orthographiés. Clique dessus pour les corriger."};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    RichTextBox rtfCorrige{*this, "rtfCorrige", {.Visible = false, .Libellé = u"Texte à corriger"}};
    TextBox txtMot{*this,
                   "txtMot",
                   {.Visible = false,
                    .ToolTipText = u" Tape le mot corrigé dans cette zone. ",
                    .Libellé = u"Mot corrigé",
                    .BackColor = Cyan,
                    .ForeColor = Bleu,
                    .FontSize = 18}};
    Button cmdOk{*this, "cmdOk", {.Caption = u"&Ok", .Visible = false, .FontSize = 16}};
    FinDeTexte fin{*this};

    Tableau<Label> lblSon{*this, "lblSon", static_cast<int>(Graphèmes.size()), {.Visible = false}};
    Label lblGraphèmes{*this, "lblGraphèmes", {.Visible = false}}; // faults put in

private:
    void Load() override;
    void Activate() override;
    void Resize() override;
    Arrangement Disposer() override;

    void rtfCorrige_Click();
    void rtfCorrige_DblClick();
    void cmdOk_Click();

    void PoserFautes();
    // Most tries put in nothing.
    void PoserFaute(Texte& texte, PlacesDesGraphèmes& places, std::vector<Passage>& fautifs);
    void CacherRéponse();
    void Corriger(VueTexte juste, bool trouvé);

    frmExercices& choix_;
};

} // namespace tirelune
