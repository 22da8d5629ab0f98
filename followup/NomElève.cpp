#include "followup/NomElève.h"

#include "core/Windows1252.h"

#include <algorithm>
#include <array>

namespace tirelune {

namespace {

constexpr VueTexte Extension = u".bil";
constexpr std::size_t OctetsMaximum = 255; // of a file name, on the usual file systems
constexpr VueTexte Interdits = u"/\\<>:\"|?*";
constexpr char16_t BlancInsécable = 0xA0;

bool EstInvisible(char16_t c)
{
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
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
    if (std::any_of(nom.begin(), nom.end(), EstInvisible))
        return u"il contient un caractère invisible.";
    if (!TientEnWindows1252(nom))
        return u"il contient un caractère que les fichiers du programme ne peuvent pas garder.";
    if (nom.front() == u'.' || nom.back() == u'.')
        return u"il commence ou finit par un point.";
    if (nom.front() == u' ' || nom.back() == u' ' || nom.front() == BlancInsécable || nom.back() == BlancInsécable)
        return u"il commence ou finit par un blanc.";
    if (EstRéservé(nom))
        return u"ce nom est réservé par le système.";
    if (EnUtf8(Texte{nom}.append(Extension)).size() > OctetsMaximum)
        return u"il est trop long.";
    return std::nullopt;
}

} // namespace tirelune
