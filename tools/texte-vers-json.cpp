// Prints what the program reads in a text: `texte-vers-json FILE`, one JSON object in UTF-8.
#include "core/LecteurRtf.h"
#include "tools/Octets.h"

#include <array>
#include <iostream>
#include <span>
#include <sstream>

using namespace tirelune;

namespace {

std::string Chaîne(VueTexte texte)
{
    static constexpr std::string_view Chiffres = "0123456789abcdef";
    std::string sortie = "\"";
    for (const char octet : EnUtf8(texte)) {
        switch (octet) {
        case '"':
        case '\\':
            sortie += '\\';
            sortie += octet;
            break;
        case '\r':
            sortie += "\\r";
            break;
        case '\n':
            sortie += "\\n";
            break;
        case '\t':
            sortie += "\\t";
            break;
        default:
            if (const auto code = static_cast<unsigned char>(octet); code < 0x20) {
                sortie += "\\u00";
                sortie += Chiffres[code >> 4U];
                sortie += Chiffres[code & 0xFU];
            } else {
                sortie += octet;
            }
        }
    }
    return sortie + '"';
}

std::string Teinte(Couleur couleur)
{
    static constexpr std::string_view Chiffres = "0123456789abcdef";
    if (couleur.EstAutomatique())
        return "\"auto\"";
    std::string sortie = "\"#";
    for (const unsigned composante : {couleur.Rouge(), couleur.Vert(), couleur.Bleu()}) {
        sortie += Chiffres[composante >> 4U];
        sortie += Chiffres[composante & 0xFU];
    }
    return sortie + '"';
}

std::string_view Booléen(bool valeur)
{
    return valeur ? "true" : "false";
}

std::string EnJson(const TexteRiche& texte)
{
    const VueTexte caractères = texte.Caractères();
    std::ostringstream sortie;
    const char* séparateur = "";
    sortie << "{\"text\": " << Chaîne(caractères) << ",\n\"struck\": [";
    for (const auto& mot : MotsMarqués(texte)) {
        sortie << séparateur << Chaîne(mot);
        séparateur = ", ";
    }
    sortie << "],\n\"runs\": [";
    séparateur = "\n";
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        const auto& format = *tranche.Style;
        sortie << séparateur << "{\"text\": " << Chaîne(caractères.substr(tranche.Début, tranche.Fin - tranche.Début))
               << ", \"font\": " << Chaîne(format.Police) << ", \"size\": " << format.Taille
               << ", \"color\": " << Teinte(format.Teinte) << ", \"bold\": " << Booléen(format.Gras)
               << ", \"italic\": " << Booléen(format.Italique) << ", \"underline\": " << Booléen(format.Souligné)
               << ", \"strike\": " << Booléen(format.Barré) << "}";
        séparateur = ",\n";
    });
    sortie << "],\n\"paragraphs\": [";
    séparateur = "\n";
    for (std::size_t début = 0;;) {
        static constexpr std::array<std::string_view, 4> Alignements{"left", "right", "center", "justify"};
        const auto& paragraphe = texte.ParagrapheEn(début);
        sortie << séparateur << "{\"alignment\": \"" << Alignements[static_cast<std::size_t>(paragraphe.Alignement)]
               << "\", \"left\": " << paragraphe.RetraitGauche << ", \"right\": " << paragraphe.RetraitDroit
               << ", \"first\": " << paragraphe.RetraitPremièreLigne << "}";
        séparateur = ",\n";
        const auto fin = caractères.find(u'\n', début);
        if (fin == VueTexte::npos)
            break;
        début = fin + 1;
    }
    sortie << "]}\n";
    return sortie.str();
}

} // namespace

int main(int nombre, char** arguments)
{
    const std::span paramètres(arguments, static_cast<std::size_t>(nombre));
    if (paramètres.size() != 2) {
        std::cerr << "Usage : texte-vers-json FICHIER\n";
        return 1;
    }
    const auto octets = LireOctets(paramètres[1]);
    if (!octets) {
        std::cerr << paramètres[1] << " : impossible d'ouvrir ce fichier.\n";
        return 1;
    }
    const auto texte = LireRtf(*octets);
    if (!texte) {
        std::cerr << paramètres[1] << " : ce fichier n'est pas un texte RTF.\n";
        return 1;
    }
    std::cout << EnJson(*texte) << std::flush;
    return std::cout ? 0 : 1;
}
