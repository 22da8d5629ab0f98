#include "core/MiseDeCôté.h"

#include "core/Plateforme.h"

namespace tirelune {

std::optional<Copie> MettreDeCôté(Plateforme& plateforme, const Texte& fichier, const std::string& octets,
                                  VueTexte suffixe)
{
    for (long long numéro = 1;; ++numéro) {
        auto copie = Texte{fichier}.append(suffixe) + EnTexte(numéro);
        const auto chemin = EnChemin(copie);
        if (std::error_code erreur; std::filesystem::exists(chemin, erreur)) {
            if (LireFichier(chemin) == octets)
                return Copie{std::move(copie), false};
            continue;
        }
        if (!plateforme.Réécrire(chemin, octets)) {
            PousserDossier(chemin.parent_path());
            return Copie{std::move(copie), true};
        }
        std::error_code ignorée; // half a copy would look like a whole one
        std::filesystem::remove(chemin, ignorée);
        return std::nullopt;
    }
}

} // namespace tirelune
