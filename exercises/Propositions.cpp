#include "exercises/Propositions.h"

namespace tirelune {

void Proposer(Label& place, Texte mot)
{
    place.AutoSize = true;
    place.Caption = std::move(mot);
}

bool EstRépondu(const Tableau<Label>& propositions)
{
    for (int i = 0; i < propositions.Nombre(); ++i) {
        if (propositions(i).BackColor != Blanc)
            return true;
    }
    return false;
}

} // namespace tirelune
