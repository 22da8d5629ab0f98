#include "desktop/Apparence.h"

#include "desktop/Conversions.h"

#include <QFontMetrics>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tirelune {

namespace {

constexpr double TailleUsuelle = 12; // points, on an 800 x 600 display
const QString PolicePropre = QStringLiteral("Comic Sans MS");

} // namespace

void RemplacerPolicePropre()
{
    QFont::insertSubstitution(PolicePropre, QStringLiteral("Comic Neue"));
}

namespace {

// Relative luminance, from 0 to 1: WCAG 2.1.
double Luminance(const QColor& couleur)
{
    const auto linéaire = [](double composante) {
        return composante <= 0.04045 ? composante / 12.92 : std::pow((composante + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linéaire(couleur.redF()) + 0.7152 * linéaire(couleur.greenF()) + 0.0722 * linéaire(couleur.blueF());
}

constexpr double ContrasteVoulu = 4.5;
const QColor EncreFoncée = Teinte::Encre;

} // namespace

void PeindreTouche(QPainter& peintre, const QRectF& place, const QColor& face, const QColor& bord, bool enfoncée)
{
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(bord);
    if (!enfoncée)
        peintre.drawRoundedRect(place, Arrondi, Arrondi);
    peintre.setPen(QPen{bord, 2});
    peintre.setBrush(face);
    const auto dessus = enfoncée ? place.adjusted(0, HauteurTranche, 0, 0) : place.adjusted(0, 0, 0, -HauteurTranche);
    peintre.drawRoundedRect(dessus.adjusted(1, 1, -1, -1), Arrondi, Arrondi);
}

double Contraste(const QColor& une, const QColor& autre)
{
    const auto [sombre, claire] = std::minmax({Luminance(une), Luminance(autre)});
    return (claire + 0.05) / (sombre + 0.05);
}

QColor EncreSur(const QColor& fond, const QColor& voulue)
{
    if (Contraste(fond, voulue) >= ContrasteVoulu)
        return voulue;
    return Contraste(fond, EncreFoncée) >= Contraste(fond, Qt::white) ? EncreFoncée : QColor{Qt::white};
}

void AccorderEncre(QWidget& sol, const QColor& fond)
{
    auto palette = sol.palette();
    const auto encre = EncreSur(fond, Teinte::Encre);
    if (palette.color(QPalette::Active, QPalette::WindowText) == encre)
        return;
    palette.setColor(QPalette::WindowText, encre);
    sol.setPalette(palette);
}

void ReprendreCouleurs(const QPalette& bureau)
{
    const auto encre = bureau.color(QPalette::WindowText);
    const auto fond = bureau.color(QPalette::Window);
    const bool sombre = Luminance(fond) < Luminance(encre);
    Teinte::Fond = Teinte::Eteint = fond;
    Teinte::Encre = encre;
    Teinte::Panneau = bureau.color(QPalette::Base);
    Teinte::Bouton = bureau.color(QPalette::Button);
    for (auto* trait :
         {&Teinte::BordChamp, &Teinte::BordActif, &Teinte::BordPanneau, &Teinte::Tranche, &Teinte::BordBouton})
        *trait = encre;
    const QColor bleu{0x00, 0x3B, 0x8F};
    const QColor jaune{0xFF, 0xD5, 0x4F};
    for (auto* choix : {&Teinte::BoutonSurvolé, &Teinte::BoutonEnfoncé, &Teinte::Sélection})
        *choix = sombre ? bleu : jaune;
    Teinte::Anneau = sombre ? jaune : bleu;
    Teinte::EncreEteinte = sombre ? QColor{0xB0, 0xB0, 0xB0} : QColor{0x50, 0x50, 0x50};
}

namespace {

double& Agrandissement()
{
    static double facteur = 1;
    return facteur;
}

} // namespace

void Agrandir(double facteur)
{
    Agrandissement() = facteur;
}

double EchellePour(QSize taille)
{
    // Slower than the display grows, or nothing more would find room on a large one.
    static constexpr double Croissance = 0.72;
    const double rapport = std::min(taille.width() / 800.0, taille.height() / 600.0);
    const double usuelle = std::clamp(std::pow(std::max(rapport, 0.1), Croissance), 0.75, 2.5);
    // What finds room on an 800 x 600 display finds it on any other, up to the proportion of the two.
    return std::max(usuelle, std::min(usuelle * Agrandissement(), rapport));
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
            // Whole pixels, of the display's own too: bands that share one would leave a seam.
            const auto [gauche, droite] = std::minmax(forme.Points[0].X, forme.Points[2].X);
            const auto [haut, bas] = std::minmax(forme.Points[0].Y, forme.Points[2].Y);
            const QRect bande{QPoint{qRound(place.x() + gauche * sx), qRound(place.y() + haut * sy)},
                              QPoint{qRound(place.x() + droite * sx) - 1, qRound(place.y() + bas * sy) - 1}};
            peintre.setRenderHint(QPainter::Antialiasing, false);
            if (visible.intersects(bande))
                peintre.fillRect(bande, fond);
            peintre.setRenderHint(QPainter::Antialiasing);
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

namespace {

class MoteurDessin final : public QIconEngine {
public:
    explicit MoteurDessin(Dessin dessin) : dessin_(std::move(dessin)) {}

    void paint(QPainter* peintre, const QRect& place, QIcon::Mode mode, QIcon::State /*état*/) override
    {
        static constexpr double Eteinte = 0.35;
        peintre->setOpacity(mode == QIcon::Disabled ? Eteinte : 1);
        Peindre(*peintre, dessin_, Proportionné(dessin_, QRectF{place}));
        peintre->setOpacity(1);
    }
    [[nodiscard]] QPixmap pixmap(const QSize& taille, QIcon::Mode mode, QIcon::State état) override
    {
        QPixmap image{taille};
        image.fill(Qt::transparent);
        QPainter peintre{&image};
        paint(&peintre, image.rect(), mode, état);
        return image;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new MoteurDessin{dessin_}; }

private:
    Dessin dessin_;
};

} // namespace

QIcon EnIcône(Dessin dessin)
{
    return QIcon{new MoteurDessin{std::move(dessin)}};
}

} // namespace tirelune
