// What stands above the page of an exercise, outside the screen's inner size: the band with pictogram, title, the
// pupil's name and the points, and below it the card with the instruction.
#pragma once
#include "core/Ecran.h"

#include <QWidget>

class QVBoxLayout;

namespace tirelune {

class Papier;

class Bandeau final : public QWidget {
public:
    Bandeau(const TitreDePage& titre, QWidget* parent);

    // Where the points go, and the instruction.
    [[nodiscard]] QWidget& Points() const { return *points_; }
    [[nodiscard]] QWidget& Consigne() const;
    void Mesurer(double échelle);

protected:
    void paintEvent(QPaintEvent* événement) override;

private:
    const TitreDePage& titre_;
    QWidget* bande_;
    QWidget* points_;
    Papier* carte_;
    double échelle_ = 1;
};

} // namespace tirelune
