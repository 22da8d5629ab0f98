#include "desktop/Accessibilite.h"

#include "core/Ecran.h"
#include "desktop/Annonces.h"
#include "desktop/Bandeau.h"
#include "desktop/Composants.h"
#include "desktop/Contenu.h"
#include "desktop/Conversions.h"
#include "desktop/JeuDeVues.h"
#include "desktop/NomsEntendus.h"
#include "desktop/VueTexteRiche.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTimer>

#include <algorithm>

namespace tirelune {

namespace {

// The view that stands for this very widget.
Vue* VueDuWidget(const QWidget& widget)
{
    const auto* hôte = dynamic_cast<const Hôte*>(widget.window());
    auto* vue = hôte != nullptr && !hôte->Fermée() ? hôte->VueDuWidget(&widget) : nullptr;
    return vue != nullptr && vue->widget == &widget ? vue : nullptr;
}

void Cliquer(QWidget& widget, QPoint lieu)
{
    const auto* devant = QApplication::activeModalWidget();
    if (!widget.isVisible() || !widget.isEnabled() || (devant != nullptr && devant != widget.window()))
        return;
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto boutons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent événement{type,           QPointF{lieu}, widget.mapToGlobal(QPointF{lieu}),
                              Qt::LeftButton, boutons,       Qt::NoModifier};
        QCoreApplication::sendEvent(&widget, &événement);
    }
}

// A click of the mouse, which goes the way of all clicks; nothing happens where the mouse can't click either. Who
// asks for it isn't kept waiting until a box or a screen that it opens is closed.
void Presser(QWidget& widget, QPoint lieu)
{
    QTimer::singleShot(0, &widget, [&widget, lieu] { Cliquer(widget, lieu); });
}

// ---- Windows ---------------------------------------------------------------------------------------------------

// What is told of its coming to the front is told of this role alone.
class AccessibleFenêtre final : public QAccessibleWidget {
public:
    explicit AccessibleFenêtre(QWidget& fenêtre) : QAccessibleWidget(&fenêtre, QAccessible::Window) {}
};

// What comes up in it is read out.
class AccessibleAnnonce final : public QAccessibleWidget {
public:
    explicit AccessibleAnnonce(Annonce& annonce) : QAccessibleWidget(&annonce, QAccessible::Notification) {}
};

// The title of the page; what stands in it is found below it.
class AccessibleBandeau final : public QAccessibleWidget {
public:
    explicit AccessibleBandeau(Bandeau& bandeau) : QAccessibleWidget(&bandeau, QAccessible::Heading) {}
};

// Without what is covered.
class AccessibleContenu final : public QAccessibleWidget {
public:
    explicit AccessibleContenu(Contenu& contenu) : QAccessibleWidget(&contenu) {}

    [[nodiscard]] int childCount() const override { return static_cast<int>(Découverts().size()); }
    [[nodiscard]] QAccessibleInterface* child(int rang) const override { return Découverts().value(rang); }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* enfant) const override
    {
        const auto découverts = Découverts();
        const auto place = std::find(découverts.begin(), découverts.end(), enfant);
        return place == découverts.end() ? -1 : static_cast<int>(place - découverts.begin());
    }

private:
    [[nodiscard]] QList<QAccessibleInterface*> Découverts() const
    {
        const auto& plan = static_cast<const Contenu*>(widget())->Plan();
        QList<QAccessibleInterface*> découverts;
        for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
            if (auto* enfant = QAccessibleWidget::child(i); enfant->object() != &plan || plan.isEnabled())
                découverts.push_back(enfant);
        }
        return découverts;
    }
};

// ---- Captions, pictures, frames, boxes -------------------------------------------------------------------------

class AccessibleElément : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QString text(QAccessible::Text sorte) const override
    {
        const auto* un = Un();
        return sorte == QAccessible::Name && un != nullptr ? NomEntendu(*un) : QAccessibleWidget::text(sorte);
    }

    [[nodiscard]] QAccessible::Role role() const override
    {
        const auto* un = Un();
        if (dynamic_cast<const Image*>(un) != nullptr)
            return EstCliquable() ? QAccessible::Button : QAccessible::Graphic;
        if (const auto* label = dynamic_cast<const Label*>(un); label != nullptr)
            return EstCliquable()     ? QAccessible::Button
                   : EstTitre(*label) ? QAccessible::Heading
                                      : QAccessible::StaticText;
        if (dynamic_cast<const Frame*>(un) != nullptr)
            return QAccessible::Grouping;
        if (dynamic_cast<const Toolbar*>(un) != nullptr)
            return QAccessible::ToolBar;
        if (dynamic_cast<const TextBox*>(un) != nullptr)
            return EstCliquable() ? QAccessible::Button : QAccessible::StaticText;
        return QAccessibleWidget::role();
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        auto état = QAccessibleWidget::state();
        if (const auto* label = dynamic_cast<const Label*>(Un()); label != nullptr && !EstCliquable())
            état.invisible = état.invisible || label->Caption().empty(); // it says nothing
        if (const auto* image = dynamic_cast<const Image*>(Un()); image != nullptr && !EstCliquable())
            état.invisible = état.invisible || NomEntendu(*image).isEmpty();
        return état;
    }

    [[nodiscard]] QStringList actionNames() const final { return Actions() + QAccessibleWidget::actionNames(); }
    void doAction(const QString& action) final
    {
        if (Actions().contains(action))
            Agir();
        else
            QAccessibleWidget::doAction(action);
    }

protected:
    // The names of a click, and the click itself.
    [[nodiscard]] virtual QStringList Actions() const
    {
        return EstCliquable() ? QStringList{pressAction()} : QStringList{};
    }
    virtual void Agir() { Presser(*widget(), widget()->rect().center()); }

    [[nodiscard]] Elément* Un() const
    {
        auto* vue = widget() != nullptr ? VueDuWidget(*widget()) : nullptr;
        return vue != nullptr ? &vue->élément : nullptr;
    }

    [[nodiscard]] virtual bool EstCliquable() const
    {
        const auto* un = Un();
        if (un == nullptr || !un->Enabled)
            return false;
        if (const auto* légendé = dynamic_cast<const Légendé*>(un); légendé != nullptr)
            return bool{légendé->Click};
        const auto* champ = dynamic_cast<const TextBox*>(un);
        return champ != nullptr && champ->Locked && champ->Click;
    }

private:
    // Bold words that stand by themselves; not a count on its plate.
    static bool EstTitre(const Label& label)
    {
        const auto légende = EnQString(label.Caption());
        const bool lettres = std::any_of(légende.begin(), légende.end(), [](QChar c) { return c.isLetter(); });
        return label.Gras && lettres && !label.Bordure && label.BackColor().EstAutomatique();
    }
};

class AccessibleCase final : public AccessibleElément {
public:
    explicit AccessibleCase(QCheckBox& case_) : AccessibleElément(&case_, QAccessible::CheckBox) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::CheckBox; }
    [[nodiscard]] QAccessible::State state() const override
    {
        auto état = AccessibleElément::state();
        état.checkable = true;
        état.checked = static_cast<const QCheckBox*>(widget())->isChecked();
        return état;
    }

protected:
    [[nodiscard]] QStringList Actions() const override { return {toggleAction(), pressAction()}; }
    void Agir() override
    {
        static constexpr int DansLaCase = 8; // pixels
        Presser(*widget(), {DansLaCase, widget()->height() / 2});
    }
};

// The bridge has no value for such a list: the toolkit gives it as the name, and here it follows the label.
class AccessibleChoix final : public AccessibleElément {
public:
    explicit AccessibleChoix(QComboBox& choix) : AccessibleElément(&choix, QAccessible::ComboBox) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ComboBox; }
    [[nodiscard]] QString text(QAccessible::Text sorte) const override
    {
        auto choisi =
            Choix().isEditable() || Choix().currentIndex() >= 0 ? Choix().currentText() : Choix().placeholderText();
        if (sorte == QAccessible::Value)
            return choisi;
        const auto nom = AccessibleElément::text(sorte);
        const auto valeur = choisi.simplified();
        return sorte != QAccessible::Name || valeur.isEmpty() || valeur == nom ? nom
                                                                               : nom + QStringLiteral(" : ") + valeur;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        auto état = AccessibleElément::state();
        état.expandable = true;
        état.hasPopup = true;
        état.expanded = Choix().view()->isVisible();
        état.collapsed = !état.expanded;
        état.editable = Choix().isEditable();
        return état;
    }
    [[nodiscard]] int childCount() const override { return Choix().isEditable() ? 2 : 1; }
    [[nodiscard]] QAccessibleInterface* child(int rang) const override
    {
        if (rang == 0)
            return QAccessible::queryAccessibleInterface(Choix().view());
        return rang == 1 && Choix().isEditable() ? QAccessible::queryAccessibleInterface(Choix().lineEdit()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* enfant) const override
    {
        if (enfant == nullptr)
            return -1;
        return enfant->object() == Choix().view() ? 0 : enfant->object() == Choix().lineEdit() ? 1 : -1;
    }

protected:
    [[nodiscard]] QStringList Actions() const override { return {showMenuAction(), pressAction()}; }
    void Agir() override
    {
        static constexpr int DansLaFlèche = 6; // pixels
        Presser(*widget(), {widget()->width() - DansLaFlèche, widget()->height() / 2});
    }

private:
    [[nodiscard]] QComboBox& Choix() const { return *static_cast<QComboBox*>(widget()); }
};

// ---- Texts -----------------------------------------------------------------------------------------------------

// A text of several lines, in either of the toolkit's widgets for it.
template <class Zone>
class AccessibleTexte : public AccessibleElément,
                        public QAccessibleTextInterface,
                        public QAccessibleEditableTextInterface {
public:
    explicit AccessibleTexte(Zone& zone) : AccessibleElément(&zone, QAccessible::EditableText) {}

    [[nodiscard]] QString text(QAccessible::Text sorte) const override
    {
        return sorte == QAccessible::Value ? text(0, characterCount()) : AccessibleElément::text(sorte);
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::EditableText; }
    [[nodiscard]] QAccessible::State state() const override
    {
        auto état = AccessibleElément::state();
        état.readOnly = LaZone().isReadOnly();
        état.editable = !état.readOnly;
        état.multiLine = true;
        état.selectableText = true;
        return état;
    }
    // Its scroll bars are nobody's business.
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int /*rang*/) const override { return nullptr; }
    void* interface_cast(QAccessible::InterfaceType sorte) override
    {
        if (sorte == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (sorte == QAccessible::EditableTextInterface && !LaZone().isReadOnly())
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return AccessibleElément::interface_cast(sorte);
    }
    void selection(int rang, int* début, int* fin) const override
    {
        const auto curseur = LaZone().textCursor();
        const bool choisie = rang == 0 && curseur.hasSelection();
        *début = choisie ? curseur.selectionStart() : 0;
        *fin = choisie ? curseur.selectionEnd() : 0;
    }
    [[nodiscard]] int selectionCount() const override { return LaZone().textCursor().hasSelection() ? 1 : 0; }
    void addSelection(int début, int fin) override { setSelection(0, début, fin); }
    void removeSelection(int /*rang*/) override { setCursorPosition(cursorPosition()); }
    void setSelection(int /*rang*/, int début, int fin) override { LaZone().setTextCursor(Curseur(début, fin)); }
    [[nodiscard]] int cursorPosition() const override { return LaZone().textCursor().position(); }
    void setCursorPosition(int position) override { LaZone().setTextCursor(Curseur(position, position)); }

    [[nodiscard]] QString text(int début, int fin) const override
    {
        return Curseur(début, fin).selectedText().replace(QChar::ParagraphSeparator, u'\n');
    }
    [[nodiscard]] int characterCount() const override { return LaZone().document()->characterCount() - 1; }
    [[nodiscard]] QRect characterRect(int rang) const override
    {
        const auto cadre = CadreDe(rang);
        return {LaZone().viewport()->mapToGlobal(cadre.topLeft()), cadre.size()};
    }
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override
    {
        return LaZone().cursorForPosition(LaZone().viewport()->mapFromGlobal(point)).position();
    }
    void scrollToSubstring(int début, int /*fin*/) override { setCursorPosition(début); }
    QString attributes(int rang, int* début, int* fin) const override
    {
        *début = std::min(rang, 0);
        *fin = characterCount();
        return {};
    }

    void deleteText(int début, int fin) override { Curseur(début, fin).removeSelectedText(); }
    void insertText(int rang, const QString& texte) override { Curseur(rang, rang).insertText(texte); }
    void replaceText(int début, int fin, const QString& texte) override { Curseur(début, fin).insertText(texte); }

protected:
    // On the character at the caret.
    void Agir() override
    {
        LaZone().ensureCursorVisible();
        Presser(*LaZone().viewport(), CadreDe(cursorPosition()).center());
    }
    [[nodiscard]] Zone& LaZone() const { return *static_cast<Zone*>(widget()); }
    [[nodiscard]] bool EstCliquable() const override
    {
        const auto* riche = dynamic_cast<const RichTextBox*>(Un());
        return riche != nullptr ? riche->Enabled && riche->Click : AccessibleElément::EstCliquable();
    }

private:
    [[nodiscard]] QTextCursor Curseur(int début, int fin) const
    {
        QTextCursor curseur{LaZone().document()};
        curseur.setPosition(std::clamp(début, 0, characterCount()));
        curseur.setPosition(fin < 0 ? characterCount() : std::min(fin, characterCount()), QTextCursor::KeepAnchor);
        return curseur;
    }
    // In the viewport.
    [[nodiscard]] QRect CadreDe(int rang) const
    {
        const auto ici = Curseur(rang, rang);
        const auto cadre = LaZone().cursorRect(ici);
        const auto suivant = ici.atBlockEnd() ? cadre : LaZone().cursorRect(Curseur(rang + 1, rang + 1));
        const bool ligne = suivant.top() == cadre.top() && suivant.left() > cadre.left();
        return {cadre.left(), cadre.top(), ligne ? suivant.left() - cadre.left() : std::max(1, cadre.height() / 3),
                cadre.height()};
    }
};

// As assistive tools write formats: IAccessible2's names.
QString EnAttributs(const Format& format)
{
    auto attributs =
        QStringLiteral("font-family:\"%1\";font-size:%2pt;").arg(EnQString(format.Police)).arg(format.Taille);
    if (!format.Teinte.EstAutomatique())
        attributs += QStringLiteral("color:rgb(%1,%2,%3);")
                         .arg(format.Teinte.Rouge())
                         .arg(format.Teinte.Vert())
                         .arg(format.Teinte.Bleu());
    attributs += format.Gras ? QStringLiteral("font-weight:bold;") : QStringLiteral("font-weight:normal;");
    if (format.Italique)
        attributs += QStringLiteral("font-style:italic;");
    if (format.Souligné)
        attributs += QStringLiteral("text-underline-style:solid;text-underline-type:single;");
    if (format.Barré)
        attributs += QStringLiteral("text-line-through-style:solid;text-line-through-type:single;");
    return attributs;
}

// The formats are the element's: the widget's own text has none.
class AccessibleTexteRiche final : public AccessibleTexte<QTextEdit> {
public:
    using AccessibleTexte::AccessibleTexte;

    [[nodiscard]] int cursorPosition() const override
    {
        const auto* vue = LaVue();
        return vue != nullptr && LaZone().isReadOnly() ? vue->Visé() : AccessibleTexte::cursorPosition();
    }
    void setCursorPosition(int position) override
    {
        auto* vue = LaVue();
        if (vue != nullptr && LaZone().isReadOnly())
            vue->Viser(position);
        else
            AccessibleTexte::setCursorPosition(position);
    }
    QString attributes(int rang, int* début, int* fin) const override
    {
        static constexpr int AuCurseur = -2; // as IAccessible2 asks
        const auto* vue = LaVue();
        const auto* boîte = vue != nullptr ? dynamic_cast<const RichTextBox*>(&vue->élément) : nullptr;
        const int voulu = std::min(rang == AuCurseur ? cursorPosition() : rang, characterCount() - 1);
        *début = *fin = -1;
        if (boîte == nullptr || voulu < 0)
            return {};
        const auto bloc = LaZone().document()->findBlock(voulu);
        const auto position = vue->DepuisWidget(voulu);
        const auto origine = vue->DepuisWidget(bloc.position());
        QString attributs;
        // A paragraph's end is written as the letters before it.
        boîte->TextRTF().PourChaqueTranche(origine, origine + static_cast<std::size_t>(bloc.length()),
                                           [&](const Tranche& tranche) {
                                               if (position < tranche.Début || position >= tranche.Fin)
                                                   return;
                                               *début = bloc.position() + static_cast<int>(tranche.Début - origine);
                                               *fin = bloc.position() + static_cast<int>(tranche.Fin - origine);
                                               attributs = EnAttributs(*tranche.Style);
                                           });
        return attributs;
    }

private:
    [[nodiscard]] VueTexteRiche* LaVue() const { return dynamic_cast<VueTexteRiche*>(VueDuWidget(LaZone())); }
};

// ---- Who speaks for what ---------------------------------------------------------------------------------------

QAccessibleInterface* Fabriquer(const QString& /*classe*/, QObject* objet)
{
    auto* widget = qobject_cast<QWidget*>(objet);
    if (widget == nullptr || dynamic_cast<const Hôte*>(widget->window()) == nullptr)
        return nullptr;
    if (widget->isWindow())
        return new AccessibleFenêtre{*widget};
    if (auto* annonce = dynamic_cast<Annonce*>(widget))
        return new AccessibleAnnonce{*annonce};
    if (auto* bandeau = dynamic_cast<Bandeau*>(widget))
        return new AccessibleBandeau{*bandeau};
    if (auto* contenu = dynamic_cast<Contenu*>(widget))
        return new AccessibleContenu{*contenu};
    if (auto* case_ = qobject_cast<QCheckBox*>(widget))
        return new AccessibleCase{*case_};
    if (auto* choix = qobject_cast<QComboBox*>(widget))
        return new AccessibleChoix{*choix};
    if (auto* riche = qobject_cast<QTextEdit*>(widget))
        return new AccessibleTexteRiche{*riche};
    if (auto* simple = qobject_cast<QPlainTextEdit*>(widget))
        return new AccessibleTexte<QPlainTextEdit>{*simple};
    if (dynamic_cast<const Etiquette*>(widget) != nullptr || dynamic_cast<const Panneau*>(widget) != nullptr)
        return new AccessibleElément{widget};
    const auto* vue = VueDuWidget(*widget);
    const auto* champ = vue != nullptr ? dynamic_cast<const TextBox*>(&vue->élément) : nullptr;
    if (vue != nullptr &&
        (dynamic_cast<const Toolbar*>(&vue->élément) != nullptr || (champ != nullptr && champ->Locked && champ->Click)))
        return new AccessibleElément{widget};
    return nullptr;
}

class Guet final : public QAccessible::ActivationObserver {
public:
    bool actif = QAccessible::isActive();

private:
    void accessibilityActiveChanged(bool désormais) override { actif = désormais; }
};

Guet& LeGuet()
{
    static Guet guet;
    return guet;
}

} // namespace

void InstallerAccessibilité()
{
    QAccessible::installFactory(Fabriquer);
    QAccessible::installActivationObserver(&LeGuet());
}

bool QuelquUnEcoute()
{
    return LeGuet().actif;
}

void NommerChamps(const JeuDeVues& vues)
{
    for (const auto& vue : vues) {
        auto* widget = vue->widget;
        auto* choix = qobject_cast<QComboBox*>(widget);
        auto* parlant = choix != nullptr ? choix->lineEdit() : widget;
        if (qobject_cast<QLineEdit*>(parlant) == nullptr && dynamic_cast<const ScrollBar*>(&vue->élément) == nullptr &&
            qobject_cast<QAbstractItemView*>(parlant) == nullptr)
            continue;
        if (const auto nom = NomEntendu(vue->élément); parlant->accessibleName() != nom)
            parlant->setAccessibleName(nom);
    }
}

} // namespace tirelune
