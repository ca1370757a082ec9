#include "DisplayCheck.h"

#include <QtCore/QHash>

#include <algorithm>
#include <cmath>

namespace {

const int mostDecimalPlaces = 17;

} // namespace

DisplayCheck::DisplayCheck(const TypeNode& type, Findings& findings) : m_type(type), m_findings(findings) {}

void DisplayCheck::run()
{
    checkPositions();
    const auto base = std::find_if(m_type.units.begin(), m_type.units.end(),
                                   [this](const UnitNode& unit) { return unit.name == m_type.baseUnit; });
    if (base == m_type.units.end() || !base->decimalPlaces)
        return;
    for (const UnitNode& unit : m_type.units) {
        if (unit.isLinear() && unit.decimalPlaces)
            checkDecimals(unit, *base->decimalPlaces);
    }
}

void DisplayCheck::checkPositions()
{
    QHash<int, const UnitNode*> unitsByPosition;
    for (const UnitNode& unit : m_type.units) {
        // Two units at position 0 are two base units, which is an error of its own.
        if (unit.displayPosition.value_or(0) == 0)
            continue;
        const UnitNode* const other = unitsByPosition.value(*unit.displayPosition);
        if (other != nullptr)
            m_findings.addAtValue(Rule::PositionShared, *unit.position, unit.path + "/@displayPosition",
                                  DocumentProblem::quoted(unit.name) + " has the same position as " +
                                      DocumentProblem::quoted(other->name));
        else
            unitsByPosition.insert(*unit.displayPosition, &unit);
    }
}

/// The last displayed digit of a unit must not be coarser than that of the base unit.
void DisplayCheck::checkDecimals(const UnitNode& unit, int baseDecimals)
{
    const double needed = std::ceil(baseDecimals - std::log10(std::abs(unit.coefficients[1])) - 1e-9);
    if (needed <= *unit.decimalPlaces || needed > mostDecimalPlaces)
        return;
    m_findings.addAtValue(Rule::DecimalsTooFew, *unit.decimals, unit.path + "/DecimalPlaces",
                          QStringLiteral("with %1 decimal places, a displayed value that is written back "
                                         "unedited changes the stored value, which has %2")
                              .arg(*unit.decimalPlaces)
                              .arg(baseDecimals),
                          QStringLiteral("write %1").arg(needed));
}
