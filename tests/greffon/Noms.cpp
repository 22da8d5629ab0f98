// Loaded by the sessions into the program under test: tells the object names of widgets, which the toolkit's bridge
// to assistive tools keeps to itself. A widget is named by the number that ends its path on that bridge.
#include <QAccessible>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QGenericPlugin>

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
        const auto* accessible = QAccessible::accessibleInterface(numero);
        const auto* objet = accessible != nullptr ? accessible->object() : nullptr;
        return objet != nullptr ? objet->objectName() : QString{};
    }
};

class GreffonNoms final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Noms.json")

public:
    QObject* create(const QString& /*nom*/, const QString& /*reglages*/) override { return new Noms; }
};

#include "Noms.moc"
