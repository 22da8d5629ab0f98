#include "exercises/ListeDeMots.h"

#include "tests/support/Banc.h"

namespace tirelune {

namespace {

class EcranListe final : public Ecran {
public:
    explicit EcranListe(Application& application) : Ecran(application, "EcranListe", u"") {}

    ComboBox cmb{*this, "cmb", {.Caption = u" Liste ", .Sorted = true}};

private:
    Arrangement Disposer() override { return cmb; }
};

} // namespace

TEST(ListeDeMots, MontreLePremierDansLOrdre)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranListe>();
    RemplirListe(écran.cmb, {u"zèbre", u"âne", u"été", u"âne"});
    EXPECT_EQ(écran.cmb.Eléments(), (std::vector<Texte>{u"âne", u"âne", u"été", u"zèbre"}));
    EXPECT_EQ(écran.cmb.Text, u"âne");
}

TEST(ListeDeMots, SansMotLaListeGardeSonTexte)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranListe>();
    RemplirListe(écran.cmb, {});
    EXPECT_EQ(écran.cmb.Text, u" Liste ");
}

TEST(ListeDeMots, MotRetiréNeSortQuUneFoisEtLePremierRestantSeMontre)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranListe>();
    RemplirListe(écran.cmb, {u"zèbre", u"âne", u"zèbre"});
    écran.cmb.Choisir(1);
    RetirerDeListe(écran.cmb, u"zèbre");
    EXPECT_EQ(écran.cmb.Eléments(), (std::vector<Texte>{u"âne", u"zèbre"}));
    EXPECT_EQ(écran.cmb.Text, u"âne");
}

TEST(ListeDeMots, LeDernierMotResteEnVue)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranListe>();
    RemplirListe(écran.cmb, {u"âne"});
    RetirerDeListe(écran.cmb, u"âne");
    EXPECT_EQ(écran.cmb.ListCount(), 0);
    EXPECT_EQ(écran.cmb.Text, u"âne");
}

TEST(ListeDeMots, MotAbsentNeRetireRien)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranListe>();
    RemplirListe(écran.cmb, {u"âne", u"été"});
    RetirerDeListe(écran.cmb, u"ane");
    EXPECT_EQ(écran.cmb.ListCount(), 2);
}

TEST(ListeDeMots, LesLettresSontRefuséesEtLesFlèchesPassent)
{
    Touche lettre{.Caractère = u'é', .Code = 'E'};
    RefuserFrappe(lettre);
    EXPECT_TRUE(lettre.Avalée);
    Touche flèche{.Code = Touche::Bas};
    RefuserFrappe(flèche);
    EXPECT_FALSE(flèche.Avalée);
}

} // namespace tirelune
