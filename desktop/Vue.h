// What stands for an element on the screen: it sets on a widget what has changed in the element, and hands back
// what the user does with the widget.
#pragma once
#include "core/Elements.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QWidget>

namespace tirelune {

class Vue;

// What a view needs of the window that it stands in.
class Hôte {
public:
    // The screen is gone: nothing of it is touched any more.
    [[nodiscard]] virtual bool Fermée() const = 0;
    // How much larger than on an 800 x 600 display things are drawn.
    [[nodiscard]] virtual double Echelle() const = 0;
    // The view waits for its turn to be synced.
    virtual void Marquer(Vue& vue) = 0;
    [[nodiscard]] virtual Vue* VueDe(const Elément& élément) const = 0;
    // The view of the widget, or of the nearest around it.
    [[nodiscard]] virtual Vue* VueDuWidget(const QWidget* widget) const = 0;
    // Where something falls that is dropped at a point of the display: on a rich text, or on the screen (no target);
    // in pixels inside it.
    struct Chute {
        const Elément* Cible;
        QPoint Lieu;
    };
    [[nodiscard]] virtual Chute TomberEn(QPoint global) const = 0;
    // What is chosen at this place of the display is to be seen.
    virtual void Dégager(const QRect& lieu) = 0;
    // Where the display shows what is selected in a text that is read; nothing: there is no such selection.
    [[nodiscard]] virtual QRect PassageChoisi() const = 0;

protected:
    ~Hôte() = default;
};

// Places widgets at their elements' own Left, Top, Width and Height: see Disposition::Libre and Disposition::Toile.
class Placeur {
public:
    // How much larger than usual what it places is drawn.
    [[nodiscard]] virtual double EchelleDesPlaces() const = 0;
    // Where its places are counted from, in the widget that they lie in.
    [[nodiscard]] virtual QPoint Coin() const = 0;
    virtual void Placer(Vue& vue) = 0;

protected:
    ~Placeur() = default;
};

class Vue {
public:
    Vue(Hôte& hôte, Elément& élément, QWidget* widget);
    Vue(const Vue&) = delete;
    Vue& operator=(const Vue&) = delete;
    virtual ~Vue();

    Elément& élément;
    QWidget* const widget;      // owned by its parent; none for what another widget paints
    bool sale = true;           // waits for its turn to be synced
    Placeur* placeur = nullptr; // none: a layout places it
    double points = 0;          // of its letters, where its place says it; 0: the element's own

    // Sets on the widget what differs from the element.
    virtual void Synchroniser();
    // At once when the element changes; the rest waits for Synchroniser.
    virtual void Remarquer() {}
    // A handler that was bound or taken away since gives no notice: looked at before each click and key. True: the
    // keyboard now stops here, or doesn't any more.
    virtual bool Revoir() { return false; }
    // A key typed on the widget. False: thrown away.
    virtual bool Taper(const Touche& /*touche*/) { return true; }
    // The place that the rules have computed. Where they have said nothing of a size, the widget's own counts.
    [[nodiscard]] QRect PlaceLibre() const;
    // Tells the element the sizes that are the widget's own...
    void NoterTailleLibre();
    // ...or the place where the widget stands, whoever has put it there.
    void NoterPlace(const QRect& place);

protected:
    Hôte& hôte_;
    [[nodiscard]] bool Agissante() const; // the screen is still there
    [[nodiscard]] int Pixels(int twips) const;
    [[nodiscard]] int Twips(int pixels) const;
    void ColorerFond(const QColor& usuelle);

private:
    [[nodiscard]] QSize TailleLibre() const; // twips

    QSize notée_{-1, -1}; // written back as the element's size: not one that the rules have given
};

} // namespace tirelune
