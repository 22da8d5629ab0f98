#include "exercises/spelling/frmAlphabet.h"

#include "core/Fonctions.h"
#include "exercises/ClassesDeLettres.h"
#include "exercises/Conclure.h"
#include "exercises/TirageVocabulaire.h"

#include <algorithm>
#include <array>

namespace tirelune {

using namespace std::chrono_literals;

namespace {

constexpr int MotsÀRanger = 3;
constexpr auto PauseAprèsUnMot = 2000ms;
constexpr Couleur AuRepos = Noir;
constexpr Couleur Pris = Bleu;
constexpr Couleur AutresLettres = Jaune;
constexpr std::array<Couleur, 5> PremièresLettres{Jaune, Cyan, Rouge, Vert, Violet};

// Of the width, beside what stays free on either side: a marked phrase wants all of it.
int PartDeLaColonne(const ComboBox& vocabulaire)
{
    static constexpr std::size_t LongueurDUnMot = 40;
    const auto& mots = vocabulaire.Eléments();
    const bool phrases =
        std::any_of(mots.begin(), mots.end(), [](const Texte& mot) { return mot.size() > LongueurDUnMot; });
    return phrases ? 100 : 3;
}

} // namespace

frmAlphabet::frmAlphabet(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmAlphabet", u"Ranger dans l'ordre alphabétique"), choix_(choix)
{
    for (auto& mot : rtfMot)
        mot.Locked = true;
    RelierColonne(rtfMot, {AuRepos, Pris},
                  [this](const std::optional<Déplacement>& déplacement) { Ranger(déplacement); });
    cmdQuitter.Click = [this] { cmdQuitter_Click(); };
}

Arrangement frmAlphabet::Disposer()
{
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail =
            Colonne{
                Ligne{Ressort{}, Extensible(Colonne{rtfMot}, PartDeLaColonne(choix_.cmbVocabulaire)), Ressort{}},
                Ressort{},
            },
        .Pied = Ligne{Extensible(Touches(lblLettre, 1)), cmdQuitter},
        .Dessus = EnPlace(notice),
    }};
}

void frmAlphabet::Load()
{
    RemplirEtiquettes();
    if (cmbMots.ListCount() < MotsÀRanger) {
        Montrer(notice);
        return;
    }
    for (int i = 0; i < lblLettre.Nombre(); ++i) {
        const auto lettre = static_cast<char16_t>(u'a' + i);
        lblLettre(i).Caption = Texte{lettre};
        lblLettre(i).ToolTipText = u" Voici les lettres de l'alphabet rangées dans l'ordre. ";
        lblLettre(i).ForeColor = Contient(Voyelles, lettre) ? Rouge : Bleu;
    }
    rtfMot(0).SetFocus();
}

void frmAlphabet::RemplirEtiquettes()
{
    cmbMots.AddItems(TirerMotsDifférents(choix_.cmbVocabulaire, MotsMaximum, application_.plateforme));
    for (int i = 0; i < cmbMots.ListCount(); ++i) {
        Ecrire(i, cmbMots.List(i));
        rtfMot(i).Visible = true;
    }
}

void frmAlphabet::Ecrire(int i, VueTexte mot)
{
    rtfMot(i).Text(mot);
    rtfMot(i).ToutFormater([](Format& format) {
        format.Teinte = AutresLettres;
        format.Gras = true;
    });
    ColorierMot(i);
}

void frmAlphabet::ColorierMot(int i)
{
    for (std::size_t p = 0; p < PremièresLettres.size(); ++p) {
        rtfMot(i).Sélectionner(p, 1);
        if (rtfMot(i).SelLength() == 0)
            return;
        rtfMot(i).SelColor = PremièresLettres[p];
    }
    rtfMot(i).SelStart(0);
}

void frmAlphabet::Ranger(const std::optional<Déplacement>& déplacement)
{
    if (déplacement) {
        std::vector<Texte> mots;
        mots.reserve(static_cast<std::size_t>(cmbMots.ListCount()));
        for (int i = 0; i < cmbMots.ListCount(); ++i)
            mots.push_back(rtfMot(i).Text());
        Déplacer(mots, *déplacement);
        for (int i = 0; i < cmbMots.ListCount(); ++i) {
            if (const auto& mot = mots[static_cast<std::size_t>(i)]; mot != rtfMot(i).Text())
                Ecrire(i, mot);
        }
    }
    lblPassage.Caption = Texte{};
    for (auto& mot : rtfMot) {
        if (mot.BackColor == Pris)
            lblPassage.Caption = mot.Text();
    }
}

// ---- The check ---------------------------------------------------------------------------------------------------

void frmAlphabet::cmdQuitter_Click()
{
    cmdQuitter.Enabled = false;
    if (cmdQuitter.Caption == Quitter)
        ConclureSurPoints(*this, choix_, lblPoints);
    else
        Vérifier();
}

void frmAlphabet::Vérifier()
{
    Juger(0, Vert, Noir); // only the base of the first pair
    rtfMot(0).Refresh();
    if (!Attendre(PauseAprèsUnMot))
        return;
    for (int i = 1; i < rtfMot.Nombre() && rtfMot(i).Visible; ++i) {
        if (EstEnOrdre(i)) {
            Juger(i, Vert, Noir);
            Incrémenter(lblPoints(0));
        } else {
            Juger(i, Rouge, Blanc);
            if (Compte(lblPoints(0)) > 0)
                Incrémenter(lblPoints(0), -1);
        }
        Incrémenter(lblPoints(1));
        rtfMot(i).Refresh();
        if (!Attendre(PauseAprèsUnMot))
            return;
    }
    cmdQuitter.Caption = Texte{Quitter};
    cmdQuitter.Enabled = true;
    cmdQuitter.SetFocus();
}

bool frmAlphabet::EstEnOrdre(int i) const
{
    return SansAccents(rtfMot(i).Text()) > SansAccents(rtfMot(i - 1).Text());
}

void frmAlphabet::Juger(int i, Couleur fond, Couleur encre)
{
    rtfMot(i).BackColor = fond;
    rtfMot(i).ToutFormater([encre](Format& format) { format.Teinte = encre; });
    rtfMot(i).SelLength(0);
}

} // namespace tirelune
