// The list of fonts that opens over the text: seven lines under a scroll bar, one of them highlighted.
#pragma once
#include "core/Elements.h"

namespace tirelune {

class ListePolices {
public:
    static constexpr int NombreLignes = 7;

    // `lignes` 1 to 7 are the list's; `polices` holds the names, with blank rows behind the last.
    ListePolices(Frame& cadre, Tableau<TextBox>& lignes, ScrollBar& défilement, ComboBox& polices);

    // Shows it, from this font on.
    void Ouvrir(const Texte& actuelle);
    // What the lines show, once the scroll bar has moved.
    void Remplir();
    // Moves the highlight, and the focus with it.
    void MettreEnEvidence(int ligne);
    // An arrow or a page key on a line. False: the key is none of them.
    bool Déplacer(int ligne, int touche);
    [[nodiscard]] int LigneEnEvidence() const;

private:
    Frame& cadre_;
    Tableau<TextBox>& lignes_;
    ScrollBar& défilement_;
    ComboBox& polices_;
};

} // namespace tirelune
