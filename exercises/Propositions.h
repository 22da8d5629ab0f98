// Words on labels, one of which the pupil picks.
#pragma once
#include "core/Elements.h"

namespace tirelune {

// The label takes the word and becomes as wide as it.
void Proposer(Label& place, Texte mot);

// One of them has been judged: a colour other than white shows it.
bool EstRépondu(const Tableau<Label>& propositions);

} // namespace tirelune
