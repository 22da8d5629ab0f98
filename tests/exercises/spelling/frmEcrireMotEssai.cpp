#include "exercises/spelling/frmEcrireMot.h"

#include "tests/support/Banc.h"
#include "tests/support/Notices.h"

namespace tirelune {

namespace {

constexpr int IndexEcrireMot = 23;

class EcrireMotEssai : public ::testing::Test {
protected:
    Banc banc;
    Texte texte = u"Le chat dort. La souris danse sur la table ! Viendra-t-il ?";

    // The words come in the order of the dictionary.
    frmEcrireMot& OuvrirAvec(std::vector<Texte> mots)
    {
        banc.ChargerTexte(texte);
        banc.Vocabulaire(std::move(mots));
        banc.Index(IndexEcrireMot);
        banc.plateforme.toujours = [] { return 0.0; };
        return banc.Ouvrir<frmEcrireMot>();
    }
    Texte PhraseDe(VueTexte mot) { return OuvrirAvec({Texte{mot}}).lblPhrase.Caption; }
    Texte PhraseTrouée(VueTexte mot)
    {
        auto& écran = OuvrirAvec({Texte{mot}});
        écran.cmdCommencer.Cliquer();
        return écran.lblPhrase.Caption;
    }
    static void Répondre(frmEcrireMot& écran, VueTexte réponse)
    {
        écran.cmdCommencer.Cliquer();
        ASSERT_TRUE(écran.txtRéponse.Saisir(Texte{réponse}));
        écran.cmdOk.Cliquer();
    }
};

} // namespace

TEST_F(EcrireMotEssai, AuDébutLaPhraseEstEntière)
{
    auto& écran = OuvrirAvec({u"souris"});
    EXPECT_EQ(écran.Caption, u"Ecrire un mot / Léa");
    EXPECT_EQ(écran.lblConsigne.Caption,
              u"Lis attentivement cette phrase. Un mot va s'effacer : tu devras le copier sans aucune erreur.");
    EXPECT_EQ(écran.lblPhrase.Caption, u"La souris danse sur la table !");
    EXPECT_EQ(écran.lblRéf.Caption, écran.lblPhrase.Caption());
    EXPECT_EQ(écran.lblPhrase.BackColor, Blanc);
    EXPECT_EQ(écran.lblPhrase.ForeColor, Bleu);
    EXPECT_EQ(écran.lblMot.Caption, u"souris");
    EXPECT_EQ(écran.cmbMots.ListCount(), 0);
    EXPECT_EQ(écran.cmdCommencer.Caption, u"&Commencer");
    EXPECT_EQ(écran.frameMot.Caption, u"Ecris le mot caché dans cette zone");
    EXPECT_EQ(écran.frameMot.BackColor, Bleu);
    EXPECT_EQ(écran.frameMot.ForeColor, Cyan);
    EXPECT_EQ(écran.cmdOk.Caption, u"&Ok");
    EXPECT_FALSE(écran.frameMot.Visible);
    EXPECT_FALSE(écran.lblCorrigé.Visible);
    VérifierPointsDeDépart(écran.lblPoints);
    EXPECT_EQ(écran.Focus(), &écran.cmdCommencer);
}

TEST_F(EcrireMotEssai, SansVocabulaireLeCadreDeSortieCouvreLEcran)
{
    for (const auto& mots : {std::vector<Texte>{}, std::vector<Texte>{u" ", u"\r\n"}}) {
        auto& écran = OuvrirAvec(mots);
        EXPECT_TRUE(écran.notice.Cadre.Visible);
        EXPECT_EQ(écran.notice.Cadre.Caption, u"Pas de mot sélectionné");
        EXPECT_EQ(écran.notice.Phrase.Caption, u"Il doit y avoir au moins 1 mot pour lancer l'exercice. ");
        EXPECT_EQ(écran.notice.Bouton.Caption, u"&Abandonner");
        EXPECT_EQ(banc.plateforme.tirages, 0);
        écran.notice.Bouton.Cliquer();
        EXPECT_FALSE(écran.EstChargé());
        EXPECT_EQ(banc.Note(IndexEcrireMot), u"");
    }
}

TEST_F(EcrireMotEssai, UnSeulMotFaitUneSeulePhrase)
{
    auto& écran = OuvrirAvec({u"souris"});
    Répondre(écran, u"souris");
    EXPECT_EQ(écran.cmdCommencer.Caption, u"&Quitter");
    EXPECT_TRUE(écran.cmdCommencer.Gras);
    écran.cmdCommencer.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexEcrireMot), u"10");
}

TEST_F(EcrireMotEssai, MotDuDébutPrendSaPhraseDepuisLaPremièreLettre)
{
    EXPECT_EQ(PhraseDe(u"Le"), u"Le chat dort.");
    EXPECT_EQ(PhraseTrouée(u"Le"), u"________ chat dort.");
}

TEST_F(EcrireMotEssai, PhraseVaJusquAuSigneOuALaFinDuTexte)
{
    EXPECT_EQ(PhraseDe(u"dort"), u"Le chat dort.");
    EXPECT_EQ(PhraseDe(u"danse"), u"La souris danse sur la table !");
    EXPECT_EQ(PhraseDe(u"Viendra"), u"Viendra-t-il ?");
    texte = u"Il pleut. Le chat dort";
    EXPECT_EQ(PhraseDe(u"dort"), u"Le chat dort");
    texte = u"Il dort ; il rêve : c'est bien.";
    EXPECT_EQ(PhraseDe(u"rêve"), u"Il dort ; il rêve : c'est bien.");
}

TEST_F(EcrireMotEssai, MotDePlusieursPhrasesPrendToujoursLaPremière)
{
    texte = u"Un chat noir. Un chat blanc. Un chat gris.";
    auto& écran = OuvrirAvec({u"chat", u"chat"});
    EXPECT_EQ(écran.lblPhrase.Caption, u"Un chat noir.");
    Répondre(écran, u"chat");
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.lblPhrase.Caption, u"Un chat noir.");
}

TEST_F(EcrireMotEssai, MotEntierPasseAvantUnMorceauDeMot)
{
    texte = u"Alors il dort. Voici de l'or pur. Encore.";
    EXPECT_EQ(PhraseDe(u"or"), u"Voici de l'or pur.");
    EXPECT_EQ(PhraseTrouée(u"or"), u"Voici de l'________ pur.");
    texte = u"Alors il dort.";
    EXPECT_EQ(PhraseTrouée(u"or"), u"Al________s il dort.");
    texte = u"Le cœur noir. Le c bat.";
    EXPECT_EQ(PhraseDe(u"c"), u"Le c bat.");
}

TEST_F(EcrireMotEssai, CapitaleEtAccentComptent)
{
    texte = u"Où va-t-il ? Ici ou là.";
    EXPECT_EQ(PhraseDe(u"ou"), u"Ici ou là.");
}

TEST_F(EcrireMotEssai, FinDeLigneDisparaitSansCollerDeuxMots)
{
    texte = u"Fin.\r\nLe petit\r\nchat \r\ndort\tbien.";
    EXPECT_EQ(PhraseDe(u"chat"), u"Le petit chat dort bien.");
}

TEST_F(EcrireMotEssai, AbréviationCoupeLaPhrase)
{
    texte = u"Hier, M. Dupont dormait bien.";
    EXPECT_EQ(PhraseDe(u"Dupont"), u"Dupont dormait bien.");
    EXPECT_EQ(PhraseDe(u"Hier"), u"Hier, M.");
}

TEST_F(EcrireMotEssai, SigneDansLeMotNeLeCoupePas)
{
    texte = u"Hier, M. Dupont dormait bien. Il rêvait.";
    EXPECT_EQ(PhraseDe(u"M. Dupont"), u"Hier, M. Dupont dormait bien.");
    EXPECT_EQ(PhraseTrouée(u"M. Dupont"), u"Hier, ________ dormait bien.");
    texte = u"Il a des pommes, des poires, etc. Puis il dort.";
    EXPECT_EQ(PhraseDe(u"etc."), u"Il a des pommes, des poires, etc.");
}

TEST_F(EcrireMotEssai, PhraseSansFinSeMontreAutourDuMot)
{
    texte = Texte{};
    for (int i = 0; i < 1000; ++i)
        texte += u"mot" + EnTexte(i) + u" ";
    const auto phrase = PhraseDe(u"mot500");
    EXPECT_LT(phrase.size(), 600U);
    EXPECT_TRUE(phrase.starts_with(u"… mot")) << EnUtf8(phrase);
    EXPECT_TRUE(phrase.ends_with(u" …")) << EnUtf8(phrase);
    EXPECT_NE(phrase.find(u" mot500 "), Texte::npos);
    EXPECT_TRUE(PhraseDe(u"mot0").starts_with(u"mot0 mot1 "));
    EXPECT_TRUE(PhraseDe(u"mot999").ends_with(u" mot999"));
}

TEST_F(EcrireMotEssai, LeTrouEstToujoursDeHuitTraits)
{
    EXPECT_EQ(PhraseTrouée(u"la"), u"La souris danse sur ________ table !");
    EXPECT_EQ(PhraseTrouée(u"souris"), u"La ________ danse sur la table !");
    EXPECT_EQ(PhraseTrouée(u"souris danse"), u"La ________ sur la table !");
}

TEST_F(EcrireMotEssai, CommencerDonneLaMainPourEcrire)
{
    auto& écran = OuvrirAvec({u"souris"});
    écran.cmdCommencer.Cliquer();
    EXPECT_FALSE(écran.cmdCommencer.Visible);
    EXPECT_TRUE(écran.frameMot.Visible);
    EXPECT_FALSE(écran.txtRéponse.Locked);
    EXPECT_EQ(écran.Focus(), &écran.txtRéponse);
    EXPECT_EQ(écran.lblRéf.Caption, u"La souris danse sur la table !");
}

TEST_F(EcrireMotEssai, RéponseJusteGagneUnPoint)
{
    auto& écran = OuvrirAvec({u"chat", u"souris"});
    Répondre(écran, u"chat");
    EXPECT_EQ(écran.lblCorrigé.Caption, u"C'est très bien !");
    EXPECT_TRUE(écran.lblCorrigé.Visible);
    EXPECT_EQ(écran.lblCorrigé.ForeColor, Rouge);
    EXPECT_EQ(écran.lblCorrigé.BackColor, Blanc);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_TRUE(écran.txtRéponse.Locked);
    EXPECT_TRUE(écran.cmdCommencer.Visible);
    EXPECT_EQ(écran.cmdCommencer.Caption, u"Suivant");
    EXPECT_FALSE(écran.cmdCommencer.Gras);
    EXPECT_EQ(écran.Focus(), &écran.cmdCommencer);
}

TEST_F(EcrireMotEssai, RéponseFausseMontreLeMot)
{
    texte = u"Cet été, Zoé dort.";
    for (const auto fausse : {u"ete", u"Eté", u"été,", u"", u"é té"}) {
        auto& écran = OuvrirAvec({u"été", u"été"});
        Répondre(écran, fausse);
        EXPECT_EQ(écran.lblCorrigé.Caption, u"été");
        EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
        EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    }
}

TEST_F(EcrireMotEssai, BlancsAutourDeLaRéponseSontPardonnés)
{
    auto& écran = OuvrirAvec({u"souris "});
    Répondre(écran, u"  souris ");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
}

TEST_F(EcrireMotEssai, EntréeVautOkEtNeCompteQuUneFois)
{
    auto& écran = OuvrirAvec({u"chat", u"souris"});
    écran.cmdCommencer.Cliquer();
    écran.txtRéponse.Saisir(u"chat");
    écran.txtRéponse.Taper({.Caractère = u'\r', .Code = Touche::Entrée});
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    écran.txtRéponse.Taper({.Caractère = u'\r', .Code = Touche::Entrée});
    écran.cmdOk.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"1");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"1");
    EXPECT_FALSE(écran.txtRéponse.Saisir(u"autre"));
}

TEST_F(EcrireMotEssai, SuivantRepartDUnePhraseEntière)
{
    auto& écran = OuvrirAvec({u"chat", u"souris"});
    Répondre(écran, u"chien");
    écran.cmdCommencer.Cliquer();
    EXPECT_EQ(écran.cmdCommencer.Caption, u"&Commencer");
    EXPECT_TRUE(écran.cmdCommencer.Visible);
    EXPECT_FALSE(écran.frameMot.Visible);
    EXPECT_FALSE(écran.lblCorrigé.Visible);
    EXPECT_EQ(écran.txtRéponse.Text, u"");
    EXPECT_EQ(écran.lblPhrase.Caption, u"La souris danse sur la table !");
    Répondre(écran, u"souris");
    EXPECT_EQ(écran.cmdCommencer.Caption, u"&Quitter");
    écran.cmdCommencer.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexEcrireMot), u"5");
}

TEST_F(EcrireMotEssai, TousLesMotsPassentUneFoisDansLOrdreDuTirage)
{
    texte = u"Un loup, un ours, un lynx.";
    banc.ChargerTexte(texte);
    banc.Vocabulaire({u"loup", u"lynx", u"ours"});
    banc.Index(IndexEcrireMot);
    banc.Hasards({0.99, 0.0, 0.5});
    auto& écran = banc.Ouvrir<frmEcrireMot>();
    for (const auto mot : {u"ours", u"loup", u"lynx"}) {
        EXPECT_EQ(écran.lblMot.Caption, mot);
        Répondre(écran, mot);
        if (écran.cmdCommencer.Caption == u"Suivant") {
            écran.cmdCommencer.Cliquer();
        }
    }
    EXPECT_EQ(écran.lblPoints(0).Caption, u"3");
}

TEST_F(EcrireMotEssai, LaCroixNEnregistreRien)
{
    auto& écran = OuvrirAvec({u"chat", u"souris"});
    Répondre(écran, u"chat");
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(IndexEcrireMot), u"");
    EXPECT_EQ(banc.Choix().rtfTexte.Text(), texte);
}

} // namespace tirelune
