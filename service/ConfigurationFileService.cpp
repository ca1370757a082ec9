#include "ConfigurationFileService.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusReply>

#include <chrono>
#include <malloc.h>

#include "ConfigurationObject.h"
#include "DeviceManagerDefinitions.h"
#include "DocumentLoader.h"
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
    DocumentKind kind;
};

QList<Place> places()
{
    using Method = ConfigurationObject::Method;
    return {{DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration(),
             QStringLiteral("UnitManager/UnitType"), QStringLiteral("units.json"), Method::GetConfiguration,
             DocumentKind::Units},
            {QStringLiteral("DefaultUnitConfiguration"), QStringLiteral("UnitManager/DefaultUnit"),
             QStringLiteral("default-units.json"), Method::GetConfiguration, DocumentKind::DefaultUnits},
            {QStringLiteral("DependencyConfiguration"), QStringLiteral("UnitManager/Dependency"),
             QStringLiteral("dependencies.json"), Method::GetConfigurationDependency,
             DocumentKind::Dependencies}};
}

/// The absolute paths of a file in several directories.
QStringList pathsOf(const QString& file, const QStringList& directories)
{
    QStringList paths;
    for (const QString& directory : directories)
        paths.append(QDir(QDir(directory).absolutePath()).filePath(file));
    return paths;
}

/// The signal that clients of org.freedesktop.DBus.Properties expect.
QDBusMessage propertiesChanged(const QString& path, const QVariantMap& changes)
{
    QDBusMessage message = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                      QStringLiteral("PropertiesChanged"));
    const QStringList invalidated;
    message << QStringLiteral("org.measuringdevice.ConfigurationFileHandler") << changes << invalidated;
    return message;
}

/// Returns unused memory to the system. Otherwise a process that has read one large document would keep the
/// memory of that moment for ever, because small blocks in use lie between the free ones.
void releaseUnusedMemory()
{
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

} // namespace

ConfigurationFileService::ConfigurationFileService(const QStringList& directories, int maximumSize,
                                                   const QDBusConnection& connection, QObject* parent)
    : QObject(parent), m_connection(connection)
{
    for (const Place& place : places()) {
        m_documents.append({place.name, place.kind, pathsOf(place.file, directories), maximumSize});
        auto* const object = new ConfigurationObject(place.name, place.method, this);
        object->setObjectName(place.object);
        new ConfigurationFileHandlerAdaptor(object);
        m_objects.append(object);
    }
}

ConfigurationFileService::~ConfigurationFileService()
{
    m_thread.quit();
    m_thread.wait();
}

QString ConfigurationFileService::name()
{
    return PropertyManagerConst::getDBusPrefix() + '.' + DeviceManagerDefinitions::getModuleName();
}

void ConfigurationFileService::start()
{
    m_connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                         QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                         SIGNAL(busLost()));
    for (ConfigurationObject* object : qAsConst(m_objects)) {
        const QString path = '/' + object->objectName();
        if (!m_connection.registerObject(path, object)) {
            Q_EMIT failed(QStringLiteral("cannot put the object %1 on the bus").arg(path));
            return;
        }
    }
    m_loader = new DocumentLoader(m_documents);
    m_loader->moveToThread(&m_thread);
    connect(&m_thread, &QThread::started, m_loader, &DocumentLoader::start);
    connect(&m_thread, &QThread::finished, m_loader, &QObject::deleteLater);
    const auto setState = [this](int index, const DocumentState& state) {
        m_objects[index]->setState(state);
    };
    // A connection of this type registers the type of the argument.
    connect(m_loader, &DocumentLoader::stateChanged, this, setState, Qt::QueuedConnection);
    connect(m_loader, &DocumentLoader::updated, this, &ConfigurationFileService::finishUpdate);
    m_thread.start();
}

void ConfigurationFileService::reload()
{
    QMetaObject::invokeMethod(m_loader, &DocumentLoader::update);
}

bool ConfigurationFileService::stop()
{
    m_thread.quit();
    return m_thread.wait(QDeadlineTimer(std::chrono::milliseconds(500)));
}

void ConfigurationFileService::finishUpdate()
{
    QVector<QVariantMap> changes;
    for (ConfigurationObject* object : qAsConst(m_objects))
        changes.append(object->takeChanges());
    // Nobody has seen the documents of the start yet, so they are not announced.
    if (m_isStarted)
        announce(changes);
    else
        takeName();
    releaseUnusedMemory();
}

/// Announces an update that is complete: whoever receives a signal finds all documents up to date.
///
/// @param changes for each object, the properties that have changed
void ConfigurationFileService::announce(const QVector<QVariantMap>& changes)
{
    for (int index = 0; index < changes.size(); ++index) {
        if (!changes[index].isEmpty())
            m_connection.send(propertiesChanged('/' + m_objects[index]->objectName(), changes[index]));
    }
    for (int index = 0; index < changes.size(); ++index) {
        if (changes[index].contains(QStringLiteral("checksum")))
            m_objects[index]->announce();
    }
}

/// Done last: whoever sees the name finds every object registered and every document read.
void ConfigurationFileService::takeName()
{
    m_isStarted = true;
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        m_connection.interface()->registerService(name());
    if (!reply.isValid())
        Q_EMIT failed(QStringLiteral("cannot take the name %1: %2").arg(name(), reply.error().message()));
    else if (reply.value() != QDBusConnectionInterface::ServiceRegistered)
        Q_EMIT failed(QStringLiteral("cannot take the name %1: another program has it").arg(name()));
    else
        Q_EMIT started();
}
