#include "desktop/Impression.h"

#include "desktop/Apparence.h"
#include "desktop/FormatsQt.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace tirelune {

Impression::Impression(bool avecSélection, QWidget* parent)
    : imprimante_(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      dialogue_(std::make_unique<QPrintDialog>(imprimante_.get(), parent))
{
    dialogue_->setWindowTitle(QStringLiteral("Imprimer"));
    dialogue_->setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialogue_->setOption(QAbstractPrintDialog::PrintSelection, avecSélection);
}

Impression::~Impression() = default;

QDialog& Impression::Dialogue()
{
    return *dialogue_;
}

bool Impression::Acceptée() const
{
    return dialogue_->result() == QDialog::Accepted;
}

bool Impression::SélectionSeule() const
{
    return imprimante_->printRange() == QPrinter::Selection;
}

void Impression::Imprimer(const TexteRiche& texte)
{
    QTextDocument document;
    Composer(document, texte);
    document.print(imprimante_.get());
}

} // namespace tirelune
