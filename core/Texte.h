// Text as the whole program handles it: UTF-16, so that a position in a string is a position in a text box.
#pragma once
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tirelune {

using Texte = std::u16string;
using VueTexte = std::u16string_view;
using Chemin = std::filesystem::path;

inline constexpr VueTexte FinDeLigne = u"\r\n";
inline constexpr char16_t Masque = 31; // stands for a letter that is still hidden

// Blanks (U+0020) off both ends; tabs and line ends stay.
Texte Rogner(VueTexte texte);
Texte RognerAGauche(VueTexte texte);

// One character for one, in Latin-1, Latin Extended-A and the letters of Romanian; ligatures and others stay as they
// are.
char16_t Minuscule(char16_t caractère);
char16_t Majuscule(char16_t caractère);
Texte Minuscules(VueTexte texte);
Texte Majuscules(VueTexte texte);

// The straight one for a typographic apostrophe; any other character stays as it is.
constexpr char16_t ApostropheDroite(char16_t caractère)
{
    return caractère == u'\u2019' ? u'\'' : caractère;
}

// Ill-formed sequences become U+FFFD.
Texte DepuisUtf8(std::string_view octets);
std::string EnUtf8(VueTexte texte);

// A NUL, which no name holds, becomes U+FFFD.
Chemin EnChemin(VueTexte texte);
Texte DepuisChemin(const Chemin& chemin);
// Folder, separator, name; no second separator behind a folder that ends in one.
Texte Joindre(VueTexte dossier, VueTexte nom);

// The leading number of a text, blanks skipped, point as decimal separator; 0 when there is none.
double Valeur(VueTexte texte);
// A whole text that is a number, comma or point as decimal separator, blanks around it allowed.
std::optional<double> LireNombre(VueTexte texte);
Texte EnTexte(int nombre);
Texte EnTexte(long long nombre);
// Seven significant digits, no trailing zero: the shape of a single-precision score. Below a ten-thousandth: 0.
Texte EnTexte(float nombre, char16_t séparateurDécimal);

// True when the character stands in the set; the rules test words by sets held in strings.
inline bool Contient(VueTexte ensemble, char16_t caractère)
{
    return ensemble.find(caractère) != VueTexte::npos;
}

} // namespace tirelune
