#include "exercises/BandeDePoints.h"

namespace tirelune {

namespace {

constexpr int LargeurCompte = 420; // twips, room for two digits

} // namespace

std::vector<EtatInitial> EtatsDesPoints(double taille)
{
    const EtatInitial compte{.Caption = u"0",
                             .BackColor = Jaune,
                             .ForeColor = Rouge,
                             .FontSize = taille,
                             .Gras = true,
                             .Centré = true,
                             .SensDesCouleurs = Sens::Rien};
    auto séparateur = compte;
    séparateur.Caption = u" / ";
    séparateur.ForeColor = Bleu;
    return {compte, compte, séparateur};
}

Arrangement BandeDePoints(Tableau<Label>& lblPoints)
{
    return Ligne{AuMoins(LargeurCompte, 0, lblPoints(0)), lblPoints(2), AuMoins(LargeurCompte, 0, lblPoints(1))};
}

} // namespace tirelune
