// Closures: every seventh word of the text gives way to a gap; the pupil puts the words back from a list.
#pragma once
#include "exercises/BandeDePoints.h"
#include "exercises/Lacunes.h"

namespace tirelune {

class frmClosures final : public Ecran {
public:
    explicit frmClosures(frmExercices& choix);

    RichTextBox rtfClosures{*this, "rtfClosures"};
    ComboBox cmbClosures{
        *this, "cmbClosures", {.Caption = u" Liste des mots enlevés ", .FontSize = 16, .Sorted = true}};
    Button cmdOk{*this, "cmdOk", {.Caption = u"&Ok", .FontSize = 16}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Frame frameFin{*this, "frameFin", {.Caption = u"Texte complété", .Visible = false, .BackColor = BleuClair}};
    TextBox Text1{*this, "Text1", {.Caption = u"C'est fini !", .FontSize = 24, .Centré = true}};
    Button cmdQuitter{*this, "cmdQuitter", {.Caption = u"&Quitter", .FontSize = 16}};
    Image Image1{*this, "Image1"};

private:
    void Load() override;
    void Activate() override;
    void Resize() override;
    Arrangement Disposer() override;

    void cmdQuitter_Click();
    void rtfClosures_KeyPress(const Touche& touche);
    void OuvrirTrous();

    frmExercices& choix_;
    const JeuDeLacunes jeu_{choix_, rtfClosures, cmbClosures, lblPoints, frameFin, cmdQuitter};
};

// The words that the exercise takes out of a text, from a start on.
struct ChoixDeLacunes {
    std::vector<Lacune> Lacunes;
    // How many of them go into the list: a word does when the word after it ends. A gap in the last word is not in it.
    std::size_t Annoncées = 0;
};

// Where no further gap is opened: the last blank of the first nine tenths of the text; 0 when there is none.
double FinDesLacunes(VueTexte texte);

ChoixDeLacunes ChoisirLacunes(VueTexte texte, std::size_t départ);

} // namespace tirelune
