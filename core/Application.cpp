#include "core/Application.h"

#include "core/Ecran.h"

namespace tirelune {

void Application::Avertir(Texte message, Texte titre, Icône symbole)
{
    plateforme.AfficherBoîte({std::move(message), std::move(titre), Boutons::Ok, symbole});
}

bool Application::Demander(Texte question, Texte titre)
{
    return plateforme.AfficherBoîte({std::move(question), std::move(titre), Boutons::OuiNon, Icône::Question}) ==
           Réponse::Oui;
}

} // namespace tirelune
