// Loaded by the sessions into the program under test: tells of its widgets what the toolkit's bridge to assistive
// tools keeps to itself. A widget is named by the number that ends its path on that bridge.
#include <QAccessible>
#include <QApplication>
#include <QDBusConnection>
#include <QGenericPlugin>
#include <QWidget>

class Noms final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "fr.tirelune.Noms")

public:
    Noms()
    {
        auto bus = QDBusConnection::sessionBus();
        bus.registerObject(QStringLiteral("/noms"), this, QDBusConnection::ExportAllSlots);
        bus.registerService(QStringLiteral("fr.tirelune.p%1").arg(QCoreApplication::applicationPid()));
    }

public slots:
    // Empty for what is no widget: an item of a list, for example.
    QString nom(uint numero) const
    {
        const auto* objet = objetDe(numero);
        return objet != nullptr ? objet->objectName() : QString{};
    }
    // Of what has the keyboard; empty when nothing has.
    QString focus() const
    {
        const auto* widget = QApplication::focusWidget();
        return widget != nullptr ? widget->objectName() : QString{};
    }
    // The pointer says that a click does something.
    bool montreLaMain(uint numero) const
    {
        const auto* widget = qobject_cast<QWidget*>(objetDe(numero));
        return widget != nullptr && widget->isEnabled() && widget->testAttribute(Qt::WA_SetCursor) &&
               widget->cursor().shape() == Qt::PointingHandCursor;
    }

private:
    static QObject* objetDe(uint numero)
    {
        const auto* accessible = QAccessible::accessibleInterface(numero);
        return accessible != nullptr ? accessible->object() : nullptr;
    }
};

class GreffonNoms final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Noms.json")

public:
    QObject* create(const QString& /*nom*/, const QString& /*reglages*/) override { return new Noms; }
};

#include "Noms.moc"
