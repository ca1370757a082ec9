#include "DependenciesCheck.h"

#include <QtCore/QSet>

#include "MemberNames.h"
#include "UnitTypeNames.h"

namespace {

/// After so many comparisons with keys of unit types, misspelt keys are no longer searched for: a document
/// with thousands of own keys would take minutes.
const int mostComparisons = 500000;

/// Two wrong letters in a shorter key make another word: "Name" is not a misspelt "Time".
const int shortestMisspelt = 6;

/// A key whose dependents are being visited.
struct Visit
{
    QString key;
    std::size_t next = 0;
};

bool isKey(const QString& text)
{
    return !text.isEmpty() && !text.startsWith(QLatin1Char('@')) && !UnitTypeNames::isTooLong(text);
}

QString withoutNumber(QString key)
{
    while (!key.isEmpty() && key.back().isDigit())
        key.chop(1);
    return key;
}

} // namespace

DependenciesCheck::DependenciesCheck(const JsonDocument& document, const UnitManager* library,
                                     Findings& findings)
    : m_document(document), m_findings(findings)
{
    if (library == nullptr)
        return;
    for (const QString& type : UnitTypeNames::withUnits(*library))
        m_typeKeys << type << type + "Range" << type + "Unit";
    m_typeKeySet = QSet<QString>(m_typeKeys.begin(), m_typeKeys.end());
}

void DependenciesCheck::run()
{
    for (const JsonValue& entry : m_document.root().children())
        m_entries.insert(entry.name());
    for (const JsonValue& entry : m_document.root().children()) {
        if (!entry.name().startsWith(QLatin1Char('$')))
            checkEntry(entry);
    }
    checkCycles();
}

void DependenciesCheck::checkEntry(const JsonValue& entry)
{
    const QString key = entry.name();
    if (entry.type() == JsonType::Null) {
        m_findings.addAtName(Rule::NullNode, entry, key,
                             "the list of " + DocumentProblem::quoted(key) + " is null");
    } else if (!isKey(key) || entry.type() != JsonType::Array) {
        m_findings.addAtName(
            Rule::DependencyInvalid, entry, key,
            isKey(key) ? DocumentProblem::quoted(key) + " has no list of keys"
                       : QStringLiteral("a key must have 1 to 255 characters, and not begin with \"@\""),
            QStringLiteral("write \"KEY\": [\"KEY\"]"));
    } else {
        checkKey(entry, key, key);
        checkDependents(entry, entry.children());
    }
}

void DependenciesCheck::checkDependents(const JsonValue& entry, const std::vector<JsonValue>& dependents)
{
    const QString key = entry.name();
    if (dependents.empty())
        m_findings.addAtName(Rule::DependencyEmpty, entry, key,
                             "nothing depends on " + DocumentProblem::quoted(key),
                             QStringLiteral("remove the entry"));
    QSet<QString> listed;
    for (std::size_t index = 0; index < dependents.size(); ++index) {
        const JsonValue& dependent = dependents[index];
        const QString path = key + '/' + QString::number(index);
        const QString text = dependent.string();
        if (dependent.type() == JsonType::Null) {
            m_findings.addAtValue(Rule::NullNode, dependent, path, QStringLiteral("null in place of a key"));
            continue;
        }
        if (dependent.type() != JsonType::String || !isKey(text)) {
            m_findings.addAtValue(Rule::DependencyInvalid, dependent, path,
                                  QStringLiteral("this is not a key"),
                                  QStringLiteral("write a key in quotes"));
            continue;
        }
        if (listed.contains(text))
            m_findings.addAtValue(Rule::DependencyDuplicate, dependent, path,
                                  DocumentProblem::quoted(text) + " is listed twice");
        listed.insert(text);
        // A key that has an entry leads there; a misspelt one is reported at the entry.
        if (!m_entries.contains(text))
            checkKey(dependent, text, path);
    }
    m_dependents.insert(key, dependents);
}

/// Reports a key that differs a little from that of a unit type. Other keys, such as "Pressure2", are the
/// application's own.
void DependenciesCheck::checkKey(const JsonValue& at, const QString& key, const QString& path)
{
    if (m_typeKeySet.contains(key) || m_typeKeySet.contains(withoutNumber(key)))
        return;
    m_comparisons += m_typeKeys.size();
    if (m_comparisons > mostComparisons)
        return;
    const QString suggestion = MemberNames::suggestion(key, m_typeKeys);
    if (key.size() >= shortestMisspelt && !suggestion.isEmpty())
        m_findings.addAtName(Rule::DependencyUnknown, at, path,
                             DocumentProblem::quoted(key) + " leads nowhere", suggestion);
}

/// Visits every key once, depth first. Does not use recursion: a chain may be as long as the document.
void DependenciesCheck::checkCycles()
{
    QSet<QString> visited;
    for (const JsonValue& entry : m_document.root().children()) {
        std::vector<Visit> visits;
        QSet<QString> open;
        const auto enter = [&](const QString& key) {
            if (visited.contains(key) || !m_dependents.contains(key))
                return;
            visited.insert(key);
            open.insert(key);
            visits.push_back({key});
        };
        enter(entry.name());
        while (!visits.empty()) {
            Visit& visit = visits.back();
            const std::vector<JsonValue>& dependents = *m_dependents.constFind(visit.key);
            if (visit.next == dependents.size()) {
                open.remove(visit.key);
                visits.pop_back();
                continue;
            }
            const std::size_t index = visit.next++;
            const QString key = dependents[index].string();
            if (open.contains(key))
                m_findings.addAtValue(Rule::DependencyCycle, dependents[index],
                                      visit.key + '/' + QString::number(index),
                                      DocumentProblem::quoted(key) + " depends on itself");
            enter(key);
        }
    }
}
