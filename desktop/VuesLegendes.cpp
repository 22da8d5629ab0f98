// Captions, images and frames.
#include "desktop/Apparence.h"
#include "desktop/Composants.h"
#include "desktop/Conversions.h"
#include "desktop/Vues.h"

namespace tirelune {

namespace {

// Whether it can be clicked has changed.
template <class E>
bool SuivreClic(Etiquette& étiquette, const E& élément)
{
    const bool cliquable{élément.Click};
    if (étiquette.EstCliquable() == cliquable)
        return false;
    étiquette.RendreCliquable(cliquable);
    return true;
}

class VueEtiquette : public Vue {
public:
    VueEtiquette(Hôte& hôte, Label& label, QWidget* parent)
        : Vue(hôte, label, new Etiquette{parent}), label_(label), étiquette_(static_cast<Etiquette&>(*widget))
    {
        étiquette_.centrée = label.Centré;
        étiquette_.lettresCoupées = label.LettresCoupées;
        étiquette_.clic = [this] {
            if (Agissante())
                label_.Cliquer();
        };
    }

    void Remarquer() override
    {
        // Rules read the width of such a label as soon as they have set its caption.
        if (!label_.AutoSize)
            return;
        Habiller();
        const auto taille = étiquette_.sizeHint();
        label_.Width.Noter(Twips(taille.width()));
        label_.Height.Noter(Twips(taille.height()));
    }

    bool Revoir() override
    {
        const bool change = SuivreClic(étiquette_, label_);
        if (change)
            MettrePointeur();
        return change;
    }

    void Synchroniser() override
    {
        Habiller();
        const auto fond = EnQColor(label_.BackColor, {});
        const auto encre = EnQColor(label_.ForeColor, {});
        if (fond != étiquette_.fond || encre != étiquette_.encre || label_.Bordure != étiquette_.bordure) {
            étiquette_.fond = fond;
            étiquette_.encre = encre;
            étiquette_.bordure = label_.Bordure;
            étiquette_.update();
        }
        étiquette_.verdict = label_.SensDesCouleurs == Sens::Verdict;
        MontrerAjouts();
        MettrePointeur();
        Vue::Synchroniser();
    }

private:
    void MettrePointeur()
    {
        const auto pointeur = label_.MousePointer == Pointeur::Sablier ? Qt::WaitCursor
                              : étiquette_.EstCliquable()              ? Qt::PointingHandCursor
                                                                       : Qt::ArrowCursor;
        if (étiquette_.cursor().shape() != pointeur)
            étiquette_.setCursor(pointeur);
    }
    void Habiller()
    {
        étiquette_.enLigne = label_.AutoSize;
        if (const auto signe = SigneDe(label_); signe != étiquette_.signe) {
            étiquette_.signe = signe;
            étiquette_.updateGeometry();
            étiquette_.update();
        }
        if (const auto légende = EnAffichage(label_.Caption()); légende != étiquette_.text())
            étiquette_.setText(légende);
    }

    void MontrerAjouts()
    {
        const auto plaque = EnQString(label_.Plaque());
        if (plaque == étiquette_.plaque && label_.Picture == étiquette_.pictogramme)
            return;
        étiquette_.plaque = plaque;
        étiquette_.pictogramme = label_.Picture;
        étiquette_.updateGeometry();
        étiquette_.update();
    }

    Label& label_;
    Etiquette& étiquette_;
};

// As large as its place lets it be, with letters to suit.
class EtiquetteALire final : public Etiquette {
public:
    using Etiquette::Etiquette;
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }
};

// A text box that is read and clicked as a label is.
class VueTexteALire final : public Vue {
public:
    VueTexteALire(Hôte& hôte, TextBox& boîte, QWidget* parent)
        : Vue(hôte, boîte, new EtiquetteALire{parent}), boîte_(boîte), étiquette_(static_cast<Etiquette&>(*widget))
    {
        étiquette_.centrée = boîte.Centré;
        étiquette_.clic = [this] {
            if (Agissante())
                boîte_.Cliquer(0);
        };
    }

    bool Revoir() override
    {
        const bool change = SuivreClic(étiquette_, boîte_);
        if (change)
            étiquette_.EstCliquable() ? étiquette_.setCursor(Qt::PointingHandCursor) : étiquette_.unsetCursor();
        return change;
    }

    void Synchroniser() override
    {
        étiquette_.signe = SigneDe(boîte_);
        étiquette_.fond = EnQColor(boîte_.BackColor, {});
        étiquette_.encre = EnQColor(boîte_.ForeColor, {});
        if (const auto texte = EnAffichage(boîte_.Text()).trimmed(); texte != étiquette_.text())
            étiquette_.setText(texte);
        étiquette_.update();
        Vue::Synchroniser();
    }

private:
    TextBox& boîte_;
    Etiquette& étiquette_;
};

class VueImage final : public Vue {
public:
    VueImage(Hôte& hôte, Image& image, QWidget* parent)
        : Vue(hôte, image, new ImageDessinée{parent}), image_(image), dessinée_(static_cast<ImageDessinée&>(*widget))
    {
        dessinée_.clic = [this] {
            if (Agissante())
                image_.Cliquer();
        };
    }

    bool Revoir() override
    {
        const bool change = SuivreClic(dessinée_, image_);
        if (change)
            dessinée_.EstCliquable() ? dessinée_.setCursor(Qt::PointingHandCursor) : dessinée_.unsetCursor();
        return change;
    }

    void Synchroniser() override
    {
        if (image_.Picture != dessinée_.dessin) {
            dessinée_.dessin = image_.Picture;
            dessinée_.updateGeometry();
            dessinée_.update();
        }
        if (const auto fond = EnQColor(image_.BackColor, {}); fond != dessinée_.fond) {
            dessinée_.fond = fond;
            dessinée_.update();
        }
        Vue::Synchroniser();
    }

private:
    Image& image_;
    ImageDessinée& dessinée_;
};

class VueCadre final : public Vue {
public:
    VueCadre(Hôte& hôte, Frame& cadre, QWidget* parent)
        : Vue(hôte, cadre, new Panneau{parent}), cadre_(cadre), panneau_(static_cast<Panneau&>(*widget))
    {
        panneau_.clic = [this] {
            if (Agissante())
                cadre_.Cliquer();
        };
        panneau_.début = [this](QPoint prise) {
            if (Agissante() && cadre_.Enabled)
                cadre_.MouseMove(Twips(prise.x()), Twips(prise.y()));
        };
        panneau_.dépôt = [this](QPoint lieu) {
            if (Agissante())
                Déposer(lieu);
        };
    }

    bool Revoir() override
    {
        if (panneau_.cliquable == bool{cadre_.Click} && panneau_.traînable == bool{cadre_.MouseMove})
            return false;
        panneau_.cliquable = bool{cadre_.Click};
        panneau_.traînable = bool{cadre_.MouseMove};
        if (panneau_.traînable)
            panneau_.setCursor(Qt::OpenHandCursor);
        else if (panneau_.cliquable)
            panneau_.setCursor(Qt::PointingHandCursor);
        else
            panneau_.unsetCursor();
        return false;
    }

    void Synchroniser() override
    {
        panneau_.Titrer(EnAffichage(cadre_.Caption()).trimmed());
        const auto fond = EnQColor(cadre_.BackColor, {});
        const auto encre = EnQColor(cadre_.ForeColor, {});
        if (fond != panneau_.fond || encre != panneau_.encre) {
            panneau_.fond = fond;
            panneau_.encre = encre;
            panneau_.update();
        }
        AccorderEncre(panneau_, panneau_.Sol());
        Vue::Synchroniser();
    }

private:
    // On itself when it has hardly moved; else on the rich text below, or on the screen.
    void Déposer(QPoint lieu)
    {
        if (!cadre_.DragDrop)
            return;
        if (panneau_.rect().contains(lieu)) {
            cadre_.DragDrop(&cadre_, Twips(lieu.x()), Twips(lieu.y()));
            return;
        }
        auto [cible, place] = hôte_.TomberEn(panneau_.mapToGlobal(lieu));
        if (cible == nullptr && placeur != nullptr)
            place -= placeur->Coin();
        cadre_.DragDrop(cible, Twips(place.x()), Twips(place.y()));
    }

    Frame& cadre_;
    Panneau& panneau_;
};

} // namespace

std::unique_ptr<Vue> Créer(Hôte& hôte, Label& label, QWidget* parent)
{
    return std::make_unique<VueEtiquette>(hôte, label, parent);
}

std::unique_ptr<Vue> CréerTexteALire(Hôte& hôte, TextBox& boîte, QWidget* parent)
{
    return std::make_unique<VueTexteALire>(hôte, boîte, parent);
}

std::unique_ptr<Vue> Créer(Hôte& hôte, Image& image, QWidget* parent)
{
    return std::make_unique<VueImage>(hôte, image, parent);
}

std::unique_ptr<Vue> Créer(Hôte& hôte, Frame& cadre, QWidget* parent)
{
    return std::make_unique<VueCadre>(hôte, cadre, parent);
}

} // namespace tirelune
