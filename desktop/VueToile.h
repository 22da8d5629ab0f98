// A drawing in units of its own, scaled to the place that it gets: lines, and elements that stand in it.
#pragma once
#include "desktop/Vue.h"

#include <vector>

namespace tirelune {

class VueToile final : public QWidget, public Placeur {
public:
    VueToile(Hôte& hôte, QWidget* parent, QSize étendue);

    void Ajouter(Line& trait) { traits_.push_back(&trait); }
    void Ajouter(Vue& vue);
    // Pixels for one unit.
    [[nodiscard]] double EchelleDesPlaces() const override;
    [[nodiscard]] QPoint Coin() const override { return Origine().toPoint(); }
    void Placer(Vue& vue) override;

    [[nodiscard]] QSize sizeHint() const override { return unités_ / 2; }

protected:
    void paintEvent(QPaintEvent* événement) override;
    void resizeEvent(QResizeEvent* événement) override;

private:
    [[nodiscard]] QPointF Origine() const;

    Hôte& hôte_;
    QSize unités_;
    std::vector<Line*> traits_;
    std::vector<Vue*> vues_;
};

// A line of such a drawing.
class VueTrait final : public Vue {
public:
    VueTrait(Hôte& hôte, Line& trait, VueToile& toile) : Vue(hôte, trait, nullptr), toile_(toile) {}
    void Synchroniser() override { toile_.update(); }

private:
    VueToile& toile_;
};

} // namespace tirelune
