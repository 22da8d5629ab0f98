#include "core/Remplacement.h"

#include "core/FichierChamps.h"
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

std::optional<EchecRemplacement> RemplacerChamps(Plateforme& plateforme, const Chemin& fichier,
                                                 const std::vector<Texte>& champs)
{
    const auto octets = ComposerChamps(champs);
    return octets ? RemplacerFichier(plateforme, fichier, *octets) : EchecRemplacement{EchecFichier::Contenu, true};
}

Texte MessageEchec(const EchecRemplacement& échec, VueTexte fichier)
{
    const auto message =
        (u"Impossible d'enregistrer le fichier\n" + Texte{fichier} + u"\n\n").append(CauseDe(échec.Cause));
    return message + (échec.CommeAvant ? u"\nRien n'a changé : recommencez quand ce sera réparé."
                                       : u"\nSon ancien contenu n'a pas pu être remis : recommencez dès que possible.");
}

} // namespace tirelune
