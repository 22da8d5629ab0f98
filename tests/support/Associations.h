// Lexicons for the drills on them, and how a pupil plays one.
#pragma once
#include "core/FichierChamps.h"
#include "exercises/JeuDAssociation.h"
#include "tests/support/Banc.h"
#include "tests/support/Mots.h"
#include "tests/support/Notices.h"

namespace tirelune {

using FichesEssai = std::vector<std::vector<Texte>>;

inline void EcrireFiches(Banc& banc, const std::string& nom, const FichesEssai& fiches)
{
    std::vector<Texte> champs;
    for (const auto& fiche : fiches) {
        champs.emplace_back(Marqueur);
        champs.insert(champs.end(), fiche.begin(), fiche.end());
    }
    banc.EcrireChamps(nom, champs);
}

// Records of the same number of words: "a0", "b0", "c0"; "a1", "b1", "c1"...
inline FichesEssai FichesDeMots(int nombre, int mots)
{
    FichesEssai fiches;
    for (int i = 0; i < nombre; ++i) {
        fiches.emplace_back();
        for (int k = 0; k < mots; ++k)
            fiches.back().push_back(static_cast<char16_t>(u'a' + k) + EnTexte(i));
    }
    return fiches;
}

// The lexicon is in the folder of the text that the pupil has loaded.
template <class E>
E& OuvrirExercice(Banc& banc, int index)
{
    banc.ChargerTexte(u"Un texte.");
    banc.Index(index);
    return banc.Ouvrir<E>();
}

template <class E>
void VérifierTropPeu(Banc& banc, E& écran, VueTexte titre, VueTexte phrase, int index)
{
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, titre);
    EXPECT_EQ(écran.notice.Cadre.Width, écran.Width());
    EXPECT_EQ(écran.notice.Cadre.Height, écran.Height());
    EXPECT_EQ(écran.notice.Phrase.Caption, phrase);
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Abandonner");
    EXPECT_FALSE(écran.cmdQuitter.EstAtteignable());
    EXPECT_EQ(banc.plateforme.tirages, 0);
    EXPECT_TRUE(banc.plateforme.boîtesMontrées.empty());
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(index), u"");
}

// Clicks the slot and takes the word from the list.
inline void Répondre(Label& place, ComboBox& liste, const Texte& mot)
{
    place.Cliquer();
    const int index = liste.Chercher(mot);
    ASSERT_GE(index, 0) << EnUtf8(mot);
    liste.Choisir(index);
}

// The right answer in each slot from `première` on.
inline void ToutRépondre(Tableau<Label>& places, const Tableau<Label>& corrigés, ComboBox& liste, int première = 0)
{
    for (int i = première; i < places.Nombre(); ++i)
        Répondre(places(i), liste, corrigés(i).Caption);
}

} // namespace tirelune
