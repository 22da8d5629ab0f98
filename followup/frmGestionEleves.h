// The teacher's list of pupils, which is the list of their files: creates one, deletes one behind a second code,
// chooses the folder where they lie.
#pragma once
#include "core/Ecran.h"

namespace tirelune {

class frmGestionEleves final : public Ecran {
public:
    explicit frmGestionEleves(Application& application);

    Frame frameElèves{*this, "frameElèves", {.Caption = u"Elèves", .BackColor = Couleur::Rvb(0x4F, 0x9B, 0xE0)}};
    ComboBox cmbNoms{*this, "cmbNoms", {.Libellé = u"Elèves"}};
    Button cmdAjouter{*this, "cmdAjouter", {.Caption = u"&Ajouter", .ToolTipText = u" Ajouter un élève. "}};
    Button cmdSupprimer{
        *this, "cmdSupprimer", {.Caption = u"&Supprimer", .ToolTipText = u" Supprimer un fichier élève "}};

    TextBox txtNom{
        *this, "txtNom", {.Visible = false, .ToolTipText = u" Entrée pour valider ", .Libellé = u"Nom de l'élève"}};
    Label lblConsigne{*this, "lblConsigne", {.Caption = u"Entrée pour valider", .Visible = false}};
    Button cmdAnnuler{*this, "cmdAnnuler", {.Caption = u"A&nnuler", .Visible = false}};

    Label lblCode{*this, "lblCode", {.Caption = u"Code erroné", .Visible = false}};
    TextBox txtCode{*this,
                    "txtCode",
                    {.Visible = false,
                     .ToolTipText = u" Entrez votre code à 6 chiifres (votre date de naissance par exemple) et retenez "
                                    u"bien ce code. ",
                     .Libellé = u"Code",
                     .MaxLength = LongueurCode}};
    TextBox txtVérif{*this,
                     "txtVérif",
                     {.Visible = false,
                      .ToolTipText = u" Confirmez votre code ici. ",
                      .Libellé = u"Code à nouveau",
                      .MaxLength = LongueurCode}};

    Frame frameRéseau{*this, "frameRéseau", {.Caption = u"Réseau", .BackColor = Couleur::Rvb(0x5F, 0xB8, 0x65)}};
    Label Label2{*this, "Label2", u"Chemin Réseau actuel pour les bilans des élèves :"};
    Label lblRéseau{*this, "lblRéseau", {.Gras = true, .Bordure = true}};
    Label Label1{*this, "Label1",
                 u"En réseau, les résultats de tous les élèves peuvent être regroupés sur un seul ordinateur, à "
                 u"condition que le réseau fonctionne."};
    Button cmdCheminRéseau{*this,
                           "cmdCheminRéseau",
                           {.Caption = u"Travailler en réseau",
                            .ToolTipText = u" Un chemin réseau regroupe tous les résultats sur un seul ordinateur. "}};
    DriveListBox drvLecteurs{*this, "drvLecteurs", {.Visible = false, .Libellé = u"Lecteurs"}};
    DirListBox dirLecteurs{*this, "dirLecteurs", {.Visible = false, .Libellé = u"Dossiers"}};
    Button cmdValiderCheminRéseau{
        *this,
        "cmdValiderCheminRéseau",
        {.Caption = u"Valider le chemin réseau",
         .Visible = false,
         .ToolTipText = u" C'est le chemin qui sera désormais utilisé pour l'enregistrement des bilans. "}};

    Label lblMisDeCôté{*this, "lblMisDeCôté", {.Visible = false, .Bordure = true}};

    Button cmdQuitter{*this, "cmdQuitter", u"&Modifications terminées"};
    FileListBox listeBil{*this, "listeBil", u"*.bil"};

private:
    static constexpr std::size_t LongueurCode = 6;

    void Load() override;
    void Resize() override;
    void Unload() override;
    Arrangement Disposer() override;

    void cmbNoms_Click();
    void cmdAjouter_Click();
    void cmdAnnuler_Click();
    void cmdSupprimer_Click();
    void cmdCheminRéseau_Click();
    void cmdValiderCheminRéseau_Click();
    void drvLecteurs_Change();
    void dirLecteurs_Change();
    void txtNom_Enter();
    void txtCode_Change();
    void txtVérif_Change();

    void CacherCode();
    void QuitterLeCode();
    void DemanderCode();
    void ViderCode();
    void AccepterCode();
    void SupprimerElève();
    void CréerElève(const Texte& nom);
    [[nodiscard]] bool ExisteDéjà(const Texte& nom);
    void MontrerChoixDuChemin(bool visible);
    void MontrerRéseau();
    void MontrerNote();
    void Relister(VueTexte nom);
};

} // namespace tirelune
