#include "exercises/order/frmMotsInversés.h"

#include "core/Passages.h"
#include "core/Tirage.h"
#include "exercises/Conclure.h"
#include "exercises/Phrases.h"

#include <algorithm>
#include <cassert>

namespace tirelune {

namespace {

constexpr NombreDeMots Longueur{6, 20};
constexpr VueTexte MotsAEchanger = u"2";
constexpr VueTexte DernièrePhrase = u"10";

// A short sentence fills its place too, and a long one stays in sight. Points.
double TailleDesLettres(std::size_t caractères)
{
    static constexpr std::size_t Courte = 60;
    static constexpr std::size_t Moyenne = 100;
    return caractères <= Courte ? 34 : caractères <= Moyenne ? 28 : 23;
}

bool TousEgaux(const std::vector<Texte>& mots)
{
    return std::all_of(mots.begin(), mots.end(), [&](const Texte& mot) { return mot == mots.front(); });
}

// A word that is chosen shows it by a line as well.
void Teindre(Format& format, Couleur teinte)
{
    format.Teinte = teinte;
    format.Souligné = teinte == Rouge;
}

void ToutTeindre(RichTextBox& boîte, Couleur teinte)
{
    boîte.ToutFormater([teinte](Format& format) { Teindre(format, teinte); });
}

void TeindreSélection(RichTextBox& boîte, Couleur teinte)
{
    boîte.FormaterSélection([teinte](Format& format) { Teindre(format, teinte); });
}

std::vector<Passage> Teints(const TexteRiche& texte, Couleur teinte)
{
    std::vector<Passage> passages;
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        if (tranche.Style->Teinte == teinte)
            passages.push_back({tranche.Début, tranche.Fin});
    });
    return passages;
}

} // namespace

frmMotsInversés::frmMotsInversés(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmMotsInversés", u"Mots inversés"), choix_(choix)
{
    rtfPhrase.Locked = true;
    rtfPhrase.Click = [this] { rtfPhrase_Click(); };
    cmdTerminé.Click = [this] { cmdTerminé_Click(); };
    cmdAnnuler.Click = [this] { cmdAnnuler_Click(); };
    cmdOk.Click = [this] { cmdOk_Click(); };
    cmdSuivant.Click = [this] { cmdSuivant_Click(); };
    notice.Bouton.Click = [this] { cmdAbandonner_Click(); };
}

Arrangement frmMotsInversés::Disposer()
{
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail = Colonne{Extensible(rtfPhrase), AuMoins(0, 500, lblVerdict)},
        .Pied = Ligne{Label1, lblCoups, Ressort{}, Label3, lblEssais, Label4, lblEssaisMax, Ressort{}, cmdAnnuler,
                      Pile{cmdTerminé, cmdOk, cmdSuivant}},
        .Dessus = EnPlace(notice),
    }};
}

void frmMotsInversés::Load()
{
    AjouterNomElève();
    TirerInversion();
}

// ---- The sentence ------------------------------------------------------------------------------------------------

void frmMotsInversés::TirerInversion()
{
    EcrireAlphabetDesPhrases(état);
    état.LettresEtSignes += u"0123456789";
    auto mots = TirerPhrase(application_.plateforme, choix_.rtfTexte.Text(), état.LettresEtSignes, Longueur,
                            lblBanque.Caption, TousEgaux);
    if (!mots) {
        Montrer(notice);
        return;
    }
    lblCorrigé.Caption = EnPhrase(*mots);
    lblBanque.Caption = lblBanque.Caption() + lblCorrigé.Caption() + u' ';
    cmbOrdre.AddItems(std::move(*mots));
    InverserDeuxMots();
    rtfPhrase.FontSize = TailleDesLettres(lblCorrigé.Caption().size());
    rtfPhrase.Text(EnPhrase(cmbMots.Eléments()));
    ToutTeindre(rtfPhrase, Bleu);
    rtfPhrase.SetFocus();
}

void frmMotsInversés::InverserDeuxMots()
{
    auto mots = cmbOrdre.Eléments();
    const auto nombre = static_cast<double>(mots.size());
    const auto premier = Tirer(application_.plateforme, nombre);
    const auto second =
        TirerSauf(application_.plateforme, nombre, [&](std::size_t autre) { return mots[autre] == mots[premier]; });
    assert(second);
    std::swap(mots[premier], mots[*second]);
    cmbMots.AddItems(std::move(mots));
}

// ---- The words chosen --------------------------------------------------------------------------------------------

void frmMotsInversés::rtfPhrase_Click()
{
    if (cmdOk.Visible || cmdSuivant.Visible)
        return; // the words have changed places
    const auto mot = MorceauAutour(rtfPhrase.Text(), rtfPhrase.SelStart(), u" ");
    rtfPhrase.Sélectionner(mot.Début, mot.Longueur());
    const int choisis = Compte(lblNombreMots);
    if (rtfPhrase.SelColor() == Bleu && choisis < 2) {
        TeindreSélection(rtfPhrase, Rouge);
        Incrémenter(lblNombreMots);
    } else if (rtfPhrase.SelColor() == Rouge && choisis > 0) {
        TeindreSélection(rtfPhrase, Bleu);
        Incrémenter(lblNombreMots, -1);
    }
    rtfPhrase.SelLength(0);
    cmdTerminé.Visible = lblNombreMots.Caption == MotsAEchanger;
    Dire({});
}

void frmMotsInversés::cmdTerminé_Click()
{
    rtfPassage.TextRTF(rtfPhrase.TextRTF());
    rtfInversion.TextRTF(rtfPhrase.TextRTF());
    EchangerMotsChoisis();
    rtfPhrase.TextRTF(rtfPassage.TextRTF());
    cmdTerminé.Visible = false;
    cmdOk.Visible = true;
    cmdAnnuler.Visible = true;
    cmdOk.SetFocus();
    Dire(u"Si la phrase te semble correcte, clique sur Ok.");
}

void frmMotsInversés::EchangerMotsChoisis()
{
    const auto choisis = Teints(rtfPassage.TextRTF(), Rouge);
    assert(choisis.size() >= 2);
    const auto& texte = rtfPassage.Text();
    lblMot(0).Caption = Texte{choisis[0].Dans(texte)};
    lblMot(1).Caption = Texte{choisis[1].Dans(texte)};
    rtfPassage.Remplacer(choisis[1].Début, choisis[1].Longueur(), lblMot(0).Caption);
    rtfPassage.Remplacer(choisis[0].Début, choisis[0].Longueur(), lblMot(1).Caption);
}

// The words come back in red, and only blue ones can be chosen now: without two of these, all are blue again.
void frmMotsInversés::cmdAnnuler_Click()
{
    lblNombreMots.Caption = u"0";
    rtfPhrase.TextRTF(rtfInversion.TextRTF());
    if (static_cast<int>(Teints(rtfPhrase.TextRTF(), Rouge).size()) > cmbMots.ListCount() - 2)
        ToutTeindre(rtfPhrase, Bleu);
    cmdOk.Visible = false;
    cmdAnnuler.Visible = false;
    cmdTerminé.Visible = false;
    rtfPhrase.SetFocus();
    Dire({});
}

// ---- Its check ---------------------------------------------------------------------------------------------------

void frmMotsInversés::cmdOk_Click()
{
    cmdOk.Visible = false;
    cmdAnnuler.Visible = false;
    if (Rogner(rtfPhrase.Text()) == Rogner(lblCorrigé.Caption))
        PhraseJuste();
    else if (lblEssais.Caption != u"0")
        Réessayer();
    else
        MontrerPhrase();
}

void frmMotsInversés::PhraseJuste()
{
    ToutTeindre(rtfPassage, VertFoncé);
    rtfPhrase.TextRTF(rtfPassage.TextRTF());
    Dire(u"C'est juste !", VertFoncé);
    Incrémenter(lblPoints(0), Compte(lblEssais));
    FinirPhrase();
}

void frmMotsInversés::Réessayer()
{
    Incrémenter(lblEssais, -1);
    ToutTeindre(rtfInversion, Bleu);
    lblNombreMots.Caption = u"0";
    rtfPhrase.TextRTF(rtfInversion.TextRTF());
    rtfPhrase.SetFocus();
    Dire(u"Ce n'est pas cela. Cherche encore !", Rouge);
}

void frmMotsInversés::MontrerPhrase()
{
    rtfPhrase.Text(lblCorrigé.Caption);
    Dire(u"Voici la phrase dans le bon ordre.", Rouge);
    FinirPhrase();
}

void frmMotsInversés::FinirPhrase()
{
    Incrémenter(lblPoints(1), Compte(lblEssaisMax));
    Incrémenter(lblCoups);
    if (lblCoups.Caption == DernièrePhrase)
        cmdSuivant.Caption = Texte{Quitter};
    lblEssais.Caption = lblEssaisMax.Caption;
    cmdSuivant.Visible = true;
    cmdSuivant.SetFocus();
}

void frmMotsInversés::Dire(Texte verdict, Couleur encre)
{
    lblVerdict.ForeColor = encre;
    lblVerdict.Caption = std::move(verdict);
}

void frmMotsInversés::cmdSuivant_Click()
{
    if (cmdSuivant.Caption == Quitter) {
        cmdAbandonner_Click();
        return;
    }
    cmdSuivant.Visible = false;
    cmbOrdre.Clear();
    cmbMots.Clear();
    lblNombreMots.Caption = u"0";
    for (auto& mot : lblMot)
        mot.Caption = Texte{};
    Dire({});
    TirerInversion();
}

void frmMotsInversés::cmdAbandonner_Click()
{
    if (lblPoints(1).Caption == u"0")
        Décharger();
    else
        ConclureSurPoints(*this, choix_, lblPoints);
}

} // namespace tirelune
