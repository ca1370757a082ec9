#include "ConfigurationFileHandlerDBusConnector.h"
#include "ConfigurationStore.h"
#include "DBusConnection.h"
#include "DBusConnectionSignalPollingHandler.h"

ErrorContainer::ErrorContainer() = default;

ErrorContainer::ErrorContainer(const QString& reason) : m_reason(reason) {}

QString ErrorContainer::getReason() const
{
    return m_reason;
}

DBusReply::DBusReply() = default;

DBusReply::DBusReply(const QString& text) : m_value(text.isNull() ? QVariant() : QVariant(text)) {}

bool DBusReply::isError() const
{
    return !m_value.isValid();
}

QVariant DBusReply::getValue() const
{
    return m_value;
}

DBusPendingReply::DBusPendingReply(const DBusReply& reply) : m_reply(reply) {}

int DBusPendingReply::isFinished(ErrorContainer& error) const
{
    if (!m_isQueried) {
        m_isQueried = true;
        return 2;
    }
    if (!m_reply.isError())
        return 0;
    error = ErrorContainer(QStringLiteral("no such document"));
    return 1;
}

QVariant DBusPendingReply::getReply() const
{
    return m_isQueried ? m_reply.getValue() : QVariant();
}

QDBusConnection DBusConnection::getQDBusConnection()
{
    return QDBusConnection(QStringLiteral("no bus"));
}

DBusConnectorBase::DBusConnectorBase(const QString& object) : m_object(object) {}

bool DBusConnectorBase::isDBusInterfaceValid() const
{
    return ConfigurationStore::instance().hasObject(m_object);
}

ConfigurationFileHandlerDBusConnector::ConfigurationFileHandlerDBusConnector(const QString& object)
    : DBusConnectorBase(object)
{}

QSharedPointer<ConfigurationFileHandlerDBusConnector>
ConfigurationFileHandlerDBusConnector::createAndConnect(const QString& service, const QString& object)
{
    if (service != QLatin1String("DeviceManager") || !ConfigurationStore::instance().hasObject(object))
        return {};
    return QSharedPointer<ConfigurationFileHandlerDBusConnector>(
        new ConfigurationFileHandlerDBusConnector(object));
}

DBusReply ConfigurationFileHandlerDBusConnector::getConfiguration(const QString& name,
                                                                  const QString& /*module*/,
                                                                  const QString& /*extra*/) const
{
    return DBusReply(ConfigurationStore::instance().text(m_object, name));
}

DBusReply ConfigurationFileHandlerDBusConnector::getConfigurationDependency(const QString& name,
                                                                            const QString& module) const
{
    return getConfiguration(name, module, QString());
}

QSharedPointer<DBusPendingReply>
ConfigurationFileHandlerDBusConnector::getConfigurationAsynchron(const QString& name, const QString& module,
                                                                 const QString& extra) const
{
    return QSharedPointer<DBusPendingReply>::create(getConfiguration(name, module, extra));
}

QSharedPointer<DBusPendingReply>
ConfigurationFileHandlerDBusConnector::getConfigurationDependencyAsynchron(const QString& name,
                                                                           const QString& module) const
{
    return getConfigurationAsynchron(name, module, QString());
}

DBusConnectionSignalPollingHandler::DBusConnectionSignalPollingHandler(const QString& /*service*/,
                                                                       const QString& object,
                                                                       const QString& /*signalName*/,
                                                                       int /*slotSignature*/)
    : m_object(object), m_seen(ConfigurationStore::instance().lastAnnouncement(object).number)
{}

bool DBusConnectionSignalPollingHandler::isSignalOccured()
{
    const ConfigurationStore::Announcement last = ConfigurationStore::instance().lastAnnouncement(m_object);
    if (last.number != m_seen) {
        m_seen = last.number;
        m_parameter = last.configuration;
    }
    return m_parameter.isValid();
}

QVariant DBusConnectionSignalPollingHandler::getSignalParameter() const
{
    return m_parameter;
}

void DBusConnectionSignalPollingHandler::resetLastSignal()
{
    m_parameter.clear();
}
