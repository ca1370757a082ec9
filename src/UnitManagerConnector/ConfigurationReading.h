#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "UnitManagerConnector/UnitManagerConnectorDefinitions.h"

class ConfigurationFileHandlerDBusConnector;
class UnitManagerConnectionData;
struct LogContext;

/// The common part of the blocking and the asynchronous read state. The warnings name the unit switch
/// regardless of the source.
namespace ConfigurationReading {

/// The connector from which a source is read.
///
/// @return null when the source has no connector; also null, with a warning, when any configured source is
/// not connected.
QSharedPointer<ConfigurationFileHandlerDBusConnector>
connectorOf(UnitManagerConnectionData& data, UnitManagerConnectorDefinitions::ConnectorType type,
            const LogContext& context);

/// Logs that a source has a kind that no read call serves.
void warnUnknownKind(const LogContext& context, const QString& kind);
/// Logs that a read call failed; the warning names the source.
void warnNoReply(const LogContext& context, const QStringList& settings);
/// Logs that a read call returned an empty text; the warning names the source.
void warnEmpty(const LogContext& context, const QStringList& settings);

} // namespace ConfigurationReading
