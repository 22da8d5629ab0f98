#include "desktop/Fenetre.h"

#include "desktop/Apparence.h"
#include "desktop/Composants.h"
#include "desktop/Conversions.h"
#include "desktop/Places.h"
#include "desktop/PlateformeQt.h"
#include "desktop/VueToile.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <cassert>

namespace tirelune {

// ---- The ground that the elements stand on -------------------------------------------------------------------

class Contenu final : public QWidget {
public:
    explicit Contenu(Fenêtre& fenêtre) : QWidget(&fenêtre), fenêtre_(fenêtre) {}

    [[nodiscard]] QSize sizeHint() const override
    {
        auto taille = fenêtre_.plan_->sizeHint();
        for (const auto* une : fenêtre_.couvertures_)
            taille = taille.expandedTo(une->widget->sizeHint());
        return taille;
    }

protected:
    void paintEvent(QPaintEvent* événement) override
    {
        QPainter peintre{this};
        peintre.setClipRect(événement->rect());
        peintre.fillRect(événement->rect(), EnQColor(fenêtre_.écran_.BackColor, Teinte::Fond));
        Peindre(peintre, fenêtre_.écran_.Fond, rect());
        fenêtre_.plateforme_.FenêtrePeinte();
    }
    void resizeEvent(QResizeEvent* /*événement*/) override { fenêtre_.TailleChangée(); }
    void mousePressEvent(QMouseEvent* événement) override
    {
        // A label or a frame that no click is meant for lets it through to here.
        if (fenêtre_.VueDuWidget(childAt(événement->position().toPoint())) == nullptr)
            fenêtre_.écran_.Cliquer();
    }

private:
    Fenêtre& fenêtre_;
};

namespace {

const auto EvénementSynchroniser = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

Fenêtre::Fenêtre(PlateformeQt& plateforme, Ecran& écran) : plateforme_(plateforme), écran_(écran)
{
    setObjectName(EnQString(écran.Nom));
    setAccessibleName(EnQString(écran.Nom));
    setAttribute(Qt::WA_InputMethodEnabled);
    setWindowModality(Qt::ApplicationModal);
    // The one below has its borders already. Taking their room into account now saves laying everything out twice.
    const auto* dessous = plateforme.Devant();
    pleine_ = dessous != nullptr && dessous->isMaximized() ? dessous->geometry() : screen()->availableGeometry();
    échelle_ = EchellePour((écran.PetiteFenêtre ? screen()->availableGeometry() : pleine_).size());
    contenu_ = new Contenu{*this};
    plan_ = new QWidget{contenu_};
    auto* tout = new QVBoxLayout{this};
    tout->setContentsMargins(0, 0, 0, 0);
    tout->setSizeConstraint(QLayout::SetNoConstraint);
    tout->addWidget(contenu_);
}

void Fenêtre::MontrerFond()
{
    setGeometry(pleine_);
    // Without a window manager nothing answers to this, and the geometry stands.
    showMaximized();
}

void Fenêtre::Garnir()
{
    BâtirMenus();
    if (barre_ != nullptr) {
        layout()->setMenuBar(barre_);
        barre_->show();
    }
    Remplir(plan_, écran_.Plan());
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
    légendeVue_ = écran_.Caption;
    fondVu_ = écran_.BackColor;
    focusVu_ = nullptr;
    focusDemandé_ = écran_.Focus() != nullptr;
    écran_.Observateur = [this] {
        const bool change = légendeVue_ != écran_.Caption() || fondVu_ != écran_.BackColor() ||
                            dessinVu_ != écran_.Fond().Formes.empty();
        légendeVue_ = écran_.Caption;
        fondVu_ = écran_.BackColor;
        dessinVu_ = écran_.Fond().Formes.empty();
        if (!change || focusVu_ != écran_.Focus())
            focusDemandé_ = écran_.Focus() != nullptr;
        focusVu_ = écran_.Focus();
        écranSale_ = true;
        Réveiller();
    };
    dessinVu_ = écran_.Fond().Formes.empty();
    focusVu_ = écran_.Focus();
}

void Fenêtre::Ouvrir(QWidget* dessous)
{
    const auto libre = screen()->availableGeometry();
    if (écran_.PetiteFenêtre)
        setWindowFlags(Qt::Dialog);
    Garnir();
    Synchroniser();
    if (écran_.PetiteFenêtre) {
        const auto taille = sizeHint().boundedTo(libre.size());
        const auto milieu = (dessous != nullptr ? dessous->geometry() : libre).center();
        QRect place{{}, taille};
        place.moveCenter(milieu);
        setGeometry(place);
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

Vue* Fenêtre::VueDe(const Elément& élément) const
{
    const auto place = parElément_.find(&élément);
    return place == parElément_.end() ? nullptr : place->second;
}

Vue* Fenêtre::VueDuWidget(const QWidget* widget) const
{
    for (; widget != nullptr && widget != this; widget = widget->parentWidget()) {
        if (const auto place = parWidget_.find(widget); place != parWidget_.end())
            return place->second;
    }
    return nullptr;
}

// ---- From the arrangement to layouts ---------------------------------------------------------------------------

Vue& Fenêtre::Créer(Elément* élément, QWidget* parent)
{
    assert(élément != nullptr);
    auto& vue = *vues_.emplace_back(CréerVue(*this, *élément, parent));
    parElément_[élément] = &vue;
    if (vue.widget != nullptr)
        parWidget_[vue.widget] = &vue;
    return vue;
}

void Fenêtre::Remplir(QWidget* cadre, const Arrangement& contenu)
{
    const auto place = Bâtir(contenu, cadre, true);
    if (place.Layout != nullptr) {
        cadre->setLayout(place.Layout);
    } else if (place.Widget != nullptr) {
        auto* boîte = new QVBoxLayout{cadre};
        boîte->addWidget(place.Widget);
    }
    if (cadre == plan_ && cadre->layout() != nullptr) {
        const int bord = contenu.Genre == Disposition::Libre ? 0 : 8;
        cadre->layout()->setContentsMargins(bord, bord, bord, bord);
        cadre->layout()->setSizeConstraint(QLayout::SetNoConstraint);
    }
}

namespace {

// Hidden, the widget still takes its room: nothing around it jumps.
void GarderPlace(QWidget& widget)
{
    auto politique = widget.sizePolicy();
    politique.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(politique);
}

} // namespace

Fenêtre::Place Fenêtre::Bâtir(const Arrangement& place, QWidget* parent, bool garder)
{
    switch (place.Genre) {
    case Disposition::Elément: {
        auto& vue = Créer(place.Occupant, parent);
        if (vue.widget != nullptr && garder)
            GarderPlace(*vue.widget);
        return AvecMinimum({vue.widget, nullptr}, place);
    }
    case Disposition::Ligne:
    case Disposition::Colonne:
        return AvecMinimum(BâtirBoîte(place, parent), place);
    case Disposition::Grille:
        return AvecMinimum(BâtirGrille(place, parent), place);
    case Disposition::Pile: {
        auto pile = std::make_unique<Superposition>();
        for (const auto& enfant : place.Enfants) {
            const auto un = Bâtir(enfant, parent, false);
            if (un.Widget != nullptr)
                pile->Ajouter(un.Widget);
            else if (un.Layout != nullptr)
                pile->Ajouter(un.Layout);
        }
        return AvecMinimum({nullptr, pile.release()}, place);
    }
    case Disposition::Centré: {
        const auto un = Bâtir(place.Enfants.front(), parent, garder);
        auto* grille = new QGridLayout;
        grille->setContentsMargins(0, 0, 0, 0);
        grille->setRowStretch(0, 1);
        grille->setRowStretch(2, 1);
        grille->setColumnStretch(0, 1);
        grille->setColumnStretch(2, 1);
        if (un.Widget != nullptr)
            grille->addWidget(un.Widget, 1, 1);
        else if (un.Layout != nullptr)
            grille->addLayout(un.Layout, 1, 1);
        return AvecMinimum({nullptr, grille}, place);
    }
    case Disposition::Cadre:
        return AvecMinimum(BâtirCadre(place, parent, garder), place);
    case Disposition::Couverture:
        BâtirCouverture(place);
        return {};
    case Disposition::Libre:
        return AvecMinimum(BâtirLibre(place, parent), place);
    case Disposition::Toile:
        return BâtirToile(place, parent);
    case Disposition::Vide:
    case Disposition::Ressort:
        return {};
    }
    return {};
}

Fenêtre::Place Fenêtre::AvecMinimum(Place une, const Arrangement& place)
{
    if (place.Largeur == 0 && place.Hauteur == 0)
        return une;
    const auto minimum = [this, largeur = place.Largeur, hauteur = place.Hauteur] {
        return QSize{Pixels(largeur), Pixels(hauteur)};
    };
    if (une.Widget != nullptr) {
        minimums_.emplace_back([minimum, widget = une.Widget] { widget->setMinimumSize(minimum()); });
    } else {
        auto* boîte = new Superposition;
        if (une.Layout != nullptr)
            boîte->Ajouter(une.Layout);
        minimums_.emplace_back([minimum, boîte] {
            boîte->tailleMinimale = minimum();
            boîte->invalidate();
        });
        une = {nullptr, boîte};
    }
    minimums_.back()();
    return une;
}

Fenêtre::Place Fenêtre::BâtirBoîte(const Arrangement& place, QWidget* parent)
{
    const bool ligne = place.Genre == Disposition::Ligne;
    auto* boîte = new QBoxLayout{ligne ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom};
    boîte->setContentsMargins(0, 0, 0, 0);
    boîte->setSpacing(6);
    for (const auto& enfant : place.Enfants) {
        if (enfant.Genre == Disposition::Ressort) {
            boîte->addStretch(std::max(1, enfant.Etirement));
            continue;
        }
        const auto un = Bâtir(enfant, parent, true);
        if (un.Widget != nullptr)
            boîte->addWidget(un.Widget, enfant.Etirement);
        else if (un.Layout != nullptr)
            boîte->addLayout(un.Layout, enfant.Etirement);
    }
    return {nullptr, boîte};
}

Fenêtre::Place Fenêtre::BâtirGrille(const Arrangement& place, QWidget* parent)
{
    auto* grille = new QGridLayout;
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setSpacing(6);
    const int colonnes = std::max(1, place.Colonnes);
    int rang = 0;
    for (const auto& enfant : place.Enfants) {
        const auto un = Bâtir(enfant, parent, true);
        const int ligne = rang / colonnes;
        const int colonne = rang % colonnes;
        if (un.Widget != nullptr)
            grille->addWidget(un.Widget, ligne, colonne);
        else if (un.Layout != nullptr)
            grille->addLayout(un.Layout, ligne, colonne);
        if (enfant.Etirement > 0) {
            grille->setColumnStretch(colonne, std::max(grille->columnStretch(colonne), enfant.Etirement));
            grille->setRowStretch(ligne, std::max(grille->rowStretch(ligne), enfant.Etirement));
        }
        ++rang;
    }
    return {nullptr, grille};
}

Fenêtre::Place Fenêtre::BâtirCadre(const Arrangement& place, QWidget* parent, bool garder)
{
    auto& panneau = dynamic_cast<Panneau&>(*Créer(place.Occupant, parent).widget);
    Remplir(&panneau, place.Enfants.front());
    panneau.AjusterMarges();
    if (garder)
        GarderPlace(panneau);
    return {&panneau, nullptr};
}

void Fenêtre::BâtirCouverture(const Arrangement& place)
{
    auto& vue = Créer(place.Occupant, contenu_);
    couvertures_.push_back(&vue);
    auto& panneau = dynamic_cast<Panneau&>(*vue.widget);
    const Arrangement milieu{Centré{place.Enfants.front()}};
    Remplir(&panneau, milieu);
    panneau.couvrant = true;
    panneau.AjusterMarges();
    panneau.layout()->setSizeConstraint(QLayout::SetNoConstraint);
    panneau.hide();
}

Fenêtre::Place Fenêtre::BâtirLibre(const Arrangement& place, QWidget* parent)
{
    auto* libre = new PlacementLibre;
    std::vector<Vue*> enfants;
    for (const auto& enfant : place.Enfants) {
        const auto un = Bâtir(enfant, parent, false);
        auto* vue = enfant.Occupant != nullptr ? VueDe(*enfant.Occupant) : nullptr;
        if (un.Widget == nullptr || vue == nullptr)
            continue;
        libre->Ajouter(un.Widget);
        vue->libre = libre;
        enfants.push_back(vue);
    }
    libre->placer = [this, enfants] {
        for (auto* vue : enfants)
            vue->widget->setGeometry(vue->PlaceLibre());
    };
    libre->étendue = [this, enfants] {
        QRect tout;
        for (auto* vue : enfants)
            tout |= QRect{QPoint{Pixels(vue->élément.Left), Pixels(vue->élément.Top)}, vue->TailleLibre()};
        return QSize{tout.right() + 1, tout.bottom() + 1};
    };
    return {nullptr, libre};
}

Fenêtre::Place Fenêtre::BâtirToile(const Arrangement& place, QWidget* parent)
{
    auto* toile = new VueToile{parent, QSize{place.Largeur, place.Hauteur}};
    for (const auto& enfant : place.Enfants) {
        if (auto* trait = dynamic_cast<Line*>(enfant.Occupant)) {
            auto& vue = *vues_.emplace_back(std::make_unique<VueTrait>(*this, *trait, *toile));
            parElément_[trait] = &vue;
            toile->Ajouter(*trait);
            continue;
        }
        Bâtir(enfant, toile, false);
        auto* vue = enfant.Occupant != nullptr ? VueDe(*enfant.Occupant) : nullptr;
        if (vue == nullptr || vue->widget == nullptr)
            continue;
        vue->échelle = [toile] { return toile->Facteur(); };
        toile->Ajouter(*vue);
    }
    toile->étendue = [this, toile] {
        for (auto* vue : toile->Vues())
            Marquer(*vue);
    };
    return {toile, nullptr};
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

// ---- Menus -----------------------------------------------------------------------------------------------------

namespace {

class VueMenu final : public Vue {
public:
    VueMenu(Fenêtre& fenêtre, MenuOption& option, QAction& action, QMenu* sous)
        : Vue(fenêtre, option, nullptr), option_(option), action_(action)
    {
        action.setObjectName(EnQString(option.Nom));
        if (sous != nullptr)
            sous->setObjectName(EnQString(option.Nom));
        if (option.Caption == u"-")
            action.setSeparator(true);
        if (!option.Raccourci.empty())
            action.setShortcut(QKeySequence{EnQString(option.Raccourci)});
        QObject::connect(&action, &QAction::triggered, [this] {
            if (Agissante())
                option_.Cliquer();
        });
    }

    void Synchroniser() override
    {
        action_.setText(EnAffichage(option_.Caption()));
        action_.setEnabled(option_.Enabled);
        action_.setVisible(option_.Visible);
        if (option_.Checked)
            action_.setCheckable(true);
        action_.setChecked(option_.Checked);
    }

private:
    MenuOption& option_;
    QAction& action_;
};

} // namespace

void Fenêtre::BâtirMenus()
{
    const auto menus = écran_.Menus();
    if (menus.empty())
        return;
    barre_ = new QMenuBar{this};
    barre_->setNativeMenuBar(false);
    RemplirMenu(barre_, menus);
}

void Fenêtre::RemplirMenu(QWidget* où, const std::vector<Menu>& entrées)
{
    for (const auto& entrée : entrées) {
        auto* action = new QAction{où};
        QMenu* sous = nullptr;
        if (entrée.Option == nullptr)
            action->setSeparator(true);
        if (!entrée.Sous.empty()) {
            sous = new QMenu{où};
            action->setMenu(sous);
            RemplirMenu(sous, entrée.Sous);
        }
        où->addAction(action);
        if (entrée.Option == nullptr)
            continue;
        if (où == barre_)
            entréesBarre_.emplace_back(entrée.Option, action);
        auto& vue = *vues_.emplace_back(std::make_unique<VueMenu>(*this, *entrée.Option, *action, sous));
        parElément_[entrée.Option] = &vue;
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
    if (écranSale_)
        SynchroniserFenêtre();
    bool couvertures = !ouverte_;
    const auto àMettre = std::move(sales_);
    sales_.clear();
    for (auto* vue : àMettre) {
        vue->sale = false;
        vue->Synchroniser();
        couvertures = couvertures || std::find(couvertures_.begin(), couvertures_.end(), vue) != couvertures_.end();
    }
    if (couvertures)
        SynchroniserCouvertures();
    AjusterBarre();
    if (!ouverte_)
        return;
    if (plan_->layout() != nullptr)
        plan_->layout()->activate();
    NoterGéométrie();
    if (focusDemandé_)
        DonnerFocus();
    if (tailleChangée_) {
        tailleChangée_ = false;
        écran_.Dimensionner(Twips(contenu_->width()), Twips(contenu_->height()));
    }
}

void Fenêtre::SynchroniserFenêtre()
{
    écranSale_ = false;
    if (const auto titre = EnQString(écran_.Caption()); titre != windowTitle())
        setWindowTitle(titre);
    contenu_->update();
}

void Fenêtre::SynchroniserCouvertures()
{
    bool couvert = false;
    for (auto* une : couvertures_) {
        if (!une->élément.Visible)
            continue;
        couvert = true;
        une->widget->setGeometry(contenu_->rect());
        une->widget->raise();
    }
    // What is covered is out of the keyboard's reach too.
    plan_->setEnabled(!couvert);
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
    if (focusWidget() != nullptr)
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
}

void Fenêtre::NoterGéométrie()
{
    for (const auto& vue : vues_) {
        if (vue->widget == nullptr || vue->libre != nullptr || vue->échelle)
            continue;
        const auto place = vue->widget->geometry();
        vue->élément.Left.Noter(Twips(place.x()));
        vue->élément.Top.Noter(Twips(place.y()));
        vue->élément.Width.Noter(Twips(place.width()));
        vue->élément.Height.Noter(Twips(place.height()));
    }
}

void Fenêtre::Repeindre()
{
    if (fermée_)
        return;
    Synchroniser();
    // Widgets that have just come in are laid out by an event of their own.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    repaint();
    QCursor::pos(); // a question to the display: its answer comes after the picture
}

void Fenêtre::AjusterBarre()
{
    if (barre_ == nullptr)
        return;
    const auto police = PolicePour({}, 0, false, échelle_);
    if (barre_->font() != police)
        barre_->setFont(police);
    const QFontMetrics mesure{police};
    const int bord = 2 * (mesure.averageCharWidth() + 2);
    int largeur = 0;
    for (const auto& [option, action] : entréesBarre_)
        largeur += mesure.size(Qt::TextShowMnemonic, EnAffichage(option->Caption())).width() + bord;
    // The blanks around captions spread the menus out; where there is no room they go first.
    for (const auto& [option, action] : entréesBarre_) {
        const auto entière = EnAffichage(option->Caption());
        const auto montrée = largeur <= width() ? entière : QStringLiteral("  %1  ").arg(entière.trimmed());
        if (action->text() != montrée)
            action->setText(montrée);
    }
}

void Fenêtre::TailleChangée()
{
    plan_->setGeometry(contenu_->rect());
    for (auto* une : couvertures_)
        une->widget->setGeometry(contenu_->rect());
    if (!écran_.PetiteFenêtre) {
        const double nouvelle = EchellePour(contenu_->size());
        if (nouvelle != échelle_) {
            échelle_ = nouvelle;
            for (const auto& minimum : minimums_)
                minimum();
            for (const auto& vue : vues_)
                Marquer(*vue);
        }
    }
    tailleChangée_ = true;
    Réveiller();
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

// The key as handlers see it; nothing for keys that are no business of theirs.
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
    if ((événement.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0)
        return std::nullopt;
    const auto texte = événement.text();
    if (!texte.isEmpty() && événement.key() != Qt::Key_Delete && événement.key() != Qt::Key_Tab)
        touche.Caractère = texte.front().unicode();
    if (touche.Caractère == 0 && touche.Code == 0)
        return std::nullopt;
    return touche;
}

} // namespace

bool Fenêtre::Filtrer(QObject* visé, QEvent* événement)
{
    if (fermée_ || !visé->isWidgetType())
        return false;
    if (événement->type() == QEvent::MouseButtonPress) {
        Synchroniser();
        return false;
    }
    if (événement->type() != QEvent::KeyPress && événement->type() != QEvent::InputMethod)
        return false;
    Synchroniser();
    // A key that nobody takes climbs from the focused widget to those around it; it is looked at once.
    auto* cible = focusWidget() != nullptr ? focusWidget() : this;
    if (visé != cible)
        return false;
    auto* vue = VueDuWidget(cible);
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
        avalée = avalée || taper(touche);
    }
    return avalée;
}

} // namespace tirelune
