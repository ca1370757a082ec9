#pragma once

#include <QtCore/QString>

#include <map>
#include <optional>

#include "DocumentChecker.h"
#include "JsonDocument.h"

class QJsonObject;
class QJsonValue;

/// Prints the events of the verb watch, as text or as JSON.
class WatchReport
{
public:
    /// @param bus where the active documents are read for the differences in JSON
    WatchReport(const QString& bus, bool isJson);

    /// The documents are not ready. Prints each reason once until ready().
    void waiting(const QString& reason);
    /// The documents have been read.
    void ready();
    /// New documents are in use, with this number of unit types and units.
    void adopted(int unitTypes, int units);

private:
    using Documents = std::map<DocumentKind, JsonDocument>;

    void print(const QString& text, const char* event, const QJsonObject& details) const;
    std::optional<Documents> activeDocuments() const;
    QJsonValue takeDifferences();

    const QString m_bus;
    const bool m_isJson;
    /// Of the last waiting(); empty when ready.
    QString m_reason;
    /// Those that were adopted last; no value before, or if they could not be read.
    std::optional<Documents> m_documents;
};
