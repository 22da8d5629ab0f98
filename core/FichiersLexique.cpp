#include "core/FichiersLexique.h"

#include "core/Enregistrements.h"
#include "core/FichierChamps.h"

#include <utility>

namespace tirelune {

Texte NomDicTexte(VueTexte titre)
{
    return Texte{titre} + u".dic";
}

Chemin FichierLexique(VueTexte dossier, VueTexte nom)
{
    return EnChemin(Joindre(dossier, NomRéel(dossier, nom)));
}

LectureLexique LireLexique(const Chemin& fichier, Grid& grille)
{
    const auto octets = LireFichier(fichier, TailleDUnFichierDeChamps);
    if (octets)
        return RangerLexique(*octets, grille);
    grille.Rows(0);
    return octets.Echec == EchecLecture::Absent ? LectureLexique::Absente : LectureLexique::Refusée;
}

LectureLexique RangerLexique(std::string_view octets, Grid& grille)
{
    grille.Rows(0);
    auto champs = DécouperFichier(octets);
    if (!champs || (champs->empty() ? !octets.empty() : champs->front() != Marqueur))
        return LectureLexique::Refusée;
    RangerFiches(std::move(*champs), grille, 0, Colonnes::AuBesoin);
    return LectureLexique::Faite;
}

} // namespace tirelune
