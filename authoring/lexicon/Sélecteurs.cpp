#include "authoring/lexicon/Sélecteurs.h"

#include <algorithm>
#include <array>

namespace tirelune {

namespace {

constexpr VueTexte SansDéterminant = u" N'écrivez pas de déterminant. ";
constexpr VueTexte AvecDéterminant = u" Ecrivez un déterminant si nécessaire. ";
constexpr VueTexte AuMoinsQuatre = u" Il est attendu au moins 4 mots par thème. ";
constexpr VueTexte GarderDépendants = u" Permet de modifier sans perdre les dépendants. ";
constexpr VueTexte GarderDéfinition = u" Permet de modifier sans perdre la définition. ";
constexpr VueTexte Modifier = u" Permet de modifier le mot. ";
constexpr VueTexte SupprimerDépendants = u" Supprime le mot et tous ses dépendants. ";
constexpr VueTexte Supprimer = u" Supprime le mot. ";
constexpr VueTexte PasDeThème = u"Entrez d'abord un thème.";
constexpr VueTexte PasDeRéférent = u"Entrez d'abord un mot référent.";

constexpr std::array<Sélecteur, NombreDeSélecteurs> Tous{{
    {Rôle::Thème, u"Thème", u"Thème", AuMoinsQuatre, GarderDépendants, SupprimerDépendants},
    {Rôle::SousThème,
     u"Sous-thème",
     u"Sous-thème",
     {},
     GarderDépendants,
     SupprimerDépendants,
     SélecteurThème,
     PasDeThème},
    {Rôle::MotDeFamille, u"Mot (Thème/Sous-thème/Mot)", u"Mot de la famille", AvecDéterminant, Modifier, Supprimer,
     SélecteurSousThème, PasDeThème},
    {Rôle::Référent, u"Mot référent", u"Mot référent des synonymes", AvecDéterminant, GarderDépendants,
     SupprimerDépendants},
    {Rôle::Dépendant, u"Synonyme à ajouter", u"Synonyme à ajouter", AvecDéterminant, Modifier, Supprimer,
     SélecteurSynonyme, PasDeRéférent},
    {Rôle::Référent, u"Mot référent", u"Mot référent des contraires", AvecDéterminant, GarderDépendants,
     SupprimerDépendants},
    {Rôle::Dépendant, u"Contraire à ajouter", u"Contraire à ajouter", AvecDéterminant, Modifier, Supprimer,
     SélecteurContraire, PasDeRéférent},
    {Rôle::Référent, u"Masculin", u"Masculin", SansDéterminant, GarderDépendants, u" Supprime le mot et son féminin. "},
    {Rôle::Dépendant, u"Féminin", u"Féminin", SansDéterminant, Modifier, Supprimer, SélecteurMasculin,
     u"Entrez d'abord le masculin.", true},
    {Rôle::MotDuTexte, u"Dictionnaire relatif au texte", u"Dictionnaire relatif au texte", SansDéterminant,
     GarderDéfinition, u" Supprime le mot et sa définition. "},
    {Rôle::MotDuGénéral, u"Dictionnaire général", u"Dictionnaire général", SansDéterminant, GarderDéfinition,
     u" Supprime le mot et sa définition des 2 dictionnaires. "},
}};

// One state for each field, made of its row.
template <class Faire>
std::vector<EtatInitial> PourChacun(Faire faire)
{
    std::vector<EtatInitial> états;
    std::transform(Tous.begin(), Tous.end(), std::back_inserter(états), faire);
    return états;
}

constexpr Couleur Clair = Couleur::Rvb(0xFF, 0xF3, 0xC9);
constexpr Couleur Blanche = Couleur::Rvb(0xFF, 0xFF, 0xFF);

} // namespace

std::span<const Sélecteur> Sélecteurs()
{
    return Tous;
}

std::vector<EtatInitial> ChampsDesSélecteurs()
{
    return PourChacun([](const Sélecteur& un) {
        return EtatInitial{.ToolTipText = Texte{un.Bulle}, .Libellé = Texte{un.Entendu}, .PourFiche = true};
    });
}

std::vector<EtatInitial> ListesDesSélecteurs()
{
    return PourChacun([](const Sélecteur& un) {
        const bool général = un.Fonction == Rôle::MotDuGénéral;
        return EtatInitial{.ToolTipText = général ? u" Compilation des dictionnaires de tous les textes. " : u"",
                           .Libellé = u"Liste : " + Texte{un.Entendu},
                           .Sorted = true};
    });
}

std::vector<EtatInitial> LégendesDesSélecteurs()
{
    return PourChacun([](const Sélecteur& un) { return EtatInitial{.Caption = Texte{un.Légende}}; });
}

std::vector<EtatInitial> BoutonsModifier()
{
    return PourChacun([](const Sélecteur& un) {
        return EtatInitial{
            .ToolTipText = Texte{un.BulleModifier}, .Libellé = u"Modifier : " + Texte{un.Entendu}, .BackColor = Clair};
    });
}

std::vector<EtatInitial> BoutonsSupprimer()
{
    return PourChacun([](const Sélecteur& un) {
        return EtatInitial{.ToolTipText = Texte{un.BulleSupprimer},
                           .Libellé = u"Supprimer : " + Texte{un.Entendu},
                           .BackColor = Blanche};
    });
}

void MontrerTexte(ComboBox& liste, const Texte& texte)
{
    liste.ListIndex = liste.Chercher(texte);
    liste.Text = texte;
}

int PremierQuiCommencePar(const ComboBox& liste, VueTexte début)
{
    const auto& mots = liste.Eléments();
    const auto trouvé =
        std::find_if(mots.begin(), mots.end(), [&](const Texte& mot) { return mot.starts_with(début); });
    return trouvé == mots.end() ? -1 : static_cast<int>(trouvé - mots.begin());
}

void AjouterElément(ComboBox& liste, const Texte& texte)
{
    if (liste.Chercher(texte) < 0)
        liste.AddItem(texte);
}

void RetirerElément(ComboBox& liste, VueTexte texte)
{
    for (int place = liste.Chercher(texte); place >= 0; place = liste.Chercher(texte))
        liste.RemoveItem(place);
}

} // namespace tirelune
