#include "exercises/order/frmPhrasesEnDésordre.h"

#include "core/Tirage.h"
#include "exercises/Conclure.h"
#include "exercises/Phrases.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int Tours = 6;
constexpr int PhrasesMinimum = 4;
constexpr int PhrasesMaximum = 6;

// The first sentences of a text, cleaned. Signs in a row end one sentence, and what has no sign is none.
std::vector<Texte> LirePhrases(VueTexte texte, VueTexte lettres)
{
    std::vector<Texte> phrases;
    for (int lues = 0; lues < PhrasesMaximum; ++lues) {
        const auto signe = texte.find_first_of(FinsDePhrase);
        if (signe == VueTexte::npos)
            break;
        const auto fin = std::min(texte.find_first_not_of(FinsDePhrase, signe), texte.size());
        auto phrase = NettoyerPassage(texte.substr(0, fin), lettres);
        if (!SansFinEnTête(phrase).empty())
            phrases.push_back(std::move(phrase));
        texte.remove_prefix(fin);
    }
    return phrases;
}

} // namespace

frmPhrasesEnDésordre::frmPhrasesEnDésordre(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmPhrasesEnDésordre", u"Phrases en désordre"), choix_(choix)
{
    for (int i = 0; i < lblPoints.Nombre(); ++i)
        lblPoints(i).ToolTipText = u" Chaque fois que tu te trompes, tu perds 3 points. ";
    lblPoints(0).Caption = u"12";
    lblPoints(1).Caption = u"12";
    RelierPièces(jeu_);
    cmdQuitter.Click = [this] { cmdQuitter_Click(); };
}

Arrangement frmPhrasesEnDésordre::Disposer()
{
    return PageDePièces(jeu_, lblConsigne, EnPlace(notice));
}

// A passage is looked for before the next draw: what the last one brings comes too late.
void frmPhrasesEnDésordre::Load()
{
    AjouterNomElève();
    bool assez = false;
    for (int tour = 0; tour < Tours; ++tour) {
        assez = cmbOrdre.ListCount() >= PhrasesMinimum;
        if (!assez)
            TirerPhrases();
    }
    if (!assez)
        Montrer(notice);
}

void frmPhrasesEnDésordre::TirerPhrases()
{
    EcrireAlphabetDesPhrases(état);
    const VueTexte texte = choix_.rtfTexte.Text();
    const auto place = Tirer(application_.plateforme, static_cast<double>(texte.size()) / 2);
    cmbOrdre.Clear();
    cmbOrdre.AddItems(LirePhrases(texte.substr(DépartDePhrase(texte, place)), état.LettresEtSignes));
    if (cmbOrdre.ListCount() >= PhrasesMinimum)
        MontrerPièces(jeu_);
}

void frmPhrasesEnDésordre::cmdQuitter_Click()
{
    if (cmdQuitter.Caption == Quitter)
        ConclureSurPoints(*this, choix_, lblPoints);
    else
        VérifierOrdre(jeu_);
}

} // namespace tirelune
