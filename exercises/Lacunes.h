// Gaps: words of the pupil's text that give way to underscores, and the play of putting them back from a list.
// A gap is as long as what it hides, so that a position is the same in the text with gaps and in the key.
#pragma once
#include "exercises/FinDeTexte.h"
#include "followup/frmExercices.h"

#include <vector>

namespace tirelune {

inline constexpr char16_t Trait = u'_';

struct Lacune {
    std::size_t Début;
    std::size_t Longueur;

    friend bool operator==(const Lacune&, const Lacune&) = default;
};

// The text with each gap in black underscores that are not struck through. The gaps come in text order and don't
// overlap. A line end in a gap goes as well: the paragraphs that it parted become one, in the format of the first.
TexteRiche OuvrirLacunes(const TexteRiche& texte, const std::vector<Lacune>& lacunes);

// What the gaps hide, gap by gap.
std::vector<Texte> MotsEnlevés(VueTexte texte, const std::vector<Lacune>& lacunes);

// What the play goes on with; it belongs to the screen.
struct JeuDeLacunes {
    frmExercices& Clé; // holds the key
    RichTextBox& Boîte;
    ComboBox& Liste;
    Tableau<Label>& Points;
    FinDeTexte& Fin;
    std::vector<Lacune>& Ouvertes; // the gaps that are still to be filled
};

// Makes of the caret a selection of the whole gap under it; of nothing, when there is none: the text may have
// underscores of its own. The way back to the start of a gap never looks at the first character of the text: a gap
// that starts there is taken from its second.
void SélectionnerTrait(RichTextBox& boîte, const std::vector<Lacune>& ouvertes);

// What a double click in them is told.
inline constexpr VueTexte UnClicSurLesTraits = u"Clique UNE SEULE FOIS sur les traits !";

// Tries the word of the list in the selected gap, counts the try, and shows the end frame once no gap is left.
void EssayerMot(const JeuDeLacunes& jeu);

inline constexpr VueTexte ConsigneDeLacunes =
    u"Clique sur un trou du texte, choisis le mot qui manque dans la liste, puis clique sur Ok.";
// Text, list and button on their page; `dessus` comes to stand over the text.
Arrangement PageDeLacunes(const JeuDeLacunes& jeu, Label& consigne, Button& ok, Image& image, Arrangement dessus);
// Its picture: a pencil on a dotted line.
Dessin DessinCrayon();

} // namespace tirelune
