// The window of a screen: its widgets, their layout, and the way back of keys and sizes.
#pragma once
#include "desktop/Vues.h"

#include <QMenu>
#include <QWidget>

#include <unordered_map>
#include <vector>

class QBoxLayout;
class QLayout;
class QLayoutItem;
class QMenuBar;

namespace tirelune {

class Contenu;
class PlateformeQt;
class Superposition;

class Fenêtre final : public QWidget {
public:
    Fenêtre(PlateformeQt& plateforme, Ecran& écran);
    ~Fenêtre() override;

    // Shows the background alone; Ouvrir goes on from there.
    void MontrerFond();
    // Shows the window over the one below it, and tells the screen its size.
    void Ouvrir(QWidget* dessous);
    // Takes the window away; the screen is not touched any more.
    void Fermer();
    [[nodiscard]] bool Fermée() const { return fermée_; }

    [[nodiscard]] Ecran& EcranDe() const { return écran_; }
    [[nodiscard]] double Echelle() const { return échelle_; }
    [[nodiscard]] int Pixels(int twips) const;
    [[nodiscard]] int Twips(int pixels) const;
    [[nodiscard]] Vue* VueDe(const Elément& élément) const;
    [[nodiscard]] Vue* VueDuWidget(const QWidget* widget) const;
    [[nodiscard]] QWidget* Plan() const { return plan_; }
    [[nodiscard]] PlateformeQt& PlateformeDe() const { return plateforme_; }

    void Marquer(Vue& vue);
    // Sets all that is marked, once.
    void Synchroniser();
    // Synchroniser, and paints now.
    void Repeindre();
    // Keys go to the screen first, then to the element. True: swallowed.
    bool Filtrer(QObject* visé, QEvent* événement);
    // Writes back where the elements stand.
    void NoterGéométrie();

protected:
    bool event(QEvent* événement) override;
    void closeEvent(QCloseEvent* événement) override;

private:
    friend class Contenu;
    struct Place {
        QWidget* Widget = nullptr;
        QLayout* Layout = nullptr;
    };

    Place Bâtir(const Arrangement& place, QWidget* parent, bool garder);
    Place BâtirBoîte(const Arrangement& place, QWidget* parent);
    Place BâtirGrille(const Arrangement& place, QWidget* parent);
    Place BâtirCadre(const Arrangement& place, QWidget* parent, bool garder);
    Place BâtirLibre(const Arrangement& place, QWidget* parent);
    Place BâtirToile(const Arrangement& place, QWidget* parent);
    void BâtirCouverture(const Arrangement& place);
    void Remplir(QWidget* cadre, const Arrangement& contenu);
    Place AvecMinimum(Place une, const Arrangement& place);
    Vue& Créer(Elément* élément, QWidget* parent);
    void Garnir();
    void BâtirMenus();
    void RemplirMenu(QWidget* où, const std::vector<Menu>& entrées);
    void OrdonnerTabulation();
    void Observer();

    void TailleChangée();
    void AjusterBarre();
    void SynchroniserFenêtre();
    void SynchroniserCouvertures();
    void DonnerFocus();
    void Réveiller(); // asks for Synchroniser before the next events

    PlateformeQt& plateforme_;
    Ecran& écran_;
    Contenu* contenu_ = nullptr; // under the menus
    QWidget* plan_ = nullptr;    // all but the frames that cover the screen
    QMenuBar* barre_ = nullptr;
    std::vector<std::pair<MenuOption*, QAction*>> entréesBarre_;
    std::vector<std::unique_ptr<Vue>> vues_; // in the order of their making
    std::unordered_map<const Elément*, Vue*> parElément_;
    std::unordered_map<const QWidget*, Vue*> parWidget_;
    std::vector<Vue*> couvertures_;
    std::vector<Vue*> sales_;
    std::vector<std::function<void()>> minimums_; // sizes that were asked for, at the present scale
    double échelle_ = 1;
    QRect pleine_; // where it stands when it fills the display
    bool fermée_ = false;
    bool ouverte_ = false;
    bool réveillée_ = false;
    bool écranSale_ = true;
    bool tailleChangée_ = false;
    bool focusDemandé_ = false;
    // What the screen last said of itself: another notice with all this unchanged asks for the focus.
    Texte légendeVue_;
    Couleur fondVu_;
    bool dessinVu_ = false;
    const Elément* focusVu_ = nullptr;
};

} // namespace tirelune
