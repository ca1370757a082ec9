#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "ChildProcess.h"

/// The program under test as a process of its own, which ends with the test.
class ServiceProcess
{
public:
    /// Not started. What the environment says about Qt's own messages stays with the test.
    ServiceProcess();

    /// Starts the program. @return whether it says, within a minute, that it serves.
    bool start(const QStringList& arguments);
    /// The same on a bus. @param bus as the program's option takes it
    bool serve(const QString& directory, const QString& bus);
    /// Starts the program and waits for its end. @return its exit code; -1 when it crashes or does not end.
    int run(const QStringList& arguments);
    /// Waits for the end of a program that was started. @return as run()
    int waitForEnd();

    /// Sets a variable of the environment in which the program is started.
    void setVariable(const QString& name, const QString& value);

    /// Sends the process a signal such as SIGTERM. @return whether that was possible.
    bool send(int signal) const;

    /// All that it has printed on standard output so far.
    QString output();
    /// All that it has printed on standard error so far.
    QString log();

private:
    ChildProcess m_process;
    QByteArray m_output;
    QByteArray m_log;
};
