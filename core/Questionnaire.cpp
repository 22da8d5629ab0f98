#include "core/Questionnaire.h"

#include "core/FichierChamps.h"

#include <algorithm>

namespace tirelune {

bool LireQuestions(const Chemin& fichier, Grid& grille)
{
    const auto champs = LireChamps(fichier);
    if (!champs)
        return false;
    RangerQuestions(*champs, grille);
    return true;
}

void RangerQuestions(const std::vector<Texte>& champs, Grid& grille)
{
    const int nombre = std::min(static_cast<int>(champs.size()), QuestionsMaximum * ChampsParQuestion);
    for (int i = 0; i < nombre; ++i)
        grille.TextMatrix(i / ChampsParQuestion, i % ChampsParQuestion, champs[static_cast<std::size_t>(i)]);
}

} // namespace tirelune
