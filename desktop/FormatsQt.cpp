#include "desktop/FormatsQt.h"

#include "desktop/Apparence.h"
#include "desktop/Conversions.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace tirelune {

QTextCharFormat EnQt(const Format& format, double échelle)
{
    QTextCharFormat qt;
    qt.setFontFamilies({EnQString(format.Police)});
    if (échelle > 0)
        qt.setProperty(QTextFormat::FontPixelSize,
                       std::max(6, static_cast<int>(std::lround(format.Taille * PixelsParPoint * échelle))));
    else
        qt.setFontPointSize(format.Taille);
    if (!format.Teinte.EstAutomatique())
        qt.setForeground(EnQColor(format.Teinte, Teinte::Encre));
    if (format.Gras)
        qt.setFontWeight(QFont::Bold);
    if (format.Italique)
        qt.setFontItalic(true);
    if (format.Souligné)
        qt.setFontUnderline(true);
    if (format.Barré)
        qt.setFontStrikeOut(true);
    return qt;
}

QTextBlockFormat EnQt(const FormatParagraphe& format, double échelle)
{
    const auto mesure = [&](int twips) {
        return twips / static_cast<double>(TwipsParPixel) * (échelle > 0 ? échelle : 1);
    };
    QTextBlockFormat qt;
    switch (format.Alignement) {
    case Cadrage::Gauche:
        qt.setAlignment(Qt::AlignLeft);
        break;
    case Cadrage::Droite:
        qt.setAlignment(Qt::AlignRight);
        break;
    case Cadrage::Centre:
        qt.setAlignment(Qt::AlignHCenter);
        break;
    case Cadrage::Justifié:
        qt.setAlignment(Qt::AlignJustify);
        break;
    }
    qt.setLeftMargin(mesure(format.RetraitGauche));
    qt.setRightMargin(mesure(format.RetraitDroit));
    qt.setTextIndent(mesure(format.RetraitPremièreLigne));
    return qt;
}

void Composer(QTextDocument& document, const TexteRiche& texte)
{
    QTextCursor curseur{&document};
    curseur.beginEditBlock();
    texte.PourChaqueTranche(0, texte.Longueur(), [&](const Tranche& tranche) {
        const auto morceau = VueTexte{texte.Caractères()}.substr(tranche.Début, tranche.Fin - tranche.Début);
        curseur.insertText(EnAffichage(morceau), EnQt(*tranche.Style, 0));
    });
    std::size_t début = 0;
    for (auto bloc = document.begin(); bloc.isValid(); bloc = bloc.next()) {
        QTextCursor{bloc}.setBlockFormat(EnQt(texte.ParagrapheEn(début), 0));
        début += static_cast<std::size_t>(bloc.length()) + 1;
    }
    curseur.endEditBlock();
}

} // namespace tirelune
