#include "followup/frmProgression.h"

#include "followup/EnregistrerNotes.h"
#include "followup/GrilleRésultats.h"
#include "followup/Notes.h"
#include "tests/support/Banc.h"

#include <cmath>

namespace tirelune {

namespace {

constexpr int Vocabulaire = 2;

// Rows of scores of one exercise, a text each.
void Notes(Banc& banc, int exercice, const std::vector<Texte>& notes)
{
    auto& grille = banc.Choix().fgRésultats;
    grille.Rows(std::max(grille.Rows(), static_cast<int>(notes.size()) + 1));
    for (std::size_t i = 0; i < notes.size(); ++i)
        grille.TextMatrix(static_cast<int>(i) + 1, exercice + PremièreColonneNote, notes[i]);
}

frmProgression& OuvrirProgression(Banc& banc, int groupe)
{
    banc.état.GroupeCourbes = static_cast<std::uint8_t>(groupe);
    return banc.Ouvrir<frmProgression>();
}

std::vector<Point> Points(const frmProgression& écran)
{
    std::vector<Point> points;
    for (const auto& forme : écran.imgCourbes.Picture().Formes) {
        if (forme.Genre == GenreForme::Ellipse)
            points.push_back(
                {(forme.Points[0].X + forme.Points[1].X) / 2, (forme.Points[0].Y + forme.Points[1].Y) / 2});
    }
    return points;
}

std::vector<Forme> Segments(const frmProgression& écran)
{
    std::vector<Forme> segments;
    for (const auto& forme : écran.imgCourbes.Picture().Formes) {
        if (forme.Genre == GenreForme::Tracé)
            segments.push_back(forme);
    }
    return segments;
}

// Contrast of two colours after the accessibility guidelines: 1 to 21.
double Contraste(Couleur a, Couleur b)
{
    const auto clarté = [](Couleur c) {
        const auto linéaire = [](unsigned composante) {
            const double v = composante / 255.0;
            return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linéaire(c.Rouge()) + 0.7152 * linéaire(c.Vert()) + 0.0722 * linéaire(c.Bleu());
    };
    const double x = clarté(a);
    const double y = clarté(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

} // namespace

TEST(Progression, SansRésultatLeDitEtResteOuvert)
{
    Banc banc;
    banc.plateforme.boîtes.push_back(
        {u"Il n'y a aucun résultat enregistré.", Réponse::Ok, u"Tracé de courbes impossible", {}});
    auto& écran = OuvrirProgression(banc, 1);
    EXPECT_TRUE(écran.EstChargé());
    EXPECT_TRUE(écran.imgCourbes.Picture().Formes.empty());
    EXPECT_TRUE(écran.lblLégende(0).Visible);
    écran.lblLégende(0).Cliquer();
    EXPECT_TRUE(écran.imgCourbes.Picture().Formes.empty());
}

TEST(Progression, LégendeDeChaqueGroupe)
{
    for (int groupe = 1; groupe <= 5; ++groupe) {
        Banc banc;
        Notes(banc, 0, {u"5"});
        auto& écran = OuvrirProgression(banc, groupe);
        EXPECT_EQ(écran.Caption, u"Progression / Léa");
        const auto& celui = Groupes.at(static_cast<std::size_t>(groupe) - 1);
        for (int i = 0; i < écran.lblLégende.Nombre(); ++i) {
            EXPECT_EQ(écran.lblLégende(i).Visible(), i < celui.Nombre);
            EXPECT_EQ(écran.Line3(i).Visible(), i < celui.Nombre);
            EXPECT_EQ(écran.Line3(i).BorderColor, écran.lblLégende(i).ForeColor);
            if (i < celui.Nombre) {
                EXPECT_EQ(écran.lblLégende(i).Caption, banc.Choix().lblExo(celui.Premier + i).Caption);
            }
        }
    }
}

TEST(Progression, CouleursDesCourbes)
{
    Banc banc;
    Notes(banc, 0, {u"5"});
    auto& écran = OuvrirProgression(banc, 1);
    const std::vector<Couleur> attendues{
        Couleur::Rvb(255, 255, 0),   Couleur::Rvb(255, 0, 0),     Couleur::Rvb(0, 255, 255), Couleur::Rvb(0, 255, 0),
        Couleur::Rvb(255, 255, 255), Couleur::Rvb(255, 128, 255), Couleur::Rvb(255, 128, 0)};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(écran.lblLégende(i).ForeColor, attendues[static_cast<std::size_t>(i)]);
        EXPECT_GE(Contraste(écran.lblLégende(i).ForeColor, écran.BackColor), 4.5) << i;
    }
    for (const auto* texte : {&écran.Label1, &écran.Label3, &écran.Label2(0)})
        EXPECT_GE(Contraste(texte->ForeColor, écran.BackColor), 7.0);
}

TEST(Progression, UnSeulTexteFaitUnPointSurLAxeSansSegment)
{
    Banc banc;
    Notes(banc, 4, {u"7,5"});
    auto& écran = OuvrirProgression(banc, Vocabulaire);
    const double unité = (écran.lineOrd.Y2 - écran.lineOrd.Y1) / 10.0;
    ASSERT_EQ(écran.imgCourbes.Picture().Formes.size(), 1U);
    const auto& point = écran.imgCourbes.Picture().Formes.front();
    EXPECT_EQ(point.Fond, Couleur::Rvb(255, 255, 0));
    EXPECT_DOUBLE_EQ(point.Points[1].X - point.Points[0].X, 10);
    EXPECT_EQ(Points(écran), (std::vector<Point>{{double(écran.lineAbs.X1), écran.lineAbs.Y1 - 7.5 * unité}}));
}

TEST(Progression, ZéroAuPiedDixAuSommet)
{
    Banc banc;
    Notes(banc, 4, {u"0", u"10"});
    auto& écran = OuvrirProgression(banc, Vocabulaire);
    const auto points = Points(écran);
    ASSERT_EQ(points.size(), 2U);
    EXPECT_DOUBLE_EQ(points[0].Y, écran.lineAbs.Y1);
    EXPECT_DOUBLE_EQ(points[1].Y, écran.lineOrd.Y1);
}

TEST(Progression, LeDernierTexteEstUnPasAvantLaFinDeLAxe)
{
    Banc banc;
    Notes(banc, 4, {u"1", u"2", u"3", u"4", u"5"});
    auto& écran = OuvrirProgression(banc, Vocabulaire);
    const double pas = (écran.lineAbs.X2 - écran.lineAbs.X1) / 5.0;
    const auto points = Points(écran);
    ASSERT_EQ(points.size(), 5U);
    EXPECT_DOUBLE_EQ(points.front().X, écran.lineAbs.X1);
    EXPECT_DOUBLE_EQ(points.back().X, écran.lineAbs.X2 - pas);
    EXPECT_EQ(Segments(écran).size(), 4U);
}

TEST(Progression, LaCourbeEnjambeLesTextesNonFaits)
{
    Banc banc;
    Notes(banc, 4, {u"", u"4", u"", u"n'importe quoi", u"8", u""});
    auto& écran = OuvrirProgression(banc, Vocabulaire);
    const auto points = Points(écran);
    const auto segments = Segments(écran);
    ASSERT_EQ(points.size(), 2U);
    ASSERT_EQ(segments.size(), 1U);
    EXPECT_EQ(segments[0].Points, points);
    EXPECT_DOUBLE_EQ(segments[0].Epaisseur, 2);
    const double pas = (écran.lineAbs.X2 - écran.lineAbs.X1) / 6.0;
    EXPECT_DOUBLE_EQ(points[0].X, écran.lineAbs.X1 + pas);
    EXPECT_DOUBLE_EQ(points[1].X, écran.lineAbs.X1 + 4 * pas);
}

TEST(Progression, ExerciceJamaisFaitGardeSaLégende)
{
    Banc banc;
    Notes(banc, 5, {u"6"});
    auto& écran = OuvrirProgression(banc, Vocabulaire);
    EXPECT_TRUE(écran.lblLégende(0).Visible);
    ASSERT_EQ(écran.imgCourbes.Picture().Formes.size(), 1U);
    EXPECT_EQ(écran.imgCourbes.Picture().Formes[0].Fond, écran.lblLégende(1).ForeColor);
}

TEST(Progression, CourbesDansLOrdreEtLégendeCliquéeAuDessus)
{
    Banc banc;
    Notes(banc, 4, {u"5", u"6"});
    Notes(banc, 10, {u"5", u"6"});
    auto& écran = OuvrirProgression(banc, Vocabulaire);
    const auto avant = écran.imgCourbes.Picture().Formes;
    ASSERT_EQ(avant.size(), 6U);
    EXPECT_EQ(avant.front().Fond, écran.lblLégende(0).ForeColor);
    EXPECT_EQ(avant.back().Trait, écran.lblLégende(6).ForeColor);

    for (int clic = 0; clic < 50; ++clic)
        écran.lblLégende(0).Cliquer();
    const auto& après = écran.imgCourbes.Picture().Formes;
    ASSERT_EQ(après.size(), 6U); // what it covers is gone
    EXPECT_EQ(après.front().Fond, écran.lblLégende(6).ForeColor);
    EXPECT_EQ(après.back().Trait, écran.lblLégende(0).ForeColor);
}

TEST(Progression, RefaireUnExerciceChangeLaCourbeSansLAllonger)
{
    Banc banc;
    banc.ChargerTexte(u"Un texte.");
    banc.Index(4);
    EnregistrerNote(banc.Choix(), 3);
    EnregistrerNote(banc.Choix(), 8);
    auto& écran = OuvrirProgression(banc, Vocabulaire);
    const auto points = Points(écran);
    ASSERT_EQ(points.size(), 1U);
    EXPECT_DOUBLE_EQ(points[0].Y, écran.lineAbs.Y1 - 8 * (écran.lineOrd.Y2 - écran.lineOrd.Y1) / 10.0);
}

TEST(Progression, NoteHorsDesBornesResteDansLeCadre)
{
    Banc banc;
    Notes(banc, 4, {u"-3", u"1000000"});
    auto& écran = OuvrirProgression(banc, Vocabulaire);
    EXPECT_DOUBLE_EQ(Points(écran).at(0).Y, écran.lineAbs.Y1);
    EXPECT_DOUBLE_EQ(Points(écran).at(1).Y, écran.lineOrd.Y1);
}

TEST(Progression, AxesEtMarques)
{
    Banc banc;
    Notes(banc, 4, {u"5"});
    auto& écran = OuvrirProgression(banc, Vocabulaire);
    EXPECT_EQ(écran.lineAbs.X1, écran.lineOrd.X1);
    EXPECT_EQ(écran.lineAbs.Y1, écran.lineOrd.Y2);
    EXPECT_EQ(écran.Line2.Nombre(), 11);
    EXPECT_EQ(écran.Line2(0).Y1, écran.lineAbs.Y1);
    EXPECT_EQ(écran.Line2(10).Y1, écran.lineOrd.Y1);
    EXPECT_EQ(écran.Label1.Caption, u"Textes étudiés (dans l'ordre)");
    EXPECT_EQ(écran.Label2(0).Caption, u"0");
    EXPECT_EQ(écran.Label2(1).Caption, u"5");
    EXPECT_EQ(écran.Label2(2).Caption, u"10");
    EXPECT_EQ(écran.Label3.Caption,
              u"Cliquez sur un texte de légende pour faire apparaître la courbe en sur-impression.");
    EXPECT_EQ(écran.lblLégende(0).ToolTipText,
              u" Cliquer sur le texte de légende pour tracer la courbe en sur-impression. ");
    EXPECT_EQ(écran.cmdQuitter.Caption, u"&Quitter");
    EXPECT_EQ(écran.Label2(1).Top + écran.Label2(1).Height / 2, écran.Line2(5).Y1());
    // The drawing has the units of the axes.
    EXPECT_EQ(écran.imgCourbes.Picture().Largeur, écran.imgCourbes.Width());
    EXPECT_EQ(écran.imgCourbes.Picture().Hauteur, écran.imgCourbes.Height());
    EXPECT_EQ(écran.imgCourbes.Left, 0);
    EXPECT_EQ(écran.imgCourbes.Top, 0);
    écran.cmdQuitter.Cliquer();
    EXPECT_FALSE(écran.EstChargé());
}

TEST(Progression, LeCadreDUnGroupeEtSonImageLOuvrent)
{
    Banc banc;
    auto& choix = banc.Choix();
    Notes(banc, 0, {u"5"});
    const auto légende = [](Texte attendue) {
        return [attendue](frmProgression& écran) { EXPECT_EQ(écran.lblLégende(0).Caption, attendue); };
    };
    banc.QuandOuvert<frmProgression>(légende(u"Mots en désordre"));
    choix.frmOrdre.Cliquer();
    EXPECT_EQ(banc.état.GroupeCourbes, 4);
    banc.QuandOuvert<frmProgression>(légende(u"Le pendu"));
    choix.imgCourbes(4).Cliquer();
    EXPECT_EQ(banc.état.GroupeCourbes, 5);
}

} // namespace tirelune
