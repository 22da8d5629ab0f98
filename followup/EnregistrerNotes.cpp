#include "followup/EnregistrerNotes.h"

#include "core/Enregistrements.h"
#include "core/FichierChamps.h"
#include "followup/BoîteRéseau.h"
#include "followup/FichierBilan.h"
#include "followup/GrilleRésultats.h"
#include "followup/Notes.h"
#include "followup/frmExercices.h"

#include <algorithm>
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

// All records, row 0 left out. Nothing when a cell holds what a file can't.
std::optional<std::string> ComposerBilan(const Grid& grille)
{
    auto champs = FichesDe(grille, 1);
    std::transform(champs.begin(), champs.end(), champs.begin(), [](const Texte& champ) { return Rogner(champ); });
    return ComposerChamps(champs);
}

// A file that this grid was neither read from nor written to has results of its own, from when the other folder was
// out of reach, and a damaged one may have more than could be read: both stay under another name. False: they could
// not, and must not be replaced.
bool PeutEtreRemplacé(frmExercices& choix, const Texte& dossier, const Texte& fichier)
{
    const auto connu = choix.BilansConnus.find(dossier);
    if (connu != choix.BilansConnus.end() && connu->second.Remplaçable)
        return true;
    std::error_code erreur;
    const auto octets = LireFichier(EnChemin(fichier));
    if (octets ? octets->empty() : !std::filesystem::exists(EnChemin(fichier), erreur))
        return true;
    auto& application = choix.ApplicationDe();
    const bool abîmé = connu != choix.BilansConnus.end();
    const auto copie = octets
                           ? MettreDeCôté(application.plateforme, fichier, *octets, abîmé ? SuffixeAbîmé : SuffixeAutre)
                           : std::nullopt;
    if (copie)
        choix.BilansConnus[dossier] = {fichier};
    if (!copie)
        application.Avertir(
            (abîmé ? u"Ton fichier de résultats est abîmé :\n" : u"Il y a déjà d'autres résultats à ton nom :\n") +
            fichier +
            u"\n\nCe fichier n'a pas pu être mis de côté : rien n'a été enregistré. Préviens ton enseignant.");
    else if (!abîmé && copie->Nouvelle)
        application.Avertir(u"Il y avait déjà d'autres résultats à ton nom :\n" + fichier +
                            u"\n\nIls sont gardés sous le nom\n" + copie->Fichier + u"\n\nPréviens ton enseignant.");
    return copie.has_value();
}

// For a child. What the file held before may be gone with it: only the memory has all.
Texte MessageNonEnregistré(EchecFichier échec, const Texte& fichier)
{
    return u"Tes résultats n'ont pas pu être enregistrés :\n" + fichier + u"\n\n" +
           (échec == EchecFichier::Ouverture ? u"Son dossier n'est pas accessible."
                                             : u"Le disque est peut-être plein, ou n'est plus accessible.") +
           u"\nIls restent en mémoire tant que tu ne quittes pas le choix des exercices, et seront enregistrés avec "
           u"les prochains. Préviens ton enseignant.";
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
    if (!contenu) {
        application.Avertir(
            u"Tes résultats contiennent un caractère que leur fichier ne peut pas garder : rien n'a été "
            u"enregistré. Préviens ton enseignant.");
        return false;
    }
    for (;;) {
        const auto dossier = état.CheminBilans;
        const auto connu = choix.BilansConnus.find(dossier);
        const auto fichier =
            connu != choix.BilansConnus.end() ? connu->second.Fichier : FichierBilan(dossier, état.NomElève);
        if (!PeutEtreRemplacé(choix, dossier, fichier))
            return false;
        const auto échec = application.plateforme.Réécrire(EnChemin(fichier), *contenu);
        if (!échec) {
            choix.BilansConnus[dossier] = {fichier};
            choix.BilanEnregistré = true;
            return true;
        }
        if (échec == EchecFichier::Ecriture || !ChangerDeDossier(choix)) {
            application.Avertir(MessageNonEnregistré(*échec, fichier));
            return false;
        }
    }
}

} // namespace tirelune
