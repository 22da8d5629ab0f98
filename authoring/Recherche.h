// Search that ignores the case, and the replacement of all that it finds.
#pragma once
#include "core/TexteRiche.h"

#include <optional>
#include <vector>

namespace tirelune {

// Looks at each character of a text once, whatever is sought. What is sought isn't empty.
class Chercheur {
public:
    explicit Chercheur(VueTexte cherché);

    [[nodiscard]] std::size_t Longueur() const { return cherché_.size(); }
    // Where the first find begins, at `depuis` or behind; nothing when there is none.
    std::optional<std::size_t> Chercher(VueTexte texte, std::size_t depuis);

    // The same character by character, from anywhere. True: what is sought ends with this one.
    void Recommencer() { reconnus_ = 0; }
    bool Lire(char16_t caractère);

private:
    Texte cherché_;                   // in small letters
    std::vector<std::size_t> replis_; // of so many characters, how many at the end are also at the start
    std::size_t reconnus_ = 0;        // characters of what is sought that the last ones read were
};

struct TexteRemplacé {
    TexteRiche Contenu;
    std::size_t Curseur = 0; // behind the last replacement
};

// From the start of the text: each find gives way to the replacement, and the search goes on from where the find
// began, plus the length sought, less one. It ends when it would find again what it has just put in. Nothing when
// nothing was found. Formats as told by TexteRiche::Remplacer.
std::optional<TexteRemplacé> RemplacerTout(const TexteRiche& texte, VueTexte cherché, VueTexte remplacement);

} // namespace tirelune
