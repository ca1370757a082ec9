#pragma once

#include <QtCore/QString>

#include "DocumentChecker.h"
#include "Findings.h"
#include "UnitNode.h"

/// Checks whether the conversions of a unit type are right: the base unit, and for every unit whether values
/// return unchanged when they are converted there and back. Calculates with the library's own conversions.
class ConversionCheck
{
public:
    /// All arguments must outlive the object.
    ConversionCheck(const TypeNode& type, const DocumentChecker::Options& options, Findings& findings);

    void run();

private:
    const UnitNode* checkBaseUnits();
    void checkUnit(const UnitNode& unit, bool isBase);
    void checkConstant(const UnitNode& unit);
    bool isMonotonic(const UnitNode& unit) const;
    void checkInverse(const UnitNode& unit);
    void checkPrefixes();

    const TypeNode& m_type;
    const DocumentChecker::Options& m_options;
    Findings& m_findings;
};
