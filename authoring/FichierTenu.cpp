#include "authoring/FichierTenu.h"

#include "core/Application.h"
#include "core/MiseDeCôté.h"
#include "core/Remplacement.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr VueTexte RienNEstPerdu =
    u"\nRien n'est perdu tant que cette fenêtre reste ouverte : recommencez quand ce sera réparé.";

Texte Lister(const std::vector<Texte>& fichiers)
{
    Texte liste = fichiers.size() > 1 ? u"les fichiers\n" : u"le fichier\n";
    for (const auto& fichier : fichiers)
        liste += fichier + u"\n";
    return liste;
}

void DireEchec(Application& application, const std::vector<Texte>& fichiers, VueTexte cause)
{
    if (!fichiers.empty())
        application.Avertir(
            (u"Impossible d'enregistrer " + Lister(fichiers) + u"\n").append(cause).append(RienNEstPerdu));
}

} // namespace

// A file that is empty, or isn't there, has nothing to lose.
bool Enregistrement::MettreDeCôtéCeQuiReste(const FichierTenu& tenu)
{
    const auto octets = LireFichier(tenu.Fichier);
    if (octets ? octets->empty() : octets.Echec == EchecLecture::Absent)
        return true;
    if (!octets)
        return false;
    const auto fichier = DepuisChemin(tenu.Fichier);
    const auto copie = MettreDeCôté(application_.plateforme, fichier, *octets, SuffixeAbîmé);
    if (copie && copie->Nouvelle)
        copies_.push_back(copie->Fichier);
    return copie.has_value();
}

void Enregistrement::Ecrire(FichierTenu& tenu, const std::vector<Texte>& champs)
{
    const auto fichier = DepuisChemin(tenu.Fichier);
    if (!tenu.Remplaçable && !MettreDeCôtéCeQuiReste(tenu)) {
        gardés_.push_back(fichier);
        return;
    }
    if (const auto échec = RemplacerChamps(application_.plateforme, tenu.Fichier, champs))
        (échec->Cause == EchecFichier::Ouverture ? ouvertures_ : écritures_).push_back(fichier);
    else
        tenu.Remplaçable = true;
}

bool Enregistrement::Conclure()
{
    DireEchec(application_, ouvertures_, CauseDe(EchecFichier::Ouverture));
    DireEchec(application_, écritures_, CauseDe(EchecFichier::Ecriture));
    DireEchec(application_, gardés_,
              u"Ce qui s'y trouve n'a pas pu être lu en entier, ni mis de côté : rien n'y a été touché.");
    if (!copies_.empty())
        application_.Avertir(u"Ce qui n'avait pas pu être lu en entier est mis de côté. Vous le trouverez dans " +
                             Lister(copies_));
    return ouvertures_.empty() && écritures_.empty() && gardés_.empty();
}

std::size_t NonVides(const std::vector<Texte>& champs)
{
    return static_cast<std::size_t>(
        std::count_if(champs.begin(), champs.end(), [](const Texte& champ) { return !Rogner(champ).empty(); }));
}

bool QuitterSansEnregistrer(Application& application)
{
    return application.Demander(u"Tout n'a pas pu être enregistré.\nSouhaitez-vous quitter quand même ?",
                                {.Danger = Perte::ParOui, .Objet = u"Ce qui n'est pas enregistré sera perdu."});
}

} // namespace tirelune
