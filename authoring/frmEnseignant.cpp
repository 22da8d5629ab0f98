#include "authoring/frmEnseignant.h"

#include "authoring/CorrigerTexte.h"
#include "authoring/IcônesOutils.h"
#include "authoring/MarquerMot.h"
#include "authoring/NomFichier.h"
#include "core/Collage.h"
#include "core/Dégradé.h"
#include "core/EcrivainRtf.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tirelune {

namespace {

constexpr int TaillesProposées[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};
constexpr double TailleMinimum = 1; // points
constexpr double TailleMaximum = 400;
constexpr int Retrait = 100;             // twips
constexpr int CôtéMinimum = 1000;        // twips
constexpr int LargeurListe = 4800;       // twips
constexpr int HauteurListe = 5200;       // twips
constexpr int LargeurPolice = 1900;      // twips
constexpr std::size_t DébutDuChemin = 5; // in the caption of a recent file

// The size that a typed text stands for, in half points; nothing when it is no size.
std::optional<double> LireTaille(VueTexte saisie)
{
    const auto nombre = LireNombre(saisie);
    if (!nombre)
        return std::nullopt;
    const double taille = std::round(*nombre * 2) / 2;
    return taille >= TailleMinimum && taille <= TailleMaximum ? std::optional{taille} : std::nullopt;
}

TexteRiche Extrait(const TexteRiche& texte, std::size_t début, std::size_t longueur)
{
    auto extrait = texte;
    extrait.Remplacer(début + longueur, texte.Longueur(), u"");
    extrait.Remplacer(0, début, u"");
    const auto& premier = texte.ParagrapheEn(début); // what is cut off before it has lent it its own format
    extrait.FormaterParagraphes(0, 0, [&](FormatParagraphe& format) { format = premier; });
    return extrait;
}

// A recent file in the menu, where an "&" alone marks the access key.
Texte Entrée(int rang, const Texte& chemin)
{
    Texte entrée = u" " + EnTexte(rang) + u" - ";
    for (const char16_t c : chemin)
        entrée.append(c == u'&' ? 2 : 1, c);
    return entrée;
}

Texte CheminDeLEntrée(VueTexte entrée)
{
    Texte chemin;
    for (auto i = DébutDuChemin; i < entrée.size(); ++i) {
        chemin += entrée[i];
        if (entrée[i] == u'&')
            ++i;
    }
    return chemin;
}

// A save writes rich text there: over a text it may, over a page, a table or results that were read as plain text it
// must not.
bool AccueilleDuTexteRiche(VueTexte fichier, GenreDeTexte genre)
{
    const auto nom = Minuscules(fichier);
    return genre == GenreDeTexte::Riche || nom.ends_with(u".rtf") || nom.ends_with(u".txt");
}

// The file's name, extension included.
Texte TitreDe(const Texte& fichier)
{
    return DepuisChemin(EnChemin(fichier).filename());
}

} // namespace

// ---- The screen --------------------------------------------------------------------------------------------------

frmEnseignant::frmEnseignant(frmTirelune& accueil)
    : Ecran(accueil.ApplicationDe(), "frmEnseignant", u"Enseignant"),
      tlbBoutons(*this, "tlbBoutons", Boutons()),
      accueil_(accueil),
      liste_(framePolices, txtPolices, scrlPolices, accueil.cmbPolices)
{
    for (const int taille : TaillesProposées)
        cmbFontSize.AddItem(EnTexte(taille));
    mnuAuto.Checked = true;
    txtMessageCorrection.Locked = true;
    framePolices.Width = LargeurListe;
    framePolices.Height = HauteurListe;
    Fond = Dégradé();

    tlbBoutons.ButtonClick = [this](std::string_view clé) { tlbBoutons_ButtonClick(clé); };
    rtfTexte.Change = [this] { rtfTexte_Change(); };
    rtfTexte.SelChange = [this] { rtfTexte_SelChange(); };
    rtfTexte.Click = [this] { FermerPolices(); };
    RelierMenus();
    RelierPolices();
}

void frmEnseignant::RelierMenus()
{
    struct Liaison {
        MenuOption& Option;
        void (frmEnseignant::*Faire)();
        const char* Raccourci = "";
    };
    const Liaison liaisons[] = {
        {mnuNouveau, &frmEnseignant::mnuNouveau_Click, "Ctrl+N"},
        {mnuOuvrir, &frmEnseignant::mnuOuvrir_Click, "Ctrl+O"},
        {mnuEnregistrerSous, &frmEnseignant::mnuEnregistrerSous_Click},
        {mnuEnregistrer, &frmEnseignant::mnuEnregistrer_Click, "Ctrl+S"},
        {mnuImprimer, &frmEnseignant::mnuImprimer_Click, "Ctrl+P"},
        {mnuQuitter, &frmEnseignant::mnuQuitter_Click},
        {mnuSélectionner, &frmEnseignant::mnuSélectionner_Click, "Ctrl+A"},
        {mnuCouper, &frmEnseignant::mnuCouper_Click, "Ctrl+X"},
        {mnuCopier, &frmEnseignant::mnuCopier_Click, "Ctrl+C"},
        {mnuColler, &frmEnseignant::mnuColler_Click, "Ctrl+V"},
        {mnuRechercher, &frmEnseignant::mnuRechercher_Click, "Ctrl+F"},
        {mnuRemplacer, &frmEnseignant::mnuRemplacer_Click, "Ctrl+H"},
        {mnuAnnuler, &frmEnseignant::mnuAnnuler_Click, "Ctrl+Z"},
        {mnuPolice, &frmEnseignant::mnuPolice_Click},
        {mnuGras, &frmEnseignant::mnuGras_Click, "Ctrl+B"},
        {mnuSouligné, &frmEnseignant::mnuSouligné_Click, "Ctrl+U"},
        {mnuItalique, &frmEnseignant::mnuItalique_Click, "Ctrl+I"},
        {mnuGauche, &frmEnseignant::mnuGauche_Click},
        {mnuCentre, &frmEnseignant::mnuCentre_Click},
        {mnuDroite, &frmEnseignant::mnuDroite_Click},
        {mnuAuto, &frmEnseignant::mnuAuto_Click},
        {mnuGestion, &frmEnseignant::mnuGestion_Click},
        {mnuArrêter, &frmEnseignant::mnuQuitter_Click},
    };
    for (const auto& liaison : liaisons) {
        liaison.Option.Raccourci = liaison.Raccourci;
        liaison.Option.Click = [this, faire = liaison.Faire] { (this->*faire)(); };
    }
    mnuRécent.Click([this](int i) { mnuRécent_Click(i); });
}

void frmEnseignant::RelierPolices()
{
    for (int i = 1; i <= ListePolices::NombreLignes; ++i) {
        txtPolices(i).Click = [this, i] { txtPolices_Click(i); };
        txtPolices(i).MouseMove = [this, i] { liste_.MettreEnEvidence(i); };
        txtPolices(i).KeyPress = [this, i](Touche& touche) { txtPolices_KeyPress(i, touche); };
    }
    flèchePolice.Click = [this] { flèchePolice_Click(); };
    scrlPolices.Change = [this] { scrlPolices_Change(); };
    cmbFontSize.Click = [this] { cmbFontSize_Click(); };
    cmbFontSize.Enter = [this] { cmbFontSize_Click(); };
}

std::vector<Menu> frmEnseignant::Menus()
{
    std::vector<Menu> fichier{{&mnuNouveau},     {}, {&mnuOuvrir},   {}, {&mnuEnregistrerSous},
                              {&mnuEnregistrer}, {}, {&mnuImprimer}, {}, {&mnuQuitter},
                              {&mnuSépa}};
    for (auto& option : mnuRécent)
        fichier.push_back({&option});
    return {
        {&mnuFichier, std::move(fichier)},
        {&mnuEdition,
         {{&mnuSélectionner}, {}, {&mnuCouper}, {&mnuCopier}, {&mnuColler}, {}, {&mnuRechercher}, {&mnuRemplacer}}},
        {&mnuFormat,
         {{&mnuPolice},
          {},
          {&mnuGras},
          {&mnuSouligné},
          {&mnuItalique},
          {},
          {&mnuGauche},
          {&mnuCentre},
          {&mnuDroite},
          {},
          {&mnuAuto}}},
        {&mnuGestion},
        {&mnuArrêter},
    };
}

Arrangement frmEnseignant::Disposer()
{
    std::vector<Arrangement> lignes;
    for (int i = 1; i <= ListePolices::NombreLignes; ++i)
        lignes.emplace_back(txtPolices(i));
    return Colonne{
        Ligne{tlbBoutons, Ressort{}, AuMoins(LargeurPolice, 0, txtPolices(0)), flèchePolice, cmbFontSize},
        Extensible(Pile{
            rtfTexte,
            Colonne{Ressort{},
                    Centré{Cadre{frameCorrection, AuMoins(6000, 900, Colonne{Extensible(txtMessageCorrection)})}},
                    Ressort{}},
            Libre{Cadre{framePolices,
                        Ligne{Extensible(Arrangement(Disposition::Colonne, std::move(lignes))), scrlPolices}}},
        }),
    };
}

void frmEnseignant::Load()
{
    ChargerRécents();
    état.NomFichierTexte.clear();
    état.TitreFichierTexte = u"Document";
    accueil_.cmbPolices.Text = rtfTexte.SelFontName().value_or(Texte{});
    txtPolices(0).Text = accueil_.cmbPolices.Text;
    MontrerTaille(rtfTexte.SelFontSize());
    accueil_.cmbPolices.Tag = u"1"; // the list of fonts has not been opened yet
    ActualiserFormat();
    rtfSauve.TextRTF({});
    rtfTexte.SelIndent = Retrait;
    rtfTexte.SetFocus();
    état.TexteModifié = false;
}

void frmEnseignant::Resize()
{
    if (Width < CôtéMinimum || Height < CôtéMinimum) {
        Width = CôtéMinimum;
        Height = CôtéMinimum;
    }
}

void frmEnseignant::QueryUnload()
{
    mnuQuitter_Click();
}

void frmEnseignant::Click()
{
    FermerPolices();
}

// ---- The button bar ----------------------------------------------------------------------------------------------

std::span<const frmEnseignant::ActionBouton> frmEnseignant::Actions()
{
    using F = frmEnseignant;
    static constexpr bool AvecCopie = true;
    static constexpr bool AvecEtat = true;
    static constexpr std::array actions{
        ActionBouton{"btnNouveau", u"Nouveau texte", &F::mnuNouveau_Click},
        ActionBouton{"btnOuvrir", u"Ouvrir un texte", &F::mnuOuvrir_Click},
        ActionBouton{"btnEnregistrer", u"Enregistrer", &F::mnuEnregistrer_Click},
        ActionBouton{},
        ActionBouton{"btnSélectionner", u"Tout sélectionner", &F::mnuSélectionner_Click},
        ActionBouton{"btnCouper", u"Couper", &F::mnuCouper_Click, AvecCopie},
        ActionBouton{"btnCopier", u"Copier", &F::mnuCopier_Click},
        ActionBouton{"btnColler", u"Coller", &F::mnuColler_Click, AvecCopie},
        ActionBouton{"btnAnnuler", u"Annuler la dernière action", &F::btnAnnuler_Click},
        ActionBouton{},
        ActionBouton{"btnGras", u"Gras", &F::mnuGras_Click, AvecCopie, AvecEtat},
        ActionBouton{"btnSouligné", u"Souligné", &F::mnuSouligné_Click, AvecCopie, AvecEtat},
        ActionBouton{"btnItalique", u"Italique", &F::mnuItalique_Click, AvecCopie, AvecEtat},
        ActionBouton{},
        ActionBouton{"btnVocabulaire", u"Choisir ou retirer un mot des exercices", &F::btnVocabulaire_Click, AvecCopie},
        ActionBouton{"btnCouleurC", u"Couleur des caractères", &F::btnCouleurC_Click, AvecCopie},
        ActionBouton{},
        ActionBouton{"btnGauche", u"Aligner à gauche", &F::mnuGauche_Click, AvecCopie, AvecEtat},
        ActionBouton{"btnDroite", u"Aligner à droite", &F::mnuDroite_Click, AvecCopie, AvecEtat},
        ActionBouton{"btnCentrer", u"Centrer", &F::mnuCentre_Click, AvecCopie, AvecEtat},
        ActionBouton{},
        ActionBouton{"btnChercher", u"Rechercher", &F::mnuRechercher_Click},
        ActionBouton{"btnRemplacer", u"Remplacer", &F::mnuRemplacer_Click},
        ActionBouton{},
        ActionBouton{"btnImprimer", u"Imprimer", &F::mnuImprimer_Click},
        ActionBouton{},
        ActionBouton{"btnQuestion", u"Questionnaire du texte", &F::btnQuestion_Click},
        ActionBouton{"btnLexique", u"Lexique du texte", &F::btnLexique_Click},
    };
    return actions;
}

std::vector<Toolbar::Bouton> frmEnseignant::Boutons()
{
    std::vector<Toolbar::Bouton> boutons;
    for (const auto& action : Actions())
        boutons.push_back({.Clé = std::string{action.Clé},
                           .Icône = action.Clé.empty() ? Dessin{} : IcôneOutil(action.Clé),
                           .ToolTipText = Texte{action.Bulle},
                           .Basculant = action.Basculant});
    return boutons;
}

void frmEnseignant::tlbBoutons_ButtonClick(std::string_view clé)
{
    const auto actions = Actions();
    const auto action = std::find_if(actions.begin(), actions.end(), [&](const auto& a) { return a.Clé == clé; });
    if (action == actions.end() || action->Faire == nullptr)
        return;
    FermerPolices();
    if (action->Copie)
        GarderCopie();
    (this->*action->Faire)();
}

void frmEnseignant::GarderCopie()
{
    rtfSauve.TextRTF(rtfTexte.TextRTF());
    rtfSauve.Sélectionner(rtfTexte.SelStart(), rtfTexte.SelLength());
}

void frmEnseignant::btnAnnuler_Click()
{
    if (rtfSauve.Longueur() == 0)
        return;
    rtfTexte.TextRTF(rtfSauve.TextRTF());
    rtfTexte.Sélectionner(rtfSauve.SelStart(), rtfSauve.SelLength());
    rtfSauve.TextRTF({});
}

void frmEnseignant::mnuAnnuler_Click()
{
    tlbBoutons_ButtonClick("btnAnnuler");
}

void frmEnseignant::btnVocabulaire_Click()
{
    if (!MarquerMot(rtfTexte)) {
        Avertir(u"Vous devez cliquer sur le mot que vous voulez sélectionner\n"
                u"(ou sélectionner les mots d'une seule lettre si c'est le cas).\n\n"
                u"Les mots barrés seront utilisés pour certains exercices.");
        return;
    }
    état.TexteModifié = true;
}

void frmEnseignant::btnCouleurC_Click()
{
    const auto actuelle = rtfTexte.SelColor().value_or(Noir);
    const auto choisie = application_.plateforme.DemanderCouleur(actuelle.EstAutomatique() ? Noir : actuelle);
    if (!choisie)
        return;
    rtfTexte.SelColor = *choisie;
    état.TexteModifié = true;
}

void frmEnseignant::btnQuestion_Click()
{
    OuvrirOutilDuTexte("frmQuestions", u"Enregistrez votre texte pour accéder au QCM.");
}

void frmEnseignant::btnLexique_Click()
{
    OuvrirOutilDuTexte("frmLexique", u"Enregistrez votre texte pour accéder au lexique.");
}

// ---- Other screens -----------------------------------------------------------------------------------------------

void frmEnseignant::OuvrirOutilDuTexte(std::string_view nom, Texte refus)
{
    if (état.NomFichierTexte.empty())
        Avertir(std::move(refus));
    else
        Ouvrir(nom);
}

void frmEnseignant::mnuRechercher_Click()
{
    état.ModeRechercher = true;
    Ouvrir("frmRechercher");
}

void frmEnseignant::mnuRemplacer_Click()
{
    état.ModeRechercher = false;
    Ouvrir("frmRechercher");
}

void frmEnseignant::mnuGestion_Click()
{
    Ouvrir("frmGestionEleves");
}

// ---- The text's file ---------------------------------------------------------------------------------------------

bool frmEnseignant::DemanderEnregistrement()
{
    if (!état.TexteModifié)
        return true;
    if (!application_.Demander(u"Les modifications n'ont pas été enregistrées.\nSouhaitez-vous le faire?",
                               {.Danger = Perte::ParNon}))
        return true;
    if (Enregistrer() == Issue::Echec)
        return false;
    état.TexteModifié = false;
    return true;
}

void frmEnseignant::mnuNouveau_Click()
{
    if (!DemanderEnregistrement())
        return;
    rtfTexte.Text(u"");
    OublierNoms();
    rtfTexte.Sélectionner(0, 0);
    Caption = u"Nouveau document";
    ChargerRécents();
    ActualiserFormat();
    rtfSauve.TextRTF({});
    état.TexteModifié = false;
}

void frmEnseignant::OublierNoms()
{
    état.NomFichierTexte.clear();
    état.TitreFichierTexte.clear();
    état.CheminTextes = état.CheminAppli;
}

void frmEnseignant::mnuOuvrir_Click()
{
    if (état.CheminTextes.empty())
        état.CheminTextes = état.CheminAppli;
    const auto choisi = application_.plateforme.DemanderFichierAOuvrir(
        {.Titre = u"Ouvrir un fichier texte",
         .Filtre = u"Textes RTF|*.rtf|Textes TXT|*.txt|Tous fichiers|*.*",
         .Dossier = état.CheminTextes,
         .NomFichier = u"*.rtf"});
    if (const auto genre = choisi ? rtfTexte.LoadFile(EnChemin(*choisi), true) : std::nullopt) {
        AccueillirTexte(*choisi, *genre);
        return;
    }
    état.TexteModifié = false; // even after a cancel
    if (choisi)
        application_.Avertir(u"Impossible de lire ce format de fichier !", u"Erreur d'ouverture de fichier",
                             Icône::Critique);
}

// What follows the loading of a text. From here on nothing is asked about changes of the one before.
void frmEnseignant::AccueillirTexte(const Texte& fichier, GenreDeTexte genre)
{
    PrendreNoms(fichier);
    àNePasRemplacer_ = AccueilleDuTexteRiche(fichier, genre) ? Texte{} : Rogner(fichier);
    Caption = état.NomFichierTexte;
    AjouterRécent();
    ChargerRécents();
    ActualiserFormat();
    rtfSauve.TextRTF({});
    rtfTexte.Sélectionner(0, rtfTexte.Longueur());
    rtfTexte.SelIndent = Retrait;
    rtfTexte.SelRightIndent = Retrait;
    rtfTexte.SelLength(0);
    état.TexteModifié = false; // selecting and indenting count as changes
}

void frmEnseignant::PrendreNoms(const Texte& fichier)
{
    const auto titre = TitreDe(fichier);
    état.NomFichierTexte = fichier;
    état.TitreFichierTexte = titre.substr(0, titre.find(u'.'));
    état.CheminTextes = fichier.substr(0, fichier.size() - titre.size());
}

void frmEnseignant::mnuEnregistrer_Click()
{
    Enregistrer();
}

frmEnseignant::Issue frmEnseignant::Enregistrer()
{
    CorrigerTexte();
    état.NomFichierTexte = Rogner(état.NomFichierTexte);
    if (état.NomFichierTexte.empty() || état.NomFichierTexte == àNePasRemplacer_) {
        if (const auto issue = EnregistrerSous(); issue != Issue::Enregistré)
            return issue;
    } else {
        if (!Ecrire(état.NomFichierTexte))
            return Issue::Echec;
        AjouterRécent();
    }
    ChargerRécents();
    état.TexteModifié = false;
    return Issue::Enregistré;
}

void frmEnseignant::mnuEnregistrerSous_Click()
{
    EnregistrerSous();
}

frmEnseignant::Issue frmEnseignant::EnregistrerSous()
{
    CorrigerTexte();
    const auto choisi =
        application_.plateforme.DemanderFichierAEnregistrer({.Filtre = u"Texte mis en forme (*.rtf)|*.rtf",
                                                             .Dossier = état.CheminAppli,
                                                             .NomFichier = NomAProposer(),
                                                             .Extension = u"rtf"});
    if (!choisi)
        return Issue::Annulé;
    auto fichier = *choisi;
    if (TitreDe(fichier).empty())
        fichier = Joindre(fichier.empty() ? état.CheminAppli : fichier, u"document.rtf");
    if (!Ecrire(fichier))
        return Issue::Echec;
    PrendreNoms(fichier);
    àNePasRemplacer_.clear();
    if (état.TitreFichierTexte.empty())
        état.TitreFichierTexte = TitreDe(fichier);
    Caption = état.NomFichierTexte;
    AjouterRécent();
    ChargerRécents();
    état.TexteModifié = false;
    return Issue::Enregistré;
}

Texte frmEnseignant::NomAProposer() const
{
    if (état.NomFichierTexte.empty())
        return NomProposé(rtfTexte.Text());
    if (état.NomFichierTexte == àNePasRemplacer_)
        return état.CheminTextes + état.TitreFichierTexte + u".rtf";
    return état.NomFichierTexte;
}

// False when the file could not be written: the user has been told, and the text is still to be saved.
bool frmEnseignant::Ecrire(const Texte& fichier)
{
    const auto échec = application_.plateforme.Réécrire(EnChemin(fichier), EcrireRtf(rtfTexte.TextRTF()));
    if (!échec)
        return true;
    état.TexteModifié = true;
    Avertir(MessageEchec(*échec, fichier));
    return false;
}

void frmEnseignant::CorrigerTexte()
{
    if (!mnuAuto.Checked)
        return;
    frameCorrection.Visible = true;
    frameCorrection.Refresh();
    tirelune::CorrigerTexte(rtfTexte);
    frameCorrection.Visible = false;
    rtfTexte.SelStart(0);
}

void frmEnseignant::mnuAuto_Click()
{
    if (mnuAuto.Checked &&
        !application_.Demander(u"La mise en forme automatique corrige les erreurs d'espaces multiples et\n"
                               u"et de ponctuation, remplaçant également certains caractères sans nuire\n"
                               u"au texte saisi (correction à l'enregistrement).\n\n"
                               u"Souhaitez-vous supprimer cette fonction ?\n\n"
                               u"La désactivation pourrait entraîner des problèmes dans le module Elève !!!",
                               {.Danger = Perte::ParOui, .Titre = u"Espaces et Ponctuation"}))
        return;
    mnuAuto.Checked = !mnuAuto.Checked;
}

void frmEnseignant::mnuImprimer_Click()
{
    static_cast<void>(application_.plateforme.Imprimer(
        rtfTexte.TextRTF(), Extrait(rtfTexte.TextRTF(), rtfTexte.SelStart(), rtfTexte.SelLength())));
}

void frmEnseignant::mnuQuitter_Click()
{
    FermerPolices();
    if (!DemanderEnregistrement())
        return;
    état.TexteModifié = false;
    OublierNoms();
    rtfSauve.TextRTF({});
    Décharger();
}

// ---- Recent files ------------------------------------------------------------------------------------------------

void frmEnseignant::AjouterRécent()
{
    MettreEnTête(accueil_.lstFichiers, état.NomFichierTexte);
    EcrireRécents(application_.plateforme, accueil_.lstFichiers, FichierRécents(état.CheminAppli));
}

void frmEnseignant::ChargerRécents()
{
    auto& récents = accueil_.lstFichiers;
    if (!LireRécents(récents, FichierRécents(état.CheminAppli)))
        return;
    for (int i = 0; i < mnuRécent.Nombre(); ++i) {
        const bool présent = i < récents.ListCount();
        mnuRécent(i).Caption = présent ? Entrée(i + 1, récents.List(i)) : Texte{};
        mnuRécent(i).Visible = présent;
    }
    mnuSépa.Visible = récents.ListCount() > 0;
}

void frmEnseignant::mnuRécent_Click(int i)
{
    const auto fichier = CheminDeLEntrée(mnuRécent(i).Caption); // a save puts another one there
    if (!DemanderEnregistrement())
        return;
    const auto genre = rtfTexte.LoadFile(EnChemin(fichier), true);
    if (!genre) {
        Avertir(u"Je ne trouve pas le fichier sélectionné !", u"Fichier non trouvé");
        return;
    }
    AccueillirTexte(fichier, *genre);
}

// ---- Editing -----------------------------------------------------------------------------------------------------

void frmEnseignant::rtfTexte_Change()
{
    état.TexteModifié = true;
    FermerPolices();
}

void frmEnseignant::rtfTexte_SelChange()
{
    FermerPolices();
    ActualiserFormat();
}

void frmEnseignant::mnuSélectionner_Click()
{
    rtfTexte.Sélectionner(0, rtfTexte.Longueur());
}

void frmEnseignant::mnuCouper_Click()
{
    mnuCopier_Click();
    rtfTexte.SelText(u"");
    état.TexteModifié = true;
}

void frmEnseignant::mnuCopier_Click()
{
    if (rtfTexte.SelLength() > 0) // nothing selected: the clipboard keeps what it holds
        application_.plateforme.EcrirePressePapiers(rtfTexte.SelText());
}

void frmEnseignant::mnuColler_Click()
{
    const auto collé = NormaliserCollage(application_.plateforme.LirePressePapiers());
    if (!collé.empty())
        rtfTexte.SelText(collé);
}

// ---- Format of the selection -------------------------------------------------------------------------------------

void frmEnseignant::FormatChangé()
{
    ActualiserFormat();
    état.TexteModifié = true;
}

void frmEnseignant::mnuGras_Click()
{
    rtfTexte.SelBold = !rtfTexte.SelBold().value_or(false);
    FormatChangé();
}

void frmEnseignant::mnuSouligné_Click()
{
    rtfTexte.SelUnderline = !rtfTexte.SelUnderline().value_or(false);
    FormatChangé();
}

void frmEnseignant::mnuItalique_Click()
{
    rtfTexte.SelItalic = !rtfTexte.SelItalic().value_or(false);
    FormatChangé();
}

void frmEnseignant::Aligner(Cadrage alignement)
{
    rtfTexte.SelAlignment = alignement;
    FormatChangé();
}

void frmEnseignant::mnuGauche_Click()
{
    Aligner(Cadrage::Gauche);
}

void frmEnseignant::mnuCentre_Click()
{
    Aligner(Cadrage::Centre);
}

void frmEnseignant::mnuDroite_Click()
{
    Aligner(Cadrage::Droite);
}

void frmEnseignant::mnuPolice_Click()
{
    GarderCopie();
    const auto choix = application_.plateforme.DemanderPolice({.Nom = rtfTexte.SelFontName().value_or(Texte{}),
                                                               .Taille = rtfTexte.SelFontSize().value_or(0),
                                                               .Gras = rtfTexte.SelBold(),
                                                               .Italique = rtfTexte.SelItalic()});
    if (!choix)
        return;
    if (!choix->Nom.empty())
        rtfTexte.SelFontName = choix->Nom;
    if (choix->Taille > 0)
        rtfTexte.SelFontSize = choix->Taille;
    if (choix->Gras)
        rtfTexte.SelBold = *choix->Gras;
    if (choix->Italique)
        rtfTexte.SelItalic = *choix->Italique;
    FormatChangé();
}

void frmEnseignant::cmbFontSize_Click()
{
    const auto taille = LireTaille(cmbFontSize.Text);
    if (!taille) {
        MontrerTaille(rtfTexte.SelFontSize());
        return;
    }
    GarderCopie();
    rtfTexte.SelFontSize = *taille;
    FormatChangé();
    rtfTexte.SetFocus(); // typing goes on in that size
}

void frmEnseignant::ActualiserFormat()
{
    MontrerEtat("btnGras", mnuGras, rtfTexte.SelBold());
    MontrerEtat("btnSouligné", mnuSouligné, rtfTexte.SelUnderline());
    MontrerEtat("btnItalique", mnuItalique, rtfTexte.SelItalic());
    const auto alignement = rtfTexte.SelAlignment();
    const auto est = [&](Cadrage un) { return alignement ? std::optional{*alignement == un} : std::nullopt; };
    MontrerEtat("btnGauche", mnuGauche, est(Cadrage::Gauche));
    MontrerEtat("btnCentrer", mnuCentre, est(Cadrage::Centre));
    MontrerEtat("btnDroite", mnuDroite, est(Cadrage::Droite));
    MontrerTaille(rtfTexte.SelFontSize());
    txtPolices(0).Text = rtfTexte.SelFontName().value_or(Texte{});
}

void frmEnseignant::MontrerEtat(std::string_view clé, MenuOption& option, std::optional<bool> valeur)
{
    using enum Toolbar::Etat;
    option.Checked = valeur.value_or(false);
    tlbBoutons.Montrer(clé, !valeur ? Mixte : *valeur ? Enfoncé : Relâché);
}

void frmEnseignant::MontrerTaille(std::optional<double> taille)
{
    const auto séparateur = application_.plateforme.SéparateurDécimal();
    cmbFontSize.Text = taille ? EnTexte(static_cast<float>(*taille), séparateur) : Texte{};
    cmbFontSize.ListIndex = cmbFontSize.Chercher(cmbFontSize.Text);
}

// ---- The font list -----------------------------------------------------------------------------------------------

void frmEnseignant::FermerPolices()
{
    if (!framePolices.Visible)
        return;
    framePolices.Visible = false;
    rtfTexte.SetFocus();
}

void frmEnseignant::flèchePolice_Click()
{
    if (framePolices.Visible) {
        FermerPolices();
        return;
    }
    txtPolices(0).Text = rtfTexte.SelFontName().value_or(Texte{});
    framePolices.Left = std::max(0, rtfTexte.Width - framePolices.Width); // below the name of the font
    liste_.Ouvrir(txtPolices(0).Text);
}

void frmEnseignant::scrlPolices_Change()
{
    liste_.Remplir();
    txtPolices(liste_.LigneEnEvidence()).SetFocus();
}

void frmEnseignant::txtPolices_Click(int i)
{
    const auto police = txtPolices(i).Text();
    if (police.empty()) // a blank row at the end
        return;
    GarderCopie();
    txtPolices(0).Text = police;
    rtfTexte.SelFontName = police;
    état.TexteModifié = true;
    FermerPolices();
}

void frmEnseignant::txtPolices_KeyPress(int i, Touche& touche)
{
    if (touche.Code == Touche::Entrée)
        txtPolices_Click(i);
    else if (touche.Code == Touche::Echappement)
        FermerPolices();
    else if (!liste_.Déplacer(i, touche.Code))
        return;
    touche.Avaler();
}

} // namespace tirelune
