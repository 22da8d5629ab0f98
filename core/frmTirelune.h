// The first and last screen: a blue gradient, three menus, a notice. Pupils and teachers enter from here.
#pragma once
#include "core/Ecran.h"

namespace tirelune {

class frmTirelune final : public Ecran {
public:
    explicit frmTirelune(Application& application);

    MenuOption mnuEnseignant{*this, "mnuEnseignant", u"        E&nseignant        "};
    MenuOption mnuElève{*this, "mnuElève", u"        E&lève        "};
    MenuOption mnuQuitter{*this, "mnuQuitter", u"                      &Quitter                      "};

    ComboBox cmbPassagePolices{*this, "cmbPassagePolices", {.Visible = false, .Sorted = true}};
    ComboBox cmbPolices{*this, "cmbPolices", {.Visible = false}};  // ends in blank rows, for the editor's list
    ListBox lstFichiers{*this, "lstFichiers", {.Visible = false}}; // the editor's recent files

    Image imgEnseigne{*this, "imgEnseigne", u"Tirelune"};
    Frame Frame1{*this, "Frame1", {.Caption = u"Avertissement"}};
    Tableau<Label> Label2;

    Frame frameCodeEnseignant{
        *this, "frameCodeEnseignant", {.Caption = u"Code d'accès requis pour le module Enseignant", .Visible = false}};
    Label lblCodeEnseignant{*this, "lblCodeEnseignant", u"Saisissez votre code :"};
    TextBox txtCodeEnseignant{*this, "txtCodeEnseignant", CodeCaché()};
    Label Label1{*this, "Label1", u"(6 caratères maximum)"};
    Label lblVérificationCode{
        *this, "lblVérificationCode", {.Caption = u"Saisissez votre code à nouveau :", .Visible = false}};
    TextBox txtVérificationCode{*this, "txtVérificationCode", CodeCaché(false)};
    Label lblCodeRappel{
        *this,
        "lblCodeRappel",
        {.Caption = u"Retenez bien ce code qui vous sera demandé à chaque accès enseignant.", .Visible = false}};
    Button cmdCode{*this, "cmdCode", u"O&k"};
    Button cmdAnnuler{*this, "cmdAnnuler", u"&Annuler"};

    std::vector<Menu> Menus() override;

private:
    static EtatInitial CodeCaché(bool visible = true);

    void Load() override;
    void Activate() override;
    void QueryUnload() override;
    Arrangement Disposer() override;

    void mnuEnseignant_Click();
    void cmdCode_Click();
    void cmdAnnuler_Click();
    void CacherCode();
    void ListerPolices(std::vector<Texte> polices);
    void DéfinirCode(const Texte& fichier);
};

} // namespace tirelune
