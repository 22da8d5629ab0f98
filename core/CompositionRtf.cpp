#include "core/CompositionRtf.h"

#include <utility>

namespace tirelune {

namespace rtf {

namespace {

// Beyond that many different formats only bold, italic, underline and strike-through are kept.
constexpr std::size_t FormatsMaximaux = 16'384;
constexpr Clé CléSansTable = Clé{TailleParDéfaut} << DécalageTaille | Clé{TableDesCouleurs::Auto} << DécalageTeinte;

} // namespace

Composition::Composition(const TableDesPolices& polices, std::size_t taille) : polices_(polices)
{
    texte_.reserve(taille);
}

bool Composition::FinitParUnRetour() const
{
    if (rempli_ > 0)
        return tampon_[rempli_ - 1] == u'\r';
    return !texte_.empty() && texte_.back() == u'\r';
}

void Composition::FinirLeParagraphe(const Paragraphe& paragraphe)
{
    const auto position = Position();
    if (position == débutDuParagraphe_)
        return;
    paragraphes_.Ajouter(position - débutDuParagraphe_, NuméroDe(paragraphe));
    débutDuParagraphe_ = position;
}

TexteRiche Composition::Achever(const Paragraphe& dernier, Clé suivante)
{
    Vider();
    formats_.Ajouter(texte_.size() - débutDuFormat_, numéroDuFormat_);
    formats_.RendreLaMarge();
    FinirLeParagraphe(dernier);
    paragraphes_.Ajouter(1, NuméroDe(dernier));
    if (demiesPaires_)
        RemplacerDemiesPaires(texte_);
    if (texte_.capacity() / 2 > texte_.size())
        texte_.shrink_to_fit();
    return {std::move(texte_), std::move(formats_), std::move(paragraphes_), FormatDe(suivante)};
}

void Composition::ChangerDeFormat(Clé clé)
{
    const auto position = Position();
    formats_.Ajouter(position - débutDuFormat_, numéroDuFormat_);
    débutDuFormat_ = position;
    cléEnCours_ = clé;
    numéroDuFormat_ = NuméroDe(clé);
}

Format Composition::FormatDe(Clé clé) const
{
    const auto teinte = static_cast<std::uint32_t>(clé >> DécalageTeinte & (2U * TableDesCouleurs::Auto - 1));
    return {.Police = polices_.NomNuméro(clé >> DécalagePolice),
            .Taille = static_cast<double>(clé >> DécalageTaille & 0xFFFU) / 2,
            .Teinte = teinte == TableDesCouleurs::Auto ? CouleurAuto : Couleur{teinte},
            .Gras = (clé & Gras) != 0,
            .Italique = (clé & Italique) != 0,
            .Souligné = (clé & Souligné) != 0,
            .Barré = (clé & Barré) != 0};
}

Plages<Format>::Numéro Composition::NuméroDe(Clé clé)
{
    auto& parcouru = parcourus_[(clé * 0x9E3779B97F4A7C15U >> 58U)];
    if (parcouru.clé != clé) {
        const bool plein = formats_.NombreDeValeurs() >= FormatsMaximaux;
        parcouru = {clé, formats_.Interner(FormatDe(plein ? (clé & Attributs) | CléSansTable : clé))};
    }
    return parcouru.numéro;
}

Plages<FormatParagraphe>::Numéro Composition::NuméroDe(const Paragraphe& paragraphe)
{
    return paragraphes_.Interner({.Alignement = paragraphe.Alignement,
                                  .RetraitGauche = paragraphe.Gauche,
                                  .RetraitDroit = paragraphe.Droit,
                                  .RetraitPremièreLigne = paragraphe.Première});
}

void Composition::Vider()
{
    texte_.append(tampon_.data(), rempli_);
    rempli_ = 0;
}

} // namespace rtf

} // namespace tirelune
