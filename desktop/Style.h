// How the toolkit's own widgets are painted: fields, lists, menus, boxes to tick, scroll bars, tool tips and the
// buttons of its dialogs. Everything is measured in the widget's letters, which grow with the window.
#pragma once
#include <QProxyStyle>

namespace tirelune {

// Palette, fonts and manners of the whole program.
void InstallerApparence();

// The one height of fields and buttons with such letters.
int HauteurUsuelle(const QFont& police);

class Style final : public QProxyStyle {
public:
    Style();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;

    void drawPrimitive(PrimitiveElement élément, const QStyleOption* option, QPainter* peintre,
                       const QWidget* widget) const override;
    void drawControl(ControlElement élément, const QStyleOption* option, QPainter* peintre,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl élément, const QStyleOptionComplex* option, QPainter* peintre,
                            const QWidget* widget) const override;
    [[nodiscard]] QRect subElementRect(SubElement élément, const QStyleOption* option,
                                       const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl élément, const QStyleOptionComplex* option, SubControl partie,
                                       const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType genre, const QStyleOption* option, const QSize& contenu,
                                         const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric mesure, const QStyleOption* option, const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint question, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* réponse) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap icône, const QStyleOption* option,
                                     const QWidget* widget) const override;
};

} // namespace tirelune
