#include "authoring/FichiersRécents.h"

#include "core/Fichiers.h"
#include "core/Windows1252.h"

namespace tirelune {

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

std::string ComposerRécents(const ListBox& récents)
{
    std::string contenu;
    for (const auto& chemin : récents.Eléments()) {
        const auto octets = EnWindows1252(chemin);
        if (octets && octets->find_first_of("\r\n") == std::string::npos)
            contenu += *octets + "\r\n";
    }
    return contenu;
}

} // namespace tirelune
