// The layouts that the toolkit lacks: one upon the other, at places of their own, in a scaled drawing.
#pragma once
#include <QLayout>
#include <QWidget>

#include <functional>
#include <vector>

namespace tirelune {

// All children as large as the place.
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
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int largeur) const override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override;
    void setGeometry(const QRect& place) override;

    QSize tailleMinimale; // of the place itself

private:
    [[nodiscard]] QSize AvecMarges(QSize taille) const;
    std::vector<QLayoutItem*> pièces_;
};

// Children where `placer` says, inside the widget that the layout belongs to.
class PlacementLibre final : public Superposition {
public:
    std::function<void()> placer;
    std::function<QSize()> étendue; // what the children need together

    [[nodiscard]] QSize sizeHint() const override { return étendue ? étendue() : QSize{}; }
    [[nodiscard]] QSize minimumSize() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }
    void setGeometry(const QRect& place) override;
};

} // namespace tirelune
