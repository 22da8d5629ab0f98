#include "core/Fonctions.h"

#include "core/FichierChamps.h"

#include <algorithm>

namespace tirelune {

namespace {

Texte Lettres()
{
    Texte lettres;
    for (char16_t c = u'A'; c <= u'Z'; ++c)
        lettres += c;
    for (char16_t c = u'a'; c <= u'z'; ++c)
        lettres += c;
    return lettres + u"àâäçéèêëîïôöùûüÂÊËÎÏÔÖÛÜ" + u"ÀÇÈÉÙ";
}

constexpr VueTexte Chiffres = u"0123456789";

char16_t SansAccent(char16_t c)
{
    switch (c) {
    case u'à':
    case u'â':
    case u'ä':
        return u'a';
    case u'ç':
        return u'c';
    case u'é':
    case u'è':
    case u'ê':
    case u'ë':
        return u'e';
    case u'î':
    case u'ï':
        return u'i';
    case u'ô':
    case u'ö':
        return u'o';
    case u'ù':
    case u'û':
        return u'u';
    default:
        return c;
    }
}

} // namespace

void MémoAlphabetSansNombres(Constantes& état)
{
    état.LettresSeules = Lettres();
}

void EcrireAlphabetSimple(Constantes& état)
{
    état.LettresEtChiffres = Lettres().append(Chiffres);
}

void EcrireAlphabet(Constantes& état)
{
    état.LettresEtSignes = Lettres().append(u"°+-*/*=&§[]()").append(Chiffres);
}

Texte SansAccents(VueTexte mot)
{
    Texte résultat;
    for (const char16_t c : mot) {
        if (c != u'-')
            résultat += SansAccent(Minuscule(c));
    }
    return résultat;
}

void VérifQuestions(Constantes& état, VueTexte titre)
{
    état.NomFichierQuestions = état.CheminTexteElève + NomRéel(état.CheminTexteElève, Rogner(titre) + u".qst");
    const auto fichier = EnChemin(état.NomFichierQuestions);
    const auto champs = LireChamps(fichier);
    état.QuestionnaireExiste =
        champs && std::any_of(champs->begin(), champs->end(), [](const Texte& champ) { return !champ.empty(); });
    if (champs && !état.QuestionnaireExiste) {
        std::error_code ignorée; // a read-only folder keeps its empty file
        std::filesystem::remove(fichier, ignorée);
    }
}

} // namespace tirelune
