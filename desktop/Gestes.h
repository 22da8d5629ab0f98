// What hands do without meaning it: a key that repeats because it is held, a key that was down already when something
// came up, the second click of a double click on a button that has just become another one.
#pragma once
#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <set>

class QEvent;
class QKeyEvent;
class QMouseEvent;

namespace tirelune {

class Gestes {
public:
    // Sees each event of the program before anybody else. True: nobody else is to see it.
    [[nodiscard]] bool Ecarter(QWidget& visé, QEvent& événement);

private:
    // What a click was meant for, as it was when the button went down.
    struct Cible {
        QPointer<QWidget> Visé;
        QString Légende;
        bool Active = false;

        [[nodiscard]] bool operator==(const Cible& autre) const = default;
    };
    [[nodiscard]] static Cible CibleEn(const QWidget& visé, QPoint global);
    [[nodiscard]] bool EcarterTouche(QWidget& visé, QKeyEvent& événement);
    [[nodiscard]] bool EcarterClic(QWidget& visé, const QMouseEvent& événement);

    std::set<std::uint32_t> enfoncées_; // keys that went down since the last window or frame came up
    Cible dernière_;
    QPoint lieu_;
    std::uint64_t moment_ = 0;
};

} // namespace tirelune
