#include "ProcessMeasurementAttributes.h"

namespace {

QString memberUnit()
{
    return QStringLiteral("unit");
}

QString memberUnitText()
{
    return QStringLiteral("unitText");
}

QVariantList rangesOf(const QVariant& attributes)
{
    switch (static_cast<QMetaType::Type>(attributes.type())) {
    case QMetaType::QVariantList:
        return attributes.toList();
    case QMetaType::QVariantMap:
        return {attributes};
    default:
        return {};
    }
}

} // namespace

ProcessMeasurementAttributes::ProcessMeasurementAttributes(const QVariant& attributes)
    : m_ranges(rangesOf(attributes))
{}

void ProcessMeasurementAttributes::setUnit(int index, const QString& unit)
{
    setMember(index, memberUnit(), unit);
}

void ProcessMeasurementAttributes::setUnitText(int index, const QVariant& textMap)
{
    setMember(index, memberUnitText(), textMap);
}

QString ProcessMeasurementAttributes::getUnit(int index) const
{
    return getMember(index, memberUnit()).toString();
}

QVariant ProcessMeasurementAttributes::getUnitText(int index) const
{
    return getMember(index, memberUnitText());
}

QVariant ProcessMeasurementAttributes::getMeasurementAttributeObject() const
{
    return m_ranges;
}

void ProcessMeasurementAttributes::setMember(int index, const QString& member, const QVariant& value)
{
    if (index < 0 || index >= maximumRangeCount)
        return;

    while (m_ranges.size() <= index)
        m_ranges.append(QVariantMap());

    QVariantMap range = m_ranges.at(index).toMap();
    range.insert(member, value);
    m_ranges[index] = range;
}

QVariant ProcessMeasurementAttributes::getMember(int index, const QString& member) const
{
    return m_ranges.value(index).toMap().value(member);
}
