#include "core/frmTirelune.h"

#include "core/Dégradé.h"
#include "core/Enseigne.h"
#include "core/FichierChamps.h"
#include "core/Remplacement.h"

namespace tirelune {

namespace {

constexpr VueTexte Conseil =
    u"     Tirelune nécessite un affichage de 800x600, avec 65 000 couleurs (24 bits) ou plus pour un "
    u"meilleur confort.                    Pour gagner de la place, faites disparaître la barre des tâches "
    u"du système : clic droit sur la barre, Propriétés, option Masquer automatiquement.";
constexpr std::size_t LongueurCode = 6;
constexpr int CôtéEnseigne = 3000;   // twips
constexpr int LargeurCode = 7800;    // twips: its title in full
constexpr int LargeurNotice = 11200; // twips
constexpr int LignesBlanches = 7;    // the editor shows its fonts seven at a time

// The school's own two lines: to be filled in here and nowhere else.
constexpr VueTexte SiteDeLEcole = u"[adresse du site : à compléter par l'école]";
constexpr VueTexte ContactDeLEcole = u"[adresse : à compléter par l'école]";

} // namespace

EtatInitial frmTirelune::CodeCaché(bool visible)
{
    return {.Visible = visible,
            .ToolTipText = u" 6 caractères maximum ",
            .PourFichier = true,
            .MaxLength = LongueurCode,
            .PasswordChar = u'*'};
}

frmTirelune::frmTirelune(Application& application)
    : Ecran(application, "frmTirelune", u"Tirelune"),
      Label2(*this, "Label2",
             {Texte{Conseil}, u"Une banque de textes régulièrement mise à jour est disponible sur le site suivant :",
              Texte{SiteDeLEcole}, u"Pour nous écrire : " + Texte{ContactDeLEcole}, Texte{}})
{
    imgEnseigne.Picture = Enseigne();
    mnuElève.Click = [this] { Ouvrir("frmExercices"); };
    mnuEnseignant.Click = [this] { mnuEnseignant_Click(); };
    mnuQuitter.Click = [this] { application_.plateforme.Terminer(); };
    cmdCode.Click = [this] { cmdCode_Click(); };
    txtCodeEnseignant.Enter = [this] { cmdCode_Click(); };
    txtVérificationCode.Enter = [this] { cmdCode_Click(); };
    cmdAnnuler.Click = [this] { cmdAnnuler_Click(); };
}

std::vector<Menu> frmTirelune::Menus()
{
    return {{&mnuEnseignant}, {&mnuElève}, {&mnuQuitter}};
}

Arrangement frmTirelune::Disposer()
{
    return Colonne{
        Extensible(Pile{
            Centré{AuMoins(CôtéEnseigne, CôtéEnseigne, imgEnseigne)},
            Centré{
                Cadre{frameCodeEnseignant, AuMoins(LargeurCode, 0,
                                                   Colonne{
                                                       Ligne{lblCodeEnseignant, Extensible(txtCodeEnseignant), Label1},
                                                       // No room is kept for what comes up at the first use alone.
                                                       Pile{lblVérificationCode},
                                                       Pile{txtVérificationCode},
                                                       Pile{lblCodeRappel},
                                                       Ligne{Ressort{}, cmdCode, cmdAnnuler},
                                                   })}},
        }),
        Centré{Cadre{Frame1, AuMoins(LargeurNotice, 0, Colonne(Label2))}},
    };
}

void frmTirelune::Load()
{
    application_.plateforme.DemanderPolices([this](std::vector<Texte> polices) { ListerPolices(std::move(polices)); });
}

void frmTirelune::ListerPolices(std::vector<Texte> polices)
{
    cmbPassagePolices.Clear();
    cmbPassagePolices.AddItems(std::move(polices));
    cmbPolices.Clear();
    cmbPolices.AddItems(cmbPassagePolices.Eléments());
    cmbPolices.AddItems(std::vector<Texte>(LignesBlanches));
}

void frmTirelune::Activate()
{
    état.CheminAppli = DepuisChemin(application_.plateforme.DossierProgramme());
    Label2(4).Caption = u"Les textes livrés avec Tirelune sont dans le dossier du programme : " + état.CheminAppli;
    Fond = Dégradé();
    const auto champs = LireChamps(EnChemin(Joindre(état.CheminAppli, u"Chemin.txt")));
    if (!champs || champs->empty())
        return;
    état.CheminRéseau = champs->front();
    état.CheminBilans = état.CheminRéseau.empty() ? état.CheminAppli : état.CheminRéseau;
}

void frmTirelune::mnuEnseignant_Click()
{
    txtCodeEnseignant.Text = Texte{};
    txtVérificationCode.Text = Texte{};
    imgEnseigne.Visible = false;
    frameCodeEnseignant.Visible = true;
    txtCodeEnseignant.SetFocus();
}

void frmTirelune::cmdCode_Click()
{
    const auto fichier = Joindre(état.CheminAppli, u"CodeEnseignant.txt");
    const auto champs = LireChamps(EnChemin(fichier));
    if (champs.Echec == EchecLecture::TropGrand || champs.Echec == EchecLecture::PasUnFichier) {
        Avertir(MessageLecture(champs.Echec, fichier)); // whatever it is, a new code must not replace it
        return;
    }
    if (!champs) {
        DéfinirCode(fichier);
        return;
    }
    CacherCode();
    if ((champs->empty() ? Texte{} : champs->back()) == txtCodeEnseignant.Text())
        Ouvrir("frmEnseignant");
}

void frmTirelune::DéfinirCode(const Texte& fichier)
{
    lblVérificationCode.Visible = true;
    txtVérificationCode.Visible = true;
    lblCodeRappel.Visible = true;
    txtVérificationCode.SetFocus();
    if (txtVérificationCode.Text != txtCodeEnseignant.Text)
        return;
    if (const auto échec = RemplacerChamps(application_.plateforme, EnChemin(fichier), {txtCodeEnseignant.Text})) {
        Avertir(MessageEchec(*échec, fichier));
        return;
    }
    CacherCode();
    Ouvrir("frmEnseignant");
}

void frmTirelune::CacherCode()
{
    lblVérificationCode.Visible = false;
    txtVérificationCode.Visible = false;
    lblCodeRappel.Visible = false;
    frameCodeEnseignant.Visible = false;
    imgEnseigne.Visible = true;
}

void frmTirelune::cmdAnnuler_Click()
{
    CacherCode();
    txtCodeEnseignant.Text = Texte{};
    txtVérificationCode.Text = Texte{};
}

void frmTirelune::QueryUnload()
{
    application_.plateforme.Terminer();
}

} // namespace tirelune
