#include "followup/frmExercices.h"

#include "core/Enregistrements.h"
#include "core/Enseigne.h"
#include "core/FichierChamps.h"
#include "core/Fonctions.h"
#include "followup/DossierElèves.h"
#include "followup/EnregistrerNotes.h"
#include "followup/FichierBilan.h"
#include "followup/GrilleRésultats.h"
#include "followup/Notes.h"
#include "followup/Pictogrammes.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr std::size_t CaractèresMinimum = 250;
constexpr int IndexQuestionnaire1 = 0;
constexpr int IndexQuestionnaire2 = 1;
constexpr VueTexte AFaire = u" A faire ";

// A small picture of curves on their axes.
Dessin Courbes()
{
    const auto tracé = [](std::vector<Point> points, Couleur teinte, double épaisseur) {
        return Forme{.Genre = GenreForme::Tracé, .Points = std::move(points), .Trait = teinte, .Epaisseur = épaisseur};
    };
    return {32,
            24,
            {tracé({{4, 2}, {4, 20}, {30, 20}}, Noir, 2), tracé({{4, 17}, {11, 12}, {18, 14}, {28, 5}}, Rouge, 2.5),
             tracé({{4, 9}, {11, 15}, {18, 8}, {28, 12}}, Bleu, 2.5)}};
}

EtatInitial EtatDuGroupe(int groupe)
{
    const auto& celui = Groupes.at(static_cast<std::size_t>(groupe));
    return {.Caption = Texte{celui.Titre},
            .ToolTipText = u" Cliquer sur le cadre de couleur pour voir la progression. ",
            .BackColor = celui.Bande,
            .Gras = true};
}

} // namespace

frmExercices::frmExercices(Application& application)
    : Ecran(application, "frmExercices", u"Choix des exercices"),
      frmCompréhension(*this, "frmCompréhension", EtatDuGroupe(0)),
      frmVocabulaire(*this, "frmVocabulaire", EtatDuGroupe(1)),
      frmVitesse(*this, "frmVitesse", EtatDuGroupe(2)),
      frmOrdre(*this, "frmOrdre", EtatDuGroupe(3)),
      frmOrthographe(*this, "frmOrthographe", EtatDuGroupe(4)),
      lblExo(*this, "lblExo", NombreExercices,
             {.ToolTipText = Texte{AFaire}, .BackColor = Blanc, .ForeColor = Noir, .SensDesCouleurs = Sens::Rien}),
      lblMoyenne(*this, "lblMoyenne", NombreExercices,
                 {.ToolTipText = u" Moyenne sur 10 pour tous les textes étudiés. ",
                  .BackColor = Blanc,
                  .ForeColor = Noir,
                  .Gras = true,
                  .Centré = true,
                  .Bordure = true,
                  .SensDesCouleurs = Sens::Rien}),
      imgCourbes(*this, "imgCourbes", static_cast<int>(Groupes.size()),
                 {.ToolTipText = u" Cliquer ici pour voir les courbes de progression. ", .Libellé = u"Courbes"}),
      lblConsigne(
          *this, "lblConsigne",
          EtatInitial{
              .Caption =
                  u"            AVERTISSEMENT                    Afficher les résultats ne charge pas le texte en "
                  u"mémoire.                       Pour cela, vous devez cliquer sur le bouton \"Charger un fichier "
                  u"texte\".",
              .FontSize = 10.5}),
      fgRésultats(*this, "fgRésultats", 1, NombreColonnes)
{
    for (int i = 0; i < NombreExercices; ++i) {
        lblExo(i).Caption = Texte{Exercices[static_cast<std::size_t>(i)].Libellé};
        lblExo(i).Picture = Pictogramme(i, GroupeDe(i).Profonde);
    }
    imgEnseigne.Picture = IcôneDuProgramme();
    cmdOk.Click = [this] { cmdOk_Click(); };
    cmbNoms.Enter = [this] { cmdOk_Click(); };
    cmdCharger.Click = [this] { cmdCharger_Click(); };
    cmbTextes.Click = [this] { cmbTextes_Click(); };
    lblExo.Click([this](int i) { lblExo_Click(i); });
    for (int groupe = 0; groupe < imgCourbes.Nombre(); ++groupe) {
        CadreDe(groupe).Click = [this, groupe] { Progression_Click(groupe); };
        imgCourbes(groupe).Picture = Courbes();
    }
    imgCourbes.Click([this](int i) { Progression_Click(i); });
    cmdCode.Click = [this] { Ouvrir("frmCodeCouleur"); };
    cmdQuitter.Click = [this] { QueryUnload(); };
}

Frame& frmExercices::CadreDe(int groupe)
{
    const std::array<Frame*, Groupes.size()> cadres{&frmCompréhension, &frmVocabulaire, &frmVitesse, &frmOrdre,
                                                    &frmOrthographe};
    return *cadres.at(static_cast<std::size_t>(groupe));
}

Arrangement frmExercices::DisposerGroupe(int groupe)
{
    const auto& celui = Groupes.at(static_cast<std::size_t>(groupe));
    std::vector<Arrangement> rangées;
    for (int i = celui.Premier; i < celui.Premier + celui.Nombre; ++i)
        rangées.emplace_back(Extensible(Ligne{Extensible(lblExo(i)), AuMoins(700, 0, lblMoyenne(i))}));
    return Extensible(Cadre{CadreDe(groupe), Arrangement(Disposition::Colonne, std::move(rangées)), imgCourbes(groupe)},
                      celui.Nombre + 1);
}

Arrangement frmExercices::Disposer()
{
    return Pile{
        Colonne{
            Ligne{cmdCharger, Extensible(lblTexte), cmdCode, cmdQuitter},
            Extensible(Ligne{
                Extensible(Colonne{DisposerGroupe(0), DisposerGroupe(1)}),
                Extensible(Colonne{DisposerGroupe(2), DisposerGroupe(3)}),
                Extensible(Colonne{
                    DisposerGroupe(4),
                    Carte{Colonne{Label2, Ligne{Extensible(lblVitesse), Extensible(lblVitesseMoyenne)}}},
                    Carte{Colonne{Label1, cmbTextes, lblConsigne}},
                }),
            }),
        },
        Couverture{frameElève,
                   Colonne{AuMoins(0, 1200, imgEnseigne), lblPrénom, AuMoins(5000, 0, cmbNoms), Centré{cmdOk}}},
    };
}

void frmExercices::Load()
{
    AtteindreDossierElèves(application_, listeBil);
    ListerElèves();
    frameElève.Visible = true;
}

void frmExercices::Resize()
{
    const double points = PointsSelonPlace();
    for (int i = 0; i < NombreExercices; ++i) {
        lblExo(i).FontSize = points;
        lblMoyenne(i).FontSize = points;
    }
}

void frmExercices::QueryUnload()
{
    // The grid goes with the screen: after a save that failed, this is the last one, and the file may be gone.
    if (BilanEnregistré || SauverBilan(*this) ||
        application_.Demander(u"Les résultats de " + état.NomElève +
                                  u" ne sont pas enregistrés. Si tu quittes maintenant, ils peuvent être tous perdus, "
                                  u"même ceux des autres jours.\n\nVeux-tu quitter quand même ?",
                              {.Danger = Perte::ParOui}))
        Décharger();
}

void frmExercices::ListerElèves()
{
    ListerNoms(listeBil, cmbNoms);
    if (listeBil.ListCount() == 0)
        Avertir(u"Il n'y a aucun fichier élève enregistré !");
}

void frmExercices::cmdOk_Click()
{
    état.NomElève = cmbNoms.Text;
    const auto fichier = FichierMontré(listeBil, cmbNoms, état.CheminBilans);
    const bool listé = cmbNoms.ListCount() > 0;
    auto lecture = listé ? LireBilanPosé(fichier) : LireBilan(application_.plateforme, fichier);
    if (!lecture)
        return; // closed meanwhile
    if (listé && !lecture->Octets) {
        DireIllisible(fichier);
        return; // the first save would replace what can't be read now
    }
    BilansConnus[état.CheminBilans] = {fichier};
    AjouterNomElève();
    const bool toutRangé = ChargerBilan(std::move(lecture->Champs));
    if (!toutRangé || lecture->Coupé())
        GarderBilanAbîmé(fichier, *lecture->Octets);
    frameElève.Visible = false;
}

// ---- The pupil's results ---------------------------------------------------------------------------------------

// While another machine saves the file, it is gone, empty or unfinished for a moment: it is looked at again, an old one
// once (the clocks may differ), a young one until it stays as it is. Nothing when the screen was closed meanwhile.
std::optional<LectureBilan> frmExercices::LireBilanPosé(const Texte& fichier)
{
    static constexpr std::chrono::milliseconds Pas{100};
    static constexpr std::chrono::milliseconds Limite{2000};
    std::optional<LectureBilan> retenue; // the last whole one, if there was any
    for (std::chrono::milliseconds attendu{0};; attendu += Pas) {
        auto lecture = LireBilan(application_.plateforme, fichier);
        const bool posée = lecture.Entier && (!lecture.Mouvant || (retenue && retenue->Octets == lecture.Octets));
        const bool assez = attendu >= (lecture.Mouvant ? Limite : Pas);
        if (lecture.Entier || (assez && !retenue))
            retenue = std::move(lecture);
        if (posée || assez)
            return retenue;
        if (!Attendre(Pas))
            return std::nullopt;
    }
}

void frmExercices::DireIllisible(const Texte& fichier)
{
    std::error_code erreur;
    const bool absent = !std::filesystem::exists(EnChemin(fichier), erreur) && !erreur &&
                        std::filesystem::is_directory(EnChemin(état.CheminBilans), erreur);
    Avertir((absent ? u"Ton fichier de résultats n'est plus là :\n" : u"Impossible de lire le fichier\n") + fichier +
            u"\n\nPréviens ton enseignant.");
}

// False: some of it has no place in the grid.
bool frmExercices::ChargerBilan(std::vector<Texte> champs)
{
    const bool toutRangé = RangerChamps(std::move(champs));
    CalculerMoyennes();
    PeindreMoyennes();
    if (cmbTextes.ListCount() > 0) {
        cmbTextes.Montrer(cmbTextes.ListCount() - 1);
        PeindreTexte(fgRésultats.Rows() - 1);
    }
    return toutRangé;
}

bool frmExercices::RangerChamps(std::vector<Texte> champs)
{
    // A cell is written trimmed: what would then open a record opens one now.
    std::transform(champs.begin(), champs.end(), champs.begin(), [](const Texte& champ) { return Rogner(champ); });
    std::vector<Texte> titres;
    for (std::size_t i = 1; i < champs.size(); ++i) {
        if (champs[i - 1] == Marqueur && champs[i] != Marqueur)
            titres.push_back(champs[i]);
    }
    const auto perdus = RangerFiches(std::move(champs), fgRésultats, 1, Colonnes::Fixes);
    for (int rangée = 1; rangée < fgRésultats.Rows(); ++rangée) {
        for (int colonne = PremièreColonneNote; colonne < NombreColonnes; ++colonne)
            PrendreSéparateur(rangée, colonne);
    }
    cmbTextes.AddItems(std::move(titres));
    return !perdus;
}

// A score may come from a machine with another decimal separator; this machine's own is what gets written.
void frmExercices::PrendreSéparateur(int rangée, int colonne)
{
    auto note = fgRésultats.TextMatrix(rangée, colonne);
    if (!LireNote(note))
        return;
    const auto séparateur = application_.plateforme.SéparateurDécimal();
    std::replace_if(
        note.begin(), note.end(), [](char16_t c) { return c == u'.' || c == u','; }, séparateur);
    fgRésultats.TextMatrix(rangée, colonne, std::move(note));
}

// The next save would lose what has no place in the grid, so the file stays under another name: told once, and as
// long as it fails.
void frmExercices::GarderBilanAbîmé(const Texte& fichier, const std::string& octets)
{
    const auto copie = MettreDeCôté(application_.plateforme, fichier, octets, SuffixeAbîmé);
    BilansConnus[état.CheminBilans].Remplaçable = copie.has_value();
    if (!copie)
        Avertir(u"Ton fichier de résultats est abîmé, et il n'a pas pu être mis de côté :\n" + fichier +
                u"\n\nTant que c'est ainsi, rien de nouveau ne sera enregistré. Préviens ton enseignant avant de "
                u"commencer.");
    else if (copie->Nouvelle)
        Avertir(u"Ton fichier de résultats est abîmé. Ce qui se lit encore est là.\n\nLe fichier tel qu'il était est "
                u"gardé sous le nom\n" +
                copie->Fichier + u"\n\nPréviens ton enseignant.");
}

void frmExercices::CalculerMoyennes()
{
    const auto séparateur = application_.plateforme.SéparateurDécimal();
    MontrerVitesseMoyenne(*this);
    for (int colonne = PremièreColonneNote; colonne < NombreColonnes; ++colonne) {
        if (const auto moyenne = MoyenneColonne(*this, colonne))
            fgRésultats.TextMatrix(0, colonne, EnTexte(*moyenne, séparateur));
    }
}

void frmExercices::PeindreMoyennes()
{
    for (int i = 0; i < NombreExercices; ++i) {
        const auto& texte = fgRésultats.TextMatrix(0, i + PremièreColonneNote);
        const auto moyenne = LireNote(texte);
        lblMoyenne(i).BackColor = moyenne ? CouleurDeNote(*moyenne) : Blanc;
        lblMoyenne(i).Caption = moyenne ? NoteCourte(texte) : Texte{};
    }
}

void frmExercices::PeindreTexte(int rangée)
{
    if (const auto& vitesse = fgRésultats.TextMatrix(rangée, ColonneVitesse); !vitesse.empty())
        lblVitesse.Caption = vitesse;
    for (int i = 0; i < NombreExercices; ++i) {
        const auto& texte = fgRésultats.TextMatrix(rangée, i + PremièreColonneNote);
        const auto note = LireNote(texte);
        lblExo(i).BackColor = note ? CouleurDeNote(*note) : Blanc;
        lblExo(i).ToolTipText = note ? NoteCourte(texte) : Texte{AFaire};
        lblExo(i).Plaque = note ? NoteCourte(texte) : Texte{};
    }
}

void frmExercices::EffacerCouleurs()
{
    for (auto& exercice : lblExo) {
        exercice.BackColor = Blanc;
        exercice.ToolTipText = Texte{AFaire};
        exercice.Plaque = Texte{};
    }
}

std::optional<int> frmExercices::ChercherTexte(const Texte& titre) const
{
    for (int rangée = 1; rangée < fgRésultats.Rows(); ++rangée) {
        if (Rogner(fgRésultats.TextMatrix(rangée, ColonneTitre)) == titre)
            return rangée;
    }
    return std::nullopt;
}

void frmExercices::cmbTextes_Click()
{
    if (cmbTextes.Text().empty())
        return;
    if (const auto rangée = ChercherTexte(Rogner(cmbTextes.Text)))
        PeindreTexte(*rangée);
    else
        EffacerCouleurs();
    MontrerVerrous(); // the speed that counts is the one that shows
}

// ---- The text --------------------------------------------------------------------------------------------------

namespace {

// The folder of a file, with its separator: the title is blanked out where it stands first, with the character
// behind it, and the blanks are trimmed. A title that stands in the path earlier is blanked there.
Texte DossierDuTexte(Texte fichier, const Texte& titre)
{
    const auto place = fichier.find(titre);
    const auto longueur = std::min(titre.size() + 1, fichier.size() - place);
    return Rogner(fichier.replace(place, longueur, longueur, u' '));
}

// The title is a cell of the pupil's file, one line of it.
bool PeutServirDeTitre(VueTexte titre)
{
    return !titre.empty() && titre != Marqueur && TientDansUnChamp(titre) && !Contient(titre, u'\r') &&
           !Contient(titre, u'\n');
}

} // namespace

void frmExercices::cmdCharger_Click()
{
    const auto choisi = application_.plateforme.DemanderFichierAOuvrir(
        {.Titre = u"Ouvrir un fichier texte",
         .Filtre = u"Textes RTF|*.rtf",
         .Dossier = état.CheminTexteElève.empty() ? état.CheminAppli : état.CheminTexteElève,
         .NomFichier = u"*.rtf"});
    if (!choisi)
        return;
    const auto titreFichier = DepuisChemin(EnChemin(*choisi).filename());
    const auto titre = titreFichier.substr(0, titreFichier.find(u'.'));
    if (!PeutServirDeTitre(Rogner(titre))) {
        Avertir(u"Le nom de ce fichier ne peut pas servir de titre. Demande à ton enseignant de le renommer.");
        return;
    }
    if (!rtfTexte.LoadFile(EnChemin(*choisi))) {
        Avertir(u"Impossible de lire ce format de fichier !", u"Erreur lors de l'ouverture");
        return;
    }
    RedresserApostrophes();
    état.CheminTexteElève = DossierDuTexte(*choisi, titreFichier);
    lblTexte.Caption = u" " + titre + u" ";
    lblTexte.Visible = true;
    lblVitesse.Caption = Texte{};
    MontrerRésultats(Rogner(titre));
    ChargerVocabulaire();
}

// Word processors write another one than the rules' sets of letters have.
void frmExercices::RedresserApostrophes()
{
    auto texte = rtfTexte.Text();
    std::transform(texte.begin(), texte.end(), texte.begin(), ApostropheDroite);
    rtfTexte.Transcrire(std::move(texte));
}

void frmExercices::MontrerRésultats(const Texte& titre)
{
    if (cmbTextes.Chercher(titre) < 0)
        cmbTextes.AddItem(titre);
    cmbTextes.Montrer(cmbTextes.Chercher(titre));
    if (const auto rangée = ChercherTexte(titre))
        PeindreTexte(*rangée);
    else
        EffacerCouleurs();
    MontrerVerrous();
}

void frmExercices::ChargerVocabulaire()
{
    cmbVocabulaire.Clear();
    cmbVocabulaire.AddItems(MotsMarqués(rtfTexte.TextRTF()));
}

// ---- The exercises ---------------------------------------------------------------------------------------------

void frmExercices::lblExo_Click(int i)
{
    if (Rogner(lblTexte.Caption).empty()) {
        Avertir(u"Vous devez d'abord ouvrir un fichier texte !");
        return;
    }
    if (Rogner(rtfTexte.Text()).size() < CaractèresMinimum) {
        Avertir(u"Le texte est trop court !");
        return;
    }
    lblExo(i).Bordure = true;
    lblExo(i).MousePointer = Pointeur::Sablier;
    lblIndex.Caption = EnTexte(i);
    OuvrirExercice(i);
    MontrerVerrous();
    lblExo(i).MousePointer = Pointeur::Normal;
    lblExo(i).Bordure = false;
}

bool frmExercices::EstVerrouillé(int i) const
{
    return i > IndexQuestionnaire1 && lblVitesse.Caption().empty();
}

void frmExercices::MontrerVerrous()
{
    const bool chargé = !Rogner(lblTexte.Caption).empty();
    for (int i = 0; i < NombreExercices; ++i)
        lblExo(i).Verrouillé = chargé && EstVerrouillé(i);
}

void frmExercices::OuvrirExercice(int i)
{
    if (EstVerrouillé(i)) {
        Avertir(u"Tu dois faire l'exercice - QUESTIONNAIRE 1 - avant tous les autres.");
        return;
    }
    if (i == IndexQuestionnaire2 && !TrouverQuestionnaire())
        return;
    Ouvrir(Exercices.at(static_cast<std::size_t>(i)).NomEcran);
}

void frmExercices::Présenter(Ecran& écran) const
{
    const int i = Compte(lblIndex);
    const auto& [libellé, nomEcran] = Exercices.at(static_cast<std::size_t>(i));
    if (nomEcran != écran.Nom)
        return; // no exercise
    const auto& groupe = GroupeDe(i);
    écran.Présentation = {.Titre = Texte{libellé},
                          .NomElève = état.NomElève,
                          .Pictogramme = Pictogramme(i, groupe.Profonde),
                          .Bande = groupe.Bande,
                          .Profonde = groupe.Profonde};
}

bool frmExercices::TrouverQuestionnaire()
{
    VérifQuestions(état, lblTexte.Caption);
    if (!état.QuestionnaireExiste)
        Avertir(u"Je ne trouve pas de questionnaire associé au texte !");
    return état.QuestionnaireExiste;
}

void frmExercices::Progression_Click(int groupe)
{
    état.GroupeCourbes = static_cast<std::uint8_t>(groupe + 1);
    Ouvrir("frmProgression");
}

} // namespace tirelune
