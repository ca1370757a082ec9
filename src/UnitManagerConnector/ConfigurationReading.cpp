#include "UnitManagerConnector/ConfigurationReading.h"

#include "Diagnostics.h"
#include "UnitManagerConnector/ConnectorSettings.h"
#include "UnitManagerConnector/UnitManagerConnectionData.h"

namespace {

void warnOfSource(const LogContext& context, const char* text, const QStringList& settings)
{
    context.warning() << text << settings.value(ConnectorSettings::Service)
                      << settings.value(ConnectorSettings::Object)
                      << settings.value(ConnectorSettings::Configuration);
}

} // namespace

namespace ConfigurationReading {

QSharedPointer<ConfigurationFileHandlerDBusConnector>
connectorOf(UnitManagerConnectionData& data, UnitManagerConnectorDefinitions::ConnectorType type,
            const LogContext& context)
{
    if (data.isConnectedToDBus())
        return data.connectors().value(type);
    context.warning() << "Unitswitch connector: Cannot call method configuration get via DBus";
    return {};
}

void warnUnknownKind(const LogContext& context, const QString& kind)
{
    context.warning() << "Unknown Filetype given" << kind;
}

void warnNoReply(const LogContext& context, const QStringList& settings)
{
    warnOfSource(context, "Unable to get unitswitch configuration via DBus", settings);
}

void warnEmpty(const LogContext& context, const QStringList& settings)
{
    warnOfSource(context, "Unit switch configuration empty string", settings);
}

} // namespace ConfigurationReading
