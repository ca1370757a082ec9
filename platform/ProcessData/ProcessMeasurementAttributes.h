#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVariantList>

#include "ProcessDataExport.h"

/// Reads and edits the measurement-range attributes of a node:
///
///     [ { "unit": "UnitManager/UnitType/Pressure/Bar", "unitText": { "en": "bar" }, "max": 10 }, ... ]
///
/// There is one map per measurement range. This class only uses the members "unit" and "unitText"; all other
/// members, and ranges that are not edited, stay unchanged.
class PROCESSDATA_EXPORT ProcessMeasurementAttributes
{
public:
    /// Maximum number of ranges in an attribute object; an index beyond it is ignored.
    static constexpr int maximumRangeCount = 1024;

    /// @param attributes a list of maps. A single map counts as a list of one; anything else as an empty
    /// list.
    explicit ProcessMeasurementAttributes(const QVariant& attributes);

    /// Sets the unit of one range. A range beyond the end is created, with empty maps for those before it; an
    /// entry that is not a map is replaced. A negative index is ignored.
    void setUnit(int index, const QString& unit);

    /// Sets the unit text of one range, or its map of texts by language; creates ranges like setUnit().
    void setUnitText(int index, const QVariant& textMap);

    /// The unit of one range; empty when there is none.
    QString getUnit(int index) const;

    /// The unit text of one range; invalid when there is none.
    QVariant getUnitText(int index) const;

    /// The edited attributes, always as a list.
    QVariant getMeasurementAttributeObject() const;

private:
    void setMember(int index, const QString& member, const QVariant& value);
    QVariant getMember(int index, const QString& member) const;

    QVariantList m_ranges;
};
