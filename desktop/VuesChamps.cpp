// Boxes of plain text, of one line or several.
#include "desktop/Apparence.h"
#include "desktop/Conversions.h"
#include "desktop/Vues.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace tirelune {

namespace {

class VueChamp final : public Vue {
public:
    VueChamp(Hôte& hôte, TextBox& boîte, QWidget* parent);

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
            return {largeur, naturelle.height()};
        }

    protected:
        void mousePressEvent(QMouseEvent* événement) override
        {
            pressée_ = événement->button() == Qt::LeftButton;
            lieu_ = événement->position().toPoint();
            visée_ = cursorPositionAt(lieu_);
            if (!vue_.boîte_.Locked)
                QLineEdit::mousePressEvent(événement);
        }
        void mouseMoveEvent(QMouseEvent* événement) override
        {
            if (!vue_.boîte_.Locked)
                QLineEdit::mouseMoveEvent(événement);
        }
        void mouseReleaseEvent(QMouseEvent* événement) override
        {
            const bool clic = événement->button() == Qt::LeftButton && std::exchange(pressée_, false);
            const bool verrouillée = vue_.boîte_.Locked;
            const bool collage = événement->button() == Qt::MiddleButton;
            if (!verrouillée && !(collage && vue_.boîte_.KeyPress)) // pasting is for its handler to allow, as keys are
                QLineEdit::mouseReleaseEvent(événement);
            const bool dedans = rect().contains(événement->position().toPoint());
            // A hand that slips selects a letter without meaning it: where a click does something, it is one.
            const bool glissé =
                (événement->position().toPoint() - lieu_).manhattanLength() < QApplication::startDragDistance();
            const bool choisi = hasSelectedText() && !(glissé && vue_.boîte_.Click);
            if (!clic || !vue_.Agissante() || (verrouillée ? !dedans : choisi))
                return;
            // A locked text is clicked like a label: where the button went down, wherever the pointer slips to.
            vue_.boîte_.Cliquer(static_cast<std::size_t>(verrouillée ? visée_ : cursorPosition()));
        }
        void mouseDoubleClickEvent(QMouseEvent* événement) override
        {
            pressée_ = false; // the release to come ends this, and clicks no more
            const auto position = cursorPositionAt(événement->position().toPoint());
            if (!vue_.boîte_.Locked)
                QLineEdit::mouseDoubleClickEvent(événement);
            if (vue_.Agissante())
                vue_.boîte_.DoubleCliquer(static_cast<std::size_t>(position));
        }
        void contextMenuEvent(QContextMenuEvent* événement) override
        {
            if (!vue_.boîte_.KeyPress)
                QLineEdit::contextMenuEvent(événement);
        }

    private:
        VueChamp& vue_;
        QPoint lieu_; // where the button went down
        int visée_ = 0;
        bool pressée_ = false;
    };

    void Modifier(const QString& texte);
    void NoterSélection();

    TextBox& boîte_;
    QLineEdit& ligne_;
    int curseurAvant_ = 0;
};

VueChamp::VueChamp(Hôte& hôte, TextBox& boîte, QWidget* parent)
    : Vue(hôte, boîte, new Ligne{*this, parent}), boîte_(boîte), ligne_(static_cast<QLineEdit&>(*widget))
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
    ligne_.setSizePolicy(QSizePolicy::Expanding, boîte_.Locked ? QSizePolicy::Preferred : QSizePolicy::Fixed);
    ligne_.setMaximumHeight(boîte_.Locked ? ligne_.font().pixelSize() * 4 : QWIDGETSIZE_MAX);
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
    VueTexteSimple(Hôte& hôte, TextBox& boîte, QWidget* parent)
        : Vue(hôte, boîte, new Zone{*this, parent}), boîte_(boîte), zone_(static_cast<QPlainTextEdit&>(*widget))
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
        static_cast<Zone&>(zone_).SeMesurer();
        zone_.setTextInteractionFlags(boîte_.Locked ? Qt::NoTextInteraction : Qt::TextEditorInteraction);
        if (const auto texte = Affiché(); texte != zone_.toPlainText()) {
            zone_.setPlainText(texte);
            zone_.updateGeometry();
        }
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
            const int ligne = fontMetrics().lineSpacing();
            return {largeur, isReadOnly() ? std::min(heightForWidth(largeur), ligne * LignesMaximales + bord)
                                          : ligne * LignesUsuelles + bord};
        }
        // A text to be read shows whole; one to be written takes what room there is.
        void SeMesurer()
        {
            auto politique = sizePolicy();
            politique.setVerticalPolicy(isReadOnly() ? QSizePolicy::Preferred : QSizePolicy::Expanding);
            politique.setHeightForWidth(isReadOnly());
            setSizePolicy(politique);
        }
        [[nodiscard]] int heightForWidth(int largeur) const override
        {
            if (!isReadOnly())
                return -1;
            const int bord = 2 * (frameWidth() + static_cast<int>(document()->documentMargin())) + 2;
            return bord +
                   fontMetrics()
                       .boundingRect(QRect{0, 0, largeur - bord, 1}, Qt::TextWordWrap, EnAffichage(vue_.boîte_.Text()))
                       .height();
        }
        [[nodiscard]] QSize minimumSizeHint() const override
        {
            return {font().pixelSize() * 6, fontMetrics().lineSpacing() * 2};
        }

    protected:
        void mousePressEvent(QMouseEvent* événement) override
        {
            pressée_ = événement->button() == Qt::LeftButton;
            visée_ = cursorForPosition(événement->position().toPoint()).position();
            if (!vue_.boîte_.Locked)
                QPlainTextEdit::mousePressEvent(événement);
        }
        void mouseReleaseEvent(QMouseEvent* événement) override
        {
            const bool clic = événement->button() == Qt::LeftButton && std::exchange(pressée_, false);
            const bool verrouillée = vue_.boîte_.Locked;
            if (!verrouillée)
                QPlainTextEdit::mouseReleaseEvent(événement);
            const bool dedans = viewport()->rect().contains(événement->position().toPoint());
            if (!clic || !vue_.Agissante() || (verrouillée ? !dedans : textCursor().hasSelection()))
                return;
            // A locked text is clicked like a label: where the button went down, wherever the pointer slips to.
            vue_.boîte_.Cliquer(vue_.DepuisWidget(verrouillée ? visée_ : textCursor().position()));
        }
        void mouseDoubleClickEvent(QMouseEvent* événement) override
        {
            pressée_ = false; // the release to come ends this, and clicks no more
            const int position = cursorForPosition(événement->position().toPoint()).position();
            if (!vue_.boîte_.Locked)
                QPlainTextEdit::mouseDoubleClickEvent(événement);
            if (vue_.Agissante())
                vue_.boîte_.DoubleCliquer(vue_.DepuisWidget(position));
        }

    private:
        VueTexteSimple& vue_;
        int visée_ = 0; // where the button went down
        bool pressée_ = false;
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
        hôte_.Marquer(*this); // shows again what the element holds
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

} // namespace

std::unique_ptr<Vue> Créer(Hôte& hôte, TextBox& boîte, QWidget* parent)
{
    if (boîte.ALire)
        return CréerTexteALire(hôte, boîte, parent);
    if (boîte.MultiLine)
        return std::make_unique<VueTexteSimple>(hôte, boîte, parent);
    return std::make_unique<VueChamp>(hôte, boîte, parent);
}

} // namespace tirelune
