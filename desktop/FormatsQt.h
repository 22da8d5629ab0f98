// Formats of the rich text as the toolkit's.
#pragma once
#include "core/TexteRiche.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>

class QTextDocument;

namespace tirelune {

// Sizes of letters are multiplied by `échelle`; 0: points, as on paper.
QTextCharFormat EnQt(const Format& format, double échelle);
QTextBlockFormat EnQt(const FormatParagraphe& format, double échelle);

// Fills an empty document, for paper.
void Composer(QTextDocument& document, const TexteRiche& texte);

} // namespace tirelune
