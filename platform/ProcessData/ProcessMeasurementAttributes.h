#pragma once

#include "ProcessDataExport.h"

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVariantList>

/// A view of the measurement-range attributes of a node, to read and edit them:
///
///     [ { "unit": "UnitManager/UnitType/Pressure/Bar", "unitText": { "en": "bar" }, "max": 10 }, ... ]
///
/// One map per measurement range. The members "unit" and "unitText" are what this class knows; every other
/// member, and every range that is not edited, stays as it is.
class PROCESSDATA_EXPORT ProcessMeasurementAttributes
{
public:
    /// The number of ranges that an attribute object may have; an index beyond it is ignored.
    static constexpr int maximumRangeCount = 1024;

    /// @param attributes a list of maps. A single map counts as a list of one; anything else as an empty
    /// list.
    explicit ProcessMeasurementAttributes(const QVariant& attributes);

    /// Sets the unit of one range. A range beyond the end is created, and those before it as empty maps; an
    /// entry that is no map is replaced. A negative index is ignored.
    void setUnit(int index, const QString& unit);

    /// Sets the unit's text, or its map of texts by language; ranges are created as in setUnit().
    void setUnitText(int index, const QVariant& textMap);

    /// The unit of one range; empty when there is none.
    QString getUnit(int index) const;

    /// The unit text of one range; invalid when there is none.
    QVariant getUnitText(int index) const;

    /// The edited attributes: always a list.
    QVariant getMeasurementAttributeObject() const;

private:
    void setMember(int index, const QString& member, const QVariant& value);
    QVariant getMember(int index, const QString& member) const;

    QVariantList m_ranges;
};
