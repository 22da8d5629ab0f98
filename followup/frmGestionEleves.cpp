#include "followup/frmGestionEleves.h"

#include "core/FichierChamps.h"
#include "core/Remplacement.h"
#include "followup/DossierElèves.h"
#include "followup/FichierBilan.h"
#include "followup/NomElève.h"

#include <algorithm>

namespace tirelune {

namespace {

bool EstChiffre(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

// Whatever isn't a digit is dropped, Backspace too.
void ChiffresSeuls(Touche& touche)
{
    if (!EstChiffre(touche.Caractère) && touche.Code != Touche::Entrée)
        touche.Avaler();
}

// What was pasted may hold anything.
void GarderChiffres(TextBox& boîte)
{
    Texte chiffres = boîte.Text;
    std::erase_if(chiffres, [](char16_t c) { return !EstChiffre(c); });
    boîte.Text = std::move(chiffres);
}

} // namespace

frmGestionEleves::frmGestionEleves(Application& application)
    : Ecran(application, "frmGestionEleves", u"Gestion du fichier \"élèves\"")
{
    cmbNoms.Click = [this] { cmbNoms_Click(); };
    cmdAjouter.Click = [this] { cmdAjouter_Click(); };
    cmdAnnuler.Click = [this] { cmdAnnuler_Click(); };
    cmdSupprimer.Click = [this] { cmdSupprimer_Click(); };
    cmdCheminRéseau.Click = [this] { cmdCheminRéseau_Click(); };
    cmdValiderCheminRéseau.Click = [this] { cmdValiderCheminRéseau_Click(); };
    cmdQuitter.Click = [this] { Décharger(); };
    drvLecteurs.Change = [this] { drvLecteurs_Change(); };
    dirLecteurs.Change = [this] { dirLecteurs_Change(); };
    txtNom.Enter = [this] { txtNom_Enter(); };
    txtCode.KeyPress = ChiffresSeuls;
    txtVérif.KeyPress = ChiffresSeuls;
    txtCode.Change = [this] { txtCode_Change(); };
    txtVérif.Change = [this] { txtVérif_Change(); };
}

Arrangement frmGestionEleves::Disposer()
{
    return Colonne{
        Ressort{},
        Ligne{
            Extensible(
                Cadre{frameElèves,
                      Colonne{
                          Ressort{},
                          AuMoins(4500, 0, cmbNoms),
                          Ligne{cmdAjouter, cmdSupprimer, Ressort{}},
                          Ressort{},
                          Pile{
                              Colonne{txtNom, Ligne{lblConsigne, Ressort{}, cmdAnnuler}},
                              Colonne{lblCode, Ligne{AuMoins(1800, 0, txtCode), AuMoins(1800, 0, txtVérif), Ressort{}}},
                          },
                          Ressort{},
                      }}),
            Extensible(Cadre{frameRéseau,
                             Colonne{
                                 Label2,
                                 lblRéseau,
                                 Label1,
                                 Extensible(Pile{
                                     Colonne{Ressort{}, Ligne{Ressort{}, cmdCheminRéseau, Ressort{}}, Ressort{}},
                                     Colonne{drvLecteurs, Extensible(AuMoins(0, 1800, dirLecteurs)),
                                             Ligne{cmdValiderCheminRéseau, Ressort{}}},
                                 }),
                             }}),
        },
        Ressort{},
        lblMisDeCôté,
        Ligne{Ressort{}, cmdQuitter},
    };
}

void frmGestionEleves::Resize()
{
    for (auto* élément : Eléments())
        élément->FontSize = PointsSelonPlace();
}

void frmGestionEleves::Load()
{
    état.CodeValide = false;
    AtteindreDossierElèves(application_, listeBil);
    static_cast<void>(dirLecteurs.Path(état.CheminBilans)); // out of reach: no folder is shown
    dirLecteurs_Change();
    ListerNoms(listeBil, cmbNoms);
    MontrerRéseau();
    MontrerNote();
}

void frmGestionEleves::Unload()
{
    état.CodeValide = false;
}

void frmGestionEleves::MontrerRéseau()
{
    lblRéseau.Caption = état.CheminBilans;
    lblRéseau.ToolTipText = état.CheminRéseau;
}

// What fell back on the program's own folder lies there.
void frmGestionEleves::MontrerNote()
{
    auto note = NoteSurLeDossier(état.CheminBilans);
    if (état.CheminAppli != état.CheminBilans)
        note += NoteSurLeDossier(état.CheminAppli);
    lblMisDeCôté.Caption = note.substr(0, note.find_last_not_of(u'\n') + 1);
    lblMisDeCôté.Visible = !note.empty();
}

// Shows that name if it is still there.
void frmGestionEleves::Relister(VueTexte nom)
{
    listeBil.Refresh();
    ListerNoms(listeBil, cmbNoms);
    if (const int place = cmbNoms.Chercher(nom); place >= 0)
        cmbNoms.Montrer(place);
}

void frmGestionEleves::CacherCode()
{
    txtCode.Visible = false;
    txtVérif.Visible = false;
    lblCode.Visible = false;
}

// Its boxes go, and the keyboard would go with them.
void frmGestionEleves::QuitterLeCode()
{
    CacherCode();
    cmbNoms.SetFocus();
}

void frmGestionEleves::cmbNoms_Click()
{
    txtNom.Text = cmbNoms.Text;
    CacherCode();
}

// ---- A new pupil -----------------------------------------------------------------------------------------------

void frmGestionEleves::cmdAjouter_Click()
{
    CacherCode();
    txtNom.Text = Texte{};
    txtNom.Visible = true;
    lblConsigne.Visible = true;
    txtNom.SetFocus();
    cmdAnnuler.Visible = true;
}

void frmGestionEleves::cmdAnnuler_Click()
{
    txtNom.Visible = false;
    lblConsigne.Visible = false;
    cmdAnnuler.Visible = false;
    cmbNoms.Visible = true;
    cmdSupprimer.Visible = true;
    cmbNoms_Click();
    cmbNoms.SetFocus();
}

void frmGestionEleves::txtNom_Enter()
{
    const auto nom = Rogner(txtNom.Text);
    if (!cmdAjouter.Enabled || nom.empty())
        return;
    if (const auto refus = RefusDuNom(nom)) {
        Avertir(u"Le nom\n" + nom + u"\nest refusé : " + *refus);
        return;
    }
    if (ExisteDéjà(nom)) {
        Avertir(u"Le fichier \n" + nom + u".bil. existe déjà !\n");
        return;
    }
    CréerElève(nom);
}

bool frmGestionEleves::ExisteDéjà(const Texte& nom)
{
    Relister(cmbNoms.ListIndex >= 0 ? cmbNoms.List(cmbNoms.ListIndex) : Texte{}); // others may have made files
    const auto cherché = Minuscules(Texte{nom}.append(ExtensionBilan));
    for (int i = 0; i < listeBil.ListCount(); ++i) {
        if (Minuscules(listeBil.List(i)) == cherché)
            return true;
    }
    std::error_code erreur; // what isn't listed, such as a folder of that name
    return std::filesystem::exists(EnChemin(FichierBilan(état.CheminBilans, nom)), erreur);
}

void frmGestionEleves::CréerElève(const Texte& nom)
{
    const auto fichier = FichierBilan(état.CheminBilans, nom);
    if (const auto échec = RemplacerFichier(application_.plateforme, EnChemin(fichier), {})) {
        Avertir(MessageEchec(*échec, fichier));
        return;
    }
    Relister(nom);
    cmbNoms.ListIndex = cmbNoms.Chercher(nom); // some disks spell a name otherwise: then no item stands for it
    cmbNoms.Text = txtNom.Text;
    cmbNoms.Visible = true;
    txtNom.SelStart = 0; // the next name replaces this one
    txtNom.SelLength = txtNom.Text->size();
}

// ---- Deleting, behind the code -----------------------------------------------------------------------------------

void frmGestionEleves::cmdSupprimer_Click()
{
    txtNom.Visible = false;
    cmdAnnuler.Visible = false;
    lblConsigne.Visible = false;
    if (!état.CodeValide) {
        DemanderCode();
        return;
    }
    if (cmbNoms.ListCount() > 0 &&
        application_.Demander(u"Destruction irréversible. Souhaitez-vous continuer ?",
                              {.Danger = Perte::ParOui, .Objet = u"Elève : " + cmbNoms.Text()}))
        SupprimerElève();
}

void frmGestionEleves::SupprimerElève()
{
    const auto fichier = FichierMontré(listeBil, cmbNoms, état.CheminBilans);
    std::error_code erreur;
    const bool supprimé = std::filesystem::remove(EnChemin(fichier), erreur);
    if (erreur)
        Avertir(u"Impossible de supprimer le fichier\n" + fichier +
                u"\n\nVérifiez que son dossier est accessible et que vous avez le droit d'y écrire.");
    else if (!supprimé)
        Avertir(u"Le fichier\n" + fichier + u"\nn'est plus là : rien n'a été supprimé.");
    Relister({});
    MontrerNote();
}

void frmGestionEleves::DemanderCode()
{
    ViderCode(); // what a broken-off entry has left could not be taken back with the keys
    txtVérif.Visible = false;
    txtCode.Visible = true;
    lblCode.Caption = u"Tapez votre code d'accès (6 chiffres ou lettres).";
    lblCode.Visible = true;
    txtCode.SetFocus();
}

void frmGestionEleves::ViderCode()
{
    txtCode.Text = Texte{};
    txtVérif.Text = Texte{};
}

void frmGestionEleves::txtCode_Change()
{
    GarderChiffres(txtCode);
    if (txtCode.Text->size() != LongueurCode)
        return;
    const auto fichier = Joindre(état.CheminAppli, u"Code.txt");
    const auto champs = LireChamps(EnChemin(fichier));
    if (!champs && champs.Echec != EchecLecture::Absent) {
        txtCode.Text = Texte{};
        Avertir(MessageLecture(champs.Echec, fichier));
        return;
    }
    const auto code = champs && !champs->empty() ? champs->back() : Texte{};
    if (code.empty()) {
        txtVérif.Visible = true;
        lblCode.Caption = u"Confirmez votre code.";
        txtVérif.SetFocus();
    } else if (code != txtCode.Text()) {
        lblCode.Caption = u"Code erroné !";
        txtCode.Text = Texte{};
    } else {
        AccepterCode();
    }
}

void frmGestionEleves::txtVérif_Change()
{
    GarderChiffres(txtVérif);
    if (txtVérif.Text->size() != LongueurCode)
        return;
    if (txtVérif.Text != txtCode.Text) {
        ViderCode();
        QuitterLeCode();
        return;
    }
    const auto fichier = Joindre(état.CheminAppli, u"Code.txt");
    if (const auto échec = RemplacerChamps(application_.plateforme, EnChemin(fichier), {txtCode.Text})) {
        ViderCode();
        QuitterLeCode();
        Avertir(MessageEchec(*échec, fichier));
        return;
    }
    AccepterCode();
}

void frmGestionEleves::AccepterCode()
{
    état.CodeValide = true;
    QuitterLeCode();
    cmdSupprimer_Click();
}

// ---- The folder --------------------------------------------------------------------------------------------------

void frmGestionEleves::MontrerChoixDuChemin(bool visible)
{
    cmdCheminRéseau.Visible = !visible;
    drvLecteurs.Visible = visible;
    dirLecteurs.Visible = visible;
    cmdValiderCheminRéseau.Visible = visible;
}

void frmGestionEleves::cmdCheminRéseau_Click()
{
    MontrerChoixDuChemin(true);
}

void frmGestionEleves::drvLecteurs_Change()
{
    static_cast<void>(dirLecteurs.Path(drvLecteurs.Drive)); // an empty drive changes nothing
    dirLecteurs_Change();
}

// The list of drives shows where one is.
void frmGestionEleves::dirLecteurs_Change()
{
    drvLecteurs.Montrer(dirLecteurs.Path());
}

void frmGestionEleves::cmdValiderCheminRéseau_Click()
{
    MontrerChoixDuChemin(false);
    const auto dossier = dirLecteurs.Choisi();
    if (!TientDansUnChamp(dossier)) {
        Avertir(u"Le dossier\n" + dossier + u"\nne peut pas servir : son nom contient un caractère que le fichier " +
                u"Chemin.txt ne peut pas garder.");
        return;
    }
    const auto fichier = Joindre(état.CheminAppli, u"Chemin.txt");
    if (const auto échec = RemplacerChamps(application_.plateforme, EnChemin(fichier), {dossier})) {
        Avertir(MessageEchec(*échec, fichier)); // the choice would be gone at the next start: the old one holds
        return;
    }
    état.CheminRéseau = dossier;
    état.CheminBilans = état.CheminRéseau.empty() ? état.CheminAppli : état.CheminRéseau;
    AtteindreDossierElèves(application_, listeBil);
    MontrerRéseau();
    ListerNoms(listeBil, cmbNoms);
    MontrerNote();
}

} // namespace tirelune
