#include "desktop/Fenetre.h"

#include "desktop/Accessibilite.h"
#include "desktop/Apparence.h"
#include "desktop/Bandeau.h"
#include "desktop/BarreMenus.h"
#include "desktop/Contenu.h"
#include "desktop/Conversions.h"
#include "desktop/Glisse.h"
#include "desktop/Touches.h"
#include "desktop/VueTexteRiche.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTextEdit>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tirelune {

namespace {

constexpr int Ecart = 8; // pixels, between a small window and what it leaves in sight

const auto EvénementSynchroniser = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

Fenêtre::Fenêtre(Ecran& écran, const QWidget* dessous)
    : écran_(écran), dessous_(dessous), contenu_(*new Contenu{écran, this}), bâtisseur_(*this, vues_, contenu_)
{
    setObjectName(EnQString(écran.Nom));
    setAttribute(Qt::WA_InputMethodEnabled);
    setWindowModality(Qt::ApplicationModal);
    // The one below has its borders already. Taking their room into account now saves laying everything out twice.
    pleine_ = dessous != nullptr && dessous->isMaximized() ? dessous->geometry() : screen()->availableGeometry();
    échelle_ = EchellePour((écran.PetiteFenêtre ? screen()->availableGeometry() : pleine_).size());
    contenu_.peint = [this] {
        if (Peinte)
            Peinte();
    };
    contenu_.tailleChangée = [this] { TailleChangée(); };
    contenu_.cliqué = [this](const QWidget* visé) {
        if (vues_.VueDuWidget(visé) == nullptr)
            écran_.Cliquer();
    };
    auto* tout = new QVBoxLayout{this};
    tout->setContentsMargins(0, 0, 0, 0);
    tout->setSpacing(0);
    tout->setSizeConstraint(QLayout::SetNoConstraint);
    tout->addWidget(&contenu_, 1);
}

void Fenêtre::ResterAuDessus()
{
    winId(); // the window manager is told about windows that exist
    windowHandle()->setTransientParent(dessous_ != nullptr ? dessous_->windowHandle() : nullptr);
}

void Fenêtre::MontrerFond()
{
    setGeometry(pleine_);
    ResterAuDessus();
    // Without a window manager nothing answers to this, and the geometry stands.
    showMaximized();
}

void Fenêtre::Garnir()
{
    if (const auto menus = écran_.Menus(); !menus.empty()) {
        menus_ = new BarreMenus{*this, vues_, menus, this};
        layout()->setMenuBar(menus_);
        menus_->show();
    }
    PoserRaccourcis(*this, vues_, écran_.Eléments(), *this);
    if (écran_.Plan().Genre == Disposition::Page) {
        bandeau_ = new Bandeau{écran_.Présentation, this};
        static_cast<QBoxLayout*>(layout())->insertWidget(0, bandeau_);
        bâtisseur_.BâtirPage(écran_.Plan(), *bandeau_);
    } else {
        bâtisseur_.BâtirPlan(écran_.Plan());
    }
    for (const auto& vue : vues_) {
        if (vue->élément.Lâcher && vue->widget != nullptr)
            new Glisse{*this, *vue};
    }
    OrdonnerTabulation();
    Observer();
}

Fenêtre::~Fenêtre()
{
    Fermer();
}

void Fenêtre::Observer()
{
    for (const auto& vue : vues_)
        vue->élément.Observateur = [this, une = vue.get()] { Marquer(*une); };
    sales_.clear();
    for (const auto& vue : vues_)
        sales_.push_back(vue.get());
    focusDemandé_ = écran_.Focus() != nullptr;
    écran_.Observateur = [this] {
        écranSale_ = true;
        Réveiller();
    };
    écran_.FocusDemandé = [this] {
        focusDemandé_ = true;
        Réveiller();
    };
}

void Fenêtre::Ouvrir()
{
    const auto libre = screen()->availableGeometry();
    if (écran_.PetiteFenêtre)
        setWindowFlags(Qt::Dialog);
    Garnir();
    Synchroniser();
    if (écran_.PetiteFenêtre) {
        const auto taille = sizeHint().boundedTo(libre.size());
        const auto dessous = dessous_ != nullptr ? dessous_->geometry() : libre;
        QRect place{{}, taille};
        place.moveCenter(dessous.center());
        if (écran_.LaisseVoir)
            place.moveTopRight(dessous.topRight() - QPoint{Ecart, -Ecart}); // over bars rather than over text
        setGeometry(place);
        ResterAuDessus();
        show();
    } else if (!isVisible()) {
        MontrerFond();
    }
    raise();
    activateWindow();
    ouverte_ = true;
    tailleChangée_ = true;
    Synchroniser();
    DonnerFocus();
}

void Fenêtre::Fermer()
{
    if (fermée_)
        return;
    fermée_ = true;
    écran_.Observateur = nullptr;
    écran_.FocusDemandé = nullptr;
    for (const auto& vue : vues_)
        vue->élément.Observateur = nullptr;
    hide();
}

int Fenêtre::Pixels(int twips) const
{
    return EnPixels(twips, échelle_);
}

int Fenêtre::Twips(int pixels) const
{
    return EnTwips(pixels, échelle_);
}

QWidget* Fenêtre::Plan() const
{
    return &contenu_.Plan();
}

Hôte::Chute Fenêtre::TomberEn(QPoint global) const
{
    for (const auto& vue : vues_) {
        if (dynamic_cast<const RichTextBox*>(&vue->élément) == nullptr || !vue->widget->isVisible())
            continue;
        const auto dedans = vue->widget->mapFromGlobal(global);
        if (vue->widget->rect().contains(dedans))
            return {&vue->élément, dedans};
    }
    return {nullptr, contenu_.Plan().mapFromGlobal(global)};
}

void Fenêtre::Dégager(const QRect& lieu)
{
    for (auto* fenêtre : QApplication::topLevelWidgets()) {
        auto* dessus = dynamic_cast<Fenêtre*>(fenêtre);
        if (dessus != nullptr && dessus->dessous_ == this && dessus->écran_.LaisseVoir && dessus->isVisible())
            dessus->Eviter(lieu);
    }
}

QRect Fenêtre::PassageChoisi() const
{
    for (const auto& vue : vues_) {
        const auto* texte = dynamic_cast<const VueTexteRiche*>(vue.get());
        if (texte != nullptr && texte->Zone().isReadOnly() && texte->Zone().isVisible() &&
            texte->Zone().textCursor().hasSelection())
            return texte->PlaceSélection();
    }
    return {};
}

// Below the place, or else above it.
void Fenêtre::Eviter(const QRect& lieu)
{
    const auto cadre = frameGeometry();
    if (!cadre.intersects(lieu))
        return;
    const auto libre = screen()->availableGeometry();
    const int sous = lieu.bottom() + Ecart;
    const int sur = std::max(libre.top(), lieu.top() - Ecart - cadre.height());
    move(cadre.x(), sous + cadre.height() <= libre.bottom() ? sous : sur);
}

void Fenêtre::OrdonnerTabulation()
{
    QWidget* avant = nullptr;
    for (auto* élément : écran_.Eléments()) {
        auto* vue = VueDe(*élément);
        if (vue == nullptr || vue->widget == nullptr || vue->widget->focusPolicy() == Qt::NoFocus)
            continue;
        if (avant != nullptr)
            setTabOrder(avant, vue->widget);
        avant = vue->widget;
    }
}

// ---- Changes ---------------------------------------------------------------------------------------------------

void Fenêtre::Réveiller()
{
    if (réveillée_ || fermée_)
        return;
    réveillée_ = true;
    QCoreApplication::postEvent(this, new QEvent{EvénementSynchroniser}, Qt::HighEventPriority);
}

void Fenêtre::Marquer(Vue& vue)
{
    vue.Remarquer();
    if (vue.sale)
        return;
    vue.sale = true;
    sales_.push_back(&vue);
    Réveiller();
}

void Fenêtre::Synchroniser()
{
    réveillée_ = false;
    if (fermée_)
        return;
    const bool dedans = std::exchange(enSynchro_, true);
    RevoirVues();
    if (écranSale_)
        SynchroniserFenêtre();
    bool couvertures = !ouverte_;
    const auto àMettre = std::move(sales_);
    sales_.clear();
    for (auto* vue : àMettre) {
        vue->sale = false;
        vue->Synchroniser();
        couvertures = couvertures || contenu_.EstCouverture(*vue);
    }
    vues_.MontrerSuites();
    if (couvertures)
        contenu_.MontrerCouvertures();
    if (menus_ != nullptr)
        menus_->Ajuster(échelle_, width());
    if (ouverte_) {
        if (auto* plan = contenu_.Plan().layout(); plan != nullptr)
            plan->activate();
        PlacerPosés();
        NoterGéométrie();
        if (focusDemandé_)
            DonnerFocus();
        GarderFocus();
        if (QuelquUnEcoute())
            NommerChamps(vues_);
    }
    enSynchro_ = dedans;
    if (!ouverte_ || dedans)
        return;
    if (QuelquUnEcoute())
        annonces_.Suivre(écran_);
    if (std::exchange(focusÀNoter_, false))
        NoterFocus();
    if (tailleChangée_ && !fermée_) {
        tailleChangée_ = false;
        écran_.Dimensionner(Twips(contenu_.width()), Twips(contenu_.height()));
    }
}

void Fenêtre::RevoirVues()
{
    bool arrêts = false;
    for (const auto& vue : vues_)
        arrêts = vue->Revoir() || arrêts;
    if (arrêts)
        OrdonnerTabulation();
}

void Fenêtre::PlacerPosés()
{
    const auto posé = [](const auto& vue) {
        return vue->placeur != nullptr && vue->élément.PoséSur() != nullptr && vue->élément.Visible;
    };
    if (std::none_of(vues_.begin(), vues_.end(), posé))
        return;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // what they stand over goes to its place first
    for (const auto& vue : vues_) {
        if (posé(vue))
            vue->placeur->Placer(*vue);
    }
}

void Fenêtre::NoterFocus()
{
    focusÀNoter_ = enSynchro_;
    if (enSynchro_ || fermée_ || !isActiveWindow())
        return;
    if (const auto* vue = vues_.VueDuWidget(focusWidget()); vue != nullptr)
        vue->élément.RecevoirFocus();
    else if (focusWidget() == this && !focusDemandé_)
        écran_.FocusParti();
}

void Fenêtre::SynchroniserFenêtre()
{
    écranSale_ = false;
    if (const auto titre = EnQString(écran_.Caption()); titre != windowTitle())
        setWindowTitle(titre);
    contenu_.update();
}

void Fenêtre::DonnerFocus()
{
    focusDemandé_ = false;
    if (auto* voulu = écran_.Focus(); voulu != nullptr) {
        if (auto* vue = VueDe(*voulu); vue != nullptr && vue->widget != nullptr) {
            vue->widget->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    if (focusWidget() != nullptr && focusWidget() != this)
        return;
    // Where there is something to type, typing can start at once.
    for (auto* élément : écran_.Eléments()) {
        auto* vue = VueDe(*élément);
        const auto* champ = dynamic_cast<const TextBox*>(élément);
        if (vue != nullptr && champ != nullptr && !champ->Locked && élément->EstAtteignable() &&
            vue->widget->isEnabled()) {
            vue->widget->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    GarderFocus();
}

namespace {

bool PeutAvoirLeClavier(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled();
}

} // namespace

// Left to the toolkit, it would come to whatever element is next, and Enter would press that.
void Fenêtre::GarderFocus()
{
    auto* ici = focusWidget();
    if (ici == this || (ici != nullptr && PeutAvoirLeClavier(*ici)))
        return;
    quitté_ = ici;
    setFocus(Qt::OtherFocusReason);
}

bool Fenêtre::focusNextPrevChild(bool suivant)
{
    if (auto* ici = focusWidget(); ici != nullptr && ici != this && !PeutAvoirLeClavier(*ici)) {
        GarderFocus(); // it was taken away, and nobody has asked for the next
        return true;
    }
    if (focusWidget() != this || quitté_ == nullptr)
        return QWidget::focusNextPrevChild(suivant);
    const auto voisin = [suivant](const QWidget* un) {
        return suivant ? un->nextInFocusChain() : un->previousInFocusChain();
    };
    for (auto* un = voisin(quitté_); un != quitté_; un = voisin(un)) {
        if (un == this || (un->focusPolicy() & Qt::TabFocus) == 0 || un->focusProxy() != nullptr ||
            !PeutAvoirLeClavier(*un))
            continue;
        un->setFocus(suivant ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return QWidget::focusNextPrevChild(suivant);
}

void Fenêtre::NoterGéométrie()
{
    for (const auto& vue : vues_) {
        if (vue->widget != nullptr && vue->placeur == nullptr)
            vue->NoterPlace(vue->widget->geometry());
    }
}

void Fenêtre::Repeindre()
{
    if (fermée_)
        return;
    Synchroniser();
    // Widgets that have just come in are laid out by an event of their own, and painted by another.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
    repaint();
    QCursor::pos(); // a question to the display: its answer comes after the picture
}

void Fenêtre::TailleChangée()
{
    if (!écran_.PetiteFenêtre)
        ChangerEchelle(EchellePour(size()));
    tailleChangée_ = true;
    Réveiller();
}

void Fenêtre::ChangerEchelle(double nouvelle)
{
    if (nouvelle == échelle_)
        return;
    échelle_ = nouvelle;
    bâtisseur_.Mesurer();
    for (const auto& vue : vues_)
        Marquer(*vue);
}

// ---- Events ----------------------------------------------------------------------------------------------------

bool Fenêtre::event(QEvent* événement)
{
    if (événement->type() == EvénementSynchroniser) {
        Synchroniser();
        return true;
    }
    return QWidget::event(événement);
}

void Fenêtre::closeEvent(QCloseEvent* événement)
{
    événement->ignore();
    if (!fermée_)
        écran_.FermerParCroix();
}

// Keys that nobody wanted move the text that is to be read.
void Fenêtre::keyPressEvent(QKeyEvent* événement)
{
    static constexpr int Défilantes[] = {Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                         Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    const bool défile = std::count(std::begin(Défilantes), std::end(Défilantes), événement->key()) > 0;
    if (auto* barre = défile ? BarreDeLecture() : nullptr; barre != nullptr)
        QCoreApplication::sendEvent(barre, événement);
    else
        QWidget::keyPressEvent(événement);
}

QScrollBar* Fenêtre::BarreDeLecture() const
{
    QAbstractScrollArea* plusGrand = nullptr;
    for (const auto& vue : vues_) {
        auto* zone = qobject_cast<QAbstractScrollArea*>(vue->widget);
        const bool texte = qobject_cast<QTextEdit*>(zone) != nullptr || qobject_cast<QPlainTextEdit*>(zone) != nullptr;
        if (!texte || !zone->isVisible() || !zone->isEnabled() || zone->verticalScrollBar()->maximum() == 0)
            continue;
        if (zone == focusWidget())
            return zone->verticalScrollBar();
        if (plusGrand == nullptr || zone->height() > plusGrand->height())
            plusGrand = zone;
    }
    return plusGrand != nullptr ? plusGrand->verticalScrollBar() : nullptr;
}

bool Fenêtre::Filtrer(QObject* visé, QEvent* événement)
{
    if (fermée_ || !visé->isWidgetType())
        return false;
    if (événement->type() != QEvent::KeyPress && événement->type() != QEvent::InputMethod)
        return false;
    Synchroniser();
    // A key that nobody takes climbs from the focused widget to those around it; it is looked at once.
    auto* cible = focusWidget() != nullptr ? focusWidget() : this;
    if (visé != cible)
        return false;
    auto* vue = vues_.VueDuWidget(cible);
    const auto taper = [&](const Touche& touche) {
        return écran_.Taper(touche) || (!fermée_ && vue != nullptr && !vue->Taper(touche));
    };
    if (événement->type() == QEvent::KeyPress) {
        const auto touche = Traduire(*static_cast<QKeyEvent*>(événement));
        return touche && taper(*touche);
    }
    bool avalée = false;
    for (const auto caractère : static_cast<QInputMethodEvent*>(événement)->commitString()) {
        Touche touche;
        touche.Caractère = caractère.unicode();
        avalée = taper(touche) || avalée;
    }
    return avalée;
}

} // namespace tirelune
