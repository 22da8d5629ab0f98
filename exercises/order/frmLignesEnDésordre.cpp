#include "exercises/order/frmLignesEnDésordre.h"

#include "core/Tirage.h"
#include "exercises/Conclure.h"
#include "exercises/Phrases.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr std::size_t ResteMinimum = 400;             // behind the place drawn
constexpr std::size_t TexteSansReste = 600;           // shorter texts needn't have it
constexpr std::size_t TexteEntier = 350;              // shorter texts are a passage
constexpr std::size_t PassageMinimum = 300;           // before its last full stop
constexpr std::size_t PassageSansPoint = 10 * 50 - 1; // ten lines
constexpr std::size_t LigneMinimum = 50 - 1;          // before the blank at which it is cut

std::size_t TirerDépart(Plateforme& plateforme, VueTexte texte)
{
    const auto longueur = static_cast<double>(texte.size());
    const auto tropLoin = [&](std::size_t place) { return place + 1 + ResteMinimum >= texte.size(); };
    if (texte.size() < TexteSansReste) {
        const auto place = Tirer(plateforme, longueur);
        return tropLoin(place) ? 0 : DépartDePhrase(texte, place);
    }
    return DépartDePhrase(texte, TirerSauf(plateforme, longueur, tropLoin).value_or(0));
}

std::size_t FinDuPassage(VueTexte texte, std::size_t départ)
{
    if (const auto point = texte.find(u'.', départ + PassageMinimum); point != VueTexte::npos)
        return point + 1;
    return std::min(texte.find(u' ', départ + PassageSansPoint), texte.size());
}

} // namespace

frmLignesEnDésordre::frmLignesEnDésordre(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmLignesEnDésordre", u"Lignes en désordre"), choix_(choix)
{
    for (int i = 0; i < lblPoints.Nombre(); ++i)
        lblPoints(i).ToolTipText = u" Chaque fois que tu te trompes, tu perds 2 points. ";
    lblPoints(0).Caption = u"10";
    lblPoints(1).Caption = u"10";
    RelierPièces(jeu_);
    cmdQuitter.Click = [this] { cmdQuitter_Click(); };
}

Arrangement frmLignesEnDésordre::Disposer()
{
    return PageDePièces(jeu_, lblConsigne, EnPlace(notice));
}

void frmLignesEnDésordre::Load()
{
    AjouterNomElève();
    TirerPassage();
    for (int i = 0; i < lblLigne.Nombre(); ++i)
        CouperLigne(i);
    MontrerPièces(jeu_);
    if (!lblLigne(0).Visible)
        Montrer(notice);
}

void frmLignesEnDésordre::TirerPassage()
{
    EcrireAlphabetDesPhrases(état);
    const VueTexte texte = choix_.rtfTexte.Text();
    const auto passage = [&](std::size_t départ, std::size_t fin) {
        return Rogner(SansFinEnTête(NettoyerPassage(texte.substr(départ, fin - départ), état.LettresEtSignes)));
    };
    const auto départ = TirerDépart(application_.plateforme, texte);
    txtPhrase.Text =
        texte.size() < TexteEntier ? passage(0, texte.size()) : passage(départ, FinDuPassage(texte, départ));
    if (txtPhrase.Text().empty()) // nothing stands behind the last full stop
        txtPhrase.Text = passage(0, FinDuPassage(texte, 0));
}

void frmLignesEnDésordre::CouperLigne(int i)
{
    const Texte passage = txtPhrase.Text;
    if (passage.empty())
        return;
    const auto blanc = i == lblLigne.UBound() ? Texte::npos : passage.find(u' ', LigneMinimum);
    cmbOrdre.AddItem(passage.substr(0, blanc));
    txtPhrase.Text = blanc == Texte::npos ? Texte{} : passage.substr(blanc + 1);
}

void frmLignesEnDésordre::cmdQuitter_Click()
{
    if (cmdQuitter.Caption == Quitter)
        ConclureSurPoints(*this, choix_, lblPoints);
    else
        VérifierOrdre(jeu_);
}

} // namespace tirelune
