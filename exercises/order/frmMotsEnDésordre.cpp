#include "exercises/order/frmMotsEnDésordre.h"

#include "core/Passages.h"
#include "exercises/Conclure.h"
#include "exercises/Phrases.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int ColonnesDeMots = 5;
constexpr std::size_t MotsMinimum = 6;

Texte EntreGuillemets(VueTexte mot)
{
    return Texte{u"« "}.append(mot).append(u" »");
}

} // namespace

frmMotsEnDésordre::frmMotsEnDésordre(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmMotsEnDésordre", u"Mots en désordre"), choix_(choix)
{
    txtPhrase.Locked = true;
    txtAide.Locked = true;
    lblMot.Click([this](int i) { lblMot_Click(i); });
    txtPhrase.Click = [this] { txtPhrase_Click(); };
    txtPhrase.DblClick = [this] { txtPhrase_Click(); };
    txtPhrase.KeyPress = [this](Touche& touche) { txtPhrase_KeyPress(touche); };
    cmdTerminé.Click = [this] { cmdTerminé_Click(); };
    cmdSuivant.Click = [this] { cmdSuivant_Click(); };
    notice.Bouton.Click = [this] { cmdAbandonner_Click(); };
}

Arrangement frmMotsEnDésordre::Disposer()
{
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail =
            Colonne{
                Extensible(Grille{ColonnesDeMots, lblMot}, 3),
                Extensible(AuMoins(0, 900, txtPhrase), 1),
                lblPlace,
                Cadre{frameAide, AuMoins(0, 500, txtAide)},
            },
        .Pied = Ligne{Label1, lblCoups, Ressort{}, Label3, lblEssais, Label4, lblEssaisMax, Ressort{},
                      Pile{cmdTerminé, cmdSuivant}},
        .Dessus = EnPlace(notice),
    }};
}

void frmMotsEnDésordre::Load()
{
    AjouterNomElève();
    TirerPhrase();
}

// ---- The sentence ------------------------------------------------------------------------------------------------

void frmMotsEnDésordre::TirerPhrase()
{
    cmbOrdre.Clear();
    cmbMots.Clear();
    txtPhrase.Text = Texte{};
    Sélectionner(0, 0);
    lblCorrigé.Caption = Texte{};
    txtAide.Text = Texte{};
    frameAide.Visible = false;
    for (auto& mot : lblMot) {
        mot.Caption = Texte{};
        mot.Visible = false;
        mot.AutoSize = true;
    }
    EcrireAlphabetDesPhrases(état);
    auto mots = tirelune::TirerPhrase(application_.plateforme, choix_.rtfTexte.Text(), état.LettresEtSignes,
                                      {MotsMinimum, MotsMaximum}, lblBanque.Caption);
    if (!mots) {
        Montrer(notice);
        return;
    }
    cmbOrdre.AddItems(std::move(*mots));
    CommencerPhrase();
}

void frmMotsEnDésordre::CommencerPhrase()
{
    static constexpr int MotsParEssai = 2;
    lblCorrigé.Caption = EnPhrase(cmbOrdre.Eléments());
    lblBanque.Caption = lblBanque.Caption() + lblCorrigé.Caption() + u' ';
    cmbMots.AddItems(cmbOrdre.Eléments());
    MontrerMots();
    for (int i = 0; i < cmbMots.ListCount(); ++i)
        lblMot(i).Visible = true;
    txtPhrase.Text = u" ";
    Sélectionner(0, 1);
    lblEssais.Caption = EnTexte(cmbOrdre.ListCount() / MotsParEssai);
    lblEssaisMax.Caption = lblEssais.Caption;
    cmdTerminé.Enabled = true;
}

void frmMotsEnDésordre::MontrerMots()
{
    for (int i = 0; i < cmbMots.ListCount(); ++i) {
        lblMot(i).AutoSize = true;
        lblMot(i).Caption = cmbMots.List(i);
    }
}

// ---- Its construction --------------------------------------------------------------------------------------------

void frmMotsEnDésordre::lblMot_Click(int i)
{
    if (txtPhrase.SelLength() == 0)
        return;
    if (!UnePlaceOuUnMot()) // a drag of the mouse may have selected anything
        SélectionnerSous(txtPhrase.SelStart);
    auto& étiquette = lblMot(i);
    lblPassage.Caption = Rogner(txtPhrase.SelText());
    const bool motPris = !lblPassage.Caption().empty();
    if (!étiquette.Caption().empty()) {
        RemplacerSélection(u' ' + étiquette.Caption() + u' ');
        étiquette.AutoSize = motPris; // an emptied label keeps its size
        étiquette.Caption = lblPassage.Caption;
    } else if (motPris) {
        étiquette.AutoSize = true;
        étiquette.Caption = lblPassage.Caption;
        RemplacerSélection(u" ");
    }
    lblPassage.Caption = Texte{};
}

void frmMotsEnDésordre::RemplacerSélection(VueTexte nouveau)
{
    txtPhrase.SelText(nouveau);
    Sélectionner(txtPhrase.Text().size() - 1, 1);
}

void frmMotsEnDésordre::txtPhrase_Click()
{
    SélectionnerSous(txtPhrase.SelStart);
}

void frmMotsEnDésordre::SélectionnerSous(std::size_t position)
{
    const auto& phrase = txtPhrase.Text();
    if (phrase.empty())
        return;
    position = std::min(position, phrase.size() - 1);
    if (phrase[position] == u' ') {
        Sélectionner(position, 1);
        return;
    }
    const auto mot = MorceauAutour(phrase, position, u" ");
    Sélectionner(mot.Début - 1, mot.Longueur() + 2); // the sentence begins and ends with a blank
}

void frmMotsEnDésordre::Sélectionner(std::size_t début, std::size_t longueur)
{
    txtPhrase.SelStart = début;
    txtPhrase.SelLength = longueur;
    lblPlace.Caption = DécrireSélection();
}

// One blank, or one word with the blanks around it.
bool frmMotsEnDésordre::UnePlaceOuUnMot() const
{
    const auto choisi = txtPhrase.SelText();
    return choisi.front() == u' ' && choisi.find(u' ', 1) == (choisi.size() == 1 ? Texte::npos : choisi.size() - 1) &&
           choisi.size() != 2;
}

Texte frmMotsEnDésordre::DécrireSélection() const
{
    const auto choisi = txtPhrase.SelText();
    if (choisi.empty())
        return {};
    if (const auto mot = Rogner(choisi); !mot.empty())
        return u"Mot choisi : " + EntreGuillemets(mot);
    const VueTexte phrase = txtPhrase.Text;
    const auto place = txtPhrase.SelStart();
    const auto avant = MorceauAutour(phrase, place, u" ").Dans(phrase);
    const auto après = MorceauAutour(phrase, place + 1, u" ").Dans(phrase);
    if (avant.empty() && après.empty())
        return u"Place choisie : le début de la phrase";
    if (avant.empty())
        return u"Place choisie : devant " + EntreGuillemets(après);
    if (après.empty())
        return u"Place choisie : après " + EntreGuillemets(avant);
    return u"Place choisie : entre " + EntreGuillemets(avant) + u" et " + EntreGuillemets(après);
}

// Keys write nothing; the arrows go from place to word to place.
void frmMotsEnDésordre::txtPhrase_KeyPress(Touche& touche)
{
    touche.Avaler();
    const bool surUnMot = txtPhrase.SelLength() > 1;
    if (touche.Code == Touche::Droite)
        SélectionnerSous(txtPhrase.SelStart + (surUnMot ? txtPhrase.SelLength - 1 : 1));
    else if (touche.Code == Touche::Gauche && surUnMot)
        SélectionnerSous(txtPhrase.SelStart);
    else if (touche.Code == Touche::Gauche && txtPhrase.SelStart() > 0)
        SélectionnerSous(txtPhrase.SelStart - 1);
}

// ---- Its check ---------------------------------------------------------------------------------------------------

void frmMotsEnDésordre::cmdTerminé_Click()
{
    if (Rogner(txtPhrase.Text) == Rogner(lblCorrigé.Caption))
        PhraseJuste();
    else if (Compte(lblEssais) > 0)
        AiderAuDébut();
    else
        MontrerPhrase();
}

void frmMotsEnDésordre::PhraseJuste()
{
    Incrémenter(lblPoints(0), Compte(lblEssais));
    FinirPhrase();
    for (auto& mot : lblMot)
        mot.Visible = false;
    frameAide.Visible = false;
    txtAide.Text = Texte{};
}

void frmMotsEnDésordre::AiderAuDébut()
{
    const int montrés = Compte(lblEssaisMax) - Compte(lblEssais) + 1;
    cmdSuivant.Visible = false;
    frameAide.Visible = true;
    frameAide.Caption = u"Voici le début de la phrase";
    txtAide.Text = EnPhrase(std::span(cmbOrdre.Eléments()).first(static_cast<std::size_t>(montrés)));
    txtPhrase.Text = u" ";
    Sélectionner(0, 1);
    MontrerMots();
    Incrémenter(lblEssais, -1);
}

void frmMotsEnDésordre::MontrerPhrase()
{
    frameAide.Visible = true;
    frameAide.Caption = u"Voici la phrase";
    txtAide.Text = lblCorrigé.Caption();
    for (auto& mot : lblMot) {
        mot.Caption = Texte{};
        mot.Visible = false;
    }
    txtPhrase.Text = Texte{};
    Sélectionner(0, 0);
    FinirPhrase();
}

// The sentence is settled: it counts once, however often the pupil clicks.
void frmMotsEnDésordre::FinirPhrase()
{
    Incrémenter(lblPoints(1), Compte(lblEssaisMax));
    Incrémenter(lblCoups, -1);
    if (lblCoups.Caption == u"0")
        cmdSuivant.Caption = Texte{Quitter};
    cmdTerminé.Enabled = false;
    cmdSuivant.Visible = true;
    cmdSuivant.SetFocus();
}

void frmMotsEnDésordre::cmdSuivant_Click()
{
    if (cmdSuivant.Caption == Quitter) {
        cmdAbandonner_Click();
        return;
    }
    cmdSuivant.Visible = false;
    TirerPhrase();
    if (!notice.Cadre.Visible)
        txtPhrase.SetFocus();
}

void frmMotsEnDésordre::cmdAbandonner_Click()
{
    if (lblPoints(1).Caption == u"0")
        Décharger();
    else
        ConclureSurPoints(*this, choix_, lblPoints);
}

} // namespace tirelune
