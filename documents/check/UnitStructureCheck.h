#pragma once

#include "Findings.h"
#include "UnitNode.h"

class UnitManager;

/// Checks the members of a unit: names, kinds of values, and whether the library accepts the unit.
class UnitStructureCheck
{
public:
    explicit UnitStructureCheck(Findings& findings);

    /// Checks a member of a unit type and adds it to the type's units if it is an object.
    void checkUnit(const JsonValue& value, TypeNode& type, const UnitManager& library);

private:
    void checkPolynomialUnit(UnitNode& unit);
    void checkTableUnit(const UnitNode& unit, const JsonValue& kind);
    void checkConversion(UnitNode& unit, const TypeNode& type, const UnitManager& library);
    void checkPosition(UnitNode& unit);
    void checkDecimals(UnitNode& unit);
    void checkMembers(const UnitNode& unit, const QStringList& required, const QStringList& optional);
    std::vector<double> readCoefficients(const UnitNode& unit, const std::optional<JsonValue>& list);

    Findings& m_findings;
};
