#include "exercises/Notice.h"

#include "tests/support/Banc.h"

namespace tirelune {

namespace {

class EcranNotice final : public Ecran {
public:
    explicit EcranNotice(Application& application) : Ecran(application, "EcranNotice", u"Essai") {}

    Button cmdJouer{*this, "cmdJouer", u"&Jouer"};
    Notice notice{*this, PasAssezDeVocabulaire};
    Notice autre{*this,
                 {u"Texte trop court", u"Le texte est trop court.", u"&Sortir"},
                 {.Cadre = "frameSortir", .Phrase = "Label1", .Bouton = "cmdSortir"}};

private:
    Arrangement Disposer() override { return Pile{cmdJouer, EnPlace(notice), EnPlace(autre)}; }
};

} // namespace

TEST(Notice, CouvreLEcranEtPrendLeClavier)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranNotice>();
    EXPECT_FALSE(écran.notice.Cadre.Visible);
    EXPECT_TRUE(écran.cmdJouer.EstAtteignable());

    Montrer(écran.notice);
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_FALSE(écran.cmdJouer.EstAtteignable());
    EXPECT_EQ(écran.Focus(), &écran.notice.Bouton);
    EXPECT_EQ(écran.notice.Cadre.Width, écran.Width());
}

TEST(Notice, SonBoutonFermeLEcran)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranNotice>();
    Montrer(écran.notice);
    écran.notice.Bouton.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
}

TEST(Notice, NomsEtMotsSontCeuxDeLEcran)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranNotice>();
    EXPECT_EQ(écran.notice.Cadre.Nom, "frameQuitter");
    EXPECT_EQ(écran.notice.Phrase.Nom, "Label2");
    EXPECT_EQ(écran.notice.Bouton.Nom, "cmdAbandonner");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Abandonner");
    EXPECT_EQ(écran.autre.Cadre.Nom, "frameSortir");
    EXPECT_EQ(écran.autre.Cadre.Caption, u"Texte trop court");
    EXPECT_EQ(écran.autre.Phrase.Nom, "Label1");
    EXPECT_EQ(écran.autre.Phrase.Caption, u"Le texte est trop court.");
    EXPECT_EQ(écran.autre.Bouton.Nom, "cmdSortir");
    EXPECT_EQ(écran.autre.Bouton.Caption, u"&Sortir");
}

} // namespace tirelune
