// The ground that a screen's elements stand on: its background, the plan with all that a layout places, and the
// frames that cover both.
#pragma once
#include "core/Ecran.h"
#include "desktop/Vue.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace tirelune {

class Contenu final : public QWidget {
public:
    Contenu(Ecran& écran, QWidget* parent);

    std::function<void()> peint;
    std::function<void()> tailleChangée;
    std::function<void(const QWidget* dessous)> cliqué; // what lies there has let the click through

    [[nodiscard]] QWidget& Plan() const { return *plan_; }
    void Couvrir(Vue& couverture);
    [[nodiscard]] bool EstCouverture(const Vue& vue) const;
    // Puts what covers the screen in front, or takes it away.
    void MontrerCouvertures();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* événement) override;
    void resizeEvent(QResizeEvent* événement) override;
    void mousePressEvent(QMouseEvent* événement) override;

private:
    Ecran& écran_;
    QWidget* plan_;
    std::vector<Vue*> couvertures_;
};

} // namespace tirelune
