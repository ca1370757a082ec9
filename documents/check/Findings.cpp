#include "Findings.h"

#include <algorithm>

#include "TextPlaces.h"

Findings::Findings(DocumentKind kind, const JsonDocument& document) : m_kind(kind), m_document(document) {}

void Findings::addAtName(Rule rule, const JsonValue& member, const QString& path, const QString& message,
                         const QString& advice)
{
    add(member.nameOffset(), rule, path, message, advice);
}

void Findings::addAtValue(Rule rule, const JsonValue& value, const QString& path, const QString& message,
                          const QString& advice)
{
    add(value.offset(), rule, path, message, advice);
}

void Findings::addForDocument(Rule rule, const QString& message, const QString& advice)
{
    add(m_document.root().offset(), rule, {}, message, advice);
}

bool Findings::hasError() const
{
    return std::any_of(m_findings.begin(), m_findings.end(), [](const auto& entry) {
        return Rules::describe(entry.second.rule).severity == Severity::Error;
    });
}

std::vector<Finding> Findings::take()
{
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<Finding> result;
    if (m_findings.empty())
        return result;
    const TextPlaces places(m_document.bytes());
    result.reserve(m_findings.size());
    for (auto& [offset, finding] : m_findings) {
        finding.place = places.of(offset);
        result.push_back(std::move(finding));
    }
    return result;
}

void Findings::add(int offset, Rule rule, const QString& path, const QString& message, const QString& advice)
{
    m_findings.push_back({offset, {m_kind, rule, {}, path, message, advice}});
}
