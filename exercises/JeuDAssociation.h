// A game of association: each row shows something and has a slot for its answer; the answers stand in one list. The
// pupil chooses a row, takes an answer from the list, and asks for the correction, which goes row by row.
#pragma once
#include "core/Ecran.h"

#include <functional>

namespace tirelune {

// What the game is played with; it belongs to the screen. All have one element for each row.
struct JeuDAssociation {
    Tableau<Label>& Cases;        // the slots, empty once the row has been clicked or the game has begun
    std::vector<Elément*> Textes; // what the rows show
    Tableau<Label>& Corrigés;     // the right answers, hidden until the correction
    ComboBox& Liste;
    Tableau<Label>& Points; // right rows, rows corrected
    Button& Bouton;         // "&Corriger", and "&Quitter" once that is done
};

// The row is the one that takes the next answer: it turns yellow, the others white. False: after the correction
// nothing can be chosen any more.
bool ChoisirRangée(const JeuDAssociation& jeu, int i);

// The row's answer, if it has one, goes back to the list. The emptied slot keeps its size.
void RendreRéponse(const JeuDAssociation& jeu, int i);

// The list's text goes to the chosen row and leaves the list: the row's index. Nothing when no row is chosen, or the
// chosen one has its answer.
std::optional<int> PlacerRéponse(const JeuDAssociation& jeu);

// The answer is the right one, to the letter.
bool RéponseExacte(const JeuDAssociation& jeu, int i);

// The click on "&Corriger". Where slots in sight are empty the pupil may go on playing instead. Each row gets its
// colour and its second; a wrong one shows its right answer.
void Corriger(const JeuDAssociation& jeu, const std::function<bool(int)>& juste);

} // namespace tirelune
