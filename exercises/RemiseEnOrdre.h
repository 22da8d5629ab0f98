// The play with a passage that the pupil puts back in order, piece by piece: each wrong check costs points, and locks
// one piece more in its place, from the top.
#pragma once
#include "exercises/Insertion.h"
#include "followup/frmExercices.h"

namespace tirelune {

// What the play goes on with; it belongs to the screen.
struct JeuDePassage {
    Tableau<Label>& Pièces;
    ComboBox& Ordre;     // the pieces as the passage has them
    ComboBox& Mélangées; // sorted: those that aren't locked
    Label& Prise;        // the text of the piece picked up
    Tableau<Label>& Points;
    Label& Verdict;
    Button& Bouton;      // checks, and says "&Quitter" once the play is over
    int Amende;          // points lost by a wrong check
    VueTexte BienPlacée; // tip of a locked piece
};

// A piece that can be picked up and put down.
EtatInitial EtatDePièce(double taille);
EtatInitial EtatDuVerdict();

// The pieces one under the other on their page; `dessus` comes to stand over them.
Arrangement PageDePièces(const JeuDePassage& jeu, Label& consigne, Arrangement dessus);

// Binds clicks and drags of the pieces.
void RelierPièces(const JeuDePassage& jeu);
// Shows the pieces of `Ordre` in the order of the dictionary.
void MontrerPièces(const JeuDePassage& jeu);
void VérifierOrdre(const JeuDePassage& jeu);

} // namespace tirelune
