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
    void checkMembers(const UnitNode& unit, const QString& conversionKind);
    bool checkRows(const JsonValue& list, const QString& path, std::size_t columns);
    bool checkRow(const JsonValue& row, const QString& path, std::size_t columns);
    bool checkNumber(const JsonValue& number, const QString& path);
    std::vector<double> readCoefficients(const std::optional<JsonValue>& list, const QString& path);

    Findings& m_findings;
};
