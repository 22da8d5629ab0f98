// The eleven word fields of the lexicon's editor, each with its list: what differs from one to the next.
#pragma once
#include "core/Elements.h"

#include <span>
#include <vector>

namespace tirelune {

// What a field's words are, and thus what becomes of them in the grids.
enum class Rôle {
    Thème,
    SousThème,
    MotDeFamille,
    Référent,  // a masculine too
    Dépendant, // of a reference word
    MotDuTexte,
    MotDuGénéral,
};

// Their places among the fields, where a rule names one.
inline constexpr int SélecteurThème = 0;
inline constexpr int SélecteurSousThème = 1;
inline constexpr int SélecteurMotDeFamille = 2;
inline constexpr int SélecteurSynonyme = 3; // reference words; those that go with them come next
inline constexpr int SélecteurContraire = 5;
inline constexpr int SélecteurMasculin = 7;
inline constexpr int SélecteurDicTexte = 9;
inline constexpr int SélecteurDicPrinc = 10;
inline constexpr int NombreDeSélecteurs = 11;

struct Sélecteur {
    Rôle Fonction;
    VueTexte Légende; // the caption beside it
    VueTexte Entendu; // what it is called where its caption alone doesn't tell
    VueTexte Bulle;
    VueTexte BulleModifier;
    VueTexte BulleSupprimer;
    int Parent = -1; // the field whose word this one's words hang under
    VueTexte SansParent = {};
    bool UnSeul = false; // of a Dépendant: its word has no other
};

std::span<const Sélecteur> Sélecteurs();

// For the arrays of the screen.
std::vector<EtatInitial> ChampsDesSélecteurs();
std::vector<EtatInitial> ListesDesSélecteurs();
std::vector<EtatInitial> LégendesDesSélecteurs();
std::vector<EtatInitial> BoutonsModifier();
std::vector<EtatInitial> BoutonsSupprimer();

// Shows a text in the list's field, be it one of its items or not.
void MontrerTexte(ComboBox& liste, const Texte& texte);
// The first item that starts with the text, capitals counting; -1: none.
int PremierQuiCommencePar(const ComboBox& liste, VueTexte début);
// Shows once, however often it is there.
void AjouterElément(ComboBox& liste, const Texte& texte);
void RetirerElément(ComboBox& liste, VueTexte texte);

} // namespace tirelune
