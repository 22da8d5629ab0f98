#include "followup/frmProgression.h"

#include "followup/GrilleRésultats.h"
#include "followup/Notes.h"

#include <algorithm>

namespace tirelune {

namespace {

// The plot's own units: about a pixel on a small display.
constexpr int Largeur = 800;
constexpr int Hauteur = 470;
constexpr int Gauche = 60; // left end of the axis of texts
constexpr int Droite = 560;
constexpr int Sommet = 20; // height of a score of 10
constexpr int Pied = 420;  // height of a score of 0
constexpr int NoteMaximum = 10;
constexpr int DemiTiret = 5;
constexpr int LégendeGauche = 585;
constexpr int LongueurTrait = 30;
constexpr int PasLégende = 50;
constexpr int HauteurLigne = 30;
constexpr double DiamètrePoint = 10;                     // width of the dots
constexpr double Segment = 2;                            // width of the lines between them
constexpr Couleur FondSombre = Couleur::Rvb(16, 22, 32); // every colour of the curves can be read on it
constexpr Couleur Encre = Couleur::Rvb(230, 235, 240);

constexpr std::array<Couleur, 7> Teintes{
    Couleur::Rvb(255, 255, 0),   Couleur::Rvb(255, 0, 0),     Couleur::Rvb(0, 255, 255), Couleur::Rvb(0, 255, 0),
    Couleur::Rvb(255, 255, 255), Couleur::Rvb(255, 128, 255), Couleur::Rvb(255, 128, 0)};

void Placer(Elément& élément, int gauche, int haut, int largeur)
{
    élément.Left = gauche;
    élément.Top = haut;
    élément.Width = largeur;
    élément.Height = HauteurLigne;
}

void Tendre(Line& ligne, Line::Trait trait)
{
    ligne.X1 = trait.X1;
    ligne.Y1 = trait.Y1;
    ligne.X2 = trait.X2;
    ligne.Y2 = trait.Y2;
    ligne.BorderColor = trait.Teinte;
    ligne.BorderWidth = trait.Epaisseur;
}

const Groupe& GroupeNuméro(int groupe)
{
    return Groupes.at(static_cast<std::size_t>(groupe) - 1);
}

} // namespace

frmProgression::frmProgression(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmProgression", u"Progression"),
      lineAbs(*this, "lineAbs", Line::Trait{Gauche, Pied, Droite, Pied, Encre, 2}),
      lineOrd(*this, "lineOrd", Line::Trait{Gauche, Sommet, Gauche, Pied, Encre, 2}),
      Label2(*this, "Label2", {u"0", u"5", u"10"}, {.ForeColor = Encre, .Centré = true}),
      Label1(*this, "Label1", {.Caption = u"Textes étudiés (dans l'ordre)", .ForeColor = Encre, .Centré = true}),
      lblLégende(*this, "lblLégende", static_cast<int>(Teintes.size()),
                 {.Visible = false,
                  .ToolTipText = u" Cliquer sur le texte de légende pour tracer la courbe en sur-impression. ",
                  .BackColor = FondSombre,
                  .Gras = true}),
      Label3(*this, "Label3",
             {.Caption = u"Cliquez sur un texte de légende pour faire apparaître la courbe en sur-impression.",
              .ForeColor = Encre}),
      choix_(choix)
{
    BackColor = FondSombre;
    TracerAxes();
    lblLégende.Click([this](int courbe) { lblLégende_Click(courbe); });
    cmdQuitter.Click = [this] { Décharger(); };
}

void frmProgression::TracerAxes()
{
    static constexpr int Unité = (Pied - Sommet) / NoteMaximum;
    for (int note = 0; note < Line2.Nombre(); ++note) {
        const int y = Pied - note * Unité;
        Tendre(Line2(note), {Gauche - DemiTiret, y, Gauche + DemiTiret, y, Encre, 1});
    }
    for (int marque = 0; marque < Label2.Nombre(); ++marque)
        Placer(Label2(marque), Gauche - 50, Pied - marque * NoteMaximum / 2 * Unité - HauteurLigne / 2, 40);
    Placer(Label1, Gauche, Pied + 12, Droite - Gauche);
    for (int i = 0; i < lblLégende.Nombre(); ++i) {
        const int haut = Sommet + i * PasLégende;
        const int milieu = haut + HauteurLigne / 2;
        const auto teinte = Teintes.at(static_cast<std::size_t>(i));
        lblLégende(i).ForeColor = teinte;
        Tendre(Line3(i), {LégendeGauche, milieu, LégendeGauche + LongueurTrait, milieu, teinte, 4});
        Placer(lblLégende(i), LégendeGauche + LongueurTrait + 8, haut, Largeur - LégendeGauche - LongueurTrait - 8);
    }
    imgCourbes.Width = Droite;
    imgCourbes.Height = Hauteur;
    imgCourbes.Picture = Dessin{Droite, Hauteur, {}};
}

Arrangement frmProgression::Disposer()
{
    auto places = EnPlaces(Line2);
    const auto ajouter = [&places](std::vector<Arrangement> autres) {
        places.insert(places.end(), autres.begin(), autres.end());
    };
    ajouter({lineAbs, lineOrd, Label1});
    ajouter(EnPlaces(Label2));
    ajouter(EnPlaces(Line3));
    ajouter(EnPlaces(lblLégende));
    ajouter({imgCourbes}); // last: the curves lie on the axes
    return Colonne{
        Toile{Largeur, Hauteur, std::move(places)},
        Ligne{Extensible(Label3), cmdQuitter},
    };
}

void frmProgression::Load()
{
    AjouterNomElève();
    MontrerLégende();
    if (choix_.fgRésultats.Rows() == 1) {
        Avertir(u"Il n'y a aucun résultat enregistré.", u"Tracé de courbes impossible");
        return;
    }
    for (int courbe = 0; courbe < GroupeNuméro(état.GroupeCourbes).Nombre; ++courbe)
        TracerCourbe(état.GroupeCourbes, courbe);
}

void frmProgression::MontrerLégende()
{
    const auto& groupe = GroupeNuméro(état.GroupeCourbes);
    for (int i = 0; i < groupe.Nombre; ++i) {
        lblLégende(i).Caption = choix_.lblExo(groupe.Premier + i).Caption;
        lblLégende(i).Visible = true;
        Line3(i).Visible = true;
    }
}

void frmProgression::lblLégende_Click(int courbe)
{
    TracerCourbe(état.GroupeCourbes, courbe);
}

void frmProgression::TracerCourbe(int groupe, int courbe)
{
    const auto& grille = choix_.fgRésultats;
    const int textes = grille.Rows() - 1;
    const double pas = textes == 0 ? 0 : static_cast<double>(lineAbs.X2 - lineAbs.X1) / textes;
    const double unité = static_cast<double>(lineOrd.Y2 - lineOrd.Y1) / NoteMaximum;
    const int colonne = GroupeNuméro(groupe).Premier + courbe + PremièreColonneNote;
    const Couleur teinte = lblLégende(courbe).ForeColor;
    auto dessin = imgCourbes.Picture();
    // A curve drawn again covers itself: what lay below need not be kept.
    std::erase_if(dessin.Formes,
                  [teinte](const Forme& forme) { return forme.Trait == teinte || forme.Fond == teinte; });
    std::optional<Point> précédent;
    for (int i = 1; i <= textes; ++i) {
        const auto note = LireNote(grille.TextMatrix(i, colonne));
        if (!note)
            continue;
        const auto bornée = std::clamp<double>(*note, 0, NoteMaximum); // a damaged file may hold anything
        const Point point{lineAbs.X1 + pas * (i - 1), lineAbs.Y1 - bornée * unité};
        dessin.Formes.push_back({.Genre = GenreForme::Ellipse,
                                 .Points = {{point.X - DiamètrePoint / 2, point.Y - DiamètrePoint / 2},
                                            {point.X + DiamètrePoint / 2, point.Y + DiamètrePoint / 2}},
                                 .Trait = CouleurAuto,
                                 .Fond = teinte});
        if (précédent)
            dessin.Formes.push_back(
                {.Genre = GenreForme::Tracé, .Points = {*précédent, point}, .Trait = teinte, .Epaisseur = Segment});
        précédent = point;
    }
    imgCourbes.Picture = std::move(dessin);
}

} // namespace tirelune
