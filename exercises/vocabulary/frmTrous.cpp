#include "exercises/vocabulary/frmTrous.h"

#include "exercises/Conclure.h"
#include "exercises/DoubleClic.h"
#include "exercises/ListeDeMots.h"

namespace tirelune {

std::vector<Lacune> LacunesMarquées(const TexteRiche& texte)
{
    std::vector<Lacune> lacunes;
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        if (!tranche.Style->Barré)
            return;
        if (lacunes.empty() || lacunes.back().Début + lacunes.back().Longueur != tranche.Début)
            lacunes.push_back({tranche.Début, 0});
        lacunes.back().Longueur += tranche.Fin - tranche.Début;
    });
    return lacunes;
}

frmTrous::frmTrous(frmExercices& choix) : Ecran(choix.ApplicationDe(), "frmTrous", u"Texte à trous"), choix_(choix)
{
    rtfTrous.Locked = true;
    Image1.Picture = DessinCrayon();
    rtfTrous.Click = [this] { SélectionnerTrait(rtfTrous, lacunes_); };
    rtfTrous.KeyPress = [this](Touche& touche) { rtfTrous_KeyPress(touche); };
    rtfTrous.DblClick = [this] { RefuserDoubleClic(rtfTrous, UnClicSurLesTraits); };
    rtfTrous.SelChange = [this] { EffacerSélectionRefusée(rtfTrous); };
    cmbTrous.KeyPress = [](Touche& touche) {
        touche.Avaler(); // the arrows as well: here the words are picked with the mouse alone
    };
    cmdOk.Click = [this] { EssayerMot(jeu_); };
    fin.Bouton.Click = [this] { ConclureSurPoints(*this, choix_, lblPoints); };
}

Arrangement frmTrous::Disposer()
{
    return PageDeLacunes(jeu_, lblConsigne, cmdOk, Image1, Pile{EnPlace(fin), EnPlace(notice)});
}

void frmTrous::Load()
{
    AjouterNomElève();
    état.CorrectionEnCours = false;
    lacunes_ = LacunesMarquées(choix_.rtfTexte.TextRTF());
    if (lacunes_.empty()) {
        Montrer(notice);
        return;
    }
    OuvrirTrous();
    rtfTrous.Visible = true;
}

void frmTrous::OuvrirTrous()
{
    auto texte = OuvrirLacunes(choix_.rtfTexte.TextRTF(), lacunes_);
    texte.Formater(0, texte.Longueur(), [](Format& format) { format.Souligné = false; });
    rtfTrous.TextRTF(std::move(texte));
    RemplirListe(cmbTrous, MotsEnlevés(choix_.rtfTexte.Text(), lacunes_));
}

void frmTrous::Resize()
{
    AjusterBoîte(rtfTrous);
}

void frmTrous::rtfTrous_KeyPress(Touche& touche)
{
    if (touche.Code == Touche::Entrée)
        touche.Avaler(); // would be a click at the caret
}

} // namespace tirelune
