// Automatic formatting of a text: blanks and punctuation in one form, a tab at the head of each paragraph.
#pragma once

namespace tirelune {

class RichTextBox;
class TexteRiche;

// The box hears of it once, and only when something had to change.
void CorrigerTexte(RichTextBox& rtfTexte);

TexteRiche TexteCorrigé(const TexteRiche& texte);

} // namespace tirelune
