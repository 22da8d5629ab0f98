#include "core/Fonctions.h"

#include "tests/support/Banc.h"

namespace tirelune {

TEST(Fonctions, LettresSeulesDansLOrdre)
{
    Constantes état;
    MémoAlphabetSansNombres(état);
    EXPECT_EQ(état.LettresSeules, u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyzàâäçéèêëîïôöùûüÂÊËÎÏÔÖÛÜÀÇÈÉÙ");
}

TEST(Fonctions, ChiffresPuisSignes)
{
    Constantes état;
    MémoAlphabetSansNombres(état);
    EcrireAlphabetSimple(état);
    EcrireAlphabet(état);
    EXPECT_EQ(état.LettresEtChiffres, état.LettresSeules + u"0123456789");
    EXPECT_EQ(état.LettresEtSignes, état.LettresSeules + u"°+-*/*=&§[]()0123456789");
}

TEST(Fonctions, ChaqueAppelRecommence)
{
    Constantes état;
    EcrireAlphabet(état);
    const auto premier = état.LettresEtSignes;
    état.LettresEtSignes += u"'-";
    EcrireAlphabet(état);
    EXPECT_EQ(état.LettresEtSignes, premier);
    EcrireAlphabetSimple(état);
    const auto chiffres = état.LettresEtChiffres;
    EcrireAlphabetSimple(état);
    EXPECT_EQ(état.LettresEtChiffres, chiffres);
}

TEST(Fonctions, SansAccents)
{
    EXPECT_EQ(SansAccents(u"Île-de-France"), u"iledefrance");
    EXPECT_EQ(SansAccents(u"Noël"), u"noel");
    EXPECT_EQ(SansAccents(u"aiguë"), u"aigue");
    EXPECT_EQ(SansAccents(u"capharnaüm"), u"capharnaüm");
    EXPECT_EQ(SansAccents(u"CAPHARNAÜM"), u"capharnaüm");
    EXPECT_EQ(SansAccents(u"àâäçéèêëîïôöùû"), u"aaaceeeeiioouu");
    EXPECT_EQ(SansAccents(u"L'Œuf ÿ œ"), u"l'œuf ÿ œ");
    EXPECT_EQ(SansAccents(u""), u"");
    EXPECT_EQ(SansAccents(u"--"), u"");
}

TEST(VérifQuestions, SansFichierNeLaisseRien)
{
    Banc banc;
    banc.état.CheminTexteElève = banc.état.CheminAppli + u"/";
    banc.état.QuestionnaireExiste = true;
    VérifQuestions(banc.état, u" Le chat ");
    EXPECT_FALSE(banc.état.QuestionnaireExiste);
    EXPECT_EQ(banc.état.NomFichierQuestions, banc.état.CheminAppli + u"/Le chat.qst");
    EXPECT_FALSE(banc.Existe("Le chat.qst"));
}

TEST(VérifQuestions, ChampsVidesSeulsSontSupprimés)
{
    for (const auto* octets : {"", "\"\"\r\n\"\"\r\n", "\r\n"}) {
        Banc banc;
        banc.état.CheminTexteElève = banc.état.CheminAppli + u"/";
        banc.Ecrire("A.qst", octets);
        VérifQuestions(banc.état, u" A ");
        EXPECT_FALSE(banc.état.QuestionnaireExiste);
        EXPECT_FALSE(banc.Existe("A.qst"));
    }
}

TEST(VérifQuestions, UnChampPleinSuffitEtLeFichierReste)
{
    Banc banc;
    banc.état.CheminTexteElève = banc.état.CheminAppli + u"/";
    banc.EcrireChamps("A.qst", {u"", u"Pourquoi ?"});
    VérifQuestions(banc.état, u" A ");
    EXPECT_TRUE(banc.état.QuestionnaireExiste);
    EXPECT_TRUE(banc.Existe("A.qst"));
}

TEST(VérifQuestions, DossierAuNomDuQuestionnaireReste)
{
    Banc banc;
    banc.état.CheminTexteElève = banc.état.CheminAppli + u"/";
    std::filesystem::create_directory(banc.dossier / "A.qst");
    VérifQuestions(banc.état, u" A ");
    EXPECT_FALSE(banc.état.QuestionnaireExiste);
    EXPECT_TRUE(banc.Existe("A.qst"));
}

TEST(VérifQuestions, LExtensionEstTrouvéeDansToutesLesCasses)
{
    Banc banc;
    banc.état.CheminTexteElève = banc.état.CheminAppli + u"/";
    banc.EcrireChamps("MAJ.QST", {u"Pourquoi ?"});
    VérifQuestions(banc.état, u" MAJ ");
    EXPECT_TRUE(banc.état.QuestionnaireExiste);
    EXPECT_EQ(banc.état.NomFichierQuestions, banc.état.CheminAppli + u"/MAJ.QST");
    banc.EcrireChamps("MAJ.QST", {u""});
    VérifQuestions(banc.état, u" MAJ ");
    EXPECT_FALSE(banc.Existe("MAJ.QST"));
}

} // namespace tirelune
