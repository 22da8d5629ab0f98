#include "followup/NomElève.h"

#include "followup/FichierBilan.h"

#include <algorithm>
#include <array>

namespace tirelune {

namespace {

constexpr std::size_t OctetsMaximum = 255; // of a file name, on the usual file systems
constexpr VueTexte Interdits = u"/\\<>:\"|?*";

bool EstDeCommande(char16_t c)
{
    return c < 0x20;
}

// Half of a pair has no place in a file's name.
bool EstIncomplet(VueTexte nom)
{
    return DepuisUtf8(EnUtf8(nom)) != nom;
}

// Names of devices: no file may bear them, whatever its extension.
bool EstRéservé(VueTexte nom)
{
    static constexpr std::array<VueTexte, 4> Seuls{u"con", u"prn", u"aux", u"nul"};
    static constexpr std::array<VueTexte, 2> Numérotés{u"com", u"lpt"};
    static constexpr VueTexte Numéros = u"123456789¹²³";
    const auto racine = Minuscules(Rogner(nom.substr(0, nom.find(u'.'))));
    if (std::find(Seuls.begin(), Seuls.end(), racine) != Seuls.end())
        return true;
    return racine.size() == 4 && Contient(Numéros, racine.back()) &&
           std::find(Numérotés.begin(), Numérotés.end(), VueTexte{racine}.substr(0, 3)) != Numérotés.end();
}

} // namespace

std::optional<Texte> RefusDuNom(VueTexte nom)
{
    if (nom.empty())
        return u"il est vide.";
    if (const auto place = nom.find_first_of(Interdits); place != VueTexte::npos)
        return u"il contient le signe " + Texte(1, nom[place]) + u" qu'un nom de fichier ne peut pas contenir.";
    if (std::any_of(nom.begin(), nom.end(), EstDeCommande))
        return u"il contient un caractère de commande (tabulation, fin de ligne…) qu'un nom de fichier ne peut pas "
               u"contenir.";
    if (EstIncomplet(nom))
        return u"il contient une moitié de caractère, qu'un nom de fichier ne peut pas contenir.";
    if (EstRéservé(nom))
        return u"les dossiers partagés le réservent à un appareil.";
    if (EnUtf8(Texte{nom}.append(ExtensionBilan)).size() > OctetsMaximum)
        return u"il est trop long pour un nom de fichier.";
    return std::nullopt;
}

} // namespace tirelune
