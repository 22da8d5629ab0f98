// Texte à trous: the words that the teacher has marked give way to gaps; the pupil puts them back from a list.
#pragma once
#include "exercises/BandeDePoints.h"
#include "exercises/Lacunes.h"

namespace tirelune {

class frmTrous final : public Ecran {
public:
    explicit frmTrous(frmExercices& choix);

    RichTextBox rtfTrous{*this, "rtfTrous", {.Visible = false}};
    ComboBox cmbTrous{*this, "cmbTrous", {.Caption = u" Liste des mots enlevés ", .FontSize = 16, .Sorted = true}};
    Button cmdOk{*this, "cmdOk", {.Caption = u"&Ok", .FontSize = 16}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Frame frameFin{*this, "frameFin", {.Caption = u"Texte complété", .Visible = false, .BackColor = BleuClair}};
    TextBox Text1{*this, "Text1", {.Caption = u"C'est fini !", .FontSize = 24, .Centré = true}};
    Button cmdQuitter{*this, "cmdQuitter", {.Caption = u"&Quitter", .FontSize = 16}};
    Frame frameQuitter{*this, "frameQuitter", {.Caption = u"Pas de vocabulaire sélectionné", .Visible = false}};
    Label Label2{*this, "Label2", {.Caption = u"L'exercice est terminé.", .FontSize = 24, .Centré = true}};
    Button cmdAbandonner{*this, "cmdAbandonner", {.Caption = u"&Quitter", .FontSize = 16}};
    Image Image1{*this, "Image1"};

private:
    void Load() override;
    void Resize() override;
    Arrangement Disposer() override;

    void cmdQuitter_Click();
    void rtfTrous_KeyPress(Touche& touche);
    void OuvrirTrous(const std::vector<Lacune>& trous);

    frmExercices& choix_;
    const JeuDeLacunes jeu_{choix_, rtfTrous, cmbTrous, lblPoints, frameFin, cmdQuitter};
};

// Each unbroken run of struck-through characters, whatever it holds; a run that ends the text ends with it.
std::vector<Lacune> LacunesMarquées(const TexteRiche& texte);

} // namespace tirelune
