#include "desktop/Apparence.h"

#include "core/Enseigne.h"
#include "desktop/Conversions.h"

#include <QApplication>
#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QPolygon>
#include <QProxyStyle>

#include <algorithm>
#include <cmath>

namespace tirelune {

namespace {

constexpr double TailleUsuelle = 12; // points, on an 800 x 600 display
const QString PolicePropre = QStringLiteral("Comic Sans MS");

// What the toolkit asks of a style and a palette can't say.
class Manières final : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint question, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* réponse) const override
    {
        if (question == SH_LineEdit_PasswordCharacter)
            return u'*';
        return QProxyStyle::styleHint(question, option, widget, réponse);
    }
    // Every menu bar asks for this one; the style's own is a file, and reading it loads all image formats.
    QIcon standardIcon(StandardPixmap icône, const QStyleOption* option, const QWidget* widget) const override
    {
        if (icône != SP_ToolBarHorizontalExtensionButton)
            return QProxyStyle::standardIcon(icône, option, widget);
        QPixmap image{16, 16};
        image.fill(Qt::transparent);
        QPainter peintre{&image};
        peintre.setPen(QPen{Teinte::Encre, 2});
        for (const int x : {3, 8})
            peintre.drawPolyline(QPolygon{{QPoint{x, 4}, QPoint{x + 4, 8}, QPoint{x, 12}}});
        return QIcon{image};
    }
};

} // namespace

void InstallerApparence()
{
    QApplication::setStyle(new Manières{QStringLiteral("fusion")});
    // Texts keep the name of the font; only the picture changes where the machine lacks it.
    QFont::insertSubstitution(PolicePropre, QStringLiteral("Comic Neue"));

    QPalette palette{Teinte::Bouton, Teinte::Fond};
    palette.setColor(QPalette::WindowText, Teinte::Encre);
    palette.setColor(QPalette::Text, Teinte::Encre);
    palette.setColor(QPalette::ButtonText, Teinte::Encre);
    palette.setColor(QPalette::PlaceholderText, Teinte::Encre);
    palette.setColor(QPalette::Base, Teinte::Panneau);
    palette.setColor(QPalette::Button, QColor{0xE4, 0xEE, 0xF8});
    palette.setColor(QPalette::Highlight, Teinte::Sélection);
    palette.setColor(QPalette::HighlightedText, Teinte::Encre);
    palette.setColor(QPalette::ToolTipBase, QColor{0xFF, 0xF8, 0xDC});
    palette.setColor(QPalette::ToolTipText, Teinte::Encre);
    for (const auto rôle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, rôle, Teinte::EncreEteinte);
    QApplication::setPalette(palette);
    QApplication::setFont(PolicePour({}, 0, false, 1));
    QApplication::setQuitOnLastWindowClosed(false);
    QIcon icône;
    for (const int côté : {16, 32, 48, 128})
        icône.addPixmap(EnImage(IcôneDuProgramme(), côté));
    QApplication::setWindowIcon(icône);
}

double EchellePour(QSize taille)
{
    // Slower than the display grows, or nothing more would find room on a large one.
    static constexpr double Croissance = 0.72;
    const double rapport = std::min(taille.width() / 800.0, taille.height() / 600.0);
    return std::clamp(std::pow(std::max(rapport, 0.1), Croissance), 0.75, 2.5);
}

QFont PolicePour(VueTexte famille, double points, bool gras, double échelle)
{
    QFont police{famille.empty() ? PolicePropre : EnQString(famille)};
    const double taille = (points > 0 ? points : TailleUsuelle) * PixelsParPoint * échelle;
    police.setPixelSize(std::max(6, static_cast<int>(std::lround(taille))));
    police.setBold(gras);
    return police;
}

namespace {

constexpr int PlusPetitePolice = 6; // pixels

// The first of a few sizes, each smaller than the one before, in which the text fits; the last one when it fits in
// none.
TexteEnPlace Réduire(const QFont& police, const QString& texte, QSize place, int drapeaux, int essais)
{
    static constexpr double Pas = 0.93;
    TexteEnPlace réduit{police, drapeaux, false};
    const QRect cadre{QPoint{0, 0}, place};
    double part = 1;
    for (int i = 0; i < essais && !réduit.Entier; ++i, part *= Pas) {
        réduit.Police.setPixelSize(std::max(PlusPetitePolice, static_cast<int>(police.pixelSize() * part)));
        const auto boîte = QFontMetrics{réduit.Police}.boundingRect(cadre, drapeaux, texte);
        réduit.Entier = boîte.width() <= place.width() && boîte.height() <= place.height();
    }
    return réduit;
}

constexpr int EssaisJusquALaMoitié = 10;
constexpr int EssaisEntreLesMots = 12; // a little less, before a word is broken
constexpr int EssaisJusquAuBout = 40;  // from any size to the smallest

} // namespace

QFont AjusterPolice(const QFont& police, const QString& texte, QSize place, int drapeaux)
{
    return Réduire(police, texte, place, drapeaux, EssaisJusquALaMoitié).Police;
}

TexteEnPlace FaireTenir(const QFont& police, const QString& texte, QSize place, int drapeaux)
{
    auto tenu = Réduire(police, texte, place, drapeaux, EssaisJusquALaMoitié);
    if (tenu.Entier)
        return tenu;
    auto enLignes = Réduire(police, texte, place, drapeaux | Qt::TextWordWrap, EssaisEntreLesMots);
    if (enLignes.Entier)
        return enLignes;
    return Réduire(police, texte, place, (drapeaux & ~Qt::TextWordWrap) | Qt::TextWrapAnywhere, EssaisJusquAuBout);
}

QSize TailleTexte(const QFont& police, const QString& texte, int drapeaux, int largeurMaximale)
{
    static constexpr int SansLimite = 100000;
    const QFontMetrics mesure{police};
    const auto enLigne = mesure.size(drapeaux & ~Qt::TextWordWrap, texte);
    if (enLigne.width() <= largeurMaximale || (drapeaux & Qt::TextWordWrap) == 0)
        return enLigne;
    return mesure.boundingRect(QRect{0, 0, largeurMaximale, SansLimite}, drapeaux, texte).size();
}

namespace {

bool EstBande(const Forme& forme)
{
    const auto& p = forme.Points;
    return forme.Genre == GenreForme::Polygone && p.size() == 4 && forme.Trait.EstAutomatique() && p[0].Y == p[1].Y &&
           p[1].X == p[2].X && p[2].Y == p[3].Y && p[3].X == p[0].X;
}

QPainterPath EnChemin(const Forme& forme)
{
    QPainterPath chemin;
    const auto& p = forme.Points;
    if (forme.Genre == GenreForme::Ellipse && p.size() >= 2) {
        chemin.addEllipse(QRectF{QPointF{p[0].X, p[0].Y}, QPointF{p[1].X, p[1].Y}});
        return chemin;
    }
    if (p.empty())
        return chemin;
    chemin.moveTo(p[0].X, p[0].Y);
    if (forme.Genre == GenreForme::Courbe && p.size() >= 3) {
        chemin.quadTo(p[1].X, p[1].Y, p[2].X, p[2].Y);
        return chemin;
    }
    for (std::size_t i = 1; i < p.size(); ++i)
        chemin.lineTo(p[i].X, p[i].Y);
    if (forme.Genre == GenreForme::Polygone)
        chemin.closeSubpath();
    return chemin;
}

} // namespace

void Peindre(QPainter& peintre, const Dessin& dessin, const QRectF& place)
{
    if (dessin.Largeur <= 0 || dessin.Hauteur <= 0)
        return;
    const double sx = place.width() / dessin.Largeur;
    const double sy = place.height() / dessin.Hauteur;
    const auto visible = peintre.hasClipping() ? peintre.clipBoundingRect() : place;
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    for (const auto& forme : dessin.Formes) {
        const auto fond = EnQColor(forme.Fond, {});
        if (EstBande(forme)) {
            // Whole pixels: bands that share a pixel would leave a seam.
            const auto [gauche, droite] = std::minmax(forme.Points[0].X, forme.Points[2].X);
            const auto [haut, bas] = std::minmax(forme.Points[0].Y, forme.Points[2].Y);
            const QRect bande{QPoint{qRound(place.x() + gauche * sx), qRound(place.y() + haut * sy)},
                              QPoint{qRound(place.x() + droite * sx) - 1, qRound(place.y() + bas * sy) - 1}};
            if (visible.intersects(bande))
                peintre.fillRect(bande, fond);
            continue;
        }
        QTransform transformation;
        transformation.translate(place.x(), place.y());
        transformation.scale(sx, sy);
        const auto chemin = transformation.map(EnChemin(forme));
        if (fond.isValid())
            peintre.fillPath(chemin, fond);
        if (!forme.Trait.EstAutomatique()) {
            peintre.strokePath(chemin,
                               QPen{EnQColor(forme.Trait, {}), std::max(1.0, forme.Epaisseur * std::min(sx, sy)),
                                    Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        }
    }
    peintre.restore();
}

QRectF Proportionné(const Dessin& dessin, const QRectF& place)
{
    if (dessin.Largeur <= 0 || dessin.Hauteur <= 0)
        return place;
    const double facteur = std::min(place.width() / dessin.Largeur, place.height() / dessin.Hauteur);
    const QSizeF taille{dessin.Largeur * facteur, dessin.Hauteur * facteur};
    return {place.x() + (place.width() - taille.width()) / 2, place.y() + (place.height() - taille.height()) / 2,
            taille.width(), taille.height()};
}

QPixmap EnImage(const Dessin& dessin, int côté)
{
    QPixmap image{côté, côté};
    image.fill(Qt::transparent);
    QPainter peintre{&image};
    Peindre(peintre, dessin, Proportionné(dessin, QRectF{image.rect()}));
    return image;
}

} // namespace tirelune
