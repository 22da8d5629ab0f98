#include "core/TexteRiche.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <string_view>

namespace tirelune {

namespace {

std::size_t Mêler(std::size_t graine, std::size_t valeur)
{
    return std::rotl(graine ^ valeur, 27) * 0x9E3779B97F4A7C15U;
}

// The high bits of the products are the good ones, the tables use the low ones.
std::size_t Replier(std::size_t graine)
{
    return graine ^ graine >> 32U;
}

} // namespace

std::size_t Hachage(const Format& format)
{
    const auto attributs = static_cast<unsigned>(format.Gras) | static_cast<unsigned>(format.Italique) << 1U |
                           static_cast<unsigned>(format.Souligné) << 2U | static_cast<unsigned>(format.Barré) << 3U;
    auto graine = std::hash<VueTexte>{}(format.Police);
    graine = Mêler(graine, std::hash<double>{}(format.Taille));
    graine = Mêler(graine, format.Teinte.Valeur);
    return Replier(Mêler(graine, attributs));
}

std::size_t Hachage(const FormatParagraphe& format)
{
    auto graine = Mêler(0, static_cast<std::size_t>(format.Alignement));
    graine = Mêler(graine, static_cast<std::size_t>(format.RetraitGauche));
    graine = Mêler(graine, static_cast<std::size_t>(format.RetraitDroit));
    return Replier(Mêler(graine, static_cast<std::size_t>(format.RetraitPremièreLigne)));
}

TexteRiche::TexteRiche() : TexteRiche(Texte{}) {}

TexteRiche::TexteRiche(Texte texte, Format format) : texte_(std::move(texte)), suivant_(std::move(format))
{
    assert(texte_.size() <= LongueurMaximale);
    formats_.Ajouter(texte_.size(), formats_.Interner(suivant_));
    paragraphes_.Ajouter(texte_.size() + 1, paragraphes_.Interner({}));
}

TexteRiche::TexteRiche(Texte texte, Plages<Format> formats, Plages<FormatParagraphe> paragraphes, Format suivant)
    : texte_(std::move(texte)),
      formats_(std::move(formats)),
      paragraphes_(std::move(paragraphes)),
      suivant_(std::move(suivant))
{
    assert(formats_.Longueur() == texte_.size() && paragraphes_.Longueur() == texte_.size() + 1);
}

const Format& TexteRiche::FormatEn(std::size_t position) const
{
    return texte_.empty() ? suivant_ : formats_[formats_.En(std::min(position, texte_.size() - 1))];
}

const FormatParagraphe& TexteRiche::ParagrapheEn(std::size_t position) const
{
    return paragraphes_[paragraphes_.En(std::min(position, texte_.size()))];
}

void TexteRiche::PourChaqueTranche(std::size_t début, std::size_t fin,
                                   const std::function<void(const Tranche&)>& visite) const
{
    formats_.Parcourir(début, fin, [&](std::size_t de, std::size_t à, auto numéro) {
        visite({de, à, &formats_[numéro]});
    });
}

void TexteRiche::PourChaqueParagraphe(std::size_t début, std::size_t fin,
                                      const std::function<void(const TrancheParagraphes&)>& visite) const
{
    paragraphes_.Parcourir(début, std::min(fin, texte_.size()), [&](std::size_t de, std::size_t à, auto numéro) {
        visite({de, à, &paragraphes_[numéro]});
    });
}

void TexteRiche::Remplacer(std::size_t début, std::size_t longueur, VueTexte nouveau, const Format* format)
{
    début = std::min(début, texte_.size());
    longueur = std::min(longueur, texte_.size() - début);
    if (longueur == 0 && nouveau.empty())
        return;
    const auto fin = début + longueur;
    const bool lignes = VueTexte(texte_).substr(début, longueur).find(u'\n') != VueTexte::npos;

    Plages<Format>::Numéro numéro = 0;
    if (format != nullptr)
        numéro = formats_.Interner(*format);
    else if (texte_.empty())
        numéro = formats_.Interner(suivant_);
    else
        numéro = formats_.En(longueur > 0 || début == 0 ? début : début - 1);
    if (longueur == texte_.size())
        suivant_ = nouveau.empty() ? FormatEn(début) : formats_[numéro];

    const auto paragraphe = paragraphes_.En(début);
    texte_.replace(début, longueur, nouveau);
    formats_.Remplacer(début, longueur, nouveau.size(), numéro);
    paragraphes_.Remplacer(début, longueur, nouveau.size(), paragraphe);

    // What stood behind a deleted line end continues the first paragraph, unless it begins a line again.
    const auto suite = fin - longueur + nouveau.size();
    const bool enTête = suite == 0 || texte_[suite - 1] == u'\n';
    if (lignes && !enTête && paragraphes_.En(suite) != paragraphe) {
        const auto finDeLaSuite = FinDuParagraphe(suite);
        paragraphes_.Remplacer(suite, finDeLaSuite - suite, finDeLaSuite - suite, paragraphe);
    }
    AccorderLaPaire(début);
    AccorderLaPaire(suite);
    formats_.Ramasser();
    paragraphes_.Ramasser();
}

void TexteRiche::Transcrire(Texte nouveaux)
{
    assert(
        std::equal(texte_.begin(), texte_.end(), nouveaux.begin(), nouveaux.end(), [](char16_t avant, char16_t après) {
            return avant == après || !(avant == u'\r' || avant == u'\n' || après == u'\r' || après == u'\n');
        }));
    texte_ = std::move(nouveaux);
}

void TexteRiche::Formater(std::size_t début, std::size_t longueur, const std::function<void(Format&)>& retouche)
{
    if (texte_.empty()) {
        retouche(suivant_);
        return;
    }
    début = std::min(début, texte_.size());
    auto fin = début + std::min(longueur, texte_.size() - début);
    if (début == fin)
        return;
    if (CoupeUnePaire(début))
        --début;
    if (CoupeUnePaire(fin))
        ++fin;
    formats_.Transformer(début, fin - début, [&](auto numéro) {
        Format format = formats_[numéro];
        retouche(format);
        return formats_.Interner(format);
    });
    formats_.Ramasser();
}

void TexteRiche::FormaterParagraphes(std::size_t début, std::size_t longueur,
                                     const std::function<void(FormatParagraphe&)>& retouche)
{
    début = std::min(début, texte_.size());
    const auto dernier = longueur == 0 ? début : début + std::min(longueur, texte_.size() - début + 1) - 1;
    const auto de = DébutDuParagraphe(début);
    const auto à = FinDuParagraphe(std::min(dernier, texte_.size()));
    paragraphes_.Transformer(de, à - de, [&](auto numéro) {
        FormatParagraphe format = paragraphes_[numéro];
        retouche(format);
        return paragraphes_.Interner(format);
    });
    paragraphes_.Ramasser();
}

void TexteRiche::Ajouter(VueTexte nouveau, const Format& format, const FormatParagraphe& paragraphe)
{
    const auto fin = texte_.size();
    const auto numéro = paragraphes_.Interner(paragraphe);
    if (paragraphes_.En(fin) != numéro) {
        const auto de = DébutDuParagraphe(fin);
        paragraphes_.Remplacer(de, fin + 1 - de, fin + 1 - de, numéro);
    }
    paragraphes_.Ajouter(nouveau.size(), numéro);
    const auto numéroFormat = formats_.Interner(format);
    texte_.append(nouveau);
    formats_.Ajouter(nouveau.size(), numéroFormat);
    AccorderLaPaire(fin);
    formats_.Ramasser();
    paragraphes_.Ramasser();
}

bool TexteRiche::CoupeUnePaire(std::size_t position) const
{
    return position > 0 && position < texte_.size() && texte_[position] == u'\n' && texte_[position - 1] == u'\r';
}

// A pair that an edit has brought together takes the format of its first half.
void TexteRiche::AccorderLaPaire(std::size_t position)
{
    if (CoupeUnePaire(position))
        formats_.Remplacer(position, 1, 1, formats_.En(position - 1));
}

std::size_t TexteRiche::DébutDuParagraphe(std::size_t position) const
{
    if (position == 0)
        return 0;
    const auto ligne = texte_.rfind(u'\n', position - 1);
    return ligne == Texte::npos ? 0 : ligne + 1;
}

// Behind its line end; of the last paragraph, behind the position that stands for the end of the text.
std::size_t TexteRiche::FinDuParagraphe(std::size_t position) const
{
    const auto ligne = texte_.find(u'\n', position);
    return ligne == Texte::npos ? texte_.size() + 1 : ligne + 1;
}

bool DansUneMarque(const TexteRiche& texte, std::size_t début, std::size_t fin)
{
    const auto marqué = [&](std::size_t place) {
        return texte.FormatEn(place).Barré && !Contient(FinDeLigne, texte.Caractères()[place]);
    };
    return début > 0 && fin < texte.Longueur() && marqué(début - 1) && marqué(fin);
}

std::vector<Texte> MotsMarqués(const TexteRiche& texte)
{
    std::vector<Texte> mots;
    std::size_t finDuDernier = 0;
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        if (!tranche.Style->Barré)
            return;
        const auto morceau = VueTexte(texte.Caractères()).substr(tranche.Début, tranche.Fin - tranche.Début);
        if (!mots.empty() && finDuDernier == tranche.Début)
            mots.back() += morceau;
        else
            mots.emplace_back(morceau);
        finDuDernier = tranche.Fin;
    });
    return mots;
}

Texte NormaliserLignes(VueTexte texte)
{
    Texte résultat;
    résultat.reserve(texte.size());
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const char16_t c = texte[i];
        if (c == u'\r' && i + 1 < texte.size() && texte[i + 1] == u'\n')
            continue;
        if (c == u'\n' || c == u'\r' || c == 0x2028 || c == 0x2029)
            résultat += FinDeLigne;
        else
            résultat += c;
    }
    return résultat;
}

} // namespace tirelune
