// The layout of a questionnaire: at most 12 questions of 5 choices, a row of a grid for each.
#pragma once
#include "core/Elements.h"

namespace tirelune {

inline constexpr int QuestionsMaximum = 12;
inline constexpr int ChoixParQuestion = 5;
inline constexpr int ChampsParQuestion = 1 + 2 * ChoixParQuestion;

// Columns of the grid, which are the fields of the file in their order.
inline constexpr int ColonneQuestion = 0;
constexpr int ColonneChoix(int i)
{
    return 2 * i + 1;
}
constexpr int ColonneDrapeau(int i) // "1": the choice is right; "0" or empty: it is not
{
    return 2 * i + 2;
}

// Puts the questions of a file in a grid of QuestionsMaximum rows and ChampsParQuestion columns, from row 0 on; those
// past the twelfth are left out, and the fields that the last one lacks stay as they are. False when the file can't be
// read: the grid stays as it is.
bool LireQuestions(const Chemin& fichier, Grid& grille);
// The same of its fields.
void RangerQuestions(const std::vector<Texte>& champs, Grid& grille);

} // namespace tirelune
