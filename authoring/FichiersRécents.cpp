#include "authoring/FichiersRécents.h"

#include "core/Plateforme.h"
#include "core/Windows1252.h"

#include <algorithm>
#include <optional>

namespace tirelune {

namespace {

constexpr VueTexte EnMémoire = u"en mémoire"; // the tag of a list that the file could not take whole

std::optional<std::string> EnLigne(VueTexte chemin)
{
    auto octets = EnWindows1252(chemin);
    if (!octets || octets->find_first_of("\r\n") != std::string::npos)
        return std::nullopt;
    return octets->append("\r\n");
}

} // namespace

Texte FichierRécents(VueTexte cheminAppli)
{
    return Texte{cheminAppli} + u"Récents.dat";
}

void MettreEnTête(ListBox& récents, const Texte& chemin)
{
    if (chemin.empty())
        return;
    if (const int place = récents.Chercher(chemin); place >= 0)
        récents.RemoveItem(place);
    récents.AddItem(chemin, 0);
    while (récents.ListCount() > RécentsMaximum)
        récents.RemoveItem(récents.ListCount() - 1);
}

bool LireRécents(ListBox& récents, const Texte& fichier)
{
    if (récents.Tag == EnMémoire)
        return true;
    récents.Clear();
    const auto octets = LireFichier(EnChemin(fichier));
    if (!octets)
        return false;
    std::string_view reste = *octets;
    while (!reste.empty() && récents.ListCount() < RécentsMaximum) {
        const auto fin = std::min(reste.find_first_of("\r\n"), reste.size());
        const auto ligne = DepuisWindows1252(reste.substr(0, fin));
        reste.remove_prefix(std::min(fin + 1, reste.size()));
        if (récents.Chercher(ligne) >= 0)
            MettreEnTête(récents, ligne);
        else if (!ligne.empty())
            récents.AddItem(ligne);
    }
    return true;
}

void EcrireRécents(Plateforme& plateforme, ListBox& récents, const Texte& fichier)
{
    const auto& chemins = récents.Eléments();
    const bool entière =
        std::all_of(chemins.begin(), chemins.end(), [](const auto& c) { return EnLigne(c).has_value(); });
    const bool écrite = !plateforme.Réécrire(EnChemin(fichier), ComposerRécents(récents));
    récents.Tag = écrite && entière ? Texte{} : Texte{EnMémoire};
}

std::string ComposerRécents(const ListBox& récents)
{
    std::string contenu;
    for (const auto& chemin : récents.Eléments())
        contenu += EnLigne(chemin).value_or("");
    return contenu;
}

} // namespace tirelune
