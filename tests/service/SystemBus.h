#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include "ChildProcess.h"

/// A private bus with the rules of the system bus: names and method calls are denied unless further rules
/// allow them. For one test; ends with it.
class SystemBus
{
public:
    /// Writes the rules that are added to those of the system bus. They apply from start(), or from the next
    /// call of the bus's method ReloadConfig. @param rules a complete configuration file
    /// @return whether they were written.
    bool setRules(const QString& rules);

    /// Starts the bus and waits until it listens. @return false if it does not start within a minute.
    bool start();

    QString address() const;

private:
    QTemporaryDir m_directory;
    ChildProcess m_daemon;
};
