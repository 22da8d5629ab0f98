#include "exercises/memory/frmSérie.h"

#include "exercises/Conclure.h"
#include "exercises/Propositions.h"
#include "exercises/TirageVocabulaire.h"

#include <algorithm>
#include <limits>

namespace tirelune {

using namespace std::chrono_literals;

namespace {

constexpr auto PauseAvantUnMot = 1000ms;
constexpr auto PauseAprèsLaSuite = 2000ms;
constexpr int SériesMaximum = 3;
constexpr double TailleQuitter = 12; // points
constexpr int MargeCase = 240;       // twips, left and right of a word together
constexpr int Ecart = 90;            // twips, between slots

} // namespace

frmSérie::frmSérie(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmSérie", u"Mémoriser une série"), choix_(choix)
{
    lblPoints(0).ToolTipText = u" Seul le score de la meilleure série est retenu. ";
    lblPoints(1).ToolTipText = u" Seul le score de la meilleure série est retenu. ";
    lblPoints(2).ToolTipText = u" Seul le score de la meilleur série est retenu. ";
    cmdVoir.Click = [this] { cmdVoir_Click(); };
    lblChoix.Click([this](int c) { lblChoix_Click(c); });
    cmdContinuer.Click = [this] { cmdContinuer_Click(); };
}

Arrangement frmSérie::Disposer()
{
    Arrangement cases{Disposition::Libre, EnPlaces(lblMot)};
    for (auto& réponse : lblRéponse)
        cases.Enfants.emplace_back(réponse);
    std::vector<Arrangement> choix; // the first five on the left
    const int moitié = lblChoix.Nombre() / 2;
    for (int i = 0; i < moitié; ++i) {
        choix.emplace_back(Extensible(lblChoix(i)));
        choix.emplace_back(Extensible(lblChoix(i + moitié)));
    }
    Arrangement deuxColonnes{Disposition::Grille, std::move(choix)};
    deuxColonnes.Colonnes = 2;
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail = Ligne{Extensible(cases), Extensible(Cadre{frameChoix, deuxColonnes})},
        .Pied = Ligne{Ressort{}, Pile{cmdVoir, cmdContinuer}},
        .Dessus = EnPlace(notice),
    }};
}

void frmSérie::Load()
{
    AjouterNomElève();
    if (CompterMotsDifférents(choix_.cmbVocabulaire) < MotsDifférentsMinimum) {
        Montrer(notice);
        return;
    }
    NouvelleSérie();
    cmdVoir.SetFocus();
}

// The slots share the height that the bars leave. The expected word comes up beside its slot, and before the list.
void frmSérie::Resize()
{
    const int pas = Height * 4 / 5 / lblMot.Nombre();
    for (int i = 0; i < lblMot.Nombre(); ++i) {
        lblMot(i).Top = i * pas;
        lblMot(i).Height = std::max(0, pas - Ecart);
        lblRéponse(i).Top = lblMot(i).Top;
        lblMot(i).Width = std::min(lblMot(i).Width(), LargeurMaximum());
        AjusterRéponse(i);
    }
}

// ---- A series ----------------------------------------------------------------------------------------------------

void frmSérie::NouvelleSérie()
{
    Incrémenter(lblCompteur);
    const int mots = std::min(CompterMotsDifférents(choix_.cmbVocabulaire), lblChoix.Nombre());
    état.NoteSérie = static_cast<std::uint8_t>(mots - 1);
    lblPoints(1).Caption = EnTexte(mots);
    ChoisirMots();
    CacherOrdre();
}

void frmSérie::ChoisirMots()
{
    int i = 0;
    for (auto& mot : TirerMotsDifférents(choix_.cmbVocabulaire, état.NoteSérie + 1, application_.plateforme)) {
        lblChoix(i).Visible = true;
        Proposer(lblChoix(i), std::move(mot));
        ++i;
    }
}

void frmSérie::CacherOrdre()
{
    std::vector<Texte> choix;
    for (int i = 0; i <= état.NoteSérie; ++i)
        choix.push_back(lblChoix(i).Caption);
    int i = 0;
    for (const auto& mot : TirerMotsDifférents(choix, état.NoteSérie + 1, application_.plateforme)) {
        Proposer(lblRéponse(i), mot);
        ElargirCases(mot);
        ++i;
    }
}

int frmSérie::LargeurPour(const Texte& mot) const
{
    return static_cast<int>(application_.plateforme.LargeurTexte(mot, TailleMots)) + MargeCase;
}

// A slot and a word beside it share half the screen; a long phrase gets small letters or several lines.
int frmSérie::LargeurMaximum() const
{
    return Width > 0 ? Width / 4 - Ecart : std::numeric_limits<int>::max(); // not shown yet
}

void frmSérie::ElargirCases(const Texte& mot)
{
    const int largeur = std::min(LargeurPour(mot), LargeurMaximum());
    for (int j = 0; j < lblMot.Nombre(); ++j) {
        lblMot(j).Width = std::max(lblMot(j).Width(), largeur);
        AjusterRéponse(j);
    }
}

void frmSérie::AjusterRéponse(int i)
{
    auto& réponse = lblRéponse(i);
    réponse.Left = lblMot(i).Width + Ecart;
    const int largeur = LargeurPour(réponse.Caption);
    réponse.AutoSize = largeur <= LargeurMaximum();
    if (réponse.AutoSize)
        return;
    réponse.Width = LargeurMaximum();
    réponse.Height = lblMot(i).Height;
}

// ---- The display -------------------------------------------------------------------------------------------------

void frmSérie::cmdVoir_Click()
{
    if (cmdContinuer.Visible)
        return;
    frameChoix.Visible = false;
    cmdVoir.Visible = false;
    for (auto& mot : lblMot)
        mot.Visible = false;
    Repeindre();
    AllongerSuite();
    if (!MontrerSuite())
        return;
    ViderCases();
    DemanderSuite();
}

bool frmSérie::EstDansLaSuite(int i) const
{
    return lblRéponse(i).BackColor == Rouge && !lblRéponse(i).Caption().empty();
}

void frmSérie::AllongerSuite()
{
    for (auto& réponse : lblRéponse) {
        if (réponse.BackColor != Blanc)
            continue;
        if (!réponse.Caption().empty())
            réponse.BackColor = Rouge;
        return;
    }
}

bool frmSérie::MontrerSuite()
{
    for (int i = 0; i < lblRéponse.Nombre(); ++i) {
        if (!EstDansLaSuite(i))
            continue;
        if (!Attendre(PauseAvantUnMot))
            return false;
        lblMot(i).Visible = true;
        lblMot(i).Caption = lblRéponse(i).Caption;
        lblMot(i).Refresh();
    }
    return Attendre(PauseAprèsLaSuite);
}

void frmSérie::ViderCases()
{
    for (int i = 0; i < lblRéponse.Nombre(); ++i) {
        if (EstDansLaSuite(i))
            lblMot(i).Caption = Texte{};
    }
    Repeindre();
}

void frmSérie::DemanderSuite()
{
    frameChoix.Visible = true;
    lblMot(0).BackColor = Jaune;
    lblConsigne.Visible = true;
    lblChoix(0).SetFocus();
    Repeindre();
}

// ---- The answer --------------------------------------------------------------------------------------------------

std::optional<int> frmSérie::CaseARemplir() const
{
    for (int i = 0; i < lblMot.Nombre(); ++i) {
        if (lblMot(i).BackColor == Jaune)
            return i;
    }
    return std::nullopt;
}

void frmSérie::ProposerDeQuitter()
{
    cmdContinuer.Caption = Texte{Quitter};
    cmdContinuer.FontSize = TailleQuitter;
}

void frmSérie::lblChoix_Click(int c)
{
    if (cmdVoir.Visible || cmdContinuer.Visible)
        return;
    int suivante = 0;
    if (const auto i = CaseARemplir()) {
        if (lblChoix(c).Caption != lblRéponse(*i).Caption) {
            lblRéponse(*i).Visible = true;
            cmdContinuer.Visible = true;
            cmdContinuer.SetFocus();
            cmdContinuer.Refresh();
            return;
        }
        lblMot(*i).Caption = lblChoix(c).Caption;
        lblMot(*i).BackColor = Blanc;
        if (Compte(lblPoints(0)) < *i + 1)
            lblPoints(0).Caption = EnTexte(*i + 1);
        if (*i == état.NoteSérie) {
            cmdVoir.Visible = false;
            cmdContinuer.Visible = true;
            if (lblPoints(0).Caption == lblPoints(1).Caption)
                ProposerDeQuitter();
            cmdContinuer.SetFocus();
            return;
        }
        suivante = *i + 1;
    }
    if (lblRéponse(suivante).BackColor == Rouge) {
        lblMot(suivante).BackColor = Jaune;
        return;
    }
    cmdVoir.Visible = true;
    cmdVoir.SetFocus();
    cmdVoir.Refresh();
}

void frmSérie::cmdContinuer_Click()
{
    if (cmdContinuer.Caption == Quitter) {
        ConclureSurPoints(*this, choix_, lblPoints);
        return;
    }
    cmdContinuer.Visible = false;
    cmdVoir.Visible = true;
    frameChoix.Visible = false;
    EffacerSérie();
    Repeindre();
    NouvelleSérie();
    cmdVoir.SetFocus();
    if (lblCompteur.Caption == EnTexte(SériesMaximum))
        ProposerDeQuitter();
}

void frmSérie::EffacerSérie()
{
    for (auto& mot : lblMot) {
        mot.Caption = Texte{};
        mot.Visible = false;
        mot.BackColor = Blanc;
    }
    for (auto& choix : lblChoix)
        choix.Caption = Texte{};
    for (auto& réponse : lblRéponse) {
        réponse.Visible = false;
        réponse.Caption = Texte{};
        réponse.BackColor = Blanc;
    }
}

} // namespace tirelune
