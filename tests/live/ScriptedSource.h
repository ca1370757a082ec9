#pragma once

#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QStringList>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

#include <functional>

#include "World.h"

/// The signal that announces a change of a configuration, with any arguments.
QDBusMessage changeSignal(const SourceName& name, const QVariantList& arguments);

/// The reads that a service has received, oldest first. Any thread.
class ReadLog
{
public:
    void append(const QString& read);
    QStringList reads() const;

private:
    mutable QMutex m_mutex;
    QStringList m_reads;
};

/// One object of the service: answers each read according to its script. A call of "synchronize" is answered
/// immediately and not logged.
class ScriptedSource : public QDBusVirtualObject
{
public:
    /// Removes the module of a connection from the bus.
    using Death = std::function<void(const QDBusConnection& connection)>;

    ScriptedSource(const Source& source, ReadLog& log, const Death& death);

    const SourceName& name() const;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    /// Sends the held replies over a connection. Any thread.
    void release(QDBusConnection connection);

private:
    Answer nextAnswer();
    void answer(const Answer& answer, const QDBusMessage& call, QDBusConnection connection);

    const Source m_source;
    ReadLog& m_log;
    const Death m_death;
    int m_reads = 0;
    QMutex m_mutex;
    QList<QDBusMessage> m_held;
};
