// The print dialog, and a formatted text on paper.
#pragma once
#include "core/TexteRiche.h"

#include <memory>

class QDialog;
class QPrintDialog;
class QPrinter;
class QWidget;

namespace tirelune {

class Impression {
public:
    Impression(bool avecSélection, QWidget* parent);
    Impression(const Impression&) = delete;
    Impression& operator=(const Impression&) = delete;
    ~Impression();

    [[nodiscard]] QDialog& Dialogue();
    [[nodiscard]] bool Acceptée() const;
    [[nodiscard]] bool SélectionSeule() const;
    void Imprimer(const TexteRiche& texte);

private:
    std::unique_ptr<QPrinter> imprimante_;
    std::unique_ptr<QPrintDialog> dialogue_;
};

} // namespace tirelune
