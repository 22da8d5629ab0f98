#include "followup/DossierElèves.h"

#include "core/Application.h"
#include "core/Elements.h"
#include "followup/BoîteRéseau.h"

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
    static constexpr std::size_t LongueurExtension = 4;
    std::vector<Texte> racines;
    racines.reserve(static_cast<std::size_t>(liste.ListCount()));
    for (int i = 0; i < liste.ListCount(); ++i)
        racines.push_back(liste.List(i).substr(0, liste.List(i).size() - LongueurExtension));
    noms.Clear();
    noms.AddItems(std::move(racines));
    if (noms.ListCount() > 0)
        noms.Montrer(0);
}

} // namespace tirelune
