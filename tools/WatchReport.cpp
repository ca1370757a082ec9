#include "WatchReport.h"

#include <QtCore/QDateTime>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include "Console.h"
#include "DocumentDifferences.h"
#include "OutputOptions.h"
#include "RunningService.h"

WatchReport::WatchReport(const QString& bus, bool isJson) : m_bus(bus), m_isJson(isJson) {}

void WatchReport::waiting(const QString& reason)
{
    if (m_reason == reason)
        return;
    m_reason = reason;
    print("waiting: " + reason, "waiting", {{"reason", reason}});
}

void WatchReport::ready()
{
    m_reason.clear();
    print("ready", "ready", {});
}

void WatchReport::adopted(int unitTypes, int units)
{
    const QString text = unitTypes == 0
                             ? QString("adopted; no usable units")
                             : QString("adopted; unit types: %1, units: %2").arg(unitTypes).arg(units);
    QJsonObject details{{"unitTypes", unitTypes}, {"units", units}};
    if (m_isJson)
        details.insert("differences", takeDifferences());
    print(text, "adopted", details);
}

void WatchReport::print(const QString& text, const char* event, const QJsonObject& details) const
{
    if (!m_isJson) {
        Console::printLine(text);
        return;
    }
    QJsonObject object = details;
    object.insert("time", QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
    object.insert("event", event);
    Console::printLine(OutputOptions::jsonLine(object));
}

/// Documents that change at this moment may be newer than the adopted ones; then the next adoption has no
/// differences.
std::optional<WatchReport::Documents> WatchReport::activeDocuments() const
{
    const auto service = RunningService::find(m_bus);
    if (!service)
        return std::nullopt;
    Documents documents;
    for (const DocumentKind kind : RunningService::documentKinds()) {
        const auto document = service->document(kind);
        if (!document)
            return std::nullopt;
        documents.emplace(kind, *document);
    }
    return documents;
}

/// The differences to the documents adopted before; null if one side is not known.
QJsonValue WatchReport::takeDifferences()
{
    const auto before = m_documents;
    m_documents = activeDocuments();
    if (!before || !m_documents)
        return {};
    QJsonArray differences;
    for (const DocumentKind kind : RunningService::documentKinds()) {
        const auto changes = DocumentDifferences::between(before->at(kind), m_documents->at(kind), kind);
        for (const Difference& difference : changes)
            differences.append(difference.toJson(RunningService::documentName(kind)));
    }
    return differences;
}
