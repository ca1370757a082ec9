#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include "ChildProcess.h"

/// A bus of the test's own with the rules of the usual system bus: no name and no method call are allowed,
/// unless further rules do. For one test; ends with it.
class SystemBus
{
public:
    /// Writes the rules that are added to those of the system bus. They count from start() on, or from the
    /// next call of the bus's method ReloadConfig. @param rules a whole configuration file
    /// @return whether they were written.
    bool setRules(const QString& rules);

    /// Starts the bus and waits until it listens. @return false when it does not come up in a minute.
    bool start();

    QString address() const;

private:
    QTemporaryDir m_directory;
    ChildProcess m_daemon;
};
