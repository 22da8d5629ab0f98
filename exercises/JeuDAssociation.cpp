#include "exercises/JeuDAssociation.h"

#include "exercises/Conclure.h"
#include "exercises/ListeDeMots.h"

#include <chrono>
#include <utility>

namespace tirelune {

namespace {

constexpr std::chrono::milliseconds PauseDeCorrection{1000};
constexpr Couleur EncreDInvite = Couleur::Rvb(0x66, 0x6B, 0x80); // paler than an answer

// Shares of the width.
constexpr int PartDesCases = 2;
constexpr int PartDesTextes = 3;

bool EstInvite(const Label& place)
{
    return place.Caption == Invite;
}

bool EstVide(const Label& place)
{
    return place.Caption().empty() || EstInvite(place);
}

void Ecrire(Label& place, Texte mot)
{
    place.ForeColor = CouleurAuto;
    place.Caption = std::move(mot);
}

Constantes& EtatDe(const JeuDAssociation& jeu)
{
    return jeu.Bouton.EcranDe().ApplicationDe().état;
}

void ToutBlanchir(const JeuDAssociation& jeu)
{
    for (auto& réponse : jeu.Cases)
        réponse.BackColor = Blanc;
    for (auto* texte : jeu.Textes)
        texte->BackColor = Blanc;
}

bool EstComplet(const JeuDAssociation& jeu)
{
    for (auto& réponse : jeu.Cases) {
        if (réponse.Visible && EstVide(réponse))
            return false;
    }
    return true;
}

void CorrigerRangée(const JeuDAssociation& jeu, int i, bool juste)
{
    if (juste) {
        Incrémenter(jeu.Points(0));
        jeu.Cases(i).BackColor = Vert;
    } else {
        jeu.Cases(i).BackColor = Rouge;
        jeu.Corrigés(i).Visible = true;
    }
    Incrémenter(jeu.Points(1));
    jeu.Cases(i).Refresh();
}

// False: the screen was closed meanwhile.
bool CorrigerToutes(const JeuDAssociation& jeu, const std::function<bool(int)>& juste)
{
    auto& écran = jeu.Bouton.EcranDe();
    jeu.Liste.Enabled = false;
    ToutBlanchir(jeu);
    for (auto& place : jeu.Cases) {
        if (EstInvite(place))
            Ecrire(place, {}); // nothing can be completed any more
    }
    for (int i = 0; i < jeu.Cases.Nombre(); ++i) {
        CorrigerRangée(jeu, i, juste(i));
        if (!écran.ApplicationDe().plateforme.Attendre(écran, PauseDeCorrection))
            return false;
    }
    return true;
}

} // namespace

// ---- The screen --------------------------------------------------------------------------------------------------

EtatInitial EtatDesConsignes(Texte consigne)
{
    return {.Caption = std::move(consigne), .FontSize = 14};
}

EtatInitial EtatDesCases(VueTexte invite)
{
    return {.Caption = Texte{invite}, .ForeColor = EncreDInvite, .FontSize = 14};
}

EtatInitial EtatDesTextes()
{
    return {.FontSize = 14, .ALire = true};
}

EtatInitial EtatDesCorrigés()
{
    return {.Visible = false, .ForeColor = Bleu, .FontSize = 14, .Gras = true};
}

EtatInitial EtatDeLaListe()
{
    return {.Caption = u" Choisis un mot dans la liste ! ",
            .Libellé = u"Mots à placer",
            .BackColor = Jaune,
            .FontSize = 16,
            .Sorted = true};
}

EtatInitial EtatDuBouton()
{
    return {.Caption = u"&Corriger", .FontSize = 16};
}

MotsDeNotice TropPeu(VueTexte titre, VueTexte phrase)
{
    return {titre, phrase, u"&Abandonner"};
}

void Relier(const JeuDAssociation& jeu, std::function<bool(int)> juste)
{
    for (auto& place : jeu.Cases)
        place.AutoSize = true;
    for (auto& corrigé : jeu.Corrigés)
        corrigé.AutoSize = true;
    jeu.Liste.KeyPress = RefuserFrappe;
    jeu.Liste.Click = [&jeu] { PlacerRéponse(jeu); };
    jeu.Bouton.Click = [&jeu, juste = std::move(juste)] {
        if (jeu.Bouton.Caption == Quitter)
            ConclureSurPoints(jeu.Bouton.EcranDe(), jeu.Choix, jeu.Points);
        else
            Corriger(jeu, juste);
    };
}

Arrangement CaseEtCorrigé(const JeuDAssociation& jeu, int i)
{
    return Ligne{Extensible(jeu.Cases(i)), Extensible(Pile{jeu.Corrigés(i)})};
}

Arrangement RangéesDe(const JeuDAssociation& jeu)
{
    Arrangement rangées{Disposition::Grille, std::vector<Arrangement>{}};
    rangées.Colonnes = 2;
    for (int i = 0; i < jeu.Cases.Nombre(); ++i) {
        rangées.Enfants.push_back(Extensible(CaseEtCorrigé(jeu, i), PartDesCases));
        rangées.Enfants.push_back(Extensible(*jeu.Textes.at(static_cast<std::size_t>(i)), PartDesTextes));
    }
    return rangées;
}

Arrangement PageDAssociation(const JeuDAssociation& jeu, Arrangement rangées, Côtés côté)
{
    static constexpr int PartDeLaListe = 5;
    static constexpr int PartDuReste = 7;
    const auto liste = Extensible(AuMoins(3600, 0, jeu.Liste), PartDeLaListe);
    const auto reste = Extensible(Ressort{}, PartDuReste);
    const bool gauche = côté == Côtés::CasesAGauche;
    return Page{{
        .Consigne = jeu.Consigne,
        .Points = BandeDePoints(jeu.Points),
        .Travail = std::move(rangées),
        .Pied = Ligne{gauche ? liste : reste, gauche ? reste : liste, jeu.Bouton},
        .Dessus = EnPlace(jeu.Avis),
    }};
}

// ---- The answers -------------------------------------------------------------------------------------------------

void Cacher(const JeuDAssociation& jeu, int i, Texte réponse)
{
    jeu.Corrigés(i).Caption = réponse;
    jeu.Liste.AddItem(std::move(réponse));
}

void MontrerRéponses(const JeuDAssociation& jeu)
{
    EtatDe(jeu).ChoixProgramme = true;
    jeu.Liste.Montrer(0);
    EtatDe(jeu).ChoixProgramme = false;
}

// ---- The play ----------------------------------------------------------------------------------------------------

bool ChoisirRangée(const JeuDAssociation& jeu, int i)
{
    if (jeu.Bouton.Caption == Quitter)
        return false;
    EtatDe(jeu).ChoixProgramme = false;
    ToutBlanchir(jeu);
    jeu.Cases(i).BackColor = Jaune;
    jeu.Textes.at(static_cast<std::size_t>(i))->BackColor = Jaune;
    if (EstInvite(jeu.Cases(i)))
        Ecrire(jeu.Cases(i), {});
    return true;
}

bool RendreRéponse(const JeuDAssociation& jeu, int i)
{
    auto& place = jeu.Cases(i);
    if (EstVide(place))
        return false;
    jeu.Liste.AddItem(place.Caption);
    place.AutoSize = false;
    place.Caption = Texte{};
    return true;
}

void ReprendreRangée(const JeuDAssociation& jeu, int i)
{
    if (ChoisirRangée(jeu, i))
        RendreRéponse(jeu, i);
}

std::optional<int> PlacerRéponse(const JeuDAssociation& jeu)
{
    if (std::exchange(EtatDe(jeu).ChoixProgramme, false))
        return std::nullopt;
    for (int i = 0; i < jeu.Cases.Nombre(); ++i) {
        auto& place = jeu.Cases(i);
        if (place.BackColor != Jaune || !EstVide(place))
            continue;
        Ecrire(place, jeu.Liste.Text);
        place.AutoSize = true;
        EtatDe(jeu).ChoixProgramme = true;
        RetirerDeListe(jeu.Liste, place.Caption);
        EtatDe(jeu).ChoixProgramme = false;
        return i;
    }
    return std::nullopt;
}

bool RéponseExacte(const JeuDAssociation& jeu, int i)
{
    return jeu.Cases(i).Caption == jeu.Corrigés(i).Caption;
}

void Corriger(const JeuDAssociation& jeu, const std::function<bool(int)>& juste)
{
    auto& écran = jeu.Bouton.EcranDe();
    jeu.Bouton.Enabled = false;
    if (!EstComplet(jeu) && !écran.ApplicationDe().Demander(u"Tu n'a pas terminé !\nVeux-tu vraiment quitter ?",
                                                            {.Danger = Perte::ParOui})) {
        jeu.Bouton.Enabled = true;
        return;
    }
    if (!écran.EstChargé() || !CorrigerToutes(jeu, juste))
        return;
    jeu.Bouton.Caption = Texte{Quitter};
    jeu.Bouton.Enabled = true;
}

} // namespace tirelune
