#include "exercises/vocabulary/frmDico.h"

#include "core/Tirage.h"
#include "exercises/Conclure.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int LignesMinimum = 10;  // of the general dictionary
constexpr double TailleSeule = 20; // points, of a definition that has its part of the page to itself

bool EstJugé(const Elément& une)
{
    return une.BackColor == Rouge || une.BackColor == Vert;
}

Texte Bulle(const Texte& exemple)
{
    return u' ' + exemple + u' ';
}

} // namespace

frmDico::frmDico(frmExercices& choix) : Ecran(choix.ApplicationDe(), "frmDico", u"Dictionnaire"), choix_(choix)
{
    txtDéf.Click([this](int i) { txtDéf_Click(i); });
    cmdSuivant.Click = [this] { cmdSuivant_Click(); };
}

// Words in two rows above definitions in two columns. What is hidden takes no room, so that the one that the round
// asks about has the whole of its part.
Arrangement frmDico::Disposer()
{
    static constexpr int MotsParLigne = 5;
    static constexpr int HauteurMot = 1000; // twips
    Arrangement mots{Disposition::Colonne, std::vector<Arrangement>{}};
    for (int i = 0; i < Choix; i += MotsParLigne) {
        Ligne ligne{};
        for (int j = i; j < i + MotsParLigne; ++j)
            ligne.Enfants.push_back(Extensible(Pile{AuMoins(0, HauteurMot, lblMot(j))}));
        mots.Enfants.push_back(ligne);
    }
    Arrangement définitions{Disposition::Colonne, std::vector<Arrangement>{}};
    for (int i = 0; i < Choix; i += 2)
        définitions.Enfants.push_back(Extensible(Ligne{Extensible(Pile{txtDéf(i)}), Extensible(Pile{txtDéf(i + 1)})}));
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail = Colonne{std::move(mots), Extensible(std::move(définitions))},
        .Pied = Ligne{Extensible(Label1, 3), Ressort{}, cmdSuivant},
        .Dessus = EnPlace(notice),
    }};
}

void frmDico::Load()
{
    AjouterNomElève();
    ChargerDicPrinc();
    if (!EstChargé())
        return;
    ChargerDicTexte();
    if (fgDicoPrinc.Rows() < LignesMinimum || fgDic.Rows() == 0) {
        Avertir(Texte{DictionnairesVoulus}, u"Impossible de lancer l'exercice");
        if (EstChargé())
            Montrer(notice);
        return;
    }
    AjouterNomElève(); // again: a started exercise shows the name twice
    état.MotDicoFini = false;
    état.IndexMotDico = 0;
    lblConsigne.Visible = true;
    cmdSuivant.Visible = true;
    TirerDéfinitions();
}

void frmDico::ChargerDicPrinc()
{
    if (LireLexique(FichierLexique(état.CheminTexteElève, NomDicPrinc), fgDicoPrinc) != LectureLexique::Faite)
        Avertir(u"Il n'y a pas de dictionnaire dans ce répertoire !");
}

void frmDico::ChargerDicTexte()
{
    LireLexique(FichierLexique(état.CheminTexteElève, NomDicTexte(Rogner(choix_.lblTexte.Caption))), fgDic);
}

// ---- A round -----------------------------------------------------------------------------------------------------

void frmDico::ToutEffacer()
{
    for (int i = 0; i < Choix; ++i) {
        txtDéf(i).Visible = false;
        txtDéf(i).Text = Texte{};
        txtDéf(i).BackColor = Blanc;
        lblMot(i).Visible = false;
        lblMot(i).Caption = Texte{};
        lblMot(i).BackColor = Blanc;
    }
}

void frmDico::RépondreParMot()
{
    lblMot.Click([this](int i) { lblMot_Click(i); });
    for (auto& définition : txtDéf)
        définition.Click = {};
}

void frmDico::MontrerMot(int i, const Grid& dictionnaire, int ligne)
{
    lblMot(i).Caption = dictionnaire.TextMatrix(ligne, ColonneMot);
    lblMot(i).ToolTipText = Bulle(dictionnaire.TextMatrix(ligne, ColonneExemple));
    lblMot(i).Visible = true;
}

void frmDico::MontrerDéfinition(int i, const Grid& dictionnaire, int ligne)
{
    txtDéf(i).Text = dictionnaire.TextMatrix(ligne, ColonneDéfinition);
    txtDéf(i).Visible = true;
}

bool frmDico::EstMontré(const Texte& mot) const
{
    int i = 0;
    while (i < Choix && lblMot(i).Caption != mot)
        ++i;
    return i < Choix;
}

bool frmDico::EstMontrée(const Texte& définition) const
{
    int i = 0;
    while (i < Choix && txtDéf(i).Text != définition)
        ++i;
    return i < Choix;
}

std::optional<int> frmDico::TirerAutre(int colonne, const std::function<bool(const Texte&)>& montré) const
{
    const auto ligne = TirerSauf(application_.plateforme, fgDicoPrinc.Rows(), [&](std::size_t j) {
        return montré(fgDicoPrinc.TextMatrix(static_cast<int>(j), colonne));
    });
    return ligne ? std::optional{static_cast<int>(*ligne)} : std::nullopt;
}

// A place that is still empty takes any definition but an empty one, which equals it; where there are no more, it
// stays hidden.
void frmDico::TirerDéfinitions()
{
    ToutEffacer();
    if (fgDic.Rows() > état.IndexMotDico) {
        MontrerMot(Question, fgDic, état.IndexMotDico);
        lblMot(Question).BackColor = Jaune;
        MontrerDéfinition(static_cast<int>(Tirer(application_.plateforme, Choix)), fgDic, état.IndexMotDico);
        ++état.IndexMotDico;
    }
    for (int i = 0; i < Choix; ++i) {
        if (!txtDéf(i).Text().empty())
            continue;
        if (const auto j = TirerAutre(ColonneDéfinition, [this](const Texte& une) { return EstMontrée(une); }))
            MontrerDéfinition(i, fgDicoPrinc, *j);
    }
    if (état.IndexMotDico >= fgDic.Rows()) {
        état.IndexMotDico = 0;
        état.MotDicoFini = true;
    }
}

void frmDico::TirerMots()
{
    ToutEffacer();
    if (fgDic.Rows() > état.IndexMotDico) {
        MontrerDéfinition(Question, fgDic, état.IndexMotDico);
        txtDéf(Question).BackColor = Jaune;
        txtDéf(Question).FontSize = TailleSeule;
        MontrerMot(static_cast<int>(Tirer(application_.plateforme, Choix)), fgDic, état.IndexMotDico);
        ++état.IndexMotDico;
    }
    for (int i = 0; i < Choix; ++i) {
        if (!lblMot(i).Caption().empty())
            continue;
        if (const auto j = TirerAutre(ColonneMot, [this](const Texte& un) { return EstMontré(un); })) {
            MontrerMot(i, fgDicoPrinc, *j);
            lblMot(i).Refresh();
        }
    }
}

// ---- The answer --------------------------------------------------------------------------------------------------

std::optional<int> frmDico::ChercherLigne(int colonne, const Texte& cellule) const
{
    for (int ligne = 0; ligne < fgDic.Rows(); ++ligne) {
        if (fgDic.TextMatrix(ligne, colonne) == cellule)
            return ligne;
    }
    return std::nullopt;
}

void frmDico::CompterRéponse(bool juste)
{
    if (juste)
        Incrémenter(lblPoints(0));
    Incrémenter(lblPoints(1));
    cmdSuivant.Enabled = true;
    cmdSuivant.SetFocus();
}

void frmDico::lblMot_Click(int i)
{
    if (std::any_of(lblMot.begin(), lblMot.end(), EstJugé) || txtDéf(Question).BackColor != Jaune)
        return;
    const auto ligne = ChercherLigne(ColonneDéfinition, txtDéf(Question).Text);
    if (!ligne) {
        cmdSuivant.Enabled = true;
        return;
    }
    const auto& mot = fgDic.TextMatrix(*ligne, ColonneMot);
    const bool juste = lblMot(i).Caption == mot;
    lblMot(i).BackColor = juste ? Vert : Rouge;
    const auto attendu = std::find_if(lblMot.begin(), lblMot.end(), [&](const Label& un) { return un.Caption == mot; });
    if (!juste && attendu != lblMot.end())
        attendu->BackColor = Jaune;
    CompterRéponse(juste);
}

void frmDico::txtDéf_Click(int i)
{
    if (std::any_of(txtDéf.begin(), txtDéf.end(), EstJugé) || lblMot(Question).BackColor != Jaune)
        return;
    const auto ligne = ChercherLigne(ColonneMot, lblMot(Question).Caption);
    if (!ligne) {
        cmdSuivant.Enabled = true;
        return;
    }
    const auto& définition = fgDic.TextMatrix(*ligne, ColonneDéfinition);
    const bool juste = txtDéf(i).Text == définition;
    txtDéf(i).BackColor = juste ? Vert : Rouge;
    const auto attendue =
        std::find_if(txtDéf.begin(), txtDéf.end(), [&](const TextBox& une) { return une.Text == définition; });
    if (!juste && attendue != txtDéf.end())
        attendue->BackColor = Jaune;
    CompterRéponse(juste);
}

void frmDico::cmdSuivant_Click()
{
    if (cmdSuivant.Caption == Quitter) {
        ConclureSurPoints(*this, choix_, lblPoints);
        return;
    }
    cmdSuivant.Enabled = false;
    if (état.MotDicoFini) {
        RépondreParMot();
        lblConsigne.Caption = u"Quel est le mot correspondant à cette définition ?";
        if (état.IndexMotDico == fgDic.Rows() - 1)
            cmdSuivant.Caption = Texte{Quitter};
        TirerMots();
    } else {
        TirerDéfinitions();
    }
    if (txtDéf(0).Visible)
        txtDéf(0).SetFocus();
    else
        lblMot(0).SetFocus();
}

} // namespace tirelune
