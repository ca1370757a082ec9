#pragma once

#include "DocumentChecker.h"
#include "Findings.h"
#include "UnitNode.h"

class UnitManager;

/// Checks a unit document: structure, conversions, display and labels.
class UnitsCheck
{
public:
    /// @param library has loaded the document; all arguments must outlive the object
    UnitsCheck(const JsonDocument& document, const UnitManager& library,
               const DocumentChecker::Options& options, Findings& findings);

    void run();

private:
    void checkType(const JsonValue& member);
    void checkNoUnit(const JsonValue& unit, const QString& path);
    bool hasUsableName(const JsonValue& member, const QString& path);
    TypeNode readType(const JsonValue& member) const;

    const JsonDocument& m_document;
    const UnitManager& m_library;
    const DocumentChecker::Options& m_options;
    /// Those that every label must have.
    const QStringList m_languages;
    Findings& m_findings;
};
