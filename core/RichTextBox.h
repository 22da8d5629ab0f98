// A box of formatted text, worked on through its selection.
#pragma once
#include "core/Elements.h"
#include "core/TexteRiche.h"

namespace tirelune {

class RichTextBox;

enum class GenreDeTexte { Riche, Simple };

// A format of the selection: mixed values read as nothing; what is assigned goes to the whole selection. With an
// empty selection it is the format at the caret, and what is assigned goes to the next text inserted there. Behind a
// marked word the caret isn't struck through.
template <class T, T Format::*Champ>
class FormatSélection {
public:
    explicit FormatSélection(RichTextBox& boîte) : boîte_(boîte) {}
    FormatSélection(const FormatSélection&) = delete;

    operator std::optional<T>() const { return (*this)(); }
    std::optional<T> operator()() const;
    FormatSélection& operator=(T valeur);

private:
    RichTextBox& boîte_;
};

template <class T, T FormatParagraphe::*Champ>
class FormatSélectionParagraphe {
public:
    explicit FormatSélectionParagraphe(RichTextBox& boîte) : boîte_(boîte) {}
    FormatSélectionParagraphe(const FormatSélectionParagraphe&) = delete;

    operator std::optional<T>() const { return (*this)(); }
    std::optional<T> operator()() const;
    FormatSélectionParagraphe& operator=(T valeur);

private:
    RichTextBox& boîte_;
};

class RichTextBox final : public Elément {
public:
    RichTextBox(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});

    // Who draws the box hears of each edit: `retirés` characters at `début` gave way to `ajoutés`; with the same
    // count on both sides, characters or formats changed in place, those of the paragraphs that this touches too.
    struct Edition {
        std::size_t Début;
        std::size_t Retirés;
        std::size_t Ajoutés;
    };
    std::function<void(const Edition&)> EditionFaite;

    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void(Touche&)> KeyPress;
    std::function<void()> Change;    // text or format has changed
    std::function<void()> SelChange; // the selection has moved

    Propriété<bool> Locked{*this, false}; // the user can't change the text
    const bool Tabulations;               // Tab writes a tab
    const bool UneLigne;                  // as high as its first line, which never breaks

    // The formatted text, copied whole from box to box.
    [[nodiscard]] const TexteRiche& TextRTF() const { return texte_; }
    void TextRTF(TexteRiche texte);
    [[nodiscard]] const Texte& Text() const { return texte_.Caractères(); }
    // Plain text in the box's own format; any line end becomes CR LF.
    void Text(VueTexte texte);
    [[nodiscard]] std::size_t Longueur() const { return texte_.Longueur(); }

    // Takes RTF as rich text, other text as plain text when `texteSimple` says so, and tells which it was. Nothing,
    // and the box stays as it is, when the file can't be read or is no text.
    [[nodiscard]] std::optional<GenreDeTexte> LoadFile(const Chemin& fichier, bool texteSimple = false);

    // Cut to the text; a new start empties the selection.
    [[nodiscard]] std::size_t SelStart() const { return début_; }
    void SelStart(std::size_t début);
    [[nodiscard]] std::size_t SelLength() const { return longueur_; }
    void SelLength(std::size_t longueur);
    void Sélectionner(std::size_t début, std::size_t longueur);
    [[nodiscard]] Texte SelText() const { return texte_.Caractères().substr(début_, longueur_); }
    // Replaces the selection; the caret goes behind what came in.
    void SelText(VueTexte nouveau);
    // The character at a place, as a one-character selection there would give it; nothing at the end.
    [[nodiscard]] Texte CaractèreEn(std::size_t position) const
    {
        return texte_.Caractères().substr(std::min(position, Longueur()), 1);
    }

    FormatSélection<Texte, &Format::Police> SelFontName{*this};
    FormatSélection<double, &Format::Taille> SelFontSize{*this};
    FormatSélection<Couleur, &Format::Teinte> SelColor{*this};
    FormatSélection<bool, &Format::Gras> SelBold{*this};
    FormatSélection<bool, &Format::Italique> SelItalic{*this};
    FormatSélection<bool, &Format::Souligné> SelUnderline{*this};
    FormatSélection<bool, &Format::Barré> SelStrikeThru{*this};
    FormatSélectionParagraphe<Cadrage, &FormatParagraphe::Alignement> SelAlignment{*this};
    FormatSélectionParagraphe<int, &FormatParagraphe::RetraitGauche> SelIndent{*this};
    FormatSélectionParagraphe<int, &FormatParagraphe::RetraitDroit> SelRightIndent{*this};

    // Takes a format off the whole text, or puts it on, wherever the selection is.
    void ToutFormater(const std::function<void(Format&)>& retouche);
    // Replaces [début, début + longueur) whatever the selection is; the selection goes to the start, empty, of
    // what follows. Formats as told by TexteRiche::Remplacer.
    void Remplacer(std::size_t début, std::size_t longueur, VueTexte nouveau);
    // Other characters one for one, wherever they are, as a single edit: formats and selection stay.
    void Transcrire(Texte nouveaux);
    void FormaterSélection(const std::function<void(Format&)>& retouche);
    void FormaterParagraphes(const std::function<void(FormatParagraphe&)>& retouche);

    // What the user does.
    void Cliquer(std::size_t position); // the character under the pointer
    void DoubleCliquer(std::size_t position);
    bool Taper(Touche touche); // false: the key was thrown away
    // The user's own editing, by whatever means the toolkit offers.
    void Editer(std::size_t début, std::size_t retirés, const TexteRiche& ajouté);

private:
    template <class T, T Format::*>
    friend class FormatSélection;
    template <class T, T FormatParagraphe::*>
    friend class FormatSélectionParagraphe;

    void Signaler(const Edition& édition);
    [[nodiscard]] Format FormatAuCurseur(std::size_t modèle) const;
    // Runs over the formats of the selection, or the caret's, until the callback says no.
    void ParcourirFormats(const std::function<bool(const Format&)>& visite) const;
    void ParcourirParagraphes(const std::function<bool(const FormatParagraphe&)>& visite) const;

    TexteRiche texte_;
    std::size_t début_ = 0;
    std::size_t longueur_ = 0;
    std::optional<Format> formatEnAttente_; // set at a caret, for what comes next there
};

template <class T, T Format::*Champ>
std::optional<T> FormatSélection<T, Champ>::operator()() const
{
    std::optional<T> commun;
    bool mixte = false;
    boîte_.ParcourirFormats([&](const Format& format) {
        if (commun && *commun != format.*Champ)
            mixte = true;
        commun = format.*Champ;
        return !mixte;
    });
    return mixte ? std::nullopt : commun;
}

template <class T, T Format::*Champ>
FormatSélection<T, Champ>& FormatSélection<T, Champ>::operator=(T valeur)
{
    boîte_.FormaterSélection([&](Format& format) { format.*Champ = valeur; });
    return *this;
}

template <class T, T FormatParagraphe::*Champ>
std::optional<T> FormatSélectionParagraphe<T, Champ>::operator()() const
{
    std::optional<T> commun;
    bool mixte = false;
    boîte_.ParcourirParagraphes([&](const FormatParagraphe& format) {
        if (commun && *commun != format.*Champ)
            mixte = true;
        commun = format.*Champ;
        return !mixte;
    });
    return mixte ? std::nullopt : commun;
}

template <class T, T FormatParagraphe::*Champ>
FormatSélectionParagraphe<T, Champ>& FormatSélectionParagraphe<T, Champ>::operator=(T valeur)
{
    boîte_.FormaterParagraphes([&](FormatParagraphe& format) { format.*Champ = valeur; });
    return *this;
}

} // namespace tirelune
