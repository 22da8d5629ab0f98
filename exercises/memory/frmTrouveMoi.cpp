#include "exercises/memory/frmTrouveMoi.h"

#include "core/Fonctions.h"
#include "core/Tirage.h"
#include "exercises/Conclure.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr std::size_t LettresMinimum = 3;
constexpr double PartDuTirage = 0.9; // of the text; a word is sought from there on
constexpr VueTexte MotsAvantLeDernier = u"9";
constexpr Couleur TeinteDuTexte = Cyan;
constexpr double TailleDuTexte = 12; // points
constexpr double TailleDuMot = 14;

void EnTexteDeGauche(Format& format)
{
    format = {.Police = u"MS Sans Serif", .Taille = TailleDuTexte, .Teinte = TeinteDuTexte, .Gras = true};
}

void EnMotChoisi(Format& format)
{
    format.Teinte = Jaune;
    format.Gras = true;
    format.Souligné = true;
    format.Taille = TailleDuMot;
}

void Formater(RichTextBox& boîte, const Passage& passage, const std::function<void(Format&)>& retouche)
{
    if (passage.Longueur() == 0)
        return;
    boîte.Sélectionner(passage.Début, passage.Longueur());
    boîte.FormaterSélection(retouche);
}

} // namespace

frmTrouveMoi::frmTrouveMoi(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmTrouveMoi", u"Trouve-moi"), choix_(choix)
{
    rtfTexte.Locked = true;
    rtfRéponse.Locked = true;
    for (auto& points : lblPoints)
        points.ToolTipText = u" Seul le score de la meilleur série est retenu. ";
    Horloge.Tick = [this] { Horloge_Tick(); };
    rtfRéponse.Click = [this] { rtfRéponse_Click(); };
    cmdSuivant.Click = [this] { cmdSuivant_Click(); };
}

Arrangement frmTrouveMoi::Disposer()
{
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail = Libre{rtfTexte, rtfRéponse, lblTemps, cmdSuivant},
    }};
}

void frmTrouveMoi::Load()
{
    lblConsigne.Visible = true;
    AjouterNomElève();
}

// ---- Places ------------------------------------------------------------------------------------------------------

// A new size is a new word. The same size told again is not.
void frmTrouveMoi::Resize()
{
    if (Width == largeur_ && Height == hauteur_)
        return;
    largeur_ = Width;
    hauteur_ = Height;
    PlacerTextes();
    if (!cmdSuivant.Visible)
        NouveauMot();
    else if (cmdSuivant.Caption != Quitter)
        cmdSuivant_Click(); // the judged word is over
}

// Under the text on the right there is room for the time and the button.
void frmTrouveMoi::PlacerTextes()
{
    static constexpr int Ecart = 100; // twips
    static constexpr int LargeurTemps = 700;
    rtfTexte.Width = static_cast<int>(Width / 3.5);
    rtfTexte.Height = std::max(0, Height - 500);
    rtfRéponse.Left = rtfTexte.Width + 400;
    rtfRéponse.Width = std::max(0, Width - rtfTexte.Width - 600);
    rtfRéponse.Height = std::max(0, rtfTexte.Height - lblConsigne.Height - lblPoints(0).Height - 65);
    lblConsigne.Left = rtfRéponse.Left + 50;
    lblTemps.Left = rtfRéponse.Width + 20;
    lblTemps.Width = LargeurTemps;
    lblTemps.Top = rtfRéponse.Height + Ecart;
    cmdSuivant.Top = rtfRéponse.Height + Ecart;
    cmdSuivant.Left = std::max(0, rtfRéponse.Left + rtfRéponse.Width - cmdSuivant.Width);
}

// ---- A word ------------------------------------------------------------------------------------------------------

void frmTrouveMoi::NouveauMot()
{
    RemplirTextes();
    if (!ChoisirMot()) {
        Avertir(u"Ce texte ne convient pas à cet exercice : je n'y trouve pas de mot à chercher !");
        Décharger();
        return;
    }
    rtfRéponse.Visible = true;
    rtfTexte.Visible = true;
    lblTemps.Visible = true;
    rtfRéponse.SetFocus();
    Horloge.Enabled = true;
}

// As new at each word: what the last one has changed is taken back.
void frmTrouveMoi::RemplirTextes()
{
    if (rtfTexte.Longueur() > 0) {
        Formater(rtfTexte, montré_, EnTexteDeGauche);
        Formater(rtfRéponse, barré_, [](Format& format) { format.Barré = false; });
        barré_ = {};
    } else {
        Format format;
        EnTexteDeGauche(format);
        rtfTexte.TextRTF(TexteRiche{Majuscules(choix_.rtfTexte.Text()), format});
        auto texte = choix_.rtfTexte.TextRTF();
        texte.Formater(0, texte.Longueur(), [](Format& un) { un.Barré = false; });
        rtfRéponse.TextRTF(std::move(texte));
        EcrireAlphabet(état);
        état.LettresEtSignes += u"-'";
        ChercherMots();
    }
    rtfTexte.Sélectionner(0, 0);
    rtfRéponse.Sélectionner(0, 0);
}

void frmTrouveMoi::ChercherMots()
{
    const VueTexte texte = rtfTexte.Text();
    for (auto blanc = texte.find(u' '); blanc != VueTexte::npos; blanc = texte.find(u' ', blanc + 1)) {
        const auto début = blanc + 1;
        mots_.push_back({début, std::min(texte.find_first_not_of(état.LettresEtSignes, début), texte.size())});
    }
}

bool frmTrouveMoi::ChoisirMot()
{
    // The word behind the first blank at or after a place.
    const auto depuis = [this](std::size_t place) {
        return std::lower_bound(mots_.begin(), mots_.end(), place,
                                [](const Passage& un, std::size_t p) { return un.Début - 1 < p; });
    };
    const auto refusé = [&](std::size_t place) {
        const auto mot = depuis(place);
        return mot == mots_.end() || mot->Longueur() < LettresMinimum;
    };
    const auto place =
        TirerSauf(application_.plateforme, static_cast<double>(rtfTexte.Longueur()) * PartDuTirage, refusé);
    if (!place)
        return false;
    montré_ = *depuis(*place);
    Formater(rtfTexte, montré_, EnMotChoisi);
    return true;
}

void frmTrouveMoi::Horloge_Tick()
{
    if (lblTemps.Caption != u"0") {
        Incrémenter(lblTemps, -1);
        return;
    }
    rtfRéponse.Sélectionner(0, 0); // where keys have led is no answer
    JugerRéponse();
}

void frmTrouveMoi::rtfRéponse_Click()
{
    const auto mot = MotAutour(rtfRéponse.Text(), rtfRéponse.SelStart(), état.LettresEtSignes);
    rtfRéponse.Sélectionner(mot.Début, mot.Longueur());
    JugerRéponse();
}

void frmTrouveMoi::JugerRéponse()
{
    Horloge.Enabled = false;
    if (rtfRéponse.SelStart() == rtfTexte.SelStart()) {
        Incrémenter(lblPoints(0));
        lblTemps.Caption = EnTexte(Compte(lblTempsRéf) - 2);
    } else {
        barré_ = {rtfRéponse.SelStart(), rtfRéponse.SelStart() + rtfRéponse.SelLength()};
        Formater(rtfRéponse, barré_, [](Format& format) { format.Barré = true; });
        rtfRéponse.Sélectionner(rtfTexte.SelStart(), rtfTexte.SelLength());
        lblTemps.Caption = EnTexte(Compte(lblTempsRéf) + 1);
    }
    rtfRéponse.Enabled = false;
    lblTempsRéf.Caption = lblTemps.Caption;
    Incrémenter(lblPoints(1));
    lblConsigne.Visible = false;
    cmdSuivant.Visible = true;
    cmdSuivant.SetFocus();
}

void frmTrouveMoi::cmdSuivant_Click()
{
    if (cmdSuivant.Caption == Quitter) {
        Conclure(*this, choix_, static_cast<float>(Compte(lblPoints(0))));
        return;
    }
    cmdSuivant.Visible = false;
    if (lblPoints(1).Caption == MotsAvantLeDernier)
        cmdSuivant.Caption = Texte{Quitter};
    rtfRéponse.Enabled = true;
    NouveauMot();
}

} // namespace tirelune
