// The layouts that the toolkit lacks: one upon the other, at places of their own, and rows that close up.
#pragma once
#include "desktop/Vue.h"

#include <QBoxLayout>
#include <QWidget>

#include <vector>

namespace tirelune {

// Where a widget is cut into an upper half and a lower one: pixels from its top.
[[nodiscard]] int MoitiéDe(const QWidget& widget);

// Side by side, or one under the other. When all of it is hidden it takes no room in the row or column that it is in.
class Alignés final : public QBoxLayout {
public:
    using QBoxLayout::QBoxLayout;
    [[nodiscard]] QSize maximumSize() const override;
};

// All children as large as the place. When all of it is hidden, as above.
class Superposition : public QLayout {
public:
    using QLayout::QLayout;
    ~Superposition() override;

    void Ajouter(QWidget* un);
    void Ajouter(QLayout* un);
    void addItem(QLayoutItem* un) override { pièces_.push_back(un); }
    [[nodiscard]] int count() const override { return static_cast<int>(pièces_.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] QSize maximumSize() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int largeur) const override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override;
    void setGeometry(const QRect& place) override;

    QSize tailleMinimale; // of the place itself

private:
    [[nodiscard]] QSize AvecMarges(QSize taille) const;
    std::vector<QLayoutItem*> pièces_;
};

// Children where the rules place them.
class PlacementLibre final : public Superposition, public Placeur {
public:
    explicit PlacementLibre(const Hôte& hôte) : hôte_(hôte) {}

    void Ajouter(Vue& vue);
    [[nodiscard]] double EchelleDesPlaces() const override { return hôte_.Echelle(); }
    [[nodiscard]] QPoint Coin() const override { return geometry().topLeft(); }
    void Placer(Vue& vue) override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }
    void setGeometry(const QRect& place) override;

private:
    void PoserSur(Vue& vue, const QWidget& dessous);

    const Hôte& hôte_;
    std::vector<Vue*> vues_;
};

} // namespace tirelune
