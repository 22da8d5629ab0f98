#include "exercises/memory/frmTronqué.h"

#include "exercises/Conclure.h"
#include "exercises/TirageVocabulaire.h"

#include <algorithm>

namespace tirelune {

namespace {

constexpr int LargeurDuNon = 1250; // twips that stay free right of the words, its distance included

void Teindre(Rectangle& cache, Couleur teinte)
{
    cache.FillColor = teinte;
    cache.BorderColor = teinte;
}

} // namespace

EtatInitial frmTronqué::EtatDuMot()
{
    return {.Visible = false, .BackColor = Blanc, .FontSize = 22, .Centré = true, .LettresCoupées = true};
}

frmTronqué::frmTronqué(frmExercices& choix)
    : Ecran(choix.ApplicationDe(), "frmTronqué", u"Mots tronqués"), choix_(choix)
{
    for (int i = 0; i < lblPoints.Nombre(); ++i)
        lblPoints(i).ToolTipText = u" Seul le score de la meilleur série est retenu. ";
    for (int i = 0; i < MotsMaximum; ++i) {
        cache1(i).PoséSur = &lblMot1(i);
        cache1(i).PartPosée = Part::MoitiéHaute;
        cache2(i).PoséSur = &lblMot2(i);
        cache2(i).PartPosée = Part::MoitiéBasse;
        Teindre(cache1(i), Blanc);
        Teindre(cache2(i), Blanc);
    }
    lblMot1.Click([this](int i) { lblMot1_Click(i); });
    lblMot2.Click([this](int i) { lblMot2_Click(i); });
    cmdQuitter.Click = [this] { ConclureSurPoints(*this, choix_, lblPoints); };
}

Arrangement frmTronqué::Disposer()
{
    const auto colonne = [](Tableau<Label>& mots) {
        std::vector<Arrangement> places;
        for (auto& mot : mots)
            places.emplace_back(Pile{mot}); // without a word it takes no room
        return Arrangement(Disposition::Colonne, std::move(places));
    };
    Arrangement dessus{Disposition::Libre, EnPlaces(cache1)};
    for (auto& cache : cache2)
        dessus.Enfants.emplace_back(cache);
    dessus.Enfants.emplace_back(lblNon);
    return Page{{
        .Consigne = lblConsigne,
        .Points = BandeDePoints(lblPoints),
        .Travail = Pile{Ligne{AuMoins(LargeurDuNon / 2, 0, Colonne{}), Extensible(colonne(lblMot1)),
                              AuMoins(LargeurDuNon / 2, 0, Colonne{}), Extensible(colonne(lblMot2)),
                              AuMoins(LargeurDuNon, 0, Colonne{})},
                        dessus},
        .Pied = Ligne{Ressort{}, cmdQuitter},
        .Dessus = EnPlace(notice),
    }};
}

void frmTronqué::Load()
{
    AjouterNomElève();
    if (CompterMotsDifférents(choix_.cmbVocabulaire) < MotsDifférentsMinimum) {
        Montrer(notice);
        return;
    }
    PlacerMots();
    Guider(lblMot1);
}

// ---- The words ---------------------------------------------------------------------------------------------------

void frmTronqué::PlacerMots()
{
    const auto mots = TirerMotsDifférents(choix_.cmbVocabulaire, MotsMaximum, application_.plateforme);
    const auto placer = [](const std::vector<Texte>& ceux, Tableau<Label>& étiquettes, Tableau<Rectangle>& caches) {
        for (int i = 0; i < static_cast<int>(ceux.size()); ++i) {
            étiquettes(i).AutoSize = true;
            étiquettes(i).Caption = ceux[static_cast<std::size_t>(i)];
            étiquettes(i).Visible = true;
            caches(i).Visible = true;
        }
    };
    placer(mots, lblMot1, cache1);
    Repeindre();
    placer(TirerMotsDifférents(mots, MotsMaximum, application_.plateforme), lblMot2, cache2);
    Repeindre();
}

std::optional<int> frmTronqué::MotChoisi() const
{
    for (int i = 0; i < MotsMaximum; ++i) {
        if (lblMot1(i).BackColor == Jaune)
            return i;
    }
    return std::nullopt;
}

bool frmTronqué::ToutTrouvé() const
{
    for (int i = 0; i < MotsMaximum && lblMot2(i).Visible; ++i) {
        if (lblMot2(i).BackColor != Vert)
            return false;
    }
    return true;
}

void frmTronqué::Guider(Tableau<Label>& colonne)
{
    const auto mot = std::find_if(colonne.begin(), colonne.end(),
                                  [](const Label& un) { return un.Visible && un.BackColor != Vert; });
    if (mot != colonne.end())
        mot->SetFocus();
}

// ---- The play ----------------------------------------------------------------------------------------------------

void frmTronqué::lblMot1_Click(int i)
{
    lblNon.Visible = false;
    if (!cache1(i).Visible)
        return;
    Reposer();
    Choisir(i);
    Guider(lblMot2);
}

void frmTronqué::Reposer()
{
    for (int j = 0; j < MotsMaximum; ++j) {
        if (lblMot1(j).BackColor == Vert)
            continue;
        lblMot1(j).BackColor = Blanc;
        Teindre(cache1(j), Blanc);
    }
}

void frmTronqué::Choisir(int i)
{
    lblMot1(i).BackColor = Jaune;
    Teindre(cache1(i), Jaune);
}

void frmTronqué::lblMot2_Click(int i)
{
    lblNon.Visible = false;
    if (!cache2(i).Visible)
        return;
    const auto gauche = MotChoisi();
    if (!gauche)
        return;
    const bool juste = lblMot2(i).Caption == lblMot1(*gauche).Caption;
    if (juste)
        Unir(*gauche, i);
    else
        DireNon(i);
    Incrémenter(lblPoints(1));
    if (ToutTrouvé()) {
        cmdQuitter.Visible = true;
        cmdQuitter.SetFocus();
    } else if (juste) {
        Guider(lblMot1);
    }
}

void frmTronqué::DireNon(int i)
{
    lblNon.PoséSur = &lblMot2(i);
    lblNon.PartPosée = Part::ADroite;
    lblNon.Visible = true;
}

void frmTronqué::Unir(int gauche, int droite)
{
    cache1(gauche).Visible = false;
    cache2(droite).Visible = false;
    lblMot1(gauche).BackColor = Vert;
    lblMot2(droite).BackColor = Vert;
    Incrémenter(lblPoints(0));
}

} // namespace tirelune
