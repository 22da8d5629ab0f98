#include "exercises/spelling/frmPendu.h"

#include "exercises/ClassesDeLettres.h"
#include "exercises/Conclure.h"
#include "exercises/TirageVocabulaire.h"

#include <algorithm>
#include <array>

namespace tirelune {

namespace {

constexpr int MotsMaximum = 5;
constexpr int DernierTrait = 9;

// The drawing, in units of its own; the man first, the gallows around him afterwards. He faces the pupil: his left is
// on the right.
constexpr int LargeurDessin = 320;
constexpr int HauteurDessin = 310;
constexpr std::array<Line::Trait, DernierTrait + 1> Traits{{
    {.X1 = 200, .Y1 = 122, .X2 = 200, .Y2 = 202, .Teinte = Rouge, .Epaisseur = 5}, // trunk
    {.X1 = 200, .Y1 = 138, .X2 = 238, .Y2 = 178, .Teinte = Rouge, .Epaisseur = 5}, // left arm
    {.X1 = 200, .Y1 = 138, .X2 = 162, .Y2 = 178, .Teinte = Rouge, .Epaisseur = 5}, // right arm
    {.X1 = 200, .Y1 = 202, .X2 = 232, .Y2 = 260, .Teinte = Rouge, .Epaisseur = 5}, // left leg
    {.X1 = 200, .Y1 = 202, .X2 = 168, .Y2 = 260, .Teinte = Rouge, .Epaisseur = 5}, // right leg
    {.X1 = 20, .Y1 = 300, .X2 = 300, .Y2 = 300, .Teinte = Noir, .Epaisseur = 6},   // ground
    {.X1 = 60, .Y1 = 300, .X2 = 60, .Y2 = 12, .Teinte = Noir, .Epaisseur = 6},     // post
    {.X1 = 60, .Y1 = 12, .X2 = 230, .Y2 = 12, .Teinte = Noir, .Epaisseur = 6},     // beam
    {.X1 = 60, .Y1 = 66, .X2 = 114, .Y2 = 12, .Teinte = Noir, .Epaisseur = 6},     // brace
    {.X1 = 200, .Y1 = 12, .X2 = 200, .Y2 = 60, .Teinte = Olive, .Epaisseur = 4},   // rope
}};
constexpr int CôtéVisage = 64;
constexpr int GaucheVisage = 168;
constexpr int HautVisage = 59;

// The face that comes with a stroke; nothing where it stays as it is.
std::optional<int> VisageDuTrait(int trait)
{
    switch (trait) {
    case 1:
        return 1;
    case 3:
        return 2;
    case 6:
        return 3;
    case DernierTrait:
        return 4;
    default:
        return std::nullopt;
    }
}

} // namespace

frmPendu::frmPendu(frmExercices& choix) : Ecran(choix.ApplicationDe(), "frmPendu", u"Le Pendu"), choix_(choix)
{
    for (int i = 0; i <= DernierTrait; ++i) {
        const auto& trait = Traits[static_cast<std::size_t>(i)];
        auto& ligne = Ligne(i);
        ligne.X1 = trait.X1;
        ligne.Y1 = trait.Y1;
        ligne.X2 = trait.X2;
        ligne.Y2 = trait.Y2;
        ligne.BorderColor = trait.Teinte;
        ligne.BorderWidth = trait.Epaisseur;
    }
    for (int i = 0; i < NombreVisages; ++i)
        imgRéf(i).Picture = Visage(i);
    imgVisage.Left = GaucheVisage;
    imgVisage.Top = HautVisage;
    imgVisage.Width = CôtéVisage;
    imgVisage.Height = CôtéVisage;
    lblLettre.Click([this](int i) { lblLettre_Click(i); });
    cmdSuivant.Click = [this] { cmdSuivant_Click(); };
}

Arrangement frmPendu::Disposer()
{
    auto dessin = EnPlaces(Ligne);
    dessin.emplace_back(imgVisage);
    return Page{{
        .Consigne = Label1,
        .Points = BandeDePoints(lblPoints),
        .Travail =
            Colonne{
                Extensible(tirelune::Ligne{
                    Extensible(Carte{Toile{LargeurDessin, HauteurDessin, std::move(dessin)}}, 2),
                    Extensible(Colonne{Ressort{}, Extensible(AuMoins(4800, 900, lblMot)), AuMoins(4800, 900, lblMotMaj),
                                       Ressort{}},
                               3),
                }),
                Touches(lblLettre),
            },
        .Pied = tirelune::Ligne{Ressort{}, cmdSuivant},
        .Dessus = EnPlace(notice),
    }};
}

void frmPendu::Load()
{
    AjouterNomElève();
    ChargerMots();
    for (int i = 0; i < lblLettre.Nombre(); ++i) {
        const auto lettre = static_cast<char16_t>(u'a' + i);
        lblLettre(i).Caption = Texte{lettre};
        lblLettre(i).ToolTipText = Texte{u' ', Majuscule(lettre), u' '};
        lblLettre(i).ForeColor = Contient(Voyelles, lettre) ? Rouge : Bleu;
    }
    PréparerMot();
}

void frmPendu::ChargerMots()
{
    cmbMots.AddItems(TirerMotsDifférents(choix_.cmbVocabulaire, MotsMaximum, application_.plateforme));
}

void frmPendu::PréparerMot()
{
    lblRéf.Caption = Texte{};
    lblMot.Caption = Texte{};
    lblMotMaj.Caption = Texte{};
    lblMot.BackColor = Bleu;
    lblMot.ForeColor = Cyan;
    lblMotMaj.Visible = true;
    for (auto& ligne : Ligne)
        ligne.Visible = false;
    imgVisage.Picture = imgRéf(0).Picture;
    if (cmbMots.ListCount() == 0) {
        Montrer(notice);
        return;
    }
    TirerMot();
}

void frmPendu::TirerMot()
{
    lblRéf.Caption = TirerEtRetirer(cmbMots, application_.plateforme);
    Texte masqué = lblRéf.Caption;
    std::replace_if(
        masqué.begin(), masqué.end(), [](char16_t c) { return c != u'-'; }, Masque);
    lblMot.Caption = masqué;
    lblMotMaj.Caption = masqué;
}

// ---- A letter ----------------------------------------------------------------------------------------------------

void frmPendu::lblLettre_Click(int i)
{
    if (cmdSuivant.Visible)
        return;
    if (!Découvrir(lblLettre(i).Caption().front())) {
        const int trait = Dessiner();
        if (const auto visage = VisageDuTrait(trait))
            imgVisage.Picture = imgRéf(*visage).Picture;
        if (trait == DernierTrait) {
            PerdreMot();
            return;
        }
    }
    if (lblMot.Caption != lblRéf.Caption)
        return;
    Incrémenter(lblPoints(0));
    Incrémenter(lblPoints(1));
    FinirMot();
}

bool frmPendu::Découvrir(char16_t lettre)
{
    const auto classe = ClasseDeLettre(lettre);
    Texte mot = lblMot.Caption;
    Texte motMaj = lblMotMaj.Caption;
    bool trouvée = false;
    for (std::size_t j = 0; j < mot.size(); ++j) {
        if (!Contient(classe, lblRéf.Caption()[j]))
            continue;
        mot[j] = lblRéf.Caption()[j];
        motMaj[j] = Majuscule(lettre);
        trouvée = true;
    }
    lblMot.Caption = mot;
    lblMotMaj.Caption = motMaj;
    return trouvée;
}

int frmPendu::Dessiner()
{
    int trait = 0;
    while (trait < DernierTrait && Ligne(trait).Visible)
        ++trait;
    Ligne(trait).Visible = true;
    return trait;
}

void frmPendu::PerdreMot()
{
    lblMot.Caption = lblRéf.Caption;
    lblMot.BackColor = Blanc;
    lblMot.ForeColor = Rouge;
    lblMotMaj.Visible = false;
    Incrémenter(lblPoints(1));
    FinirMot();
}

void frmPendu::FinirMot()
{
    if (cmbMots.ListCount() == 0)
        cmdSuivant.Caption = Texte{Quitter};
    cmdSuivant.Visible = true;
    cmdSuivant.SetFocus();
}

// The screen keeps for itself every key that types a character. What moves the focus types none, and while a button
// is all that is left, Enter and the blank go on to it.
void frmPendu::KeyPress(Touche& touche)
{
    static constexpr char16_t Tabulation = 9;
    if (touche.Caractère == 0 || touche.Caractère == Tabulation)
        return;
    const bool presse = touche.Caractère == u' ' || touche.Code == Touche::Entrée;
    if (presse && (cmdSuivant.Visible || notice.Cadre.Visible))
        return;
    const Texte lettre{LettreTapée(touche.Caractère)};
    for (int i = 0; i < lblLettre.Nombre(); ++i) {
        if (lblLettre(i).Visible && lblLettre(i).Caption == lettre) {
            lblLettre(i).Cliquer();
            break;
        }
    }
    touche.Avaler();
}

void frmPendu::cmdSuivant_Click()
{
    if (cmdSuivant.Caption == Quitter) {
        ConclureSurPoints(*this, choix_, lblPoints);
        return;
    }
    cmdSuivant.Visible = false;
    PréparerMot();
}

} // namespace tirelune
