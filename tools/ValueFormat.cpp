#include "ValueFormat.h"

#include <QtCore/QJsonObject>

#include <cmath>

#include "NumberText.h"
#include "OutputOptions.h"

ValueFormat::ValueFormat(const UnitCatalogue& source, const UnitType& type, const QString& unit,
                         const QCommandLineParser& options)
    : catalogue(source),
      label(source.label(type, unit, OutputOptions::language(options))),
      decimalPlaces(source.decimalPlaces(type, unit)),
      isJson(OutputOptions::isJson(options)),
      isRaw(OutputOptions::isRaw(options))
{
    jsonStart = OutputOptions::jsonLine({{"type", type.name}, {"unit", unit}, {"label", label}});
    jsonStart.replace(jsonStart.size() - 1, 1, ",\"value\":");
}

QString ValueFormat::text(double value) const
{
    if (isJson)
        return jsonStart + (std::isfinite(value) ? NumberText::shortest(value) : "null") + '}';
    return isRaw ? NumberText::shortest(value) : shown(value);
}

QString ValueFormat::shown(double value) const
{
    const QString number = decimalPlaces
                               ? NumberText::fixed(catalogue.rounded(value, *decimalPlaces), *decimalPlaces)
                               : NumberText::shortest(value);
    return label.isEmpty() ? number : number + ' ' + label;
}
