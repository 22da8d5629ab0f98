#include "authoring/MarquerMot.h"

#include "core/Passages.h"
#include "core/RichTextBox.h"

namespace tirelune {

namespace {

// Neither apostrophe nor capital accented letter: a word is cut short of them.
constexpr VueTexte LettresDeMot = u"0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZàâçéèêëîïôöûü-";

} // namespace

bool MarquerMot(RichTextBox& rtfTexte)
{
    const auto caret = rtfTexte.SelStart();
    rtfTexte.SelLength(1);
    const auto& texte = rtfTexte.Text();
    if (caret == texte.size() || !Contient(LettresDeMot, texte[caret]))
        return false;
    const auto mot = MotAutour(texte, caret, LettresDeMot);
    rtfTexte.Sélectionner(mot.Début, mot.Longueur());
    const bool àBarrer = rtfTexte.SelStrikeThru() == false; // a word marked in part loses its mark
    rtfTexte.SelStrikeThru = àBarrer;
    return true;
}

} // namespace tirelune
