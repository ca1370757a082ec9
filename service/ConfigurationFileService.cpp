#include "ConfigurationFileService.h"

#include <QtCore/QDir>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusReply>

#include <algorithm>
#include <iterator>

#include "ConfigurationObject.h"
#include "DeviceManagerDefinitions.h"
#include "DocumentRules.h"
#include "DocumentWatcher.h"
#include "PropertyManagerConst.h"
#include "configurationfilehandleradaptor.h"

namespace {

/// A document: its object and name on the bus, and its file in the directory.
struct Place
{
    QString object;
    QString name;
    QString file;
    ConfigurationObject::Method method;
    ConfigurationDocument::Rule rule;
};

QList<Place> places()
{
    using Method = ConfigurationObject::Method;
    return {{DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration(),
             QStringLiteral("UnitManager/UnitType"), QStringLiteral("units.json"), Method::GetConfiguration,
             DocumentRules::isUnits},
            {QStringLiteral("DefaultUnitConfiguration"), QStringLiteral("UnitManager/DefaultUnit"),
             QStringLiteral("default-units.json"), Method::GetConfiguration, DocumentRules::isDefaultUnits},
            {QStringLiteral("DependencyConfiguration"), QStringLiteral("UnitManager/Dependency"),
             QStringLiteral("dependencies.json"), Method::GetConfigurationDependency,
             DocumentRules::isDependencies}};
}

} // namespace

ConfigurationFileService::ConfigurationFileService(const QString& directory, QObject* parent)
    : QObject(parent)
{
    const QDir absolute(QDir(directory).absolutePath());
    QStringList files;
    for (const Place& place : places()) {
        const ConfigurationDocument document(place.name, absolute.filePath(place.file), place.rule);
        auto* const object = new ConfigurationObject(document, place.method, this);
        object->setObjectName(place.object);
        new ConfigurationFileHandlerAdaptor(object);
        m_objects.append(object);
        files.append(document.path());
    }
    // Watch before reading, so that no change is missed in between.
    m_watcher = std::make_unique<DocumentWatcher>(files, DocumentWatcher::Debounce());
    connect(m_watcher.get(), &DocumentWatcher::touched, this, &ConfigurationFileService::update);
    update();
}

ConfigurationFileService::~ConfigurationFileService() = default;

QString ConfigurationFileService::name()
{
    return PropertyManagerConst::getDBusPrefix() + '.' + DeviceManagerDefinitions::getModuleName();
}

QString ConfigurationFileService::start(QDBusConnection connection)
{
    connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                       QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                       SIGNAL(busLost()));
    for (ConfigurationObject* object : m_objects) {
        const QString path = '/' + object->objectName();
        if (!connection.registerObject(path, object))
            return QStringLiteral("cannot put the object %1 on the bus").arg(path);
    }
    // Take the name last: whoever sees it finds every object registered.
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        connection.interface()->registerService(name());
    if (!reply.isValid())
        return QStringLiteral("cannot take the name %1: %2").arg(name(), reply.error().message());
    if (reply.value() != QDBusConnectionInterface::ServiceRegistered)
        return QStringLiteral("cannot take the name %1: another program has it").arg(name());
    return {};
}

void ConfigurationFileService::update()
{
    QList<ConfigurationObject*> changed;
    std::copy_if(m_objects.cbegin(), m_objects.cend(), std::back_inserter(changed),
                 [](ConfigurationObject* object) { return object->update(); });
    // Announce last: whoever receives a signal finds all documents up to date.
    for (ConfigurationObject* object : qAsConst(changed))
        object->announce();
}
