#include "core/Remplacement.h"

#include "core/Plateforme.h"

namespace tirelune {

namespace {

bool Remettre(Plateforme& plateforme, const Chemin& fichier, const std::optional<std::string>& ancien)
{
    if (ancien && (LireFichier(fichier) == ancien || !plateforme.Réécrire(fichier, *ancien)))
        return true;
    std::error_code erreur; // half a file would say what nobody has written
    std::filesystem::remove(fichier, erreur);
    return !ancien && !std::filesystem::exists(fichier, erreur);
}

} // namespace

std::optional<EchecRemplacement> RemplacerFichier(Plateforme& plateforme, const Chemin& fichier,
                                                  std::string_view contenu)
{
    const auto ancien = LireFichier(fichier);
    if (const auto échec = plateforme.Réécrire(fichier, contenu))
        return EchecRemplacement{*échec, Remettre(plateforme, fichier, ancien)};
    return std::nullopt;
}

Texte MessageEchec(const EchecRemplacement& échec, VueTexte fichier)
{
    Texte message = u"Impossible d'enregistrer le fichier\n" + Texte{fichier} + u"\n\n";
    message += échec.Cause == EchecFichier::Ouverture
                   ? u"Vérifiez que son dossier existe et que vous avez le droit d'y écrire."
                   : u"Le disque est peut-être plein ou n'est plus accessible.";
    return message + (échec.CommeAvant ? u"\nRien n'a changé : recommencez quand ce sera réparé."
                                       : u"\nSon ancien contenu n'a pas pu être remis : recommencez dès que possible.");
}

} // namespace tirelune
