#include "desktop/Touches.h"

#include <QKeyEvent>

namespace tirelune {

namespace {

int CodeDe(const QKeyEvent& événement)
{
    switch (événement.key()) {
    case Qt::Key_Backspace:
        return Touche::RetourArrière;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Touche::Entrée;
    case Qt::Key_Escape:
        return Touche::Echappement;
    case Qt::Key_PageUp:
        return Touche::PagePrécédente;
    case Qt::Key_PageDown:
        return Touche::PageSuivante;
    case Qt::Key_End:
        return Touche::Fin;
    case Qt::Key_Home:
        return Touche::Origine;
    case Qt::Key_Left:
        return Touche::Gauche;
    case Qt::Key_Up:
        return Touche::Haut;
    case Qt::Key_Right:
        return Touche::Droite;
    case Qt::Key_Down:
        return Touche::Bas;
    case Qt::Key_Delete:
        return Touche::Suppression;
    default:
        break;
    }
    const auto touche = événement.key();
    const bool lettreOuChiffre =
        (touche >= Qt::Key_A && touche <= Qt::Key_Z) || (touche >= Qt::Key_0 && touche <= Qt::Key_9);
    return lettreOuChiffre || touche == Qt::Key_Space ? touche : 0;
}

} // namespace

std::optional<Touche> Traduire(const QKeyEvent& événement)
{
    Touche touche;
    touche.Code = CodeDe(événement);
    const bool coller = événement.matches(QKeySequence::Paste);
    const bool couper = événement.matches(QKeySequence::Cut);
    if (coller || couper) { // they change a text as typing does, and have always had these codes
        touche.Caractère = coller ? u'\x16' : u'\x18';
        touche.Code = touche.Caractère;
        return touche;
    }
    const auto texte = événement.text();
    const auto tenues = événement.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    // Some displays tell AltGr as Ctrl and Alt.
    const bool troisième =
        tenues == (Qt::ControlModifier | Qt::AltModifier) && !texte.isEmpty() && texte.front().isPrint();
    if (tenues != 0 && !troisième)
        return std::nullopt;
    if (!texte.isEmpty() && événement.key() != Qt::Key_Delete && événement.key() != Qt::Key_Tab)
        touche.Caractère = texte.front().unicode();
    if (touche.Caractère == 0 && touche.Code == 0)
        return std::nullopt;
    return touche;
}

} // namespace tirelune
