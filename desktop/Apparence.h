// The program's look: colours, fonts, and how both grow with the window.
#pragma once
#include "core/Dessin.h"
#include "core/Texte.h"

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QSize>
#include <QString>

class QPainter;
class QIcon;

namespace tirelune {

namespace Teinte {
inline QColor Fond{0xF5, 0xF7, 0xFD};
inline QColor Encre{0x1B, 0x27, 0x45};
inline QColor Panneau{0xFF, 0xFF, 0xFF};
inline QColor BordChamp{0xB9, 0xC4, 0xDD};
inline QColor BordActif{0x6F, 0x86, 0xB8}; // of what is typed into
inline QColor BordPanneau{0xD9, 0xDF, 0xEE};
inline QColor Tranche{0xCD, 0xD4, 0xE8}; // the lower edge of what is white
inline QColor Bouton{0xFF, 0xDB, 0x78};
inline QColor BoutonSurvolé{0xFF, 0xE9, 0xA8};
inline QColor BoutonEnfoncé{0xF2, 0xC9, 0x4C};
inline QColor BordBouton{0xC8, 0x97, 0x1F};
inline QColor Eteint{0xE3, 0xE7, 0xEC};
inline QColor EncreEteinte{0x66, 0x6E, 0x80};
inline QColor Anneau{0x0B, 0x5C, 0xC4}; // around what has the keyboard
inline QColor Sélection{0xFF, 0xD5, 0x4F};
} // namespace Teinte

// Where no colour is told, those of the desktop, which its user needs to see anything.
void ReprendreCouleurs(const QPalette& bureau);

// Texts keep the name of the font; only the picture changes where the machine lacks it.
void RemplacerPolicePropre();

inline constexpr int Arrondi = 9;        // radius of the corners of all that has some, in pixels
inline constexpr int HauteurTranche = 3; // height of the lower edge of what can be pressed, in pixels

// Something that lies on the ground, or can be pressed into it.
void PeindreTouche(QPainter& peintre, const QRectF& place, const QColor& face, const QColor& bord, bool enfoncée);

// The contrast ratio of two colours, from 1 to 21: WCAG 2.1.
double Contraste(const QColor& une, const QColor& autre);
// The ink on that ground: the one asked for, or a dark one, or white, whichever can be read.
QColor EncreSur(const QColor& fond, const QColor& voulue);
// What stands on that ground without a colour of its own can be read.
void AccorderEncre(QWidget& sol, const QColor& fond);

// Everything is drawn so many times larger than usual from now on, as far as it finds room.
void Agrandir(double facteur);
// How much larger than on an 800 x 600 display things are drawn.
double EchellePour(QSize taille);
// The program's own font when `famille` is empty; the usual size for 0 points.
QFont PolicePour(VueTexte famille, double points, bool gras, double échelle);

// The text in its place, in smaller letters when it doesn't fit.
QFont AjusterPolice(const QFont& police, const QString& texte, QSize place, int drapeaux);

// How a text is painted in a place.
struct TexteEnPlace {
    QFont Police;
    int Drapeaux = 0;
    bool Entier = true; // nothing of it is cut
};
// The whole text in its place: in smaller letters, then on more lines than it was meant to have, then broken inside
// its words.
TexteEnPlace FaireTenir(const QFont& police, const QString& texte, QSize place, int drapeaux);
// As wide as it is when short; long texts are broken into lines.
QSize TailleTexte(const QFont& police, const QString& texte, int drapeaux, int largeurMaximale);

// A drawing stretched over the rectangle.
void Peindre(QPainter& peintre, const Dessin& dessin, const QRectF& place);
// The largest rectangle of the drawing's proportion, in the middle of the place.
QRectF Proportionné(const Dessin& dessin, const QRectF& place);
// Drawn anew for each size and each kind of display.
QIcon EnIcône(Dessin dessin);

} // namespace tirelune
