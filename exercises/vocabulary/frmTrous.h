// Texte à trous: the words that the teacher has marked give way to gaps; the pupil puts them back from a list.
#pragma once
#include "exercises/BandeDePoints.h"
#include "exercises/Conclure.h"
#include "exercises/Lacunes.h"
#include "exercises/Notice.h"

namespace tirelune {

class frmTrous final : public Ecran {
public:
    explicit frmTrous(frmExercices& choix);

    Label lblConsigne{*this, "lblConsigne", {.Caption = Texte{ConsigneDeLacunes}}};
    RichTextBox rtfTrous{*this, "rtfTrous", {.Visible = false}};
    ComboBox cmbTrous{
        *this,
        "cmbTrous",
        {.Caption = u" Liste des mots enlevés ", .Libellé = u"Mots enlevés", .FontSize = 16, .Sorted = true}};
    Button cmdOk{*this, "cmdOk", {.Caption = u"&Ok", .FontSize = 16}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    FinDeTexte fin{*this};
    Notice notice{*this, {u"Pas de vocabulaire sélectionné", u"L'exercice est terminé.", Quitter}};
    Image Image1{*this, "Image1"};

private:
    void Load() override;
    void Resize() override;
    Arrangement Disposer() override;

    void rtfTrous_KeyPress(Touche& touche);
    void OuvrirTrous();

    frmExercices& choix_;
    std::vector<Lacune> lacunes_; // still to be filled
    const JeuDeLacunes jeu_{choix_, rtfTrous, cmbTrous, lblPoints, fin, lacunes_};
};

// Each unbroken run of struck-through characters, whatever it holds; a run that ends the text ends with it.
std::vector<Lacune> LacunesMarquées(const TexteRiche& texte);

} // namespace tirelune
