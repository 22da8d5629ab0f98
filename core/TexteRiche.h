// A formatted text: UTF-16 characters, a format for each character, a format for each paragraph.
#pragma once
#include "core/Couleur.h"
#include "core/Plages.h"
#include "core/Texte.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace tirelune {

// Character format. Size in points; 12 and "Comic Sans MS" are what a new text starts with.
struct Format {
    Texte Police = u"Comic Sans MS";
    double Taille = 12;
    Couleur Teinte = CouleurAuto;
    bool Gras = false;
    bool Italique = false;
    bool Souligné = false;
    bool Barré = false;

    friend bool operator==(const Format&, const Format&) = default;
};

enum class Cadrage : std::uint8_t { Gauche, Droite, Centre, Justifié };

// Paragraph format. Indents in twips; the first line's is relative to the left one.
struct FormatParagraphe {
    Cadrage Alignement = Cadrage::Gauche;
    int RetraitGauche = 0;
    int RetraitDroit = 0;
    int RetraitPremièreLigne = 0;

    friend bool operator==(const FormatParagraphe&, const FormatParagraphe&) = default;
};

std::size_t Hachage(const Format& format);
std::size_t Hachage(const FormatParagraphe& format);

// The characters [Début, Fin) share one format. The pointer holds until the text changes.
struct Tranche {
    std::size_t Début;
    std::size_t Fin;
    const Format* Style;
};
struct TrancheParagraphes {
    std::size_t Début;
    std::size_t Fin;
    const FormatParagraphe* Style;
};

// Paragraphs end in CR LF, and both characters count as positions. Positions past the end are cut to the end.
// Invariant: neighbouring runs differ, and the runs cover the text without a gap.
// A paragraph's format is that of all its characters, its line end included; the last paragraph, even an empty
// one, has a format of its own. The two characters of a line end share one character format.
// Whoever replaces one half of a CR LF pair leaves the other half standing; an LF alone ends a paragraph too.
// Plain text from outside goes through NormaliserLignes first.
class TexteRiche {
public:
    // Texts are shorter than that many characters.
    static constexpr std::size_t LongueurMaximale = Plages<Format>::LongueurMaximale - 1;

    TexteRiche();
    explicit TexteRiche(Texte texte, Format format = {});
    // What readers hand over. The paragraph list counts one position more than the text: its end, which carries
    // the format of the last paragraph. `suivant` is what the next character of an empty text takes.
    TexteRiche(Texte texte, Plages<Format> formats, Plages<FormatParagraphe> paragraphes, Format suivant);

    [[nodiscard]] const Texte& Caractères() const { return texte_; }
    [[nodiscard]] std::size_t Longueur() const { return texte_.size(); }

    // Of the character at that position; at the end of the text, of the last character; of an empty text, the
    // format that the next character will take.
    [[nodiscard]] const Format& FormatEn(std::size_t position) const;
    [[nodiscard]] const FormatParagraphe& ParagrapheEn(std::size_t position) const;
    // Calls back for each run that meets [début, fin), cut to it, in text order.
    void PourChaqueTranche(std::size_t début, std::size_t fin, const std::function<void(const Tranche&)>& visite) const;
    // The same for paragraph formats. The empty last paragraph has no character, hence no run: see ParagrapheEn.
    void PourChaqueParagraphe(std::size_t début, std::size_t fin,
                              const std::function<void(const TrancheParagraphes&)>& visite) const;

    // Replaces [début, début + longueur). The new characters take `format`, or, without one, the format of the
    // first replaced character; of an empty range, that of the character before it, or after it at the start.
    // New paragraphs take the format of the one they stand in; a paragraph that loses its line end lends its
    // format to what is joined to it.
    void Remplacer(std::size_t début, std::size_t longueur, VueTexte nouveau, const Format* format = nullptr);
    // Other characters one for one, under the formats that stand there; no line end comes or goes.
    void Transcrire(Texte nouveaux);
    // Changes the format of every character of the range through `retouche`, once for each run; both halves of
    // a line end when one is reached. In an empty text, changes what the next character takes.
    void Formater(std::size_t début, std::size_t longueur, const std::function<void(Format&)>& retouche);
    // Changes the format of every paragraph that the range touches; an empty range touches its paragraph.
    void FormaterParagraphes(std::size_t début, std::size_t longueur,
                             const std::function<void(FormatParagraphe&)>& retouche);
    // Adds at the end; the paragraph that the new characters continue takes `paragraphe` as well. Amortised
    // constant cost for each character as long as that format stays the same within a paragraph.
    void Ajouter(VueTexte nouveau, const Format& format, const FormatParagraphe& paragraphe);

    friend bool operator==(const TexteRiche& a, const TexteRiche& b)
    {
        return a.texte_ == b.texte_ && a.formats_ == b.formats_ && a.paragraphes_ == b.paragraphes_;
    }

private:
    [[nodiscard]] bool CoupeUnePaire(std::size_t position) const;
    void AccorderLaPaire(std::size_t position);
    [[nodiscard]] std::size_t DébutDuParagraphe(std::size_t position) const;
    [[nodiscard]] std::size_t FinDuParagraphe(std::size_t position) const;

    Texte texte_;
    Plages<Format> formats_;
    Plages<FormatParagraphe> paragraphes_; // one position more than the text
    Format suivant_;                       // for an empty text only
};

// Any line end (LF, CR, CR LF, U+2028, U+2029) becomes CR LF.
Texte NormaliserLignes(VueTexte texte);

// What comes in at [début, fin) stands inside a marked word: between two marked characters of one line. A mark is a
// word's: nothing that is written before or behind it takes it.
[[nodiscard]] bool DansUneMarque(const TexteRiche& texte, std::size_t début, std::size_t fin);

// The struck-through runs in text order, a run that ends the text included.
std::vector<Texte> MotsMarqués(const TexteRiche& texte);

} // namespace tirelune
