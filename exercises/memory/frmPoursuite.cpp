#include "exercises/memory/frmPoursuite.h"

#include "core/Fonctions.h"
#include "exercises/Conclure.h"
#include "followup/Notes.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace tirelune {

namespace {

constexpr int VitesseInitiale = 100; // ms between two letters
constexpr int PauseDePhrase = 1000;  // ms
constexpr int PauseDeVirgule = 500;
constexpr VueTexte SignesDePhrase = u".!?;:";
constexpr int PlacesDuMotFinal = 9; // never the last label
constexpr long MargeDuTirage = 26;  // characters at the end of the text that no draw starts from
constexpr long PremièrePlaceTirée = 25;
constexpr int PoursuitesAvantLaDernière = 4;
constexpr int TailleMinimum = 1000; // twips
constexpr VueTexte Quitter = u"&Quitter";

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
std::size_t EnPlace(long tirage)
{
    return static_cast<std::size_t>(std::max(1L, tirage)) - 1;
}

long PartieEntière(double nombre)
{
    return static_cast<long>(std::floor(nombre));
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
    return Pile{
        Libre{rtfPoursuite},
        Centré{Cadre{frameConsigne, AuMoins(10000, 0, Colonne{lblConsigne, Centré{cmdCommencer}})}},
        Cadre{frameMot,
              Colonne{
                  Ligne{Label1, Ressort{}, BandeDePoints(lblPoints)},
                  Extensible(Ligne{Extensible(Colonne{lblMot}), Ressort{}}),
                  Ligne{Ressort{}, cmdContinuer},
              }},
    };
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
    ChercherBlancs();
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
    if (FaireApparaître(arrêt->Blanc))
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

void frmPoursuite::ChercherBlancs()
{
    blancs_.clear();
    const auto& texte = rtfPoursuite.Text();
    std::size_t début = 0;
    for (std::size_t place = 0; place < texte.size(); ++place) {
        if (texte[place] == u' ')
            blancs_.push_back({début, place});
        if (!Contient(état.LettresEtChiffres, texte[place]))
            début = place + 1;
    }
}

std::vector<frmPoursuite::Butée>::const_iterator frmPoursuite::BlancDepuis(std::size_t place) const
{
    return std::lower_bound(blancs_.begin(), blancs_.end(), place,
                            [](const Butée& un, std::size_t p) { return un.Blanc < p; });
}

std::optional<frmPoursuite::Butée> frmPoursuite::ButéeDepuis(std::size_t place) const
{
    const auto un = BlancDepuis(place);
    return un == blancs_.end() || !un->SuitUnMot() ? std::nullopt : std::optional{*un};
}

std::vector<frmPoursuite::Butée> frmPoursuite::ButéesEntre(std::size_t premier, std::size_t dernier) const
{
    std::vector<Butée> butées;
    for (auto un = BlancDepuis(premier); un != blancs_.end(); ++un) {
        if (un->SuitUnMot())
            butées.push_back(*un);
        if (un->Blanc >= dernier)
            break;
    }
    return butées;
}

VueTexte frmPoursuite::MotDe(const Butée& butée) const
{
    return VueTexte{rtfPoursuite.Text()}.substr(butée.Début, butée.Blanc - butée.Début);
}

std::optional<frmPoursuite::Butée> frmPoursuite::TirerArrêt()
{
    const auto longueur = static_cast<long>(rtfPoursuite.Longueur());
    const long premier = longueur / 10;
    const long tirages = (longueur + 2) / 3; // how many places a draw can fall on
    if (ButéesEntre(EnPlace(premier), EnPlace(premier + tirages - 1)).empty())
        return std::nullopt;
    for (;;) {
        application_.plateforme.AmorcerHasard();
        const double tirage = static_cast<double>(longueur) / 3 * application_.plateforme.Hasard();
        if (const auto arrêt = ButéeDepuis(EnPlace(premier + PartieEntière(tirage))))
            return arrêt;
    }
}

void frmPoursuite::TirerMotFinal(const Butée& arrêt)
{
    const Texte mot{MotDe(arrêt)};
    auto& place = lblMot(static_cast<int>(Tirer(application_.plateforme, PlacesDuMotFinal)));
    place.AutoSize = true;
    place.Caption = mot;
    lblCorrigé.Caption = mot;
}

void frmPoursuite::RemplirPropositions()
{
    int restants = CompterAutresMots();
    for (auto& mot : lblMot) {
        if (mot.Caption().empty() && restants > 0) {
            do
                TirerMotTexte();
            while (EstProposé(lblPassage.Caption));
            mot.AutoSize = true;
            mot.Caption = lblPassage.Caption;
            --restants;
        }
        mot.Visible = !mot.Caption().empty();
    }
}

// There is at least one word to be drawn.
void frmPoursuite::TirerMotTexte()
{
    const auto étendue = static_cast<double>(rtfPoursuite.Longueur()) - static_cast<double>(MargeDuTirage);
    for (;;) {
        application_.plateforme.AmorcerHasard();
        const double tirage = application_.plateforme.Hasard() * étendue;
        if (const auto butée = ButéeDepuis(EnPlace(PremièrePlaceTirée + PartieEntière(tirage)))) {
            lblPassage.Caption = Texte{MotDe(*butée)};
            return;
        }
    }
}

int frmPoursuite::CompterAutresMots() const
{
    // In a text shorter than the margin the draws go downward.
    const auto longueur = static_cast<long>(rtfPoursuite.Longueur());
    const auto butées =
        ButéesEntre(EnPlace(std::min(PremièrePlaceTirée, longueur - MargeDuTirage + PremièrePlaceTirée)),
                    EnPlace(std::max(PremièrePlaceTirée, longueur - MargeDuTirage + PremièrePlaceTirée - 1)));
    std::set<VueTexte> mots;
    for (const auto& butée : butées)
        mots.insert(MotDe(butée));
    mots.erase(lblCorrigé.Caption);
    return static_cast<int>(mots.size());
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

bool frmPoursuite::EstRépondu() const
{
    for (int i = 0; i < lblMot.Nombre(); ++i) {
        if (lblMot(i).BackColor != Blanc)
            return true;
    }
    return false;
}

void frmPoursuite::lblMot_Click(int i)
{
    if (EstRépondu())
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
        Conclure(*this, choix_, NoteSurDix(lblPoints(0), lblPoints(1)));
        return;
    }
    if (Valeur(lblPoints(1).Caption) >= PoursuitesAvantLaDernière)
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
