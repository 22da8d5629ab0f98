#include "exercises/spelling/frmEcrirePhrase.h"

#include "core/Fonctions.h"
#include "exercises/Conclure.h"
#include "exercises/Phrases.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr std::size_t MotsDeLaPhrase = 11;
constexpr char16_t LettreCachée = u'_';
constexpr int DernièreEtape = 3; // the test
constexpr int PointsParErreur = 4;
constexpr VueTexte BlancsInsécables = u"\u00A0\u202F";

} // namespace

frmEcrirePhrase::frmEcrirePhrase(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmEcrirePhrase", u"Ecrire une phrase"), choix_(choix)
{
    rtfPhrase.Locked = true;
    rtfPhrase.Click = [this] { ProchainTrou(); };
    rtfPhrase.KeyPress = [this](Touche& touche) { rtfPhrase_KeyPress(touche); };
    cmdCommencer.Click = [this] { cmdCommencer_Click(); };
    cmdErreur.Click = [this] { cmdErreur_Click(); };
}

Arrangement frmEcrirePhrase::Disposer()
{
    return Page{{
        .Consigne = Pile{lblConsigne, lblMaj},
        .Points = BandeDePoints(lblPoints),
        .Travail =
            Colonne{
                Ligne{Ressort{}, lblTest, Ressort{}},
                Extensible(rtfPhrase),
                Ligne{Ressort{}, cmdErreur, Ressort{}},
            },
        .Pied = Ligne{Ressort{}, cmdCommencer},
        .Dessus = EnPlace(notice),
    }};
}

void frmEcrirePhrase::Load()
{
    AjouterNomElève();
    ChoisirPhrase();
}

void frmEcrirePhrase::ChoisirPhrase()
{
    EcrireAlphabetDesPhrases(état);
    auto mots =
        TirerPhrase(application_.plateforme, choix_.rtfTexte.Text(), état.LettresEtSignes, {.Minimum = MotsDeLaPhrase});
    if (!mots) {
        Montrer(notice);
        return;
    }
    cmbOrdre.AddItems(std::move(*mots));
    txtCorrigé.Text = EnPhrase(cmbOrdre.Eléments());
    rtfPhrase.Text(txtCorrigé.Text);
    cmdCommencer.SetFocus();
}

// ---- A stage -----------------------------------------------------------------------------------------------------

void frmEcrirePhrase::cmdCommencer_Click()
{
    if (cmdErreur.Visible)
        return;
    if (cmdCommencer.Caption == Quitter) {
        ConclureSurPoints(*this, choix_, lblPoints);
        return;
    }
    lblConsigne.Visible = false;
    lblMaj.Visible = true;
    lblTest.Visible = true;
    cmdCommencer.Visible = false;
    Incrémenter(lblPassage);
    cmdCommencer.Caption = Compte(lblPassage) == DernièreEtape ? Texte{Quitter} : u"&Suivant";
    if (Compte(lblPassage) == DernièreEtape) {
        lblTest.Caption = u"Test";
        lblTest.ForeColor = Rouge;
        lblTest.ToolTipText = u" ATTENTION : maintenant, on compte les points ! ";
    }
    rtfPhrase.Text(PhraseMasquée());
    ProchainTrou();
    rtfPhrase.SetFocus();
    FinirSiComplète(); // at once, where no word has a letter to mask
}

bool frmEcrirePhrase::EstTest() const
{
    return lblTest.Caption == u"Test";
}

bool frmEcrirePhrase::EstMasqué(int mot) const
{
    const int étape = Compte(lblPassage);
    return étape == DernièreEtape || mot % 2 == étape % 2;
}

Texte frmEcrirePhrase::PhraseMasquée() const
{
    EcrireAlphabetSimple(état);
    état.LettresEtChiffres += u"'-";
    std::vector<Texte> mots = cmbOrdre.Eléments();
    for (int i = 0; i < cmbOrdre.ListCount(); ++i) {
        if (!EstMasqué(i))
            continue;
        auto& mot = mots[static_cast<std::size_t>(i)];
        std::replace_if(
            mot.begin(), mot.end(), [this](char16_t c) { return Contient(état.LettresEtChiffres, c); }, LettreCachée);
    }
    return EnPhrase(mots);
}

void frmEcrirePhrase::ProchainTrou()
{
    const auto trou = rtfPhrase.Text().find(LettreCachée);
    if (trou == Texte::npos) {
        rtfPhrase.SelLength(0);
        return;
    }
    rtfPhrase.Sélectionner(trou, 1);
    txtCorrigé.SelStart = trou;
    txtCorrigé.SelLength = 1;
}

void frmEcrirePhrase::FinirSiComplète()
{
    if (txtCorrigé.Text != rtfPhrase.Text())
        return;
    cmdCommencer.Visible = true;
    cmdCommencer.SetFocus();
}

// ---- A letter ----------------------------------------------------------------------------------------------------

void frmEcrirePhrase::rtfPhrase_KeyPress(Touche& touche)
{
    if (touche.Caractère == 0) {
        if (touche.Code >= Touche::PagePrécédente && touche.Code <= Touche::Bas)
            touche.Avaler(); // nobody moves the place of the next letter
        return;
    }
    if (cmdCommencer.Visible || cmdErreur.Visible)
        return;
    touche.Avaler();
    if (touche.Caractère > u' ' && !Contient(BlancsInsécables, touche.Caractère))
        Juger(ApostropheDroite(touche.Caractère));
}

void frmEcrirePhrase::Juger(char16_t lettre)
{
    const auto juste = txtCorrigé.SelText();
    if (juste == Texte{lettre}) {
        rtfPhrase.SelColor = VertFoncé;
        if (EstTest())
            Incrémenter(lblPoints(0));
    } else {
        lblPoints(0).Caption = EnTexte(std::max(0, Compte(lblPoints(0)) - PointsParErreur));
        rtfPhrase.SelColor = Rouge;
        cmdErreur.Visible = true;
        cmdErreur.Refresh();
    }
    if (EstTest())
        Incrémenter(lblPoints(1));
    rtfPhrase.SelText(juste);
    ProchainTrou();
    FinirSiComplète();
}

void frmEcrirePhrase::cmdErreur_Click()
{
    cmdErreur.Visible = false;
    cmdErreur.Refresh();
    ProchainTrou();
    if (cmdCommencer.Visible)
        cmdCommencer.SetFocus();
    else
        rtfPhrase.SetFocus();
}

} // namespace tirelune
