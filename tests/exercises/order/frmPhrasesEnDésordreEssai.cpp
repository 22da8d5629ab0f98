#include "exercises/order/frmPhrasesEnDésordre.h"

#include "tests/support/Banc.h"

namespace tirelune {

namespace {

constexpr int PhrasesEnDésordre = 20;

class PhrasesEnDésordreEssai : public ::testing::Test {
protected:
    Banc banc;
    Texte texte = u"Titre. Zoé sort ! Le chien la suit : il court. Papa rit ; Maman aussi. Puis ils rentrent. Fin.";

    frmPhrasesEnDésordre& OuvrirAvec(std::initializer_list<double> tirages)
    {
        banc.ChargerTexte(texte);
        banc.Index(PhrasesEnDésordre);
        banc.Hasards(tirages);
        return banc.Ouvrir<frmPhrasesEnDésordre>();
    }
    static std::vector<Texte> Phrases(const frmPhrasesEnDésordre& écran)
    {
        std::vector<Texte> phrases;
        for (int i = 0; i < 6; ++i) {
            if (écran.lblPhrase(i).Visible)
                phrases.push_back(écran.lblPhrase(i).Caption);
        }
        return phrases;
    }
    static void Remettre(frmPhrasesEnDésordre& écran)
    {
        const auto ordre = écran.cmbOrdre.Eléments();
        for (int i = 0; i < écran.cmbOrdre.ListCount(); ++i) {
            const auto phrases = Phrases(écran);
            const auto place = std::find(phrases.begin() + i, phrases.end(), ordre[static_cast<std::size_t>(i)]);
            const auto de = static_cast<int>(place - phrases.begin());
            if (de == i)
                continue;
            écran.lblPhrase(de).Cliquer();
            écran.lblPhrase(i).Cliquer();
        }
    }
    // Wrong in its last two sentences.
    static void SeTromper(frmPhrasesEnDésordre& écran)
    {
        const int dernière = écran.cmbOrdre.ListCount() - 1;
        Remettre(écran);
        écran.lblPhrase(dernière).Cliquer();
        écran.lblPhrase(dernière - 1).Cliquer();
        écran.cmdQuitter.Cliquer();
    }
};

} // namespace

TEST_F(PhrasesEnDésordreEssai, TextesEtCouleursDuDépart)
{
    auto& écran = OuvrirAvec({0.0});
    EXPECT_EQ(écran.Caption, u"Phrases en désordre / Léa");
    EXPECT_EQ(écran.lblConsigne.Caption,
              u"Quand tu cliques sur une phrase, elle devient jaune. Tu n'as plus qu'à cliquer à l'endroit où tu veux "
              u"placer cette phrase et remettre ainsi le passage dans le bon ordre petit à petit.");
    EXPECT_EQ(écran.lblPoints(0).Caption, u"12");
    EXPECT_EQ(écran.lblPoints(1).Caption, u"12");
    EXPECT_EQ(écran.lblPoints(2).Caption, u" / ");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(écran.lblPoints(i).ToolTipText, u" Chaque fois que tu te trompes, tu perds 3 points. ");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"J'ai &fini");
    EXPECT_EQ(écran.lblPhrase(0).BackColor, Blanc);
    EXPECT_FALSE(écran.notice.Cadre.Visible);
}

TEST_F(PhrasesEnDésordreEssai, SixPhrasesSuiventUnPointDansLOrdreAlphabétique)
{
    auto& écran = OuvrirAvec({0.0});
    EXPECT_EQ(écran.cmbOrdre.Eléments(), (std::vector<Texte>{u"Zoé sort !", u"Le chien la suit :", u"il court.",
                                                             u"Papa rit ;", u"Maman aussi.", u"Puis ils rentrent."}));
    EXPECT_EQ(Phrases(écran), (std::vector<Texte>{u"il court.", u"Le chien la suit :", u"Maman aussi.", u"Papa rit ;",
                                                  u"Puis ils rentrent.", u"Zoé sort !"}));
    EXPECT_EQ(écran.cmbMélangées.Eléments(), Phrases(écran));
}

TEST_F(PhrasesEnDésordreEssai, QuatrePhrasesLaissentDeuxEtiquettesCachées)
{
    texte = u"Titre. Un. Deux. Trois. Quatre.";
    auto& écran = OuvrirAvec({0.0});
    EXPECT_EQ(Phrases(écran), (std::vector<Texte>{u"Deux.", u"Quatre.", u"Trois.", u"Un."}));
    EXPECT_FALSE(écran.lblPhrase(4).Visible);
    EXPECT_FALSE(écran.lblPhrase(5).Visible);
    EXPECT_FALSE(écran.notice.Cadre.Visible);
}

TEST_F(PhrasesEnDésordreEssai, AbréviationFinitUnePhrase)
{
    texte = u"Titre. Hier, M. Dupont dort. Il ronfle. Il rêve.";
    EXPECT_EQ(OuvrirAvec({0.0}).cmbOrdre.Eléments(),
              (std::vector<Texte>{u"Hier, M.", u"Dupont dort.", u"Il ronfle.", u"Il rêve."}));
}

TEST_F(PhrasesEnDésordreEssai, SignesQuiSeSuiventFinissentUneSeulePhrase)
{
    texte = u"Titre... Quoi ?! Il dort... Il rêve. Oui. Non";
    EXPECT_EQ(OuvrirAvec({0.0}).cmbOrdre.Eléments(),
              (std::vector<Texte>{u"Quoi ?!", u"Il dort...", u"Il rêve.", u"Oui."}))
        << "ni la fin d'avant, ni ce qui ne finit pas";
}

TEST_F(PhrasesEnDésordreEssai, PhrasesNettoyées)
{
    texte = u"Titre. \r\n\t«L'œuf»,  dit\r\nZoé. Un – deux. Trois. Quatre.";
    EXPECT_EQ(OuvrirAvec({0.0}).cmbOrdre.Eléments(),
              (std::vector<Texte>{u"«L' uf», dit Zoé.", u"Un deux.", u"Trois.", u"Quatre."}));
}

TEST_F(PhrasesEnDésordreEssai, LaPlaceSeTireDansLaPremièreMoitié)
{
    texte = u"Un. Deux. Trois. Quatre. Cinq. Six. Sept. Huit. Neuf. Dix. Onze.";
    auto& écran = OuvrirAvec({0.999});
    EXPECT_EQ(écran.cmbOrdre.List(0), u"Sept.");
}

TEST_F(PhrasesEnDésordreEssai, TropPeuDePhrasesSeTirentANouveau)
{
    texte = u"Un. Deux. Trois. Quatre. Cinq. Un long moment passe encore ici avant la toute dernière de ces phrases.";
    EXPECT_EQ(OuvrirAvec({0.9, 0.5, 0.0}).cmbOrdre.List(0), u"Deux.");
}

TEST_F(PhrasesEnDésordreEssai, SixTiragesSansQuatrePhrasesMontrentLeCadreDeSortie)
{
    texte = u"Un. Deux. Trois.";
    auto& écran = OuvrirAvec({0.0, 0.1, 0.2, 0.3, 0.4, 0.5});
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Pas assez de phrases dans le texte");
    EXPECT_EQ(écran.notice.Phrase.Caption, u"Il doit y avoir au moins 4 phrases pour lancer l'exercice. ");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Abandonner");
    EXPECT_EQ(écran.notice.Cadre.Width, écran.Width());
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(PhrasesEnDésordre), u"");
}

TEST_F(PhrasesEnDésordreEssai, LeSixièmeTirageVientTropTard)
{
    texte = u"Un. Deux. Trois. Quatre. Cinq. Un long moment passe encore ici avant la toute dernière de ces phrases.";
    EXPECT_FALSE(OuvrirAvec({0.9, 0.9, 0.9, 0.9, 0.0}).notice.Cadre.Visible);
    EXPECT_TRUE(OuvrirAvec({0.9, 0.9, 0.9, 0.9, 0.9, 0.0}).notice.Cadre.Visible);
}

TEST_F(PhrasesEnDésordreEssai, TexteVideOuSansSigneMontreLeCadreDeSortie)
{
    for (const auto& sans : {Texte{}, Texte(300, u'a')}) {
        texte = sans;
        EXPECT_TRUE(OuvrirAvec({0.0, 0.0, 0.0, 0.0, 0.0, 0.0}).notice.Cadre.Visible);
    }
}

TEST_F(PhrasesEnDésordreEssai, UnePhraseSeDéplaceParClicsOuEnGlissant)
{
    auto& écran = OuvrirAvec({0.0});
    auto attendues = Phrases(écran);
    écran.lblPhrase(5).Cliquer();
    EXPECT_EQ(écran.lblPhrase(5).BackColor, Jaune);
    EXPECT_EQ(écran.lblPassage.Caption, u"Zoé sort !");
    écran.lblPhrase(0).Cliquer();
    Déplacer(attendues, {5, 0});
    EXPECT_EQ(Phrases(écran), attendues);
    EXPECT_EQ(écran.lblPassage.Caption, u"");
    EXPECT_TRUE(écran.lblPhrase(1).Prendre());
    écran.lblPhrase(1).Lâcher(&écran.lblPhrase(3));
    Déplacer(attendues, {1, 3});
    EXPECT_EQ(Phrases(écran), attendues);
}

TEST_F(PhrasesEnDésordreEssai, LaNoteDescendDeDeuxEtDemiEnDeuxEtDemi)
{
    const std::vector<Texte> notes{u"10", u"7,5", u"5", u"2,5"};
    for (int échecs = 0; échecs <= 3; ++échecs) {
        auto& écran = OuvrirAvec({0.0});
        for (int i = 0; i < échecs; ++i)
            SeTromper(écran);
        EXPECT_EQ(écran.lblPoints(0).Caption, EnTexte(12 - 3 * échecs));
        Remettre(écran);
        écran.cmdQuitter.Cliquer();
        EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
        EXPECT_EQ(écran.lblPhrase(5).BackColor, Bleu);
        EXPECT_EQ(écran.lblPhrase(5).ForeColor, Cyan);
        EXPECT_FALSE(écran.lblPhrase(5).Enabled);
        écran.cmdQuitter.Cliquer();
        EXPECT_FALSE(écran.EstChargé());
        EXPECT_EQ(banc.Note(PhrasesEnDésordre), notes[static_cast<std::size_t>(échecs)]);
    }
}

TEST_F(PhrasesEnDésordreEssai, ChaqueEchecFixeUnePhraseDePlusEnHaut)
{
    auto& écran = OuvrirAvec({0.0});
    SeTromper(écran);
    SeTromper(écran);
    EXPECT_EQ(Phrases(écran), (std::vector<Texte>{u"Zoé sort !", u"Le chien la suit :", u"il court.", u"Maman aussi.",
                                                  u"Papa rit ;", u"Puis ils rentrent."}));
    EXPECT_EQ(écran.lblPhrase(1).BackColor, Cyan);
    EXPECT_EQ(écran.lblPhrase(1).ToolTipText, u" Phrase bien placée ! ");
    EXPECT_EQ(écran.lblPhrase(2).BackColor, Blanc);
    EXPECT_FALSE(écran.lblPhrase(1).Prendre());
}

TEST_F(PhrasesEnDésordreEssai, QuatreEchecsPerdentTout)
{
    auto& écran = OuvrirAvec({0.0});
    for (int i = 0; i < 4; ++i)
        SeTromper(écran);
    EXPECT_EQ(écran.lblPoints(0).Caption, u"0");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_EQ(Phrases(écran), écran.cmbOrdre.Eléments());
    for (auto& phrase : écran.lblPhrase) {
        EXPECT_EQ(phrase.BackColor, Rouge);
        EXPECT_EQ(phrase.ForeColor, Blanc);
        EXPECT_EQ(phrase.ToolTipText, u" Voici le passage remis dans l'ordre. ");
        EXPECT_FALSE(phrase.Enabled);
    }
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(banc.Note(PhrasesEnDésordre), u"0");
}

TEST_F(PhrasesEnDésordreEssai, PhrasesPareillesVontLUnePourLAutre)
{
    texte = u"Titre. Oui. Non. Oui. Non.";
    auto& écran = OuvrirAvec({0.0});
    Remettre(écran);
    écran.cmdQuitter.Cliquer();
    EXPECT_EQ(écran.lblPoints(0).Caption, u"12");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
}

TEST_F(PhrasesEnDésordreEssai, LaCroixNEnregistreRien)
{
    auto& écran = OuvrirAvec({0.0});
    SeTromper(écran);
    écran.FermerParCroix();
    EXPECT_FALSE(écran.EstChargé());
    EXPECT_EQ(banc.Note(PhrasesEnDésordre), u"");
}

} // namespace tirelune
