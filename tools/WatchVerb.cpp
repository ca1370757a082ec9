#include "WatchVerb.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include <csignal>

#include <optional>

#include "CommonOptions.h"
#include "Console.h"
#include "OutputOptions.h"
#include "ProcessSignal.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"
#include "WaitingReason.h"
#include "WatchReport.h"

namespace {

const int pollMilliseconds = 20;

/// Tracks the state of the service and prints its changes.
class Watch
{
public:
    Watch(const QString& bus, bool isJson)
        : m_units("DeviceManager", "DependencyConfiguration", "UnitManager/Dependency", "DeviceManager",
                  "DefaultUnitConfiguration", "UnitManager/DefaultUnit", true, true),
          m_reason(bus),
          m_report(bus, isJson)
    {}

    /// Makes one step and prints changes. @return false if the output cannot be written
    bool advance()
    {
        const bool isReady = m_units.checkInitialized();
        if (!isReady)
            reportWaiting();
        else if (!m_wasReady)
            reportReady();
        m_wasReady = isReady;
        if (isReady && m_units.hasUnitManagerConfigurationChanged())
            reportAdoption();
        return Console::flush();
    }

private:
    void reportWaiting()
    {
        if (const auto reason = m_reason.poll())
            m_report.waiting(*reason);
    }

    void reportReady()
    {
        // Reading may be over before its reason is known.
        m_report.waiting("reading");
        m_report.ready();
        m_reason.reset();
    }

    void reportAdoption()
    {
        const auto units = m_units.getUnitManager();
        const QStringList types = m_units ? units->getListofUnitTypes() : QStringList();
        int unitCount = 0;
        for (const QString& type : types)
            unitCount += units->getListofUnits(type).size();
        m_report.adopted(types.size(), unitCount);
    }

    UnitManagerWrapper m_units;
    WaitingReason m_reason;
    WatchReport m_report;
    bool m_wasReady = false;
};

} // namespace

WatchVerb::WatchVerb()
    : Verb({"watch",
            "Follows the running configuration service until it is interrupted.",
            {},
            "Prints a line when something happens: 'waiting' with the reason when there is no\n"
            "configuration yet or a changed one is being read, 'ready' when that is done, and\n"
            "'adopted' with the numbers of unit types and units for every configuration that\n"
            "is loaded. Without service it waits for one. SIGINT and SIGTERM end it with exit\n"
            "code 0.\n\n"
            "Example:\n"
            "  unitmanager watch --bus system"})
{}

void WatchVerb::addOptions(QCommandLineParser& parser) const
{
    CommonOptions::addBus(parser);
    OutputOptions::addJson(parser,
                           "time (UTC), event; reason when waiting; unitTypes, units and differences when "
                           "adopted (see diff; null for the first configuration)");
}

Result<ExitCode> WatchVerb::run(const QCommandLineParser& options, const QStringList& /*arguments*/)
{
    const auto bus = CommonOptions::bus(options);
    if (!bus)
        return bus.error();
    qputenv("DEVICE_BUS", bus->toLocal8Bit());

    const ProcessSignal termination({SIGTERM, SIGINT});
    QObject::connect(&termination, &ProcessSignal::received, &QCoreApplication::quit);
    Watch watch(*bus, OutputOptions::isJson(options));
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&watch] {
        if (!watch.advance())
            QCoreApplication::quit();
    });
    timer.start(pollMilliseconds);
    QCoreApplication::exec();
    return Succeeded;
}
