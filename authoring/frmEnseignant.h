// The teacher's word processor: one text at a time, and the door to the tools that go with it.
// The name of the text's file names its questionnaire and its dictionary.
#pragma once
#include "authoring/FichiersRécents.h"
#include "authoring/ListePolices.h"
#include "core/Ecran.h"
#include "core/frmTirelune.h"

#include <span>

namespace tirelune {

class frmEnseignant final : public Ecran {
public:
    explicit frmEnseignant(frmTirelune& accueil);

    MenuOption mnuFichier{*this, "mnuFichier", u"     &Fichier     "};
    MenuOption mnuNouveau{*this, "mnuNouveau", u"&Nouveau"};
    MenuOption mnuOuvrir{*this, "mnuOuvrir", u"&Ouvrir"};
    MenuOption mnuEnregistrerSous{*this, "mnuEnregistrerSous", u"Enregistrer &sous"};
    MenuOption mnuEnregistrer{*this, "mnuEnregistrer", u"&Enregistrer"};
    MenuOption mnuImprimer{*this, "mnuImprimer", u"&Imprimer"};
    MenuOption mnuQuitter{*this, "mnuQuitter", u"&Quitter"};
    MenuOption mnuSépa{*this, "mnuSépa", {.Caption = u"-", .Visible = false}};
    Tableau<MenuOption> mnuRécent{*this, "mnuRécent", RécentsMaximum, {.Visible = false}};

    MenuOption mnuEdition{*this, "mnuEdition", u"     &Edition     "};
    MenuOption mnuSélectionner{*this, "mnuSélectionner", u"&Tout sélectionner"};
    MenuOption mnuCouper{*this, "mnuCouper", u"Cou&per"};
    MenuOption mnuCopier{*this, "mnuCopier", u"&Copier"};
    MenuOption mnuColler{*this, "mnuColler", u"Co&ller"};
    MenuOption mnuRechercher{*this, "mnuRechercher", u"Rec&hercher"};
    MenuOption mnuRemplacer{*this, "mnuRemplacer", u"Rem&placer"};
    MenuOption mnuAnnuler{*this, "mnuAnnuler", u"Annuler"}; // in no menu: the shortcut of btnAnnuler

    MenuOption mnuFormat{*this, "mnuFormat", u"     &Format     "};
    MenuOption mnuPolice{*this, "mnuPolice", u"&Caractères"};
    MenuOption mnuGras{*this, "mnuGras", u"&Gras"};
    MenuOption mnuSouligné{*this, "mnuSouligné", u"Soulig&né"};
    MenuOption mnuItalique{*this, "mnuItalique", u"&Italique"};
    MenuOption mnuGauche{*this, "mnuGauche", u"Aligné à &Gauche"};
    MenuOption mnuCentre{*this, "mnuCentre", u"Aligné au &Centre"};
    MenuOption mnuDroite{*this, "mnuDroite", u"Aligné à &Droite"};
    MenuOption mnuAuto{*this, "mnuAuto", u"Mise en forme &automatique"};

    MenuOption mnuGestion{*this, "mnuGestion", u"    &Gestion du fichier \"Elèves\"    "};
    MenuOption mnuArrêter{*this, "mnuArrêter", u"               A&ccueil               "};

    Toolbar tlbBoutons;
    Tableau<TextBox> txtPolices{*this,
                                "txtPolices",
                                ListePolices::NombreLignes + 1,
                                {.Libellé = u"Police"}}; // 0: the current font; then the list's lines
    Button flèchePolice{*this, "flèchePolice", {.Caption = u"▼", .ToolTipText = u"Choisir une police"}};
    ComboBox cmbFontSize{*this, "cmbFontSize", {.ToolTipText = u"Taille des caractères", .Saisie = true}};
    Frame framePolices{*this, "framePolices", {.Visible = false}};
    ScrollBar scrlPolices{*this, "scrlPolices", {.Libellé = u"Polices"}};

    RichTextBox rtfTexte{*this, "rtfTexte", {.Police = u"Comic Sans MS", .Tabulations = true}};
    RichTextBox rtfSauve{*this, "rtfSauve", {.Visible = false}}; // what btnAnnuler brings back
    Frame frameCorrection{*this, "frameCorrection", {.Caption = u"Patience...", .Visible = false}};
    TextBox txtMessageCorrection{
        *this,
        "txtMessageCorrection",
        {.Caption = u"Correction en cours : erreurs de ponctuation et espaces multiples.", .MultiLine = true}};

    std::vector<Menu> Menus() override;

    // Offers to save changes. False: they were to be saved and the file could not be written, which the user has been
    // told; whatever would drop the text must not go on.
    [[nodiscard]] bool DemanderEnregistrement();
    void ChargerRécents();
    void AjouterRécent();
    // Shows the format of the selection on buttons, menus and boxes.
    void ActualiserFormat();
    void FermerPolices();
    // Copies text and selection to rtfSauve, for btnAnnuler.
    void GarderCopie();

private:
    enum class Issue { Enregistré, Annulé, Echec };
    struct ActionBouton {
        std::string_view Clé; // empty: a gap between two groups
        VueTexte Bulle{};
        void (frmEnseignant::*Faire)() = nullptr;
        bool Copie = false; // the text is copied to rtfSauve first
        bool Basculant = false;
    };
    static std::span<const ActionBouton> Actions();
    static std::vector<Toolbar::Bouton> Boutons();

    void Load() override;
    void Resize() override;
    void QueryUnload() override;
    void Click() override;
    Arrangement Disposer() override;
    void RelierMenus();
    void RelierPolices();

    void tlbBoutons_ButtonClick(std::string_view clé);
    void rtfTexte_Change();
    void rtfTexte_SelChange();

    void mnuNouveau_Click();
    void mnuOuvrir_Click();
    void mnuEnregistrer_Click();
    void mnuEnregistrerSous_Click();
    void mnuImprimer_Click();
    void mnuQuitter_Click();
    void mnuRécent_Click(int i);
    void mnuSélectionner_Click();
    void mnuCouper_Click();
    void mnuCopier_Click();
    void mnuColler_Click();
    void mnuRechercher_Click();
    void mnuRemplacer_Click();
    void mnuPolice_Click();
    void mnuGras_Click();
    void mnuSouligné_Click();
    void mnuItalique_Click();
    void mnuGauche_Click();
    void mnuCentre_Click();
    void mnuDroite_Click();
    void mnuAuto_Click();
    void mnuGestion_Click();
    void mnuAnnuler_Click();
    void btnAnnuler_Click();
    void btnVocabulaire_Click();
    void btnCouleurC_Click();
    void btnQuestion_Click();
    void btnLexique_Click();
    void cmbFontSize_Click();
    void flèchePolice_Click();
    void scrlPolices_Change();
    void txtPolices_Click(int i);
    void txtPolices_KeyPress(int i, Touche& touche);

    void FormatChangé();
    void Aligner(Cadrage alignement);
    void MontrerEtat(std::string_view clé, MenuOption& option, std::optional<bool> valeur);
    void MontrerTaille(std::optional<double> taille);

    Issue Enregistrer();
    Issue EnregistrerSous();
    [[nodiscard]] Texte NomAProposer() const;
    [[nodiscard]] bool Ecrire(const Texte& fichier);
    void CorrigerTexte();
    void AccueillirTexte(const Texte& fichier, GenreDeTexte genre);
    void PrendreNoms(const Texte& fichier);
    void OublierNoms();
    void OuvrirOutilDuTexte(std::string_view nom, Texte refus);

    frmTirelune& accueil_;
    ListePolices liste_;
    Texte àNePasRemplacer_; // the file read, when it is of a kind that a save would destroy
};

} // namespace tirelune
