// Between the program's values and the toolkit's.
#pragma once
#include "core/Couleur.h"
#include "core/Texte.h"

#include <QColor>
#include <QString>

#include <cmath>

namespace tirelune {

inline constexpr int TwipsParPixel = 15;
inline constexpr double PixelsParPoint = 96.0 / 72.0;

inline QString EnQString(VueTexte texte)
{
    return QString{reinterpret_cast<const QChar*>(texte.data()), static_cast<qsizetype>(texte.size())};
}
inline Texte DepuisQString(const QString& texte)
{
    return texte.toStdU16String();
}
inline QString EnQString(const std::string& nom)
{
    return QString::fromStdString(nom);
}
inline QColor EnQColor(Couleur couleur, const QColor& automatique)
{
    if (couleur.EstAutomatique())
        return automatique;
    return {static_cast<int>(couleur.Rouge()), static_cast<int>(couleur.Vert()), static_cast<int>(couleur.Bleu())};
}
inline Couleur DepuisQColor(const QColor& couleur)
{
    return Couleur::Rvb(static_cast<unsigned>(couleur.red()), static_cast<unsigned>(couleur.green()),
                        static_cast<unsigned>(couleur.blue()));
}
// Twips grow with all the rest: places that rules compute stay in step with the letters around them.
inline int EnPixels(int twips, double échelle)
{
    return static_cast<int>(std::lround(twips * échelle / TwipsParPixel));
}
inline int EnTwips(int pixels, double échelle)
{
    return static_cast<int>(std::lround(pixels * TwipsParPixel / échelle));
}

// The mask has no glyph of its own: it shows as a box, one for each character.
inline constexpr char16_t GlypheMasque = u'\u25AE';

// A caption as it is painted.
inline QString EnAffichage(VueTexte texte)
{
    QString affiché = EnQString(texte);
    affiché.remove(u'\r');
    affiché.replace(QChar{Masque}, QChar{GlypheMasque});
    return affiché;
}

} // namespace tirelune
