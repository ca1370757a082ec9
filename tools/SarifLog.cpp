#include "SarifLog.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QUrl>

#include "CheckedDocuments.h"

namespace {

QJsonObject message(const QString& text)
{
    return {{"text", text}};
}

QJsonArray rules()
{
    QJsonArray result;
    for (const RuleDescription& rule : Rules::all())
        result.append(QJsonObject{
            {"id", rule.name},
            {"shortDescription", message(rule.summary)},
            {"defaultConfiguration", QJsonObject{{"level", Rules::severityName(rule.severity)}}}});
    return result;
}

/// The file as a URI reference, relative if the path is.
QString uri(const QString& path)
{
    return path.startsWith('/') ? QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)
                                : QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
}

QJsonObject location(const Finding& finding, const CheckedDocuments& documents)
{
    const QJsonObject physical{
        {"artifactLocation", QJsonObject{{"uri", uri(documents.name(finding.document))}}},
        {"region", QJsonObject{{"startLine", finding.place.line}, {"startColumn", finding.place.column}}}};
    QJsonObject result{{"physicalLocation", physical}};
    if (!finding.path.isEmpty())
        result.insert("logicalLocations", QJsonArray{QJsonObject{{"fullyQualifiedName", finding.path}}});
    return result;
}

QJsonArray results(const std::vector<Finding>& findings, const CheckedDocuments& documents)
{
    QJsonArray result;
    for (const Finding& finding : findings) {
        const RuleDescription& rule = Rules::describe(finding.rule);
        result.append(QJsonObject{{"ruleId", rule.name},
                                  {"ruleIndex", static_cast<int>(finding.rule)},
                                  {"level", Rules::severityName(rule.severity)},
                                  {"message", message(finding.text())},
                                  {"locations", QJsonArray{location(finding, documents)}}});
    }
    return result;
}

} // namespace

QString SarifLog::text(const std::vector<Finding>& findings, const CheckedDocuments& documents)
{
    const QJsonObject driver{{"name", "unitmanager"}, {"version", UNITMANAGER_VERSION}, {"rules", rules()}};
    const QJsonObject run{{"tool", QJsonObject{{"driver", driver}}},
                          {"columnKind", "unicodeCodePoints"},
                          {"results", results(findings, documents)}};
    const QJsonObject log{{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                          {"version", "2.1.0"},
                          {"runs", QJsonArray{run}}};
    return QString::fromUtf8(QJsonDocument(log).toJson()).trimmed();
}
