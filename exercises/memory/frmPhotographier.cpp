#include "exercises/memory/frmPhotographier.h"

#include "core/Tirage.h"
#include "exercises/Conclure.h"
#include "exercises/Propositions.h"
#include "exercises/TirageVocabulaire.h"

#include <algorithm>
#include <array>

namespace tirelune {

namespace {

constexpr VueTexte RéponsesParPartie = u"20";

// From the slowest to the fastest: each level's exposure is half the one before.
constexpr std::array<VueTexte, 4> Niveaux{u"Lent", u"Assez rapide", u"Rapide", u"Très rapide"};

std::size_t NiveauDe(VueTexte légende)
{
    return static_cast<std::size_t>(std::find(Niveaux.begin(), Niveaux.end(), légende) - Niveaux.begin());
}

// An arrow to the right, towards the frame.
Dessin Flèche()
{
    return {48,
            32,
            {{.Genre = GenreForme::Polygone,
              .Points = {{2, 11}, {28, 11}, {28, 3}, {46, 16}, {28, 29}, {28, 21}, {2, 21}},
              .Trait = Bleu,
              .Epaisseur = 1.5,
              .Fond = Jaune}}};
}

} // namespace

frmPhotographier::frmPhotographier(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmPhotographier", u"Photographier"), choix_(choix)
{
    Image1.Picture = Flèche();
    cmdAfficher.Click = [this] { cmdAfficher_Click(); };
    Chrono.Tick = [this] { Chrono_Tick(); };
    lblRéponse.Click([this](int i) { lblRéponse_Click(i); });
    cmdQuitter.Click = [this] { ConclureSurPoints(*this, choix_, lblPoints); };
}

Arrangement frmPhotographier::Disposer()
{
    return Page{{
        .Consigne = Label3,
        .Points = BandeDePoints(lblPoints),
        .Travail =
            Ligne{
                Extensible(Ligne{AuMoins(1200, 800, Image1),
                                 Extensible(Colonne{Ressort{}, Extensible(AuMoins(4200, 1500, lblMot), 4), Ressort{}})},
                           3),
                Extensible(AuMoins(3600, 0, Carte{Colonne{lblRéponse}}), 2),
            },
        .Pied = Ligne{AuMoins(2400, 0, lblVitesse), Ressort{}, Pile{cmdAfficher, cmdQuitter}},
        .Dessus = EnPlace(notice),
    }};
}

void frmPhotographier::Load()
{
    AjouterNomElève();
    if (CompterMotsDifférents(choix_.cmbVocabulaire) < MotsDifférentsMinimum) {
        Montrer(notice);
        return;
    }
    cmdAfficher.SetFocus();
}

// ---- The flash ---------------------------------------------------------------------------------------------------

void frmPhotographier::cmdAfficher_Click()
{
    cmdAfficher.Enabled = false;
    EffacerRéponses();
    const int dernière = ProposerMots() - 1;
    const auto montrée = Tirer(application_.plateforme, dernière);
    lblMot.Caption = lblRéponse(static_cast<int>(montrée)).Caption;
    lblMot.ForeColor = Bleu;
    lblMot.Refresh(); // on the display before the time runs
    Chrono.Enabled = true;
    static_cast<void>(AttendreArrêt(Chrono)); // the tick does the rest, and nothing is left to do here
}

void frmPhotographier::EffacerRéponses()
{
    for (auto& réponse : lblRéponse) {
        réponse.Visible = false;
        réponse.Caption = Texte{};
        réponse.BackColor = Blanc;
    }
    Repeindre();
}

int frmPhotographier::ProposerMots()
{
    int i = 0;
    for (auto& mot : TirerMotsDifférents(choix_.cmbVocabulaire, lblRéponse.Nombre(), application_.plateforme)) {
        Proposer(lblRéponse(i), std::move(mot));
        ++i;
    }
    return i;
}

void frmPhotographier::Chrono_Tick()
{
    Chrono.Enabled = false;
    lblMot.ForeColor = Blanc;
    lblMot.Refresh(); // the exposure ends now, whatever the proposals take to appear
    for (auto& réponse : lblRéponse)
        réponse.Visible = !réponse.Caption().empty();
    lblRéponse(0).SetFocus();
    Repeindre();
}

// ---- The answer --------------------------------------------------------------------------------------------------

void frmPhotographier::lblRéponse_Click(int i)
{
    if (EstRépondu(lblRéponse))
        return;
    if (lblRéponse(i).Caption == lblMot.Caption) {
        lblRéponse(i).BackColor = Vert;
        Incrémenter(lblPoints(0));
        AccélérerVitesse();
    } else {
        lblRéponse(i).BackColor = Rouge;
        MontrerMotVu();
        RalentirVitesse();
    }
    Incrémenter(lblPoints(1));
    cmdAfficher.Enabled = true;
    cmdAfficher.SetFocus();
    if (lblPoints(1).Caption == RéponsesParPartie) {
        cmdQuitter.Visible = true;
        cmdQuitter.SetFocus();
        cmdQuitter.Refresh();
        cmdAfficher.Visible = false;
        lblVitesse.Visible = false;
    }
}

void frmPhotographier::MontrerMotVu()
{
    for (auto& réponse : lblRéponse) {
        if (réponse.Caption == lblMot.Caption) {
            réponse.BackColor = Jaune;
            return;
        }
    }
}

void frmPhotographier::AccélérerVitesse()
{
    const auto niveau = NiveauDe(lblVitesse.Caption);
    if (niveau + 1 == Niveaux.size())
        return;
    lblVitesse.Caption = Texte{Niveaux[niveau + 1]};
    Chrono.Interval = Chrono.Interval / 2;
}

void frmPhotographier::RalentirVitesse()
{
    const auto niveau = NiveauDe(lblVitesse.Caption);
    if (niveau == 0)
        return;
    lblVitesse.Caption = Texte{Niveaux[niveau - 1]};
    Chrono.Interval = Chrono.Interval * 2;
}

} // namespace tirelune
