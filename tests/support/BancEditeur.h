// The teacher's editor on the bench, opened from a first screen of its own.
#pragma once
#include "authoring/frmEnseignant.h"
#include "core/frmTirelune.h"
#include "tests/support/Banc.h"

#include <fstream>

namespace tirelune {

class BancEditeur : public Banc {
public:
    explicit BancEditeur(std::vector<Texte> polices = {u"Arial", u"Comic Sans MS", u"Verdana"})
    {
        plateforme.polices = std::move(polices);
        accueil.Charger();
        écran.Charger();
        écran.Dimensionner(12000, 9000);
        écran.Activer();
    }
    ~BancEditeur()
    {
        écran.Décharger();
        std::error_code ignorée;
        std::filesystem::remove(Récents(), ignorée);
    }
    BancEditeur(const BancEditeur&) = delete;
    BancEditeur& operator=(const BancEditeur&) = delete;

    // The list of recent files lies beside the program's folder.
    [[nodiscard]] Chemin Récents() const { return EnChemin(FichierRécents(DepuisChemin(dossier))); }
    void EcrireRécents(std::string_view octets) const { std::ofstream(Récents(), std::ios::binary) << octets; }
    [[nodiscard]] Texte CheminDe(const std::string& nom) const { return DepuisChemin(dossier / nom); }

    // The user's own typing at the caret.
    void Taper(VueTexte texte)
    {
        écran.rtfTexte.Editer(écran.rtfTexte.SelStart(), écran.rtfTexte.SelLength(), TexteRiche{Texte{texte}});
    }
    void Bouton(std::string_view clé) { écran.tlbBoutons.Cliquer(clé); }
    [[nodiscard]] Toolbar::Etat Etat(std::string_view clé) const
    {
        for (const auto& bouton : écran.tlbBoutons.Boutons()) {
            if (bouton.Clé == clé)
                return bouton.Pression;
        }
        ADD_FAILURE() << "pas de bouton " << clé;
        return {};
    }
    // A text without changes, saved under this name in the bench's folder.
    void Nommer(const std::string& nom)
    {
        état.NomFichierTexte = CheminDe(nom);
        état.TexteModifié = false;
    }

    frmTirelune accueil{application};
    frmEnseignant écran{accueil};
};

} // namespace tirelune
