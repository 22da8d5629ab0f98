#include "followup/DossierElèves.h"

#include "core/Application.h"
#include "core/Elements.h"
#include "core/OrdreAlphabetique.h"
#include "followup/BoîteRéseau.h"
#include "followup/FichierBilan.h"

#include <algorithm>
#include <map>

namespace tirelune {

void AtteindreDossierElèves(Application& application, FileListBox& liste)
{
    auto& état = application.état;
    if (état.CheminBilans.empty())
        état.CheminBilans = état.CheminAppli;
    while (!liste.Path(état.CheminBilans)) {
        if (!RéessayerRéseau(application)) {
            état.CheminBilans = état.CheminAppli;
            liste.Refresh(état.CheminBilans); // whatever it holds
            return;
        }
    }
}

void ListerNoms(const FileListBox& liste, ComboBox& noms)
{
    std::vector<Texte> racines;
    racines.reserve(static_cast<std::size_t>(liste.ListCount()));
    for (int i = 0; i < liste.ListCount(); ++i)
        racines.emplace_back(RacineBilan(liste.List(i)));
    noms.Clear();
    noms.AddItems(std::move(racines));
    if (noms.ListCount() > 0)
        noms.Montrer(0);
}

Texte FichierMontré(const FileListBox& liste, const ComboBox& noms, VueTexte dossier)
{
    const int index = noms.ListIndex;
    return index >= 0 && index < liste.ListCount() ? Joindre(dossier, liste.List(index))
                                                   : FichierBilan(dossier, Rogner(noms.Text));
}

namespace {

// As many as a note has room for, and how many more there are.
Texte Enumérer(std::vector<Texte> noms)
{
    static constexpr std::size_t Place = 8;
    std::sort(noms.begin(), noms.end(), AvantDansLOrdre);
    Texte liste;
    for (std::size_t i = 0; i < std::min(Place, noms.size()); ++i)
        liste += (i == 0 ? Texte{} : Texte{u", "}) + noms[i];
    if (noms.size() > Place)
        liste += u" et " + EnTexte(static_cast<long long>(noms.size() - Place)) + u" de plus";
    return liste;
}

} // namespace

Texte NoteSurLeDossier(VueTexte dossier)
{
    std::vector<Texte> deCôté;
    std::map<Texte, std::vector<Texte>> parNom; // the files of one name: extensions in another case make several
    std::error_code erreur;
    std::filesystem::directory_iterator entrée{EnChemin(dossier), erreur};
    for (; !erreur && entrée != std::filesystem::directory_iterator{}; entrée.increment(erreur)) {
        auto nom = DepuisChemin(entrée->path().filename());
        if (EstMisDeCôté(nom))
            deCôté.push_back(std::move(nom));
        else if (EstFichierBilan(nom))
            parNom[Texte{RacineBilan(nom)}].push_back(std::move(nom));
    }
    std::vector<Texte> pareils;
    for (const auto& [nom, fichiers] : parNom) {
        if (fichiers.size() > 1)
            pareils.insert(pareils.end(), fichiers.begin(), fichiers.end());
    }
    Texte note;
    if (!deCôté.empty())
        note += u"Fichiers mis de côté dans le dossier " + Texte{dossier} + u" : " + Enumérer(std::move(deCôté)) +
                u".\n« abîmé » : le fichier de l'élève ne se lisait plus en entier. « autre » : d'autres résultats du "
                u"même élève, trouvés au retour du réseau.\n";
    if (!pareils.empty())
        note += u"Fichiers qui portent le même nom dans le dossier " + Texte{dossier} + u" : " +
                Enumérer(std::move(pareils)) + u".\n";
    return note;
}

} // namespace tirelune
