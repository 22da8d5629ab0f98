// The button bar: pictures of the icon theme, or our own where the theme lacks one.
#include "desktop/Apparence.h"
#include "desktop/Conversions.h"
#include "desktop/Vues.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>

#include <map>

namespace tirelune {

namespace {

constexpr int CôtéIcône = 24;

bool EstCouleur(const std::string& nom)
{
    return nom.find("color") != std::string::npos || nom == "tirelune-couleur";
}

// What the format icons show is a letter in that format.
QIcon DessinerIcône(const std::string& nom, const QString& bulle)
{
    static constexpr int Finesse = 2; // for the larger displays
    QPixmap image{CôtéIcône * Finesse, CôtéIcône * Finesse};
    image.fill(Qt::transparent);
    QPainter peintre{&image};
    peintre.scale(Finesse, Finesse);
    peintre.setRenderHint(QPainter::Antialiasing);
    const QRect cadre{0, 0, CôtéIcône, CôtéIcône};
    peintre.setPen(QPen{Teinte::Encre, 2});
    const auto lignes = [&](double gauche, double courte, double droite) {
        for (int i = 0; i < 5; ++i) {
            const double y = 4 + 4 * i;
            i % 2 == 0 ? peintre.drawLine(QPointF{2, y}, QPointF{22, y})
                       : peintre.drawLine(QPointF{gauche, y}, QPointF{gauche + courte - droite, y});
        }
    };
    const auto lettre = [&](const QString& texte, const std::function<void(QFont&)>& retouche) {
        QFont police = PolicePour({}, 0, false, 1.15);
        retouche(police);
        peintre.setFont(police);
        peintre.drawText(cadre, Qt::AlignCenter, texte);
    };
    if (nom == "format-justify-left")
        lignes(2, 12, 0);
    else if (nom == "format-justify-right")
        lignes(10, 12, 0);
    else if (nom == "format-justify-center")
        lignes(6, 12, 0);
    else if (nom == "format-text-bold")
        lettre(QStringLiteral("G"), [](QFont& police) { police.setBold(true); });
    else if (nom == "format-text-italic")
        lettre(QStringLiteral("I"), [](QFont& police) { police.setItalic(true); });
    else if (nom == "format-text-underline")
        lettre(QStringLiteral("S"), [](QFont& police) { police.setUnderline(true); });
    else if (nom == "format-text-strikethrough")
        lettre(QStringLiteral("abc"), [](QFont& police) {
            police.setStrikeOut(true);
            police.setPixelSize(11);
        });
    else if (EstCouleur(nom)) {
        static constexpr QRgb Pots[] = {0xFFE53935, 0xFFFDD835, 0xFF43A047, 0xFF1E88E5};
        peintre.setPen(Qt::NoPen);
        for (int i = 0; i < 4; ++i) {
            peintre.setBrush(QColor{Pots[i]});
            peintre.drawEllipse(2 + 10 * (i % 2), 2 + 10 * (i / 2), 9, 9);
        }
    } else {
        peintre.setBrush(Teinte::Bouton);
        peintre.drawRoundedRect(QRectF{2, 2, 20, 20}, 5, 5);
        lettre(nom == "tirelune-question"  ? QStringLiteral("?")
               : nom == "tirelune-lexique" ? QStringLiteral("Aa")
                                           : bulle.left(1).toUpper(),
               [](QFont& police) { police.setBold(true); });
    }
    return QIcon{image};
}

QIcon IcôneDe(const std::string& nom, const QString& bulle)
{
    if (QIcon::themeName().isEmpty() || QIcon::themeName() == QStringLiteral("hicolor"))
        QIcon::setThemeName(QStringLiteral("Adwaita"));
    // Letters and lines are drawn here, in the program's ink and after the French names.
    const bool propre = nom.rfind("format-", 0) == 0 || EstCouleur(nom);
    if (!propre && QIcon::hasThemeIcon(EnQString(nom)))
        return QIcon::fromTheme(EnQString(nom));
    return DessinerIcône(nom, bulle);
}

class BoutonBarre final : public QToolButton {
public:
    using QToolButton::QToolButton;
    bool mixte = false;

protected:
    void paintEvent(QPaintEvent* événement) override
    {
        QToolButton::paintEvent(événement);
        QPainter peintre{this};
        if (mixte)
            peintre.fillRect(rect().adjusted(2, 2, -2, -2), QBrush{Teinte::BordBouton, Qt::Dense6Pattern});
        if (!hasFocus())
            return;
        peintre.setPen(QPen{Teinte::Anneau, 2});
        peintre.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

class VueBarre final : public Vue {
public:
    VueBarre(Hôte& hôte, Toolbar& barre, QWidget* parent) : Vue(hôte, barre, new QWidget{parent}), barre_(barre)
    {
        widget->setAutoFillBackground(true); // pictures are made for a light ground, whatever the screen's
        auto* rang = new QHBoxLayout{widget};
        rang->setContentsMargins(2, 2, 2, 2);
        rang->setSpacing(1);
        for (const auto& bouton : barre.Boutons()) {
            if (bouton.Icône.empty()) {
                rang->addSpacing(8);
                continue;
            }
            auto* outil = new BoutonBarre{widget};
            const auto bulle = EnQString(bouton.ToolTipText).trimmed();
            outil->setObjectName(EnQString(bouton.Clé));
            outil->setAccessibleName(bulle);
            outil->setToolTip(bulle);
            outil->setIcon(IcôneDe(bouton.Icône, bulle));
            outil->setAutoRaise(true);
            outil->setFocusPolicy(Qt::TabFocus);
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
        rang->addStretch(1);
        widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    void Synchroniser() override
    {
        const int côté = static_cast<int>(CôtéIcône * hôte_.Echelle());
        for (const auto& bouton : barre_.Boutons()) {
            const auto place = outils_.find(bouton.Clé);
            if (place == outils_.end())
                continue;
            auto& outil = *place->second;
            if (outil.iconSize().width() != côté)
                outil.setIconSize({côté, côté});
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
