#include "core/EcrivainRtf.h"

#include "core/Windows1252.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tirelune {

namespace {

constexpr int TailleMaximale = 3'276;  // half points
constexpr int RetraitMaximal = 31'680; // twips
constexpr char16_t Remplacement = 0xFFFD;

bool EstPremièreMoitié(char16_t c)
{
    return c >= 0xD800 && c <= 0xDBFF;
}
bool EstSecondeMoitié(char16_t c)
{
    return c >= 0xDC00 && c <= 0xDFFF;
}

class Ecrivain {
public:
    explicit Ecrivain(const TexteRiche& texte) : texte_(texte), caractères_(texte.Caractères()) {}
    std::string Ecrire();

private:
    void ReleverLesTables();
    void EcrireLesTables();
    void EcrireLeCorps();
    void EcrireParagraphe(const FormatParagraphe& paragraphe);
    void EcrireFormat(const Format& format);
    void EcrireCaractères(std::size_t début, std::size_t fin);
    void EcrireCaractère(char16_t c);

    void Mot(std::string_view mot);
    void Mot(std::string_view mot, long nombre);
    void Interrupteur(std::string_view mot, bool actif, bool avant);
    void Nombre(long nombre);
    void Unicode(char16_t c);
    void Délimiter();

    const TexteRiche& texte_;
    VueTexte caractères_;
    struct Rangs {
        std::size_t Police;
        std::size_t Teinte; // numbered from 1, 0 being the automatic one
    };
    std::unordered_map<const Format*, Rangs> rangs_; // each format stands once in the text's table
    std::vector<Texte> polices_;
    std::vector<Couleur> teintes_;
    const Format* format_ = nullptr;
    bool motOuvert_ = false; // a blank is due before text
    std::string sortie_;
};

template <class Valeur>
std::size_t Rang(std::vector<Valeur>& valeurs, const Valeur& valeur)
{
    const auto place = std::find(valeurs.begin(), valeurs.end(), valeur);
    const auto rang = static_cast<std::size_t>(place - valeurs.begin());
    if (place == valeurs.end())
        valeurs.push_back(valeur);
    return rang;
}

std::string Ecrivain::Ecrire()
{
    sortie_.reserve(caractères_.size() + caractères_.size() / 8 + 1024);
    ReleverLesTables();
    EcrireLesTables();
    EcrireLeCorps();
    sortie_ += "}\r\n";
    return std::move(sortie_);
}

void Ecrivain::ReleverLesTables()
{
    const auto relever = [this](const Format& format) {
        if (rangs_.contains(&format))
            return;
        const auto police = Rang(polices_, format.Police);
        rangs_[&format] = {police, format.Teinte.EstAutomatique() ? 0 : Rang(teintes_, format.Teinte) + 1};
    };
    relever(texte_.FormatEn(0));
    texte_.PourChaqueTranche(0, caractères_.size(), [&](const Tranche& tranche) { relever(*tranche.Style); });
}

void Ecrivain::EcrireLesTables()
{
    sortie_ += "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\r\n{\\fonttbl";
    for (std::size_t i = 0; i < polices_.size(); ++i) {
        sortie_ += "{\\f";
        Nombre(static_cast<long>(i));
        sortie_ += "\\fnil\\fcharset0 ";
        motOuvert_ = false;
        for (const char16_t c : polices_[i]) {
            Délimiter();
            c == u';' ? Unicode(c) : EcrireCaractère(c);
        }
        sortie_ += ";}";
    }
    sortie_ += "}\r\n{\\colortbl ;";
    for (const auto teinte : teintes_) {
        Mot("red", static_cast<long>(teinte.Rouge()));
        Mot("green", static_cast<long>(teinte.Vert()));
        Mot("blue", static_cast<long>(teinte.Bleu()));
        sortie_ += ';';
    }
    sortie_ += "}\r\n";
    motOuvert_ = false;
}

void Ecrivain::EcrireLeCorps()
{
    texte_.PourChaqueParagraphe(0, caractères_.size(), [this](const TrancheParagraphes& paragraphes) {
        EcrireParagraphe(*paragraphes.Style);
        texte_.PourChaqueTranche(paragraphes.Début, paragraphes.Fin, [this](const Tranche& tranche) {
            EcrireFormat(*tranche.Style);
            EcrireCaractères(tranche.Début, tranche.Fin);
        });
    });
    if (caractères_.empty() || caractères_.back() == u'\n')
        EcrireParagraphe(texte_.ParagrapheEn(caractères_.size()));
    if (caractères_.empty())
        EcrireFormat(texte_.FormatEn(0));
}

void Ecrivain::EcrireParagraphe(const FormatParagraphe& paragraphe)
{
    static constexpr std::array<std::string_view, 4> Alignements{"ql", "qr", "qc", "qj"};
    const auto retrait = [this](std::string_view mot, int twips) {
        if (twips != 0)
            Mot(mot, std::clamp(twips, -RetraitMaximal, RetraitMaximal));
    };
    Mot("pard");
    Mot(Alignements[static_cast<std::size_t>(paragraphe.Alignement)]);
    retrait("li", paragraphe.RetraitGauche);
    retrait("ri", paragraphe.RetraitDroit);
    retrait("fi", paragraphe.RetraitPremièreLigne);
}

void Ecrivain::EcrireFormat(const Format& format)
{
    static const Format Neutre{.Police = {}, .Taille = 0};
    const auto& avant = format_ == nullptr ? Neutre : *format_;
    const auto& rangs = rangs_.at(&format);
    if (format_ == nullptr)
        Mot("plain");
    if (format_ == nullptr || format.Police != avant.Police)
        Mot("f", static_cast<long>(rangs.Police));
    if (format.Taille != avant.Taille)
        Mot("fs", std::lround(std::clamp(format.Taille * 2, 1.0, double{TailleMaximale})));
    if (format.Teinte != avant.Teinte)
        Mot("cf", static_cast<long>(rangs.Teinte));
    Interrupteur("b", format.Gras, avant.Gras);
    Interrupteur("i", format.Italique, avant.Italique);
    if (format.Souligné != avant.Souligné)
        Mot(format.Souligné ? "ul" : "ulnone");
    Interrupteur("strike", format.Barré, avant.Barré);
    format_ = &format;
}

void Ecrivain::EcrireCaractères(std::size_t début, std::size_t fin)
{
    for (auto i = début; i < fin; ++i) {
        const char16_t c = caractères_[i];
        if (c == u'\r' && i + 1 < fin && caractères_[i + 1] == u'\n') {
            sortie_ += "\\par\r\n";
            motOuvert_ = false;
            ++i;
            continue;
        }
        // A pair may be cut by a change of format between its halves.
        const bool seule =
            (EstPremièreMoitié(c) && (i + 1 == caractères_.size() || !EstSecondeMoitié(caractères_[i + 1]))) ||
            (EstSecondeMoitié(c) && (i == 0 || !EstPremièreMoitié(caractères_[i - 1])));
        Délimiter();
        EcrireCaractère(seule ? Remplacement : c);
    }
}

void Ecrivain::EcrireCaractère(char16_t c)
{
    static constexpr std::string_view Chiffres = "0123456789abcdef";
    if (c >= u' ' && c < 0x7F) {
        if (c == u'\\' || c == u'{' || c == u'}')
            sortie_ += '\\';
        sortie_ += static_cast<char>(c);
    } else if (c == u'\t') {
        Mot("tab");
    } else if (c == 0xA0) {
        sortie_ += "\\~";
    } else {
        const auto octet = c < 0x80 ? std::nullopt : OctetWindows1252(c);
        if (!octet) {
            Unicode(c);
            return;
        }
        sortie_ += "\\'";
        sortie_ += Chiffres[static_cast<unsigned char>(*octet) >> 4U];
        sortie_ += Chiffres[static_cast<unsigned char>(*octet) & 0xFU];
    }
}

void Ecrivain::Mot(std::string_view mot)
{
    sortie_ += '\\';
    sortie_ += mot;
    motOuvert_ = true;
}

void Ecrivain::Mot(std::string_view mot, long nombre)
{
    Mot(mot);
    Nombre(nombre);
}

void Ecrivain::Interrupteur(std::string_view mot, bool actif, bool avant)
{
    if (actif == avant)
        return;
    Mot(mot);
    if (!actif)
        sortie_ += '0';
}

void Ecrivain::Nombre(long nombre)
{
    std::array<char, 24> chiffres{};
    const auto fin = std::to_chars(chiffres.data(), chiffres.data() + chiffres.size(), nombre).ptr;
    sortie_.append(chiffres.data(), fin);
}

// With a question mark for readers without Unicode.
void Ecrivain::Unicode(char16_t c)
{
    sortie_ += "\\u";
    Nombre(static_cast<std::int16_t>(c));
    sortie_ += '?';
}

void Ecrivain::Délimiter()
{
    if (motOuvert_)
        sortie_ += ' ';
    motOuvert_ = false;
}

} // namespace

std::string EcrireRtf(const TexteRiche& texte)
{
    return Ecrivain(texte).Ecrire();
}

} // namespace tirelune
