#pragma once

#include <QtCore/QString>

#include <memory>
#include <vector>

#include "ChildProcess.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

/// Applications of the configuration-file service.
namespace Clients {

/// What an application holds: all three sources. Polls the service's signals.
std::unique_ptr<UnitManagerWrapper> makeWrapper(bool useAsynchronInterface);

/// Client processes on the bus of this process's environment. Each follows the configuration and tells which
/// default unit of pressure it has adopted.
class Processes
{
public:
    explicit Processes(int count);

    /// Waits until every process has adopted @p unit as default unit. @return false when one does not.
    bool waitFor(const QString& unit);
    /// The number of configurations that all processes together have adopted so far.
    int adoptedConfigurations() const;

private:
    struct Client
    {
        ChildProcess process;
        QStringList adopted;
    };

    std::vector<std::unique_ptr<Client>> m_clients;
};

/// What such a process does, until it is ended. @return the exit code
int runProcess();

} // namespace Clients
