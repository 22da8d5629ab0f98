// Search and replacement in the teacher's text: a small window over the editor.
#pragma once
#include "core/Ecran.h"

namespace tirelune {

class frmRechercher final : public Ecran {
public:
    // The editor's text, and the box that keeps it as it was before a replacement.
    frmRechercher(Application& application, RichTextBox& rtfTexte, RichTextBox& rtfSauve);

    Frame frameRechercher{*this, "frameRechercher"};
    Label lblRechercher{*this, "lblRechercher", u"Rechercher :"};
    TextBox txtRechercher{*this, "txtRechercher"};
    Label lblRemplacer{*this, "lblRemplacer", u"Remplacer par :"};
    TextBox txtRemplacer{*this, "txtRemplacer", {.Libellé = u"Remplacer par"}};
    Button cmdSuivant{*this, "cmdSuivant", u"Rec&hercher"};
    Button cmdRemplacer{*this, "cmdRemplacer", u"&Remplacer"};
    Button cmdToutRemplacer{*this, "cmdToutRemplacer", u"&Tout Remplacer"};
    Button cmdFermer{*this, "cmdFermer", u"&Fermer"};

private:
    void Load() override;
    void Activate() override;
    void KeyPress(Touche& touche) override;
    Arrangement Disposer() override;

    void cmdSuivant_Click();
    void cmdRemplacer_Click();
    void cmdToutRemplacer_Click();

    // With nothing to look for there is nothing to do but to type it.
    [[nodiscard]] bool RienAChercher();
    void GarderCopie();

    RichTextBox& rtfTexte_;
    RichTextBox& rtfSauve_;
};

} // namespace tirelune
