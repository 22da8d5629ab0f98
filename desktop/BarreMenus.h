// The menus of a screen.
#pragma once
#include "core/Ecran.h"

#include <QMenuBar>

#include <utility>
#include <vector>

namespace tirelune {

class Hôte;
class JeuDeVues;

class BarreMenus final : public QMenuBar {
public:
    BarreMenus(Hôte& hôte, JeuDeVues& vues, const std::vector<Menu>& menus, QWidget* parent);

    // Letters at the window's scale, and captions that find room in its width.
    void Ajuster(double échelle, int largeur);

private:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
    void Remplir(Hôte& hôte, JeuDeVues& vues, QWidget& où, const std::vector<Menu>& entrées);

    std::vector<std::pair<MenuOption*, QAction*>> entrées_; // of the bar itself
    std::vector<QMenu*> menus_;                             // below it
    bool écartées_ = false;                                 // the blanks around the captions find room
};

// An option that stands in no menu is there for its shortcut, which the window then knows.
void PoserRaccourcis(Hôte& hôte, JeuDeVues& vues, const std::vector<Elément*>& éléments, QWidget& fenêtre);

} // namespace tirelune
