#include "followup/FichierBilan.h"

namespace tirelune {

Texte FichierBilan(VueTexte dossier, VueTexte nomElève)
{
    return Joindre(dossier, Texte{nomElève} + u".bil");
}

std::optional<Texte> CopierBilan(const Texte& fichier, VueTexte suffixe)
{
    Texte copie;
    std::error_code erreur;
    for (int numéro = 1; copie.empty() || std::filesystem::exists(EnChemin(copie), erreur); ++numéro)
        copie = Texte{fichier}.append(suffixe) + EnTexte(static_cast<long long>(numéro));
    return std::filesystem::copy_file(EnChemin(fichier), EnChemin(copie), erreur) ? std::optional{copie} : std::nullopt;
}

} // namespace tirelune
