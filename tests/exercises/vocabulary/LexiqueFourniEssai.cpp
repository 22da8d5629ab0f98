// The lexicon delivered with the program: its six exercises start at once, whatever the dice say.
#include "exercises/vocabulary/frmContraires.h"
#include "exercises/vocabulary/frmDico.h"
#include "exercises/vocabulary/frmGenre.h"
#include "exercises/vocabulary/frmSynonymes.h"
#include "exercises/vocabulary/frmThèmes.h"
#include "exercises/vocabulary/frmThèmes2.h"
#include "tests/support/Associations.h"

#include <random>

namespace tirelune {

namespace {

constexpr int Graines = 8;

template <class E>
E& OuvrirSurLeLexiqueFourni(Banc& banc, int index, int graine)
{
    banc.plateforme.amorcesLibres = true;
    banc.plateforme.toujours = [dés = std::mt19937(static_cast<unsigned>(graine))]() mutable {
        return std::uniform_real_distribution<>{0, 1}(dés);
    };
    banc.ChargerTexte(u"Un texte.", u"La course des escargots");
    banc.état.CheminTexteElève = DepuisUtf8(DOSSIER_SOURCES "/textes/");
    banc.Index(index);
    return banc.Ouvrir<E>();
}

// Started, played without a mistake, recorded.
template <class E>
void JouerFourni(int index, Tableau<Label> E::*places, ComboBox E::*liste)
{
    for (int graine = 0; graine < Graines; ++graine) {
        Banc banc;
        auto& écran = OuvrirSurLeLexiqueFourni<E>(banc, index, graine);
        ASSERT_FALSE(écran.notice.Cadre.Visible);
        ToutRépondre(écran.*places, écran.lblCorrigé, écran.*liste);
        écran.cmdQuitter.Cliquer();
        écran.cmdQuitter.Cliquer();
        EXPECT_EQ(banc.Note(index), u"10") << "graine " << graine;
    }
}

} // namespace

TEST(LexiqueFourni, SynonymesSeJoue)
{
    JouerFourni(6, &frmSynonymes::lblMot, &frmSynonymes::cmbSynonymes);
}

TEST(LexiqueFourni, ContrairesSeJoue)
{
    JouerFourni(7, &frmContraires::lblMot, &frmContraires::cmbContraires);
}

TEST(LexiqueFourni, GenreSeJoue)
{
    JouerFourni(8, &frmGenre::lblFéminin, &frmGenre::cmbGenre);
}

TEST(LexiqueFourni, ThèmesSeJoue)
{
    JouerFourni(9, &frmThèmes::lblMot, &frmThèmes::cmbThèmes);
}

TEST(LexiqueFourni, Thèmes2SeJoue)
{
    JouerFourni(10, &frmThèmes2::lblRéponse, &frmThèmes2::cmbThèmes);
}

TEST(LexiqueFourni, DicoSeJoue)
{
    for (int graine = 0; graine < Graines; ++graine) {
        Banc banc;
        auto& écran = OuvrirSurLeLexiqueFourni<frmDico>(banc, 5, graine);
        const int mots = écran.fgDic.Rows();
        for (int tour = 0; tour < 2 * mots; ++tour) {
            const bool parMot = tour >= mots;
            const auto cellule = [&](int colonne) { return écran.fgDic.TextMatrix(tour % mots, colonne); };
            for (int i = 0; i < frmDico::Choix; ++i) {
                ASSERT_TRUE(parMot ? écran.lblMot(i).Visible : écran.txtDéf(i).Visible) << "dix choix";
                if (parMot && écran.lblMot(i).Caption == cellule(ColonneMot))
                    écran.lblMot(i).Cliquer();
                if (!parMot && écran.txtDéf(i).Text == cellule(ColonneDéfinition))
                    écran.txtDéf(i).Cliquer(0);
            }
            écran.cmdSuivant.Cliquer();
        }
        EXPECT_EQ(banc.Note(5), u"10") << "graine " << graine;
    }
}

} // namespace tirelune
