#pragma once

#include <QtCore/QSet>
#include <QtCore/QStringList>

#include "Findings.h"

class UnitManager;

/// Checks a document of default units, alone and against the units of the library.
class DefaultUnitsCheck
{
public:
    /// @param library has loaded the unit document; null to check the document alone. All arguments must
    /// outlive the object.
    DefaultUnitsCheck(const JsonDocument& document, const UnitManager* library, Findings& findings);

    void run();

private:
    void checkEntry(const JsonValue& entry);
    bool isSelection(const JsonValue& entry);
    void checkUnit(const JsonValue& entry, const QString& value);
    void checkTypes();

    const JsonDocument& m_document;
    const UnitManager* m_library;
    Findings& m_findings;
    /// The names of the library's unit types that have units, sorted.
    QStringList m_types;
    QSet<QString> m_typeSet;
    /// The names of the other unit types.
    QSet<QString> m_unitlessTypes;
};
