#include "authoring/lexicon/Lexique.h"

#include "authoring/FichierTenu.h"
#include "core/FichierChamps.h"

#include <algorithm>
#include <unordered_set>

namespace tirelune {

namespace {

// The cells that the file gets, as far as any is written.
void Composer(const Grid& grille, int rangée, Cellules écrites, std::vector<Texte>& champs)
{
    const int toutes = écrites == Cellules::DeuxAuPlus ? std::min(grille.Cols(), ColonnesAuDépart) : grille.Cols();
    const int remplies = écrites == Cellules::Toutes ? toutes : std::min(toutes, grille.Remplies(rangée));
    for (int colonne = 0; colonne < remplies; ++colonne) {
        const auto& cellule = grille.TextMatrix(rangée, colonne);
        const bool gardée = écrites == Cellules::Toutes || colonne == ColonneSousThème || !Rogner(cellule).empty();
        if (écrites == Cellules::SansLesVides && !gardée)
            continue;
        if ((écrites == Cellules::JusquAuVide || écrites == Cellules::DeuxAuPlus) && cellule.empty())
            return;
        champs.push_back(cellule);
    }
    if (écrites == Cellules::SansLesVides && remplies <= ColonneSousThème && ColonneSousThème < toutes)
        champs.emplace_back();
}

std::size_t CellulesNonVides(const Grid& grille)
{
    std::size_t nombre = 0;
    for (int rangée = 0; rangée < grille.Rows(); ++rangée) {
        for (int colonne = 0; colonne < grille.Remplies(rangée); ++colonne)
            nombre += Rogner(grille.TextMatrix(rangée, colonne)).empty() ? 0U : 1U;
    }
    return nombre;
}

} // namespace

std::vector<Texte> ChampsDuLexique(const Grid& grille, Cellules écrites)
{
    std::vector<Texte> champs;
    for (int rangée = 0; rangée < grille.Rows(); ++rangée) {
        champs.emplace_back(Marqueur);
        Composer(grille, rangée, écrites, champs);
    }
    return champs;
}

Chargement ChargerLexique(const Chemin& fichier, Grid& grille, Cellules écrites)
{
    if (LireLexique(fichier, grille) != LectureLexique::Faite)
        return Chargement::Aucun;
    const auto marqueurs = static_cast<std::size_t>(grille.Rows());
    const bool tout = NonVides(ChampsDuLexique(grille, écrites)) == CellulesNonVides(grille) + marqueurs;
    return tout ? Chargement::Entier : Chargement::Partiel;
}

int RangéeDe(const Grid& grille, int colonne, VueTexte texte, int départ)
{
    for (int rangée = départ; rangée < grille.Rows(); ++rangée) {
        if (grille.TextMatrix(rangée, colonne) == texte)
            return rangée;
    }
    return -1;
}

int CelluleDe(const Grid& grille, int rangée, int départ, VueTexte texte)
{
    for (int colonne = départ; colonne < grille.Remplies(rangée); ++colonne) {
        if (grille.TextMatrix(rangée, colonne) == texte)
            return colonne;
    }
    return -1;
}

void Relever(const Grid& grille, int rangée, int départ, std::vector<Texte>& mots)
{
    for (int colonne = départ; colonne < grille.Remplies(rangée); ++colonne) {
        const auto& mot = grille.TextMatrix(rangée, colonne);
        if (mot.empty())
            return;
        mots.push_back(mot);
    }
}

std::vector<Texte> Clés(const Grid& grille)
{
    std::vector<Texte> clés;
    clés.reserve(static_cast<std::size_t>(grille.Rows()));
    for (int rangée = 0; rangée < grille.Rows(); ++rangée)
        clés.push_back(grille.TextMatrix(rangée, 0));
    SansDoublons(clés);
    std::erase(clés, Texte{});
    return clés;
}

void SansDoublons(std::vector<Texte>& mots)
{
    std::unordered_set<Texte> vus;
    std::erase_if(mots, [&](const Texte& mot) { return !vus.insert(mot).second; });
}

void AjouterRangée(Grid& grille, Texte clé)
{
    grille.AddRow();
    grille.TextMatrix(grille.Rows() - 1, 0, std::move(clé));
}

void AjouterCellule(Grid& grille, int rangée, int départ, Texte mot)
{
    int colonne = CelluleDe(grille, rangée, départ, {});
    if (colonne < 0)
        colonne = std::max(départ, grille.Remplies(rangée));
    if (colonne >= grille.Cols())
        grille.Cols(colonne + 1);
    grille.TextMatrix(rangée, colonne, std::move(mot));
}

void RetirerCellule(Grid& grille, int rangée, int colonne)
{
    const int fin = grille.Remplies(rangée) - 1;
    for (int ici = colonne; ici < fin; ++ici)
        grille.TextMatrix(rangée, ici, grille.TextMatrix(rangée, ici + 1));
    grille.TextMatrix(rangée, fin, {});
}

void RenommerPartout(Grid& grille, int colonne, VueTexte ancien, const Texte& nouveau)
{
    for (int rangée = RangéeDe(grille, colonne, ancien); rangée >= 0;
         rangée = RangéeDe(grille, colonne, ancien, rangée + 1))
        grille.TextMatrix(rangée, colonne, nouveau);
}

void RetirerRangées(Grid& grille, int colonne, VueTexte texte)
{
    grille.RemoveRows([&](int rangée) { return grille.TextMatrix(rangée, colonne) == texte; });
}

std::vector<Texte> FusionnerDictionnaires(const Grid& duTexte, Grid& général)
{
    std::vector<Texte> ajoutés;
    if (duTexte.Rows() == 0)
        return ajoutés;
    std::unordered_set<Texte> connus;
    for (int rangée = 0; rangée < général.Rows(); ++rangée)
        connus.insert(général.TextMatrix(rangée, ColonneMot));
    if (général.Rows() == 0)
        connus.emplace(); // the empty row that it would be given, and that goes again
    for (int rangée = 0; rangée < duTexte.Rows(); ++rangée) {
        const auto& mot = duTexte.TextMatrix(rangée, ColonneMot);
        if (!connus.insert(mot).second)
            continue;
        AjouterRangée(général, mot);
        for (const int colonne : {ColonneDéfinition, ColonneExemple})
            général.TextMatrix(général.Rows() - 1, colonne, duTexte.TextMatrix(rangée, colonne));
        ajoutés.push_back(mot);
    }
    if (général.Rows() > 0 && général.TextMatrix(0, ColonneMot).empty())
        général.RemoveRow(0);
    return ajoutés;
}

} // namespace tirelune
