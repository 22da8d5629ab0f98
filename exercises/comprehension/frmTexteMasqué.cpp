#include "exercises/comprehension/frmTexteMasqué.h"

#include "core/Fonctions.h"
#include "exercises/ClassesDeLettres.h"
#include "exercises/Conclure.h"
#include "exercises/FinDeTexte.h"

namespace tirelune {

frmTexteMasqué::frmTexteMasqué(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmTexteMasqué", u"Texte Masqué"), choix_(choix)
{
    rtfMasqué.Locked = true;
    rtfMasqué.Click = [this] { rtfMasqué_Click(); };
    rtfMasqué.KeyPress = [this](Touche& touche) { rtfMasqué_KeyPress(touche); };
    lblLettre.Click([this](int k) { ProposerLettre(k); });
    fin.Bouton.Click = [this] { ConclureSurPoints(*this, choix_, lblPoints); };
}

Arrangement frmTexteMasqué::Disposer()
{
    return Page{{
        .Consigne = Label1,
        .Points = BandeDePoints(lblPoints),
        .Travail = Libre{rtfMasqué},
        .Pied = Touches(lblLettre, 1),
        .Dessus = EnPlace(fin),
    }};
}

void frmTexteMasqué::Load()
{
    AjouterNomElève();
    for (int i = 0; i < lblLettre.Nombre(); ++i) {
        const auto capitale = static_cast<char16_t>(u'A' + i);
        lblLettre(i).Caption = Texte(1, capitale);
        lblLettre(i).ToolTipText = Texte{u' ', Minuscule(capitale), u' '};
    }
    MasquerTexte();
}

void frmTexteMasqué::MasquerTexte()
{
    MémoAlphabetSansNombres(état);
    auto texte = choix_.rtfTexte.TextRTF();
    texte.Formater(0, texte.Longueur(), [](Format& format) { format.Barré = false; });
    auto masqué = texte.Caractères();
    for (auto& caractère : masqué) {
        if (Contient(état.LettresSeules, caractère))
            caractère = Masque;
    }
    texte.Transcrire(std::move(masqué));
    rtfMasqué.TextRTF(std::move(texte));
}

void frmTexteMasqué::Unload()
{
    état.LettresEtSignes.clear();
}

void frmTexteMasqué::Resize()
{
    AjusterBoîte(rtfMasqué);
}

void frmTexteMasqué::rtfMasqué_Click()
{
    rtfMasqué.SelLength(1);
    if (rtfMasqué.SelText() != Texte(1, Masque))
        rtfMasqué.SelLength(0);
}

void frmTexteMasqué::rtfMasqué_KeyPress(Touche& touche)
{
    if (touche.Caractère == 0)
        return; // an arrow: moves the caret
    const Texte lettre(1, Majuscule(LettreTapée(touche.Caractère)));
    for (int k = 0; k < lblLettre.Nombre(); ++k) {
        if (lblLettre(k).Caption == lettre && lblLettre(k).Visible) {
            ProposerLettre(k);
            break;
        }
    }
    rtfMasqué.SelLength(0);
    // Those two click at the caret, for who plays without a mouse.
    if (touche.Caractère != u' ' && touche.Code != Touche::Entrée)
        touche.Avaler();
}

void frmTexteMasqué::ProposerLettre(int k)
{
    if (rtfMasqué.SelLength() != 1) {
        Avertir(u"Tu dois d'abord sélectionner un des caractères dans le texte !", u"Aide");
        return;
    }
    const auto classe = ClasseDeLettre(lblLettre(k).Caption().front());
    const auto place = rtfMasqué.SelStart();
    choix_.rtfTexte.Sélectionner(place, 1);
    if (Contient(classe, choix_.rtfTexte.SelText().front()))
        DévoilerLettre(k, classe);
    else if (Compte(lblPoints(0)) > 0)
        Incrémenter(lblPoints(0), -1);
    Incrémenter(lblPoints(1));
    rtfMasqué.Sélectionner(place, 0);
}

void frmTexteMasqué::DévoilerLettre(int k, VueTexte classe)
{
    lblLettre(k).Visible = false;
    Incrémenter(lblPoints(0));
    const auto& clé = choix_.rtfTexte.Text();
    auto texte = rtfMasqué.Text();
    for (std::size_t i = 0; i < clé.size(); ++i) {
        if (Contient(classe, clé[i]))
            texte[i] = clé[i];
    }
    rtfMasqué.Transcrire(std::move(texte));
    rtfMasqué.Refresh();
    if (rtfMasqué.Text() == clé)
        Montrer(fin);
}

} // namespace tirelune
