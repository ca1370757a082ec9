#pragma once

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QStringList>

#include "Findings.h"

class UnitManager;

/// Checks a document of dependencies, alone and against the unit types of the library.
class DependenciesCheck
{
public:
    /// @param library has loaded the unit document; null to check the document alone. All arguments must
    /// outlive the object.
    DependenciesCheck(const JsonDocument& document, const UnitManager* library, Findings& findings);

    void run();

private:
    void checkEntry(const JsonValue& entry);
    void checkDependents(const JsonValue& entry, const std::vector<JsonValue>& dependents);
    void checkKey(const JsonValue& at, const QString& key, const QString& path);
    void checkCycles();

    const JsonDocument& m_document;
    Findings& m_findings;
    /// The keys that belong to unit types: "Pressure", "PressureRange", "PressureUnit". Empty without
    /// library.
    QStringList m_typeKeys;
    QSet<QString> m_typeKeySet;
    /// How often a key was compared with one of a unit type.
    qint64 m_comparisons = 0;
    /// The names of the document's entries.
    QSet<QString> m_entries;
    QHash<QString, std::vector<JsonValue>> m_dependents;
};
