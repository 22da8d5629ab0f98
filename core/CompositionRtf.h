// The text that an RTF reader puts together, character by character or in bulk.
#pragma once
#include "core/MotsRtf.h"
#include "core/TablesRtf.h"
#include "core/TexteRiche.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tirelune {

namespace rtf {

inline constexpr int TailleParDéfaut = 24; // half points
inline constexpr int TailleMaximale = 3'276;

// A character format in one number: attributes, size, colour, number of the font's name.
using Clé = std::uint64_t;
inline constexpr unsigned DécalageTaille = 4;
inline constexpr unsigned DécalageTeinte = 16;
inline constexpr unsigned DécalagePolice = 41;

// In twips; the reader refuses what doesn't fit.
struct Paragraphe {
    std::int16_t Gauche = 0;
    std::int16_t Droit = 0;
    std::int16_t Première = 0;
    Cadrage Alignement = Cadrage::Gauche;
};

class Composition {
public:
    // Room for that many characters; memory that stays unused costs nothing.
    Composition(const TableDesPolices& polices, std::size_t taille);

    [[nodiscard]] std::size_t Position() const { return texte_.size() + rempli_; }
    [[nodiscard]] bool FinitParUnRetour() const;

    // The format of what follows.
    void PrendreFormat(Clé clé)
    {
        if (clé != cléEnCours_)
            ChangerDeFormat(clé);
    }
    void Poser(char16_t c)
    {
        tampon_[rempli_++] = c;
        if (rempli_ == tampon_.size())
            Vider();
    }
    // Bulk: at least one character may be written there, and Avancer tells how many were.
    [[nodiscard]] char16_t* Place() { return tampon_.data() + rempli_; }
    [[nodiscard]] std::size_t Libres() const { return tampon_.size() - rempli_; }
    void Avancer(std::size_t nombre)
    {
        rempli_ += nombre;
        if (rempli_ == tampon_.size())
            Vider();
    }
    // Behind a line end: the format of the paragraph that it ends.
    void FinirLeParagraphe(const Paragraphe& paragraphe);
    void SignalerDemiePaire() { demiesPaires_ = true; }

    // The formats of the last paragraph and of the character that would have come next.
    TexteRiche Achever(const Paragraphe& dernier, Clé suivante);

private:
    struct Parcouru { // a remembered format
        Clé clé = ~Clé{0};
        Plages<Format>::Numéro numéro = 0;
    };

    void ChangerDeFormat(Clé clé);
    [[nodiscard]] Format FormatDe(Clé clé) const;
    Plages<Format>::Numéro NuméroDe(Clé clé);
    Plages<FormatParagraphe>::Numéro NuméroDe(const Paragraphe& paragraphe);
    void Vider();

    const TableDesPolices& polices_;

    Texte texte_;
    std::array<char16_t, 4096> tampon_{}; // its end
    std::size_t rempli_ = 0;

    Plages<Format> formats_;
    std::size_t débutDuFormat_ = 0;
    Clé cléEnCours_ = ~Clé{0};
    std::array<Parcouru, 64> parcourus_{};

    Plages<FormatParagraphe> paragraphes_;
    std::size_t débutDuParagraphe_ = 0;

    Plages<Format>::Numéro numéroDuFormat_ = 0;
    bool demiesPaires_ = false;
};

} // namespace rtf

} // namespace tirelune
