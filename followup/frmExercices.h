// The pupil's home: sign-in by name, the text, the 27 exercises in the colours of their scores.
// It stays loaded under every exercise, which find the text and the vocabulary here and put their scores here.
#pragma once
#include "core/Ecran.h"
#include "followup/Exercices.h"
#include "followup/FichierBilan.h"

#include <map>

namespace tirelune {

class frmExercices final : public Ecran {
public:
    explicit frmExercices(Application& application);

    Label lblTexte{*this, "lblTexte", {.Visible = false, .ToolTipText = u" Texte chargé ", .Gras = true}};
    Button cmdCharger{*this, "cmdCharger", u"C&harger un fichier texte"};

    Frame frmCompréhension, frmVocabulaire, frmVitesse, frmOrdre, frmOrthographe;
    Tableau<Label> lblExo;
    Tableau<Label> lblMoyenne;
    Tableau<Image> imgCourbes;

    Label Label1{*this, "Label1", {.Caption = u" Afficher les résultats (textes déjà étudiés) :", .FontSize = 10.5}};
    ComboBox cmbTextes{
        *this, "cmbTextes", {.ToolTipText = u" Affiche les résultats dans l'ordre des textes étudiés. "}};
    Label lblConsigne;
    Label Label2{*this, "Label2", {.Caption = u" Vitesse de lecture (signes par minute) ", .FontSize = 10.5}};
    Label lblVitesse{*this, "lblVitesse", {.ToolTipText = u" Texte en cours ", .Centré = true, .Bordure = true}};
    Label lblVitesseMoyenne{*this, "lblVitesseMoyenne", {.ToolTipText = u" Moyenne ", .Centré = true, .Bordure = true}};
    Button cmdCode{*this, "cmdCode", u"&Code des Couleurs"};
    Button cmdQuitter{*this, "cmdQuitter", u"&Quitter"};

    Frame frameElève{*this, "frameElève", u"Elève"};
    Image imgEnseigne{*this, "imgEnseigne"};
    Label lblPrénom{*this, "lblPrénom", {.Caption = u"Choisis ton nom :", .FontSize = 18}};
    ComboBox cmbNoms{*this, "cmbNoms", {.FontSize = 18}};
    Button cmdOk{*this, "cmdOk", {.Caption = u"&Ok", .FontSize = 18}};

    // Out of sight: what the exercises work on.
    FileListBox listeBil{*this, "listeBil", u"*.bil"};
    Grid fgRésultats;
    RichTextBox rtfTexte{*this, "rtfTexte", {.Visible = false}};
    ComboBox cmbVocabulaire{*this, "cmbVocabulaire", {.Visible = false, .Sorted = true}};
    Label lblIndex{*this, "lblIndex", {.Visible = false}};

    // The pupil's file in a folder, as this screen has read or written it there.
    struct Bilan {
        Texte Fichier;
        bool Remplaçable = true; // false: it is damaged, and could not be set aside yet
    };
    std::map<Texte, Bilan> BilansConnus; // by folder
    bool BilanEnregistré = true;         // the grid is on the disk

    // Shows in lblExo how the text of a grid row has been worked on.
    void PeindreTexte(int rangée);
    // Gives an exercise that is about to be opened its title, its pictogram and its group's colours.
    void Présenter(Ecran& écran) const;
    // Whether the text has questions; when it has none, the pupil is told.
    [[nodiscard]] bool TrouverQuestionnaire();

private:
    void Load() override;
    void QueryUnload() override;
    void Resize() override;
    Arrangement Disposer() override;

    void cmdOk_Click();
    void cmdCharger_Click();
    void cmbTextes_Click();
    void lblExo_Click(int i);
    void Progression_Click(int groupe);

    void ListerElèves();
    [[nodiscard]] std::optional<LectureBilan> LireBilanPosé(const Texte& fichier);
    void DireIllisible(const Texte& fichier);
    [[nodiscard]] bool ChargerBilan(std::vector<Texte> champs);
    [[nodiscard]] bool RangerChamps(std::vector<Texte> champs);
    void PrendreSéparateur(int rangée, int colonne);
    void GarderBilanAbîmé(const Texte& fichier, const std::string& octets);
    void CalculerMoyennes();
    void PeindreMoyennes();
    void RedresserApostrophes();
    void MontrerRésultats(const Texte& titre);
    void ChargerVocabulaire();
    void EffacerCouleurs();
    // Whether the text has to be read first, in the first questionnaire.
    [[nodiscard]] bool EstVerrouillé(int i) const;
    void MontrerVerrous();
    void OuvrirExercice(int i);
    // Row of a title, compared trimmed; nothing when the text was never worked on.
    [[nodiscard]] std::optional<int> ChercherTexte(const Texte& titre) const;
    [[nodiscard]] Frame& CadreDe(int groupe);
    [[nodiscard]] Arrangement DisposerGroupe(int groupe);
};

} // namespace tirelune
