// What stands for an element on the screen: it sets on a widget what has changed in the element, and hands back
// what the user does with the widget.
#pragma once
#include "core/Ecran.h"

#include <QLayout>
#include <QWidget>

#include <functional>
#include <memory>

namespace tirelune {

class Fenêtre;
class VueToile;

class Vue {
public:
    Vue(Fenêtre& fenêtre, Elément& élément, QWidget* widget);
    Vue(const Vue&) = delete;
    Vue& operator=(const Vue&) = delete;
    virtual ~Vue();

    Elément& élément;
    QWidget* const widget;          // owned by its parent; none for what another widget paints
    bool sale = true;               // waits for its turn to be synced
    const QLayout* libre = nullptr; // where it stands at places that the rules compute: see Disposition::Libre
    std::function<double()> échelle;

    // Sets on the widget what differs from the element.
    virtual void Synchroniser();
    // At once when the element changes; the rest waits for Synchroniser.
    virtual void Remarquer() {}
    // A key typed on the widget. False: thrown away.
    virtual bool Taper(const Touche& /*touche*/) { return true; }
    // The size that the widget takes at a place that the rules compute.
    [[nodiscard]] virtual QSize TailleLibre();
    // The place itself, in the parent's coordinates.
    [[nodiscard]] QRect PlaceLibre();

protected:
    Fenêtre& fenêtre_;
    [[nodiscard]] bool Agissante() const; // the screen is still there
    [[nodiscard]] int Pixels(int twips) const;
    [[nodiscard]] int Twips(int pixels) const;
    void ColorerFond(const QColor& usuelle);

private:
    QSize donnée_{-1, -1}; // written back as the element's size, in twips
};

std::unique_ptr<Vue> CréerVue(Fenêtre& fenêtre, Elément& élément, QWidget* parent);
std::unique_ptr<Vue> CréerVueTexteRiche(Fenêtre& fenêtre, RichTextBox& boîte, QWidget* parent);
std::unique_ptr<Vue> CréerVueBarre(Fenêtre& fenêtre, Toolbar& barre, QWidget* parent);

} // namespace tirelune
