#include "desktop/BarreMenus.h"

#include "desktop/Apparence.h"
#include "desktop/Conversions.h"
#include "desktop/JeuDeVues.h"

#include <QAction>
#include <QEvent>
#include <QFontMetrics>
#include <QMenu>
#include <QStyleOption>

namespace tirelune {

namespace {

class VueMenu final : public Vue {
public:
    VueMenu(Hôte& hôte, MenuOption& option, QAction& action, QMenu* sous)
        : Vue(hôte, option, nullptr), option_(option), action_(action)
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
        if (!action_.isSeparator()) // a separator with a text shows it
            action_.setText(EnAffichage(option_.Caption()).trimmed());
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

BarreMenus::BarreMenus(Hôte& hôte, JeuDeVues& vues, const std::vector<Menu>& menus, QWidget* parent) : QMenuBar(parent)
{
    setNativeMenuBar(false);
    Remplir(hôte, vues, *this, menus);
}

void BarreMenus::Remplir(Hôte& hôte, JeuDeVues& vues, QWidget& où, const std::vector<Menu>& entrées)
{
    for (const auto& entrée : entrées) {
        auto* action = new QAction{&où};
        QMenu* sous = nullptr;
        if (entrée.Option == nullptr)
            action->setSeparator(true);
        if (!entrée.Sous.empty()) {
            sous = new QMenu{&où};
            menus_.push_back(sous);
            action->setMenu(sous);
            Remplir(hôte, vues, *sous, entrée.Sous);
        }
        où.addAction(action);
        if (entrée.Option == nullptr)
            continue;
        if (&où == this)
            entrées_.emplace_back(entrée.Option, action);
        vues.Ajouter(std::make_unique<VueMenu>(hôte, *entrée.Option, *action, sous));
    }
}

void PoserRaccourcis(Hôte& hôte, JeuDeVues& vues, const std::vector<Elément*>& éléments, QWidget& fenêtre)
{
    for (auto* élément : éléments) {
        auto* option = dynamic_cast<MenuOption*>(élément);
        if (option == nullptr || option->Raccourci.empty() || vues.VueDe(*option) != nullptr)
            continue;
        auto* action = new QAction{&fenêtre};
        fenêtre.addAction(action);
        vues.Ajouter(std::make_unique<VueMenu>(hôte, *option, *action, nullptr));
    }
}

void BarreMenus::Ajuster(double échelle, int largeur)
{
    // A bar whose entries lead straight on is all that its screen has to press: it is written larger.
    static constexpr double GrandesLettres = 16; // points
    const auto police = PolicePour({}, menus_.empty() ? GrandesLettres : 0, false, échelle);
    if (font() != police)
        setFont(police);
    for (auto* menu : menus_) { // a window of its own, to which the font doesn't come down
        if (menu->font() != police)
            menu->setFont(police);
    }
    const QFontMetrics mesure{police};
    int voulue = 2 * style()->pixelMetric(QStyle::PM_MenuBarHMargin, nullptr, this);
    for (const auto& [option, action] : entrées_) {
        const auto texte = mesure.size(Qt::TextShowMnemonic, EnAffichage(option->Caption()));
        voulue += style()->sizeFromContents(QStyle::CT_MenuBarItem, nullptr, texte, this).width();
    }
    if (const bool écartées = voulue <= largeur; écartées != écartées_) {
        écartées_ = écartées;
        QEvent mesurée{QEvent::FontChange}; // the bar measures its entries again
        changeEvent(&mesurée);
    }
}

// The blanks around captions spread the menus out; where there is no room they go first, and nobody hears them.
void BarreMenus::initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const
{
    QMenuBar::initStyleOption(option, action);
    const auto entrée =
        std::find_if(entrées_.begin(), entrées_.end(), [action](const auto& une) { return une.second == action; });
    if (écartées_ && entrée != entrées_.end())
        option->text = EnAffichage(entrée->first->Caption());
}

} // namespace tirelune
