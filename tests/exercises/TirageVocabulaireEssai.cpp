#include "exercises/TirageVocabulaire.h"

#include "followup/frmExercices.h"
#include "tests/support/Mots.h"

namespace tirelune {

namespace {

std::vector<Texte> Tirés(Banc& banc, int limite)
{
    return TirerMotsDifférents(banc.Choix().cmbVocabulaire, limite, banc.plateforme);
}

} // namespace

TEST(TirageVocabulaire, MotsViennentDansLOrdreDuTirage)
{
    Banc banc;
    banc.Vocabulaire({u"âne", u"bal", u"cri", u"dos"});
    banc.Hasards({0.75, 0.0, 0.5});
    EXPECT_EQ(Tirés(banc, 3), (std::vector<Texte>{u"dos", u"âne", u"cri"}));
}

TEST(TirageVocabulaire, MotDéjàVenuEstTiréDeNouveau)
{
    Banc banc;
    banc.Vocabulaire({u"âne", u"bal"});
    banc.Hasards({0.0, 0.0, 0.49, 0.5});
    EXPECT_EQ(Tirés(banc, 2), (std::vector<Texte>{u"âne", u"bal"}));
}

TEST(TirageVocabulaire, DoublonsNeDonnentQueLesMotsDifférents)
{
    Banc banc;
    banc.Vocabulaire({u"âne", u"bal", u"bal", u"cri", u"cri"});
    banc.Hasards({0.3, 0.5, 0.7, 0.9, 0.1});
    EXPECT_EQ(Tirés(banc, 5), (std::vector<Texte>{u"bal", u"cri", u"âne"}));
    EXPECT_EQ(CompterMotsDifférents(banc.Choix().cmbVocabulaire), 3);
}

TEST(TirageVocabulaire, CasseEtAccentsFontDesMotsDifférents)
{
    Banc banc;
    banc.Vocabulaire({u"été", u"Eté", u"ete", u"été"});
    EXPECT_EQ(CompterMotsDifférents(banc.Choix().cmbVocabulaire), 3);
}

TEST(TirageVocabulaire, VocabulaireVideNeTireRien)
{
    Banc banc;
    banc.Vocabulaire({});
    EXPECT_TRUE(Tirés(banc, 5).empty());
    EXPECT_EQ(CompterMotsDifférents(banc.Choix().cmbVocabulaire), 0);
}

TEST(TirageVocabulaire, AucunMotDemandéNeTireRien)
{
    Banc banc;
    banc.Vocabulaire({u"âne"});
    EXPECT_TRUE(Tirés(banc, 0).empty());
    EXPECT_TRUE(Tirés(banc, -1).empty());
}

TEST(TirageVocabulaire, MotTiréQuitteLaListe)
{
    Banc banc;
    banc.Vocabulaire({u"âne", u"bal", u"cri"});
    banc.Hasards({0.34, 0.99, 0.0});
    auto& mots = banc.Choix().cmbVocabulaire;
    EXPECT_EQ(TirerEtRetirer(mots, banc.plateforme), u"bal");
    EXPECT_EQ(mots.Eléments(), (std::vector<Texte>{u"âne", u"cri"}));
    EXPECT_EQ(TirerEtRetirer(mots, banc.plateforme), u"cri");
    EXPECT_EQ(TirerEtRetirer(mots, banc.plateforme), u"âne");
    EXPECT_EQ(mots.ListCount(), 0);
}

TEST(TirageVocabulaire, CinqCentsMotsDontUnSeulDiffèreSontTirésTousDeux)
{
    Banc banc;
    std::vector<Texte> mots(499, u"âne");
    mots.emplace_back(u"zèbre");
    banc.Vocabulaire(std::move(mots));
    TirerVarié(banc);
    EXPECT_EQ(Tirés(banc, 10), (std::vector<Texte>{u"âne", u"zèbre"}));
}

} // namespace tirelune
