#include "exercises/memory/frmAbsent.h"

#include "exercises/Conclure.h"
#include "exercises/Propositions.h"
#include "exercises/TirageVocabulaire.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int LargeurChrono = 700; // twips, room for two digits
constexpr VueTexte ListesJouées = u"10";

} // namespace

frmAbsent::frmAbsent(frmExercices& choix) : Ecran(choix.ApplicationDe(), "frmAbsent", u"L'absent"), choix_(choix)
{
    for (auto& points : lblPoints)
        points.ToolTipText = u" Seul le score de la meilleur série est retenu. ";
    lblMot.Click([this](int i) { lblMot_Click(i); });
    Chrono.Tick = [this] { Chrono_Tick(); };
    cmdQuitter.Click = [this] { cmdQuitter_Click(); };
}

Arrangement frmAbsent::Disposer()
{
    std::vector<Arrangement> rangées;
    for (int i = 0; i < MotsMaximum; ++i) {
        rangées.emplace_back(Extensible(lblMot(i)));
        rangées.emplace_back(Extensible(lblAbsent(i)));
    }
    Arrangement listes{Disposition::Grille, std::move(rangées)};
    listes.Colonnes = 2;
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail = Ligne{Ressort{}, Extensible(listes, 6), Ressort{}},
        .Pied = Ligne{Label1, AuMoins(LargeurChrono, 0, lblChrono), Ressort{}, cmdQuitter},
        .Dessus = EnPlace(notice),
    }};
}

void frmAbsent::Load()
{
    AjouterNomElève();
    if (CompterMotsDifférents(choix_.cmbVocabulaire) < MotsDifférentsMinimum) {
        Montrer(notice);
        return;
    }
    NouvelleListe();
}

// ---- A list ------------------------------------------------------------------------------------------------------

void frmAbsent::NouvelleListe()
{
    EffacerListes();
    std::vector<Texte> majuscules;
    for (const auto& mot : TirerMotsDifférents(choix_.cmbVocabulaire, MotsMaximum, application_.plateforme)) {
        const int i = static_cast<int>(majuscules.size());
        Proposer(lblMot(i), mot);
        lblMot(i).Visible = true;
        majuscules.push_back(Majuscules(mot));
    }
    Repeindre();
    int dernier = -1; // words that differ in case alone are one word on the right
    for (const auto& mot : TirerMotsDifférents(majuscules, MotsMaximum, application_.plateforme))
        Proposer(lblAbsent(++dernier), mot);
    MasquerLeDernier(dernier);
    lblMot(0).SetFocus();
    Repeindre();
    Chrono.Enabled = true;
}

void frmAbsent::EffacerListes()
{
    for (int i = 0; i < MotsMaximum; ++i) {
        lblAbsent(i).Caption = Texte{};
        lblAbsent(i).Visible = false;
        lblMot(i).Caption = Texte{};
        lblMot(i).Visible = false;
    }
}

void frmAbsent::MasquerLeDernier(int dernier)
{
    for (int i = 0; i <= dernier; ++i) {
        lblAbsent(i).BackColor = Bleu;
        lblAbsent(i).ForeColor = i == dernier ? Bleu : Cyan;
        lblAbsent(i).Visible = true;
    }
}

Label& frmAbsent::Masqué()
{
    return *std::find_if(lblAbsent.begin(), lblAbsent.end(),
                         [](const Label& un) { return un.Visible && un.ForeColor == Bleu; });
}

// ---- The answer --------------------------------------------------------------------------------------------------

void frmAbsent::Chrono_Tick()
{
    if (Compte(lblChrono) > 0)
        Incrémenter(lblChrono, -1);
    if (lblChrono.Caption == u"0")
        FinirListe(Rouge, 1);
}

void frmAbsent::lblMot_Click(int i)
{
    if (cmdQuitter.Visible)
        return;
    if (Masqué().Caption == Majuscules(lblMot(i).Caption)) {
        Incrémenter(lblPoints(0));
        FinirListe(Vert, -1);
    } else {
        FinirListe(Rouge, 1);
    }
}

void frmAbsent::FinirListe(Couleur fond, int secondes)
{
    Chrono.Enabled = false;
    auto& absent = Masqué();
    absent.BackColor = fond;
    absent.ForeColor = Noir;
    Incrémenter(lblPoints(1));
    lblChrono.Caption = EnTexte(Compte(lblChronoRéf) + secondes);
    lblChronoRéf.Caption = lblChrono.Caption;
    if (lblPoints(1).Caption == ListesJouées)
        cmdQuitter.Caption = Texte{Quitter};
    cmdQuitter.Visible = true;
    cmdQuitter.SetFocus();
}

void frmAbsent::cmdQuitter_Click()
{
    if (cmdQuitter.Caption == Quitter) {
        ConclureSurPoints(*this, choix_, lblPoints);
        return;
    }
    cmdQuitter.Visible = false;
    NouvelleListe();
}

} // namespace tirelune
