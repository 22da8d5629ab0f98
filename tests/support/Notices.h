// What several screens show alike.
#pragma once
#include "tests/support/Banc.h"

namespace tirelune {

inline constexpr VueTexte DossierInaccessible = u"Le répertoire des fichiers \"Elèves\" n'est pas accessible.\n\n"
                                                u"Veuillez vérifier votre connexion avant de continuer !\n";
inline constexpr auto UneSeuleFois = u"Clique UNE SEULE FOIS sur les traits !";

// Red counts and a blue separator, on yellow. `maximum` is what is told from the start in place of a count of tries.
inline void VérifierPointsDeDépart(const Tableau<Label>& points, VueTexte maximum = u"0")
{
    ASSERT_EQ(points.Nombre(), 3);
    EXPECT_EQ(points(0).Caption, u"0");
    EXPECT_EQ(points(1).Caption, maximum);
    EXPECT_EQ(points(2).Caption, u" / ");
    for (int i = 0; i < points.Nombre(); ++i) {
        EXPECT_EQ(points(i).BackColor, Jaune);
        EXPECT_EQ(points(i).ForeColor, i == 2 ? Bleu : Rouge);
    }
}

// The notice of a text with too few marked words covers the screen and says how many it takes.
template <class E>
void VérifierNoticeDeVocabulaire(E& écran)
{
    EXPECT_TRUE(écran.notice.Cadre.Visible);
    EXPECT_EQ(écran.notice.Cadre.Caption, u"Pas assez de vocabulaire sélectionné");
    EXPECT_EQ(écran.notice.Cadre.Width, écran.Width());
    EXPECT_EQ(écran.notice.Cadre.Height, écran.Height());
    EXPECT_EQ(écran.notice.Phrase.Caption,
              u"Il doit y avoir au moins 5 mots de vocabulaire sélectionnés (en les barrant) pour "
              u"lancer l'exercice.");
    EXPECT_EQ(écran.notice.Bouton.Caption, u"&Abandonner");
}

} // namespace tirelune
