#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

class ProcessMeasurementAttributes
{
public:
    explicit ProcessMeasurementAttributes(const QVariant& attributes);

    void setUnit(int index, const QString& unit);
    void setUnitText(int index, const QVariant& textMap);
    QVariant getMeasurementAttributeObject() const;
};
