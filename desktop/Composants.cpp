#include "desktop/Composants.h"

#include "desktop/Apparence.h"
#include "desktop/Conversions.h"
#include "desktop/Places.h"
#include "desktop/Style.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tirelune {

namespace {

constexpr double ContrasteDUnTrait = 3; // WCAG 2.1: what is no text, and large letters

int Interligne(const QFont& police)
{
    return QFontMetrics{police}.lineSpacing();
}

bool SeVoitSur(const Dessin& dessin, const QColor& sol)
{
    const auto seVoit = [&sol](Couleur teinte) {
        return teinte.EstAutomatique() || Contraste(EnQColor(teinte, {}), sol) >= ContrasteDUnTrait;
    };
    return std::all_of(dessin.Formes.begin(), dessin.Formes.end(),
                       [&](const Forme& une) { return seVoit(une.Trait) && seVoit(une.Fond); });
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
    if (cliquable_) // a picture needs less room around it than letters
        return std::max(5, font().pixelSize() / (pictogramme.Formes.empty() ? 2 : 3));
    return bordure || fond.isValid() ? std::max(4, font().pixelSize() / 4) : 1;
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

bool Etiquette::EstVide() const
{
    return text().isEmpty() && pictogramme.Formes.empty();
}

QColor Etiquette::Sol() const
{
    return fond.isValid() ? fond : Teinte::Panneau;
}

int Etiquette::LargeurSigne() const
{
    return signe == Signe::Aucun ? 0 : font().pixelSize();
}

// On both sides, so that the text stays in the middle.
int Etiquette::MargeDuVerdict() const
{
    return verdict ? 2 * LargeurSigne() : 0;
}

// Of what stands beside the text.
int Etiquette::LargeurAjouts() const
{
    return LargeurPictogramme() + LargeurPlaque() + (verdict ? 2 * MargeDuVerdict() : LargeurSigne());
}

int Etiquette::LargeurPictogramme() const
{
    return pictogramme.Formes.empty() ? 0 : font().pixelSize() * 3 / 2;
}

int Etiquette::LargeurPlaque() const
{
    return plaque.isEmpty() ? 0 : QFontMetrics{font()}.horizontalAdvance(plaque) + font().pixelSize() / 2;
}

QSize Etiquette::sizeHint() const
{
    const int marge = 2 * Marge();
    const int largeurMaximale = font().pixelSize() * 26;
    const auto taille = TailleTexte(font(), Montré(), Drapeaux(), largeurMaximale);
    return {std::max(taille.width(), font().pixelSize() / 2) + marge + LargeurAjouts(),
            std::max(taille.height(), Interligne(font())) + marge};
}

QSize Etiquette::minimumSizeHint() const
{
    // Letters may get smaller before anything is cut.
    const auto voulue = sizeHint();
    const int hauteur =
        cliquable_ ? Interligne(font()) * 8 / 10 + HauteurTranche + 4 : Interligne(font()) * 6 / 10 + Marge();
    return {std::min(voulue.width() * 6 / 10, font().pixelSize() * 6), hauteur};
}

bool Etiquette::hasHeightForWidth() const
{
    return !enLigne && text().size() > 24;
}

int Etiquette::heightForWidth(int largeur) const
{
    const int marge = 2 * Marge();
    return TailleTexte(font(), Montré(), Drapeaux(), std::max(1, largeur - marge - LargeurAjouts())).height() + marge;
}

QRect Etiquette::PlaceDuContenu() const
{
    const int marge = std::min(Marge(), width() / 8);
    if (!cliquable_)
        return rect().adjusted(marge, marge / 2, -marge, -(marge / 2));
    const int haut = pressée_ ? HauteurTranche : 0;
    return rect().adjusted(marge, haut + 2, -marge, haut - HauteurTranche - 2);
}

bool Etiquette::MontreTout()
{
    if (text().isEmpty())
        return true;
    const auto place = Partager(PlaceDuContenu()).Texte.size();
    if (lettresCoupées)
        return true; // its letters get as small as they must
    return ajusté_.Mesurer(font(), Montré(), place, Drapeaux()).Entier;
}

QFont Etiquette::PoliceMontrée()
{
    const auto place = Partager(PlaceDuContenu()).Texte.size();
    return lettresCoupées ? PoliceCoupée(place.width()) : ajusté_.Mesurer(font(), Montré(), place, Drapeaux()).Police;
}

namespace {

// Where letters may reach, above and below the baseline.
QRect EtendueDesLettres(const QFont& police)
{
    static const auto HautesEtBasses = QStringLiteral("bdfhklgjpqy");
    return QFontMetrics{police}.tightBoundingRect(HautesEtBasses);
}

} // namespace

QFont Etiquette::PoliceCoupée(int largeur) const
{
    static constexpr int Bords = 6; // above and below the letters, in pixels
    auto police = font();
    const auto réduire = [&police](int voulue, int permise) {
        if (voulue > permise)
            police.setPixelSize(std::max(1, police.pixelSize() * permise / voulue));
    };
    réduire(QFontMetrics{police}.horizontalAdvance(text()), largeur);
    réduire(EtendueDesLettres(police).height(), height() - Bords);
    return police;
}

// The press of the mouse doesn't move them.
void Etiquette::PeindreLettresCoupées(QPainter& peintre, const QRect& place) const
{
    const auto police = PoliceCoupée(place.width());
    const auto lettres = EtendueDesLettres(police);
    const int gauche = place.left() + (place.width() - QFontMetrics{police}.horizontalAdvance(text())) / 2;
    const int base = MoitiéDe(*this) - (lettres.top() + lettres.bottom() + 1) / 2;
    peintre.setFont(police);
    peintre.setPen(encre.isValid() ? encre : EncreSur(fond.isValid() ? fond : Teinte::Panneau, Teinte::Encre));
    peintre.drawText(gauche, base, text());
}

Etiquette::Parties Etiquette::Partager(QRect place) const
{
    Parties parties;
    parties.Pictogramme = QRect{place.topLeft(), QSize{LargeurPictogramme(), place.height()}};
    place.setLeft(place.left() + LargeurPictogramme());
    const auto prendreLeBout = [&place](int largeur, int écart) {
        const QRect bout{place.right() - largeur + 1, place.y(), largeur, place.height()};
        if (largeur > 0)
            place.setRight(bout.left() - écart);
        return bout;
    };
    parties.Plaque = prendreLeBout(LargeurPlaque(), 0);
    if (!verdict)
        parties.Signe = prendreLeBout(std::min(LargeurSigne(), place.width() / 3), 2);
    parties.Texte = place.adjusted(MargeDuVerdict(), 0, -MargeDuVerdict(), 0);
    return parties;
}

void Etiquette::paintEvent(QPaintEvent* /*événement*/)
{
    QPainter peintre{this};
    peintre.setRenderHint(QPainter::Antialiasing);
    PeindreFond(peintre);
    PeindreContenu(peintre, PlaceDuContenu());
    if (survolée_ && cliquable_ && isEnabled()) {
        peintre.setPen(QPen{Teinte::BordBouton, 2});
        peintre.setBrush(Qt::NoBrush);
        peintre.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), Arrondi, Arrondi);
    }
}

void Etiquette::PeindreFond(QPainter& peintre) const
{
    const QRectF place{rect()};
    if (cliquable_) {
        const auto face = Sol();
        const auto claire = Contraste(face, Teinte::Tranche) > 1.2 ? Teinte::Tranche : face.darker(150);
        const auto bord = bordure || signe == Signe::Choisi     ? Teinte::Encre
                          : fond.isValid() && fond != Qt::white ? fond.darker(125)
                                                                : claire;
        if (EstVide() && face == Teinte::Panneau) { // a place that has given its word away
            peintre.setPen(QPen{Teinte::Tranche, 2, Qt::DashLine});
            peintre.setBrush(Qt::NoBrush);
            peintre.drawRoundedRect(place.adjusted(1, 1, -1, -1), Arrondi, Arrondi);
        } else if (isEnabled()) {
            PeindreTouche(peintre, place, face, bord, pressée_);
        } else {
            peintre.setPen(QPen{Teinte::BordPanneau, 2});
            peintre.setBrush(fond.isValid() ? fond : Teinte::Eteint);
            peintre.drawRoundedRect(place.adjusted(1, 1, -1, -1), Arrondi, Arrondi);
        }
    } else if (fond.isValid()) {
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(fond);
        peintre.drawRoundedRect(place, Arrondi, Arrondi);
    }
    if (!bordure || cliquable_)
        return;
    peintre.setPen(QPen{Teinte::Tranche, 2});
    peintre.setBrush(Qt::NoBrush);
    peintre.drawRoundedRect(place.adjusted(1, 1, -1, -1), Arrondi, Arrondi);
}

void Etiquette::PeindreContenu(QPainter& peintre, QRect place)
{
    const auto sol = Sol();
    const auto parties = Partager(place);
    const auto encreDesAjouts = EncreSur(sol, encre.isValid() ? encre : Teinte::Encre);
    PeindrePictogramme(peintre, parties.Pictogramme, sol);
    if (!plaque.isEmpty()) {
        auto police = font();
        police.setBold(true);
        peintre.setFont(police);
        peintre.setPen(encreDesAjouts);
        peintre.drawText(parties.Plaque, Qt::AlignCenter, plaque);
    }
    if (!verdict)
        PeindreSigne(peintre, signe, parties.Signe, encreDesAjouts);
    if (text().isEmpty())
        return;
    if (lettresCoupées) {
        PeindreLettresCoupées(peintre, parties.Texte);
        return;
    }
    const auto montré = Montré();
    place = parties.Texte;
    const auto& ajusté = ajusté_.Mesurer(font(), montré, place.size(), Drapeaux());
    const auto automatique = fond.isValid() ? EncreSur(fond, Teinte::Encre) : palette().color(QPalette::WindowText);
    const bool éteinte = !isEnabled() && !(fond.isValid() && encre.isValid()); // told colours stay
    const auto couleur = éteinte ? Teinte::EncreEteinte : encre.isValid() ? encre : automatique;
    const auto boîte = QFontMetrics{ajusté.Police}.boundingRect(place, ajusté.Drapeaux, montré);
    if (!éteinte)
        PeindrePlaqueSous(peintre, boîte, couleur);
    if (MargeDuVerdict() > 0) {
        const int côté = LargeurSigne();
        PeindreSigne(peintre, signe, QRectF(boîte.left() - 1.4 * côté, boîte.center().y() - côté / 2.0, côté, côté),
                     couleur);
    }
    peintre.setFont(ajusté.Police);
    peintre.setPen(couleur);
    peintre.drawText(place, ajusté.Drapeaux, montré);
}

void Etiquette::PeindrePictogramme(QPainter& peintre, const QRect& place, const QColor& sol) const
{
    if (pictogramme.Formes.empty())
        return;
    static constexpr double PartDuBord = 0.12; // of a plate, around the drawing
    const double côté = std::min<double>(place.width() * 0.8, place.height() / (1 + 2 * PartDuBord));
    const double bord = côté * PartDuBord;
    const QRectF carré{QPointF(place.x() + bord, QRectF{place}.center().y() - côté / 2), QSizeF(côté, côté)};
    if (!SeVoitSur(pictogramme, sol)) {
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(Qt::white);
        peintre.drawRoundedRect(carré.adjusted(-bord, -bord, bord, bord), Arrondi / 2.0, Arrondi / 2.0);
    }
    Peindre(peintre, pictogramme, carré);
}

// Two told colours that can't be read on one another; the same colour twice hides on purpose.
void Etiquette::PeindrePlaqueSous(QPainter& peintre, const QRect& texte, const QColor& couleur) const
{
    static constexpr int GrandesLettres = 24; // pixels; WCAG 2.1: 18 points, or 14 bold ones
    static constexpr int GrandesLettresGrasses = 18;
    const bool grandes = font().pixelSize() >= (font().bold() ? GrandesLettresGrasses : GrandesLettres);
    const auto sol = Sol();
    if (couleur == sol || (!fond.isValid() && !encre.isValid()) ||
        Contraste(couleur, sol) >= (grandes || !fond.isValid() ? ContrasteDUnTrait : 4.5))
        return;
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(EncreSur(couleur, Qt::white));
    peintre.drawRoundedRect(QRectF{texte}.adjusted(-5, 0, 5, 0), Arrondi / 2.0, Arrondi / 2.0);
}

void Etiquette::mousePressEvent(QMouseEvent* événement)
{
    if (!cliquable_ || événement->button() != Qt::LeftButton) {
        événement->ignore();
        return;
    }
    pressée_ = true;
    update();
}

void Etiquette::mouseReleaseEvent(QMouseEvent* événement)
{
    if (!pressée_ || événement->button() != Qt::LeftButton) {
        événement->ignore();
        return;
    }
    pressée_ = false;
    update();
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
    if (cliquable_ && touche && !événement->isAutoRepeat())
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

// Drawings are told for a white ground: another one must show them as well.
QColor ImageDessinée::Sol() const
{
    return fond.isValid() || SeVoitSur(dessin, Etiquette::Sol()) ? Etiquette::Sol() : QColor{Qt::white};
}

void ImageDessinée::PeindreContenu(QPainter& peintre, QRect place)
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
    if (!dessin.Formes.empty())
        return QSize{1, 1} * HauteurUsuelle(font());
    const auto texte = TailleTexte(font(), text(), DrapeauxBouton, taille * 18);
    const int minimum = taille * (text().size() > 2 ? 6 : 3);
    const int largeur = text().size() == 1 ? taille * 2 : std::max(texte.width() + taille * 2, minimum);
    return {largeur, texte.height() + taille + HauteurTranche};
}

QSize Bouton::minimumSizeHint() const
{
    const auto voulue = sizeHint();
    return dessin.Formes.empty() ? QSize{voulue.width() * 6 / 10, voulue.height() * 7 / 10} : voulue;
}

void Bouton::paintEvent(QPaintEvent* /*événement*/)
{
    QPainter peintre{this};
    peintre.setRenderHint(QPainter::Antialiasing);
    const auto repos = fond.isValid() ? fond : Teinte::Bouton;
    const auto survol = fond.isValid() ? fond.lighter(108) : Teinte::BoutonSurvolé;
    const auto enfoncé = fond.isValid() ? fond.darker(112) : Teinte::BoutonEnfoncé;
    if (isEnabled()) {
        const auto bord = fond.isValid() ? fond.darker(140) : Teinte::BordBouton;
        PeindreTouche(peintre, rect(), isDown() ? enfoncé : underMouse() ? survol : repos, bord, isDown());
    } else {
        peintre.setPen(QPen{Teinte::Tranche, 2});
        peintre.setBrush(Teinte::Eteint);
        peintre.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), Arrondi, Arrondi);
    }
    if (!dessin.Formes.empty()) {
        const double bord = height() / 5.0;
        const double bas = isDown() ? 0 : HauteurTranche;
        peintre.setOpacity(isEnabled() ? 1 : 0.4);
        Peindre(peintre, dessin,
                Proportionné(dessin, QRectF{rect()}.adjusted(bord, bord + HauteurTranche - bas, -bord, -bord - bas)));
        return;
    }
    const auto place =
        rect().adjusted(8, 2 + (isDown() ? HauteurTranche : 0), -8, -2 - (isDown() ? 0 : HauteurTranche));
    const auto& ajusté = ajusté_.Mesurer(font(), text(), place.size(), DrapeauxBouton);
    peintre.setFont(ajusté.Police);
    peintre.setPen(!isEnabled() ? Teinte::EncreEteinte : encre.isValid() ? encre : Teinte::Encre);
    peintre.drawText(place, ajusté.Drapeaux, text());
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

// ---- Grounds -------------------------------------------------------------------------------------------------

namespace {

void PeindrePapier(QPainter& peintre, const QRectF& place, const QColor& fond = Teinte::Panneau)
{
    PeindreTouche(peintre, place, fond, fond == Teinte::Panneau ? Teinte::BordPanneau : fond.darker(118), false);
}

} // namespace

bool MontreQuelqueChose(const QWidget& fond)
{
    const auto enfants = fond.findChildren<QWidget*>(QString{}, Qt::FindDirectChildrenOnly);
    return std::any_of(enfants.begin(), enfants.end(), [](const auto* un) { return un->isVisible(); });
}

void Papier::paintEvent(QPaintEvent* /*événement*/)
{
    if (!MontreQuelqueChose(*this))
        return;
    QPainter peintre{this};
    peintre.setRenderHint(QPainter::Antialiasing);
    if (!accent.isValid()) {
        PeindrePapier(peintre, rect(), fond);
        return;
    }
    static constexpr int LargeurAccent = 6;
    const auto marges = layout()->contentsMargins();
    const QRectF place = QRectF{rect()}.adjusted(marges.left() / 2.0, marges.top() / 2.0, -marges.right() / 2.0, 0);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(accent);
    peintre.drawRoundedRect(place, Arrondi, Arrondi);
    PeindrePapier(peintre, place.adjusted(LargeurAccent, 0, 0, 0));
}

void PiedDePage::paintEvent(QPaintEvent* /*événement*/)
{
    const bool montre = MontreQuelqueChose(*this);
    if (std::exchange(montrait_, montre) != montre)
        update(); // as a whole: its last button has come or gone
    if (!montre)  // the work may need the place meanwhile
        return;
    QPainter peintre{this};
    peintre.fillRect(rect(), Teinte::Panneau);
    peintre.fillRect(QRect{0, 0, width(), 2}, Teinte::BordPanneau);
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
    return titre_.isEmpty() ? 0 : Interligne(PoliceTitre()) + font().pixelSize();
}

void Panneau::AjusterMarges()
{
    const int bord = std::max(8, font().pixelSize() / 2);
    const int haut = couvrant ? 0 : enTête ? bord / 2 : HauteurTitre() + bord;
    if (auto* contenu = layout())
        contenu->setContentsMargins(bord, haut, bord, bord + HauteurTranche);
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
    couvrant ? PeindreCouverture(peintre) : PeindreCarte(peintre);
}

// Its colour fills it, or the ground of its title; below a title it is paler.
QColor Panneau::Sol() const
{
    const auto pâlir = [](const QColor& couleur) {
        static constexpr double Part = 0.16;
        const auto mêler = [](int c) { return static_cast<int>(255 - (255 - c) * Part); };
        return QColor{mêler(couleur.red()), mêler(couleur.green()), mêler(couleur.blue())};
    };
    if (couvrant || !fond.isValid())
        return Teinte::Panneau;
    return titre_.isEmpty() ? fond : pâlir(fond);
}

void Panneau::PeindreCarte(QPainter& peintre) const
{
    const bool coloré = fond.isValid();
    const bool titré = !titre_.isEmpty();
    PeindreTouche(peintre, rect(), Sol(), coloré ? fond.darker(110) : Teinte::BordPanneau, false);
    if (!titré)
        return;
    const QRect bande{1, 1, width() - 2, HauteurTitre()};
    if (coloré) {
        peintre.setPen(Qt::NoPen);
        peintre.setBrush(fond);
        peintre.setClipRect(bande);
        peintre.drawRoundedRect(QRectF{bande}.adjusted(0, 0, 0, Arrondi), Arrondi, Arrondi);
        peintre.setClipping(false);
    }
    const int bord = std::max(10, font().pixelSize() * 3 / 4);
    const auto place = bande.adjusted(bord, 0, enTête ? -bande.height() * 3 / 2 : -bord, 0);
    static constexpr int Drapeaux = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap;
    peintre.setFont(AjusterPolice(PoliceTitre(), titre_, place.size(), Drapeaux));
    peintre.setPen(coloré            ? EncreSur(fond, encre.isValid() ? encre : Teinte::Encre)
                   : encre.isValid() ? encre
                                     : Teinte::Encre);
    peintre.drawText(place, Drapeaux, titre_);
}

// What a cover holds stands in the middle of its place.
QRect Panneau::PlaceDuMilieu() const
{
    const auto* grille = dynamic_cast<const QGridLayout*>(layout());
    const auto* milieu = grille == nullptr ? nullptr : grille->itemAtPosition(1, 1);
    return milieu == nullptr ? rect() : milieu->geometry();
}

void Panneau::PeindreCouverture(QPainter& peintre) const
{
    peintre.fillRect(rect(), fond.isValid() ? fond : Teinte::Fond);
    const int bord = font().pixelSize() * 2;
    const auto carte = PlaceDuMilieu().adjusted(-bord, -bord - HauteurTitre(), bord, bord);
    PeindrePapier(peintre, carte);
    if (titre_.isEmpty())
        return;
    const QRect place{carte.x() + bord, carte.y() + bord / 2, carte.width() - 2 * bord, HauteurTitre()};
    peintre.setFont(AjusterPolice(PoliceTitre(), titre_, place.size(), Qt::AlignCenter));
    peintre.setPen(encre.isValid() ? encre : Teinte::Encre);
    peintre.drawText(place, Qt::AlignCenter, titre_);
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
