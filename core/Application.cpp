#include "core/Application.h"

#include "core/Ecran.h"

namespace tirelune {

void Application::Avertir(Texte message, Texte titre, Icône symbole)
{
    plateforme.AfficherBoîte({std::move(message), std::move(titre), Boutons::Ok, symbole});
}

bool Application::Demander(Texte question, Enjeu enjeu)
{
    return plateforme.AfficherBoîte({.Message = std::move(question),
                                     .Titre = std::move(enjeu.Titre),
                                     .Choix = Boutons::OuiNon,
                                     .Symbole = Icône::Question,
                                     .Danger = enjeu.Danger,
                                     .Objet = std::move(enjeu.Objet)}) == Réponse::Oui;
}

} // namespace tirelune
