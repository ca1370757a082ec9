#include "BusWorld.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMutexLocker>

#include "DeviceBusEnvironment.h"
#include "Documents.h"

namespace {

const QString serviceName = QStringLiteral("org.measuringdevice.DeviceManager");

/// A configuration source: an object of the service, and the document's name for it.
struct Source
{
    const char* path;
    const char* name;
};
constexpr Source unitsSource{"/UnitManagerConfiguration", "UnitManager/UnitType"};
constexpr Source defaultUnitsSource{"/DefaultUnitConfiguration", "UnitManager/DefaultUnit"};
constexpr Source dependenciesSource{"/DependencyConfiguration", "UnitManager/Dependency"};

/// The only instance of its type; destroyed before the application object.
template <typename World>
std::unique_ptr<World>& theOne()
{
    static std::unique_ptr<World> world;
    return world;
}

template <typename World>
World* makeOnce()
{
    std::unique_ptr<World>& world = theOne<World>();
    if (!world) {
        world = std::make_unique<World>();
        qAddPostRoutine([] { theOne<World>().reset(); });
    }
    return world.get();
}

QDBusMessage createCall(const Source& source, const char* method)
{
    return QDBusMessage::createMethodCall(
        serviceName, source.path, QStringLiteral("org.measuringdevice.ConfigurationFileHandler"), method);
}

QDBusMessage createConfigurationCall(const Source& source)
{
    return createCall(source, "getConfiguration") << source.name << QString() << QString();
}

} // namespace

namespace BusWorld {

Shipped* Shipped::use()
{
    Shipped* const world = makeOnce<Shipped>();
    if (!world->start())
        return nullptr;
    useDeviceBus(world->m_bus.address());
    return world;
}

bool Shipped::start()
{
    static const bool isRunning =
        m_bus.start() && m_service.serve(QStringLiteral(UNITMANAGER_CONFIG_DIR), m_bus.address());
    return isRunning;
}

Changing* Changing::use()
{
    Changing* const world = makeOnce<Changing>();
    if (!world->start())
        return nullptr;
    useDeviceBus(world->m_bus.address());
    return world;
}

bool Changing::start()
{
    if (!m_service && m_bus.start()) {
        m_unit = Documents::hectoPascal();
        m_service = std::make_unique<FakeBusService>(
            m_bus.address(), serviceName, [this](const QDBusMessage& call) { return answer(call); });
    }
    return m_service && m_service->isRunning();
}

QDBusMessage Changing::answer(const QDBusMessage& call)
{
    if (call.path() == unitsSource.path)
        return call.createReply(Documents::shippedUnits());
    if (call.path() == dependenciesSource.path)
        return call.createReply(Documents::shippedDependencies());
    const QMutexLocker locker(&m_mutex);
    return call.createReply(
        QString(Documents::shippedDefaultUnits()).replace(Documents::hectoPascal(), m_unit));
}

void Changing::change(const QString& unit)
{
    {
        const QMutexLocker locker(&m_mutex);
        m_unit = unit;
    }
    m_service->sendSignal(defaultUnitsSource.path, QStringLiteral("configurationChanged"),
                          {defaultUnitsSource.name});
}

QDBusMessage callForUnits()
{
    return createConfigurationCall(unitsSource);
}

QDBusMessage callForDefaultUnits()
{
    return createConfigurationCall(defaultUnitsSource);
}

QDBusMessage callForDependencies()
{
    return createCall(dependenciesSource, "getConfigurationDependency")
           << dependenciesSource.name << QString();
}

} // namespace BusWorld
