#include "exercises/vocabulary/TirageLexique.h"

#include "core/Tirage.h"

namespace tirelune {

void ChargerListes(Grid& grille, VueTexte dossier, VueTexte nom, int réponse)
{
    LireLexique(FichierLexique(dossier, nom), grille);
    grille.Cols(grille.Cols() + 1);
    for (int ligne = grille.Rows() - 1; ligne >= 0; --ligne) {
        if (grille.TextMatrix(ligne, réponse).empty())
            grille.RemoveRow(ligne);
    }
}

int TirerLigne(Plateforme& plateforme, const Grid& grille, ComboBox& tirées)
{
    const auto ligne = TirerSauf(plateforme, grille.Rows(),
                                 [&](std::size_t une) { return tirées.Chercher(EnTexte(static_cast<int>(une))) >= 0; });
    const auto tirée = static_cast<int>(ligne.value());
    tirées.AddItem(EnTexte(tirée));
    return tirée;
}

int DernierMot(const Grid& grille, int ligne, int première)
{
    int colonne = première;
    while (colonne < grille.Cols() && !grille.TextMatrix(ligne, colonne).empty())
        ++colonne;
    return colonne - 1;
}

Texte Enchaîner(const Grid& grille, int ligne, int première, int dernière, int sauf)
{
    Texte mots = u" ";
    for (int colonne = première; colonne <= dernière; ++colonne) {
        const auto& mot = grille.TextMatrix(ligne, colonne);
        if (colonne != sauf && !mot.empty())
            mots += mot + u" - ";
    }
    return mots;
}

} // namespace tirelune
