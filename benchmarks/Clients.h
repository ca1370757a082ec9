#pragma once

#include <QtCore/QString>

#include <memory>
#include <vector>

#include "ChildProcess.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

/// Client applications of the configuration-file service.
namespace Clients {

/// The wrapper of an application, with all three sources. Polls the service's signals.
std::unique_ptr<UnitManagerWrapper> makeWrapper(bool useAsynchronInterface);

/// Client processes on the bus of this process's environment. Each follows the configuration and reports
/// which default unit of pressure it has adopted.
class Processes
{
public:
    explicit Processes(int count);

    /// Waits until every process has adopted @p unit as default unit. @return false if one does not.
    bool waitFor(const QString& unit);
    /// The number of configurations adopted so far, summed over all processes.
    int adoptedConfigurations() const;

private:
    struct Client
    {
        ChildProcess process;
        QStringList adopted;
    };

    std::vector<std::unique_ptr<Client>> m_clients;
};

/// The main function of a client process; runs until it is terminated. @return the exit code
int runProcess();

} // namespace Clients
