#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "ChildProcess.h"

/// A running "unitmanager watch", which ends with this object.
class Watcher
{
public:
    explicit Watcher(const QStringList& options);

    void setVariable(const QString& name, const QString& value);
    void writeTo(const QString& file);
    bool start();

    /// Whether the tool prints exactly this text after its earlier output.
    bool prints(const QByteArray& text);
    /// The next line of the output, without line break; empty if none is printed in time.
    QByteArray nextLine();
    /// Whether the tool's standard error contains this text.
    bool complains(const QByteArray& text);
    /// The content of standard error so far.
    QByteArray errors();

    bool isRunning() const;
    qint64 processId() const;
    /// Sends a signal and waits for the end. @return the exit code; -1 if the program did not exit normally
    int end(int signal);
    int waitForEnd();

private:
    QByteArray news();

    const QStringList m_arguments;
    QProcessEnvironment m_environment;
    ChildProcess m_process;
    QByteArray m_output;
    QByteArray m_errors;
    int m_known = 0;
};
