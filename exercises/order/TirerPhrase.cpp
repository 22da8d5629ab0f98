#include "exercises/order/TirerPhrase.h"

#include "core/Tirage.h"

namespace tirelune {

namespace {

constexpr int TiragesMaximum = 99;
constexpr std::size_t MotsMinimum = 6;
constexpr std::size_t MotsMaximum = 20;
constexpr VueTexte FinsDePhrase = u".?!;:";

// One word too many ends the reading: the sentence is refused anyway.
std::vector<Texte> LirePhrase(VueTexte texte, VueTexte lettres)
{
    std::vector<Texte> mots;
    bool dansUnMot = false;
    for (const char16_t c : texte) {
        if (Contient(lettres, c)) {
            if (!dansUnMot)
                mots.emplace_back();
            dansUnMot = true;
            mots.back() += c;
        } else if (Contient(FinsDePhrase, c)) {
            if (mots.empty())
                mots.emplace_back();
            mots.back() += c;
            break;
        } else {
            dansUnMot = false;
        }
        if (mots.size() > MotsMaximum)
            break;
    }
    return mots;
}

} // namespace

std::optional<std::vector<Texte>> TirerPhrase(Plateforme& plateforme, VueTexte texte, VueTexte lettres, VueTexte banque)
{
    for (int tirage = 0; tirage < TiragesMaximum; ++tirage) {
        const auto point = texte.find(u'.', Tirer(plateforme, static_cast<double>(texte.size())));
        auto mots = LirePhrase(texte.substr(point == VueTexte::npos ? 0 : point + 1), lettres);
        if (mots.size() >= MotsMinimum && mots.size() <= MotsMaximum && banque.find(EnPhrase(mots)) == VueTexte::npos)
            return mots;
    }
    return std::nullopt;
}

Texte EnPhrase(std::span<const Texte> mots)
{
    Texte phrase;
    for (const auto& mot : mots) {
        if (!phrase.empty())
            phrase += u' ';
        phrase += mot;
    }
    return phrase;
}

} // namespace tirelune
