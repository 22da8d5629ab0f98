#include "exercises/RemiseEnOrdre.h"

#include "exercises/BandeDePoints.h"
#include "exercises/Conclure.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr EtatsDeColonne Etats{Blanc, Jaune};

Dessin Coche()
{
    return {24,
            24,
            {{.Genre = GenreForme::Tracé, .Points = {{4, 13}, {10, 19}, {20, 5}}, .Trait = VertFoncé, .Epaisseur = 3}}};
}

void Dire(const JeuDePassage& jeu, Texte verdict, Couleur encre)
{
    jeu.Verdict.ForeColor = encre;
    jeu.Verdict.Caption = std::move(verdict);
}

void Ranger(const JeuDePassage& jeu, const std::optional<Déplacement>& déplacement)
{
    if (déplacement) {
        std::vector<Texte> textes;
        for (auto& pièce : jeu.Pièces)
            textes.push_back(pièce.Caption);
        Déplacer(textes, *déplacement);
        for (int i = 0; i < jeu.Pièces.Nombre(); ++i)
            jeu.Pièces(i).Caption = textes[static_cast<std::size_t>(i)];
        Dire(jeu, {}, CouleurAuto);
    }
    jeu.Prise.Caption = Texte{};
    for (auto& pièce : jeu.Pièces) {
        if (pièce.BackColor == Etats.Prise)
            jeu.Prise.Caption = pièce.Caption;
    }
}

bool EstEnOrdre(const JeuDePassage& jeu)
{
    for (int i = 0; i < jeu.Ordre.ListCount(); ++i) {
        if (jeu.Pièces(i).Caption != jeu.Ordre.List(i))
            return false;
    }
    return true;
}

// The pieces of the top for good in their places, the others at rest again in the order of the dictionary.
void Fixer(const JeuDePassage& jeu, int nombre)
{
    nombre = std::min(nombre, jeu.Ordre.ListCount());
    const auto& ordre = jeu.Ordre.Eléments();
    jeu.Mélangées.Clear();
    jeu.Mélangées.AddItems({ordre.begin() + nombre, ordre.end()});
    for (int i = 0; i < jeu.Ordre.ListCount(); ++i) {
        auto& pièce = jeu.Pièces(i);
        const bool fixée = i < nombre;
        pièce.Caption = fixée ? jeu.Ordre.List(i) : jeu.Mélangées.List(i - nombre);
        pièce.BackColor = fixée ? Cyan : Etats.Repos;
        if (fixée) {
            pièce.ToolTipText = Texte{jeu.BienPlacée};
            pièce.Picture = Coche();
        }
    }
    jeu.Prise.Caption = Texte{};
}

void Finir(const JeuDePassage& jeu, Couleur fond, Couleur encre)
{
    for (auto& pièce : jeu.Pièces) {
        pièce.BackColor = fond;
        pièce.ForeColor = encre;
        pièce.Enabled = false;
        pièce.Gras = true;
        pièce.Picture = Dessin{};
    }
    jeu.Prise.Caption = Texte{};
    jeu.Bouton.Caption = Texte{Quitter};
}

void Perdre(const JeuDePassage& jeu)
{
    for (int i = 0; i < jeu.Ordre.ListCount(); ++i) {
        jeu.Pièces(i).Caption = jeu.Ordre.List(i);
        jeu.Pièces(i).ToolTipText = u" Voici le passage remis dans l'ordre. ";
    }
    Finir(jeu, Rouge, Blanc);
    Dire(jeu, u"Voici le passage remis dans l'ordre.", Rouge);
}

} // namespace

EtatInitial EtatDePièce(double taille)
{
    return {.Visible = false, .BackColor = Blanc, .FontSize = taille};
}

EtatInitial EtatDuVerdict()
{
    return {.FontSize = 15, .Gras = true, .SensDesCouleurs = Sens::Verdict};
}

// Those that have no text take no room.
Arrangement PageDePièces(const JeuDePassage& jeu, Label& consigne, Arrangement dessus)
{
    std::vector<Arrangement> places;
    for (auto& pièce : jeu.Pièces)
        places.emplace_back(Pile{pièce});
    return Page{{
        .Consigne = consigne,
        .Points = BandeDePoints(jeu.Points),
        .Travail = Arrangement(Disposition::Colonne, std::move(places)),
        .Pied = Ligne{Extensible(jeu.Verdict), jeu.Bouton},
        .Dessus = std::move(dessus),
    }};
}

void RelierPièces(const JeuDePassage& jeu)
{
    RelierColonne(jeu.Pièces, Etats, [&jeu](const std::optional<Déplacement>& un) { Ranger(jeu, un); });
}

void MontrerPièces(const JeuDePassage& jeu)
{
    jeu.Mélangées.Clear();
    jeu.Mélangées.AddItems(jeu.Ordre.Eléments());
    for (int i = 0; i < jeu.Pièces.Nombre(); ++i) {
        const bool pleine = i < jeu.Mélangées.ListCount();
        jeu.Pièces(i).Caption = pleine ? jeu.Mélangées.List(i) : Texte{};
        jeu.Pièces(i).Visible = pleine;
    }
}

void VérifierOrdre(const JeuDePassage& jeu)
{
    if (EstEnOrdre(jeu)) {
        Finir(jeu, Bleu, Cyan);
        Dire(jeu, u"Bravo ! Le passage est remis dans l'ordre.", VertFoncé);
        return;
    }
    Incrémenter(jeu.Points(0), -jeu.Amende);
    const int perdus = Compte(jeu.Points(1)) - Compte(jeu.Points(0));
    if (Compte(jeu.Points(0)) > 0) {
        Fixer(jeu, perdus / jeu.Amende);
        Dire(jeu, u"Ce n'est pas encore le bon ordre. Continue !", Rouge);
    } else {
        Perdre(jeu);
    }
}

} // namespace tirelune
