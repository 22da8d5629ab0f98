// A drawing in units of its own, scaled to the place that it gets: lines, and elements that stand in it.
#pragma once
#include "desktop/Vues.h"

#include <functional>
#include <vector>

namespace tirelune {

class VueToile final : public QWidget {
public:
    VueToile(QWidget* parent, QSize étendue);

    std::function<void()> étendue; // the scale has changed

    void Ajouter(Line& trait) { traits_.push_back(&trait); }
    void Ajouter(Vue& vue) { vues_.push_back(&vue); }
    [[nodiscard]] const std::vector<Vue*>& Vues() const { return vues_; }
    // Pixels for one unit.
    [[nodiscard]] double Facteur() const;
    void Placer();

    [[nodiscard]] QSize sizeHint() const override { return unités_ / 2; }

protected:
    void paintEvent(QPaintEvent* événement) override;
    void resizeEvent(QResizeEvent* événement) override;

private:
    [[nodiscard]] QPointF Origine() const;

    QSize unités_;
    std::vector<Line*> traits_;
    std::vector<Vue*> vues_;
};

// A line of such a drawing.
class VueTrait final : public Vue {
public:
    VueTrait(Fenêtre& fenêtre, Line& trait, VueToile& toile) : Vue(fenêtre, trait, nullptr), toile_(toile) {}
    void Synchroniser() override { toile_.update(); }

private:
    VueToile& toile_;
};

} // namespace tirelune
