#include "Clients.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QTimer>

#include <cstdio>

#include "Documents.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "WaitLimit.h"

namespace {

const int pollInterval = 5;

void printAdoption(UnitManagerWrapper& units)
{
    if (!units.checkInitialized() || !units.hasUnitManagerConfigurationChanged() || !units)
        return;
    std::puts(units.getUnitManager()->getDefaultUnit(Documents::pressure()).toUtf8().constData());
    std::fflush(stdout);
}

} // namespace

namespace Clients {

std::unique_ptr<UnitManagerWrapper> makeWrapper(bool useAsynchronInterface)
{
    const QString module = QStringLiteral("DeviceManager");
    return std::make_unique<UnitManagerWrapper>(
        module, QStringLiteral("DependencyConfiguration"), QStringLiteral("UnitManager/Dependency"), module,
        QStringLiteral("DefaultUnitConfiguration"), QStringLiteral("UnitManager/DefaultUnit"),
        useAsynchronInterface, true);
}

Processes::Processes(int count)
{
    for (int number = 0; number < count; ++number) {
        m_clients.push_back(std::make_unique<Client>());
        m_clients.back()->process.start(QCoreApplication::applicationFilePath(),
                                        {QStringLiteral("--client")});
    }
}

bool Processes::waitFor(const QString& unit)
{
    const QDeadlineTimer deadline(waitLimit);
    for (const auto& client : m_clients) {
        while (client->adopted.isEmpty() || client->adopted.last() != unit) {
            if (!client->process.canReadLine() &&
                !client->process.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
                return false;
            while (client->process.canReadLine())
                client->adopted.append(QString::fromUtf8(client->process.readLine().trimmed()));
        }
    }
    return true;
}

int Processes::adoptedConfigurations() const
{
    int count = 0;
    for (const auto& client : m_clients)
        count += client->adopted.size();
    return count;
}

int runProcess()
{
    const std::unique_ptr<UnitManagerWrapper> units = makeWrapper(true);
    QTimer loop;
    QObject::connect(&loop, &QTimer::timeout, [&units] { printAdoption(*units); });
    loop.start(pollInterval);
    return QCoreApplication::exec();
}

} // namespace Clients
