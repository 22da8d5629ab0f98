#include "desktop/Gestes.h"

#include "desktop/Composants.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QStyleHints>
#include <QTextEdit>

namespace tirelune {

namespace {

enum class Saisie { Aucune, UneLigne, PlusieursLignes };

Saisie SaisieDans(const QWidget& widget)
{
    if (const auto* ligne = qobject_cast<const QLineEdit*>(&widget))
        return ligne->isReadOnly() ? Saisie::Aucune : Saisie::UneLigne;
    if (const auto* liste = qobject_cast<const QComboBox*>(&widget))
        return liste->isEditable() ? Saisie::UneLigne : Saisie::Aucune;
    if (const auto* texte = qobject_cast<const QTextEdit*>(&widget))
        return texte->isReadOnly() ? Saisie::Aucune : Saisie::PlusieursLignes;
    if (const auto* texte = qobject_cast<const QPlainTextEdit*>(&widget))
        return texte->isReadOnly() ? Saisie::Aucune : Saisie::PlusieursLignes;
    return Saisie::Aucune;
}

// Held, these keys write, erase and go along, as everywhere; they never press, answer or choose.
bool PeutSeRépéter(const QWidget& visé, const QKeyEvent& événement)
{
    if ((événement.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0)
        return false;
    const auto saisie = SaisieDans(visé);
    switch (événement.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return saisie != Saisie::Aucune;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return saisie == Saisie::PlusieursLignes;
    case Qt::Key_Escape:
        return false;
    default:
        return saisie != Saisie::Aucune && (événement.modifiers() & Qt::ControlModifier) == 0;
    }
}

QString LégendeDe(const QWidget& widget)
{
    if (const auto* bouton = qobject_cast<const QAbstractButton*>(&widget))
        return bouton->text();
    if (const auto* étiquette = qobject_cast<const QLabel*>(&widget))
        return étiquette->text();
    return {};
}

} // namespace

bool Gestes::Ecarter(QWidget& visé, QEvent& événement)
{
    switch (événement.type()) {
    case QEvent::Show:
    case QEvent::WindowActivate:
        if ((visé.isWindow() && visé.windowType() != Qt::ToolTip) || dynamic_cast<Panneau*>(&visé) != nullptr)
            enfoncées_.clear();
        return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return EcarterTouche(visé, static_cast<QKeyEvent&>(événement));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return EcarterClic(visé, static_cast<QMouseEvent&>(événement));
    default:
        return false;
    }
}

bool Gestes::EcarterTouche(QWidget& visé, QKeyEvent& événement)
{
    const auto touche =
        événement.nativeScanCode() != 0 ? événement.nativeScanCode() : static_cast<std::uint32_t>(événement.key());
    if (!événement.isAutoRepeat()) {
        if (événement.type() == QEvent::KeyRelease)
            enfoncées_.erase(touche);
        else
            enfoncées_.insert(touche);
        return false;
    }
    if (événement.type() == QEvent::KeyRelease || (enfoncées_.contains(touche) && PeutSeRépéter(visé, événement)))
        return false;
    événement.accept(); // no shortcut takes it either
    return true;
}

Gestes::Cible Gestes::CibleEn(const QWidget& visé, QPoint global)
{
    auto* fenêtre = visé.window();
    auto* dessous = fenêtre->childAt(fenêtre->mapFromGlobal(global));
    auto* cible = dessous != nullptr ? dessous : fenêtre;
    return {cible, LégendeDe(*cible), cible->isEnabled()};
}

// An event that a widget lets through comes again for what holds the widget: all that is compared stays the same then.
bool Gestes::EcarterClic(QWidget& visé, const QMouseEvent& événement)
{
    const auto lieu = événement.globalPosition().toPoint();
    const auto* manières = QGuiApplication::styleHints();
    const auto patience = static_cast<std::uint64_t>(manières->mouseDoubleClickInterval());
    const bool suite = événement.type() == QEvent::MouseButtonDblClick ||
                       (événement.timestamp() > moment_ && événement.timestamp() - moment_ < patience &&
                        (lieu - lieu_).manhattanLength() <= manières->mouseDoubleClickDistance());
    moment_ = événement.timestamp();
    lieu_ = lieu;
    auto cible = CibleEn(visé, lieu);
    if (suite && cible != dernière_)
        return true; // what comes after it in the same run is compared with the same first click
    dernière_ = std::move(cible);
    return false;
}

} // namespace tirelune
