#include "followup/Pictogrammes.h"

#include "core/Crayon.h"
#include "followup/Exercices.h"

#include <array>
#include <vector>

namespace tirelune {

using namespace Crayon;

namespace {

using Formes = std::vector<Forme>;

Forme Feuille()
{
    return Boîtier(8, 4, 32, 40, 5);
}

Forme Chemise() // a folder, for what belongs to one theme
{
    return Contour({{5, 12}, {6, 9}, {17, 9}, {21, 15}, {42, 15}, {43, 16}, {43, 39}, {42, 40}, {6, 40}, {5, 39}});
}

// Built when the first of them is wanted.
const std::array<Formes, NombreExercices>& Tracés()
{
    static const std::array<Formes, NombreExercices> tracés{{
        // ---- Comprendre le texte
        // Questionnaire (1): a sheet of questions
        Formes{Feuille(), Pastille(16.5, 14.5), Trait({{23, 14.5}, {32, 14.5}}), Pastille(16.5, 24),
               Trait({{23, 24}, {32, 24}}), Pastille(16.5, 33.5), Trait({{23, 33.5}, {32, 33.5}})},
        // Questionnaire (2): the question on the sheet
        Formes{Feuille(), Arc(24, 18, 6.5, 180, 405), Trait({{28.6, 22.6}, {24, 27}, {24, 29}}), Pastille(24, 36.5)},
        // Texte masqué: words under their masks
        Formes{Trait({{6, 11}, {19, 11}}), Pavé(25, 7, 19, 8), Pavé(4, 20, 19, 8), Trait({{29, 24}, {42, 24}}),
               Trait({{6, 37}, {12, 37}}), Pavé(18, 33, 14, 8), Trait({{38, 37}, {42, 37}})},
        // Closures: a word is missing on its line
        Formes{Trait({{6, 8}, {42, 8}}), Trait({{5, 24}, {8, 24}}), Boîtier(15, 17, 18, 14),
               Trait({{40, 24}, {43, 24}}), Trait({{6, 40}, {42, 40}})},
        // ---- Vocabulaire
        // Texte à trous: a gap, and the pencil that fills it
        Formes{Trait({{6, 8}, {42, 8}}), Trait({{6, 20}, {13, 20}}), Trait({{6, 32}, {13, 32}}),
               Contour({{20, 43}, {22, 34}, {36, 20}, {43, 27}, {29, 41}}), Trait({{31, 25}, {38, 32}})},
        // Dictionnaire: an open book with its letter
        Formes{Contour({{24, 13}, {19, 9}, {4, 9}, {4, 37}, {19, 37}, {24, 41}, {29, 37}, {44, 37}, {44, 9}, {29, 9}}),
               Trait({{24, 13}, {24, 41}}), Trait({{9.5, 30}, {14, 17}, {18.5, 30}}), Trait({{31, 18}, {37, 18}}),
               Trait({{31, 27}, {37, 27}})},
        // Synonymes: what two words share
        Formes{Cercle(17, 24, 12.5), Cercle(31, 24, 12.5)},
        // Contraires: each its own way
        Formes{Trait({{24, 8}, {24, 40}}), Trait({{17, 24}, {4, 24}}), Trait({{10, 17}, {4, 24}, {10, 31}}),
               Trait({{31, 24}, {44, 24}}), Trait({{38, 17}, {44, 24}, {38, 31}})},
        // Masculin / Féminin: a boy and a girl
        Formes{Cercle(13, 11, 6), Contour({{4, 24}, {22, 24}, {18, 42}, {8, 42}}), Cercle(35, 11, 6),
               Contour({{35, 24}, {44, 42}, {26, 42}})},
        // Thèmes (1): the name of the theme
        Formes{Chemise(), Trait({{14, 28}, {34, 28}})},
        // Thèmes (2): one more word in the theme
        Formes{Chemise(), Trait({{16, 28}, {32, 28}}), Trait({{24, 20.5}, {24, 35.5}})},
        // ---- Mémoire / Rapidité / Discrimination
        // Photographier: a camera
        Formes{Boîtier(4, 13, 40, 28, 5), Cercle(24, 27, 8), Trait({{15, 13}, {19, 7}, {29, 7}, {33, 13}}),
               Pastille(37.5, 19.5, 2.2)},
        // Mémoriser la série: what comes after what
        Formes{Trait({{5, 13}, {10, 8}, {10, 27}}), Arc(22.5, 13.5, 5.5, 180, 395),
               Trait({{27, 16.6}, {17, 27}, {28, 27}}), Arc(38, 12.7, 4.7, 205, 450), Arc(38, 22.3, 4.9, 270, 515),
               Trait({{5, 38}, {43, 38}}), Trait({{37, 33}, {43, 38}, {37, 43}})},
        // Mot tronqué: a letter in two halves
        Formes{Trait({{10, 19}, {16, 4}, {22, 19}}), Trait({{4, 25}, {10, 25}}), Trait({{19, 25}, {29, 25}}),
               Trait({{38, 25}, {44, 25}}), Trait({{22, 44}, {27, 31}}), Trait({{37, 31}, {42, 44}}),
               Trait({{25.5, 35}, {38.5, 35}})},
        // Poursuite: someone running
        Formes{Cercle(31, 9, 4.5), Trait({{28, 18}, {22, 29}, {31, 34}, {28, 44}}),
               Trait({{15, 26}, {18, 17}, {28, 18}, {33, 24}, {40, 22}}), Trait({{22, 29}, {17, 38}, {8, 38}}),
               Trait({{4, 12}, {13, 12}}), Trait({{4, 21}, {8, 21}})},
        // Trouve-moi: a magnifying glass
        Formes{Cercle(20, 20, 14.5), Trait({{31, 31}, {43, 43}}), Trait({{14, 17}, {26, 17}}),
               Trait({{14, 24}, {21, 24}})},
        // L'absent: two lists, one with a hole
        Formes{Trait({{5, 9}, {18, 9}}), Trait({{5, 24}, {18, 24}}), Trait({{5, 39}, {18, 39}}),
               Trait({{29, 9}, {43, 9}}), Boîtier(27, 18, 17, 12), Trait({{29, 39}, {43, 39}})},
        // ---- Ordre (cohérence)
        // Mots en désordre: labels pell-mell
        Formes{Contour({{4, 9}, {18, 4}, {21, 14}, {7, 19}}), Contour({{30, 10}, {44, 14}, {41, 25}, {27, 21}}),
               Contour({{8, 31}, {26, 28}, {28, 40}, {10, 43}})},
        // Mots inversés: two words change places
        Formes{Boîtier(4, 18, 16, 12), Boîtier(28, 18, 16, 12), Arc(24, 18, 13.4, 207, 333),
               Trait({{36, 4}, {36, 12}, {28, 12}}), Arc(24, 30, 13.4, 27, 153), Trait({{12, 44}, {12, 36}, {20, 36}})},
        // Lignes en désordre: lines that go up and down
        Formes{Trait({{5, 9}, {25, 9}}), Trait({{5, 24}, {18, 24}}), Trait({{5, 39}, {25, 39}}),
               Trait({{37, 6}, {37, 42}}), Trait({{30, 13}, {37, 6}, {44, 13}}), Trait({{30, 35}, {37, 42}, {44, 35}})},
        // Phrases en désordre: who says what first?
        Formes{
            Contour(
                {{6, 5}, {28, 5}, {30, 7}, {30, 17}, {28, 19}, {17, 19}, {11, 25}, {11, 19}, {6, 19}, {4, 17}, {4, 7}}),
            Contour({{20, 25},
                     {42, 25},
                     {44, 27},
                     {44, 36},
                     {42, 38},
                     {37, 38},
                     {37, 44},
                     {31, 38},
                     {20, 38},
                     {18, 36},
                     {18, 27}}),
            Trait({{11, 12}, {23, 12}}), Trait({{25, 31.5}, {37, 31.5}})},
        // ---- Orthographe
        // Le pendu
        Formes{Trait({{5, 44}, {25, 44}}), Trait({{12, 44}, {12, 4}, {34, 4}, {34, 9}}), Trait({{12, 17}, {25, 4}}),
               Cercle(34, 14, 5), Trait({{34, 19}, {34, 30}}), Trait({{27, 27}, {34, 22}, {41, 27}}),
               Trait({{28, 40}, {34, 30}, {40, 40}})},
        // Mot coupé: scissors
        Formes{Cercle(10.5, 11.5, 6.5), Cercle(10.5, 36.5, 6.5), Trait({{16, 15}, {43, 35}}),
               Trait({{16, 33}, {43, 13}})},
        // Ecrire un mot: a pencil
        Formes{Contour({{5, 43}, {8, 31}, {33, 6}, {42, 15}, {17, 40}}), Trait({{27, 12}, {36, 21}})},
        // Je corrige: lines, and what is right
        Formes{Trait({{5, 9}, {42, 9}}), Trait({{5, 22}, {23, 22}}), Trait({{5, 35}, {12, 35}}),
               Trait({{20, 33}, {29, 41}, {43, 22}})},
        // Ecrire une phrase: a keyboard
        Formes{Boîtier(3, 9, 42, 30, 5), Pastille(12, 18), Pastille(20, 18), Pastille(28, 18), Pastille(36, 18),
               Pastille(12, 25), Pastille(20, 25), Pastille(28, 25), Pastille(36, 25), Trait({{16, 32}, {32, 32}})},
        // Ordre alphabétique: from A to Z
        Formes{Trait({{6, 21}, {12.5, 4}, {19, 21}}), Trait({{9, 15}, {16, 15}}),
               Trait({{7, 28}, {18, 28}, {7, 44}, {18, 44}}), Trait({{35, 5}, {35, 43}}),
               Trait({{27, 35}, {35, 43}, {43, 35}})},
    }};
    return tracés;
}

} // namespace

Dessin Pictogramme(int exercice, Couleur teinte)
{
    return Dessiner(Tracés().at(static_cast<std::size_t>(exercice)), teinte);
}

} // namespace tirelune
