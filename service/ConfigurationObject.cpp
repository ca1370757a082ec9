#include "ConfigurationObject.h"

namespace {

const int longestQuotation = 60;

QString errorName(const char* error)
{
    return QStringLiteral("org.measuringdevice.ConfigurationFileHandler.Error.") + QLatin1String(error);
}

} // namespace

ConfigurationObject::ConfigurationObject(const QString& name, Method method, QObject* parent)
    : QObject(parent), m_name(name), m_method(method)
{}

void ConfigurationObject::setText(const QString& text)
{
    m_text = text;
}

void ConfigurationObject::announce()
{
    Q_EMIT configurationChanged(m_name);
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
    if (!m_text) {
        sendErrorReply(
            errorName("NoConfiguration"),
            QStringLiteral("No valid document for '%1' has been loaded yet; see the service's log.")
                .arg(name));
        return {};
    }
    return *m_text;
}
