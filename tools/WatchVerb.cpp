#include "WatchVerb.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include <csignal>

#include <optional>

#include "CommonOptions.h"
#include "Console.h"
#include "ProcessSignal.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

namespace {

const int pollMilliseconds = 20;

/// Tracks the state of the service and prints its changes.
class Watch
{
public:
    Watch()
        : m_units("DeviceManager", "DependencyConfiguration", "UnitManager/Dependency", "DeviceManager",
                  "DefaultUnitConfiguration", "UnitManager/DefaultUnit", true, true)
    {}

    /// Makes one step and prints changes. @return false if the output cannot be written
    bool advance()
    {
        const bool isReady = m_units.checkInitialized();
        if (m_wasReady != isReady)
            Console::printLine(isReady ? "ready" : "waiting");
        m_wasReady = isReady;
        if (isReady && m_units.hasUnitManagerConfigurationChanged())
            Console::printLine(adoptionText());
        return Console::flush();
    }

private:
    QString adoptionText() const
    {
        if (!m_units)
            return "adopted; no usable units";
        const QStringList unitTypes = m_units.getUnitManager()->getListofUnitTypes();
        int unitCount = 0;
        for (const QString& unitType : unitTypes)
            unitCount += m_units.getUnitManager()->getListofUnits(unitType).size();
        return QString("adopted; unit types: %1, units: %2").arg(unitTypes.size()).arg(unitCount);
    }

    UnitManagerWrapper m_units;
    /// Empty until the first step.
    std::optional<bool> m_wasReady;
};

} // namespace

WatchVerb::WatchVerb()
    : Verb({"watch",
            "Follows the running configuration service until it is interrupted.",
            {},
            "Prints a line when something happens: 'waiting' when there is no configuration\n"
            "yet or a changed one is being read, 'ready' when that is done, and 'adopted'\n"
            "with the numbers of unit types and units for every configuration that is loaded.\n"
            "Without service it waits for one. SIGINT and SIGTERM end it with exit code 0.\n\n"
            "Example:\n"
            "  unitmanager watch --bus system"})
{}

void WatchVerb::addOptions(QCommandLineParser& parser) const
{
    CommonOptions::addBus(parser);
}

Result<ExitCode> WatchVerb::run(const QCommandLineParser& options, const QStringList& /*arguments*/)
{
    const auto bus = CommonOptions::bus(options);
    if (!bus)
        return bus.error();
    qputenv("DEVICE_BUS", bus->toLocal8Bit());

    const ProcessSignal termination({SIGTERM, SIGINT});
    QObject::connect(&termination, &ProcessSignal::received, &QCoreApplication::quit);
    Watch watch;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&watch] {
        if (!watch.advance())
            QCoreApplication::quit();
    });
    timer.start(pollMilliseconds);
    QCoreApplication::exec();
    return Succeeded;
}
