// The button bar.
#include "desktop/Apparence.h"
#include "desktop/Conversions.h"
#include "desktop/Style.h"
#include "desktop/Vues.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QToolButton>

#include <map>

namespace tirelune {

namespace {

constexpr int Ecart = 2;         // between two buttons, pixels
constexpr int EcartDeGroupe = 8; // between two groups

// As high as a field; narrower where there is no room.
class BoutonBarre final : public QToolButton {
public:
    BoutonBarre(Dessin dessin, QWidget* parent) : QToolButton(parent), dessin_(std::move(dessin))
    {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        setFocusPolicy(Qt::TabFocus);
    }

    bool mixte = false;

    [[nodiscard]] QSize sizeHint() const override
    {
        const int côté = HauteurUsuelle(font());
        return {côté, côté};
    }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        static constexpr int Etroit = 24;
        return {Etroit, HauteurUsuelle(font())};
    }

protected:
    void paintEvent(QPaintEvent* /*événement*/) override
    {
        QPainter peintre{this};
        QStyleOptionToolButton option;
        initStyleOption(&option);
        style()->drawPrimitive(QStyle::PE_PanelButtonTool, &option, &peintre, this);
        if (mixte)
            peintre.fillRect(rect().adjusted(4, 4, -4, -4), QBrush{Teinte::BordBouton, Qt::Dense6Pattern});
        const double marge = height() / 5.0;
        const double bord = std::min(marge, width() / 10.0);
        peintre.setOpacity(isEnabled() ? 1 : 0.4);
        const auto place = QRectF{rect()}.adjusted(bord, marge, -bord, -marge);
        Peindre(peintre, dessin_, Proportionné(dessin_, place));
    }

private:
    Dessin dessin_;
};

class VueBarre final : public Vue {
public:
    VueBarre(Hôte& hôte, Toolbar& barre, QWidget* parent) : Vue(hôte, barre, new QWidget{parent}), barre_(barre)
    {
        auto* rang = new QHBoxLayout{widget};
        rang->setContentsMargins(0, 0, 0, 0);
        rang->setSpacing(Ecart);
        for (const auto& bouton : barre.Boutons()) {
            if (bouton.Clé.empty()) {
                rang->addSpacing(EcartDeGroupe - Ecart);
                continue;
            }
            auto* outil = new BoutonBarre{bouton.Icône, widget};
            const auto bulle = EnQString(bouton.ToolTipText).trimmed();
            outil->setObjectName(EnQString(bouton.Clé));
            outil->setAccessibleName(bulle);
            outil->setToolTip(bulle);
            outil->setCheckable(bouton.Basculant);
            QObject::connect(outil, &QToolButton::clicked, [this, clé = bouton.Clé] {
                if (!Agissante())
                    return;
                hôte_.Marquer(*this); // the screen says which state shows
                barre_.Cliquer(clé);
            });
            rang->addWidget(outil);
            outils_[bouton.Clé] = outil;
        }
        widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    void Synchroniser() override
    {
        for (const auto& bouton : barre_.Boutons()) {
            const auto place = outils_.find(bouton.Clé);
            if (place == outils_.end())
                continue;
            auto& outil = *place->second;
            const bool mixte = bouton.Pression == Toolbar::Etat::Mixte;
            outil.setCheckable(bouton.Basculant);
            outil.setChecked(bouton.Pression == Toolbar::Etat::Enfoncé);
            if (outil.mixte != mixte) {
                outil.mixte = mixte;
                outil.update();
            }
        }
        Vue::Synchroniser();
    }

private:
    Toolbar& barre_;
    std::map<std::string, BoutonBarre*> outils_;
};

} // namespace

std::unique_ptr<Vue> Créer(Hôte& hôte, Toolbar& barre, QWidget* parent)
{
    return std::make_unique<VueBarre>(hôte, barre, parent);
}

} // namespace tirelune
