#include "followup/frmCodeCouleur.h"

#include "followup/Notes.h"

namespace tirelune {

frmCodeCouleur::frmCodeCouleur(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmCodeCouleur", u"Code couleurs"),
      Shape1(*this, "Shape1", {.BackColor = Couleur::Rvb(236, 239, 242), .ForeColor = GrisClair}),
      Label2(*this, "Label2", {u"> 9", u"< 9", u"< 7", u"< 5", u"< 3", u"Pas fait"},
             {.ForeColor = Noir, .FontSize = 14, .Centré = true})
{
    PetiteFenêtre = true;
    static constexpr std::array<float, 5> NotesDesBandes{9, 7, 5, 3, 0}; // lowest score of each band
    for (int i = 0; i < lblExo.Nombre(); ++i) {
        const auto rang = static_cast<std::size_t>(i);
        const auto teinte = rang < NotesDesBandes.size() ? CouleurDeNote(NotesDesBandes[rang]) : Blanc;
        lblExo(i).BackColor = teinte;
        lblMoyenne(i).BackColor = teinte;
    }
    cmdQuitter.Click = [this] { Décharger(); };
}

Arrangement frmCodeCouleur::Disposer()
{
    static constexpr int LargeurColonne = 2600; // twips
    static constexpr int HauteurLigne = 480;
    std::vector<Arrangement> rangées{Ligne{AuMoins(LargeurColonne, 0, Label1(0)),
                                           AuMoins(LargeurColonne, 0, Arrangement{}),
                                           AuMoins(LargeurColonne, 0, Label1(1))}};
    for (int i = 0; i < lblExo.Nombre(); ++i)
        rangées.emplace_back(Ligne{AuMoins(LargeurColonne, HauteurLigne, lblMoyenne(i)),
                                   AuMoins(LargeurColonne, HauteurLigne, Label2(i)),
                                   AuMoins(LargeurColonne, HauteurLigne, lblExo(i))});
    return Colonne{
        Pile{Shape1, Arrangement(Disposition::Colonne, std::move(rangées))},
        Label3,
        Ligne{Ressort{}, cmdQuitter},
    };
}

} // namespace tirelune
