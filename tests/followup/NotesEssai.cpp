#include "followup/Notes.h"

#include "followup/frmExercices.h"
#include "tests/support/Banc.h"

namespace tirelune {

TEST(Notes, CouleursAuxBornes)
{
    const std::vector<std::pair<float, Couleur>> attendues{{0, Rouge}, {2.99F, Rouge}, {3, Orange}, {4.99F, Orange},
                                                           {5, Jaune}, {6.99F, Jaune}, {7, Vert},   {8.99F, Vert},
                                                           {9, Cyan},  {10, Cyan}};
    for (const auto& [note, teinte] : attendues)
        EXPECT_EQ(CouleurDeNote(note), teinte) << note;
}

TEST(Notes, RienDePossibleFaitZéro)
{
    Banc banc;
    auto& choix = banc.Choix();
    choix.lblVitesse.Caption = u"0";
    choix.lblIndex.Caption = u"0";
    EXPECT_EQ(NoteSurDix(choix.lblVitesse, choix.lblIndex), 0);
    choix.lblVitesse.Caption = u"5";
    choix.lblIndex.Caption = u"8";
    EXPECT_EQ(NoteSurDix(choix.lblVitesse, choix.lblIndex), 6.25F);
}

TEST(Notes, CelluleQuiNEstPasUnNombreCompteCommeNonFaite)
{
    for (const auto* cellule : {u"", u"abc", u"7a", u"--", u"1,2,3", u"1e5", u"9999999999999999999999999999", u"*"})
        EXPECT_FALSE(LireNote(cellule).has_value()) << EnUtf8(cellule);
    EXPECT_EQ(LireNote(u"6,5"), 6.5F);
    EXPECT_EQ(LireNote(u" 6.5 "), 6.5F);
}

} // namespace tirelune
