// The elements that screens are made of. State lives in them; who draws them is told of each change.
#pragma once
#include "core/Couleur.h"
#include "core/Dessin.h"
#include "core/Propriete.h"
#include "core/Texte.h"

#include <concepts>
#include <deque>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tirelune {

class Ecran;

// What an element's told colours say. Whoever draws the element says it by a sign as well.
enum class Sens {
    Réponse, // a green ground: right; a red one: wrong; a yellow one: chosen
    Verdict, // dark green letters: right; red ones: wrong
    Rien,    // nothing of the kind: a count, a score
};

// What an element is created with; only what differs from the ordinary is written down.
struct EtatInitial {
    Texte Caption{};
    bool Visible = true;
    bool Enabled = true;
    Texte ToolTipText{};
    Texte Libellé{}; // what it is called where no caption or label stands by it; nobody draws it
    Couleur BackColor = CouleurAuto;
    Couleur ForeColor = CouleurAuto;
    double FontSize = 0; // points; 0: the usual size
    bool Gras = false;
    Texte Police{};              // empty: the program's own font
    bool Centré = false;         // caption in the middle
    bool LettresCoupées = false; // of a label: on one line, half the height of the letters at half its own
    bool Bordure = false;
    Sens SensDesCouleurs = Sens::Réponse;
    bool Sorted = false;      // of lists
    bool Saisie = false;      // of a combo box: values may be typed
    bool MultiLine = false;   // of a text box
    bool Tabulations = false; // of a rich text box: Tab writes a tab
    bool UneLigne = false;    // of a rich text box: as high as its first line, which never breaks
    bool PourFichier = false; // of a text box: holds only what a field file can hold
    bool ALire = false;       // of a text box: locked, clicked as a whole, always shown whole
    bool PourFiche = false;   // the same of a file with records: never the mark that opens one
    std::size_t MaxLength = 0;
    char16_t PasswordChar = 0;
};

// A caption alone, where nothing else differs from the ordinary.
template <class T>
concept Légende = std::convertible_to<T, Texte>;

// A key as its handler sees it: the character typed, or 0, and the key's code.
struct Touche {
    static constexpr int RetourArrière = 8;
    static constexpr int Entrée = 13;
    static constexpr int Echappement = 27;
    static constexpr int PagePrécédente = 33;
    static constexpr int PageSuivante = 34;
    static constexpr int Fin = 35;
    static constexpr int Origine = 36;
    static constexpr int Gauche = 37;
    static constexpr int Haut = 38;
    static constexpr int Droite = 39;
    static constexpr int Bas = 40;
    static constexpr int Suppression = 46;

    char16_t Caractère = 0;
    int Code = 0;
    bool Avalée = false;

    void Avaler() { Avalée = true; }
};

// What an element covers that is PoséSur another one: all of it, half its height, or nothing: it stands beside it.
enum class Part { Tout, MoitiéHaute, MoitiéBasse, ADroite };

class Elément : public Observable {
public:
    Elément(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});
    Elément(const Elément&) = delete;
    Elément& operator=(const Elément&) = delete;
    virtual ~Elément() = default;

    const std::string Nom; // with the index when in an array: "lblMot(3)"
    Propriété<bool> Visible;
    Propriété<bool> Enabled;
    Propriété<int> Left{*this, 0}; // twips, inside what holds the element
    Propriété<int> Top{*this, 0};
    Propriété<int> Width{*this, 0};
    Propriété<int> Height{*this, 0};
    Propriété<Texte> ToolTipText;
    Propriété<Couleur> BackColor;
    Propriété<Couleur> ForeColor;
    Propriété<double> FontSize;
    Propriété<Texte> Police; // empty: the program's own font
    Propriété<bool> Gras;
    // In a Libre: stands over another element, in its place and size, wherever that one is.
    Propriété<const Elément*> PoséSur{*this, nullptr};
    Propriété<Part> PartPosée{*this, Part::Tout};
    Texte Tag; // a mark of the screen's own; nobody draws it
    const Texte Libellé;

    std::function<void()> GotFocus; // the keyboard has come to the element
    std::function<void()> LostFocus;
    // Set for what the mouse can take and let go over another element. It takes it: false, it stays. It lets it go,
    // over nothing too. A click remains a click.
    std::function<bool()> Prendre;
    std::function<void(const Elément* cible)> Lâcher;
    std::function<void()> Observateur; // set by who draws the element

    [[nodiscard]] Ecran& EcranDe() const { return écran_; }
    // Visible, in visible frames, and under no frame that covers the screen.
    [[nodiscard]] bool EstAtteignable() const;
    void SetFocus();
    // The user goes to the element, by Tab or by the mouse.
    void RecevoirFocus();
    // Paints the screen's changes now.
    void Refresh();

    void Changer() override;
    [[nodiscard]] const Elément* Conteneur() const { return conteneur_; }
    void RangerDans(const Elément* conteneur) { conteneur_ = conteneur; }

private:
    Ecran& écran_;
    const Elément* conteneur_ = nullptr; // the frame that holds it
};

// What most elements add: a caption and a click.
class Légendé : public Elément {
public:
    Légendé(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});
    Légendé(Ecran& écran, std::string_view nom, const Légende auto& légende)
        : Légendé(écran, nom, EtatInitial{.Caption = légende})
    {
    }

    Propriété<Texte> Caption;
    std::function<void()> Click;

    // A click by the user: nothing happens on what can't be reached or is disabled.
    virtual void Cliquer();
};

enum class Pointeur { Normal, Sablier };

class Label final : public Légendé {
public:
    Label(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});
    Label(Ecran& écran, std::string_view nom, const Légende auto& légende)
        : Label(écran, nom, EtatInitial{.Caption = légende})
    {
    }

    Propriété<bool> Bordure;
    Propriété<bool> AutoSize{*this, false};     // as wide as its caption
    Propriété<Dessin> Picture{*this, Dessin{}}; // before its caption
    Propriété<Texte> Plaque{*this, Texte{}};    // a short text at its right end
    Propriété<bool> Verrouillé{*this, false};   // its turn hasn't come yet
    Propriété<Pointeur> MousePointer{*this, Pointeur::Normal};
    const bool Centré;
    const bool LettresCoupées;
    const Sens SensDesCouleurs;
};

class Button final : public Légendé {
public:
    using Légendé::Légendé;

    Propriété<Dessin> Picture{*this, Dessin{}}; // in the place of a caption
};

class Frame final : public Légendé {
public:
    using Légendé::Légendé;

    // Set for a frame that can be dragged. The mouse moves over it, button down, at (x, y) twips inside it...
    std::function<void(double x, double y)> MouseMove;
    // ...and drops it at (x, y) twips inside the target; no target: the screen itself.
    std::function<void(const Elément* cible, double x, double y)> DragDrop;
};

class CheckBox final : public Légendé {
public:
    using Légendé::Légendé;

    Propriété<int> Value{*this, 0};

    void Cliquer() override; // flips the mark first
};

class MenuOption final : public Légendé {
public:
    using Légendé::Légendé;

    Propriété<bool> Checked{*this, false};
    std::string Raccourci; // "Ctrl+S"; empty: none
};

class TextBox final : public Elément {
public:
    TextBox(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});
    TextBox(Ecran& écran, std::string_view nom, const Légende auto& texte)
        : TextBox(écran, nom, EtatInitial{.Caption = texte})
    {
    }

    Propriété<Texte> Text;
    Propriété<std::size_t> SelStart{*this, 0};
    Propriété<std::size_t> SelLength{*this, 0};
    Propriété<std::size_t> MaxLength;
    Propriété<bool> Locked;
    const char16_t PasswordChar;
    const bool MultiLine;
    const bool PourFichier;
    const bool PourFiche;
    const bool ALire;
    const bool Centré;

    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void()> Change;    // the user has changed the text
    std::function<void()> Enter;     // the Enter key
    std::function<void()> MouseMove; // the mouse passes over the box
    std::function<void(Touche&)> KeyPress;

    [[nodiscard]] Texte SelText() const;
    void SelText(VueTexte nouveau); // replaces the selection; the caret goes behind

    // What the user does. A text that is too long, or that a file can't hold, is refused: false.
    bool Saisir(Texte texte);
    void Cliquer(std::size_t position);
    void DoubleCliquer(std::size_t position);
    // The key goes through KeyPress; Enter goes on to Enter. False: the key was thrown away.
    bool Taper(Touche touche);

private:
    [[nodiscard]] VueTexte Refus(VueTexte texte, bool raccourcit) const;
};

// A list of texts. A sorted one keeps its items in the order of a French dictionary.
class Liste : public Elément {
public:
    Liste(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});

    Propriété<int> ListIndex{*this, -1};
    const bool Sorted;
    std::function<void()> Click; // the user has chosen an item
    std::function<void()> DblClick;
    std::function<void(Touche&)> KeyPress;

    [[nodiscard]] int ListCount() const { return static_cast<int>(éléments_.size()); }
    [[nodiscard]] const Texte& List(int index) const { return éléments_.at(static_cast<std::size_t>(index)); }
    [[nodiscard]] const std::vector<Texte>& Eléments() const { return éléments_; }
    // Changes with the items: whoever shows them need not compare them.
    [[nodiscard]] unsigned Version() const { return version_; }
    // First item equal to the text, exactly; -1: none.
    [[nodiscard]] int Chercher(VueTexte texte) const;
    void AddItem(Texte texte);
    void AddItem(Texte texte, int index);
    void AddItems(std::vector<Texte> textes);
    void RemoveItem(int index);
    virtual void Clear();

    // The user picks an item.
    virtual void Choisir(int index);

private:
    void ElémentsChangés();

    std::vector<Texte> éléments_;
    unsigned version_ = 0;
};

class ListBox final : public Liste {
public:
    using Liste::Liste;
};

class ComboBox final : public Liste {
public:
    ComboBox(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});

    Propriété<Texte> Text; // what the field shows
    const bool Saisie;
    std::function<void()> Enter;

    // Shows an item, without a click.
    void Montrer(int index);
    void Clear() override;
    void Choisir(int index) override;
    void Saisir(Texte texte);
    bool Taper(Touche touche);
};

// The files of a folder that match a pattern "*.ext", in the order of their names.
class FileListBox final : public Elément {
public:
    FileListBox(Ecran& écran, std::string_view nom, Texte motif);

    const Texte Pattern;

    // Takes a folder and lists it. False when it can't be read; the list is empty then.
    [[nodiscard]] bool Path(const Texte& dossier);
    // Lists the folder again, or another one, whether it can be read or not.
    void Refresh();
    void Refresh(const Texte& dossier);
    [[nodiscard]] int ListCount() const { return static_cast<int>(noms_.size()); }
    [[nodiscard]] const Texte& List(int index) const { return noms_.at(static_cast<std::size_t>(index)); }

private:
    Texte dossier_;
    std::vector<Texte> noms_;
};

// The roots that a folder can be chosen under: "/", the home folder, what is mounted.
class DriveListBox final : public Elément {
public:
    DriveListBox(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});

    Propriété<Texte> Drive{*this, Texte{}};
    std::function<void()> Change;

    [[nodiscard]] const std::vector<Texte>& Lecteurs() const { return lecteurs_; }
    void Refresh();
    // Shows the root that a folder lies under.
    void Montrer(VueTexte dossier);
    void Choisir(int index); // by the user

private:
    std::vector<Texte> lecteurs_;
};

// A folder and the folders in it.
class DirListBox final : public Elément {
public:
    DirListBox(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});

    Propriété<int> ListIndex{*this, -1}; // the folder in it that is highlighted; -1: none
    std::function<void()> Change;

    [[nodiscard]] const Texte& Path() const { return dossier_; }
    // The highlighted folder, or else the one whose folders are listed.
    [[nodiscard]] Texte Choisi() const;
    // False when the folder can't be read; nothing changes then.
    [[nodiscard]] bool Path(const Texte& dossier);
    [[nodiscard]] const std::vector<Texte>& SousDossiers() const { return noms_; }
    void Ouvrir(int index);    // by the user; -1: the folder above
    void Surligner(int index); // by the user

private:
    Texte dossier_;
    std::vector<Texte> noms_;
};

class ScrollBar final : public Elément {
public:
    ScrollBar(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});

    Propriété<int> Value{*this, 0};
    Propriété<int> Min{*this, 0};
    Propriété<int> Max{*this, 0};
    std::function<void()> Change;

    void Déplacer(int valeur); // by the user
};

class Timer final : public Observable {
public:
    Timer(Ecran& écran, std::string_view nom, int intervalle, bool enMarche = false);

    const std::string Nom;
    Propriété<int> Interval; // ms; 0 stops it
    Propriété<bool> Enabled;
    std::function<void()> Tick;

    [[nodiscard]] Ecran& EcranDe() const { return écran_; }
    [[nodiscard]] bool EnMarche() const { return Enabled && Interval > 0; }
    void Changer() override;

private:
    Ecran& écran_;
};

class Image final : public Légendé {
public:
    using Légendé::Légendé;

    Propriété<Dessin> Picture{*this, Dessin{}};
};

class Rectangle final : public Elément {
public:
    Rectangle(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});

    Propriété<Couleur> FillColor;
    Propriété<Couleur> BorderColor;
};

class Line final : public Elément {
public:
    struct Trait {
        int X1 = 0;
        int Y1 = 0;
        int X2 = 0;
        int Y2 = 0;
        Couleur Teinte = Noir;
        int Epaisseur = 1;
    };
    Line(Ecran& écran, std::string_view nom, const EtatInitial& initial = {});
    Line(Ecran& écran, std::string_view nom, Trait trait, bool visible = true);

    Propriété<int> X1{*this, 0};
    Propriété<int> Y1{*this, 0};
    Propriété<int> X2{*this, 0};
    Propriété<int> Y2{*this, 0};
    Propriété<Couleur> BorderColor{*this, Noir};
    Propriété<int> BorderWidth{*this, 1};
};

// A table of texts; rows and columns from 0.
class Grid final : public Elément {
public:
    Grid(Ecran& écran, std::string_view nom, int lignes, int colonnes);

    Propriété<int> Row{*this, 0};
    Propriété<int> Col{*this, 0};
    std::function<void()> Click;

    [[nodiscard]] int Rows() const { return static_cast<int>(cellules_.size()); }
    [[nodiscard]] int Cols() const { return colonnes_; }
    void Rows(int lignes);
    void Cols(int colonnes);
    [[nodiscard]] const Texte& TextMatrix(int ligne, int colonne) const;
    void TextMatrix(int ligne, int colonne, Texte texte);
    void AddRow();
    void RemoveRow(int ligne);
    // All those of which it is true.
    void RemoveRows(const std::function<bool(int ligne)>& partante);
    // As many cells of the row as may hold something: all behind them are empty.
    [[nodiscard]] int Remplies(int ligne) const;

private:
    [[nodiscard]] std::size_t PlaceDe(int colonne) const;

    int colonnes_;
    std::vector<std::vector<Texte>> cellules_; // each row up to the last cell that was written
};

class Toolbar final : public Elément {
public:
    enum class Etat { Relâché, Enfoncé, Mixte };
    struct Bouton {
        std::string Clé{}; // "btnOuvrir"; empty: a gap between two groups
        Dessin Icône{};
        Texte ToolTipText{};
        Etat Pression = Etat::Relâché;
        bool Basculant = false; // shows a state
    };
    Toolbar(Ecran& écran, std::string_view nom, std::vector<Bouton> boutons);

    std::function<void(std::string_view clé)> ButtonClick;

    [[nodiscard]] const std::vector<Bouton>& Boutons() const { return boutons_; }
    void Montrer(std::string_view clé, Etat état);
    void Cliquer(std::string_view clé);

private:
    std::vector<Bouton> boutons_;
};

// Elements of one kind under one name, indexed from 0.
template <class T>
class Tableau {
public:
    Tableau(Ecran& écran, std::string_view nom, int nombre, const EtatInitial& initial = {})
    {
        for (int i = 0; i < nombre; ++i)
            éléments_.emplace_back(écran, NomIndexé(nom, i), initial);
    }
    Tableau(Ecran& écran, std::string_view nom, std::initializer_list<Texte> légendes, EtatInitial initial = {})
    {
        for (const auto& légende : légendes) {
            initial.Caption = légende;
            éléments_.emplace_back(écran, NomIndexé(nom, Nombre()), initial);
        }
    }
    Tableau(Ecran& écran, std::string_view nom, const std::vector<EtatInitial>& états)
    {
        for (const auto& état : états)
            éléments_.emplace_back(écran, NomIndexé(nom, Nombre()), état);
    }

    T& operator()(int i) { return éléments_.at(static_cast<std::size_t>(i)); }
    const T& operator()(int i) const { return éléments_.at(static_cast<std::size_t>(i)); }
    [[nodiscard]] int Nombre() const { return static_cast<int>(éléments_.size()); }
    [[nodiscard]] int UBound() const { return Nombre() - 1; }
    auto begin() { return éléments_.begin(); }
    auto end() { return éléments_.end(); }

    // Binds the same event of all: what it calls gets the index first.
    template <class E, class... Arguments, class Suite>
    void Relier(std::function<void(Arguments...)> E::*événement, Suite suite)
    {
        for (int i = 0; i < Nombre(); ++i)
            (*this)(i).*
                événement = [suite, i](Arguments... arguments) { suite(i, std::forward<Arguments>(arguments)...); };
    }
    void Click(const std::function<void(int)>& clic) { Relier(&T::Click, clic); }

private:
    static std::string NomIndexé(std::string_view nom, int i)
    {
        return std::string{nom} + "(" + std::to_string(i) + ")";
    }
    std::deque<T> éléments_; // elements have an identity and never move
};

// A counter kept in a caption, as a whole number; 0 where it holds none.
int Compte(const Label& compteur);
// Its value plus `pas`, with no blanks.
void Incrémenter(Label& compteur, int pas = 1);

} // namespace tirelune
