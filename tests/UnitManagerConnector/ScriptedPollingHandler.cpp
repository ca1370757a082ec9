#include "ScriptedPollingHandler.h"

#include "DBusConnectionSignalPollingHandler.h"

namespace {

QStringList& calls()
{
    static QStringList list;
    return list;
}

} // namespace

QMap<QString, QVariant>& ScriptedPollingHandler::occurredSignals()
{
    static QMap<QString, QVariant> occurred;
    return occurred;
}

QStringList ScriptedPollingHandler::takeCalls()
{
    QStringList taken;
    taken.swap(calls());
    return taken;
}

// These replace the functions in the shared library of the device's bus.

DBusConnectionSignalPollingHandler::DBusConnectionSignalPollingHandler(const QString& service,
                                                                       const QString& object,
                                                                       const QString& signalName,
                                                                       int slotSignature)
    : m_serviceName(service),
      m_objectPath(object),
      m_signalName(signalName),
      m_connection(QStringLiteral("none"))
{
    calls().append(QStringLiteral("create %1 %2 %3 %4").arg(service, object, signalName).arg(slotSignature));
    connect(this, &QObject::destroyed, [object] { calls().append(QStringLiteral("release ") + object); });
}

bool DBusConnectionSignalPollingHandler::isSignalOccured()
{
    calls().append(QStringLiteral("poll ") + m_objectPath);
    return ScriptedPollingHandler::occurredSignals().contains(m_objectPath);
}

QVariant DBusConnectionSignalPollingHandler::getSignalParameter() const
{
    return ScriptedPollingHandler::occurredSignals().value(m_objectPath);
}

void DBusConnectionSignalPollingHandler::resetLastSignal()
{
    calls().append(QStringLiteral("reset ") + m_objectPath);
    ScriptedPollingHandler::occurredSignals().remove(m_objectPath);
}

void DBusConnectionSignalPollingHandler::recordSignal(const QDBusMessage& /*message*/) {}
