#include "authoring/CorrigerTexte.h"

#include "core/RichTextBox.h"

#include <algorithm>
#include <cassert>

namespace {

using NuméroFormat = Plages<Format>::Numéro;

constexpr VueTexte Tabulation = u"\t";

// A text laid flat, a format number beside each character: a pass over it searches for no run.
struct TexteAPlat {
    Texte Caractères;
    std::vector<NuméroFormat> Formats;

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

// The first, third... find gives way to one text, the second, fourth... to the other.
void RemplacerTourATour(TexteAPlat& texte, VueTexte cherché, VueTexte impair, VueTexte pair)
{
    auto place = texte.Caractères.find(cherché);
    if (place == Texte::npos)
        return;
    TexteAPlat résultat;
    résultat.Caractères.reserve(texte.Longueur());
    résultat.Formats.reserve(texte.Longueur());
    std::size_t lu = 0;
    for (bool premier = true; place != Texte::npos; premier = !premier) {
        résultat.Copier(texte, lu, place);
        résultat.Ajouter(premier ? impair : pair, texte.Formats[place]);
        lu = place + cherché.size();
        place = texte.Caractères.find(cherché, lu);
    }
    résultat.Copier(texte, lu, texte.Longueur());
    texte = std::move(résultat);
}

void RemplacerEnAvançant(TexteAPlat& texte, VueTexte cherché, VueTexte remplacement)
{
    RemplacerTourATour(texte, cherché, remplacement, remplacement);
}

void EspacerGuillemets(TexteAPlat& texte, VueTexte guillemet, VueTexte blanc)
{
    RemplacerTourATour(texte, guillemet, Texte{blanc} + Texte{guillemet}, Texte{guillemet} + Texte{blanc});
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

struct Rangée {
    void (*Forme)(TexteAPlat& texte, VueTexte cherché, VueTexte remplacement);
    VueTexte Cherché;
    VueTexte Remplacement;
};

constexpr Rangée Rangées[] = {
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

TexteAPlat Aplatir(const TexteRiche& texte, Plages<Format>& formats)
{
    TexteAPlat plat{texte.Caractères(), {}};
    plat.Formats.reserve(texte.Longueur());
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        plat.Formats.insert(plat.Formats.end(), tranche.Fin - tranche.Début, formats.Interner(*tranche.Format_));
    });
    return plat;
}

// Behind the line end at `ligne`, or behind the position that stands for the end of the text.
std::size_t FinDuParagraphe(const Texte& texte, std::size_t ligne)
{
    return ligne == Texte::npos ? texte.size() + 1 : ligne + 1;
}

// The corrected text has the paragraphs of the first one, line by line. Laying a tab behind a line end rewrites that
// line end, and the next paragraph goes on with the format of the one before it, but for its remembered alignment.
Plages<FormatParagraphe> AccorderParagraphes(const TexteRiche& avant, const Texte& après)
{
    Plages<FormatParagraphe> paragraphes;
    auto format = avant.ParagrapheEn(0);
    std::size_t débutAvant = 0;
    std::size_t débutAprès = 0;
    while (débutAprès <= après.size()) {
        const auto ligne = après.find(u'\n', débutAprès);
        const auto fin = FinDuParagraphe(après, ligne);
        paragraphes.Ajouter(fin - débutAprès, paragraphes.Interner(format));
        débutAprès = fin;
        débutAvant = FinDuParagraphe(avant.Caractères(), avant.Caractères().find(u'\n', débutAvant));
        const auto& suivant = avant.ParagrapheEn(débutAvant);
        if (ligne != Texte::npos && VueTexte(après).substr(0, fin).ends_with(FinDeLigne))
            format.Alignement_ = suivant.Alignement_;
        else
            format = suivant;
    }
    return paragraphes;
}

} // namespace

TexteRiche TexteCorrigé(const TexteRiche& texte)
{
    if (texte.Longueur() == 0)
        return texte;
    Plages<Format> formats;
    auto plat = Aplatir(texte, formats);
    for (const auto& rangée : Rangées)
        rangée.Forme(plat, rangée.Cherché, rangée.Remplacement);
    SupprimerTabulations(plat);
    InsérerTabulations(plat);
    NettoyerTabulations(plat, formats);

    for (const auto numéro : plat.Formats)
        formats.Ajouter(1, numéro);
    auto paragraphes = AccorderParagraphes(texte, plat.Caractères);
    return {std::move(plat.Caractères), std::move(formats), std::move(paragraphes), texte.FormatEn(texte.Longueur())};
}

void CorrigerTexte(RichTextBox& rtfTexte)
{
    auto corrigé = TexteCorrigé(rtfTexte.TextRTF());
    if (corrigé != rtfTexte.TextRTF())
        rtfTexte.TextRTF(std::move(corrigé));
}
