#include "exercises/Lacunes.h"

#include "core/Passages.h"
#include "exercises/BandeDePoints.h"
#include "exercises/ListeDeMots.h"

#include <algorithm>
#include <cassert>

namespace tirelune {

namespace {

// The formats of the text, with those of the gaps changed; one pass over both.
Plages<Format> FormatsAvecLacunes(const TexteRiche& texte, const std::vector<Lacune>& lacunes)
{
    Plages<Format> formats;
    auto lacune = lacunes.begin();
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        const auto ordinaire = formats.Interner(*tranche.Style);
        Format enLacune = *tranche.Style;
        enLacune.Teinte = Noir;
        enLacune.Barré = false;
        const auto noirci = formats.Interner(enLacune);
        auto place = tranche.Début;
        for (; lacune != lacunes.end() && lacune->Début < tranche.Fin; ++lacune) {
            const auto début = std::max(place, lacune->Début);
            const auto fin = lacune->Début + lacune->Longueur;
            formats.Ajouter(début - place, ordinaire);
            place = std::min(fin, tranche.Fin);
            formats.Ajouter(place - début, noirci);
            if (fin > tranche.Fin)
                break; // goes on in the next run
        }
        formats.Ajouter(tranche.Fin - place, ordinaire);
    });
    return formats;
}

// One format for each paragraph of `nouveau`, that of the old text where it starts.
Plages<FormatParagraphe> ParagraphesRestants(const TexteRiche& texte, VueTexte nouveau)
{
    Plages<FormatParagraphe> paragraphes;
    std::size_t début = 0;
    for (auto ligne = nouveau.find(u'\n'); ligne != VueTexte::npos; ligne = nouveau.find(u'\n', début)) {
        paragraphes.Ajouter(ligne + 1 - début, paragraphes.Interner(texte.ParagrapheEn(début)));
        début = ligne + 1;
    }
    paragraphes.Ajouter(nouveau.size() + 1 - début, paragraphes.Interner(texte.ParagrapheEn(début)));
    return paragraphes;
}

} // namespace

TexteRiche OuvrirLacunes(const TexteRiche& texte, const std::vector<Lacune>& lacunes)
{
    auto caractères = texte.Caractères();
    for (const auto& lacune : lacunes) {
        assert(lacune.Début + lacune.Longueur <= caractères.size());
        std::fill_n(caractères.begin() + static_cast<std::ptrdiff_t>(lacune.Début), lacune.Longueur, Trait);
    }
    auto paragraphes = ParagraphesRestants(texte, caractères);
    return {std::move(caractères), FormatsAvecLacunes(texte, lacunes), std::move(paragraphes),
            texte.FormatEn(texte.Longueur())};
}

std::vector<Texte> MotsEnlevés(VueTexte texte, const std::vector<Lacune>& lacunes)
{
    std::vector<Texte> mots;
    mots.reserve(lacunes.size());
    for (const auto& lacune : lacunes)
        mots.emplace_back(texte.substr(lacune.Début, lacune.Longueur));
    return mots;
}

namespace {

// The gap that all these characters belong to; the end, where there is none.
std::vector<Lacune>::const_iterator LacuneAutour(const std::vector<Lacune>& lacunes, std::size_t début,
                                                 std::size_t longueur)
{
    return std::find_if(lacunes.begin(), lacunes.end(), [&](const Lacune& une) {
        return début >= une.Début && début + longueur <= une.Début + une.Longueur;
    });
}

} // namespace

void SélectionnerTrait(RichTextBox& boîte, const std::vector<Lacune>& ouvertes)
{
    const VueTexte texte = boîte.Text();
    const auto place = boîte.SelStart();
    const auto lacune = LacuneAutour(ouvertes, place, 1);
    if (lacune == ouvertes.end() || texte[place] != Trait) {
        boîte.SelLength(0);
        return;
    }
    const auto traits =
        MotAutour(texte.substr(lacune->Début, lacune->Longueur), place - lacune->Début, VueTexte{&Trait, 1});
    const auto début = std::max<std::size_t>(1, lacune->Début + traits.Début);
    boîte.Sélectionner(début, std::max(début, lacune->Début + traits.Fin) - début);
}

namespace {

// The word takes the place of the gap and leaves the list.
void PlacerMot(const JeuDeLacunes& jeu, std::vector<Lacune>::const_iterator lacune)
{
    jeu.Boîte.SelColor = VertFoncé;
    jeu.Boîte.SelUnderline = true;
    jeu.Boîte.SelText(jeu.Liste.Text);
    const auto [début, longueur] = *lacune;
    if (VueTexte{jeu.Boîte.Text()}.substr(début, longueur) == VueTexte{jeu.Clé.rtfTexte.Text()}.substr(début, longueur))
        jeu.Ouvertes.erase(lacune);
    RetirerDeListe(jeu.Liste, jeu.Liste.Text);
    Incrémenter(jeu.Points(0));
}

// True: the word of the list is what the key has where the selection is.
bool MotJuste(const JeuDeLacunes& jeu)
{
    auto& clé = jeu.Clé.rtfTexte;
    clé.Sélectionner(jeu.Boîte.SelStart(), jeu.Boîte.SelLength());
    jeu.Boîte.SelLength(clé.SelLength());
    return clé.SelText() == jeu.Liste.Text();
}

} // namespace

void EssayerMot(const JeuDeLacunes& jeu)
{
    const auto choisi = jeu.Boîte.SelText();
    if (choisi.find_first_not_of(Trait) != Texte::npos)
        return;
    const auto lacune = LacuneAutour(jeu.Ouvertes, jeu.Boîte.SelStart(), choisi.size());
    if (!choisi.empty() && lacune != jeu.Ouvertes.end()) {
        if (MotJuste(jeu)) {
            PlacerMot(jeu, lacune);
        } else {
            jeu.Boîte.SelColor = Rouge;
            jeu.Boîte.SelLength(0);
        }
        Incrémenter(jeu.Points(1));
    }
    if (jeu.Ouvertes.empty())
        Montrer(jeu.Fin);
}

Arrangement PageDeLacunes(const JeuDeLacunes& jeu, Label& consigne, Button& ok, Image& image, Arrangement dessus)
{
    return Page{{
        .Consigne = consigne,
        .Points = BandeDePoints(jeu.Points),
        .Travail = Libre{jeu.Boîte},
        .Pied = Ligne{AuMoins(720, 480, image), Extensible(AuMoins(3600, 0, jeu.Liste)), Ressort{}, ok},
        .Dessus = std::move(dessus),
    }};
}

Dessin DessinCrayon()
{
    static constexpr Couleur Bois{0x99CCFF};
    static constexpr Couleur Gomme{0xB0A0FF};
    return {.Largeur = 48,
            .Hauteur = 32,
            .Formes = {
                {.Genre = GenreForme::Tracé, .Points = {{2, 30}, {10, 30}}, .Epaisseur = 2},
                {.Genre = GenreForme::Tracé, .Points = {{14, 30}, {22, 30}}, .Epaisseur = 2},
                {.Genre = GenreForme::Tracé, .Points = {{26, 30}, {34, 30}}, .Epaisseur = 2},
                {.Genre = GenreForme::Tracé, .Points = {{38, 30}, {46, 30}}, .Epaisseur = 2},
                {.Genre = GenreForme::Polygone, .Points = {{10, 26}, {13, 18}, {18, 23}}, .Fond = Bois},
                {.Genre = GenreForme::Polygone, .Points = {{10, 26}, {11, 23}, {13, 25}}, .Fond = Noir},
                {.Genre = GenreForme::Polygone, .Points = {{13, 18}, {30, 4}, {35, 9}, {18, 23}}, .Fond = Jaune},
                {.Genre = GenreForme::Polygone, .Points = {{30, 4}, {33, 2}, {38, 7}, {35, 9}}, .Fond = Gomme},
            }};
}

} // namespace tirelune
