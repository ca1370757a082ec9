#include "ConfigurationObject.h"

#include <QtCore/QCoreApplication>

namespace {

const int longestQuotation = 60;

QString errorName(const char* error)
{
    return QStringLiteral("org.measuringdevice.ConfigurationFileHandler.Error.") + QLatin1String(error);
}

} // namespace

ConfigurationObject::ConfigurationObject(const QString& name, Method method, QObject* parent)
    : QObject(parent), m_name(name), m_method(method), m_announced(changeableProperties())
{}

void ConfigurationObject::setState(const DocumentState& state)
{
    m_served = state;
}

QVariantMap ConfigurationObject::takeChanges()
{
    const QVariantMap present = changeableProperties();
    QVariantMap changes;
    for (auto property = present.begin(); property != present.end(); ++property) {
        if (m_announced.value(property.key()) != property.value())
            changes.insert(property.key(), property.value());
    }
    m_announced = present;
    return changes;
}

void ConfigurationObject::announce()
{
    Q_EMIT configurationChanged(m_name);
}

QString ConfigurationObject::version() const
{
    return QCoreApplication::applicationVersion();
}

QString ConfigurationObject::state() const
{
    if (m_served.text.isNull())
        return QStringLiteral("missing");
    return m_served.refusal.isEmpty() ? QStringLiteral("active") : QStringLiteral("refused");
}

QString ConfigurationObject::checksum() const
{
    return m_served.checksum;
}

QString ConfigurationObject::lastRefusal() const
{
    return m_served.refusal;
}

QString ConfigurationObject::getConfiguration(const QString& name, const QString& /*module*/,
                                              const QString& /*extra*/) const
{
    return answer(Method::GetConfiguration, name);
}

QString ConfigurationObject::getConfigurationDependency(const QString& name, const QString& /*module*/) const
{
    return answer(Method::GetConfigurationDependency, name);
}

QString ConfigurationObject::answer(Method method, const QString& name) const
{
    if (method != m_method || name != m_name) {
        sendErrorReply(errorName("UnknownConfiguration"),
                       QStringLiteral("This method of this object serves no configuration '%1'.")
                           .arg(name.left(longestQuotation)));
        return {};
    }
    if (m_served.text.isNull()) {
        sendErrorReply(
            errorName("NoConfiguration"),
            QStringLiteral("No valid document for '%1' has been loaded yet; see the service's log.")
                .arg(name));
        return {};
    }
    return m_served.text;
}

QVariantMap ConfigurationObject::changeableProperties() const
{
    return {{QStringLiteral("state"), state()},
            {QStringLiteral("checksum"), checksum()},
            {QStringLiteral("lastRefusal"), lastRefusal()}};
}
