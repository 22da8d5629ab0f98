#include "desktop/Style.h"

#include "core/Enseigne.h"
#include "desktop/Apparence.h"
#include "desktop/Bureau.h"
#include "desktop/IconesBoites.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QStyleOption>
#include <QTabBar>
#include <QToolTip>

#include <algorithm>

namespace tirelune {

namespace {

constexpr int Bord = 2;
constexpr int BordTexte = 5; // of what scrolls: its round corners lie outside of what is shown in it

int Lettre(const QFont& police)
{
    return police.pixelSize() > 0 ? police.pixelSize() : QFontMetrics{police}.height() * 5 / 6;
}

QFont PoliceDe(const QWidget* widget)
{
    return widget != nullptr ? widget->font() : QApplication::font();
}

int Lettre(const QWidget* widget)
{
    return Lettre(PoliceDe(widget));
}

bool A(const QStyleOption& option, QStyle::State état)
{
    return (option.state & état) == état;
}

void PeindreContour(QPainter& peintre, const QRectF& place, const QColor& trait, const QBrush& fond,
                    double coin = Arrondi, double épaisseur = Bord)
{
    const double retrait = épaisseur / 2;
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(QPen{trait, épaisseur});
    peintre.setBrush(fond);
    peintre.drawRoundedRect(place.adjusted(retrait, retrait, -retrait, -retrait), coin, coin);
}

QBrush Fond(const QStyleOption& option)
{
    return A(option, QStyle::State_Enabled) ? option.palette.brush(QPalette::Base) : QBrush{Teinte::Eteint};
}

// The white ground of what is typed into or chosen from.
void PeindreChamp(QPainter& peintre, const QStyleOption& option, bool saisie)
{
    const bool actif = saisie && A(option, QStyle::State_HasFocus);
    const bool survolé = A(option, QStyle::State_MouseOver | QStyle::State_Enabled);
    PeindreContour(peintre, QRectF{option.rect}, actif || survolé ? Teinte::BordActif : Teinte::BordChamp,
                   Fond(option));
}

void PeindreFlèche(QPainter& peintre, const QRectF& place, double côté, bool versLeBas, const QColor& teinte)
{
    const auto milieu = place.center();
    const double sens = versLeBas ? 1 : -1;
    QPainterPath flèche{milieu + QPointF(-côté / 2, -sens * côté / 4)};
    flèche.lineTo(milieu + QPointF(0, sens * côté / 4));
    flèche.lineTo(milieu + QPointF(côté / 2, -sens * côté / 4));
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setBrush(Qt::NoBrush);
    peintre.setPen(QPen{teinte, côté / 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    peintre.drawPath(flèche);
}

void PeindreCoche(QPainter& peintre, const QRectF& place, const QColor& teinte)
{
    const double côté = std::min(place.width(), place.height());
    const auto point = [&](double x, double y) { return place.center() + QPointF((x - 0.5) * côté, (y - 0.5) * côté); };
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setBrush(Qt::NoBrush);
    peintre.setPen(QPen{teinte, std::max(2.0, côté / 8), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    peintre.drawPolyline(QPolygonF{{point(0.22, 0.52), point(0.42, 0.74), point(0.78, 0.27)}});
}

QColor Encre(const QStyleOption& option)
{
    return A(option, QStyle::State_Enabled) ? option.palette.color(QPalette::Text) : Teinte::EncreEteinte;
}

void PeindreBoîteACocher(QPainter& peintre, const QStyleOption& option)
{
    const QRectF place{option.rect};
    PeindreContour(peintre, place, Encre(option), Fond(option), place.height() / 5);
    if (A(option, QStyle::State_On))
        PeindreCoche(peintre, place, Encre(option));
    else if (A(option, QStyle::State_NoChange))
        peintre.fillRect(place.adjusted(6, place.height() / 2 - 2, -6, 2 - place.height() / 2), Encre(option));
}

void PeindreRond(QPainter& peintre, const QStyleOption& option)
{
    const QRectF place{option.rect};
    PeindreContour(peintre, place, Encre(option), Fond(option), place.height() / 2);
    if (!A(option, QStyle::State_On))
        return;
    const double retrait = place.height() / 4;
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(Encre(option));
    peintre.drawEllipse(place.adjusted(retrait, retrait, -retrait, -retrait));
}

// A yellow button with its lower edge.
void PeindreBouton(QPainter& peintre, const QStyleOption& option)
{
    const bool enfoncé = A(option, QStyle::State_Sunken);
    const bool survolé = A(option, QStyle::State_MouseOver);
    const QRectF place{option.rect};
    if (!A(option, QStyle::State_Enabled))
        PeindreContour(peintre, place, Teinte::BordChamp, Teinte::Eteint);
    else
        PeindreTouche(peintre, place,
                      enfoncé   ? Teinte::BoutonEnfoncé
                      : survolé ? Teinte::BoutonSurvolé
                                : Teinte::Bouton,
                      Teinte::BordBouton, enfoncé);
}

// A small button: of a tool bar, or with a picture in a dialog.
void PeindreOutil(QPainter& peintre, const QStyleOption& option)
{
    static const QColor FondEnfoncé{0xE5, 0xF1, 0xFC};
    static const QColor BordEnfoncé{0x4F, 0x9B, 0xE0};
    const bool permis = A(option, QStyle::State_Enabled);
    const bool enfoncé = A(option, QStyle::State_Sunken) || A(option, QStyle::State_On);
    const bool survolé = permis && A(option, QStyle::State_MouseOver);
    PeindreContour(peintre, QRectF{option.rect},
                   enfoncé   ? BordEnfoncé
                   : survolé ? Teinte::BordBouton
                             : Teinte::BordChamp,
                   enfoncé   ? FondEnfoncé
                   : survolé ? Teinte::BoutonSurvolé
                   : permis  ? Teinte::Panneau
                             : Teinte::Eteint);
}

void PeindreChoix(QPainter& peintre, const QRectF& place)
{
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(Teinte::Sélection);
    peintre.drawRoundedRect(place, Arrondi - Bord, Arrondi - Bord);
}

// The title of a column.
void PeindreEnTête(QPainter& peintre, const QStyleOption& option)
{
    const auto place = option.rect;
    peintre.fillRect(place, Teinte::Fond);
    peintre.fillRect(QRect{place.x(), place.bottom() - Bord + 1, place.width(), Bord}, Teinte::BordChamp);
    peintre.fillRect(QRect{place.right(), place.y(), 1, place.height()}, Teinte::BordPanneau);
}

// A tab above its page: the one in front runs into it.
void PeindreOnglet(QPainter& peintre, const QStyleOption& option)
{
    const bool devant = A(option, QStyle::State_Selected);
    const bool survolé = A(option, QStyle::State_MouseOver | QStyle::State_Enabled);
    peintre.setClipRect(option.rect);
    PeindreContour(peintre, QRectF{option.rect}.adjusted(0, devant ? 0 : Bord, 0, Arrondi), Teinte::BordChamp,
                   devant    ? Teinte::Panneau
                   : survolé ? Teinte::BoutonSurvolé
                             : Teinte::Eteint);
}

int LargeurCoche(const QWidget* widget)
{
    return Lettre(widget) * 7 / 4;
}

void PeindreOption(QPainter& peintre, const QStyleOptionMenuItem& option, const QWidget* widget)
{
    const QRect place = option.rect;
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        const int bord = Lettre(widget) / 2;
        peintre.fillRect(QRect{place.x() + bord, place.center().y(), place.width() - 2 * bord, Bord}, Teinte::Eteint);
        return;
    }
    const bool permise = A(option, QStyle::State_Enabled);
    if (permise && A(option, QStyle::State_Selected))
        PeindreChoix(peintre, QRectF{place}.adjusted(3, 1, -3, -1));
    const auto encre = permise ? option.palette.color(QPalette::Text) : Teinte::EncreEteinte;
    const int coche = LargeurCoche(widget);
    if (option.checkType != QStyleOptionMenuItem::NotCheckable && option.checked) {
        const int côté = Lettre(widget);
        PeindreCoche(peintre, QRectF(place.x() + coche - côté - 2.0, place.center().y() - côté / 2.0, côté, côté),
                     encre);
    }
    const auto texte = option.text.section(u'\t', 0, 0);
    const auto raccourci = option.text.section(u'\t', 1, 1);
    const auto ligne = place.adjusted(coche, 0, -Lettre(widget), 0);
    peintre.setFont(option.font);
    peintre.setPen(encre);
    peintre.drawText(ligne, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic | Qt::TextSingleLine, texte);
    peintre.drawText(ligne, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, raccourci);
}

void PeindreMenu(QPainter& peintre, const QStyleOptionMenuItem& option)
{
    const bool choisi = A(option, QStyle::State_Enabled | QStyle::State_Selected);
    peintre.fillRect(option.rect, option.palette.brush(QPalette::Window));
    if (choisi)
        PeindreChoix(peintre, QRectF{option.rect}.adjusted(1, 3, -1, -3));
    peintre.setPen(A(option, QStyle::State_Enabled) ? option.palette.color(QPalette::WindowText)
                                                    : Teinte::EncreEteinte);
    peintre.drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, option.text);
}

void PeindreDéfilement(QPainter& peintre, const QRect& rail, const QRect& curseur, const QStyleOption& option)
{
    static constexpr int Retrait = 3;
    const auto bande = [&](const QRect& place, const QColor& teinte) {
        const auto dedans = QRectF{place}.adjusted(Retrait, Retrait, -Retrait, -Retrait);
        const double rayon = std::min(dedans.width(), dedans.height()) / 2;
        peintre.setBrush(teinte);
        peintre.drawRoundedRect(dedans, rayon, rayon);
    };
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::NoPen);
    bande(rail, Teinte::Eteint);
    if (curseur.isValid() && A(option, QStyle::State_Enabled))
        bande(curseur, A(option, QStyle::State_MouseOver) ? Teinte::Encre : Teinte::BordActif);
}

// The title of a group stands above its frame.
QRect PartieDuGroupe(const QStyleOptionGroupBox& option, QStyle::SubControl partie)
{
    const int lettre = option.fontMetrics.height() * 5 / 6;
    const int titre = option.text.isEmpty() ? 0 : option.fontMetrics.height() + lettre / 4;
    const auto cadre = option.rect.adjusted(0, titre, 0, 0);
    switch (partie) {
    case QStyle::SC_GroupBoxLabel:
        return {option.rect.x() + lettre / 2, option.rect.y(), option.rect.width() - lettre, titre};
    case QStyle::SC_GroupBoxContents:
        return cadre.adjusted(Bord, Bord, -Bord, -Bord);
    default:
        return cadre;
    }
}

QRect Curseur(const QStyleOptionSlider& option, int moindre)
{
    const bool couchée = option.orientation == Qt::Horizontal;
    const int longueur = couchée ? option.rect.width() : option.rect.height();
    const qint64 étendue = static_cast<qint64>(option.maximum) - option.minimum;
    if (étendue <= 0)
        return {};
    const auto part = static_cast<int>(static_cast<qint64>(longueur) * option.pageStep / (étendue + option.pageStep));
    const int taille = std::clamp(part, std::min(moindre, longueur), longueur);
    const int place = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      longueur - taille, option.upsideDown);
    return couchée ? QRect{option.rect.x() + place, option.rect.y(), taille, option.rect.height()}
                   : QRect{option.rect.x(), option.rect.y() + place, option.rect.width(), taille};
}

// What stands in a window of its own, without a frame, loses its corners.
void Arrondir(QStyleHintReturn* réponse, const QRect& place)
{
    auto* masque = qstyleoption_cast<QStyleHintReturnMask*>(réponse);
    if (masque == nullptr)
        return;
    QPainterPath contour;
    contour.addRoundedRect(QRectF{place}, Arrondi, Arrondi);
    masque->region = QRegion{contour.toFillPolygon().toPolygon()};
}

} // namespace

int HauteurUsuelle(const QFont& police)
{
    return QFontMetrics{police}.height() + Lettre(police) + HauteurTranche;
}

void InstallerApparence()
{
    QApplication::setStyle(new Style);
    RemplacerPolicePropre();
    const auto& affichage = *QGuiApplication::primaryScreen();
    Agrandir(
        AgrandissementDesLettres(QApplication::font(), affichage.logicalDotsPerInch() * affichage.devicePixelRatio()));
    const auto duBureau = QApplication::palette();
    const bool contrastée = EstContrastée(duBureau);
    if (contrastée)
        ReprendreCouleurs(duBureau);

    QPalette palette{Teinte::Bouton, Teinte::Fond};
    palette.setColor(QPalette::WindowText, Teinte::Encre);
    palette.setColor(QPalette::Text, Teinte::Encre);
    palette.setColor(QPalette::ButtonText, Teinte::Encre);
    palette.setColor(QPalette::PlaceholderText, Teinte::Encre);
    palette.setColor(QPalette::Base, Teinte::Panneau);
    palette.setColor(QPalette::Button, contrastée ? Teinte::Bouton : QColor{0xE4, 0xEE, 0xF8});
    palette.setColor(QPalette::Highlight, Teinte::Sélection);
    palette.setColor(QPalette::HighlightedText, Teinte::Encre);
    palette.setColor(QPalette::ToolTipBase, Teinte::Panneau);
    palette.setColor(QPalette::ToolTipText, Teinte::Encre);
    for (const auto rôle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, rôle, Teinte::EncreEteinte);
    QApplication::setPalette(palette);
    QApplication::setFont(PolicePour({}, 0, false, 1));
    QApplication::setWindowIcon(EnIcône(IcôneDuProgramme()));
    QApplication::setQuitOnLastWindowClosed(false);
}

Style::Style() : QProxyStyle(QStringLiteral("fusion")) {}

void Style::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    // A tip has letters as large as its window's usual ones, whatever those of the widget that it belongs to.
    if (const auto* dit = widget->parentWidget(); dit != nullptr && widget->inherits("QTipLabel"))
        widget->setFont(PolicePour({}, 0, false, EchellePour(dit->window()->size())));
}

// ---- Painting --------------------------------------------------------------------------------------------------

void Style::drawPrimitive(PrimitiveElement élément, const QStyleOption* option, QPainter* peintre,
                          const QWidget* widget) const
{
    peintre->save();
    switch (élément) {
    case PE_PanelLineEdit: {
        const auto* cadre = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (cadre != nullptr && cadre->lineWidth > 0)
            PeindreChamp(*peintre, *option, true);
        break;
    }
    case PE_Frame:
        if (qobject_cast<const QAbstractScrollArea*>(widget) != nullptr)
            PeindreChamp(*peintre, *option, false);
        else
            PeindreContour(*peintre, QRectF{option->rect}, Teinte::BordChamp, Qt::NoBrush, 0);
        break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        PeindreBoîteACocher(*peintre, *option);
        break;
    case PE_IndicatorRadioButton:
        PeindreRond(*peintre, *option);
        break;
    case PE_PanelButtonTool:
        PeindreOutil(*peintre, *option);
        break;
    case PE_PanelItemViewItem:
        if (A(*option, State_Selected))
            PeindreChoix(*peintre, QRectF{option->rect}.adjusted(1, 1, -1, -1));
        else if (A(*option, State_MouseOver | State_Enabled))
            PeindreContour(*peintre, QRectF{option->rect}.adjusted(1, 1, -1, -1), Teinte::BordBouton, Qt::NoBrush,
                           Arrondi - Bord);
        break;
    case PE_FrameFocusRect: // every element has the same ring: see Anneau
        break;
    case PE_PanelMenu:
        PeindreContour(*peintre, QRectF{option->rect}, Teinte::BordChamp, Teinte::Panneau);
        break;
    case PE_PanelTipLabel:
        PeindreContour(*peintre, QRectF{option->rect}, Teinte::BordChamp, option->palette.brush(QPalette::ToolTipBase));
        break;
    case PE_FrameGroupBox:
        PeindreContour(*peintre, QRectF{option->rect}, Teinte::BordPanneau, Teinte::Panneau);
        break;
    case PE_FrameTabWidget:
        PeindreContour(*peintre, QRectF{option->rect}, Teinte::BordChamp, Teinte::Panneau);
        break;
    case PE_FrameMenu:
    case PE_PanelMenuBar:
        break;
    default:
        QProxyStyle::drawPrimitive(élément, option, peintre, widget);
        break;
    }
    peintre->restore();
}

void Style::drawControl(ControlElement élément, const QStyleOption* option, QPainter* peintre,
                        const QWidget* widget) const
{
    peintre->save();
    const auto* menu = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const auto* onglet = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (élément == CE_PushButtonBevel)
        PeindreBouton(*peintre, *option);
    else if (élément == CE_MenuItem && menu != nullptr)
        PeindreOption(*peintre, *menu, widget);
    else if (élément == CE_MenuBarItem && menu != nullptr)
        PeindreMenu(*peintre, *menu);
    else if (élément == CE_HeaderSection)
        PeindreEnTête(*peintre, *option);
    else if (onglet != nullptr && élément == CE_TabBarTabShape && onglet->shape == QTabBar::RoundedNorth)
        PeindreOnglet(*peintre, *option);
    else if (élément == CE_MenuBarEmptyArea)
        peintre->fillRect(option->rect, option->palette.brush(QPalette::Window));
    else
        QProxyStyle::drawControl(élément, option, peintre, widget);
    peintre->restore();
}

void Style::drawComplexControl(ComplexControl élément, const QStyleOptionComplex* option, QPainter* peintre,
                               const QWidget* widget) const
{
    peintre->save();
    const auto place = [&](SubControl partie) { return subControlRect(élément, option, partie, widget); };
    const double côté = Lettre(widget) * 0.62;
    if (élément == CC_ComboBox) {
        const auto* liste = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        PeindreChamp(*peintre, *option, liste != nullptr && liste->editable);
        PeindreFlèche(*peintre, QRectF{place(SC_ComboBoxArrow)}, côté, true, Encre(*option));
    } else if (élément == CC_SpinBox) {
        PeindreChamp(*peintre, *option, true);
        PeindreFlèche(*peintre, QRectF{place(SC_SpinBoxUp)}, côté * 0.8, false, Encre(*option));
        PeindreFlèche(*peintre, QRectF{place(SC_SpinBoxDown)}, côté * 0.8, true, Encre(*option));
    } else if (élément == CC_ScrollBar) {
        PeindreDéfilement(*peintre, place(SC_ScrollBarGroove), place(SC_ScrollBarSlider), *option);
    } else {
        QProxyStyle::drawComplexControl(élément, option, peintre, widget);
    }
    peintre->restore();
}

// ---- Places ----------------------------------------------------------------------------------------------------

QRect Style::subElementRect(SubElement élément, const QStyleOption* option, const QWidget* widget) const
{
    if (élément == SE_LineEditContents) {
        const auto* cadre = qstyleoption_cast<const QStyleOptionFrame*>(option);
        const int bord = cadre != nullptr && cadre->lineWidth > 0 ? Lettre(widget) / 2 : 0;
        return option->rect.adjusted(bord, Bord, -bord, -Bord);
    }
    return QProxyStyle::subElementRect(élément, option, widget);
}

QRect Style::subControlRect(ComplexControl élément, const QStyleOptionComplex* option, SubControl partie,
                            const QWidget* widget) const
{
    const auto place = option->rect;
    const int lettre = Lettre(widget);
    if (élément == CC_ComboBox && partie != SC_ComboBoxListBoxPopup) {
        const int flèche = lettre * 7 / 4;
        switch (partie) {
        case SC_ComboBoxArrow:
            return {place.right() - flèche + 1, place.y(), flèche, place.height()};
        case SC_ComboBoxEditField:
            return place.adjusted(lettre / 2, Bord, -flèche, -Bord);
        default:
            return place;
        }
    }
    if (élément == CC_SpinBox) {
        const int flèche = lettre * 3 / 2;
        const int milieu = place.y() + place.height() / 2;
        switch (partie) {
        case SC_SpinBoxUp:
            return QRect{QPoint{place.right() - flèche, place.y() + Bord}, QPoint{place.right() - Bord, milieu}};
        case SC_SpinBoxDown:
            return QRect{QPoint{place.right() - flèche, milieu}, QPoint{place.right() - Bord, place.bottom() - Bord}};
        case SC_SpinBoxEditField:
            return place.adjusted(lettre / 2, Bord, -flèche, -Bord);
        default:
            return place;
        }
    }
    const auto* groupe = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (élément == CC_GroupBox && groupe != nullptr && (groupe->subControls & SC_GroupBoxCheckBox) == 0)
        return PartieDuGroupe(*groupe, partie);
    const auto* barre = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (élément == CC_ScrollBar && barre != nullptr) {
        const auto curseur = Curseur(*barre, lettre * 2);
        const bool couchée = barre->orientation == Qt::Horizontal;
        switch (partie) {
        case SC_ScrollBarGroove:
            return place;
        case SC_ScrollBarSlider:
            return curseur;
        case SC_ScrollBarSubPage:
            return couchée ? QRect{place.topLeft(), QPoint{curseur.left() - 1, place.bottom()}}
                           : QRect{place.topLeft(), QPoint{place.right(), curseur.top() - 1}};
        case SC_ScrollBarAddPage:
            return couchée ? QRect{QPoint{curseur.right() + 1, place.top()}, place.bottomRight()}
                           : QRect{QPoint{place.left(), curseur.bottom() + 1}, place.bottomRight()};
        default:
            return {};
        }
    }
    return QProxyStyle::subControlRect(élément, option, partie, widget);
}

QSize Style::sizeFromContents(ContentsType genre, const QStyleOption* option, const QSize& contenu,
                              const QWidget* widget) const
{
    const auto police = PoliceDe(widget);
    const int lettre = Lettre(police);
    const int hauteur = HauteurUsuelle(police);
    const auto* menu = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    switch (genre) {
    case CT_LineEdit:
    case CT_ComboBox: // it has room for a picture already, which takes the arrow
        return {contenu.width() + lettre, hauteur};
    case CT_SpinBox:
        return {contenu.width() + lettre * 2, hauteur};
    case CT_PushButton:
        return {std::max(contenu.width() + 2 * lettre, 5 * lettre), hauteur};
    case CT_ToolButton:
        return contenu + QSize{lettre, lettre};
    case CT_CheckBox:
    case CT_RadioButton:
    case CT_ItemViewItem:
        return QProxyStyle::sizeFromContents(genre, option, contenu, widget).expandedTo({0, hauteur});
    case CT_MenuBarItem: {
        const auto texte = menu == nullptr ? contenu : QFontMetrics{police}.size(Qt::TextShowMnemonic, menu->text);
        return {texte.width() + lettre * 3 / 2, hauteur};
    }
    case CT_MenuItem: {
        if (menu != nullptr && menu->menuItemType == QStyleOptionMenuItem::Separator)
            return {contenu.width(), lettre / 2};
        const bool raccourci = menu != nullptr && menu->text.contains(u'\t');
        return {contenu.width() + LargeurCoche(widget) + lettre * (raccourci ? 3 : 1), hauteur};
    }
    default:
        return QProxyStyle::sizeFromContents(genre, option, contenu, widget);
    }
}

int Style::pixelMetric(PixelMetric mesure, const QStyleOption* option, const QWidget* widget) const
{
    const int lettre = Lettre(widget);
    switch (mesure) {
    case PM_DefaultFrameWidth:
        return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr ? BordTexte : Bord;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return lettre * 8 / 5;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
    case PM_MenuBarHMargin:
        return lettre / 2;
    case PM_FocusFrameHMargin:
        return lettre / 3;
    case PM_ScrollBarExtent:
        return std::max(16, lettre);
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return lettre * 3 / 4;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return lettre / 2;
    case PM_ScrollBarSliderMin:
        return lettre * 2;
    case PM_MenuPanelWidth:
    case PM_MenuHMargin:
    case PM_MenuVMargin:
    case PM_MenuBarVMargin:
        return Bord;
    case PM_MenuBarPanelWidth:
    case PM_MenuBarItemSpacing:
    case PM_ButtonShiftHorizontal:
        return 0;
    case PM_ButtonShiftVertical:
        return HauteurTranche;
    case PM_ToolTipLabelFrameWidth:
        return lettre / 3;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
        return lettre * 5 / 4;
    case PM_MessageBoxIconSize:
        return lettre * 3;
    default:
        return QProxyStyle::pixelMetric(mesure, option, widget);
    }
}

// ---- Answers ---------------------------------------------------------------------------------------------------

int Style::styleHint(StyleHint question, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* réponse) const
{
    switch (question) {
    case SH_LineEdit_PasswordCharacter:
        return u'*';
    case SH_ComboBox_Popup: // below its box, and as wide
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_Menu_Scrollable:
        return 1;
    case SH_ToolTipLabel_Opacity:
        return 255;
    case SH_Menu_Mask:
    case SH_ToolTip_Mask:
        Arrondir(réponse, option != nullptr ? option->rect : QRect{});
        return 1;
    default:
        return QProxyStyle::styleHint(question, option, widget, réponse);
    }
}

QIcon Style::standardIcon(StandardPixmap icône, const QStyleOption* option, const QWidget* widget) const
{
    // The toolkit's own are files: every menu bar asks for one, and reading it loads all image formats.
    switch (icône) {
    case SP_ToolBarHorizontalExtensionButton:
        return EnIcône(IcôneSuite());
    case SP_MessageBoxInformation:
        return EnIcône(IcôneInformation());
    case SP_MessageBoxQuestion:
        return EnIcône(IcôneQuestion());
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
        return EnIcône(IcôneErreur());
    default:
        return QProxyStyle::standardIcon(icône, option, widget);
    }
}

} // namespace tirelune
