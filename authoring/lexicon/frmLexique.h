// The lexicon's editor: word families, synonyms, contraries, genders and two dictionaries, each in its own area. What
// is typed goes to the grids, and on to the six files when they are saved.
#pragma once
#include "authoring/FichierTenu.h"
#include "authoring/lexicon/Lexique.h"
#include "authoring/lexicon/Sélecteurs.h"
#include "core/Ecran.h"

namespace tirelune {

class frmLexique final : public Ecran {
public:
    explicit frmLexique(Application& application);

    Frame frameFamilles{
        *this, "frameFamilles", {.Caption = u"Familles de mots", .BackColor = Couleur::Rvb(0xF6, 0xA0, 0x4D)}};
    Frame frameSynonymes{
        *this, "frameSynonymes", {.Caption = u"Synonymes", .BackColor = Couleur::Rvb(0x4F, 0x9B, 0xE0)}};
    Frame frameContraires{
        *this, "frameContraires", {.Caption = u"Contraires", .BackColor = Couleur::Rvb(0x5F, 0xB8, 0x65)}};
    Frame frameGenre{*this, "frameGenre", {.Caption = u"Genre des noms", .BackColor = Couleur::Rvb(0xD9, 0x68, 0x9F)}};
    Frame frameDictionnaire{
        *this, "frameDictionnaire", {.Caption = u"Dictionnaire", .BackColor = Couleur::Rvb(0xE8, 0xB9, 0x23)}};

    Tableau<Label> lblLégende{*this, "lblLégende", LégendesDesSélecteurs()};
    Tableau<TextBox> txtMot{*this, "txtMot", ChampsDesSélecteurs()};
    Label lblDéfinition{*this, "lblDéfinition", u"Définition(s)"};
    TextBox txtDéfinition{*this,
                          "txtDéfinition",
                          {.ToolTipText = u" Texte limité à 200 caractères. ",
                           .Libellé = u"Définition(s)",
                           .MultiLine = true,
                           .PourFiche = true,
                           .MaxLength = CaractèresMaximum}};
    Label lblExemple{*this, "lblExemple", u"Exemple(s)"};
    TextBox txtExemple{*this,
                       "txtExemple",
                       {.ToolTipText = u" Ne pas insérer d'exemple pour une véritable recherche de l'élève. ",
                        .Libellé = u"Exemple(s)",
                        .MultiLine = true,
                        .PourFiche = true,
                        .MaxLength = CaractèresMaximum}};
    Button cmdValiderDéf{
        *this, "cmdValiderDéf", {.ToolTipText = u" Valide la définition. ", .Libellé = u"Valider la définition"}};
    Button cmdValiderEx{
        *this, "cmdValiderEx", {.ToolTipText = u" Valide l'exemple. ", .Libellé = u"Valider l'exemple"}};
    Button cmdAttacher{
        *this,
        "cmdAttacher",
        {.Caption = u"A&ttacher", .ToolTipText = u" Insère le mot dans le dictionnaire relatif au texte. "}};
    Button cmdEnregistrer{*this, "cmdEnregistrer", u"&Enregistrer"};
    Button cmdQuitter{
        *this,
        "cmdQuitter",
        {.Caption = u"&Quitter", .ToolTipText = u" Enregistre automatiquement les modifications avant de quitter. "}};
    Tableau<ComboBox> cmbListe{*this, "cmbListe", ListesDesSélecteurs()};
    Tableau<Button> cmdModifier{*this, "cmdModifier", BoutonsModifier()};
    Tableau<Button> cmdSupprimer{*this, "cmdSupprimer", BoutonsSupprimer()};
    TextBox txtModif{*this, "txtModif", {.Visible = false, .Libellé = u"Modification", .PourFiche = true}};

    Label lblConseil{*this, "lblConseil", u"Il est attendu au moins 4 mots par thème."};
    Label Label1{*this, "Label1", u"Après chaque saisie, validez en"};
    Label Label2{*this, "Label2", u"appuyant sur ENTREE."};
    Label lblRaccourci{*this, "lblRaccourci", u"Ctrl+Entrée : mot suivant du dictionnaire."};
    MenuOption mnuMotSuivant{*this, "mnuMotSuivant", u"Mot suivant"}; // in no menu: its shortcut

    Grid fgFamilles{*this, "fgFamilles", 0, ColonnesAuDépart};
    Grid fgSynonymes{*this, "fgSynonymes", 0, ColonnesAuDépart};
    Grid fgContraires{*this, "fgContraires", 0, ColonnesAuDépart};
    Grid fgGenre{*this, "fgGenre", 0, ColonnesAuDépart};
    Grid fgDicPrinc{*this, "fgDicPrinc", 0, ColonnesDictionnaire};
    Grid fgDic{*this, "fgDic", 0, ColonnesDictionnaire};

private:
    static constexpr std::size_t CaractèresMaximum = 200;

    void Load() override;
    void QueryUnload() override;
    Arrangement Disposer() override;
    Arrangement Place(int i);
    void RelierSélecteurs();

    void txtMot_Change(int i);
    void txtMot_GotFocus(int i);
    void txtMot_LostFocus(int i);
    void txtMot_Enter(int i);
    void txtModif_Enter();
    void txtModif_LostFocus();
    void cmdModifier_Click(int i);
    void cmdSupprimer_Click(int i);
    void cmdValiderDéf_Click();
    void cmdValiderEx_Click();
    void cmdAttacher_Click();
    void cmdEnregistrer_Click();
    void cmdQuitter_Click();
    void mnuMotSuivant_Click();

    [[nodiscard]] bool Charger(FichierTenu& tenu, VueTexte nom, Grid& grille, Cellules écrites);
    void ChargerFamilles();
    void ChargerPaires(FichierTenu& tenu, VueTexte nom, int référent);
    void ChargerSynonymes();
    void ChargerContraires();
    void ChargerGenre();
    void ChargerDicPrinc();
    void ChargerDicTexte();
    [[nodiscard]] bool Enregistrer();

    void ValiderMot(int i);
    [[nodiscard]] bool Accueillir(int i, const Texte& mot);
    void AjouterEntrée(int i);
    void AjouterSousThème();
    void AjouterMotDeFamille();
    void AjouterDépendant(int i);
    void AjouterAuGénéral(const Texte& mot);
    void AfficherDépendants(int i);
    void AfficherSousThèmes();
    void AfficherMotsDeFamille();
    void AfficherPaires(int référent);
    void AfficherMotDuTexte();
    void AfficherMotDuGénéral();
    void Renommer(int i, const Texte& ancien, const Texte& nouveau);
    void Retirer(int i, const Texte& mot);
    void RetirerDesDictionnaires(const Texte& mot);

    void Jouer(int i, const Texte& mot);
    void Garnir(int i, std::vector<Texte> mots);
    void PremierAffichage(int i);
    void MontrerDéfinition(int rangée);
    void PrendreDéfinition(TextBox& boîte, int colonne, bool& saisie);
    void ValiderCeQuiAttend();
    [[nodiscard]] Grid& GrilleDe(int i);
    [[nodiscard]] bool EstDuThème(int rangée) const;
    [[nodiscard]] bool EstDeLaFamille(int rangée) const;
    [[nodiscard]] std::pair<int, int> CelluleDeFamille(VueTexte mot) const;

    FichierTenu familles_;
    FichierTenu synonymes_;
    FichierTenu contraires_;
    FichierTenu genre_;
    FichierTenu dicPrinc_;
    FichierTenu dicTexte_;
    bool motSaisi_ = false; // what the field that has the keyboard holds was typed there
    bool définitionSaisie_ = false;
    bool exempleSaisi_ = false;
};

} // namespace tirelune
