#include "exercises/comprehension/frmQuestionnaire1.h"

#include "tests/support/Banc.h"

namespace tirelune {

namespace {

constexpr VueTexte SansQuestionnaire = u"Je ne trouve pas de questionnaire associé au texte !";

// Eleven fields: the question, then each choice with its flag; the first choice is right unless told.
std::vector<Texte> Question(Texte question, std::vector<Texte> drapeaux = {u"1", u"0", u"0", u"0", u"0"},
                            std::vector<Texte> choix = {u"Oui.", u"Non.", u"Peut-être.", u"", u""})
{
    std::vector<Texte> champs{std::move(question)};
    for (std::size_t i = 0; i < 5; ++i) {
        champs.push_back(choix[i]);
        champs.push_back(drapeaux[i]);
    }
    return champs;
}

void Questionnaire(Banc& banc, const std::vector<std::vector<Texte>>& questions)
{
    std::vector<Texte> champs;
    for (const auto& question : questions)
        champs.insert(champs.end(), question.begin(), question.end());
    banc.EcrireChamps("Le chat.qst", champs);
}

void Questionnaire(Banc& banc, int nombre)
{
    std::vector<std::vector<Texte>> questions;
    for (int i = 1; i <= nombre; ++i)
        questions.push_back(Question(u"Question " + EnTexte(i)));
    Questionnaire(banc, questions);
}

frmQuestionnaire1& OuvrirQuestionnaire1(Banc& banc, int exercice, const Texte& texte = u"Un chat dort.")
{
    banc.ChargerTexte(texte);
    banc.Index(exercice);
    return banc.Ouvrir<frmQuestionnaire1>();
}

// Questionnaire (1), read in a minute.
frmQuestionnaire1& Lu(Banc& banc)
{
    auto& écran = OuvrirQuestionnaire1(banc, 0);
    écran.cmdCommencer.Cliquer();
    banc.Avancer(60s);
    écran.cmdOk.Cliquer();
    return écran;
}

void Répondre(frmQuestionnaire1& écran, std::initializer_list<int> coches)
{
    for (const int i : coches)
        écran.chkRéponse(i).Cliquer();
    écran.cmdVérifier.Cliquer();
}

Texte Vitesse(Banc& banc)
{
    return banc.Choix().fgRésultats.Rows() < 2 ? Texte{} : banc.Choix().fgRésultats.TextMatrix(1, 1);
}

} // namespace

// ---- The reading -------------------------------------------------------------------------------------------------

TEST(Questionnaire, CommenceParLaConsigneTexteCaché)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = OuvrirQuestionnaire1(banc, 0);
    EXPECT_EQ(écran.Caption, u"Questionnaire / Léa");
    EXPECT_EQ(écran.Text1.Text, u"Lis bien le texte qui va s'afficher : tu devras ensuite répondre à des questions "
                                u"sans pouvoir le relire.\r\n");
    EXPECT_EQ(écran.cmdCommencer.Caption, u"Afficher le texte");
    EXPECT_EQ(écran.cmdOk.Caption, u"Clique ici quand tu as lu tout le texte");
    EXPECT_EQ(écran.frameQuestions.Caption, u"   Questionnaire");
    EXPECT_EQ(écran.Label1.Caption, u"Question N° ");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_EQ(écran.lblConseil.Caption, u"Clique sur le cadre gris du questionnaire pour le déplacer.");
    EXPECT_EQ(écran.cmdInitialise.Caption, u"Questions disparues ! Clique ici.");
    EXPECT_TRUE(écran.frameConsigne.Visible && écran.cmdCommencer.Visible);
    EXPECT_FALSE(écran.rtfTexte.Visible || écran.cmdOk.Visible || écran.frameQuestions.Visible ||
                 écran.lblConseil.Visible || écran.cmdInitialise.Visible);
    écran.cmdCommencer.Cliquer();
    EXPECT_FALSE(écran.frameConsigne.Visible);
    EXPECT_TRUE(écran.rtfTexte.Visible && écran.cmdOk.Visible);
}

TEST(Questionnaire, LesMarquesDuVocabulaireNeSeVoientPas)
{
    Banc banc;
    TexteRiche texte{u"un chat gris"};
    texte.Formater(3, 4, [](Format& format) {
        format.Barré = true;
        format.Gras = true;
    });
    banc.ChargerTexte(texte);
    banc.Index(0);
    auto& écran = banc.Ouvrir<frmQuestionnaire1>();
    for (std::size_t i = 0; i < texte.Longueur(); ++i)
        EXPECT_FALSE(écran.rtfTexte.TextRTF().FormatEn(i).Barré);
    EXPECT_TRUE(écran.rtfTexte.TextRTF().FormatEn(3).Gras);
    EXPECT_EQ(banc.Choix().rtfTexte.TextRTF(), texte);
}

TEST(Questionnaire, VitesseSansLesBlancsAvecLesFinsDeLigne)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = OuvrirQuestionnaire1(banc, 0, u"a b\nc  d"); // six signs: four letters, CR and LF
    écran.cmdCommencer.Cliquer();
    banc.Avancer(90s);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(Vitesse(banc), u"4");
    EXPECT_EQ(banc.Choix().lblVitesse.Caption, u"4");
    EXPECT_EQ(banc.Choix().lblVitesseMoyenne.Caption, u"4");
    EXPECT_EQ(banc.Choix().fgRésultats.TextMatrix(0, 1), u"4");
    EXPECT_NE(banc.Lire("Léa.bil")->find("\"*\"\r\n\"Le chat\"\r\n\"4\"\r\n"), std::string::npos);
    EXPECT_FALSE(écran.rtfTexte.Visible || écran.cmdOk.Visible);
    EXPECT_TRUE(écran.frameQuestions.Visible);
    EXPECT_EQ(écran.frameQuestions.Top, 0);
    EXPECT_EQ(écran.frameQuestions.Left, écran.rtfTexte.Left());
    EXPECT_EQ(écran.frameQuestions.Width, écran.rtfTexte.Width());
    EXPECT_EQ(écran.frameQuestions.Height, écran.rtfTexte.Height());
}

TEST(Questionnaire, VitesseCoupéeALaPartieEntière)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = OuvrirQuestionnaire1(banc, 0, Texte(100, u'a'));
    écran.cmdCommencer.Cliquer();
    banc.Avancer(7s);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(Vitesse(banc), u"857"); // 857.14
}

TEST(Questionnaire, LectureAMinuitSeMesure)
{
    Banc banc;
    Questionnaire(banc, 1);
    banc.plateforme.Régler(86390);
    auto& écran = OuvrirQuestionnaire1(banc, 0, Texte(100, u'a'));
    écran.cmdCommencer.Cliquer();
    banc.Avancer(20s);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(Vitesse(banc), u"300");
}

TEST(Questionnaire, LectureSansDuréeSeRefait)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = OuvrirQuestionnaire1(banc, 0);
    écran.cmdCommencer.Cliquer();
    banc.AnnoncerBoîte(u"La lecture n'a duré aucun instant…");
    écran.cmdOk.Cliquer();
    EXPECT_EQ(Vitesse(banc), u"");
    EXPECT_TRUE(écran.frameConsigne.Visible);
    EXPECT_FALSE(écran.cmdOk.Visible);
    écran.cmdCommencer.Cliquer();
    banc.Avancer(60s);
    écran.cmdOk.Cliquer();
    EXPECT_EQ(Vitesse(banc), u"11");
}

TEST(Questionnaire, SansQuestionnaireLaVitesseEstGardée)
{
    Banc banc;
    auto& écran = OuvrirQuestionnaire1(banc, 0);
    écran.cmdCommencer.Cliquer();
    banc.Avancer(60s);
    banc.AnnoncerBoîte(Texte{SansQuestionnaire});
    écran.cmdOk.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(Vitesse(banc), u"11");
    EXPECT_EQ(banc.Note(0), u"");
    EXPECT_FALSE(banc.Existe("Le chat.qst"));
}

TEST(Questionnaire, FermerPendantLaLectureNEnregistreRien)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = OuvrirQuestionnaire1(banc, 0);
    banc.Choix().lblVitesse.Caption = u"";
    écran.cmdCommencer.Cliquer();
    banc.Avancer(60s);
    écran.FermerParCroix();
    EXPECT_EQ(Vitesse(banc), u"");
    EXPECT_EQ(banc.Choix().lblVitesse.Caption, u"");
    EXPECT_EQ(banc.Lire("Léa.bil"), "");
    écran.cmdOk.Cliquer(); // closed: nothing answers
    EXPECT_EQ(Vitesse(banc), u"");
}

TEST(Questionnaire, RefaireRemplaceVitesseEtNote)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& première = Lu(banc);
    Répondre(première, {0});
    première.cmdVérifier.Cliquer();
    EXPECT_EQ(banc.Note(0), u"10");
    EXPECT_EQ(Vitesse(banc), u"11");
    auto& seconde = banc.Ouvrir<frmQuestionnaire1>();
    seconde.cmdCommencer.Cliquer();
    banc.Avancer(30s);
    seconde.cmdOk.Cliquer();
    EXPECT_EQ(Vitesse(banc), u"22");
    Répondre(seconde, {1});
    seconde.cmdVérifier.Cliquer();
    EXPECT_EQ(banc.Note(0), u"0");
    EXPECT_EQ(banc.Choix().fgRésultats.Rows(), 2);
}

TEST(Questionnaire, VitesseQuiNeSEcritPasEstDiteEtLesQuestionsViennent)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = OuvrirQuestionnaire1(banc, 0);
    écran.cmdCommencer.Cliquer();
    banc.Avancer(60s);
    banc.plateforme.échecEcriture = [](const Chemin&) { return EchecFichier::Ecriture; };
    banc.AnnoncerBoîte(u"Tes résultats n'ont pas pu être enregistrés…");
    écran.cmdOk.Cliquer();
    EXPECT_TRUE(écran.frameQuestions.Visible);
    banc.plateforme.échecEcriture = nullptr;
    Répondre(écran, {0});
    écran.cmdVérifier.Cliquer();
    EXPECT_NE(banc.Lire("Léa.bil")->find("\"11\"\r\n\"10\""), std::string::npos);
}

// ---- The questions -----------------------------------------------------------------------------------------------

TEST(Questionnaire, UneSeuleQuestionFinitAprèsSaVérification)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = Lu(banc);
    EXPECT_EQ(écran.lblNuméro.Caption, u"1");
    EXPECT_EQ(écran.cmdVérifier.Caption, u"&Vérifier");
    Répondre(écran, {0});
    EXPECT_EQ(écran.cmdVérifier.Caption, u"Fin du questionnaire");
    EXPECT_EQ(écran.cmdVérifier.FontSize, 10);
    EXPECT_FALSE(écran.cmdQuitter.Visible);
    EXPECT_EQ(écran.lblOuiNon.Caption, u"Bonne Réponse");
    écran.cmdVérifier.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(0), u"10");
    EXPECT_NE(banc.Lire("Léa.bil")->find("\"10\""), std::string::npos);
}

TEST(Questionnaire, DouzeQuestionsJusquAuBout)
{
    Banc banc;
    Questionnaire(banc, 12);
    auto& écran = Lu(banc);
    for (int i = 1; i <= 12; ++i) {
        EXPECT_EQ(écran.lblNuméro.Caption, EnTexte(i));
        EXPECT_EQ(écran.txtQuestion.Text, u"Question " + EnTexte(i));
        EXPECT_FALSE(écran.lblOuiNon.Visible);
        Répondre(écran, {0});
        EXPECT_FALSE(écran.chkRéponse(0).Enabled);
        EXPECT_TRUE(écran.lblOuiNon.Visible);
        EXPECT_EQ(écran.cmdVérifier.Caption, i < 12 ? u"&Suivante" : u"Fin du questionnaire");
        écran.cmdVérifier.Cliquer();
    }
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(0), u"10");
}

TEST(Questionnaire, LaTreizièmeQuestionNeSePosePas)
{
    Banc banc;
    Questionnaire(banc, 13);
    auto& écran = Lu(banc);
    for (int i = 0; i < 12; ++i) {
        Répondre(écran, {0});
        écran.cmdVérifier.Cliquer();
    }
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(écran.lblPoints(1).Caption, u"12");
}

TEST(Questionnaire, CinqBonnesSurHuitFontSixVirguleVingtCinq)
{
    Banc banc;
    Questionnaire(banc, 8);
    auto& écran = Lu(banc);
    for (int i = 0; i < 8; ++i) {
        Répondre(écran, {i < 5 ? 0 : 1});
        EXPECT_EQ(écran.lblOuiNon.Caption, i < 5 ? u"Bonne Réponse" : u"Mauvaise Réponse");
        écran.cmdVérifier.Cliquer();
    }
    EXPECT_EQ(banc.Note(0), u"6,25");
}

TEST(Questionnaire, NeRienCocherEstJusteQuandToutEstFaux)
{
    Banc banc;
    Questionnaire(banc, {Question(u"Rien ?", {u"0", u"0", u"", u"0", u"0"})});
    auto& écran = Lu(banc);
    Répondre(écran, {});
    EXPECT_EQ(écran.lblOuiNon.Caption, u"Bonne Réponse");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(2).Caption, u" / ");
}

TEST(Questionnaire, ToutesLesBonnesEtAucuneMauvaise)
{
    const auto juste = [](std::initializer_list<int> coches) {
        Banc banc;
        Questionnaire(banc, {Question(u"Lesquels ?", {u"1", u"0", u"1", u"0", u"0"})});
        auto& écran = Lu(banc);
        Répondre(écran, coches);
        return écran.lblOuiNon.Caption == u"Bonne Réponse";
    };
    EXPECT_TRUE(juste({0, 2}));
    EXPECT_FALSE(juste({0}));
    EXPECT_FALSE(juste({0, 1, 2}));
    EXPECT_FALSE(juste({}));
}

TEST(Questionnaire, ChoixVidesCachésEtLeursDrapeauxIgnorés)
{
    Banc banc;
    Questionnaire(banc,
                  {Question(u"  Qui ?  ", {u"1", u"0", u"0", u"1", u"1"}, {u" Lui. ", u"", u"Elle.", u"  ", u""})});
    auto& écran = Lu(banc);
    EXPECT_EQ(écran.txtQuestion.Text, u"Qui ?");
    EXPECT_EQ(écran.txtChoix(0).Text, u"Lui.");
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(écran.txtChoix(i).Visible(), i == 0 || i == 2);
        EXPECT_EQ(écran.chkRéponse(i).Visible(), i == 0 || i == 2);
    }
    Répondre(écran, {0});
    EXPECT_EQ(écran.lblOuiNon.Caption, u"Bonne Réponse");
}

TEST(Questionnaire, CliquerLesMotsCocheSaufALaCorrection)
{
    Banc banc;
    Questionnaire(banc, 2);
    auto& écran = Lu(banc);
    écran.txtChoix(1).SelLength = 3;
    écran.txtChoix(1).Cliquer(0);
    EXPECT_EQ(écran.chkRéponse(1).Value, 1);
    EXPECT_EQ(écran.txtChoix(1).SelLength, 0U);
    écran.txtChoix(1).Cliquer(0);
    EXPECT_EQ(écran.chkRéponse(1).Value, 0);
    écran.cmdVérifier.Cliquer();
    écran.txtChoix(0).Cliquer(0);
    écran.chkRéponse(0).Cliquer();
    EXPECT_EQ(écran.chkRéponse(0).Value, 0);
    écran.cmdVérifier.Cliquer();
    EXPECT_TRUE(écran.chkRéponse(0).Enabled);
    EXPECT_EQ(écran.txtQuestion.Text, u"Question 2");
}

TEST(Questionnaire, QuitterAvantLaPremièreVérificationNeNoteRien)
{
    Banc banc;
    Questionnaire(banc, 3);
    auto& écran = Lu(banc);
    EXPECT_TRUE(écran.cmdQuitter.Visible);
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(0), u"");
    EXPECT_EQ(Vitesse(banc), u"11");
}

TEST(Questionnaire, LaCroixEnCoursDeRouteNeNoteRien)
{
    Banc banc;
    Questionnaire(banc, 3);
    auto& écran = Lu(banc);
    Répondre(écran, {0});
    écran.cmdVérifier.Cliquer();
    Répondre(écran, {0});
    écran.FermerParCroix();
    EXPECT_EQ(banc.Note(0), u"");
}

TEST(Questionnaire, NombreDeChampsQuiNEstPasUnMultipleDeOnze)
{
    Banc banc;
    auto champs = Question(u"Entière ?");
    champs.insert(champs.end(), {u"Coupée ?", u"Oui.", u"1", u"Non."});
    banc.EcrireChamps("Le chat.qst", champs);
    auto& écran = Lu(banc);
    Répondre(écran, {0});
    écran.cmdVérifier.Cliquer();
    EXPECT_EQ(écran.txtQuestion.Text, u"Coupée ?");
    EXPECT_TRUE(écran.txtChoix(1).Visible);
    EXPECT_FALSE(écran.txtChoix(2).Visible);
    Répondre(écran, {0}); // the flag that is missing reads as 0
    EXPECT_EQ(écran.lblOuiNon.Caption, u"Bonne Réponse");
    EXPECT_EQ(écran.cmdVérifier.Caption, u"Fin du questionnaire");
}

TEST(Questionnaire, QuestionSurPlusieursLignesEtDrapeauAbîmé)
{
    Banc banc;
    Questionnaire(banc, {Question(u"Deux\r\nlignes ?", {u"99999999999999999999", u"0", u"0", u"0", u"0"})});
    auto& écran = Lu(banc);
    EXPECT_EQ(écran.txtQuestion.Text, u"Deux\r\nlignes ?");
    Répondre(écran, {0});
    EXPECT_EQ(écran.lblOuiNon.Caption, u"Mauvaise Réponse");
}

TEST(Questionnaire, RienNeSeTapeEtUnClicNeLaissePasDeSélection)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = Lu(banc);
    EXPECT_TRUE(écran.Text1.Locked);
    EXPECT_TRUE(écran.txtQuestion.Locked);
    EXPECT_TRUE(écran.rtfTexte.Locked);
    for (auto& choix : écran.txtChoix)
        EXPECT_TRUE(choix.Locked);
    écran.txtChoix(0).SelLength = 2;
    écran.txtChoix(0).Click();
    EXPECT_EQ(écran.txtChoix(0).SelLength, 0U);
}

TEST(Questionnaire, RedimensionnerRepeintLeBoutonDeDépartTantQuIlEstLà)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = OuvrirQuestionnaire1(banc, 0);
    const int avant = banc.plateforme.repeints;
    écran.Dimensionner(15000, 10000);
    EXPECT_EQ(banc.plateforme.repeints, avant + 1);
    écran.cmdCommencer.Visible = false;
    écran.Dimensionner(14000, 10000);
    EXPECT_EQ(banc.plateforme.repeints, avant + 1);
}

TEST(Questionnaire, RedimensionnerSuitLaFenêtre)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = Lu(banc);
    écran.Dimensionner(15000, 10000);
    EXPECT_EQ(écran.rtfTexte.Width, 14850);
    EXPECT_EQ(écran.rtfTexte.Height, 8900);
    EXPECT_EQ(écran.cmdOk.Width, 14850);
    EXPECT_EQ(écran.frameQuestions.Width, 14850);
    EXPECT_EQ(écran.frameQuestions.Height, 8900);
    EXPECT_EQ(écran.frameQuestions.Top, 0);
}

// ---- With the text in view ---------------------------------------------------------------------------------------

TEST(Questionnaire2, MontreTexteEtQuestionsEnsemble)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = OuvrirQuestionnaire1(banc, 1);
    EXPECT_EQ(écran.Caption, u"Questionnaire / Léa");
    EXPECT_TRUE(écran.rtfTexte.Visible && écran.frameQuestions.Visible && écran.lblConseil.Visible &&
                écran.cmdInitialise.Visible);
    EXPECT_FALSE(écran.frameConsigne.Visible || écran.cmdOk.Visible);
    EXPECT_GT(écran.frameQuestions.Width, 0);
    EXPECT_GT(écran.frameQuestions.Height, 0);
    EXPECT_EQ(écran.frameQuestions.Left, écran.rtfTexte.Left + 1000);
    EXPECT_EQ(écran.frameQuestions.Top, 1000);
    Répondre(écran, {0});
    écran.cmdVérifier.Cliquer();
    EXPECT_EQ(banc.Note(1), u"10");
    EXPECT_EQ(banc.Note(0), u"");
}

TEST(Questionnaire2, SansQuestionnaireLeDitEtSeFerme)
{
    Banc banc;
    banc.AnnoncerBoîte(Texte{SansQuestionnaire});
    auto& écran = OuvrirQuestionnaire1(banc, 1);
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(écran.Caption, u"Questionnaire");
}

TEST(Questionnaire2, LeCadreSuitLaSouris)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = OuvrirQuestionnaire1(banc, 1);
    auto& cadre = écran.frameQuestions;
    cadre.MouseMove(300, 200);
    cadre.MouseMove(900, 900); // the drag is under way: its start counts
    cadre.DragDrop(nullptr, 5000, 4000);
    EXPECT_EQ(cadre.Left, 4700);
    EXPECT_EQ(cadre.Top, 3800);
    EXPECT_EQ(banc.état.SourisX, 0);
    EXPECT_EQ(banc.état.SourisY, 0);

    cadre.MouseMove(100, 100);
    cadre.DragDrop(&écran.rtfTexte, 2000, 1000);
    EXPECT_EQ(cadre.Left, écran.rtfTexte.Left + 1900);
    EXPECT_EQ(cadre.Top, écran.rtfTexte.Top + 900);

    const int gauche = cadre.Left;
    cadre.MouseMove(100, 100);
    cadre.DragDrop(&cadre, 150, 80); // dropped on itself
    EXPECT_EQ(cadre.Left, gauche + 50);
}

TEST(Questionnaire2, QuestionsDisparuesReviennent)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = OuvrirQuestionnaire1(banc, 1);
    écran.frameQuestions.MouseMove(10, 10);
    écran.frameQuestions.DragDrop(nullptr, 90000, 90000);
    écran.cmdInitialise.Cliquer();
    EXPECT_EQ(écran.frameQuestions.Left, écran.rtfTexte.Left + 1000);
    EXPECT_EQ(écran.frameQuestions.Top, 1000);
    EXPECT_TRUE(écran.frameQuestions.Visible);
}

TEST(Questionnaire2, LeCadreDuPremierNeSeDéplacePas)
{
    Banc banc;
    Questionnaire(banc, 1);
    auto& écran = Lu(banc);
    EXPECT_FALSE(écran.frameQuestions.MouseMove);
    EXPECT_FALSE(écran.frameQuestions.DragDrop);
}

} // namespace tirelune
