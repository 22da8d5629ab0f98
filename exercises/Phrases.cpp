#include "exercises/Phrases.h"

#include "core/Fonctions.h"
#include "core/Tirage.h"

namespace tirelune {

namespace {

constexpr int TiragesMaximum = 99;

// One word too many ends the reading: the sentence is refused anyway.
std::vector<Texte> LirePhrase(VueTexte texte, VueTexte lettres, std::size_t maximum)
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
        if (mots.size() > maximum)
            break;
    }
    return mots;
}

} // namespace

void EcrireAlphabetDesPhrases(Constantes& état)
{
    EcrireAlphabet(état);
    état.LettresEtSignes += u"'-(),\"«»";
}

std::optional<std::vector<Texte>> TirerPhrase(Plateforme& plateforme, VueTexte texte, VueTexte lettres,
                                              NombreDeMots longueur, VueTexte banque, const RefusDePhrase& refusée)
{
    for (int tirage = 0; tirage < TiragesMaximum; ++tirage) {
        const auto place = Tirer(plateforme, static_cast<double>(texte.size()));
        auto mots = LirePhrase(texte.substr(DépartDePhrase(texte, place)), lettres, longueur.Maximum);
        if (mots.size() >= longueur.Minimum && mots.size() <= longueur.Maximum &&
            banque.find(EnPhrase(mots)) == VueTexte::npos && !(refusée && refusée(mots)))
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

std::size_t DépartDePhrase(VueTexte texte, std::size_t place)
{
    const auto point = texte.find(u'.', place);
    return point == VueTexte::npos ? 0 : point + 1;
}

Texte NettoyerPassage(VueTexte passage, VueTexte lettres)
{
    Texte net;
    for (const char16_t c : passage) {
        if (Contient(lettres, c) || Contient(FinsDePhrase, c))
            net += c;
        else if (!net.ends_with(u' '))
            net += u' ';
    }
    return Rogner(net);
}

VueTexte SansFinEnTête(VueTexte passage)
{
    passage.remove_prefix(std::min(passage.find_first_not_of(FinsDePhrase), passage.size()));
    return passage;
}

} // namespace tirelune
