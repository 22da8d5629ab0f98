#include "followup/Notes.h"

#include "core/Elements.h"

#include <algorithm>
#include <cmath>

namespace tirelune {

std::optional<float> LireNote(const Texte& cellule)
{
    static constexpr double HorsDeMesure = 1e9; // only damage makes such a number
    const auto nombre = LireNombre(cellule);
    return nombre && std::abs(*nombre) < HorsDeMesure ? std::optional{static_cast<float>(*nombre)} : std::nullopt;
}

Couleur CouleurDeNote(float note)
{
    if (note < 3)
        return Rouge;
    if (note < 5)
        return Orange;
    if (note < 7)
        return Jaune;
    if (note < 9)
        return Vert;
    return Cyan;
}

float NoteSurDix(const Label& gagnés, const Label& possibles)
{
    const double total = Valeur(possibles.Caption);
    return total > 0 ? static_cast<float>(Valeur(gagnés.Caption) / total * 10) : 0; // nothing asked, nothing gained
}

Texte NoteCourte(VueTexte note)
{
    Texte courte{note.substr(0, 4)};
    std::replace(courte.begin(), courte.end(), u',', u'.');
    return courte;
}

} // namespace tirelune
