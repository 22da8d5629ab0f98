#include "exercises/memory/frmPoursuite.h"

#include "core/Fonctions.h"
#include "core/Tirage.h"
#include "exercises/Conclure.h"
#include "exercises/Propositions.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int VitesseInitiale = 100; // ms between two letters
constexpr int PauseDePhrase = 1000;  // ms
constexpr int PauseDeVirgule = 500;
constexpr VueTexte SignesDePhrase = u".!?;:";
constexpr int PlacesDuMotFinal = 9;  // never the last label
constexpr double MargeDuTirage = 26; // characters of the text that no draw starts from
constexpr std::size_t PremièrePlaceTirée = 25;
constexpr int PoursuitesAvantLaDernière = 4;
constexpr int TailleMinimum = 1000; // twips

// ms between two letters: 1, 100, 200 or 400.
std::int16_t PlusVite(std::int16_t vitesse)
{
    return vitesse > 100 ? static_cast<std::int16_t>(vitesse / 2) : std::int16_t{1};
}

std::int16_t MoinsVite(std::int16_t vitesse)
{
    return vitesse < 100 ? std::int16_t{100} : std::min(static_cast<std::int16_t>(vitesse * 2), std::int16_t{400});
}

// Place from 0 of a draw that counts from 1; nothing stands before the text.
std::size_t EnPlace(std::size_t tirage)
{
    return std::max<std::size_t>(1, tirage) - 1;
}

} // namespace

frmPoursuite::frmPoursuite(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmPoursuite", u"Poursuite"), choix_(choix)
{
    BackColor = GrisClair;
    rtfPoursuite.Locked = true;
    cmdCommencer.Click = [this] { cmdCommencer_Click(); };
    Horloge.Tick = [this] { Horloge_Tick(); };
    Horloge2.Tick = [this] { Horloge2_Tick(); };
    lblMot.Click([this](int i) { lblMot_Click(i); });
    cmdContinuer.Click = [this] { cmdContinuer_Click(); };
}

Arrangement frmPoursuite::Disposer()
{
    return Page{{
        .Points = Suite{frameMot, BandeDePoints(lblPoints)},
        .Travail =
            Pile{
                Libre{rtfPoursuite},
                Centré{Cadre{frameConsigne, AuMoins(10000, 0, lblConsigne)}},
                Cadre{frameMot, Colonne{Label1, Extensible(Grille{2, lblMot})}},
            },
        .Pied = Ligne{Ressort{}, Pile{Suite{frameConsigne, cmdCommencer}, Suite{frameMot, cmdContinuer}}},
    }};
}

void frmPoursuite::Load()
{
    AjouterNomElève();
    état.VitessePoursuite = VitesseInitiale;
    cmdCommencer.SetFocus();
}

void frmPoursuite::Resize()
{
    if (Width < TailleMinimum || Height < TailleMinimum)
        return;
    rtfPoursuite.Width = Width - 150;
    rtfPoursuite.Height = Height - 500;
}

// ---- A chase -----------------------------------------------------------------------------------------------------

void frmPoursuite::cmdCommencer_Click()
{
    frameConsigne.Visible = false;
    Repeindre();
    CacherTexte();
    EcrireAlphabetSimple(état);
    état.LettresEtChiffres += u'-';
    ChercherMots();
    const auto arrêt = TirerArrêt();
    if (!arrêt) {
        Avertir(u"Ce texte ne convient pas à cet exercice : je n'y trouve pas de mot suivi d'un espace où m'arrêter !");
        Décharger();
        return;
    }
    for (auto& mot : lblMot)
        mot.Caption = Texte{};
    TirerMotFinal(*arrêt);
    RemplirPropositions();
    if (FaireApparaître(arrêt->Fin))
        DemanderMot();
}

// White on white, in one go: the text is never there in its own colours.
void frmPoursuite::CacherTexte()
{
    auto texte = choix_.rtfTexte.TextRTF();
    texte.Formater(0, texte.Longueur(), [](Format& format) {
        format.Teinte = Blanc;
        format.Barré = false;
    });
    rtfPoursuite.TextRTF(std::move(texte));
    rtfPoursuite.Visible = true;
    Repeindre();
}

void frmPoursuite::ChercherMots()
{
    const auto& texte = rtfPoursuite.Text();
    mots_.clear();
    for (auto blanc = texte.find(u' '); blanc != Texte::npos; blanc = texte.find(u' ', blanc + 1))
        mots_.push_back(MotAutour(texte, blanc, état.LettresEtChiffres));
}

std::optional<Passage> frmPoursuite::MotDepuis(std::size_t place) const
{
    const auto mot = std::lower_bound(mots_.begin(), mots_.end(), place,
                                      [](const Passage& un, std::size_t p) { return un.Fin < p; });
    return mot == mots_.end() || mot->Longueur() == 0 ? std::nullopt : std::optional{*mot};
}

std::optional<Passage> frmPoursuite::TirerArrêt()
{
    const auto longueur = rtfPoursuite.Longueur();
    const auto depuis = [&](std::size_t tirage) { return MotDepuis(EnPlace(longueur / 10 + tirage)); };
    const auto tirage = TirerSauf(application_.plateforme, static_cast<double>(longueur) / 3,
                                  [&](std::size_t place) { return !depuis(place); });
    return tirage ? depuis(*tirage) : std::nullopt;
}

void frmPoursuite::TirerMotFinal(const Passage& arrêt)
{
    lblCorrigé.Caption = Texte{arrêt.Dans(rtfPoursuite.Text())};
    Proposer(lblMot(static_cast<int>(Tirer(application_.plateforme, PlacesDuMotFinal))), lblCorrigé.Caption);
}

void frmPoursuite::RemplirPropositions()
{
    for (auto& mot : lblMot) {
        if (mot.Caption().empty() && TirerMotTexte())
            Proposer(mot, lblPassage.Caption);
        mot.Visible = !mot.Caption().empty();
    }
}

bool frmPoursuite::TirerMotTexte()
{
    const auto depuis = [&](std::size_t tirage) { return MotDepuis(EnPlace(PremièrePlaceTirée + tirage)); };
    const auto refusé = [&](std::size_t tirage) {
        const auto mot = depuis(tirage);
        return !mot || EstProposé(mot->Dans(rtfPoursuite.Text()));
    };
    const auto étendue = static_cast<double>(rtfPoursuite.Longueur()) - MargeDuTirage;
    const auto tirage = TirerSauf(application_.plateforme, std::max(étendue, 0.0), refusé);
    if (tirage)
        lblPassage.Caption = Texte{depuis(*tirage)->Dans(rtfPoursuite.Text())};
    return tirage.has_value();
}

bool frmPoursuite::EstProposé(VueTexte mot) const
{
    for (int i = 0; i < lblMot.Nombre(); ++i) {
        if (lblMot(i).Caption == mot)
            return true;
    }
    return false;
}

bool frmPoursuite::FaireApparaître(std::size_t fin)
{
    for (état.PositionPoursuite = 0; état.PositionPoursuite <= static_cast<long>(fin); ++état.PositionPoursuite) {
        Horloge.Enabled = true;
        if (!AttendreArrêt(Horloge))
            return false;
    }
    Horloge2.Enabled = true;
    return AttendreArrêt(Horloge2);
}

// The character looked at is the one that the last tick coloured, so that a click in the text disturbs nothing.
void frmPoursuite::Horloge_Tick()
{
    Horloge.Enabled = false;
    const auto position = static_cast<std::size_t>(état.PositionPoursuite);
    const auto dernier = position == 0 ? Texte{} : rtfPoursuite.CaractèreEn(position - 1);
    if (!dernier.empty() && Contient(SignesDePhrase, dernier.front()))
        Horloge.Interval = PauseDePhrase;
    else if (dernier == u",")
        Horloge.Interval = PauseDeVirgule;
    else
        Horloge.Interval = état.VitessePoursuite;
    rtfPoursuite.Sélectionner(position, 1);
    rtfPoursuite.SelColor = Bleu;
}

void frmPoursuite::Horloge2_Tick()
{
    Horloge2.Enabled = false;
}

// ---- The answer --------------------------------------------------------------------------------------------------

void frmPoursuite::DemanderMot()
{
    rtfPoursuite.Visible = false;
    frameMot.Visible = true;
    Horloge.Enabled = false;
    const auto premier = std::find_if(lblMot.begin(), lblMot.end(), [](const Label& mot) { return mot.Visible(); });
    premier->SetFocus(); // there is one: the right word
}

void frmPoursuite::lblMot_Click(int i)
{
    if (EstRépondu(lblMot))
        return;
    if (lblMot(i).Caption == lblCorrigé.Caption) {
        lblMot(i).BackColor = Vert;
        Incrémenter(lblPoints(0));
        état.VitessePoursuite = PlusVite(état.VitessePoursuite);
    } else {
        lblMot(i).BackColor = Rouge;
        état.VitessePoursuite = MoinsVite(état.VitessePoursuite);
    }
    Incrémenter(lblPoints(1));
    cmdContinuer.Visible = true;
    cmdContinuer.SetFocus();
}

void frmPoursuite::cmdContinuer_Click()
{
    if (cmdContinuer.Caption == Quitter) {
        ConclureSurPoints(*this, choix_, lblPoints);
        return;
    }
    if (Compte(lblPoints(1)) >= PoursuitesAvantLaDernière)
        cmdContinuer.Caption = Texte{Quitter};
    frameMot.Visible = false;
    cmdContinuer.Visible = false;
    for (auto& mot : lblMot) {
        mot.BackColor = Blanc;
        mot.Caption = Texte{};
    }
    cmdCommencer_Click();
}

} // namespace tirelune
