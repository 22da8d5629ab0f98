#include "authoring/CorrigerTexte.h"

#include "core/RichTextBox.h"

#include <algorithm>
#include <cassert>

namespace tirelune {

namespace {

using NuméroFormat = Plages<Format>::Numéro;

constexpr VueTexte Tabulation = u"\t";

// A piece of the text laid flat, a format number beside each character: a pass over it searches for no run.
struct TexteAPlat {
    Texte Caractères;
    std::vector<NuméroFormat> Formats;
    bool GuillemetOuvert = false; // the next straight quote is the second of its pair

    [[nodiscard]] std::size_t Longueur() const { return Caractères.size(); }
    void Ajouter(VueTexte nouveau, NuméroFormat format)
    {
        Caractères += nouveau;
        Formats.insert(Formats.end(), nouveau.size(), format);
    }
    void Copier(const TexteAPlat& source, std::size_t début, std::size_t fin)
    {
        Caractères.append(source.Caractères, début, fin - début);
        Formats.insert(Formats.end(), source.Formats.begin() + static_cast<std::ptrdiff_t>(début),
                       source.Formats.begin() + static_cast<std::ptrdiff_t>(fin));
    }
    void Déplacer(std::size_t de, std::size_t à)
    {
        Caractères[à] = Caractères[de];
        Formats[à] = Formats[de];
    }
    void Tronquer(std::size_t longueur)
    {
        Caractères.resize(longueur);
        Formats.resize(longueur);
    }
};

// ---- The forms of replacement ------------------------------------------------------------------------------------
// What comes in takes the format of the first character that it replaces. No sign sought has a small and a capital
// form, so that a plain comparison does.

// Gives what looking again from the first character after each replacement gives, in one pass: what has been read
// holds nothing sought, so the next find ends at the character just read, and its replacement is read in its turn.
void RemplacerPartout(TexteAPlat& texte, VueTexte cherché, VueTexte remplacement)
{
    assert(remplacement.size() <= cherché.size() && remplacement.find(cherché) == VueTexte::npos);
    auto écrits = texte.Caractères.find(cherché);
    if (écrits == Texte::npos)
        return;
    for (auto lu = écrits; lu < texte.Longueur();) {
        texte.Déplacer(lu++, écrits++);
        if (texte.Caractères[écrits - 1] != cherché.back() ||
            !VueTexte(texte.Caractères.data(), écrits).ends_with(cherché))
            continue;
        écrits -= cherché.size();
        lu -= remplacement.size();
        const auto format = texte.Formats[écrits];
        for (std::size_t i = 0; i < remplacement.size(); ++i) {
            texte.Caractères[lu + i] = remplacement[i];
            texte.Formats[lu + i] = format;
        }
    }
    texte.Tronquer(écrits);
}

// The finds give way to the one and to the other text by turns. True: the second one is next.
bool RemplacerTourATour(TexteAPlat& texte, VueTexte cherché, VueTexte impair, VueTexte pair, bool auSecond)
{
    auto place = texte.Caractères.find(cherché);
    if (place == Texte::npos)
        return auSecond;
    TexteAPlat résultat;
    résultat.Caractères.reserve(texte.Longueur());
    résultat.Formats.reserve(texte.Longueur());
    std::size_t lu = 0;
    for (; place != Texte::npos; auSecond = !auSecond) {
        résultat.Copier(texte, lu, place);
        résultat.Ajouter(auSecond ? pair : impair, texte.Formats[place]);
        lu = place + cherché.size();
        place = texte.Caractères.find(cherché, lu);
    }
    résultat.Copier(texte, lu, texte.Longueur());
    texte.Caractères.swap(résultat.Caractères);
    texte.Formats.swap(résultat.Formats);
    return auSecond;
}

void RemplacerEnAvançant(TexteAPlat& texte, VueTexte cherché, VueTexte remplacement)
{
    RemplacerTourATour(texte, cherché, remplacement, remplacement, false);
}

void EspacerGuillemets(TexteAPlat& texte, VueTexte guillemet, VueTexte blanc)
{
    texte.GuillemetOuvert = RemplacerTourATour(texte, guillemet, Texte{blanc} + Texte{guillemet},
                                               Texte{guillemet} + Texte{blanc}, texte.GuillemetOuvert);
}

// Carriage return and line feed are one line end: the blank before it goes, the line end stays whole.
void RognerLesLignes(TexteAPlat& texte, VueTexte blanc, VueTexte retour)
{
    std::size_t écrits = 0;
    for (std::size_t lu = 0; lu < texte.Longueur(); ++lu) {
        if (texte.Caractères[lu] == retour.front())
            while (écrits > 0 && texte.Caractères[écrits - 1] == blanc.front())
                --écrits;
        texte.Déplacer(lu, écrits++);
    }
    texte.Tronquer(écrits);
}

// ---- The rows ----------------------------------------------------------------------------------------------------

struct Retouche {
    void (*Forme)(TexteAPlat& texte, VueTexte cherché, VueTexte remplacement);
    VueTexte Cherché;
    VueTexte Remplacement;
};

constexpr Retouche Retouches[] = {
    {RemplacerEnAvançant, u"\u00A0", u" "},
    {RemplacerPartout, u"  ", u" "},
    {RemplacerPartout, u" .", u"."},
    {RemplacerPartout, u" :", u":"},
    {RemplacerPartout, u" ;", u";"},
    {RemplacerPartout, u" !", u"!"},
    {RemplacerPartout, u" ?", u"?"},
    {RemplacerPartout, u" -", u"-"},
    {RemplacerPartout, u" '", u"'"},
    {RemplacerPartout, u" (", u"("},
    {RemplacerPartout, u" )", u")"},
    {RemplacerPartout, u"_", u"-"},
    {RemplacerPartout, u". ", u"."},
    {RemplacerPartout, u": ", u":"},
    {RemplacerPartout, u"; ", u";"},
    {RemplacerPartout, u"! ", u"!"},
    {RemplacerPartout, u"? ", u"?"},
    {RemplacerPartout, u"- ", u"-"},
    {RemplacerPartout, u"' ", u"'"},
    {RemplacerPartout, u"( ", u"("},
    {RemplacerPartout, u") ", u")"},
    {RemplacerEnAvançant, u".", u". "},
    {RemplacerEnAvançant, u":", u" : "},
    {RemplacerEnAvançant, u";", u" ; "},
    {RemplacerEnAvançant, u"!", u" ! "},
    {RemplacerEnAvançant, u"?", u" ? "},
    {RemplacerEnAvançant, u"(", u" ("},
    {RemplacerEnAvançant, u")", u") "},
    {RognerLesLignes, u" ", u"\r"},
    {RemplacerPartout, u". . .", u"..."}, // the ellipsis that the single full stops have broken
    {RemplacerPartout, u" \"", u"\""},
    {RemplacerPartout, u"\" ", u"\""},
    {EspacerGuillemets, u"\"", u" "},
    {RemplacerPartout, u"« ", u"«"},
    {RemplacerPartout, u" »", u"»"},
    {RognerLesLignes, u" ", u"\r"}, // what the double marks and the quotes have left
    {RemplacerPartout, u" .", u"."},
};

// ---- Tabs --------------------------------------------------------------------------------------------------------

void SupprimerTabulations(TexteAPlat& texte)
{
    RemplacerPartout(texte, Tabulation, u"");
}

void InsérerTabulations(TexteAPlat& texte)
{
    RemplacerEnAvançant(texte, FinDeLigne, u"\r\n\t");
}

void NettoyerTabulations(TexteAPlat& texte, Plages<Format>& formats)
{
    for (auto place = texte.Caractères.find(Tabulation); place != Texte::npos;
         place = texte.Caractères.find(Tabulation, place + 1)) {
        auto format = formats[texte.Formats[place]];
        format.Souligné = false;
        texte.Formats[place] = formats.Interner(format);
    }
}

// ---- From the formatted text and back ----------------------------------------------------------------------------

// No rule seeks a letter or makes one, so that none reaches across a letter: the text is worked on piece by piece,
// each cut off before a letter and small enough for the processor's cache.
std::size_t FinDuMorceau(const Texte& texte, std::size_t début)
{
    static constexpr std::size_t LongueurVisée = 4096;
    if (texte.size() - début <= LongueurVisée)
        return texte.size();
    const auto lettre = std::find_if(texte.begin() + static_cast<std::ptrdiff_t>(début + LongueurVisée), texte.end(),
                                     [](char16_t c) { return Minuscule(c) >= u'a' && Minuscule(c) <= u'z'; });
    return static_cast<std::size_t>(lettre - texte.begin());
}

void Aplatir(const TexteRiche& texte, std::size_t début, std::size_t fin, Plages<Format>& formats, TexteAPlat& plat)
{
    plat.Caractères.assign(texte.Caractères(), début, fin - début);
    plat.Formats.clear();
    texte.PourChaqueTranche(début, fin, [&](const Tranche& tranche) {
        plat.Formats.insert(plat.Formats.end(), tranche.Fin - tranche.Début, formats.Interner(*tranche.Style));
    });
}

void Corriger(TexteAPlat& texte, Plages<Format>& formats)
{
    for (const auto& retouche : Retouches)
        retouche.Forme(texte, retouche.Cherché, retouche.Remplacement);
    SupprimerTabulations(texte);
    InsérerTabulations(texte);
    NettoyerTabulations(texte, formats);
}

// Behind the line end at `ligne`, or behind the position that stands for the end of the text.
std::size_t FinDuParagraphe(const Texte& texte, std::size_t ligne)
{
    return ligne == Texte::npos ? texte.size() + 1 : ligne + 1;
}

// The corrected text has the paragraphs of the first one, line by line.
Plages<FormatParagraphe> AccorderParagraphes(const TexteRiche& avant, const Texte& après)
{
    Plages<FormatParagraphe> paragraphes;
    std::size_t débutAvant = 0;
    for (std::size_t débutAprès = 0; débutAprès <= après.size();) {
        const auto fin = FinDuParagraphe(après, après.find(u'\n', débutAprès));
        paragraphes.Ajouter(fin - débutAprès, paragraphes.Interner(avant.ParagrapheEn(débutAvant)));
        débutAprès = fin;
        débutAvant = FinDuParagraphe(avant.Caractères(), avant.Caractères().find(u'\n', débutAvant));
    }
    return paragraphes;
}

} // namespace

TexteRiche TexteCorrigé(const TexteRiche& texte)
{
    if (texte.Longueur() == 0)
        return texte;
    Texte corrigé;
    Plages<Format> formats;
    TexteAPlat morceau;
    for (std::size_t début = 0; début < texte.Longueur();) {
        const auto fin = FinDuMorceau(texte.Caractères(), début);
        Aplatir(texte, début, fin, formats, morceau);
        Corriger(morceau, formats);
        corrigé += morceau.Caractères;
        for (const auto numéro : morceau.Formats)
            formats.Ajouter(1, numéro);
        début = fin;
    }
    auto paragraphes = AccorderParagraphes(texte, corrigé);
    return {std::move(corrigé), std::move(formats), std::move(paragraphes), texte.FormatEn(texte.Longueur())};
}

void CorrigerTexte(RichTextBox& rtfTexte)
{
    auto corrigé = TexteCorrigé(rtfTexte.TextRTF());
    if (corrigé != rtfTexte.TextRTF())
        rtfTexte.TextRTF(std::move(corrigé));
}

} // namespace tirelune
