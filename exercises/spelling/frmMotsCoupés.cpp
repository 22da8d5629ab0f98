#include "exercises/spelling/frmMotsCoupés.h"

#include "core/Tirage.h"
#include "exercises/Conclure.h"

#include <algorithm>
#include <set>

namespace tirelune {

using namespace std::chrono_literals;

namespace {

constexpr auto PauseDeCorrection = 1500ms;
constexpr std::size_t LettresMinimum = 6;
constexpr std::size_t LettresDuDébut = 3;
constexpr int MotsLongsMinimum = 5;

// Equal ones make a single row.
int CompterMotsLongs(const ComboBox& vocabulaire)
{
    std::set<VueTexte> longs;
    for (const auto& mot : vocabulaire.Eléments()) {
        if (mot.size() >= LettresMinimum)
            longs.insert(mot);
    }
    return static_cast<int>(longs.size());
}

int CompterRangées(const ComboBox& vocabulaire)
{
    return std::min(CompterMotsLongs(vocabulaire), frmMotsCoupés::RangéesMaximum);
}

bool EstComplet(const Label& début)
{
    return début.Caption().size() > LettresDuDébut;
}

} // namespace

frmMotsCoupés::frmMotsCoupés(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmMotsCoupés", u"Mots coupés"), choix_(choix)
{
    lblPoints(0).ToolTipText = u" Chaque fois que tu te trompes, tu perds 2 points. ";
    lblMotDébut.Click([this](int i) { lblMotDébut_Click(i); });
    lblMotFin.Click([this](int i) { lblMotFin_Click(i); });
    cmdQuitter.Click = [this] { cmdQuitter_Click(); };
}

// The columns are as wide as one another, the rows that are played share the height, and each word of the correction
// comes where its end was.
Arrangement frmMotsCoupés::Disposer()
{
    const int jouées = CompterRangées(choix_.cmbVocabulaire);
    std::vector<Arrangement> places;
    for (int i = 0; i < RangéesMaximum; ++i) {
        const int part = i < jouées ? 1 : 0;
        places.emplace_back(Extensible(Pile{lblMotDébut(i)}, part));
        places.emplace_back(Extensible(Pile{lblMotFin(i), lblMot(i)}, part));
    }
    Arrangement rangées{Disposition::Grille, std::move(places)};
    rangées.Colonnes = 2;
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail = rangées,
        .Pied = Ligne{Ressort{}, cmdQuitter},
        .Dessus = EnPlace(notice),
    }};
}

void frmMotsCoupés::Load()
{
    AjouterNomElève();
    if (CompterMotsLongs(choix_.cmbVocabulaire) < MotsLongsMinimum) {
        Montrer(notice);
        return;
    }
    ChoisirMotsLongs();
    MontrerMots();
    CouperMots();
    GuiderClavier();
}

// ---- The words ---------------------------------------------------------------------------------------------------

void frmMotsCoupés::ChoisirMotsLongs()
{
    const int rangées = CompterRangées(choix_.cmbVocabulaire);
    while (cmbMots.ListCount() < rangées) {
        const auto k = Tirer(application_.plateforme, choix_.cmbVocabulaire.ListCount());
        const auto& candidat = choix_.cmbVocabulaire.List(static_cast<int>(k));
        auto& liste = candidat.size() < LettresMinimum ? cmbEliminés : cmbMots;
        if (liste.Chercher(candidat) < 0)
            liste.AddItem(candidat);
    }
}

void frmMotsCoupés::MontrerMots()
{
    for (int i = 0; i < cmbMots.ListCount(); ++i) {
        lblMot(i).Caption = cmbMots.List(i);
        lblMotDébut(i).Visible = true;
        lblMotFin(i).Visible = true;
    }
}

void frmMotsCoupés::CouperMots()
{
    const int rangées = cmbMots.ListCount();
    const auto occupée = [this](std::size_t k) { return !lblMotFin(static_cast<int>(k)).Caption().empty(); };
    for (int i = 0; i < rangées; ++i) {
        const auto& mot = cmbMots.List(i);
        lblMotDébut(i).Caption = mot.substr(0, LettresDuDébut);
        if (const auto k = TirerSauf(application_.plateforme, rangées, occupée))
            lblMotFin(static_cast<int>(*k)).Caption = mot.substr(LettresDuDébut);
    }
}

// ---- The play ----------------------------------------------------------------------------------------------------

void frmMotsCoupés::lblMotFin_Click(int i)
{
    if (lblMotFin(i).Caption().empty() || cmdQuitter.Caption == Quitter)
        return;
    for (auto& fin : lblMotFin)
        fin.BackColor = Blanc;
    lblMotFin(i).BackColor = Jaune;
    lblPassage.Caption = lblMotFin(i).Caption;
    GuiderClavier();
}

void frmMotsCoupés::lblMotDébut_Click(int i)
{
    if (cmdQuitter.Caption == Quitter)
        return;
    if (lblPassage.Caption().empty())
        Enlever(i);
    else
        Joindre(i);
}

void frmMotsCoupés::Enlever(int i)
{
    auto& début = lblMotDébut(i);
    if (!EstComplet(début))
        return;
    const auto libre =
        std::find_if(lblMotFin.begin(), lblMotFin.end(), [](const Label& fin) { return fin.Caption().empty(); });
    libre->Caption = début.Caption().substr(LettresDuDébut);
    début.Caption = début.Caption().substr(0, LettresDuDébut);
}

void frmMotsCoupés::Joindre(int i)
{
    if (EstComplet(lblMotDébut(i)))
        return;
    lblMotDébut(i).Caption = lblMotDébut(i).Caption() + lblPassage.Caption();
    for (auto& fin : lblMotFin) {
        if (fin.BackColor == Jaune) {
            fin.Caption = Texte{};
            fin.BackColor = Blanc;
        }
    }
    lblPassage.Caption = Texte{};
    GuiderClavier();
}

// The keyboard goes to what is to be pressed next: an end, then a beginning that has none, and the button at last.
void frmMotsCoupés::GuiderClavier()
{
    if (lblPassage.Caption().empty()) {
        for (auto& fin : lblMotFin) {
            if (!fin.Caption().empty()) {
                fin.SetFocus();
                return;
            }
        }
        cmdQuitter.SetFocus();
        return;
    }
    for (auto& début : lblMotDébut) {
        if (début.Visible && !EstComplet(début)) {
            début.SetFocus();
            return;
        }
    }
}

// ---- The end -----------------------------------------------------------------------------------------------------

void frmMotsCoupés::cmdQuitter_Click()
{
    if (cmdQuitter.Caption == Quitter) {
        ConclureSurPoints(*this, choix_, lblPoints);
        return;
    }
    cmdQuitter.Caption = Texte{Quitter};
    cmdQuitter.Visible = false;
    Vérifier();
    if (!Corriger())
        return;
    cmdQuitter.Visible = true;
    cmdQuitter.SetFocus();
}

void frmMotsCoupés::Vérifier()
{
    for (auto& début : lblMotDébut) {
        if (!début.Visible)
            break;
        if (const int trouvé = cmbMots.Chercher(début.Caption); trouvé >= 0) {
            Incrémenter(lblPoints(0));
            cmbMots.RemoveItem(trouvé);
        } else {
            début.BackColor = Rouge;
        }
        Incrémenter(lblPoints(1));
    }
}

bool frmMotsCoupés::Corriger()
{
    for (int i = 0; i < RangéesMaximum && lblMotDébut(i).Visible; ++i) {
        lblMotFin(i).Visible = false;
        lblMot(i).AutoSize = true;
        lblMot(i).ForeColor = Bleu;
        lblMot(i).Visible = true;
        lblMot(i).Refresh();
        if (!Attendre(PauseDeCorrection))
            return false;
    }
    return true;
}

} // namespace tirelune
