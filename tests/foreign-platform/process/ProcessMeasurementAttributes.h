#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// The attributes of measurement ranges: a list of maps with the members "unit" and "unitText", among others.
class ProcessMeasurementAttributes
{
public:
    explicit ProcessMeasurementAttributes(const QVariant& attributes);

    void setUnit(int index, const QString& unit);
    void setUnitText(int index, const QVariant& textMap);
    QString getUnit(int index) const;
    QVariant getUnitText(int index) const;
    QVariant getMeasurementAttributeObject() const;

private:
    void set(int index, const QString& member, const QVariant& value);

    QVariantList m_ranges;
};
