// What the mouse takes and lets go over another element; its picture goes along meanwhile.
#pragma once
#include "desktop/Vue.h"

#include <QObject>
#include <QPoint>
#include <QPointer>

class QLabel;
class QMouseEvent;

namespace tirelune {

class Glisse final : public QObject {
public:
    // Belongs to the view's widget.
    Glisse(const Hôte& hôte, const Vue& vue);

    bool eventFilter(QObject* visé, QEvent* événement) override;

private:
    // True: nobody else is to see the event.
    bool Bouger(const QMouseEvent& événement);
    bool Relâcher(const QMouseEvent& événement);
    void Emporter();
    void Reposer();
    [[nodiscard]] const Elément* Dessous(QPoint global) const;

    const Hôte& hôte_;
    const Elément& élément_;
    QWidget& widget_;
    QWidget& surface_; // where its mouse events come
    QPoint prise_;     // where the button went down, on the display
    QPointer<QLabel> image_;
    bool pressé_ = false;
    bool emporté_ = false;
};

} // namespace tirelune
