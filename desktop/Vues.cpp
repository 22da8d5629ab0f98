#include "desktop/Vues.h"

#include "desktop/Apparence.h"
#include "desktop/Composants.h"
#include "desktop/Conversions.h"
#include "desktop/Fenetre.h"
#include "desktop/VueToile.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <cassert>

namespace tirelune {

Vue::Vue(Fenêtre& fenêtre, Elément& élément_, QWidget* widget_) : élément(élément_), widget(widget_), fenêtre_(fenêtre)
{
    if (widget == nullptr)
        return;
    widget->setObjectName(EnQString(élément.Nom));
    widget->setAccessibleName(EnQString(élément.Nom));
}

Vue::~Vue() = default;

bool Vue::Agissante() const
{
    return !fenêtre_.Fermée();
}

int Vue::Pixels(int twips) const
{
    return EnPixels(twips, fenêtre_.Echelle());
}

int Vue::Twips(int pixels) const
{
    return EnTwips(pixels, fenêtre_.Echelle());
}

void Vue::ColorerFond(const QColor& usuelle)
{
    auto palette = widget->palette();
    const auto fond = EnQColor(élément.BackColor, usuelle);
    const auto encre = EnQColor(élément.ForeColor, Teinte::Encre);
    if (palette.color(QPalette::Active, QPalette::Base) == fond &&
        palette.color(QPalette::Active, QPalette::Text) == encre)
        return;
    palette.setColor(QPalette::Base, fond);
    palette.setColor(QPalette::Text, encre);
    widget->setPalette(palette);
}

QSize Vue::TailleLibre()
{
    const auto* label = dynamic_cast<const Label*>(&élément);
    const bool auto_ = label != nullptr && label->AutoSize;
    const auto naturelle = widget->sizeHint();
    QSize taille{élément.Width, élément.Height};
    // What was written back is not a size that the rules have given.
    if (auto_ || taille.width() == 0 || taille.width() == donnée_.width())
        taille.setWidth(Twips(naturelle.width()));
    if (auto_ || taille.height() == 0 || taille.height() == donnée_.height())
        taille.setHeight(Twips(naturelle.height()));
    if (taille.width() != élément.Width)
        donnée_.setWidth(taille.width());
    if (taille.height() != élément.Height)
        donnée_.setHeight(taille.height());
    élément.Width.Noter(taille.width());
    élément.Height.Noter(taille.height());
    return {Pixels(taille.width()), Pixels(taille.height())};
}

QRect Vue::PlaceLibre()
{
    const QPoint dedans{Pixels(élément.Left), Pixels(élément.Top)};
    return {libre->geometry().topLeft() + dedans, TailleLibre()};
}

void Vue::Synchroniser()
{
    const double agrandissement = échelle ? échelle() : fenêtre_.Echelle();
    const auto police = PolicePour(élément.Police, élément.FontSize, élément.Gras, agrandissement);
    if (widget->font() != police)
        widget->setFont(police);
    if (const auto bulle = EnQString(élément.ToolTipText()).trimmed(); bulle != widget->toolTip()) {
        widget->setToolTip(bulle);
        widget->setAccessibleDescription(bulle);
    }
    if (widget->testAttribute(Qt::WA_ForceDisabled) == élément.Enabled)
        widget->setEnabled(élément.Enabled);
    if (libre != nullptr)
        widget->setGeometry(PlaceLibre());
    if (auto* toile = dynamic_cast<VueToile*>(widget->parentWidget()); toile != nullptr && échelle)
        toile->Placer();
    if (widget->isHidden() == élément.Visible)
        widget->setVisible(élément.Visible);
}

namespace {

bool DansUnMultiligne(const TextBox& boîte)
{
    return boîte.MultiLine;
}

// ---- Captions, images, frames, buttons ---------------------------------------------------------------------------

class VueEtiquette : public Vue {
public:
    VueEtiquette(Fenêtre& fenêtre, Label& label, QWidget* parent)
        : Vue(fenêtre, label, new Etiquette{parent}), label_(label), étiquette_(static_cast<Etiquette&>(*widget))
    {
        étiquette_.centrée = label.Centré;
        if (!label.Click)
            return;
        étiquette_.RendreCliquable();
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
        const auto pointeur = label_.MousePointer == Pointeur::Sablier ? Qt::WaitCursor
                              : label_.Click                           ? Qt::PointingHandCursor
                                                                       : Qt::ArrowCursor;
        if (étiquette_.cursor().shape() != pointeur)
            étiquette_.setCursor(pointeur);
        Vue::Synchroniser();
        // Assistive tools read what it says, rather than its tip: a label has nothing else to be read by.
        if (étiquette_.accessibleDescription() != étiquette_.text())
            étiquette_.setAccessibleDescription(étiquette_.text());
    }

private:
    void Habiller()
    {
        étiquette_.enLigne = label_.AutoSize;
        if (const auto légende = EnAffichage(label_.Caption()); légende != étiquette_.text())
            étiquette_.setText(légende);
    }

    Label& label_;
    Etiquette& étiquette_;
};

class VueImage final : public Vue {
public:
    VueImage(Fenêtre& fenêtre, Image& image, QWidget* parent)
        : Vue(fenêtre, image, new ImageDessinée{parent}), image_(image), dessinée_(static_cast<ImageDessinée&>(*widget))
    {
        if (!image.Click)
            return;
        dessinée_.RendreCliquable();
        dessinée_.setCursor(Qt::PointingHandCursor);
        dessinée_.clic = [this] {
            if (Agissante())
                image_.Cliquer();
        };
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
    VueCadre(Fenêtre& fenêtre, Frame& cadre, QWidget* parent)
        : Vue(fenêtre, cadre, new Panneau{parent}), cadre_(cadre), panneau_(static_cast<Panneau&>(*widget))
    {
        if (cadre.Click) {
            panneau_.setCursor(Qt::PointingHandCursor);
            panneau_.clic = [this] {
                if (Agissante())
                    cadre_.Cliquer();
            };
        }
        if (!cadre.MouseMove)
            return;
        panneau_.setCursor(Qt::OpenHandCursor);
        panneau_.début = [this](QPoint prise) {
            if (Agissante() && cadre_.Enabled)
                cadre_.MouseMove(Twips(prise.x()), Twips(prise.y()));
        };
        panneau_.dépôt = [this](QPoint lieu) {
            if (Agissante())
                Déposer(lieu);
        };
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
        const auto global = panneau_.mapToGlobal(lieu);
        for (auto* dessous : cadre_.EcranDe().Eléments()) {
            const auto* vue = fenêtre_.VueDe(*dessous);
            if (vue == nullptr || vue->widget == nullptr || dynamic_cast<RichTextBox*>(dessous) == nullptr ||
                !vue->widget->isVisible())
                continue;
            const auto dedans = vue->widget->mapFromGlobal(global);
            if (!vue->widget->rect().contains(dedans))
                continue;
            cadre_.DragDrop(dessous, Twips(dedans.x()), Twips(dedans.y()));
            return;
        }
        auto surEcran = fenêtre_.Plan()->mapFromGlobal(global);
        if (libre != nullptr)
            surEcran -= libre->geometry().topLeft();
        cadre_.DragDrop(nullptr, Twips(surEcran.x()), Twips(surEcran.y()));
    }

    Frame& cadre_;
    Panneau& panneau_;
};

class VueBouton final : public Vue {
public:
    VueBouton(Fenêtre& fenêtre, Button& bouton, QWidget* parent)
        : Vue(fenêtre, bouton, new Bouton{parent}), bouton_(bouton), peint_(static_cast<Bouton&>(*widget))
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
    VueCase(Fenêtre& fenêtre, CheckBox& case_, QWidget* parent)
        : Vue(fenêtre, case_, new QCheckBox{parent}), marque_(case_), cochable_(static_cast<QCheckBox&>(*widget))
    {
        cochable_.setAttribute(Qt::WA_InputMethodEnabled);
        QObject::connect(&cochable_, &QCheckBox::clicked, [this] {
            if (!Agissante())
                return;
            fenêtre_.Marquer(*this); // the element decides whether the mark stays
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

// ---- Text boxes --------------------------------------------------------------------------------------------------

class VueChamp final : public Vue {
public:
    VueChamp(Fenêtre& fenêtre, TextBox& boîte, QWidget* parent);

    bool Taper(const Touche& touche) override { return boîte_.Taper(touche); }
    void Synchroniser() override;

private:
    class Ligne final : public QLineEdit {
    public:
        Ligne(VueChamp& vue, QWidget* parent) : QLineEdit(parent), vue_(vue) {}
        [[nodiscard]] QSize sizeHint() const override
        {
            const auto naturelle = QLineEdit::sizeHint();
            const auto maximum = vue_.boîte_.MaxLength();
            static constexpr std::size_t Court = 14;
            const int largeur = maximum > 0 && maximum <= Court
                                    ? fontMetrics().horizontalAdvance(u'M') * (static_cast<int>(maximum) + 2)
                                    : naturelle.width();
            return {largeur, naturelle.height() + font().pixelSize() / 3};
        }

    protected:
        void mouseReleaseEvent(QMouseEvent* événement) override
        {
            QLineEdit::mouseReleaseEvent(événement);
            if (événement->button() == Qt::LeftButton && !hasSelectedText() && vue_.Agissante() && !double_)
                vue_.boîte_.Cliquer(static_cast<std::size_t>(cursorPosition()));
            double_ = false;
        }
        void mouseDoubleClickEvent(QMouseEvent* événement) override
        {
            double_ = true;
            const auto position = cursorPositionAt(événement->position().toPoint());
            QLineEdit::mouseDoubleClickEvent(événement);
            if (vue_.Agissante())
                vue_.boîte_.DoubleCliquer(static_cast<std::size_t>(position));
        }

    private:
        VueChamp& vue_;
        bool double_ = false;
    };

    void Modifier(const QString& texte);
    void NoterSélection();

    TextBox& boîte_;
    QLineEdit& ligne_;
    int curseurAvant_ = 0;
};

VueChamp::VueChamp(Fenêtre& fenêtre, TextBox& boîte, QWidget* parent)
    : Vue(fenêtre, boîte, new Ligne{*this, parent}), boîte_(boîte), ligne_(static_cast<QLineEdit&>(*widget))
{
    ligne_.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    ligne_.setDragEnabled(false);
    ligne_.setAcceptDrops(false);
    if (boîte.PasswordChar != 0) {
        ligne_.setEchoMode(QLineEdit::Password);
    }
    if (boîte.Centré)
        ligne_.setAlignment(Qt::AlignCenter);
    QObject::connect(&ligne_, &QLineEdit::textEdited, [this](const QString& texte) { Modifier(texte); });
    QObject::connect(&ligne_, &QLineEdit::selectionChanged, [this] { NoterSélection(); });
    QObject::connect(&ligne_, &QLineEdit::cursorPositionChanged, [this](int avant, int) {
        curseurAvant_ = avant;
        NoterSélection();
    });
}

void VueChamp::Modifier(const QString& texte)
{
    if (!Agissante())
        return;
    const int curseur = curseurAvant_;
    NoterSélection(); // first: handlers may choose another
    if (boîte_.Saisir(DepuisQString(texte)))
        return;
    const QSignalBlocker silence{ligne_};
    ligne_.setText(EnQString(boîte_.Text()));
    ligne_.setCursorPosition(curseur);
    NoterSélection();
}

void VueChamp::NoterSélection()
{
    if (!Agissante() || sale)
        return; // what the program has just chosen is still on its way to the widget
    const bool choisie = ligne_.hasSelectedText();
    boîte_.SelStart.Noter(static_cast<std::size_t>(choisie ? ligne_.selectionStart() : ligne_.cursorPosition()));
    boîte_.SelLength.Noter(static_cast<std::size_t>(choisie ? ligne_.selectionLength() : 0));
}

void VueChamp::Synchroniser()
{
    ColorerFond(Teinte::Panneau);
    const QSignalBlocker silence{ligne_};
    ligne_.setReadOnly(boîte_.Locked);
    ligne_.setMaxLength(boîte_.MaxLength > 0 ? static_cast<int>(boîte_.MaxLength()) : 32767);
    if (const auto texte = EnQString(boîte_.Text()); texte != ligne_.text())
        ligne_.setText(texte);
    const int début = std::min(static_cast<int>(boîte_.SelStart()), static_cast<int>(boîte_.Text().size()));
    const int longueur = std::min(static_cast<int>(boîte_.SelLength()), static_cast<int>(boîte_.Text().size()) - début);
    const int montrée = ligne_.hasSelectedText() ? ligne_.selectionLength() : 0;
    const int départ = montrée > 0 ? ligne_.selectionStart() : ligne_.cursorPosition();
    if (longueur != montrée || début != départ)
        longueur > 0 ? ligne_.setSelection(début, longueur) : ligne_.setCursorPosition(début);
    Vue::Synchroniser();
}

// A text box of several lines. Its line ends count two positions in the element and one in the widget.
class VueTexteSimple final : public Vue {
public:
    VueTexteSimple(Fenêtre& fenêtre, TextBox& boîte, QWidget* parent)
        : Vue(fenêtre, boîte, new Zone{*this, parent}), boîte_(boîte), zone_(static_cast<QPlainTextEdit&>(*widget))
    {
        zone_.setTabChangesFocus(true);
        zone_.setUndoRedoEnabled(false);
        QObject::connect(&zone_, &QPlainTextEdit::textChanged, [this] { Modifier(); });
        QObject::connect(&zone_, &QPlainTextEdit::cursorPositionChanged, [this] { NoterSélection(); });
        QObject::connect(&zone_, &QPlainTextEdit::selectionChanged, [this] { NoterSélection(); });
    }

    bool Taper(const Touche& touche) override { return boîte_.Taper(touche); }

    void Synchroniser() override
    {
        ColorerFond(Teinte::Panneau);
        const QSignalBlocker silence{zone_};
        zone_.setReadOnly(boîte_.Locked);
        zone_.setTextInteractionFlags(boîte_.Locked ? Qt::TextInteractionFlags{Qt::TextSelectableByMouse}
                                                    : Qt::TextEditorInteraction);
        if (const auto texte = Affiché(); texte != zone_.toPlainText())
            zone_.setPlainText(texte);
        auto curseur = zone_.textCursor();
        const int début = EnWidget(boîte_.SelStart);
        const int fin = EnWidget(boîte_.SelStart + boîte_.SelLength);
        if (curseur.selectionStart() != début || curseur.selectionEnd() != fin) {
            curseur.setPosition(début);
            curseur.setPosition(fin, QTextCursor::KeepAnchor);
            zone_.setTextCursor(curseur);
        }
        Vue::Synchroniser();
    }

private:
    class Zone final : public QPlainTextEdit {
    public:
        Zone(VueTexteSimple& vue, QWidget* parent) : QPlainTextEdit(parent), vue_(vue) {}
        [[nodiscard]] QSize sizeHint() const override
        {
            static constexpr int LignesUsuelles = 4;
            static constexpr int LignesMaximales = 9;
            const int bord = 2 * (frameWidth() + static_cast<int>(document()->documentMargin())) + 2;
            const int largeur = font().pixelSize() * 18;
            // A text to be read shows whole; one to be written starts with a few lines.
            const int lue = isReadOnly() ? fontMetrics()
                                               .boundingRect(QRect{0, 0, largeur - bord, 1}, Qt::TextWordWrap,
                                                             EnAffichage(vue_.boîte_.Text()))
                                               .height()
                                         : 0;
            const int ligne = fontMetrics().lineSpacing();
            return {largeur, std::clamp(lue, ligne * LignesUsuelles, ligne * LignesMaximales) + bord};
        }
        [[nodiscard]] QSize minimumSizeHint() const override
        {
            return {font().pixelSize() * 6, fontMetrics().lineSpacing() * 2};
        }

    protected:
        void mouseReleaseEvent(QMouseEvent* événement) override
        {
            QPlainTextEdit::mouseReleaseEvent(événement);
            if (événement->button() == Qt::LeftButton && !textCursor().hasSelection() && vue_.Agissante())
                vue_.boîte_.Cliquer(vue_.DepuisWidget(textCursor().position()));
        }
        void mouseDoubleClickEvent(QMouseEvent* événement) override
        {
            const int position = cursorForPosition(événement->position().toPoint()).position();
            QPlainTextEdit::mouseDoubleClickEvent(événement);
            if (vue_.Agissante())
                vue_.boîte_.DoubleCliquer(vue_.DepuisWidget(position));
        }

    private:
        VueTexteSimple& vue_;
    };

    [[nodiscard]] QString Affiché() const
    {
        auto texte = EnQString(boîte_.Text());
        return texte.remove(u'\r');
    }
    [[nodiscard]] int EnWidget(std::size_t position) const
    {
        const auto avant = VueTexte{boîte_.Text()}.substr(0, position);
        return static_cast<int>(avant.size() - static_cast<std::size_t>(std::count(avant.begin(), avant.end(), u'\r')));
    }
    [[nodiscard]] std::size_t DepuisWidget(int position) const { return Compter(boîte_.Text(), position); }
    // The place in the text of a position that counts line ends once.
    static std::size_t Compter(VueTexte texte, int position)
    {
        std::size_t i = 0;
        for (; position > 0 && i < texte.size(); ++i)
            position -= texte[i] == u'\r' ? 0 : 1;
        return i;
    }
    void Modifier()
    {
        if (!Agissante())
            return;
        auto texte = zone_.toPlainText();
        texte.replace(u'\n', QStringLiteral("\r\n"));
        const auto début = boîte_.SelStart();
        const auto longueur = boîte_.SelLength();
        const auto curseur = zone_.textCursor();
        const VueTexte avant =
            VueTexte{reinterpret_cast<const char16_t*>(texte.utf16()), static_cast<std::size_t>(texte.size())};
        boîte_.SelStart.Noter(Compter(avant, curseur.position()));
        boîte_.SelLength.Noter(0);
        if (boîte_.Saisir(DepuisQString(texte)))
            return;
        boîte_.SelStart.Noter(début);
        boîte_.SelLength.Noter(longueur);
        fenêtre_.Marquer(*this); // shows again what the element holds
    }
    void NoterSélection()
    {
        if (!Agissante() || sale)
            return;
        const auto curseur = zone_.textCursor();
        boîte_.SelStart.Noter(DepuisWidget(curseur.selectionStart()));
        boîte_.SelLength.Noter(DepuisWidget(curseur.selectionEnd()) - boîte_.SelStart);
    }

    TextBox& boîte_;
    QPlainTextEdit& zone_;
};

// ---- Lists -------------------------------------------------------------------------------------------------------

// The toolkit gives the value of a drop-down list as its accessible name: its own name goes into its description.
void Nommer(QComboBox& liste)
{
    const auto description = (liste.objectName() + u' ' + liste.toolTip()).trimmed();
    if (liste.accessibleDescription() != description)
        liste.setAccessibleDescription(description);
}

class VueCombo final : public Vue {
public:
    VueCombo(Fenêtre& fenêtre, ComboBox& combo, QWidget* parent)
        : Vue(fenêtre, combo, new QComboBox{parent}), combo_(combo), liste_(static_cast<QComboBox&>(*widget))
    {
        liste_.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        liste_.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        liste_.setMinimumContentsLength(combo.Saisie ? 5 : 14);
        liste_.setMaxVisibleItems(16);
        liste_.setAttribute(Qt::WA_InputMethodEnabled);
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
            fenêtre_.Marquer(*this);
            combo_.Choisir(index);
        });
    }

    bool Taper(const Touche& touche) override { return combo_.Taper(touche); }

    void Synchroniser() override
    {
        ColorerFond(Teinte::Panneau);
        const QSignalBlocker silence{liste_};
        if (montrés_ != combo_.Eléments()) {
            montrés_ = combo_.Eléments();
            QStringList textes;
            textes.reserve(static_cast<qsizetype>(montrés_.size()));
            for (const auto& texte : montrés_)
                textes.push_back(EnAffichage(texte));
            liste_.clear();
            liste_.addItems(textes);
        }
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
        Nommer(liste_);
    }

private:
    ComboBox& combo_;
    QComboBox& liste_;
    std::vector<Texte> montrés_;
};

class VueListe final : public Vue {
public:
    VueListe(Fenêtre& fenêtre, ListBox& éléments, QWidget* parent)
        : Vue(fenêtre, éléments, new Rangées{*this, parent}),
          source_(éléments),
          liste_(static_cast<QListWidget&>(*widget))
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
    VueLecteurs(Fenêtre& fenêtre, DriveListBox& lecteurs, QWidget* parent)
        : Vue(fenêtre, lecteurs, new QComboBox{parent}), source_(lecteurs), liste_(static_cast<QComboBox&>(*widget))
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
        Nommer(liste_);
    }

private:
    DriveListBox& source_;
    QComboBox& liste_;
};

class VueDossiers final : public Vue {
public:
    VueDossiers(Fenêtre& fenêtre, DirListBox& dossiers, QWidget* parent)
        : Vue(fenêtre, dossiers, new QListWidget{parent}), source_(dossiers), liste_(static_cast<QListWidget&>(*widget))
    {
        QObject::connect(&liste_, &QListWidget::itemActivated, [this] {
            if (Agissante())
                source_.Ouvrir(liste_.currentRow() - 1); // the first row goes up
        });
    }

    void Synchroniser() override
    {
        const QSignalBlocker silence{liste_};
        liste_.clear();
        liste_.addItem(QStringLiteral("..  (%1)").arg(EnQString(source_.Path())));
        for (const auto& nom : source_.SousDossiers())
            liste_.addItem(EnQString(nom));
        liste_.setCurrentRow(0);
        Vue::Synchroniser();
    }

private:
    DirListBox& source_;
    QListWidget& liste_;
};

// ---- Scroll bars and shapes --------------------------------------------------------------------------------------

class VueDéfilement final : public Vue {
public:
    VueDéfilement(Fenêtre& fenêtre, ScrollBar& barre, QWidget* parent)
        : Vue(fenêtre, barre, new QScrollBar{Qt::Vertical, parent}),
          barre_(barre),
          défilement_(static_cast<QScrollBar&>(*widget))
    {
        QObject::connect(&défilement_, &QScrollBar::valueChanged, [this](int valeur) {
            if (Agissante())
                barre_.Déplacer(valeur);
        });
    }

    void Synchroniser() override
    {
        const QSignalBlocker silence{défilement_};
        défilement_.setRange(barre_.Min, barre_.Max);
        défilement_.setValue(barre_.Value);
        Vue::Synchroniser();
    }

private:
    ScrollBar& barre_;
    QScrollBar& défilement_;
};

// A filled rectangle, or a line that stands among other elements.
class VueForme final : public Vue {
public:
    VueForme(Fenêtre& fenêtre, Elément& forme, QWidget* parent) : Vue(fenêtre, forme, new Surface{parent})
    {
        widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    void Synchroniser() override
    {
        auto& surface = static_cast<Surface&>(*widget);
        if (const auto* rectangle = dynamic_cast<const Rectangle*>(&élément)) {
            surface.fond = EnQColor(rectangle->FillColor, {});
            surface.bord = EnQColor(rectangle->BorderColor, {});
        } else if (const auto* trait = dynamic_cast<const Line*>(&élément)) {
            surface.fond = EnQColor(trait->BorderColor, Teinte::Encre);
            surface.setFixedHeight(std::max(1, trait->BorderWidth()));
        }
        surface.update();
        Vue::Synchroniser();
    }

private:
    class Surface final : public QWidget {
    public:
        using QWidget::QWidget;
        QColor fond;
        QColor bord;

    protected:
        void paintEvent(QPaintEvent* /*événement*/) override
        {
            QPainter peintre{this};
            if (fond.isValid())
                peintre.fillRect(rect(), fond);
            if (!bord.isValid())
                return;
            peintre.setPen(bord);
            peintre.drawRect(rect().adjusted(0, 0, -1, -1));
        }
    };
};

} // namespace

std::unique_ptr<Vue> CréerVue(Fenêtre& fenêtre, Elément& élément, QWidget* parent)
{
    if (auto* un = dynamic_cast<Label*>(&élément))
        return std::make_unique<VueEtiquette>(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<Button*>(&élément))
        return std::make_unique<VueBouton>(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<Frame*>(&élément))
        return std::make_unique<VueCadre>(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<TextBox*>(&élément)) {
        if (DansUnMultiligne(*un))
            return std::make_unique<VueTexteSimple>(fenêtre, *un, parent);
        return std::make_unique<VueChamp>(fenêtre, *un, parent);
    }
    if (auto* un = dynamic_cast<RichTextBox*>(&élément))
        return CréerVueTexteRiche(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<ComboBox*>(&élément))
        return std::make_unique<VueCombo>(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<ListBox*>(&élément))
        return std::make_unique<VueListe>(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<CheckBox*>(&élément))
        return std::make_unique<VueCase>(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<Image*>(&élément))
        return std::make_unique<VueImage>(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<DriveListBox*>(&élément))
        return std::make_unique<VueLecteurs>(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<DirListBox*>(&élément))
        return std::make_unique<VueDossiers>(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<ScrollBar*>(&élément))
        return std::make_unique<VueDéfilement>(fenêtre, *un, parent);
    if (auto* un = dynamic_cast<Toolbar*>(&élément))
        return CréerVueBarre(fenêtre, *un, parent);
    return std::make_unique<VueForme>(fenêtre, élément, parent);
}

} // namespace tirelune
