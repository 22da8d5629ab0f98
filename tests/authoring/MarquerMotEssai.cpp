#include "authoring/MarquerMot.h"

#include "core/EcrivainRtf.h"
#include "followup/frmExercices.h"
#include "tests/support/Banc.h"
#include "tests/support/EcranTexte.h"

namespace tirelune {

namespace {

class MarquerMotEssai : public ::testing::Test {
protected:
    Banc banc;
    RichTextBox& rtfTexte = banc.Ouvrir<EcranTexte>().rtfTexte;

    bool MarquerEn(std::size_t position)
    {
        rtfTexte.SelStart(position);
        return MarquerMot(rtfTexte);
    }
    [[nodiscard]] std::vector<Texte> Marqués() const { return MotsMarqués(rtfTexte.TextRTF()); }
    void Marquer(std::size_t début, std::size_t longueur)
    {
        rtfTexte.Sélectionner(début, longueur);
        rtfTexte.SelStrikeThru = true;
    }
};

using Mots = std::vector<Texte>;

} // namespace

TEST_F(MarquerMotEssai, BarreLeMotSousLeCurseurEtLeLaisseSélectionné)
{
    rtfTexte.Text(u"Le petit chat dort.");
    EXPECT_TRUE(MarquerEn(5));
    EXPECT_EQ(Marqués(), Mots{u"petit"});
    EXPECT_EQ(rtfTexte.SelStart(), 3U);
    EXPECT_EQ(rtfTexte.SelLength(), 5U);
}

TEST_F(MarquerMotEssai, LeDébutDuMotCompteEtSaFinNon)
{
    rtfTexte.Text(u"Le petit chat.");
    EXPECT_TRUE(MarquerEn(3));
    EXPECT_EQ(Marqués(), Mots{u"petit"});
    EXPECT_FALSE(MarquerEn(8));
    EXPECT_EQ(Marqués(), Mots{u"petit"});
}

TEST_F(MarquerMotEssai, MarquerDeuxFoisLaisseLeMotSansMarque)
{
    rtfTexte.Text(u"Le petit chat");
    EXPECT_TRUE(MarquerEn(4));
    EXPECT_TRUE(MarquerEn(4));
    EXPECT_TRUE(Marqués().empty());
}

TEST_F(MarquerMotEssai, UnMotMarquéEnPartiePerdSaMarque)
{
    rtfTexte.Text(u"Le petit chat");
    Marquer(5, 2);
    EXPECT_TRUE(MarquerEn(3));
    EXPECT_TRUE(Marqués().empty());
}

TEST_F(MarquerMotEssai, HorsDUnMotRienNeChangeEtLeCaractèreResteSélectionné)
{
    rtfTexte.Text(u"Oh ! Oui");
    bool changé = false;
    rtfTexte.Change = [&] { changé = true; };
    EXPECT_FALSE(MarquerEn(2));
    EXPECT_EQ(rtfTexte.SelStart(), 2U);
    EXPECT_EQ(rtfTexte.SelLength(), 1U);
    EXPECT_FALSE(MarquerEn(3));
    EXPECT_FALSE(changé);
    EXPECT_TRUE(Marqués().empty());
}

TEST_F(MarquerMotEssai, ALaFinDuTexteIlNYAPasDeMot)
{
    rtfTexte.Text(u"chat");
    EXPECT_FALSE(MarquerEn(4));
    EXPECT_EQ(rtfTexte.SelLength(), 0U);
    rtfTexte.Text(u"");
    EXPECT_FALSE(MarquerEn(0));
}

TEST_F(MarquerMotEssai, UnMotAuDébutDuTexteEstTrouvéDepuisSaFin)
{
    rtfTexte.Text(u"Maison bleue");
    EXPECT_TRUE(MarquerEn(5));
    EXPECT_EQ(rtfTexte.SelStart(), 0U);
    EXPECT_EQ(Marqués(), Mots{u"Maison"});
}

TEST_F(MarquerMotEssai, UnMotQuiFinitLeTexteEstMarquéEntierEtLu)
{
    rtfTexte.Text(u"Il dort");
    EXPECT_TRUE(MarquerEn(6));
    EXPECT_EQ(rtfTexte.SelStart(), 3U);
    EXPECT_EQ(rtfTexte.SelLength(), 4U);
    EXPECT_EQ(Marqués(), Mots{u"dort"});
}

TEST_F(MarquerMotEssai, UnMotDUneLettreSeMarqueCurseurJusteDevant)
{
    rtfTexte.Text(u"Il y a");
    EXPECT_TRUE(MarquerEn(3));
    EXPECT_EQ(Marqués(), Mots{u"y"});
    EXPECT_FALSE(MarquerEn(4));
}

TEST_F(MarquerMotEssai, UnMotAvecTraitDUnionEstMarquéEntier)
{
    rtfTexte.Text(u"un arc-en-ciel rose");
    EXPECT_TRUE(MarquerEn(7));
    EXPECT_EQ(Marqués(), Mots{u"arc-en-ciel"});
}

TEST_F(MarquerMotEssai, LApostropheArrêteLaMarqueDuCôtéDuCurseur)
{
    rtfTexte.Text(u"voici l'école");
    EXPECT_TRUE(MarquerEn(10));
    EXPECT_EQ(Marqués(), Mots{u"école"});
    EXPECT_TRUE(MarquerEn(6));
    EXPECT_EQ(Marqués(), (Mots{u"l", u"école"}));
    EXPECT_FALSE(MarquerEn(7));
}

TEST_F(MarquerMotEssai, UneCapitaleAccentuéeNEstPasDuMot)
{
    rtfTexte.Text(u"Évelyne où");
    EXPECT_FALSE(MarquerEn(0));
    EXPECT_TRUE(MarquerEn(3));
    EXPECT_EQ(Marqués(), Mots{u"velyne"});
    EXPECT_FALSE(MarquerEn(9)); // ù is no letter of words
}

TEST_F(MarquerMotEssai, LettresChiffresEtAccentsFontLesMots)
{
    const Texte mot = u"09azAZàâçéèêëîïôöûü-";
    rtfTexte.Text(u"«" + mot + u"»");
    EXPECT_TRUE(MarquerEn(10));
    EXPECT_EQ(Marqués(), Mots{mot});
}

TEST_F(MarquerMotEssai, LaLigneFinitLeMot)
{
    rtfTexte.Text(u"chat\nchien");
    EXPECT_TRUE(MarquerEn(0));
    EXPECT_TRUE(MarquerEn(6));
    EXPECT_EQ(Marqués(), (Mots{u"chat", u"chien"}));
}

TEST_F(MarquerMotEssai, UneSélectionAgitParSonDébut)
{
    rtfTexte.Text(u"chat noir");
    rtfTexte.Sélectionner(1, 7);
    EXPECT_TRUE(MarquerMot(rtfTexte));
    EXPECT_EQ(Marqués(), Mots{u"chat"});
}

TEST_F(MarquerMotEssai, LesAutresFormatsDuMotRestent)
{
    rtfTexte.Text(u"chat noir");
    rtfTexte.Sélectionner(1, 2);
    rtfTexte.SelBold = true;
    EXPECT_TRUE(MarquerEn(0));
    EXPECT_TRUE(rtfTexte.TextRTF().FormatEn(1).Gras);
    EXPECT_FALSE(rtfTexte.TextRTF().FormatEn(3).Gras);
}

TEST_F(MarquerMotEssai, UnMotTrèsLongNeCoûteQueSaLongueur)
{
    static constexpr std::size_t Longueur = 1'000'000;
    rtfTexte.Text(Texte(Longueur, u'a'));
    EXPECT_TRUE(MarquerEn(Longueur - 1));
    EXPECT_EQ(rtfTexte.SelLength(), Longueur);
    EXPECT_EQ(Marqués().size(), 1U);
}

// ---- The readers of marks ----------------------------------------------------------------------------------------

TEST_F(MarquerMotEssai, DeuxMotsEtLeurBlancMarquésSeLisentEnUnSeul)
{
    rtfTexte.Text(u"le chat noir dort");
    Marquer(3, 9);
    EXPECT_EQ(Marqués(), Mots{u"chat noir"});
}

TEST_F(MarquerMotEssai, UnBlancSansMarqueSépareLesMotsLus)
{
    rtfTexte.Text(u"le chat noir dort");
    EXPECT_TRUE(MarquerEn(3));
    EXPECT_EQ(Marqués(), Mots{u"chat"});
    EXPECT_TRUE(MarquerEn(8));
    EXPECT_EQ(Marqués(), (Mots{u"chat", u"noir"}));
}

TEST_F(MarquerMotEssai, UnMotDontLesLettresDiffèrentDeFormatSeLitEntier)
{
    rtfTexte.Text(u"le chat");
    rtfTexte.Sélectionner(4, 2);
    rtfTexte.SelColor = Rouge;
    EXPECT_TRUE(MarquerEn(3));
    EXPECT_EQ(Marqués(), Mots{u"chat"});
}

TEST_F(MarquerMotEssai, LeTexteDeLElèveRetrouveLesMotsMarquésDoublesCompris)
{
    rtfTexte.Text(u"Le chat voit un chat et une belette");
    EXPECT_TRUE(MarquerEn(3));
    EXPECT_TRUE(MarquerEn(16));
    EXPECT_TRUE(MarquerEn(34));
    banc.Ecrire("Le chat.rtf", EcrireRtf(rtfTexte.TextRTF()));

    auto& choix = banc.Choix();
    banc.AnnoncerFichier(DepuisChemin(banc.dossier / "Le chat.rtf"));
    choix.cmdCharger.Cliquer();

    EXPECT_EQ(choix.cmbVocabulaire.Eléments(), (Mots{u"belette", u"chat", u"chat"}));
}

} // namespace tirelune
