// Lists, drop-down or open; drives and folders.
#include "desktop/Apparence.h"
#include "desktop/Conversions.h"
#include "desktop/Vues.h"

#include <QAbstractItemView>
#include <QAbstractListModel>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QScreen>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

namespace tirelune {

namespace {

// Where the items drop down, the passage that the user works on staying in sight: shorter, or else beside it.
QRect PlaceDuVolet(QRect volet, const QRect& passage, const QRect& écran, bool versLeHaut, int rangée)
{
    static constexpr int Ecart = 2;
    static constexpr int RangéesMinimum = 4;
    if (!volet.intersects(passage))
        return volet;
    auto court = volet;
    versLeHaut ? court.setTop(passage.bottom() + Ecart) : court.setBottom(passage.top() - Ecart);
    if (court.height() >= RangéesMinimum * rangée)
        return court;
    if (passage.right() + Ecart + volet.width() <= écran.right())
        volet.moveLeft(passage.right() + Ecart);
    else if (passage.left() - Ecart - volet.width() >= écran.left())
        volet.moveRight(passage.left() - Ecart);
    else
        volet.moveBottom(std::max(écran.top() + volet.height(), passage.top() - Ecart));
    return volet;
}

// The items where they are: copied, a lexicon's words would take longer than the key that has changed one.
class ModèleDeListe final : public QAbstractListModel {
public:
    ModèleDeListe(const Liste& liste, QObject* parent)
        : QAbstractListModel(parent), liste_(liste), version_(liste.Version()), nombre_(liste.ListCount())
    {
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : nombre_; }
    [[nodiscard]] QVariant data(const QModelIndex& place, int rôle) const override
    {
        if ((rôle != Qt::DisplayRole && rôle != Qt::EditRole) || place.row() >= liste_.ListCount())
            return {};
        return EnAffichage(liste_.List(place.row()));
    }
    void Revoir()
    {
        if (version_ == liste_.Version())
            return;
        beginResetModel();
        version_ = liste_.Version();
        nombre_ = liste_.ListCount();
        endResetModel();
    }

private:
    const Liste& liste_;
    unsigned version_;
    int nombre_;
};

class VueCombo final : public Vue {
public:
    VueCombo(Hôte& hôte, ComboBox& combo, QWidget* parent)
        : Vue(hôte, combo, new Déroulante{*this, parent}),
          combo_(combo),
          liste_(static_cast<QComboBox&>(*widget)),
          modèle_(*new ModèleDeListe{combo, &liste_})
    {
        liste_.setModel(&modèle_);
        liste_.setCurrentIndex(-1);
        if (auto* rangées = qobject_cast<QListView*>(liste_.view()); rangées != nullptr)
            rangées->setUniformItemSizes(true);
        liste_.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        liste_.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        liste_.setMinimumContentsLength(combo.Saisie ? 3 : 14);
        liste_.setMaxVisibleItems(16);
        liste_.setAttribute(Qt::WA_InputMethodEnabled);
        liste_.view()->installEventFilter(&liste_);
        if (combo.Saisie) {
            liste_.setEditable(true);
            liste_.setInsertPolicy(QComboBox::NoInsert);
            liste_.setCompleter(nullptr);
            QObject::connect(liste_.lineEdit(), &QLineEdit::textEdited, [this](const QString& texte) {
                if (Agissante())
                    combo_.Saisir(DepuisQString(texte));
            });
        }
        QObject::connect(&liste_, &QComboBox::activated, [this](int index) {
            if (!Agissante())
                return;
            hôte_.Marquer(*this);
            combo_.Choisir(index);
        });
    }

    bool Taper(const Touche& touche) override { return combo_.Taper(touche); }

    void Synchroniser() override
    {
        ColorerFond(Teinte::Panneau);
        const QSignalBlocker silence{liste_};
        modèle_.Revoir();
        const auto texte = EnAffichage(combo_.Text());
        if (combo_.Saisie) {
            if (liste_.currentIndex() != combo_.ListIndex)
                liste_.setCurrentIndex(combo_.ListIndex);
            if (liste_.currentText() != texte)
                liste_.setEditText(texte);
        } else {
            // A text that is none of the items shows in the place of an item.
            const int index = combo_.ListIndex;
            const bool élémentMontré = index >= 0 && index < combo_.ListCount() && combo_.List(index) == combo_.Text();
            const int voulu = élémentMontré ? index : combo_.Chercher(combo_.Text());
            liste_.setPlaceholderText(voulu < 0 ? texte : QString{});
            if (liste_.currentIndex() != voulu)
                liste_.setCurrentIndex(voulu);
            liste_.update();
        }
        Vue::Synchroniser();
    }

private:
    class Déroulante final : public QComboBox {
    public:
        Déroulante(VueCombo& vue, QWidget* parent) : QComboBox(parent), vue_(vue) {}

        void showPopup() override
        {
            QComboBox::showPopup();
            auto* volet = view()->window();
            const auto passage = vue_.hôte_.PassageChoisi();
            if (count() == 0 || passage.isEmpty())
                return;
            const bool versLeHaut = volet->y() < mapToGlobal(QPoint{0, 0}).y();
            volet->setGeometry(PlaceDuVolet(volet->geometry(), passage, screen()->availableGeometry(), versLeHaut,
                                            view()->sizeHintForRow(0)));
        }
        bool eventFilter(QObject* visé, QEvent* événement) override
        {
            if (visé != view() || événement->type() != QEvent::KeyPress || !vue_.RefuseLesTouches())
                return QComboBox::eventFilter(visé, événement);
            hidePopup();
            return true;
        }

    protected:
        void keyPressEvent(QKeyEvent* événement) override
        {
            if (vue_.RefuseLesTouches()) // with Alt or Ctrl held, they were not shown to the handler
                événement->ignore();
            else
                QComboBox::keyPressEvent(événement);
        }
        void wheelEvent(QWheelEvent* événement) override { événement->ignore(); } // what is to be read scrolls

    private:
        VueCombo& vue_;
    };

    // Not even the arrows do anything: what they would pick is picked with the mouse alone.
    [[nodiscard]] bool RefuseLesTouches() const
    {
        Touche flèche;
        flèche.Code = Touche::Bas;
        if (combo_.KeyPress)
            combo_.KeyPress(flèche);
        return flèche.Avalée;
    }

    ComboBox& combo_;
    QComboBox& liste_;
    ModèleDeListe& modèle_;
};

class VueListe final : public Vue {
public:
    VueListe(Hôte& hôte, ListBox& éléments, QWidget* parent)
        : Vue(hôte, éléments, new Rangées{*this, parent}), source_(éléments), liste_(static_cast<QListWidget&>(*widget))
    {
        liste_.setUniformItemSizes(true);
        QObject::connect(&liste_, &QListWidget::itemClicked, [this] {
            if (Agissante())
                source_.Choisir(liste_.currentRow());
        });
        QObject::connect(&liste_, &QListWidget::itemDoubleClicked, [this] {
            if (Agissante() && source_.Enabled && source_.EstAtteignable() && source_.DblClick)
                source_.DblClick();
        });
    }

    bool Taper(const Touche& touche) override
    {
        if (touche.Caractère == 0 || !source_.KeyPress) // arrows move in the list whatever becomes of typed keys
            return true;
        Touche copie = touche;
        source_.KeyPress(copie);
        return !copie.Avalée;
    }

    void Synchroniser() override
    {
        ColorerFond(Teinte::Panneau);
        const QSignalBlocker silence{liste_};
        if (montrés_ != source_.Eléments()) {
            montrés_ = source_.Eléments();
            liste_.clear();
            for (const auto& texte : montrés_)
                liste_.addItem(EnAffichage(texte));
        }
        if (liste_.currentRow() != source_.ListIndex)
            liste_.setCurrentRow(source_.ListIndex);
        Vue::Synchroniser();
    }

private:
    class Rangées final : public QListWidget {
    public:
        Rangées(VueListe& vue, QWidget* parent) : QListWidget(parent), vue_(vue) {}

    protected:
        // Arrows choose as a click does.
        void keyPressEvent(QKeyEvent* événement) override
        {
            const int avant = currentRow();
            QListWidget::keyPressEvent(événement);
            if (currentRow() != avant && vue_.Agissante())
                vue_.source_.Choisir(currentRow());
        }

    private:
        VueListe& vue_;
    };

    ListBox& source_;
    QListWidget& liste_;
    std::vector<Texte> montrés_;
};

class VueLecteurs final : public Vue {
public:
    VueLecteurs(Hôte& hôte, DriveListBox& lecteurs, QWidget* parent)
        : Vue(hôte, lecteurs, new QComboBox{parent}), source_(lecteurs), liste_(static_cast<QComboBox&>(*widget))
    {
        liste_.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        QObject::connect(&liste_, &QComboBox::activated, [this](int index) {
            if (Agissante())
                source_.Choisir(index);
        });
    }

    void Synchroniser() override
    {
        const QSignalBlocker silence{liste_};
        QStringList textes;
        for (const auto& lecteur : source_.Lecteurs())
            textes.push_back(EnQString(lecteur));
        liste_.clear();
        liste_.addItems(textes);
        liste_.setCurrentIndex(static_cast<int>(textes.indexOf(EnQString(source_.Drive()))));
        Vue::Synchroniser();
    }

private:
    DriveListBox& source_;
    QComboBox& liste_;
};

class VueDossiers final : public Vue {
public:
    VueDossiers(Hôte& hôte, DirListBox& dossiers, QWidget* parent)
        : Vue(hôte, dossiers, new QListWidget{parent}), source_(dossiers), liste_(static_cast<QListWidget&>(*widget))
    {
        QObject::connect(&liste_, &QListWidget::itemActivated, [this] {
            if (Agissante())
                source_.Ouvrir(liste_.currentRow() - 1); // the first row goes up
        });
        QObject::connect(&liste_, &QListWidget::currentRowChanged, [this](int rangée) {
            if (Agissante())
                source_.Surligner(rangée - 1);
        });
    }

    void Synchroniser() override
    {
        const QSignalBlocker silence{liste_};
        QStringList textes{QStringLiteral("..  (%1)").arg(EnQString(source_.Path()))};
        for (const auto& nom : source_.SousDossiers())
            textes.push_back(EnQString(nom));
        if (textes != montrés_) { // rows made anew would take a double click its first half away
            montrés_ = textes;
            liste_.clear();
            liste_.addItems(textes);
        }
        liste_.setCurrentRow(source_.ListIndex + 1);
        Vue::Synchroniser();
    }

private:
    DirListBox& source_;
    QListWidget& liste_;
    QStringList montrés_;
};

} // namespace

std::unique_ptr<Vue> Créer(Hôte& hôte, ComboBox& combo, QWidget* parent)
{
    return std::make_unique<VueCombo>(hôte, combo, parent);
}

std::unique_ptr<Vue> Créer(Hôte& hôte, ListBox& liste, QWidget* parent)
{
    return std::make_unique<VueListe>(hôte, liste, parent);
}

std::unique_ptr<Vue> Créer(Hôte& hôte, DriveListBox& lecteurs, QWidget* parent)
{
    return std::make_unique<VueLecteurs>(hôte, lecteurs, parent);
}

std::unique_ptr<Vue> Créer(Hôte& hôte, DirListBox& dossiers, QWidget* parent)
{
    return std::make_unique<VueDossiers>(hôte, dossiers, parent);
}

} // namespace tirelune
