#include "core/Collage.h"

#include "core/TexteRiche.h"

namespace tirelune {

namespace {

constexpr char16_t ApostropheOuvrante = 0x2018;
constexpr char16_t ApostropheFermante = 0x2019;
constexpr char16_t EspaceFine = 0x2009;
constexpr char16_t EspaceFineInsécable = 0x202F;
constexpr char16_t TabulationVerticale = 0x0B; // a soft line break, as word processors hand it over
constexpr char16_t SautDePage = 0x0C;
constexpr char16_t Effacement = 0x7F;

bool EstCommande(char16_t caractère)
{
    return (caractère < u' ' && !Contient(u"\t\r\n", caractère)) || caractère == Effacement;
}

} // namespace

Texte NormaliserCollage(VueTexte collé)
{
    Texte texte;
    texte.reserve(collé.size());
    for (const char16_t caractère : collé) {
        switch (caractère) {
        case ApostropheOuvrante:
        case ApostropheFermante:
            texte += u'\'';
            break;
        case EspaceFine:
        case EspaceFineInsécable:
            texte += u' ';
            break;
        case TabulationVerticale:
        case SautDePage:
            texte += u'\n';
            break;
        default:
            if (!EstCommande(caractère))
                texte += caractère;
        }
    }
    return NormaliserLignes(texte);
}

} // namespace tirelune
