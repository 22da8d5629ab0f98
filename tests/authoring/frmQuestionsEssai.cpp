#include "authoring/frmQuestions.h"

#include "core/FichierChamps.h"
#include "tests/support/Banc.h"

namespace tirelune {

namespace {

using Champs = std::vector<Texte>;

// A question of the file: its text, its choices, the flags as one digit each.
Champs QuestionEcrite(const Texte& texte, const Champs& choix, VueTexte drapeaux)
{
    Champs champs{texte};
    for (std::size_t i = 0; i < ChoixParQuestion; ++i) {
        champs.push_back(choix[i]);
        champs.emplace_back(1, drapeaux[i]);
    }
    return champs;
}

const Champs Proposés{u"C'est vrai.", u"C'est faux.", u"Le texte ne le dit pas.", u"", u""};
const Champs AuDépart{u"C'est vrai.", u"C'est faux.", u"Le texte ne le dit pas.", u"Le texte ne le dit pas.",
                      u"Le texte ne le dit pas."};

Champs Numérotées(int combien)
{
    Champs champs;
    for (int i = 1; i <= combien; ++i) {
        const auto une = QuestionEcrite(u"Q" + EnTexte(i), Proposés, u"10000");
        champs.insert(champs.end(), une.begin(), une.end());
    }
    return champs;
}

class Questions : public ::testing::Test {
protected:
    Questions() { banc.état.NomFichierTexte = DepuisChemin(banc.dossier / "Le chat.rtf"); }

    Banc banc;

    frmQuestions& OuvrirQuestions() { return banc.Ouvrir<frmQuestions>(); }
    frmQuestions& OuvrirAvec(const Champs& champs)
    {
        banc.EcrireChamps("Le chat.qst", champs);
        return OuvrirQuestions();
    }
    [[nodiscard]] Champs Enregistrées() const
    {
        return DécouperChamps(banc.Lire("Le chat.qst").value_or("\"aucun fichier\""));
    }
    static Champs ChoixMontrés(frmQuestions& écran)
    {
        Champs textes;
        for (auto& choix : écran.txtChoix)
            textes.push_back(choix.Text);
        return textes;
    }
    static void AllerÀ(frmQuestions& écran, int numéro)
    {
        while (Compte(écran.lblNuméro) < numéro)
            écran.cmdSuivante.Cliquer();
    }
};

} // namespace

TEST_F(Questions, LégendesEtBulles)
{
    auto& écran = OuvrirQuestions();
    EXPECT_EQ(écran.Caption, u"Q.C.M. (12 questions au maximum) / " + DepuisChemin(banc.dossier / "Le chat.qst"));
    EXPECT_EQ(écran.Label1.Caption, u"Question N° ");
    EXPECT_EQ(écran.cmdPrécédente.Caption, u"Question &précédente");
    EXPECT_EQ(écran.cmdSuivante.Caption, u"Question &suivante");
    EXPECT_EQ(écran.cmdSuivante.ToolTipText, u" Pas plus de 12 questions ! ");
    EXPECT_EQ(écran.cmdInsérer.Caption, u"&Insérer une question");
    EXPECT_EQ(écran.cmdInsérer.ToolTipText, u" ... s'il y a moins de 12 questions ! ");
    EXPECT_EQ(écran.cmdSupprimer.Caption, u"Suppri&mer une question");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_EQ(écran.txtChoix(0).ToolTipText, u" Vous pouvez modifier ou effacer ces libellés. ");
    EXPECT_EQ(écran.Focus(), &écran.txtQuestion);
}

TEST_F(Questions, LeFichierPrendLeNomDuTexteQuelleQueSoitSonExtension)
{
    for (const auto& [texte, attendu] : std::vector<std::pair<Texte, Texte>>{
             {u"/t/Le chat.rtf", u"/t/Le chat.qst"}, {u"/t/a.txt", u"/t/a.qst"}, {u"/t/a.html", u"/t/a.hqst"}}) {
        Banc autre;
        autre.état.NomFichierTexte = texte;
        autre.Ouvrir<frmQuestions>();
        EXPECT_EQ(autre.état.NomFichierQuestions, attendu);
    }
}

TEST_F(Questions, UnNouveauQuestionnaireMontreTroisFoisLeTexteNeLeDitPas)
{
    auto& écran = OuvrirQuestions();
    EXPECT_EQ(écran.lblNuméro.Caption, u"1");
    EXPECT_EQ(écran.txtQuestion.Text, u"");
    EXPECT_EQ(ChoixMontrés(écran), AuDépart);

    écran.txtQuestion.Saisir(u" Où dort le chat ? ");
    écran.chkRéponse(1).Cliquer();
    écran.cmdSuivante.Cliquer();
    EXPECT_EQ(Enregistrées(), QuestionEcrite(u"Où dort le chat ?", AuDépart, u"01000"));
    EXPECT_EQ(écran.lblNuméro.Caption, u"2");
    EXPECT_EQ(ChoixMontrés(écran), Proposés);
    EXPECT_EQ(écran.chkRéponse(1).Value, 0);
    EXPECT_EQ(écran.Focus(), &écran.txtQuestion);
}

TEST_F(Questions, UnFichierMontreSaPremièreQuestion)
{
    auto& écran = OuvrirAvec(QuestionEcrite(u" Un\r\ndeux ", {u"a ", u"b", u"", u"d", u"e"}, u"10010"));
    EXPECT_EQ(écran.txtQuestion.Text, u"Un\r\ndeux");
    EXPECT_EQ(ChoixMontrés(écran), (Champs{u"a", u"b", u"", u"d", u"e"}));
    EXPECT_EQ(écran.chkRéponse(0).Value, 1);
    EXPECT_EQ(écran.chkRéponse(1).Value, 0);
    EXPECT_EQ(écran.chkRéponse(3).Value, 1);
}

TEST_F(Questions, SansTexteDeQuestionLaSuivanteNeVientPas)
{
    auto& écran = OuvrirQuestions();
    écran.txtQuestion.Saisir(u"  ");
    écran.cmdSuivante.SetFocus();
    écran.cmdSuivante.Cliquer();
    EXPECT_EQ(écran.lblNuméro.Caption, u"1");
    EXPECT_FALSE(banc.Existe("Le chat.qst"));
    EXPECT_EQ(écran.Focus(), &écran.txtQuestion);
}

TEST_F(Questions, DeLaDouzièmeLaSuivanteEnregistreEtReste)
{
    auto& écran = OuvrirAvec(Numérotées(12));
    AllerÀ(écran, 12);
    écran.txtQuestion.Saisir(u"Douze");
    écran.cmdSuivante.Cliquer();
    EXPECT_EQ(écran.lblNuméro.Caption, u"12");
    EXPECT_EQ(écran.txtQuestion.Text, u"Douze");
    EXPECT_EQ(Enregistrées().at(11 * ChampsParQuestion), u"Douze");
}

TEST_F(Questions, DeLaPremièreLaPrécédenteNeFaitRien)
{
    auto& écran = OuvrirQuestions();
    écran.txtQuestion.Saisir(u"Une");
    écran.cmdPrécédente.Cliquer();
    EXPECT_EQ(écran.lblNuméro.Caption, u"1");
    EXPECT_FALSE(banc.Existe("Le chat.qst"));
}

TEST_F(Questions, UneQuestionVidéeQuiEstQuittéeSEnVaDuFichier)
{
    auto& écran = OuvrirAvec(Numérotées(3));
    AllerÀ(écran, 2);
    écran.txtQuestion.Saisir(u"");
    écran.cmdPrécédente.Cliquer();
    EXPECT_EQ(écran.lblNuméro.Caption, u"1");
    const auto champs = Enregistrées();
    ASSERT_EQ(champs.size(), 2U * ChampsParQuestion);
    EXPECT_EQ(champs[0], u"Q1");
    EXPECT_EQ(champs[ChampsParQuestion], u"Q3");
    écran.cmdQuitter.Cliquer();
    auto& rouvert = OuvrirQuestions();
    AllerÀ(rouvert, 2);
    EXPECT_EQ(rouvert.txtQuestion.Text, u"Q3");
}

TEST_F(Questions, InsérerDansUneGrillePleineEstRefusé)
{
    auto& écran = OuvrirAvec(Numérotées(12));
    banc.AnnoncerBoîte(u"Vous devez supprimer une question avant l'insertion.");
    écran.cmdInsérer.Cliquer();
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Titre, u"12 questions");
    EXPECT_EQ(écran.txtQuestion.Text, u"Q1");
}

TEST_F(Questions, InsérerAvecOnzeQuestionsPousseLaOnzièmeEnDernier)
{
    auto& écran = OuvrirAvec(Numérotées(11));
    AllerÀ(écran, 3);
    écran.chkRéponse(2).Cliquer();
    écran.cmdInsérer.Cliquer();
    EXPECT_EQ(écran.lblNuméro.Caption, u"3");
    EXPECT_EQ(écran.txtQuestion.Text, u"");
    EXPECT_EQ(ChoixMontrés(écran), Proposés);
    EXPECT_EQ(écran.chkRéponse(0).Value, 0);
    EXPECT_EQ(écran.chkRéponse(2).Value, 0);
    EXPECT_EQ(écran.fgQuestions.TextMatrix(11, ColonneQuestion), u"Q11");
    EXPECT_EQ(écran.fgQuestions.TextMatrix(3, ColonneQuestion), u"Q3");
    EXPECT_EQ(écran.fgQuestions.TextMatrix(3, ColonneDrapeau(2)), u"0") << "ce qui n'était pas rangé est perdu";
    EXPECT_EQ(écran.fgQuestions.TextMatrix(2, ColonneQuestion), u"");
}

TEST_F(Questions, SupprimerLaDernièreLaisseUnEcranVideSousLeMêmeNuméro)
{
    auto& écran = OuvrirAvec(Numérotées(2));
    AllerÀ(écran, 2);
    écran.cmdSupprimer.Cliquer();
    EXPECT_EQ(écran.lblNuméro.Caption, u"2");
    EXPECT_EQ(écran.txtQuestion.Text, u"");
    EXPECT_EQ(ChoixMontrés(écran), Champs(5));
    EXPECT_EQ(écran.Focus(), &écran.txtQuestion);
    EXPECT_EQ(Enregistrées().size(), 2U * ChampsParQuestion) << "rien n'est encore enregistré";
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(Enregistrées().size(), 1U * ChampsParQuestion);
}

TEST_F(Questions, SupprimerFaitRemonterLesSuivantes)
{
    auto& écran = OuvrirAvec(Numérotées(12));
    écran.cmdSupprimer.Cliquer();
    EXPECT_EQ(écran.txtQuestion.Text, u"Q2");
    EXPECT_EQ(écran.fgQuestions.TextMatrix(10, ColonneQuestion), u"Q12");
    EXPECT_EQ(écran.fgQuestions.TextMatrix(11, ColonneQuestion), u"");
    EXPECT_EQ(écran.fgQuestions.TextMatrix(11, ColonneChoix(0)), u"");
}

TEST_F(Questions, UnChoixEffacéRevientAvecLaSuivanteMaisPasAvecLaPrécédente)
{
    auto& écran = OuvrirAvec(Numérotées(3));
    AllerÀ(écran, 2);
    for (int i : {0, 1, 2, 3})
        écran.txtChoix(i).Saisir(u"");
    écran.cmdPrécédente.Cliquer();
    écran.cmdSuivante.Cliquer();
    EXPECT_EQ(ChoixMontrés(écran), Proposés);
    for (int i : {0, 1, 2})
        écran.txtChoix(i).Saisir(u"");
    écran.cmdSuivante.Cliquer();
    écran.cmdPrécédente.Cliquer();
    EXPECT_EQ(ChoixMontrés(écran), Champs(5));
}

TEST_F(Questions, QuitterEtLaCroixEnregistrent)
{
    auto& écran = OuvrirQuestions();
    écran.txtQuestion.Saisir(u"Une");
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(Enregistrées(), QuestionEcrite(u"Une", AuDépart, u"00000"));
    auto& encore = OuvrirQuestions();
    encore.txtQuestion.Saisir(u"");
    encore.FermerParCroix();
    EXPECT_FALSE(encore.EstChargé());
    EXPECT_EQ(banc.Lire("Le chat.qst"), "");
}

TEST_F(Questions, LeFichierEstÀLOctetPrès)
{
    auto& écran = OuvrirQuestions();
    écran.txtQuestion.Saisir(u"Où ?");
    écran.txtChoix(3).Saisir(u"");
    écran.txtChoix(4).Saisir(u"L'œuf\u2026");
    écran.chkRéponse(4).Cliquer();
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Lire("Le chat.qst"),
              "\"O\xF9 ?\"\r\n\"C'est vrai.\"\r\n\"0\"\r\n\"C'est faux.\"\r\n\"0\"\r\n\"Le texte ne "
              "le dit pas.\"\r\n\"0\"\r\n\"\"\r\n\"0\"\r\n\"L'\x9Cuf\x85\"\r\n\"1\"\r\n");
}

TEST_F(Questions, CeQueLeFichierNePeutPasGarderEstRefuséOùCEstTapé)
{
    auto& écran = OuvrirQuestions();
    banc.AnnoncerBoîte(u"Le guillemet droit (\") n'est pas possible ici.");
    EXPECT_FALSE(écran.txtQuestion.Saisir(u"dit \"oui\""));
    banc.AnnoncerBoîte(u"Ce caractère n'est pas possible ici : le fichier ne peut pas le garder.");
    EXPECT_FALSE(écran.txtChoix(0).Saisir(u"Ω"));
    EXPECT_TRUE(écran.txtChoix(0).Saisir(u"*")) << "un questionnaire n'a pas de marque";
    EXPECT_EQ(écran.txtQuestion.Text, u"");
}

TEST_F(Questions, UnEnregistrementManquéEstDitEtLesQuestionsRestent)
{
    auto& écran = OuvrirAvec(Numérotées(2));
    écran.txtQuestion.Saisir(u"Changée");
    bool panne = true;
    banc.plateforme.échecEcriture = [&](const Chemin&) {
        return panne ? std::optional{EchecFichier::Ecriture} : std::nullopt;
    };
    const Texte message =
        u"Impossible d'enregistrer le fichier\n" + DepuisChemin(banc.dossier / "Le chat.qst") + u"\n…";
    banc.AnnoncerBoîte(message);
    écran.cmdSuivante.Cliquer();
    EXPECT_EQ(écran.lblNuméro.Caption, u"2");
    banc.AnnoncerBoîte(message);
    écran.cmdPrécédente.Cliquer(); // told once, though it saves twice
    EXPECT_EQ(écran.txtQuestion.Text, u"Changée");

    banc.AnnoncerBoîte(message);
    banc.AnnoncerBoîte(u"Tout n'a pas pu être enregistré.\nSouhaitez-vous quitter quand même ?", Réponse::Non);
    écran.cmdQuitter.Cliquer();
    EXPECT_TRUE(écran.EstChargé());
    EXPECT_EQ(banc.plateforme.boîtesMontrées.back().Danger, Perte::ParOui);

    panne = false;
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(Enregistrées().front(), u"Changée");
}

TEST_F(Questions, QuitterQuandMêmeAprèsUnEchecFerme)
{
    auto& écran = OuvrirQuestions();
    banc.plateforme.échecEcriture = [](const Chemin&) { return std::optional{EchecFichier::Ouverture}; };
    banc.AnnoncerBoîte(u"Impossible d'enregistrer le fichier\n…");
    banc.AnnoncerBoîte(u"Tout n'a pas pu être enregistré.…", Réponse::Oui);
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
}

TEST_F(Questions, CeQuiDépasseDouzeQuestionsEstMisDeCôtéUneFois)
{
    auto& écran = OuvrirAvec(Numérotées(13));
    const auto ancien = banc.Lire("Le chat.qst");
    EXPECT_EQ(écran.txtQuestion.Text, u"Q1");
    banc.AnnoncerBoîte(u"Ce qui n'avait pas pu être lu en entier est mis de côté. Vous le trouverez dans le fichier\n" +
                       DepuisChemin(banc.dossier / "Le chat.qst.abîmé1") + u"\n");
    écran.cmdSuivante.Cliquer();
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Lire("Le chat.qst.abîmé1"), ancien);
    EXPECT_FALSE(banc.Existe("Le chat.qst.abîmé2"));
    EXPECT_EQ(Enregistrées().size(), 12U * ChampsParQuestion);
}

TEST_F(Questions, UnFichierIllisibleNEstPasRemplacé)
{
    std::filesystem::create_directories(banc.dossier / "Le chat.qst" / "plein");
    auto& écran = OuvrirQuestions();
    EXPECT_EQ(ChoixMontrés(écran), AuDépart);
    écran.txtQuestion.Saisir(u"Une");
    banc.AnnoncerBoîte(u"Impossible d'enregistrer le fichier\n…");
    banc.AnnoncerBoîte(u"Tout n'a pas pu être enregistré.…", Réponse::Oui);
    écran.cmdQuitter.Cliquer();
    EXPECT_TRUE(std::filesystem::is_directory(banc.dossier / "Le chat.qst" / "plein"));
}

} // namespace tirelune
