// A game of association: each row shows something and has a slot for its answer; the answers stand in one list. The
// pupil chooses a row, takes an answer from the list, and asks for the correction, which goes row by row.
#pragma once
#include "exercises/BandeDePoints.h"
#include "exercises/Notice.h"
#include "followup/frmExercices.h"

#include <functional>

namespace tirelune {

inline constexpr int RangéesDuJeu = 10;
inline constexpr VueTexte Invite = u" Clique avant de compléter. "; // a slot that says so is empty all the same

// What the game is played with; it belongs to the screen. All have one element for each row.
struct JeuDAssociation {
    frmExercices& Choix;
    Label& Consigne;
    Tableau<Label>& Cases;        // the slots
    std::vector<Elément*> Textes; // what the rows show
    Tableau<Label>& Corrigés;     // the right answers, hidden until the correction
    ComboBox& Liste;
    Tableau<Label>& Points; // right rows, rows corrected
    Button& Bouton;         // "&Corriger", and "&Quitter" once that is done
    Notice& Avis;           // for a lexicon that is too poor
};

template <class T>
std::vector<Elément*> TextesDe(Tableau<T>& textes)
{
    std::vector<Elément*> éléments;
    for (auto& un : textes)
        éléments.push_back(&un);
    return éléments;
}

// What the elements are created with.
EtatInitial EtatDesConsignes(Texte consigne);
EtatInitial EtatDesCases(VueTexte invite = Invite);
EtatInitial EtatDesTextes();
EtatInitial EtatDesCorrigés();
EtatInitial EtatDeLaListe();
EtatInitial EtatDuBouton();
MotsDeNotice TropPeu(VueTexte titre, VueTexte phrase);

// Binds what is bound alike in all these games: the list, whose picks go to the chosen row, and the button. `juste`
// judges a row.
void Relier(const JeuDAssociation& jeu, std::function<bool(int)> juste);

// Slot and text of each row side by side; and the page around the rows, however they are made.
Arrangement RangéesDe(const JeuDAssociation& jeu);
Arrangement CaseEtCorrigé(const JeuDAssociation& jeu, int i);
// The list stands under the slots, so that what the rows show is in sight while it is open.
enum class Côtés { CasesAGauche, CasesADroite };
Arrangement PageDAssociation(const JeuDAssociation& jeu, Arrangement rangées, Côtés côté = Côtés::CasesAGauche);

// The answer of a row: it comes into the list too.
void Cacher(const JeuDAssociation& jeu, int i, Texte réponse);
// All answers are in the list, which shows the first.
void MontrerRéponses(const JeuDAssociation& jeu);

// The row is the one that takes the next answer: it turns yellow, the others white. False: after the correction
// nothing can be chosen any more.
bool ChoisirRangée(const JeuDAssociation& jeu, int i);

// The row's answer, if it has one, goes back to the list: false where it had none. The emptied slot keeps its size.
bool RendreRéponse(const JeuDAssociation& jeu, int i);

// Both: the click on a row.
void ReprendreRangée(const JeuDAssociation& jeu, int i);

// The list's text goes to the chosen row and leaves the list: the row's index. Nothing when no row is chosen, the
// chosen one has its answer, or it is the program that sets the list.
std::optional<int> PlacerRéponse(const JeuDAssociation& jeu);

// The answer is the right one, to the letter.
bool RéponseExacte(const JeuDAssociation& jeu, int i);

// The click on "&Corriger". Where slots in sight are empty the pupil may go on playing instead. Each row gets its
// colour and its second; a wrong one shows its right answer.
void Corriger(const JeuDAssociation& jeu, const std::function<bool(int)>& juste);

} // namespace tirelune
