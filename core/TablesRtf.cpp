#include "core/TablesRtf.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tirelune {

namespace rtf {

namespace {

constexpr std::size_t PolicesMaximales = 4'096;
constexpr std::size_t NomDePoliceMaximal = 128;
constexpr std::size_t CouleursMaximales = 65'536;

// Code pages of the character sets of fonts. Most symbols (set 2) stand where Windows has its own.
constexpr std::array<std::pair<int, int>, 27> PagesDesJeux{{
    {0, 1252},   {2, 1252},   {77, 10000}, {78, 932},   {79, 949},   {80, 936},  {81, 950},   {85, 10006}, {86, 10081},
    {88, 10029}, {89, 10007}, {128, 932},  {129, 949},  {130, 1361}, {134, 936}, {136, 950},  {161, 1253}, {162, 1254},
    {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251}, {222, 874}, {238, 1250}, {254, 437},  {255, 850},
}};

} // namespace

Encodage EncodageDe(int page)
{
    static constexpr std::array PlusieursOctets{932, 936, 949, 950, 1361, Utf8};
    const auto* const table = TrouverPageDeCodes(page);
    const bool connue = table != nullptr || std::ranges::find(PlusieursOctets, page) != PlusieursOctets.end();
    return connue ? Encodage{page, table} : Encodage{};
}

void RemplacerDemiesPaires(Texte& texte)
{
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const char16_t c = texte[i];
        if (c < 0xD800 || c > 0xDFFF)
            continue;
        if (c < 0xDC00 && i + 1 < texte.size() && texte[i + 1] >= 0xDC00 && texte[i + 1] <= 0xDFFF)
            ++i;
        else
            texte[i] = u'\uFFFD';
    }
}

std::uint16_t TableDesPolices::Rang(int numéro) const
{
    const bool connu = numéro >= 0 && static_cast<std::size_t>(numéro) < rangs_.size();
    return connu ? rangs_[static_cast<std::size_t>(numéro)] : std::uint16_t{0};
}

void TableDesPolices::ParDéfaut(int numéro)
{
    numéroParDéfaut_ = numéro;
    rangParDéfaut_ = Rang(numéro);
}

void TableDesPolices::Commencer(int numéro)
{
    Terminer();
    numéroEnCours_ = numéro >= 0 && numéro <= 0xFFFF ? numéro : -1;
}

// A code page told for the font is worth more than its character set, whichever comes first.
void TableDesPolices::JeuDeCaractères(int jeu)
{
    const auto* const page =
        std::ranges::find(PagesDesJeux, jeu, [](const std::pair<int, int>& couple) { return couple.first; });
    if (enCours_.Octets.Numéro == 0 && page != PagesDesJeux.end())
        enCours_.Octets = EncodageDe(page->second);
}

void TableDesPolices::PageDeCodes(int page)
{
    if (const auto encodage = EncodageDe(page); encodage.Numéro != 0)
        enCours_.Octets = encodage;
}

void TableDesPolices::Nommer(char16_t c)
{
    if (numéroEnCours_ >= 0 && nomEnCours_.size() < NomDePoliceMaximal)
        nomEnCours_ += c;
}

void TableDesPolices::Terminer()
{
    if (numéroEnCours_ >= 0 && polices_.size() < PolicesMaximales) {
        RemplacerDemiesPaires(nomEnCours_);
        auto nom = Rogner(nomEnCours_);
        if (!nom.empty())
            enCours_.Nom = numérosDesNoms_.try_emplace(nom, static_cast<std::uint16_t>(noms_.size())).first->second;
        if (enCours_.Nom == noms_.size())
            noms_.push_back(std::move(nom));
        const auto numéro = static_cast<std::size_t>(numéroEnCours_);
        if (rangs_.size() <= numéro)
            rangs_.resize(numéro + 1);
        rangs_[numéro] = static_cast<std::uint16_t>(polices_.size());
        polices_.push_back(enCours_);
        ParDéfaut(numéroParDéfaut_);
    }
    numéroEnCours_ = -1;
    nomEnCours_.clear();
    enCours_ = {};
}

void TableDesCouleurs::Vider()
{
    teintes_.clear();
    enCours_ = Auto;
}

void TableDesCouleurs::Composante(unsigned rang, int valeur)
{
    const auto décalage = 8U * rang;
    const auto composante = static_cast<std::uint32_t>(std::clamp(valeur, 0, 255)) << décalage;
    enCours_ = (enCours_ & ~Auto & ~(0xFFU << décalage)) | composante;
}

void TableDesCouleurs::Terminer()
{
    if (teintes_.size() < CouleursMaximales)
        teintes_.push_back(enCours_);
    enCours_ = Auto;
}

} // namespace rtf

} // namespace tirelune
