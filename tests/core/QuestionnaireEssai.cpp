#include "core/Questionnaire.h"

#include "tests/support/Banc.h"

#include <set>

namespace tirelune {

namespace {

class EcranGrille final : public Ecran {
public:
    explicit EcranGrille(Application& application) : Ecran(application, "EcranGrille", u"") {}

    Grid fg{*this, "fg", QuestionsMaximum, ChampsParQuestion};

private:
    Arrangement Disposer() override { return Libre{fg}; }
};

std::vector<Texte> ChampsNumérotés(int combien)
{
    std::vector<Texte> champs;
    for (int i = 0; i < combien; ++i)
        champs.push_back(u"c" + EnTexte(i));
    return champs;
}

} // namespace

TEST(Questionnaire, OnzeColonnesDontChacuneAUnSeulUsage)
{
    EXPECT_EQ(ChampsParQuestion, 11);
    std::set<int> colonnes{ColonneQuestion};
    for (int i = 0; i < ChoixParQuestion; ++i) {
        EXPECT_EQ(ColonneDrapeau(i), ColonneChoix(i) + 1);
        colonnes.insert({ColonneChoix(i), ColonneDrapeau(i)});
    }
    EXPECT_EQ(colonnes.size(), 11U);
    EXPECT_EQ(*colonnes.begin(), 0);
    EXPECT_EQ(*colonnes.rbegin(), 10);
}

TEST(Questionnaire, UneRangéePourOnzeChamps)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranGrille>();
    EXPECT_TRUE(LireQuestions(banc.EcrireChamps("q.qst", ChampsNumérotés(24)), écran.fg));
    EXPECT_EQ(écran.fg.TextMatrix(0, ColonneQuestion), u"c0");
    EXPECT_EQ(écran.fg.TextMatrix(0, ColonneDrapeau(4)), u"c10");
    EXPECT_EQ(écran.fg.TextMatrix(1, ColonneQuestion), u"c11");
    EXPECT_EQ(écran.fg.TextMatrix(2, ColonneChoix(0)), u"c23");
    EXPECT_EQ(écran.fg.TextMatrix(2, ColonneDrapeau(0)), u"") << "le fichier s'arrête avant";
}

TEST(Questionnaire, LaTreizièmeQuestionEstLaissée)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranGrille>();
    EXPECT_TRUE(LireQuestions(banc.EcrireChamps("q.qst", ChampsNumérotés(13 * 11)), écran.fg));
    EXPECT_EQ(écran.fg.Rows(), QuestionsMaximum);
    EXPECT_EQ(écran.fg.TextMatrix(11, 10), u"c131");
}

TEST(Questionnaire, FichierVideOuAbsent)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranGrille>();
    EXPECT_TRUE(LireQuestions(banc.EcrireChamps("q.qst", {}), écran.fg));
    EXPECT_FALSE(LireQuestions(banc.dossier / "rien.qst", écran.fg));
    EXPECT_EQ(écran.fg.TextMatrix(0, 0), u"");
}

} // namespace tirelune
