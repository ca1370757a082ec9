#pragma once

#include <QtCore/QSet>
#include <QtCore/QString>

#include <optional>
#include <vector>

#include "JsonDocument.h"
#include "UnitConversion/ValueConversionWrapper.h"

/// A unit of a document that is an object.
struct UnitNode
{
    QString name;
    /// "TYPE/UNIT".
    QString path;
    JsonValue value;

    /// Members, valid or not.
    std::optional<JsonValue> polynomial;
    std::optional<JsonValue> inverse;
    std::optional<JsonValue> position;
    std::optional<JsonValue> decimals;
    std::optional<JsonValue> label;

    /// No value if missing or not valid.
    std::optional<int> displayPosition;
    std::optional<int> decimalPlaces;
    /// Constant term first, without zeros at the end; empty if missing or not valid.
    std::vector<double> coefficients;
    std::vector<double> inverseCoefficients;
    /// The library's conversion; not valid if the library ignores the unit.
    ValueConversionWrapper conversion;

    /// Whether the conversion has the form c0 + c1 * x.
    bool isLinear() const
    {
        return coefficients.size() == 2;
    }
};

/// A unit type of a document.
struct TypeNode
{
    QString name;
    /// The library's identifier, "UnitManager/UnitType/TYPE".
    QString id;
    JsonValue value;
    /// The units that the library accepts.
    QSet<QString> accepted;
    /// The library's base unit; empty if there is none.
    QString baseUnit;
    /// The units that are objects, in document order.
    std::vector<UnitNode> units;
    /// Whether there are others, which have been reported.
    bool hasUnusableUnits = false;
};
