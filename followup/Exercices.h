// The 27 exercises: the order in which labels, grid columns and curves count them.
#pragma once
#include "core/Couleur.h"
#include "core/Texte.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tirelune {

inline constexpr int NombreExercices = 27;

struct Exercice {
    VueTexte Libellé;
    std::string_view NomEcran;
};

inline constexpr std::array<Exercice, NombreExercices> Exercices{{
    {u"Questionnaire (1)", "frmQuestionnaire1"},
    {u"Questionnaire (2)", "frmQuestionnaire1"},
    {u"Texte masqué", "frmTexteMasqué"},
    {u"Closures", "frmClosures"},
    {u"Texte à trous", "frmTrous"},
    {u"Dictionnaire", "frmDico"},
    {u"Synonymes", "frmSynonymes"},
    {u"Contraires", "frmContraires"},
    {u"Masculin / Féminin", "frmGenre"},
    {u"Thèmes (1)", "frmThèmes"},
    {u"Thèmes (2)", "frmThèmes2"},
    {u"Photographier", "frmPhotographier"},
    {u"Mémoriser la série", "frmSérie"},
    {u"Mot tronqué", "frmTronqué"},
    {u"Poursuite", "frmPoursuite"},
    {u"Trouve-moi", "frmTrouveMoi"},
    {u"L'absent", "frmAbsent"},
    {u"Mots en désordre", "frmMotsEnDésordre"},
    {u"Mots inversés", "frmMotsInversés"},
    {u"Lignes en désordre", "frmLignesEnDésordre"},
    {u"Phrases en désordre", "frmPhrasesEnDésordre"},
    {u"Le pendu", "frmPendu"},
    {u"Mot coupé", "frmMotsCoupés"},
    {u"Ecrire un mot", "frmEcrireMot"},
    {u"Je corrige", "frmJeCorrige"},
    {u"Ecrire une phrase", "frmEcrirePhrase"},
    {u"Ordre alphabétique", "frmAlphabet"},
}};

// A group stands together on the chooser and on the curves.
struct Groupe {
    VueTexte Titre;
    int Premier; // index of its first exercise
    int Nombre;
    Couleur Bande;
    Couleur Profonde; // for letters and outlines on the band
};

inline constexpr std::array<Groupe, 5> Groupes{{
    {u"Comprendre le texte", 0, 4, Couleur::Rvb(246, 160, 77), Couleur::Rvb(122, 60, 0)},
    {u"Vocabulaire", 4, 7, Couleur::Rvb(95, 184, 101), Couleur::Rvb(31, 90, 36)},
    {u"Mémoire / Rapidité / Discrimination", 11, 6, Couleur::Rvb(79, 155, 224), Couleur::Rvb(15, 74, 134)},
    {u"Ordre (cohérence)", 17, 4, Couleur::Rvb(217, 104, 159), Couleur::Rvb(125, 29, 78)},
    {u"Orthographe", 21, 6, Couleur::Rvb(232, 185, 35), Couleur::Rvb(107, 82, 0)},
}};

inline const Groupe& GroupeDe(int exercice)
{
    return *std::find_if(Groupes.rbegin(), Groupes.rend(),
                         [exercice](const Groupe& un) { return exercice >= un.Premier; });
}

} // namespace tirelune
