#include "exercises/FinDeTexte.h"

namespace tirelune {

FinDeTexte::FinDeTexte(Ecran& écran)
    : Cadre(écran, "frameFin", {.Caption = u"Texte complété", .Visible = false, .BackColor = BleuClair}),
      Message(écran, "Text1", {.Caption = u"C'est fini !", .FontSize = 24, .Centré = true}),
      Bouton(écran, "cmdQuitter", {.Caption = u"&Quitter", .FontSize = 16})
{
    Message.Locked = true;
}

void Montrer(FinDeTexte& fin)
{
    fin.Cadre.Visible = true;
    fin.Bouton.SetFocus();
}

Arrangement EnPlace(FinDeTexte& fin)
{
    return Colonne{Ressort{}, Centré{Cadre{fin.Cadre, AuMoins(4200, 0, Colonne{fin.Message, Centré{fin.Bouton}})}},
                   Ressort{}};
}

} // namespace tirelune
