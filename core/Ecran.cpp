#include "core/Ecran.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace tirelune {

Ecran::Ecran(Application& application, std::string_view nom, Texte légende)
    : Nom(nom), Caption(*this, std::move(légende)), application_(application), état(application.état)
{
}

Ecran::~Ecran() = default;

void Ecran::Changer()
{
    if (Observateur)
        Observateur();
}

void Ecran::Afficher()
{
    Charger();
    if (chargé_)
        application_.plateforme.AfficherModal(*this);
}

void Ecran::Charger()
{
    chargé_ = true;
    arrangement_ = Disposer();
    couvertures_.clear();
    Ranger(arrangement_, nullptr);
    Load();
}

void Ecran::Ranger(const Arrangement& place, const Elément* conteneur)
{
    if (place.Occupant != nullptr && place.Genre != Disposition::Suite)
        place.Occupant->RangerDans(conteneur);
    if (place.Genre == Disposition::Couverture)
        couvertures_.push_back(place.Occupant);
    const auto* intérieur = place.Occupant != nullptr ? place.Occupant : conteneur;
    for (const auto& enfant : place.Enfants)
        Ranger(enfant, intérieur);
}

void Ecran::Activer()
{
    if (chargé_)
        Activate();
}

void Ecran::Dimensionner(int largeur, int hauteur)
{
    Width.Noter(largeur);
    Height.Noter(hauteur);
    for (auto* couverture : couvertures_) {
        couverture->Width = largeur;
        couverture->Height = hauteur;
    }
    if (chargé_)
        Resize();
}

void Ecran::FermerParCroix()
{
    if (chargé_)
        QueryUnload();
}

void Ecran::Cliquer()
{
    if (chargé_)
        Click();
}

bool Ecran::Taper(Touche touche)
{
    if (chargé_)
        KeyPress(touche);
    return touche.Avalée;
}

void Ecran::Décharger()
{
    if (!chargé_)
        return;
    chargé_ = false; // first: nothing that Unload sets off may come back here
    Unload();
    for (auto* minuterie : minuteries_)
        minuterie->Enabled = false;
    application_.plateforme.EcranFermé(*this);
}

void Ecran::PrendreFocus(Elément& élément)
{
    FocusVenu(élément);
    if (FocusDemandé)
        FocusDemandé();
}

void Ecran::FocusVenu(Elément& élément)
{
    if (focus_ == &élément)
        return;
    const auto* avant = std::exchange(focus_, &élément);
    if (avant != nullptr && chargé_ && avant->LostFocus)
        avant->LostFocus();
    // What has just been left may have closed the screen, or sent the keyboard elsewhere.
    if (focus_ == &élément && chargé_ && élément.GotFocus)
        élément.GotFocus();
}

void Ecran::FocusParti()
{
    const auto* avant = std::exchange(focus_, nullptr);
    if (avant != nullptr && chargé_ && avant->LostFocus)
        avant->LostFocus();
}

void Ecran::Avertir(Texte message, Texte titre)
{
    application_.Avertir(std::move(message), std::move(titre));
}

void Ecran::Ouvrir(Ecran& autre)
{
    autre.Afficher();
    Activer();
}

void Ecran::Ouvrir(std::string_view nom)
{
    const auto rangée = application_.écrans.find(nom);
    assert(rangée != application_.écrans.end());
    Ouvrir(*rangée->second(*this));
}

void Ecran::AjouterNomElève()
{
    Caption = Caption() + u" / " + état.NomElève;
}

void Ecran::AjusterBoîte(RichTextBox& boîte, int marge)
{
    static constexpr int Minimum = 1000;
    if (Width <= Minimum || Height <= Minimum) {
        Width = Minimum;
        Height = Minimum;
        return;
    }
    boîte.Width = Width - 150;
    boîte.Height = std::max(Height - marge, 0);
}

double Ecran::PointsSelonPlace() const
{
    static constexpr double LargeurUsuelle = 12000; // twips, of a display of 800 x 600
    static constexpr double HauteurUsuelle = 7500;  // less than that: letters take more of the width
    static constexpr double PointsUsuels = 12;
    static constexpr double Agrandissement = 1.3;
    return PointsUsuels * std::clamp(std::min(Width / LargeurUsuelle, Height / HauteurUsuelle), 1.0, Agrandissement);
}

bool Ecran::Attendre(std::chrono::milliseconds durée)
{
    return application_.plateforme.Attendre(*this, durée);
}

bool Ecran::AttendreArrêt(Timer& minuterie)
{
    return application_.plateforme.AttendreArrêt(minuterie);
}

void Ecran::Repeindre()
{
    application_.plateforme.Repeindre(*this);
}

} // namespace tirelune
