// A column put in order by clicks: one picks an item up, the next one puts it down elsewhere, and those between make
// room. A drag does both.
#pragma once
#include "core/Elements.h"

#include <functional>
#include <optional>
#include <span>

namespace tirelune {

struct Déplacement {
    int De;
    int Vers;

    friend bool operator==(const Déplacement&, const Déplacement&) = default;
};

// How the colours of a column tell the state of its items. Any other colour: for good in its place.
struct EtatsDeColonne {
    Couleur Repos;
    Couleur Prise; // picked up
};

// A click in the column. Picks the item up, or puts it down where it was, or gives the move that it makes: the texts
// are the screen's.
template <class T>
std::optional<Déplacement> CliquerColonne(Tableau<T>& colonne, int i, EtatsDeColonne états)
{
    auto& cliqué = colonne(i);
    if (cliqué.BackColor == états.Prise)
        cliqué.BackColor = états.Repos;
    else if (cliqué.BackColor == états.Repos) {
        for (int pris = 0; pris < colonne.Nombre(); ++pris) {
            if (colonne(pris).BackColor == états.Prise) {
                colonne(pris).BackColor = états.Repos;
                return Déplacement{pris, i};
            }
        }
        cliqué.BackColor = états.Prise;
    }
    return std::nullopt;
}

template <class T>
void ReposerColonne(Tableau<T>& colonne, EtatsDeColonne états)
{
    for (auto& un : colonne) {
        if (un.BackColor == états.Prise)
            un.BackColor = états.Repos;
    }
}

// The mouse takes an item along, whatever was picked up before. False: it is for good in its place.
template <class T>
bool PrendreDansColonne(Tableau<T>& colonne, int i, EtatsDeColonne états)
{
    if (colonne(i).BackColor != états.Repos && colonne(i).BackColor != états.Prise)
        return false;
    ReposerColonne(colonne, états);
    colonne(i).BackColor = états.Prise;
    return true;
}

// It lets the item go over another one, as by a click there, or elsewhere: then the item goes back.
template <class T>
std::optional<Déplacement> LâcherDansColonne(Tableau<T>& colonne, const Elément* cible, EtatsDeColonne états)
{
    for (int i = 0; i < colonne.Nombre(); ++i) {
        if (&colonne(i) == cible && colonne(i).BackColor == états.Repos)
            return CliquerColonne(colonne, i, états);
    }
    ReposerColonne(colonne, états);
    return std::nullopt;
}

// Binds clicks and drags of the column. `suite` comes after each, with the move that it makes, or none.
template <class T>
void RelierColonne(Tableau<T>& colonne, EtatsDeColonne états,
                   const std::function<void(const std::optional<Déplacement>&)>& suite)
{
    for (int i = 0; i < colonne.Nombre(); ++i) {
        colonne(i).Click = [=, &colonne] { suite(CliquerColonne(colonne, i, états)); };
        colonne(i).Prendre = [=, &colonne] {
            const bool pris = PrendreDansColonne(colonne, i, états);
            suite(std::nullopt);
            return pris;
        };
        colonne(i).Lâcher = [=, &colonne](const Elément* cible) { suite(LâcherDansColonne(colonne, cible, états)); };
    }
}

// Makes the move in a column of texts.
void Déplacer(std::span<Texte> colonne, Déplacement déplacement);

} // namespace tirelune
