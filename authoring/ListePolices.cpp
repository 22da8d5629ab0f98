#include "authoring/ListePolices.h"

#include <algorithm>

namespace tirelune {

ListePolices::ListePolices(Frame& cadre, Tableau<TextBox>& lignes, ScrollBar& défilement, ComboBox& polices)
    : cadre_(cadre), lignes_(lignes), défilement_(défilement), polices_(polices)
{
    for (auto& ligne : lignes_)
        ligne.Locked = true;
}

void ListePolices::Ouvrir(const Texte& actuelle)
{
    const int place = actuelle.empty() ? 0 : polices_.Chercher(actuelle);
    défilement_.Max = std::max(0, polices_.ListCount() - NombreLignes - 1); // the blank rows let the last font lead
    défilement_.Value = std::clamp<int>(place, 0, défilement_.Max);
    Remplir();
    polices_.Tag.clear();
    cadre_.Visible = true;
    MettreEnEvidence(1);
}

void ListePolices::Remplir()
{
    for (int i = 1; i <= NombreLignes; ++i) {
        const int place = défilement_.Value + i - 1;
        lignes_(i).Text = place < polices_.ListCount() ? polices_.List(place) : Texte{};
        lignes_(i).Police = lignes_(i).Text;
    }
}

int ListePolices::LigneEnEvidence() const
{
    int ligne = NombreLignes;
    while (ligne > 1 && lignes_(ligne).BackColor != Noir)
        --ligne;
    return ligne;
}

void ListePolices::MettreEnEvidence(int ligne)
{
    for (int i = 1; i <= NombreLignes; ++i) {
        lignes_(i).BackColor = i == ligne ? Noir : Blanc;
        lignes_(i).ForeColor = i == ligne ? Blanc : Noir;
    }
    lignes_(ligne).SetFocus();
}

bool ListePolices::Déplacer(int ligne, int touche)
{
    switch (touche) {
    case Touche::Bas:
        ligne < NombreLignes ? MettreEnEvidence(ligne + 1) : défilement_.Déplacer(défilement_.Value + 1);
        return true;
    case Touche::Haut:
        ligne > 1 ? MettreEnEvidence(ligne - 1) : défilement_.Déplacer(défilement_.Value - 1);
        return true;
    case Touche::PageSuivante:
        défilement_.Déplacer(défilement_.Value + NombreLignes);
        MettreEnEvidence(1);
        return true;
    case Touche::PagePrécédente:
        défilement_.Déplacer(défilement_.Value - NombreLignes);
        MettreEnEvidence(1);
        return true;
    default:
        return false;
    }
}

} // namespace tirelune
