// Buttons and check boxes.
#include "desktop/Composants.h"
#include "desktop/Conversions.h"
#include "desktop/Vues.h"

#include <QCheckBox>

namespace tirelune {

namespace {

class VueBouton final : public Vue {
public:
    VueBouton(Hôte& hôte, Button& bouton, QWidget* parent)
        : Vue(hôte, bouton, new Bouton{parent}), bouton_(bouton), peint_(static_cast<Bouton&>(*widget))
    {
        QObject::connect(&peint_, &QPushButton::clicked, [this] {
            if (Agissante())
                bouton_.Cliquer();
        });
    }

    void Synchroniser() override
    {
        if (const auto légende = EnAffichage(bouton_.Caption()); légende != peint_.text())
            peint_.setText(légende);
        if (peint_.dessin != bouton_.Picture()) {
            peint_.dessin = bouton_.Picture;
            peint_.updateGeometry();
        }
        peint_.fond = EnQColor(bouton_.BackColor, {});
        peint_.encre = EnQColor(bouton_.ForeColor, {});
        peint_.update();
        Vue::Synchroniser();
    }

private:
    Button& bouton_;
    Bouton& peint_;
};

class VueCase final : public Vue {
public:
    VueCase(Hôte& hôte, CheckBox& case_, QWidget* parent)
        : Vue(hôte, case_, new QCheckBox{parent}), marque_(case_), cochable_(static_cast<QCheckBox&>(*widget))
    {
        cochable_.setAttribute(Qt::WA_InputMethodEnabled);
        QObject::connect(&cochable_, &QCheckBox::clicked, [this] {
            if (!Agissante())
                return;
            hôte_.Marquer(*this); // the element decides whether the mark stays
            marque_.Cliquer();
        });
    }

    void Synchroniser() override
    {
        cochable_.setText(EnAffichage(marque_.Caption()));
        cochable_.setChecked(marque_.Value != 0);
        Vue::Synchroniser();
    }

private:
    CheckBox& marque_;
    QCheckBox& cochable_;
};

} // namespace

std::unique_ptr<Vue> Créer(Hôte& hôte, Button& bouton, QWidget* parent)
{
    return std::make_unique<VueBouton>(hôte, bouton, parent);
}

std::unique_ptr<Vue> Créer(Hôte& hôte, CheckBox& case_, QWidget* parent)
{
    return std::make_unique<VueCase>(hôte, case_, parent);
}

} // namespace tirelune
