#include "authoring/MarquerMot.h"

#include "core/RichTextBox.h"

namespace tirelune {

namespace {

// Neither apostrophe nor capital accented letter: a word is cut short of them.
bool EstLettreDeMot(char16_t c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') ||
           Contient(u"àâçéèêëîïôöûü-", c);
}

} // namespace

bool MarquerMot(RichTextBox& rtfTexte)
{
    const auto caret = rtfTexte.SelStart();
    rtfTexte.SelLength(1);
    const auto& texte = rtfTexte.Text();
    if (caret == texte.size() || !EstLettreDeMot(texte[caret]))
        return false;
    auto début = caret;
    while (début > 0 && EstLettreDeMot(texte[début - 1]))
        --début;
    auto fin = caret + 1;
    while (fin < texte.size() && EstLettreDeMot(texte[fin]))
        ++fin;
    rtfTexte.Sélectionner(début, fin - début);
    const bool àBarrer = rtfTexte.SelStrikeThru() == false; // a word marked in part loses its mark
    rtfTexte.SelStrikeThru = àBarrer;
    return true;
}

} // namespace tirelune
