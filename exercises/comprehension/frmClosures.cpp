#include "exercises/comprehension/frmClosures.h"

#include "core/Tirage.h"
#include "exercises/Conclure.h"
#include "exercises/DoubleClic.h"
#include "exercises/ListeDeMots.h"

#include <cmath>

namespace tirelune {

namespace {

constexpr double DépartsPossibles = 80; // characters at the head of the text
constexpr double PartTrouée = 0.9;      // the last tenth of the text stays whole
constexpr int RangDuMotEnlevé = 7;
// Behind the signs: backspace, tab, line feed, carriage return. The apostrophe and the hyphen stay inside a word.
constexpr VueTexte Séparateurs = u" ?,.;:!()\x08\t\n\r\"«»";

} // namespace

double FinDesLacunes(VueTexte texte)
{
    const auto dernier = texte.find_last_not_of(u' ');
    const auto longueur = dernier == VueTexte::npos ? 0 : dernier + 1;
    const double départ = PartTrouée * static_cast<double>(longueur);
    for (std::size_t recul = 0; static_cast<double>(recul) <= départ; ++recul) {
        const double p = départ - static_cast<double>(recul);
        const auto place = static_cast<std::size_t>(std::nearbyint(p)); // half to even
        if (place < texte.size() && texte[place] == u' ')
            return p;
    }
    return 0;
}

ChoixDeLacunes ChoisirLacunes(VueTexte texte, std::size_t départ)
{
    const double fin = FinDesLacunes(texte);
    ChoixDeLacunes choix;
    int compte = 0;
    bool précédentSéparateur = false;
    for (auto i = départ; i <= texte.size(); ++i) {
        const bool séparateur = i == texte.size() || Contient(Séparateurs, texte[i]);
        if (séparateur && !précédentSéparateur) { // a word has ended
            if (compte == RangDuMotEnlevé + 1) {
                choix.Annoncées = choix.Lacunes.size();
                compte = 1;
                if (static_cast<double>(i) >= fin)
                    break;
            }
            ++compte;
        }
        if (!séparateur && compte == RangDuMotEnlevé) {
            if (choix.Lacunes.size() == choix.Annoncées)
                choix.Lacunes.push_back({i, 0});
            ++choix.Lacunes.back().Longueur;
        }
        précédentSéparateur = séparateur;
    }
    return choix;
}

frmClosures::frmClosures(frmExercices& choix) : Ecran(choix.ApplicationDe(), "frmClosures", u"Closures"), choix_(choix)
{
    rtfClosures.Locked = true;
    Image1.Picture = DessinCrayon();
    rtfClosures.Click = [this] { SélectionnerTrait(rtfClosures, lacunes_); };
    rtfClosures.KeyPress = [this](Touche& touche) { rtfClosures_KeyPress(touche); };
    rtfClosures.DblClick = [this] { RefuserDoubleClic(rtfClosures, UnClicSurLesTraits); };
    rtfClosures.SelChange = [this] { EffacerSélectionRefusée(rtfClosures); };
    cmbClosures.KeyPress = RefuserFrappe;
    cmdOk.Click = [this] { EssayerMot(jeu_); };
    fin.Bouton.Click = [this] { ConclureSurPoints(*this, choix_, lblPoints); };
}

Arrangement frmClosures::Disposer()
{
    return PageDeLacunes(jeu_, lblConsigne, cmdOk, Image1, EnPlace(fin));
}

void frmClosures::Load()
{
    AjouterNomElève();
    état.CorrectionEnCours = false;
    OuvrirTrous();
}

void frmClosures::OuvrirTrous()
{
    const auto& clé = choix_.rtfTexte.Text();
    auto trous = ChoisirLacunes(clé, Tirer(application_.plateforme, DépartsPossibles));
    auto texte = OuvrirLacunes(choix_.rtfTexte.TextRTF(), trous.Lacunes);
    texte.Formater(0, texte.Longueur(), [](Format& format) {
        format.Barré = false;
        format.Souligné = false;
    });
    rtfClosures.TextRTF(std::move(texte));

    auto mots = MotsEnlevés(clé, trous.Lacunes);
    mots.resize(trous.Annoncées);
    RemplirListe(cmbClosures, std::move(mots));
    lacunes_ = std::move(trous.Lacunes);
}

void frmClosures::Activate()
{
    if (cmbClosures.ListCount() > 0)
        return;
    Avertir(u"Le texte est trop court pour cet exercice !");
    Décharger();
}

void frmClosures::Resize()
{
    AjusterBoîte(rtfClosures);
}

void frmClosures::rtfClosures_KeyPress(const Touche& touche)
{
    if (touche.Code == Touche::Entrée)
        SélectionnerTrait(rtfClosures, lacunes_);
}

} // namespace tirelune
