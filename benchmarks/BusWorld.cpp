#include "BusWorld.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMutexLocker>

#include "DeviceBusEnvironment.h"
#include "Documents.h"

namespace {

const QString serviceName = QStringLiteral("org.measuringdevice.DeviceManager");
const QString unitsPath = QStringLiteral("/UnitManagerConfiguration");
const QString defaultUnitsPath = QStringLiteral("/DefaultUnitConfiguration");
const QString dependenciesPath = QStringLiteral("/DependencyConfiguration");
const QString defaultUnitsName = QStringLiteral("UnitManager/DefaultUnit");

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

QDBusMessage createCall(const QString& path, const QString& method, const QVariantList& arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        serviceName, path, QStringLiteral("org.measuringdevice.ConfigurationFileHandler"), method);
    call.setArguments(arguments);
    return call;
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
    if (call.path() == unitsPath)
        return call.createReply(Documents::shippedUnits());
    if (call.path() == dependenciesPath)
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
    m_service->sendSignal(defaultUnitsPath, QStringLiteral("configurationChanged"), {defaultUnitsName});
}

QDBusMessage callForUnits()
{
    return createCall(unitsPath, QStringLiteral("getConfiguration"),
                      {QStringLiteral("UnitManager/UnitType"), QString(), QString()});
}

QDBusMessage callForDefaultUnits()
{
    return createCall(defaultUnitsPath, QStringLiteral("getConfiguration"),
                      {defaultUnitsName, QString(), QString()});
}

QDBusMessage callForDependencies()
{
    return createCall(dependenciesPath, QStringLiteral("getConfigurationDependency"),
                      {QStringLiteral("UnitManager/Dependency"), QString()});
}

} // namespace BusWorld
