// Closures: every seventh word of the text gives way to a gap; the pupil puts the words back from a list.
#pragma once
#include "exercises/BandeDePoints.h"
#include "exercises/Lacunes.h"

namespace tirelune {

class frmClosures final : public Ecran {
public:
    explicit frmClosures(frmExercices& choix);

    Label lblConsigne{*this, "lblConsigne", {.Caption = Texte{ConsigneDeLacunes}}};
    RichTextBox rtfClosures{*this, "rtfClosures"};
    ComboBox cmbClosures{
        *this,
        "cmbClosures",
        {.Caption = u" Liste des mots enlevés ", .Libellé = u"Mots enlevés", .FontSize = 16, .Sorted = true}};
    Button cmdOk{*this, "cmdOk", {.Caption = u"&Ok", .FontSize = 16}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    FinDeTexte fin{*this};
    Image Image1{*this, "Image1"};

private:
    void Load() override;
    void Activate() override;
    void Resize() override;
    Arrangement Disposer() override;

    void rtfClosures_KeyPress(const Touche& touche);
    void OuvrirTrous();

    frmExercices& choix_;
    std::vector<Lacune> lacunes_; // still to be filled
    const JeuDeLacunes jeu_{choix_, rtfClosures, cmbClosures, lblPoints, fin, lacunes_};
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
