// Routines that the whole program shares.
#pragma once
#include "core/Constantes.h"
#include "core/Texte.h"

namespace tirelune {

// Each rebuilds its character set from the start, so that what a screen has added is gone.
void EcrireAlphabet(Constantes& état);          // LettresEtSignes
void EcrireAlphabetSimple(Constantes& état);    // LettresEtChiffres
void MémoAlphabetSansNombres(Constantes& état); // LettresSeules

// The form in which words are compared for alphabetical order: small letters, the usual French accents taken off,
// hyphens dropped. "ü", "ÿ" and the ligatures stay.
Texte SansAccents(VueTexte mot);

// Sets NomFichierQuestions and QuestionnaireExiste for the text of that title. A questionnaire that holds nothing
// but empty fields is deleted.
void VérifQuestions(Constantes& état, VueTexte titre);

} // namespace tirelune
