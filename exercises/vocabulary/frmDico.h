// The words of the text's dictionary, one after the other: each with ten definitions to choose from, then each
// definition with ten words. The wrong ones come from the general dictionary.
#pragma once
#include "core/FichiersLexique.h"
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

#include <functional>

namespace tirelune {

class frmDico final : public Ecran {
public:
    explicit frmDico(frmExercices& choix);

    static constexpr VueTexte DictionnairesVoulus =
        u"Il doit y avoir au moins 1 mot dans le dictionnaire attaché au texte\n"
        u"et au moins 10 mots dans le dictionnaire principal.";
    static constexpr int Choix = 10;   // words or definitions to choose from
    static constexpr int Question = 4; // the place of the one that the round asks about

    static constexpr double TailleDéfinition = 14; // points, of one among ten

    Label lblConsigne{*this,
                      "lblConsigne",
                      {.Caption = u"Quelle est la définition correspondant à ce mot ?",
                       .Visible = false,
                       .ForeColor = Bleu,
                       .FontSize = 16}};
    Label Label1{
        *this,
        "Label1",
        {.Caption = u"En pointant la souris sur une étiquette jaune, tu pourras lire un exemple utilisant ce mot."}};
    Tableau<Label> lblMot{
        *this, "lblMot", Choix, {.Visible = false, .BackColor = Blanc, .FontSize = 16, .Gras = true, .Centré = true}};
    Tableau<TextBox> txtDéf{
        *this,
        "txtDéf",
        Choix,
        {.Visible = false, .BackColor = Blanc, .FontSize = TailleDéfinition, .Centré = true, .ALire = true}};
    Button cmdSuivant{
        *this, "cmdSuivant", {.Caption = u"Sui&vant", .Visible = false, .Enabled = false, .FontSize = 16}};
    Tableau<Label> lblPoints{*this, "lblPoints", EtatsDesPoints()};
    Notice notice{*this,
                  {u"Dictionnaires trop limités ou absents", DictionnairesVoulus, u"&Quitter"},
                  {.Cadre = "frameSortie", .Phrase = "Label2", .Bouton = "cmdQuitter"}};

    // Out of sight: the text's dictionary and the general one.
    Grid fgDic{*this, "fgDic", 0, ColonnesDictionnaire};
    Grid fgDicoPrinc{*this, "fgDicoPrinc", 0, ColonnesDictionnaire};

private:
    void Load() override;
    Arrangement Disposer() override;

    void lblMot_Click(int i);
    void txtDéf_Click(int i);
    void cmdSuivant_Click();

    void ChargerDicPrinc();
    void ChargerDicTexte();
    void TirerDéfinitions();
    void TirerMots();

    void ToutEffacer();
    // From now on the words can be clicked, and the definition is there to be read; up to here it was the other way
    // round.
    void RépondreParMot();
    void MontrerMot(int i, const Grid& dictionnaire, int ligne);
    void MontrerDéfinition(int i, const Grid& dictionnaire, int ligne);
    // A row of the general dictionary whose word, or definition, isn't shown yet; nothing when there is none.
    [[nodiscard]] std::optional<int> TirerAutre(int colonne, const std::function<bool(const Texte&)>& montré) const;
    [[nodiscard]] bool EstMontré(const Texte& mot) const;
    [[nodiscard]] bool EstMontrée(const Texte& définition) const;
    // The first row of the text's dictionary with this in the column.
    [[nodiscard]] std::optional<int> ChercherLigne(int colonne, const Texte& cellule) const;
    void CompterRéponse(bool juste);

    frmExercices& choix_;
};

} // namespace tirelune
