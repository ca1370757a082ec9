#include "UnitManagerConnector/ConfigurationReadMessages.h"

#include "Diagnostics.h"
#include "UnitManagerConnector/ConnectorSettings.h"

namespace {

void warnOfSource(const LogContext& context, const char* text, const QStringList& settings)
{
    context.warning() << text << settings.value(ConnectorSettings::Service)
                      << settings.value(ConnectorSettings::Object)
                      << settings.value(ConnectorSettings::Configuration);
}

} // namespace

namespace ConfigurationReadMessages {

void warnNotConnected(const LogContext& context)
{
    context.warning() << "Unitswitch connector: Cannot call method configuration get via DBus";
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

} // namespace ConfigurationReadMessages
