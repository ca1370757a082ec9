#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "ChildProcess.h"

/// The configuration-file service in a separate process, which ends with this object.
class ServiceProcess
{
public:
    /// The path of the program.
    static QString program();

    /// Does not start the program. Removes the bus and settings of Qt's messages from its environment.
    ServiceProcess();

    /// Starts the program and does not wait for anything.
    void launch(const QStringList& arguments);
    /// Starts the program. @return whether it reports within a minute that it is serving.
    bool start(const QStringList& arguments);
    /// Starts the program on a bus. @param bus value of the program's option
    /// @return as start()
    bool serve(const QString& directory, const QString& bus);
    /// Runs the program to its end. @return its exit code; -1 if it crashes or does not end.
    int run(const QStringList& arguments);
    /// Waits for the end of a started program. @return as run()
    int waitForEnd();

    /// Sets an environment variable of the program.
    void setVariable(const QString& name, const QString& value);

    /// Sends a signal such as SIGTERM to the process. @return whether that succeeded.
    bool send(int signal) const;

    /// Closes the pipe that receives the log; log() no longer changes.
    void closeLog();

    /// Everything printed to standard output so far.
    QString output();
    /// Everything printed to standard error so far.
    QString log();

private:
    ChildProcess m_process;
    QByteArray m_output;
    QByteArray m_log;
};
