#include "desktop/Impression.h"

#include "desktop/Apparence.h"
#include "desktop/Dialogues.h"
#include "desktop/FormatsQt.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
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
    dialogue_->setFont(PoliceDeDialogue(parent));
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
    static constexpr double Marge = 2 / 2.54 * 96; // pixels of a display; the layout takes them to the paper
    QTextDocument document;
    document.documentLayout()->setPaintDevice(imprimante_.get());
    document.setDocumentMargin(Marge);
    Composer(document, texte);
    const QSizeF page = imprimante_->pageLayout().paintRectPixels(imprimante_->resolution()).size();
    document.setPageSize(page);
    // Page by page: the toolkit's own printing puts a number under each, in letters too small to read.
    QPainter peintre{imprimante_.get()};
    for (int i = 0; peintre.isActive() && i < document.pageCount(); ++i) {
        if (i > 0)
            imprimante_->newPage();
        peintre.translate(0, i > 0 ? -page.height() : 0);
        document.drawContents(&peintre, {{0, i * page.height()}, page});
    }
}

} // namespace tirelune
