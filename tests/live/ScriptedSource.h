#pragma once

#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

#include <functional>

#include "ReadLog.h"
#include "World.h"

/// The announcement of a change of a configuration, with any arguments.
QDBusMessage changeSignal(const SourceName& name, const QVariantList& arguments);

/// One object of the service: answers every call of a read by its script. A call of "synchronize" is answered
/// at once and not logged.
class ScriptedSource : public QDBusVirtualObject
{
public:
    /// Takes the module on a connection from the bus.
    using Death = std::function<void(const QDBusConnection& connection)>;

    ScriptedSource(const Source& source, ReadLog& log, const Death& death);

    const SourceName& name() const;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    /// Sends the replies held so far over a connection. Any thread.
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
