#include "followup/FichierBilan.h"

#include "core/FichierChamps.h"
#include "core/Plateforme.h"
#include "followup/GrilleRésultats.h"

#include <algorithm>

namespace tirelune {

namespace {

// A save takes less. Clocks of two machines may differ: a file from a little later is as young.
constexpr std::chrono::seconds AgeDUnEnregistrement{10};

// The last line is whole: it has an end, and its quotes are a pair.
bool FinitUneLigne(std::string_view octets)
{
    const auto fin = octets.find_last_not_of("\r\n");
    if (fin == std::string_view::npos || fin + 1 == octets.size())
        return false;
    const auto ligne = octets.substr(0, fin + 1);
    const auto début = std::min(ligne.find_last_of("\r\n"), ligne.size()) + 1;
    const auto dernière = ligne.substr(début < ligne.size() ? début : 0);
    return dernière.front() != '"' || (dernière.size() > 1 && dernière.back() == '"');
}

bool FinitUneFiche(const std::vector<Texte>& champs)
{
    const auto marqueur =
        std::find_if(champs.rbegin(), champs.rend(), [](const Texte& champ) { return Rogner(champ) == Marqueur; });
    return marqueur - champs.rbegin() >= NombreColonnes;
}

} // namespace

Texte FichierBilan(VueTexte dossier, VueTexte nomElève)
{
    return Joindre(dossier, NomRéel(dossier, Texte{nomElève}.append(ExtensionBilan)));
}

bool EstFichierBilan(VueTexte nom)
{
    return nom.size() > ExtensionBilan.size() && Minuscules(nom).ends_with(ExtensionBilan);
}

VueTexte RacineBilan(VueTexte nom)
{
    return nom.substr(0, nom.size() - ExtensionBilan.size());
}

LectureBilan LireBilan(Plateforme& plateforme, const Texte& fichier)
{
    LectureBilan lecture;
    const auto âge = plateforme.AgeFichier(EnChemin(fichier));
    lecture.Octets = LireFichier(EnChemin(fichier), TailleDUnFichierDeChamps);
    lecture.Mouvant = !lecture.Octets || !âge || std::chrono::abs(*âge) < AgeDUnEnregistrement;
    if (!lecture.Octets)
        return lecture;
    auto champs = DécouperFichier(*lecture.Octets, Valeurs::SurUneLigne);
    if (!champs) {
        lecture.Octets.reset();
        return lecture;
    }
    lecture.Champs = std::move(*champs);
    lecture.Entier = !lecture.Champs.empty() && FinitUneLigne(*lecture.Octets) && FinitUneFiche(lecture.Champs);
    return lecture;
}

bool EstMisDeCôté(VueTexte nom)
{
    const auto numéro = nom.find_last_not_of(u"0123456789") + 1;
    const auto sansNuméro = nom.substr(0, numéro);
    if (numéro == nom.size())
        return false;
    for (const auto suffixe : {SuffixeAbîmé, SuffixeAutre}) {
        if (sansNuméro.ends_with(suffixe))
            return EstFichierBilan(sansNuméro.substr(0, sansNuméro.size() - suffixe.size()));
    }
    return false;
}

} // namespace tirelune
