#include "exercises/vocabulary/frmThèmes2.h"

#include "core/Tirage.h"

#include <algorithm>
#include <set>

namespace tirelune {

namespace {

constexpr int ColonnesMinimum = 8; // five words, and the empty cell behind them
constexpr int MotsMontrés = 3;

// Shares of the width.
constexpr int PartDuThème = 3;
constexpr int PartDesMots = 5;
constexpr int PartDeLaRéponse = 4;

} // namespace

frmThèmes2::frmThèmes2(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmThèmes2", u"Thèmes (2)"), jeu_{choix,      Label1,
                                                                      lblRéponse, TextesDe(txtMots),
                                                                      lblCorrigé, cmbThèmes,
                                                                      lblPoints,  cmdQuitter,
                                                                      notice}
{
    Relier(jeu_, [this](int i) { return Juger(i); });
    lblRéponse.Click([this](int i) { ReprendreRangée(jeu_, i); });
    txtMots.Click([this](int i) { txtMots_Click(i); });
}

Arrangement frmThèmes2::Disposer()
{
    Arrangement rangées{Disposition::Grille, std::vector<Arrangement>{}};
    rangées.Colonnes = 3;
    for (int i = 0; i < RangéesDuJeu; ++i) {
        rangées.Enfants.push_back(Extensible(lblThème(i), PartDuThème));
        rangées.Enfants.push_back(Extensible(txtMots(i), PartDesMots));
        rangées.Enfants.push_back(Extensible(CaseEtCorrigé(jeu_, i), PartDeLaRéponse));
    }
    return PageDAssociation(jeu_, std::move(rangées), Côtés::CasesADroite);
}

void frmThèmes2::Load()
{
    AjouterNomElève();
    ChargerFamilles();
    if (Suffisent())
        TirerMotsThèmes();
    if (cmbThèmes.ListCount() == 0)
        Montrer(notice);
}

// ---- The draw ----------------------------------------------------------------------------------------------------

void frmThèmes2::ChargerFamilles()
{
    ChargerListes(fgThèmes, état.CheminTexteElève, NomFamilles, ColonneThème);
}

const Texte& frmThèmes2::Nom(int ligne) const
{
    const auto& sousThème = fgThèmes.TextMatrix(ligne, ColonneSousThème);
    return sousThème.empty() ? fgThèmes.TextMatrix(ligne, ColonneThème) : sousThème;
}

// Ten rows with fewer different names are too few as well: a name comes once.
bool frmThèmes2::Suffisent() const
{
    std::set<VueTexte> noms;
    for (int ligne = 0; ligne < fgThèmes.Rows(); ++ligne)
        noms.insert(Nom(ligne));
    return noms.size() >= RangéesDuJeu && fgThèmes.Cols() >= ColonnesMinimum;
}

void frmThèmes2::TirerMotsThèmes()
{
    for (int i = 0; i < RangéesDuJeu; ++i) {
        const int ligne = TirerFamille();
        lblThème(i).Caption = Nom(ligne);
        lblThème(i).ToolTipText = Nom(ligne);
        if (fgThèmes.TextMatrix(ligne, PremierMotDeFamille).empty())
            continue;
        MontrerMots(i, ligne);
        CacherMot(i, ligne);
    }
    RangerRéponses();
}

int frmThèmes2::TirerFamille() const
{
    const auto déjàMontré = [this](std::size_t k) {
        int i = 0;
        while (i < RangéesDuJeu && lblThème(i).Caption != Nom(static_cast<int>(k)))
            ++i;
        return i < RangéesDuJeu;
    };
    return static_cast<int>(TirerSauf(application_.plateforme, fgThèmes.Rows(), déjàMontré).value());
}

// All words but one, three at most.
void frmThèmes2::MontrerMots(int i, int ligne)
{
    cmbNuméros.Clear();
    const int mots = DernierMot(fgThèmes, ligne, PremierMotDeFamille) - PremierMotDeFamille + 1;
    Texte montrés;
    for (int k = 0; k < std::min(MotsMontrés, mots - 1); ++k)
        montrés += (k == 0 ? Texte{} : Texte{u" - "}) + TirerMot(ligne);
    txtMots(i).Text = montrés;
}

void frmThèmes2::CacherMot(int i, int ligne)
{
    lblCorrigé(i).Caption = TirerMot(ligne);
    cmbNuméros.Clear();
}

const Texte& frmThèmes2::TirerMot(int ligne)
{
    const int mots = DernierMot(fgThèmes, ligne, PremierMotDeFamille) - PremierMotDeFamille + 1;
    const auto colonneDe = [](std::size_t k) { return static_cast<int>(k) + PremierMotDeFamille; };
    const auto déjàTirée = [&](std::size_t k) { return cmbNuméros.Chercher(EnTexte(colonneDe(k))) >= 0; };
    const int colonne = colonneDe(TirerSauf(application_.plateforme, mots, déjàTirée).value());
    cmbNuméros.AddItem(EnTexte(colonne));
    return fgThèmes.TextMatrix(ligne, colonne);
}

// A family with no word has no row.
void frmThèmes2::RangerRéponses()
{
    for (int i = 0; i < RangéesDuJeu; ++i) {
        const bool jouée = !lblCorrigé(i).Caption().empty();
        if (jouée)
            cmbThèmes.AddItem(lblCorrigé(i).Caption);
        lblThème(i).Visible = jouée;
        txtMots(i).Visible = jouée;
        lblRéponse(i).Visible = jouée;
    }
    if (cmbThèmes.ListCount() > 0)
        MontrerRéponses(jeu_);
}

// ---- The play ----------------------------------------------------------------------------------------------------

void frmThèmes2::txtMots_Click(int i)
{
    ChoisirRangée(jeu_, i);
}

bool frmThèmes2::EstDeLaFamille(int i) const
{
    const auto& nom = lblThème(i).Caption();
    for (int ligne = 0; ligne < fgThèmes.Rows(); ++ligne) {
        if (fgThèmes.TextMatrix(ligne, ColonneSousThème) != nom && fgThèmes.TextMatrix(ligne, ColonneThème) != nom)
            continue;
        const int dernier = DernierMot(fgThèmes, ligne, PremierMotDeFamille);
        for (int colonne = PremierMotDeFamille; colonne <= dernier; ++colonne) {
            if (fgThèmes.TextMatrix(ligne, colonne) == lblRéponse(i).Caption)
                return true;
        }
    }
    return false;
}

bool frmThèmes2::Juger(int i)
{
    if (!lblRéponse(i).Visible)
        return trouvé_;
    trouvé_ = EstDeLaFamille(i);
    if (trouvé_)
        lblCorrigé(i).Caption = lblRéponse(i).Caption();
    return trouvé_;
}

} // namespace tirelune
