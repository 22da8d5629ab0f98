#include "authoring/IcônesOutils.h"

#include "core/Crayon.h"
#include "followup/Pictogrammes.h"

#include <functional>
#include <map>
#include <utility>

namespace tirelune {

using namespace Crayon;

namespace {

constexpr Couleur Encre = Couleur::Rvb(0x1B, 0x27, 0x45);
constexpr Couleur Barre = Couleur::Rvb(0xC6, 0x28, 0x28);
constexpr Couleur Papier = Couleur::Rvb(0xFF, 0xDB, 0x78);
constexpr int Questionnaire = 1; // the exercises whose pictograms stand for the tools behind them
constexpr int Dictionnaire = 5;

Dessin AuTrait(std::vector<Forme> formes)
{
    return Dessiner(std::move(formes), Encre);
}

// Four lines, every other one short and from there to there.
Dessin Lignes(double gauche, double droite)
{
    return AuTrait({Trait({{5, 8}, {43, 8}}), Trait({{gauche, 19}, {droite, 19}}), Trait({{5, 30}, {43, 30}}),
                    Trait({{gauche, 41}, {droite, 41}})});
}

Dessin Gras()
{
    auto lettre = AuTrait({Arc(24, 24, 16, -48, -360), Trait({{40, 24}, {27, 24}})});
    for (auto& forme : lettre.Formes)
        forme.Epaisseur = 2 * Epaisseur;
    return lettre;
}

Dessin Souligné()
{
    return AuTrait({Arc(24, 11.5, 7.5, -25, -270), Arc(24, 27, 8, -90, 155), Trait({{11, 43}, {37, 43}})});
}

// "abc", struck through.
Dessin Vocabulaire()
{
    auto mot = AuTrait({Cercle(9, 27, 5.5), Trait({{14.5, 21}, {14.5, 33}}), Trait({{21, 12}, {21, 33}}),
                        Cercle(26.5, 27, 5.5), Arc(42, 27, 5.5, -45, -315)});
    auto trait = Trait({{2, 27}, {46, 27}});
    trait.Trait = Barre;
    mot.Formes.push_back(std::move(trait));
    return mot;
}

// A letter above colours.
Dessin Couleurs()
{
    auto dessin = AuTrait({Trait({{13, 28}, {24, 4}, {35, 28}}), Trait({{17, 20}, {31, 20}})});
    double x = 9;
    for (const auto teinte :
         {Couleur::Rvb(0xE5, 0x39, 0x35), Couleur::Rvb(0x2E, 0x9B, 0x47), Couleur::Rvb(0x1E, 0x78, 0xE5)}) {
        auto pot = Pastille(x, 40, 5.5);
        pot.Fond = teinte;
        dessin.Formes.push_back(std::move(pot));
        x += 15;
    }
    return dessin;
}

// A door to another screen stands out from the tools around it.
Dessin EnAvant(Dessin dessin)
{
    dessin.Formes.front().Fond = Papier;
    return dessin;
}

using Tracé = std::function<Dessin()>;

const std::map<std::string_view, Tracé>& Tracés()
{
    static const std::map<std::string_view, Tracé> tracés{
        {"btnNouveau",
         [] {
             return AuTrait(
                 {Contour({{10, 4}, {28, 4}, {39, 15}, {39, 44}, {10, 44}}), Trait({{27, 4}, {27, 16}, {39, 16}})});
         }},
        {"btnOuvrir",
         [] {
             return AuTrait({Trait({{4, 39}, {4, 10}, {17, 10}, {21, 15}, {38, 15}, {38, 22}}),
                             Contour({{4, 39}, {12, 22}, {45, 22}, {37, 39}})});
         }},
        {"btnEnregistrer",
         [] {
             return AuTrait({Contour({{5, 5}, {34, 5}, {43, 14}, {43, 43}, {5, 43}}),
                             Trait({{14, 5}, {14, 16}, {31, 16}, {31, 5}}), Boîtier(13, 26, 22, 17, 1)});
         }},
        {"btnSélectionner",
         [] {
             return AuTrait({Trait({{5, 14}, {5, 5}, {14, 5}}), Trait({{34, 5}, {43, 5}, {43, 14}}),
                             Trait({{43, 34}, {43, 43}, {34, 43}}), Trait({{14, 43}, {5, 43}, {5, 34}}),
                             Trait({{14, 19}, {34, 19}}), Trait({{14, 29}, {34, 29}})});
         }},
        {"btnCouper",
         [] {
             return AuTrait({Cercle(11.5, 37, 6.5), Cercle(36.5, 37, 6.5), Trait({{15, 31.5}, {34, 4}}),
                             Trait({{33, 31.5}, {14, 4}})});
         }},
        {"btnCopier",
         [] {
             return AuTrait({Boîtier(16, 14, 26, 30, 4), Trait({{10, 34}, {6, 34}, {6, 4}, {32, 4}, {32, 7}})});
         }},
        {"btnColler",
         [] {
             return AuTrait({Trait({{16, 8}, {8, 8}, {8, 44}, {40, 44}, {40, 8}, {32, 8}}), Boîtier(16, 4, 16, 9, 3),
                             Trait({{16, 24}, {32, 24}}), Trait({{16, 34}, {32, 34}})});
         }},
        {"btnAnnuler",
         [] {
             return AuTrait({Trait({{16, 6}, {5, 17}, {16, 28}}), Trait({{5, 17}, {30, 17}}),
                             Arc(30, 29.5, 12.5, -90, 90), Trait({{30, 42}, {16, 42}})});
         }},
        {"btnGras", Gras},
        {"btnSouligné", Souligné},
        {"btnItalique",
         [] {
             return AuTrait({Trait({{19, 6}, {37, 6}}), Trait({{28, 6}, {20, 42}}), Trait({{11, 42}, {29, 42}})});
         }},
        {"btnVocabulaire", Vocabulaire},
        {"btnCouleurC", Couleurs},
        {"btnGauche", [] { return Lignes(5, 29); }},
        {"btnDroite", [] { return Lignes(19, 43); }},
        {"btnCentrer", [] { return Lignes(13, 35); }},
        {"btnChercher",
         [] {
             return AuTrait({Cercle(20, 20, 14.5), Trait({{31, 31}, {43, 43}})});
         }},
        {"btnRemplacer",
         [] {
             return AuTrait({Boîtier(4, 6, 16, 13), Boîtier(28, 29, 16, 13), Trait({{27, 12}, {36, 12}, {36, 22}}),
                             Trait({{30, 16.5}, {36, 22.5}, {42, 16.5}}), Trait({{21, 36}, {12, 36}, {12, 26}}),
                             Trait({{6, 31.5}, {12, 25.5}, {18, 31.5}})});
         }},
        {"btnImprimer",
         [] {
             return AuTrait({Trait({{13, 16}, {13, 4}, {35, 4}, {35, 16}}),
                             Trait({{13, 34}, {4, 34}, {4, 16}, {44, 16}, {44, 34}, {35, 34}}),
                             Boîtier(13, 27, 22, 17, 1), Pastille(37, 22, 2)});
         }},
        {"btnQuestion", [] { return EnAvant(Pictogramme(Questionnaire, Encre)); }},
        {"btnLexique", [] { return EnAvant(Pictogramme(Dictionnaire, Encre)); }},
    };
    return tracés;
}

} // namespace

Dessin IcôneOutil(std::string_view clé)
{
    return Tracés().at(clé)();
}

} // namespace tirelune
