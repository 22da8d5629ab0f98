// The control words that the RTF reader knows, and how it finds them.
#pragma once
#include "core/TexteRiche.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace tirelune {

namespace rtf {

enum Drapeau : std::uint8_t { Gras = 1, Italique = 2, Souligné = 4, Barré = 8, Caché = 16, Supprimé = 32 };
inline constexpr unsigned Attributs = Gras | Italique | Souligné | Barré;
inline constexpr unsigned Invisible = Caché | Supprimé;

enum class Mot : std::uint8_t {
    Attribut,   // on, or off with a parameter 0
    SansEffet,  // known, without effect, and never a reason to skip its group
    Caractère,  // argument: the character
    FinDeLigne, // argument unused, as below where none is told
    Unicode,
    Repli,
    Cellule,
    Rangée,
    Police,
    Taille,
    Couleur,
    SansSouligné,
    Ordinaire, // \plain
    Cadrage,   // argument: the alignment
    RetraitGauche,
    RetraitDroit,
    RetraitPremièreLigne,
    Paragraphe, // \pard
    Rouge,
    Vert,
    Bleu,
    JeuDeCaractères,
    PageDePolice,
    PageDuDocument,
    PageFixe, // argument: the code page
    PoliceParDéfaut,
    TableDesPolices,
    TableDesCouleurs,
    DeuxVersions,
    VersionUnicode,
    PropriétésImbriquées,
    Binaire,
    Puce, // text of a list's bullet or number
    Sauter,
};

struct Entrée {
    std::string_view Nom;
    Mot Sens;
    char16_t Argument = 0;
};

inline constexpr auto Mots = std::to_array<Entrée>({
    {"b", Mot::Attribut, Gras},
    {"i", Mot::Attribut, Italique},
    {"ul", Mot::Attribut, Souligné},
    {"uld", Mot::Attribut, Souligné},
    {"uldash", Mot::Attribut, Souligné},
    {"uldashd", Mot::Attribut, Souligné},
    {"uldashdd", Mot::Attribut, Souligné},
    {"uldb", Mot::Attribut, Souligné},
    {"ulhwave", Mot::Attribut, Souligné},
    {"ulldash", Mot::Attribut, Souligné},
    {"ulth", Mot::Attribut, Souligné},
    {"ulthd", Mot::Attribut, Souligné},
    {"ulthdash", Mot::Attribut, Souligné},
    {"ulthdashd", Mot::Attribut, Souligné},
    {"ulthdashdd", Mot::Attribut, Souligné},
    {"ulthldash", Mot::Attribut, Souligné},
    {"ululdbwave", Mot::Attribut, Souligné},
    {"ulw", Mot::Attribut, Souligné},
    {"ulwave", Mot::Attribut, Souligné},
    {"ulnone", Mot::SansSouligné},
    {"strike", Mot::Attribut, Barré},
    {"striked", Mot::Attribut, Barré},
    {"v", Mot::Attribut, Caché},
    {"deleted", Mot::Attribut, Supprimé},
    {"plain", Mot::Ordinaire},
    {"f", Mot::Police},
    {"fs", Mot::Taille},
    {"cf", Mot::Couleur},

    {"pard", Mot::Paragraphe},
    {"ql", Mot::Cadrage, static_cast<char16_t>(Cadrage::Gauche)},
    {"qr", Mot::Cadrage, static_cast<char16_t>(Cadrage::Droite)},
    {"qc", Mot::Cadrage, static_cast<char16_t>(Cadrage::Centre)},
    {"qj", Mot::Cadrage, static_cast<char16_t>(Cadrage::Justifié)},
    {"li", Mot::RetraitGauche},
    {"ri", Mot::RetraitDroit},
    {"fi", Mot::RetraitPremièreLigne},

    {"par", Mot::FinDeLigne},
    {"line", Mot::FinDeLigne},
    {"lbr", Mot::FinDeLigne},
    {"sect", Mot::FinDeLigne},
    {"page", Mot::FinDeLigne},
    {"column", Mot::FinDeLigne},
    {"cell", Mot::Cellule},
    {"nestcell", Mot::Cellule},
    {"row", Mot::Rangée},
    {"nestrow", Mot::Rangée},
    {"u", Mot::Unicode},
    {"uc", Mot::Repli},
    {"tab", Mot::Caractère, u'\t'},
    {"emdash", Mot::Caractère, 0x2014},
    {"endash", Mot::Caractère, 0x2013},
    {"lquote", Mot::Caractère, 0x2018},
    {"rquote", Mot::Caractère, 0x2019},
    {"ldblquote", Mot::Caractère, 0x201C},
    {"rdblquote", Mot::Caractère, 0x201D},
    {"bullet", Mot::Caractère, 0x2022},
    {"enspace", Mot::Caractère, 0x2002},
    {"emspace", Mot::Caractère, 0x2003},
    {"qmspace", Mot::Caractère, 0x2005},
    {"zwbo", Mot::Caractère, 0x200B},
    {"zwnbo", Mot::Caractère, 0x2060},
    {"zwnj", Mot::Caractère, 0x200C},
    {"zwj", Mot::Caractère, 0x200D},
    {"ltrmark", Mot::Caractère, 0x200E},
    {"rtlmark", Mot::Caractère, 0x200F},

    {"ansi", Mot::PageFixe, 1252},
    {"mac", Mot::PageFixe, 10000},
    {"pc", Mot::PageFixe, 437},
    {"pca", Mot::PageFixe, 850},
    {"ansicpg", Mot::PageDuDocument},
    {"deff", Mot::PoliceParDéfaut},
    {"fonttbl", Mot::TableDesPolices},
    {"fcharset", Mot::JeuDeCaractères},
    {"cpg", Mot::PageDePolice},
    {"colortbl", Mot::TableDesCouleurs},
    {"red", Mot::Rouge},
    {"green", Mot::Vert},
    {"blue", Mot::Bleu},

    {"field", Mot::SansEffet},
    {"fldrslt", Mot::SansEffet},
    {"upr", Mot::DeuxVersions},
    {"ud", Mot::VersionUnicode},
    {"nesttableprops", Mot::PropriétésImbriquées},
    {"bin", Mot::Binaire},

    // Destinations that are no part of the text. Those that always come behind \* need no mention.
    {"aftncn", Mot::Sauter},
    {"aftnsep", Mot::Sauter},
    {"aftnsepc", Mot::Sauter},
    {"annotation", Mot::Sauter},
    {"atnauthor", Mot::Sauter},
    {"atndate", Mot::Sauter},
    {"atnicn", Mot::Sauter},
    {"atnid", Mot::Sauter},
    {"atnparent", Mot::Sauter},
    {"atnref", Mot::Sauter},
    {"atntime", Mot::Sauter},
    {"atrfend", Mot::Sauter},
    {"atrfstart", Mot::Sauter},
    {"background", Mot::Sauter},
    {"bkmkend", Mot::Sauter},
    {"bkmkstart", Mot::Sauter},
    {"colorschememapping", Mot::Sauter},
    {"comment", Mot::Sauter},
    {"datafield", Mot::Sauter},
    {"datastore", Mot::Sauter},
    {"do", Mot::Sauter},
    {"docvar", Mot::Sauter},
    {"falt", Mot::Sauter},
    {"ffdeftext", Mot::Sauter},
    {"ffname", Mot::Sauter},
    {"filetbl", Mot::Sauter},
    {"fldinst", Mot::Sauter},
    {"fldtype", Mot::Sauter},
    {"fname", Mot::Sauter},
    {"fontemb", Mot::Sauter},
    {"fontfile", Mot::Sauter},
    {"footer", Mot::Sauter},
    {"footerf", Mot::Sauter},
    {"footerl", Mot::Sauter},
    {"footerr", Mot::Sauter},
    {"footnote", Mot::Sauter},
    {"formfield", Mot::Sauter},
    {"ftncn", Mot::Sauter},
    {"ftnsep", Mot::Sauter},
    {"ftnsepc", Mot::Sauter},
    {"generator", Mot::Sauter},
    {"header", Mot::Sauter},
    {"headerf", Mot::Sauter},
    {"headerl", Mot::Sauter},
    {"headerr", Mot::Sauter},
    {"info", Mot::Sauter},
    {"keycode", Mot::Sauter},
    {"latentstyles", Mot::Sauter},
    {"listoverridetable", Mot::Sauter},
    {"listtable", Mot::Sauter},
    {"listtext", Mot::Puce},
    {"nextfile", Mot::Sauter},
    {"nonesttables", Mot::Sauter},
    {"nonshppict", Mot::Sauter},
    {"objdata", Mot::Sauter},
    {"object", Mot::Sauter},
    {"panose", Mot::Sauter},
    {"pict", Mot::Sauter},
    {"pn", Mot::Sauter},
    {"pntext", Mot::Puce},
    {"pntxta", Mot::Sauter},
    {"pntxtb", Mot::Sauter},
    {"private", Mot::Sauter},
    {"revtbl", Mot::Sauter},
    {"rxe", Mot::Sauter},
    {"shpinst", Mot::Sauter},
    {"shppict", Mot::Sauter},
    {"shprslt", Mot::Sauter},
    {"stylesheet", Mot::Sauter},
    {"tc", Mot::Sauter},
    {"tcn", Mot::Sauter},
    {"template", Mot::Sauter},
    {"themedata", Mot::Sauter},
    {"txe", Mot::Sauter},
    {"userprops", Mot::Sauter},
    {"xe", Mot::Sauter},
    {"xmlnstbl", Mot::Sauter},
});

constexpr std::uint64_t AllongerClé(std::uint64_t clé, char lettre)
{
    return clé << 5U ^ (static_cast<std::uint64_t>(lettre) & 0x1FU);
}

// Perfect hash of the control words: one multiplication, one look, one comparison.
struct Dictionnaire {
    static constexpr unsigned Bits = 12;
    static constexpr std::uint8_t Vide = 0xFF;

    std::uint64_t Facteur = 0;
    std::array<std::uint8_t, 1U << Bits> Rangs{};
    std::array<std::uint64_t, Mots.size()> Clés{};

    [[nodiscard]] constexpr std::size_t Place(std::uint64_t clé) const
    {
        return static_cast<std::size_t>(clé * Facteur >> (64U - Bits));
    }
    [[nodiscard]] constexpr bool Ranger()
    {
        Rangs.fill(Vide);
        for (std::size_t i = 0; i < Mots.size(); ++i) {
            std::uint64_t clé = 0;
            for (const char lettre : Mots[i].Nom)
                clé = AllongerClé(clé, lettre);
            Clés[i] = clé;
            auto& rang = Rangs[Place(clé)];
            if (rang != Vide)
                return false;
            rang = static_cast<std::uint8_t>(i);
        }
        return true;
    }
    constexpr Dictionnaire()
    {
        static_assert(Mots.size() < Vide);
        Facteur = 0x9E3779B97F4A7C15U;
        while (!Ranger())
            Facteur = Facteur * 6364136223846793005U + 2U; // stays odd
    }
    // The key holds twelve letters; a longer word is compared letter by letter.
    [[nodiscard]] const Entrée* Trouver(std::uint64_t clé, std::string_view mot) const
    {
        const auto rang = Rangs[Place(clé)];
        if (rang == Vide || Clés[rang] != clé || Mots[rang].Nom.size() != mot.size())
            return nullptr;
        return mot.size() <= 12 || Mots[rang].Nom == mot ? &Mots[rang] : nullptr;
    }
};
inline constexpr Dictionnaire LeDictionnaire;

} // namespace rtf

} // namespace tirelune
