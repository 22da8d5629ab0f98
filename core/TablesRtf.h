// What the head of an RTF text declares: its code page, its fonts, its colours. All bounded.
#pragma once
#include "core/PagesDeCodes.h"
#include "core/TexteRiche.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace tirelune {

namespace rtf {

inline constexpr int Windows1252 = 1252;
inline constexpr int Utf8 = 65001;

// A code page of one byte to a character has a table; the others are known by their number.
struct Encodage {
    int Numéro = 0; // 0: that of the document
    const MoitiéHaute* Table = nullptr;
};
// Number 0 when the code page is unknown.
Encodage EncodageDe(int page);

// Halves of surrogate pairs that stand alone become U+FFFD.
void RemplacerDemiesPaires(Texte& texte);

class TableDesPolices {
public:
    // Ranks count the fonts read, from 1; rank 0 is the default font.
    [[nodiscard]] std::uint16_t Rang(int numéro) const;
    // Number of its name, the same for all fonts of that name; 0 is that of a new Format.
    [[nodiscard]] std::uint16_t Nom(std::uint16_t rang) const { return Police(rang).Nom; }
    [[nodiscard]] const Encodage& EncodageDuRang(std::uint16_t rang) const { return Police(rang).Octets; }
    [[nodiscard]] const Texte& NomNuméro(std::size_t nom) const { return noms_[nom]; }

    void ParDéfaut(int numéro);

    // A font is declared by its number, its character set and its name, then ends.
    void Commencer(int numéro);
    void JeuDeCaractères(int jeu);
    void PageDeCodes(int page);
    [[nodiscard]] const Encodage& EncodageEnCours() const { return enCours_.Octets; }
    void Nommer(char16_t c);
    void Terminer();

private:
    struct Lue {
        Encodage Octets; // what its bytes mean
        std::uint16_t Nom = 0;
    };
    [[nodiscard]] const Lue& Police(std::uint16_t rang) const { return polices_[rang == 0 ? rangParDéfaut_ : rang]; }

    std::vector<Lue> polices_{Lue{}};
    std::vector<std::uint16_t> rangs_; // by number; 0: none
    std::vector<Texte> noms_{Format{}.Police};
    std::unordered_map<Texte, std::uint16_t> numérosDesNoms_{{Format{}.Police, 0}};
    Texte nomEnCours_;
    Lue enCours_;
    int numéroEnCours_ = -1; // -1: none
    int numéroParDéfaut_ = -1;
    std::uint16_t rangParDéfaut_ = 0;
};

class TableDesCouleurs {
public:
    static constexpr std::uint32_t Auto = 1U << 24U;

    // 24 bits as a Couleur has them, or Auto.
    [[nodiscard]] std::uint32_t Teinte(std::size_t rang) const
    {
        return rang < teintes_.size() ? teintes_[rang] : Auto;
    }

    void Vider();
    // 0 red, 1 green, 2 blue.
    void Composante(unsigned rang, int valeur);
    void Terminer();

private:
    std::vector<std::uint32_t> teintes_;
    std::uint32_t enCours_ = Auto;
};

} // namespace rtf

} // namespace tirelune
