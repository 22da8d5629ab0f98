#include "exercises/Propositions.h"

#include "tests/support/Banc.h"

namespace tirelune {

namespace {

class EcranPropositions final : public Ecran {
public:
    explicit EcranPropositions(Application& application) : Ecran(application, "EcranPropositions", u"") {}

    Tableau<Label> lbl{*this, "lbl", 3, {.BackColor = Blanc}};

private:
    Arrangement Disposer() override { return Colonne{lbl}; }
};

} // namespace

TEST(Propositions, LEtiquettePrendLeMotEtSaLargeur)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranPropositions>();
    Proposer(écran.lbl(1), u"été");
    EXPECT_EQ(écran.lbl(1).Caption, u"été");
    EXPECT_TRUE(écran.lbl(1).AutoSize);
    EXPECT_FALSE(écran.lbl(0).AutoSize);
}

TEST(Propositions, UneCouleurMontreLaRéponse)
{
    Banc banc;
    auto& écran = banc.Ouvrir<EcranPropositions>();
    EXPECT_FALSE(EstRépondu(écran.lbl));
    for (auto& lbl : écran.lbl) {
        lbl.BackColor = Rouge;
        EXPECT_TRUE(EstRépondu(écran.lbl));
        lbl.BackColor = Blanc;
    }
}

} // namespace tirelune
