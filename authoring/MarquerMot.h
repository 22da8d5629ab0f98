// Marking of the words that exercises work on.
#pragma once

namespace tirelune {

class RichTextBox;

// Strikes through the word at the caret, or takes the mark off. False: no word there, nothing is changed.
bool MarquerMot(RichTextBox& rtfTexte);

} // namespace tirelune
