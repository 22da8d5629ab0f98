// Themes (2): ten families of the lexicon, with some of their words; the pupil finds one more of each. Any word of the
// family will do.
#pragma once
#include "exercises/JeuDAssociation.h"
#include "exercises/vocabulary/TirageLexique.h"

namespace tirelune {

class frmThèmes2 final : public Ecran {
public:
    explicit frmThèmes2(frmExercices& choix);

    Label Label1{*this, "Label1", EtatDesConsignes(u" Choisis les mots correspondant à chaque thème. ")};
    Tableau<Label> lblThème{*this,
                            "lblThème",
                            RangéesDuJeu,
                            {.BackColor = Bleu, .ForeColor = Cyan, .FontSize = 14, .Gras = true, .Centré = true}};
    Tableau<TextBox> txtMots{*this, "txtMots", RangéesDuJeu, EtatDesTextes()};
    Tableau<Label> lblRéponse{*this, "lblRéponse", RangéesDuJeu, EtatDesCases(u"")};
    Tableau<Label> lblCorrigé{*this, "lblCorrigé", RangéesDuJeu, EtatDesCorrigés()};
    ComboBox cmbThèmes{*this, "cmbThèmes", EtatDeLaListe()};
    Button cmdQuitter{*this, "cmdQuitter", EtatDuBouton()};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Notice notice{*this,
                  TropPeu(u"Pas assez de thèmes", u"Il doit y avoir au moins 10 thèmes pour lancer l'exercice. ")};

    // Out of sight: the file, and the columns drawn for a row.
    Grid fgThèmes{*this, "fgThèmes", 0, ColonnesAuDépart};
    ComboBox cmbNuméros{*this, "cmbNuméros", {.Visible = false}};

private:
    void Load() override;
    Arrangement Disposer() override;

    void txtMots_Click(int i);

    void ChargerFamilles();
    [[nodiscard]] bool Suffisent() const;
    void TirerMotsThèmes();
    // A row whose name isn't shown yet.
    [[nodiscard]] int TirerFamille() const;
    void MontrerMots(int i, int ligne);
    void CacherMot(int i, int ligne);
    // A word of the row that isn't shown; it counts as shown from now on.
    [[nodiscard]] const Texte& TirerMot(int ligne);
    void RangerRéponses();
    [[nodiscard]] const Texte& Nom(int ligne) const;
    [[nodiscard]] bool EstDeLaFamille(int i) const;
    // The row's own verdict, where it shows; else that of the row before.
    [[nodiscard]] bool Juger(int i);

    bool trouvé_ = false;
    const JeuDAssociation jeu_;
};

} // namespace tirelune
