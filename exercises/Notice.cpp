#include "exercises/Notice.h"

namespace tirelune {

Notice::Notice(Ecran& écran, const MotsDeNotice& mots, const NomsDeNotice& noms)
    : Cadre(écran, noms.Cadre, {.Caption = Texte{mots.Titre}, .Visible = false}),
      Phrase(écran, noms.Phrase, {.Caption = Texte{mots.Phrase}, .FontSize = 20, .Centré = true}),
      Bouton(écran, noms.Bouton, {.Caption = Texte{mots.Bouton}, .FontSize = 16})
{
    Bouton.Click = [&écran] { écran.Décharger(); };
}

Arrangement EnPlace(Notice& notice)
{
    return Couverture{notice.Cadre, Colonne{Ressort{}, notice.Phrase, Centré{notice.Bouton}, Ressort{}}};
}

void Montrer(Notice& notice)
{
    notice.Cadre.Visible = true;
    notice.Bouton.SetFocus();
}

} // namespace tirelune
