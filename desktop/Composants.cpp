#include "desktop/Composants.h"

#include "desktop/Apparence.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace tirelune {

namespace {

constexpr int Coin = 7;

void PeindreAnneau(QPainter& peintre, const QRect& place)
{
    peintre.setPen(QPen{Teinte::Anneau, 2.5});
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRoundedRect(QRectF{place}.adjusted(1.5, 1.5, -1.5, -1.5), Coin, Coin);
}

int Interligne(const QFont& police)
{
    return QFontMetrics{police}.lineSpacing();
}

} // namespace

const TexteEnPlace& TexteAjusté::Mesurer(const QFont& base, const QString& texte, QSize place, int drapeaux)
{
    if (base != base_ || texte != texte_ || place != place_) {
        base_ = base;
        texte_ = texte;
        place_ = place;
        ajusté_ = FaireTenir(base, texte, place, drapeaux);
    }
    return ajusté_;
}

// ---- Captions ------------------------------------------------------------------------------------------------

Etiquette::Etiquette(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void Etiquette::RendreCliquable(bool cliquable)
{
    cliquable_ = cliquable;
    setFocusPolicy(cliquable ? Qt::TabFocus : Qt::NoFocus); // a click leaves the keyboard where it is
    setAttribute(Qt::WA_InputMethodEnabled, cliquable);
    updateGeometry();
    update();
}

int Etiquette::Drapeaux() const
{
    return (enLigne ? 0 : static_cast<int>(Qt::TextWordWrap)) |
           static_cast<int>(centrée ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
}

int Etiquette::Marge() const
{
    return bordure || fond.isValid() || cliquable_ ? std::max(4, font().pixelSize() / 4) : 1;
}

// Long runs of blanks stand for line ends: they push what follows to the next line.
QString Etiquette::Montré() const
{
    static constexpr int BlancsDUneFin = 8;
    auto légende = text();
    const QString blancs(BlancsDUneFin, u' ');
    if (enLigne || !légende.contains(blancs))
        return légende;
    QStringList lignes;
    for (const auto& morceau : légende.split(blancs)) {
        if (!morceau.trimmed().isEmpty())
            lignes.push_back(morceau.trimmed());
    }
    return lignes.join(u'\n');
}

QSize Etiquette::sizeHint() const
{
    const int marge = 2 * Marge();
    const int largeurMaximale = font().pixelSize() * 26;
    const auto taille = TailleTexte(font(), Montré(), Drapeaux(), largeurMaximale);
    return {std::max(taille.width(), font().pixelSize() / 2) + marge,
            std::max(taille.height(), Interligne(font())) + marge};
}

QSize Etiquette::minimumSizeHint() const
{
    // Letters may get smaller before anything is cut.
    const auto voulue = sizeHint();
    return {std::min(voulue.width() * 6 / 10, font().pixelSize() * 6), Interligne(font()) * 6 / 10 + Marge()};
}

bool Etiquette::hasHeightForWidth() const
{
    return !enLigne && text().size() > 24;
}

int Etiquette::heightForWidth(int largeur) const
{
    const int marge = 2 * Marge();
    return TailleTexte(font(), Montré(), Drapeaux(), std::max(1, largeur - marge)).height() + marge;
}

QRect Etiquette::PlaceDuContenu() const
{
    const int marge = Marge();
    return rect().adjusted(marge, marge / 2, -marge, -(marge / 2));
}

bool Etiquette::MontreTout()
{
    return text().isEmpty() || ajusté_.Mesurer(font(), Montré(), PlaceDuContenu().size(), Drapeaux()).Entier;
}

void Etiquette::paintEvent(QPaintEvent* /*événement*/)
{
    QPainter peintre{this};
    peintre.setRenderHint(QPainter::Antialiasing);
    const auto place = QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5);
    const bool arrondie = cliquable_ && !enLigne;
    const int coin = arrondie ? Coin : 0;
    if (fond.isValid()) {
        peintre.setPen(bordure || arrondie ? QPen{Teinte::BordPanneau} : QPen{Qt::NoPen});
        peintre.setBrush(fond);
        coin > 0 ? peintre.drawRoundedRect(place, coin, coin) : peintre.drawRect(bordure ? place : QRectF{rect()});
    }
    if (bordure) {
        peintre.setPen(QPen{Teinte::Encre, 2});
        peintre.setBrush(Qt::NoBrush);
        peintre.drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), coin, coin);
    }
    PeindreContenu(peintre, PlaceDuContenu());
    if (survolée_ && cliquable_ && isEnabled()) {
        peintre.setPen(QPen{Teinte::BordBouton, 2});
        peintre.setBrush(Qt::NoBrush);
        peintre.drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), Coin, Coin);
    }
    if (hasFocus() && choisie_)
        PeindreAnneau(peintre, rect());
}

void Etiquette::focusInEvent(QFocusEvent* événement)
{
    if (événement->reason() != Qt::ActiveWindowFocusReason && événement->reason() != Qt::PopupFocusReason)
        choisie_ = true;
    QLabel::focusInEvent(événement);
}

void Etiquette::PeindreContenu(QPainter& peintre, const QRect& place)
{
    if (text().isEmpty())
        return;
    const auto montré = Montré();
    const auto& ajusté = ajusté_.Mesurer(font(), montré, place.size(), Drapeaux());
    peintre.setFont(ajusté.Police);
    const auto automatique = fond.isValid() ? Teinte::Encre : palette().color(QPalette::WindowText);
    peintre.setPen(!isEnabled() ? Teinte::EncreEteinte : encre.isValid() ? encre : automatique);
    peintre.drawText(place, ajusté.Drapeaux, montré);
}

void Etiquette::mousePressEvent(QMouseEvent* événement)
{
    if (!cliquable_ || événement->button() != Qt::LeftButton) {
        événement->ignore();
        return;
    }
    pressée_ = true;
}

void Etiquette::mouseReleaseEvent(QMouseEvent* événement)
{
    if (!pressée_ || événement->button() != Qt::LeftButton) {
        événement->ignore();
        return;
    }
    pressée_ = false;
    if (cliquable_ && rect().contains(événement->position().toPoint()))
        clic();
}

void Etiquette::mouseDoubleClickEvent(QMouseEvent* événement)
{
    mousePressEvent(événement); // two quick clicks are two clicks
}

void Etiquette::keyPressEvent(QKeyEvent* événement)
{
    const bool touche =
        événement->key() == Qt::Key_Space || événement->key() == Qt::Key_Return || événement->key() == Qt::Key_Enter;
    if (cliquable_ && choisie_ && touche && !événement->isAutoRepeat())
        clic();
    else
        événement->ignore();
}

void Etiquette::enterEvent(QEnterEvent* événement)
{
    survolée_ = true;
    if (cliquable_)
        update();
    QLabel::enterEvent(événement);
}

void Etiquette::leaveEvent(QEvent* événement)
{
    survolée_ = false;
    if (cliquable_)
        update();
    QLabel::leaveEvent(événement);
}

QSize ImageDessinée::sizeHint() const
{
    static constexpr double Agrandissement = 1.5; // drawings are told in small units
    const double échelle = font().pixelSize() / 16.0;
    return {std::max(24, static_cast<int>(dessin.Largeur * Agrandissement * échelle)),
            std::max(24, static_cast<int>(dessin.Hauteur * Agrandissement * échelle))};
}

void ImageDessinée::PeindreContenu(QPainter& peintre, const QRect& place)
{
    Peindre(peintre, dessin, Proportionné(dessin, place));
}

// ---- Buttons -------------------------------------------------------------------------------------------------

namespace {

constexpr int DrapeauxBouton = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

} // namespace

Bouton::Bouton(QWidget* parent) : QPushButton(parent)
{
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_InputMethodEnabled);
    setAutoDefault(true); // Enter presses the button that has the focus, in a screen as in a box
}

QSize Bouton::sizeHint() const
{
    const int taille = font().pixelSize();
    const auto texte = TailleTexte(font(), text(), DrapeauxBouton, taille * 18);
    const int minimum = text().size() > 2 ? taille * 6 : taille * 3;
    return {std::max(texte.width() + taille * 2, minimum), texte.height() + taille};
}

QSize Bouton::minimumSizeHint() const
{
    const auto voulue = sizeHint();
    return {voulue.width() * 6 / 10, voulue.height() * 7 / 10};
}

void Bouton::paintEvent(QPaintEvent* /*événement*/)
{
    QPainter peintre{this};
    peintre.setRenderHint(QPainter::Antialiasing);
    const auto repos = fond.isValid() ? fond : Teinte::Bouton;
    const auto survol = fond.isValid() ? fond.lighter(108) : Teinte::BoutonSurvolé;
    const auto enfoncé = fond.isValid() ? fond.darker(112) : Teinte::BoutonEnfoncé;
    peintre.setBrush(!isEnabled() ? Teinte::Eteint : isDown() ? enfoncé : underMouse() ? survol : repos);
    peintre.setPen(QPen{isEnabled() ? Teinte::BordBouton : Teinte::EncreEteinte, 1.5});
    peintre.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), Coin, Coin);
    const auto place = rect().adjusted(6, 3, -6, -3);
    const auto& ajusté = ajusté_.Mesurer(font(), text(), place.size(), DrapeauxBouton);
    peintre.setFont(ajusté.Police);
    peintre.setPen(!isEnabled() ? Teinte::EncreEteinte : encre.isValid() ? encre : Teinte::Encre);
    peintre.drawText(place, ajusté.Drapeaux, text());
    if (hasFocus())
        PeindreAnneau(peintre, rect());
}

void Bouton::enterEvent(QEnterEvent* événement)
{
    update();
    QPushButton::enterEvent(événement);
}

void Bouton::leaveEvent(QEvent* événement)
{
    update();
    QPushButton::leaveEvent(événement);
}

// ---- Panels --------------------------------------------------------------------------------------------------

Panneau::Panneau(QWidget* parent) : QWidget(parent) {}

void Panneau::Titrer(const QString& titre)
{
    if (titre == titre_)
        return;
    const bool marges = titre.isEmpty() != titre_.isEmpty();
    titre_ = titre;
    if (marges)
        AjusterMarges();
    update();
}

QFont Panneau::PoliceTitre() const
{
    QFont police = font();
    police.setBold(true);
    if (couvrant) // it says why nothing else is there
        police.setPixelSize(police.pixelSize() * 3 / 2);
    return police;
}

int Panneau::HauteurTitre() const
{
    return titre_.isEmpty() ? 0 : Interligne(PoliceTitre()) + (couvrant ? font().pixelSize() * 2 : 6);
}

void Panneau::AjusterMarges()
{
    const int bord = std::max(6, font().pixelSize() / 2);
    if (auto* contenu = layout())
        contenu->setContentsMargins(bord, HauteurTitre() + (titre_.isEmpty() ? bord : bord / 2), bord, bord);
    const int largeurTitre = titre_.isEmpty() ? 0 : QFontMetrics{font()}.horizontalAdvance(titre_) * 7 / 10;
    setMinimumWidth(couvrant ? 0 : std::min(largeurTitre + 2 * bord, 560));
}

void Panneau::changeEvent(QEvent* événement)
{
    if (événement->type() == QEvent::FontChange)
        AjusterMarges();
    QWidget::changeEvent(événement);
}

void Panneau::paintEvent(QPaintEvent* /*événement*/)
{
    QPainter peintre{this};
    peintre.setRenderHint(QPainter::Antialiasing);
    const auto teinteFond = fond.isValid() ? fond : couvrant ? Teinte::Fond : Teinte::Panneau;
    const auto teinteBord = fond.isValid() ? fond.darker(140) : Teinte::BordPanneau;
    if (couvrant) {
        peintre.fillRect(rect(), teinteFond);
    } else {
        peintre.setPen(QPen{teinteBord, 1.5});
        peintre.setBrush(teinteFond);
        peintre.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), Coin, Coin);
    }
    if (titre_.isEmpty())
        return;
    const QRect bande{8, 2, width() - 16, HauteurTitre() - 2};
    peintre.setFont(AjusterPolice(PoliceTitre(), titre_, bande.size(), Qt::AlignVCenter));
    peintre.setPen(encre.isValid() ? encre : Teinte::Encre);
    peintre.drawText(bande, Qt::AlignVCenter | (couvrant ? Qt::AlignHCenter : Qt::AlignLeft), titre_);
}

void Panneau::mousePressEvent(QMouseEvent* événement)
{
    if ((!cliquable && !traînable) || événement->button() != Qt::LeftButton) {
        événement->ignore();
        return;
    }
    pressé_ = true;
    traîné_ = false;
    prise_ = événement->position().toPoint();
    départ_ = pos();
}

void Panneau::mouseMoveEvent(QMouseEvent* événement)
{
    if (!pressé_ || !traînable) {
        événement->ignore();
        return;
    }
    const auto écart = événement->globalPosition().toPoint() - parentWidget()->mapToGlobal(départ_) - prise_;
    if (!traîné_ && écart.manhattanLength() < QApplication::startDragDistance())
        return;
    if (!traîné_) {
        traîné_ = true;
        raise();
        début(prise_);
    }
    const auto bornes = parentWidget()->size() - QSize{20, 20};
    const auto place = départ_ + écart;
    move(std::clamp(place.x(), 20 - width(), bornes.width()), std::clamp(place.y(), 0, bornes.height()));
}

void Panneau::mouseReleaseEvent(QMouseEvent* événement)
{
    if (!pressé_ || événement->button() != Qt::LeftButton) {
        événement->ignore();
        return;
    }
    pressé_ = false;
    if (traîné_) {
        const auto lieu = événement->globalPosition().toPoint();
        move(départ_); // the drop decides where the panel goes
        dépôt(mapFromGlobal(lieu));
    } else if (cliquable && rect().contains(événement->position().toPoint())) {
        clic();
    }
}

} // namespace tirelune
