#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

struct LogContext;

/// Warnings of the read states. They name the unit switch regardless of the source.
namespace ConfigurationReadMessages {

void warnNotConnected(const LogContext& context);
void warnUnknownKind(const LogContext& context, const QString& kind);
void warnNoReply(const LogContext& context, const QStringList& settings);
void warnEmpty(const LogContext& context, const QStringList& settings);

} // namespace ConfigurationReadMessages
