// The ring around what has the keyboard, the same on every element. It shows once Tab or an arrow has been used, and
// goes with the next click.
#pragma once
#include <QFocusFrame>
#include <QPointer>

class QEvent;
class QKeyEvent;

namespace tirelune {

class Anneau {
public:
    ~Anneau();

    // Sees what keys and clicks widgets get.
    void Voir(const QEvent& événement);
    // The keyboard is elsewhere.
    void Suivre(QWidget* foyer);
    // Where it shows; nothing: it doesn't.
    [[nodiscard]] const QWidget* Autour() const;

private:
    class Cadre;

    void Montrer();

    QPointer<QWidget> foyer_;
    QPointer<QFocusFrame> cadre_; // belongs to the window that it was last shown in
    bool voulu_ = false;
};

} // namespace tirelune
