#include "fuzz/Gestes.h"

#include "core/OrdreAlphabetique.h"
#include "core/Windows1252.h"

#include <algorithm>
#include <array>

namespace tirelune {

namespace {

constexpr std::array<VueTexte, 8> Saisies{u"", u"a", u"Le chat dort.", u"é", u"\"", u"\u65E5", u"*", u"12 "};

Touche TireeDe(SuiteDOctets& suite)
{
    static constexpr std::array<Touche, 12> Touches{{
        {u'a', 'A'},
        {u' ', ' '},
        {u'\r', Touche::Entrée},
        {0, Touche::Echappement},
        {u'\b', Touche::RetourArrière},
        {0, Touche::Suppression},
        {0, Touche::Gauche},
        {0, Touche::Droite},
        {0, Touche::Haut},
        {0, Touche::Bas},
        {u'-', 0},
        {u'\u00E9', 0},
    }};
    return Touches[suite.Parmi(Touches.size())];
}

void ToucherTexte(TextBox& boîte, SuiteDOctets& suite)
{
    const auto geste = suite.Octet() % 6;
    const auto place = suite.Parmi(boîte.Text().size() + 1);
    if (geste == 0)
        boîte.Cliquer(place);
    else if (geste == 1)
        boîte.DoubleCliquer(place);
    else if (geste == 2)
        boîte.Taper(TireeDe(suite));
    else if (geste == 3 && boîte.MouseMove)
        boîte.MouseMove();
    else if (!boîte.Locked)
        boîte.Saisir(Texte{Saisies[suite.Parmi(Saisies.size())]});
}

void ToucherTexteRiche(RichTextBox& boîte, SuiteDOctets& suite)
{
    const auto geste = suite.Octet() % 6;
    const auto place = suite.Parmi(boîte.Longueur() + 1);
    const auto longueur = std::min<std::size_t>(suite.Octet(), boîte.Longueur() - place);
    if (geste == 0)
        boîte.Cliquer(place);
    else if (geste == 1)
        boîte.DoubleCliquer(place);
    else if (geste == 2)
        boîte.Taper(TireeDe(suite));
    else if (geste == 3)
        boîte.Sélectionner(place, longueur);
    else if (!boîte.Locked)
        boîte.Editer(place, longueur, TexteRiche{Texte{Saisies[suite.Parmi(Saisies.size())]}});
}

void ToucherListe(Liste& liste, SuiteDOctets& suite)
{
    const auto geste = suite.Octet() % 6;
    const int rang = static_cast<int>(suite.Parmi(static_cast<std::size_t>(liste.ListCount()) + 1)) - 1;
    auto* combinée = dynamic_cast<ComboBox*>(&liste);
    if (geste == 0 && combinée != nullptr)
        combinée->Taper(TireeDe(suite));
    else if (geste == 1 && combinée != nullptr && combinée->Saisie)
        combinée->Saisir(Texte{Saisies[suite.Parmi(Saisies.size())]});
    else if (geste == 2 && liste.DblClick)
        liste.DblClick();
    else if (rang >= 0)
        liste.Choisir(rang);
}

void Glisser(Frame& cadre, const std::vector<Elément*>& éléments, SuiteDOctets& suite)
{
    const double x = suite.Octet() * 40.0;
    const double y = suite.Octet() * 40.0;
    if (cadre.MouseMove)
        cadre.MouseMove(x, y);
    const auto cible = suite.Parmi(éléments.size() + 1);
    if (cadre.DragDrop)
        cadre.DragDrop(cible == éléments.size() ? nullptr : éléments[cible], x / 2, y / 2);
}

// Never above the platform's own folder: pupils' files go where this leads.
void OuvrirDossier(DirListBox& dossiers, const PlateformeFuzz& plateforme, SuiteDOctets& suite)
{
    const int rang = static_cast<int>(suite.Parmi(dossiers.SousDossiers().size() + 1)) - 1;
    const auto racine = DepuisChemin(plateforme.dossier);
    if (rang >= 0 || (dossiers.Path().starts_with(racine) && dossiers.Path().size() > racine.size() + 1))
        dossiers.Ouvrir(rang);
}

void Toucher(Elément& élément, Ecran& écran, const PlateformeFuzz& plateforme, SuiteDOctets& suite)
{
    if (!élément.Enabled || !élément.EstAtteignable())
        return;
    if (auto* boîte = dynamic_cast<TextBox*>(&élément))
        ToucherTexte(*boîte, suite);
    else if (auto* riche = dynamic_cast<RichTextBox*>(&élément))
        ToucherTexteRiche(*riche, suite);
    else if (auto* liste = dynamic_cast<Liste*>(&élément))
        ToucherListe(*liste, suite);
    else if (auto* barre = dynamic_cast<ScrollBar*>(&élément))
        barre->Déplacer(suite.Octet() - 100);
    else if (auto* outils = dynamic_cast<Toolbar*>(&élément))
        outils->Cliquer(outils->Boutons().at(suite.Parmi(outils->Boutons().size())).Clé);
    else if (auto* lecteurs = dynamic_cast<DriveListBox*>(&élément))
        lecteurs->Choisir(static_cast<int>(suite.Parmi(4)) - 1);
    else if (auto* dossiers = dynamic_cast<DirListBox*>(&élément))
        OuvrirDossier(*dossiers, plateforme, suite);
    else if (auto* cadre = dynamic_cast<Frame*>(&élément);
             cadre != nullptr && cadre->DragDrop && suite.Octet() % 2 == 0)
        Glisser(*cadre, écran.Eléments(), suite);
    else if (auto* cliquable = dynamic_cast<Légendé*>(&élément))
        cliquable->Cliquer();
}

} // namespace

void FaireUnGeste(Ecran& écran, PlateformeFuzz& plateforme, SuiteDOctets& suite)
{
    const auto& éléments = écran.Eléments();
    switch (suite.Octet() % 16) {
    case 0:
        plateforme.Passer(std::chrono::milliseconds{suite.Octet() * 20});
        break;
    case 1:
        écran.Taper(TireeDe(suite));
        break;
    case 2:
        écran.Dimensionner(suite.Octet() * 100, suite.Octet() * 80);
        break;
    case 3:
        écran.Cliquer();
        break;
    case 4:
        if (suite.Octet() % 4 == 0)
            écran.FermerParCroix();
        break;
    default:
        if (!éléments.empty())
            Toucher(*éléments[suite.Parmi(éléments.size())], écran, plateforme, suite);
    }
    VérifierEcran(écran);
}

void VérifierEcran(const Ecran& écran)
{
    for (const auto* élément : écran.Eléments()) {
        if (const auto* riche = dynamic_cast<const RichTextBox*>(élément)) {
            Exiger(riche->SelStart() <= riche->Longueur());
            Exiger(riche->SelLength() <= riche->Longueur() - riche->SelStart());
        } else if (const auto* liste = dynamic_cast<const Liste*>(élément)) {
            Exiger(liste->ListIndex >= -1 && liste->ListIndex < liste->ListCount());
            Exiger(!liste->Sorted ||
                   std::is_sorted(liste->Eléments().begin(), liste->Eléments().end(), AvantDansLOrdre));
        } else if (const auto* boîte = dynamic_cast<const TextBox*>(élément)) {
            Exiger(!boîte->PourFichier || TientEnWindows1252(boîte->Text));
        }
    }
}

} // namespace tirelune
