// Colours: 24-bit numbers, red in the low byte, blue in the high one.
#pragma once
#include <cstdint>

namespace tirelune {

struct Couleur {
    std::uint32_t Valeur = Automatique;

    static constexpr std::uint32_t Automatique = 0x80000000; // whatever the toolkit uses there

    static constexpr Couleur Rvb(unsigned rouge, unsigned vert, unsigned bleu)
    {
        return Couleur{rouge | vert << 8U | bleu << 16U};
    }
    [[nodiscard]] constexpr unsigned Rouge() const { return Valeur & 0xFFU; }
    [[nodiscard]] constexpr unsigned Vert() const { return Valeur >> 8U & 0xFFU; }
    [[nodiscard]] constexpr unsigned Bleu() const { return Valeur >> 16U & 0xFFU; }
    [[nodiscard]] constexpr bool EstAutomatique() const { return Valeur == Automatique; }

    friend constexpr bool operator==(Couleur, Couleur) = default;
};

inline constexpr Couleur CouleurAuto{};
inline constexpr Couleur Noir{0x000000};
inline constexpr Couleur Blanc{0xFFFFFF};
inline constexpr Couleur Rouge{0x0000FF};
inline constexpr Couleur Orange{0x80C0FF};
inline constexpr Couleur Jaune{0x00FFFF};
inline constexpr Couleur Vert{0x00FF00};
inline constexpr Couleur VertFoncé{0x008000};
inline constexpr Couleur Cyan{0xFFFF00};
inline constexpr Couleur Bleu{0xFF0000};
inline constexpr Couleur Violet{0xFF00FF};
inline constexpr Couleur BleuClair{0xFFC0C0};
inline constexpr Couleur GrisClair{0xC0C0C0};
inline constexpr Couleur Olive{0x008080};

} // namespace tirelune
