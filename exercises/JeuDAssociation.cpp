#include "exercises/JeuDAssociation.h"

#include "exercises/Conclure.h"
#include "exercises/ListeDeMots.h"

#include <chrono>

namespace tirelune {

namespace {

constexpr std::chrono::milliseconds PauseDeCorrection{1000};

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
        if (réponse.Visible && réponse.Caption().empty())
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
    for (int i = 0; i < jeu.Cases.Nombre(); ++i) {
        CorrigerRangée(jeu, i, juste(i));
        if (!écran.ApplicationDe().plateforme.Attendre(écran, PauseDeCorrection))
            return false;
    }
    return true;
}

} // namespace

bool ChoisirRangée(const JeuDAssociation& jeu, int i)
{
    if (jeu.Bouton.Caption == Quitter)
        return false;
    ToutBlanchir(jeu);
    jeu.Cases(i).BackColor = Jaune;
    jeu.Textes.at(static_cast<std::size_t>(i))->BackColor = Jaune;
    return true;
}

void RendreRéponse(const JeuDAssociation& jeu, int i)
{
    auto& place = jeu.Cases(i);
    if (place.Caption().empty())
        return;
    jeu.Liste.AddItem(place.Caption);
    place.AutoSize = false;
    place.Caption = Texte{};
}

std::optional<int> PlacerRéponse(const JeuDAssociation& jeu)
{
    for (int i = 0; i < jeu.Cases.Nombre(); ++i) {
        auto& place = jeu.Cases(i);
        if (place.BackColor != Jaune || !place.Caption().empty())
            continue;
        place.Caption = jeu.Liste.Text;
        place.AutoSize = true;
        RetirerDeListe(jeu.Liste, place.Caption);
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
