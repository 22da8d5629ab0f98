#include "followup/frmCodeCouleur.h"

#include "tests/support/Banc.h"

namespace tirelune {

TEST(CodeCouleur, MontreLesCinqCouleursEtLeBlanc)
{
    Banc banc;
    auto& écran = banc.Ouvrir<frmCodeCouleur>();
    EXPECT_EQ(écran.Caption, u"Code couleurs");
    const std::vector<std::pair<Texte, Couleur>> attendus{{u"> 9", Cyan},   {u"< 9", Vert},  {u"< 7", Jaune},
                                                          {u"< 5", Orange}, {u"< 3", Rouge}, {u"Pas fait", Blanc}};
    for (int i = 0; i < 6; ++i) {
        const auto& [marque, teinte] = attendus[static_cast<std::size_t>(i)];
        EXPECT_EQ(écran.Label2(i).Caption, marque);
        EXPECT_EQ(écran.lblExo(i).BackColor, teinte);
        EXPECT_EQ(écran.lblMoyenne(i).BackColor, teinte);
    }
    EXPECT_EQ(écran.Label1(0).Caption, u"Moyenne");
    EXPECT_EQ(écran.Label1(1).Caption, u"Texte en cours ou sélectionné");
    EXPECT_EQ(écran.Label3.Caption, u"La moyenne s'effectue sur l'ensemble des textes étudiés, exercice par exercice.");
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
}

TEST(CodeCouleur, LeBoutonDuChoixLOuvre)
{
    Banc banc;
    banc.QuandOuvert<frmCodeCouleur>([](frmCodeCouleur& écran) { écran.cmdQuitter.Cliquer(); });
    banc.Choix().cmdCode.Cliquer();
    EXPECT_EQ(banc.plateforme.écransMontrés, (std::vector<std::string>{"frmCodeCouleur"}));
}

} // namespace tirelune
