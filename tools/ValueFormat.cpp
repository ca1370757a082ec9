#include "ValueFormat.h"

#include <QtCore/QJsonObject>

#include <cmath>

#include "NumberText.h"
#include "OutputOptions.h"

ValueFormat::ValueFormat(const UnitCatalogue& source, const UnitType& type, const QString& unit,
                         const QCommandLineParser& options)
    : m_catalogue(source),
      m_label(source.label(type, unit, OutputOptions::language(options))),
      m_decimalPlaces(source.decimalPlaces(type, unit)),
      m_isJson(OutputOptions::isJson(options)),
      m_isRaw(OutputOptions::isRaw(options))
{
    m_jsonStart = OutputOptions::jsonLine({{"type", type.name}, {"unit", unit}, {"label", m_label}});
    m_jsonStart.replace(m_jsonStart.size() - 1, 1, ",\"value\":");
}

QString ValueFormat::text(double value) const
{
    if (m_isJson)
        return jsonLine(std::isfinite(value) ? NumberText::shortest(value) : "null");
    return m_isRaw ? NumberText::shortest(value) : shown(value);
}

QString ValueFormat::missing() const
{
    return m_isJson ? jsonLine("null") : QString();
}

QString ValueFormat::jsonLine(const QString& value) const
{
    return m_jsonStart + value + '}';
}

QString ValueFormat::shown(double value) const
{
    const QString number =
        m_decimalPlaces ? NumberText::fixed(m_catalogue.rounded(value, *m_decimalPlaces), *m_decimalPlaces)
                        : NumberText::shortest(value);
    return m_label.isEmpty() ? number : number + ' ' + m_label;
}
