#pragma once

#include "Findings.h"
#include "UnitNode.h"

/// Checks how the units of a type are displayed: positions and decimal places.
class DisplayCheck
{
public:
    /// All arguments must outlive the object.
    DisplayCheck(const TypeNode& type, Findings& findings);

    void run();

private:
    void checkPositions();
    void checkDecimals(const UnitNode& unit, int baseDecimals);

    const TypeNode& m_type;
    Findings& m_findings;
};
