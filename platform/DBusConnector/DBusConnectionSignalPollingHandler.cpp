#include "DBusConnectionSignalPollingHandler.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtDBus/QDBusMessage>

#include "DBusConnection.h"

DBusConnectionSignalPollingHandler::DBusConnectionSignalPollingHandler(const QString& service,
                                                                       const QString& object,
                                                                       const QString& signalName,
                                                                       int /*slotSignature*/)
    : m_serviceName(DBusConnection::getServiceName(service)),
      m_objectPath(DBusConnection::getObjectPath(object)),
      m_signalName(signalName),
      m_connection(DBusConnection::getQDBusConnection())
{
    subscribe();
}

bool DBusConnectionSignalPollingHandler::isSignalOccured()
{
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    if (!m_subscribed || !m_connection.isConnected()) {
        m_connection = DBusConnection::getQDBusConnection();
        subscribe();
    }
    return m_occurred;
}

QVariant DBusConnectionSignalPollingHandler::getSignalParameter() const
{
    return m_parameter;
}

void DBusConnectionSignalPollingHandler::resetLastSignal()
{
    m_occurred = false;
    m_parameter.clear();
}

void DBusConnectionSignalPollingHandler::recordSignal(const QDBusMessage& message)
{
    m_occurred = true;
    m_parameter = message.arguments().value(0);
}

void DBusConnectionSignalPollingHandler::subscribe()
{
    m_subscribed = m_connection.connect(m_serviceName, m_objectPath, QString(), m_signalName, this,
                                        SLOT(recordSignal(QDBusMessage)));
}
