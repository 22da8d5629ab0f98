#include "core/Elements.h"

#include "core/Ecran.h"
#include "core/FichierChamps.h"
#include "core/OrdreAlphabetique.h"
#include "core/Windows1252.h"

#include <algorithm>
#include <cassert>

namespace tirelune {

// ---- Elément -------------------------------------------------------------------------------------------------

Elément::Elément(Ecran& écran, std::string_view nom, const EtatInitial& initial)
    : Nom(nom),
      Visible(*this, initial.Visible),
      Enabled(*this, initial.Enabled),
      ToolTipText(*this, initial.ToolTipText),
      BackColor(*this, initial.BackColor),
      ForeColor(*this, initial.ForeColor),
      FontSize(*this, initial.FontSize),
      Police(*this, initial.Police),
      Gras(*this, initial.Gras),
      Libellé(initial.Libellé),
      écran_(écran)
{
    écran.Inscrire(*this);
}

bool Elément::EstAtteignable() const
{
    if (!écran_.EstChargé())
        return false;
    const Elément* couverture = nullptr; // the one that this element lies in
    for (const auto* un = this; un != nullptr; un = un->conteneur_) {
        if (!un->Visible)
            return false;
        const auto& toutes = écran_.Couvertures();
        if (std::find(toutes.begin(), toutes.end(), un) != toutes.end())
            couverture = un;
    }
    return std::all_of(écran_.Couvertures().begin(), écran_.Couvertures().end(),
                       [&](const Elément* autre) { return autre == couverture || !autre->Visible; });
}

void Elément::SetFocus()
{
    écran_.PrendreFocus(*this);
}

void Elément::RecevoirFocus()
{
    if (Enabled && EstAtteignable())
        écran_.FocusVenu(*this);
}

void Elément::Refresh()
{
    écran_.ApplicationDe().plateforme.Repeindre(écran_);
}

void Elément::Changer()
{
    if (Observateur)
        Observateur();
}

// ---- Captions ------------------------------------------------------------------------------------------------

namespace {

void Appeler(const std::function<void()>& événement)
{
    if (événement)
        événement();
}

// The key goes through KeyPress; Enter goes on to Enter. False: the key was thrown away.
bool Frapper(Touche touche, const std::function<void(Touche&)>& KeyPress, const std::function<void()>& Enter)
{
    if (KeyPress)
        KeyPress(touche);
    if (!touche.Avalée && touche.Code == Touche::Entrée && Enter) {
        touche.Avaler();
        Enter();
    }
    return !touche.Avalée;
}

} // namespace

Légendé::Légendé(Ecran& écran, std::string_view nom, const EtatInitial& initial)
    : Elément(écran, nom, initial), Caption(*this, initial.Caption)
{
}

void Légendé::Cliquer()
{
    if (Enabled && EstAtteignable())
        Appeler(Click);
}

Label::Label(Ecran& écran, std::string_view nom, const EtatInitial& initial)
    : Légendé(écran, nom, initial),
      Bordure(*this, initial.Bordure),
      Centré(initial.Centré),
      LettresCoupées(initial.LettresCoupées),
      SensDesCouleurs(initial.SensDesCouleurs)
{
}

void CheckBox::Cliquer()
{
    if (!Enabled || !EstAtteignable())
        return;
    Value = 1 - Value;
    Appeler(Click);
}

int Compte(const Label& compteur)
{
    return static_cast<int>(Valeur(compteur.Caption));
}

void Incrémenter(Label& compteur, int pas)
{
    compteur.Caption = EnTexte(Compte(compteur) + pas);
}

// ---- Text box ------------------------------------------------------------------------------------------------

TextBox::TextBox(Ecran& écran, std::string_view nom, const EtatInitial& initial)
    : Elément(écran, nom, initial),
      Text(*this, initial.Caption),
      MaxLength(*this, initial.MaxLength),
      Locked(*this, initial.ALire),
      PasswordChar(initial.PasswordChar),
      MultiLine(initial.MultiLine),
      PourFichier(initial.PourFichier || initial.PourFiche),
      PourFiche(initial.PourFiche),
      ALire(initial.ALire),
      Centré(initial.Centré)
{
}

Texte TextBox::SelText() const
{
    const auto début = std::min<std::size_t>(SelStart, Text->size());
    return Text().substr(début, SelLength);
}

void TextBox::SelText(VueTexte nouveau)
{
    Texte texte = Text;
    const auto début = std::min<std::size_t>(SelStart, texte.size());
    texte.replace(début, std::min<std::size_t>(SelLength, texte.size() - début), nouveau);
    Text = std::move(texte);
    SelStart = début + nouveau.size();
    SelLength = 0;
}

namespace {

bool EstInterdit(char16_t caractère)
{
    return caractère == u'"' || !OctetWindows1252(caractère);
}

} // namespace

// A text that came from elsewhere may hold too much: what makes it shorter is never refused.
bool TextBox::Saisir(Texte texte)
{
    const bool raccourcit = texte.size() < Text->size();
    if (Locked || !Enabled || (MaxLength > 0 && texte.size() > MaxLength && !raccourcit))
        return false;
    if (const auto refus = Refus(texte, raccourcit); !refus.empty()) {
        EcranDe().ApplicationDe().Avertir(Texte{refus});
        return false;
    }
    Text = std::move(texte);
    Appeler(Change);
    return true;
}

// Why a file can't hold the text; nothing when it can.
VueTexte TextBox::Refus(VueTexte texte, bool raccourcit) const
{
    if (!PourFichier)
        return {};
    if (PourFiche && Rogner(texte) == Marqueur)
        return u"L'astérisque seul n'est pas possible ici : dans le fichier, il sépare les mots.";
    const auto interdits = std::count_if(texte.begin(), texte.end(), EstInterdit);
    if (interdits == 0 || (raccourcit && interdits <= std::count_if(Text->begin(), Text->end(), EstInterdit)))
        return {};
    return Contient(texte, u'"') ? u"Le guillemet droit (\") n'est pas possible ici."
                                 : u"Ce caractère n'est pas possible ici : le fichier ne peut pas le garder.";
}

void TextBox::Cliquer(std::size_t position)
{
    SelStart = std::min(position, Text->size());
    SelLength = 0;
    if (Enabled && EstAtteignable())
        Appeler(Click);
}

void TextBox::DoubleCliquer(std::size_t position)
{
    SelStart = std::min(position, Text->size());
    if (Enabled && EstAtteignable())
        Appeler(DblClick);
}

bool TextBox::Taper(Touche touche)
{
    return Frapper(touche, KeyPress, Enter);
}

// ---- Lists ---------------------------------------------------------------------------------------------------

Liste::Liste(Ecran& écran, std::string_view nom, const EtatInitial& initial)
    : Elément(écran, nom, initial), Sorted(initial.Sorted)
{
}

int Liste::Chercher(VueTexte texte) const
{
    const auto place = std::find(éléments_.begin(), éléments_.end(), texte);
    return place == éléments_.end() ? -1 : static_cast<int>(place - éléments_.begin());
}

void Liste::AddItem(Texte texte)
{
    const auto place =
        Sorted ? std::upper_bound(éléments_.begin(), éléments_.end(), texte, AvantDansLOrdre) : éléments_.end();
    AddItem(std::move(texte), static_cast<int>(place - éléments_.begin()));
}

void Liste::AddItem(Texte texte, int index)
{
    éléments_.insert(éléments_.begin() + index, std::move(texte));
    if (ListIndex >= index)
        ListIndex.Noter(ListIndex + 1);
    ElémentsChangés();
}

void Liste::AddItems(std::vector<Texte> textes)
{
    éléments_.insert(éléments_.end(), std::make_move_iterator(textes.begin()), std::make_move_iterator(textes.end()));
    if (Sorted)
        std::stable_sort(éléments_.begin(), éléments_.end(), AvantDansLOrdre);
    ElémentsChangés();
}

void Liste::RemoveItem(int index)
{
    éléments_.erase(éléments_.begin() + index);
    if (ListIndex == index)
        ListIndex.Noter(-1);
    else if (ListIndex > index)
        ListIndex.Noter(ListIndex - 1);
    ElémentsChangés();
}

void Liste::Clear()
{
    éléments_.clear();
    ListIndex.Noter(-1);
    ElémentsChangés();
}

void Liste::ElémentsChangés()
{
    ++version_;
    Changer();
}

void Liste::Choisir(int index)
{
    if (!Enabled || !EstAtteignable() || index < 0 || index >= ListCount())
        return;
    ListIndex = index;
    Appeler(Click);
}

ComboBox::ComboBox(Ecran& écran, std::string_view nom, const EtatInitial& initial)
    : Liste(écran, nom, initial), Text(*this, initial.Caption), Saisie(initial.Saisie)
{
}

void ComboBox::Montrer(int index)
{
    ListIndex = index;
    Text = List(index);
}

void ComboBox::Clear()
{
    Liste::Clear();
    Text = Texte{};
}

void ComboBox::Choisir(int index)
{
    if (!Enabled || !EstAtteignable() || index < 0 || index >= ListCount())
        return;
    Montrer(index);
    Appeler(Click);
}

void ComboBox::Saisir(Texte texte)
{
    if (!Saisie || !Enabled)
        return;
    ListIndex.Noter(Chercher(texte));
    Text = std::move(texte);
}

bool ComboBox::Taper(Touche touche)
{
    return Frapper(touche, KeyPress, Enter);
}

// ---- Files and folders -----------------------------------------------------------------------------------------

namespace {

// The entries of a folder that pass the test, in the order of a dictionary. Nothing when it can't be read.
template <class Test>
std::optional<std::vector<Texte>> Lister(const Texte& dossier, Test retenu)
{
    std::error_code erreur;
    std::filesystem::directory_iterator entrée{EnChemin(dossier), erreur};
    if (erreur)
        return std::nullopt;
    std::vector<Texte> noms;
    for (; entrée != std::filesystem::directory_iterator{}; entrée.increment(erreur)) {
        auto nom = DepuisChemin(entrée->path().filename());
        if (retenu(*entrée, nom))
            noms.push_back(std::move(nom));
        if (erreur)
            return std::nullopt;
    }
    std::sort(noms.begin(), noms.end(), AvantDansLOrdre);
    return noms;
}

} // namespace

FileListBox::FileListBox(Ecran& écran, std::string_view nom, Texte motif)
    : Elément(écran, nom), Pattern(std::move(motif))
{
    Visible.Noter(false);
}

bool FileListBox::Path(const Texte& dossier)
{
    dossier_ = dossier;
    const auto suffixe = Minuscules(VueTexte{Pattern}.substr(1));
    auto noms = Lister(dossier, [&](const std::filesystem::directory_entry& entrée, const Texte& nom) {
        std::error_code erreur;
        return nom.size() > suffixe.size() && Minuscules(nom).ends_with(suffixe) && !entrée.is_directory(erreur);
    });
    noms_ = noms.value_or(std::vector<Texte>{});
    Changer();
    return noms.has_value();
}

void FileListBox::Refresh()
{
    Refresh(Texte{dossier_});
}

void FileListBox::Refresh(const Texte& dossier)
{
    static_cast<void>(Path(dossier)); // an unreadable folder has an empty list
}

DriveListBox::DriveListBox(Ecran& écran, std::string_view nom, const EtatInitial& initial)
    : Elément(écran, nom, initial)
{
    Refresh();
}

void DriveListBox::Refresh()
{
    lecteurs_ = EcranDe().ApplicationDe().plateforme.Lecteurs();
    Changer();
}

void DriveListBox::Montrer(VueTexte dossier)
{
    const auto contient = [dossier](const Texte& racine) {
        return dossier.starts_with(racine) &&
               (dossier.size() == racine.size() || racine.ends_with(u'/') || dossier[racine.size()] == u'/');
    };
    Texte trouvé;
    for (const auto& racine : lecteurs_) {
        if (contient(racine) && racine.size() > trouvé.size())
            trouvé = racine;
    }
    Drive = std::move(trouvé);
}

void DriveListBox::Choisir(int index)
{
    if (!Enabled || !EstAtteignable() || index < 0 || index >= static_cast<int>(lecteurs_.size()))
        return;
    Drive = lecteurs_[static_cast<std::size_t>(index)];
    Appeler(Change);
}

DirListBox::DirListBox(Ecran& écran, std::string_view nom, const EtatInitial& initial) : Elément(écran, nom, initial) {}

bool DirListBox::Path(const Texte& dossier)
{
    auto noms = Lister(dossier, [](const std::filesystem::directory_entry& entrée, const Texte& nom) {
        std::error_code erreur;
        return !nom.starts_with(u'.') && entrée.is_directory(erreur);
    });
    if (!noms)
        return false;
    dossier_ = dossier;
    noms_ = std::move(*noms);
    ListIndex.Noter(-1);
    Changer();
    return true;
}

Texte DirListBox::Choisi() const
{
    const int index = ListIndex;
    return index < 0 ? dossier_ : Joindre(dossier_, noms_.at(static_cast<std::size_t>(index)));
}

void DirListBox::Surligner(int index)
{
    if (Enabled && EstAtteignable() && index >= -1 && index < static_cast<int>(noms_.size()))
        ListIndex = index;
}

void DirListBox::Ouvrir(int index)
{
    if (!Enabled || !EstAtteignable() || index < -1 || index >= static_cast<int>(noms_.size()))
        return;
    const auto suivant = index < 0 ? DepuisChemin(EnChemin(dossier_).parent_path())
                                   : Joindre(dossier_, noms_[static_cast<std::size_t>(index)]);
    if (Path(suivant))
        Appeler(Change);
}

// ---- Scroll bar, timer, shapes ---------------------------------------------------------------------------------

ScrollBar::ScrollBar(Ecran& écran, std::string_view nom, const EtatInitial& initial) : Elément(écran, nom, initial) {}

void ScrollBar::Déplacer(int valeur)
{
    const int bornée = std::max(Min(), std::min(Max(), valeur));
    if (bornée == Value || !Enabled || !EstAtteignable())
        return;
    Value = bornée;
    Appeler(Change);
}

Timer::Timer(Ecran& écran, std::string_view nom, int intervalle, bool enMarche)
    : Nom(nom), Interval(*this, intervalle), Enabled(*this, enMarche), écran_(écran)
{
    écran.Inscrire(*this);
    if (enMarche)
        Changer();
}

void Timer::Changer()
{
    écran_.ApplicationDe().plateforme.RéglerMinuterie(*this);
}

Rectangle::Rectangle(Ecran& écran, std::string_view nom, const EtatInitial& initial)
    : Elément(écran, nom, initial), FillColor(*this, initial.BackColor), BorderColor(*this, initial.ForeColor)
{
}

Line::Line(Ecran& écran, std::string_view nom, const EtatInitial& initial) : Elément(écran, nom, initial) {}

Line::Line(Ecran& écran, std::string_view nom, Trait trait, bool visible) : Elément(écran, nom)
{
    X1.Noter(trait.X1);
    Y1.Noter(trait.Y1);
    X2.Noter(trait.X2);
    Y2.Noter(trait.Y2);
    BorderColor.Noter(trait.Teinte);
    BorderWidth.Noter(trait.Epaisseur);
    Visible.Noter(visible);
}

// ---- Grid ----------------------------------------------------------------------------------------------------

Grid::Grid(Ecran& écran, std::string_view nom, int lignes, int colonnes)
    : Elément(écran, nom), colonnes_(colonnes), cellules_(static_cast<std::size_t>(lignes))
{
    Visible.Noter(false);
}

void Grid::Rows(int lignes)
{
    cellules_.resize(static_cast<std::size_t>(lignes));
    Changer();
}

void Grid::Cols(int colonnes)
{
    if (colonnes < colonnes_) {
        for (auto& ligne : cellules_)
            ligne.resize(std::min(ligne.size(), static_cast<std::size_t>(colonnes)));
    }
    colonnes_ = colonnes;
    Changer();
}

const Texte& Grid::TextMatrix(int ligne, int colonne) const
{
    static const Texte vide;
    const auto& cellules = cellules_.at(static_cast<std::size_t>(ligne));
    const auto place = PlaceDe(colonne);
    return place < cellules.size() ? cellules[place] : vide;
}

void Grid::TextMatrix(int ligne, int colonne, Texte texte)
{
    auto& cellules = cellules_.at(static_cast<std::size_t>(ligne));
    const auto place = PlaceDe(colonne);
    if (place >= cellules.size())
        cellules.resize(place + 1);
    cellules[place] = std::move(texte);
    Changer();
}

std::size_t Grid::PlaceDe(int colonne) const
{
    assert(colonne >= 0 && colonne < colonnes_);
    return static_cast<std::size_t>(colonne);
}

void Grid::AddRow()
{
    Rows(Rows() + 1);
}

void Grid::RemoveRow(int ligne)
{
    assert(ligne >= 0 && ligne < Rows());
    cellules_.erase(cellules_.begin() + ligne);
    Changer();
}

void Grid::RemoveRows(const std::function<bool(int ligne)>& partante)
{
    std::size_t restées = 0;
    for (int ligne = 0; ligne < Rows(); ++ligne) {
        const auto place = static_cast<std::size_t>(ligne);
        if (partante(ligne))
            continue;
        if (restées != place)
            cellules_[restées] = std::move(cellules_[place]);
        ++restées;
    }
    cellules_.resize(restées);
    Changer();
}

int Grid::Remplies(int ligne) const
{
    return static_cast<int>(cellules_.at(static_cast<std::size_t>(ligne)).size());
}

// ---- Toolbar -------------------------------------------------------------------------------------------------

Toolbar::Toolbar(Ecran& écran, std::string_view nom, std::vector<Bouton> boutons)
    : Elément(écran, nom), boutons_(std::move(boutons))
{
}

void Toolbar::Montrer(std::string_view clé, Etat état)
{
    const auto bouton = std::find_if(boutons_.begin(), boutons_.end(), [&](const Bouton& b) { return b.Clé == clé; });
    assert(bouton != boutons_.end());
    if (bouton->Pression == état)
        return;
    bouton->Pression = état;
    Changer();
}

void Toolbar::Cliquer(std::string_view clé)
{
    if (Enabled && EstAtteignable() && ButtonClick)
        ButtonClick(clé);
}

} // namespace tirelune
