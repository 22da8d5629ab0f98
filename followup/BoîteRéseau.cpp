#include "followup/BoîteRéseau.h"

#include "core/Application.h"

namespace tirelune {

bool RéessayerRéseau(Application& application)
{
    return application.plateforme.AfficherBoîte({.Message =
                                                     u"Le répertoire des fichiers \"Elèves\" n'est pas accessible.\n\n"
                                                     u"Veuillez vérifier votre connexion avant de continuer !\n",
                                                 .Titre = u"CONNEXION RESEAU DEFECTUEUSE",
                                                 .Choix = Boutons::OkAnnuler}) == Réponse::Ok;
}

} // namespace tirelune
