#include "followup/EnregistrerNotes.h"

#include "core/Enregistrements.h"
#include "core/FichierChamps.h"
#include "followup/BoîteRéseau.h"
#include "followup/FichierBilan.h"
#include "followup/GrilleRésultats.h"
#include "followup/Notes.h"
#include "followup/frmExercices.h"

#include <cassert>

namespace tirelune {

void EnregistrerNote(frmExercices& choix, float note)
{
    const int exercice = static_cast<int>(Valeur(choix.lblIndex.Caption));
    const int colonne = exercice + PremièreColonneNote;
    const auto séparateur = choix.ApplicationDe().plateforme.SéparateurDécimal();
    const auto texte = EnTexte(note, séparateur);
    choix.fgRésultats.TextMatrix(RangéeDuTexte(choix, Rogner(choix.lblTexte.Caption)), colonne, texte);

    const auto moyenne = MoyenneColonne(choix, colonne);
    assert(moyenne); // the score just written is one
    const auto texteMoyenne = EnTexte(*moyenne, séparateur);
    choix.fgRésultats.TextMatrix(0, colonne, texteMoyenne);

    choix.lblExo(exercice).BackColor = CouleurDeNote(note);
    choix.lblExo(exercice).ToolTipText = NoteCourte(texte);
    choix.lblMoyenne(exercice).BackColor = CouleurDeNote(*moyenne);
    choix.lblMoyenne(exercice).Caption = NoteCourte(texteMoyenne);
}

namespace {

// All records, row 0 left out. Titles that a field can't hold never get into the grid.
std::string ComposerBilan(const Grid& grille)
{
    auto champs = FichesDe(grille, 1);
    std::transform(champs.begin(), champs.end(), champs.begin(), [](const Texte& champ) { return Rogner(champ); });
    const auto octets = ComposerChamps(champs);
    assert(octets);
    return *octets;
}

// A file that this grid was neither read from nor written to has results of its own, from when the other folder was
// out of reach: they stay under another name. False: they could not be copied, and must not be replaced.
bool GarderAutresRésultats(frmExercices& choix, const Texte& fichier)
{
    std::error_code erreur;
    const bool plein = std::filesystem::file_size(EnChemin(fichier), erreur) > 0 && !erreur;
    if (!plein || choix.BilansConnus.contains(fichier))
        return true;
    const auto copie = CopierBilan(fichier, u".autre");
    choix.ApplicationDe().Avertir(
        u"Le fichier des résultats\n" + fichier + u"\ncontient d'autres résultats.\n\n" +
        (copie ? u"Ils sont gardés sous le nom\n" + *copie
               : Texte{u"Ils n'ont pas pu être copiés : rien n'a été enregistré. Prévenez votre enseignant."}));
    return copie.has_value();
}

// The file could not be opened: asks where to go on. False: nowhere.
bool ChangerDeDossier(frmExercices& choix)
{
    auto& application = choix.ApplicationDe();
    auto& état = application.état;
    if (RéessayerRéseau(application))
        return true;
    if (état.CheminBilans == état.CheminAppli)
        return false;
    état.CheminBilans = état.CheminAppli;
    return true;
}

} // namespace

bool SauverBilan(frmExercices& choix)
{
    auto& application = choix.ApplicationDe();
    auto& état = application.état;
    état.CheminBilans = état.CheminRéseau.empty() ? état.CheminAppli : état.CheminRéseau;
    const auto contenu = ComposerBilan(choix.fgRésultats);
    choix.BilanEnregistré = false;
    for (;;) {
        const auto fichier = FichierBilan(état.CheminBilans, état.NomElève);
        if (!GarderAutresRésultats(choix, fichier))
            return false;
        const auto échec = application.plateforme.Réécrire(EnChemin(fichier), contenu);
        if (!échec) {
            choix.BilansConnus.insert(fichier);
            choix.BilanEnregistré = true;
            return true;
        }
        if (échec == EchecFichier::Ecriture || !ChangerDeDossier(choix)) {
            application.Avertir(MessageEchec(*échec, fichier));
            return false;
        }
    }
}

} // namespace tirelune
