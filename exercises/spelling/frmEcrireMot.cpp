#include "exercises/spelling/frmEcrireMot.h"

#include "core/Passages.h"
#include "exercises/Conclure.h"
#include "exercises/TirageVocabulaire.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr VueTexte Commencer = u"&Commencer";
constexpr VueTexte Suivant = u"Suivant";
constexpr VueTexte Trou = u"________"; // always as long: it tells nothing of the word
constexpr VueTexte FinsDePhraseEntière = u".?!";
constexpr std::size_t LongueurMaximale = 500; // characters that can be read on the label

bool EstUneLettre(char16_t c)
{
    return Minuscule(c) != Majuscule(c) || Contient(u"œŒæÆÿß", c);
}

// The first place where the word stands by itself; where it does nowhere, its first place in another word. npos: none.
std::size_t ChercherMot(VueTexte texte, VueTexte mot)
{
    if (mot.empty())
        return VueTexte::npos;
    for (auto place = texte.find(mot); place != VueTexte::npos; place = texte.find(mot, place + 1)) {
        const auto fin = place + mot.size();
        const bool collé = (place > 0 && EstUneLettre(texte[place - 1]) && EstUneLettre(mot.front())) ||
                           (fin < texte.size() && EstUneLettre(texte[fin]) && EstUneLettre(mot.back()));
        if (!collé)
            return place;
    }
    return texte.find(mot);
}

// Without control characters; where a line ended between two words, a blank parts them.
Texte SurUneLigne(VueTexte texte)
{
    Texte ligne;
    bool coupée = false;
    for (const char16_t c : texte) {
        if (c < u' ') {
            coupée = true;
            continue;
        }
        if (coupée && c != u' ' && !ligne.ends_with(u' '))
            ligne += u' ';
        coupée = false;
        ligne += c;
    }
    return Rogner(ligne);
}

// Of a text that hardly has a full stop, what is around the word.
Texte Raccourcir(Texte phrase, VueTexte mot)
{
    const auto place = ChercherMot(phrase, mot);
    if (phrase.size() <= LongueurMaximale || place == Texte::npos)
        return phrase;
    const auto début = place <= LongueurMaximale / 2 ? 0 : phrase.find(u' ', place - LongueurMaximale / 2);
    const auto fin = phrase.find(u' ', place + mot.size() + LongueurMaximale / 2);
    Texte autour = début > 0 ? u"…" : u"";
    autour.append(phrase, début, fin - début);
    return fin == Texte::npos ? autour : autour + u" …";
}

} // namespace

frmEcrireMot::frmEcrireMot(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmEcrireMot", u"Ecrire un mot"), choix_(choix)
{
    cmdCommencer.Click = [this] { cmdCommencer_Click(); };
    cmdOk.Click = [this] { cmdOk_Click(); };
    txtRéponse.Enter = [this] { cmdOk_Click(); };
}

Arrangement frmEcrireMot::Disposer()
{
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail =
            Colonne{
                Extensible(lblPhrase),
                Cadre{frameMot, Ligne{Extensible(AuMoins(0, 700, txtRéponse)), cmdOk}},
                AuMoins(0, 800, lblCorrigé),
            },
        .Pied = Ligne{Ressort{}, cmdCommencer},
        .Dessus = EnPlace(notice),
    }};
}

void frmEcrireMot::Load()
{
    AjouterNomElève();
    auto mots = choix_.cmbVocabulaire.Eléments();
    std::erase_if(mots, [](const Texte& mot) { return SurUneLigne(mot).empty(); }); // a blank was marked
    if (mots.empty()) {
        Montrer(notice);
        return;
    }
    cmbMots.AddItems(std::move(mots));
    TirerPhrase();
    cmdCommencer.SetFocus();
}

// ---- The sentence ------------------------------------------------------------------------------------------------

void frmEcrireMot::TirerPhrase()
{
    const auto mot = TirerEtRetirer(cmbMots, application_.plateforme);
    const VueTexte texte = choix_.rtfTexte.Text();
    const auto place = std::min(ChercherMot(texte, mot), texte.size());
    auto phrase = PhraseAutour(texte, place, FinsDePhraseEntière);
    if (const auto finDuMot = place + mot.size(); phrase.Fin < finDuMot) // a sign of its own doesn't cut it
        phrase.Fin = PhraseAutour(texte, finDuMot - 1, FinsDePhraseEntière).Fin;
    lblMot.Caption = SurUneLigne(mot);
    lblPhrase.Caption = Raccourcir(SurUneLigne(phrase.Dans(texte)), lblMot.Caption);
    lblRéf.Caption = lblPhrase.Caption;
}

void frmEcrireMot::EffacerMot()
{
    Texte phrase = lblPhrase.Caption;
    const VueTexte mot = lblMot.Caption;
    if (const auto place = ChercherMot(phrase, mot); place != Texte::npos)
        lblPhrase.Caption = phrase.replace(place, mot.size(), Trou);
}

// ---- The buttons -------------------------------------------------------------------------------------------------

void frmEcrireMot::cmdCommencer_Click()
{
    if (cmdCommencer.Caption == Quitter) {
        ConclureSurPoints(*this, choix_, lblPoints);
    } else if (cmdCommencer.Caption == Suivant) {
        MotSuivant();
    } else {
        cmdCommencer.Visible = false;
        txtRéponse.Locked = false;
        EffacerMot();
        frameMot.Visible = true;
        txtRéponse.SetFocus();
    }
}

void frmEcrireMot::MotSuivant()
{
    cmdCommencer.Caption = Texte{Commencer};
    frameMot.Visible = false;
    lblCorrigé.Visible = false;
    txtRéponse.Text = Texte{};
    TirerPhrase();
}

void frmEcrireMot::cmdOk_Click()
{
    if (cmdCommencer.Visible)
        return;
    txtRéponse.Locked = true;
    const bool fini = cmbMots.ListCount() == 0;
    cmdCommencer.Caption = Texte{fini ? Quitter : Suivant};
    cmdCommencer.Gras = fini;
    cmdCommencer.Visible = true;
    if (Rogner(txtRéponse.Text) == lblMot.Caption) {
        Incrémenter(lblPoints(0));
        lblCorrigé.Caption = u"C'est très bien !";
    } else {
        lblCorrigé.Caption = lblMot.Caption;
    }
    lblCorrigé.Visible = true;
    Incrémenter(lblPoints(1));
    cmdCommencer.SetFocus();
}

} // namespace tirelune
