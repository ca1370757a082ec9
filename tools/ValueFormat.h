#pragma once

#include <QtCore/QString>

#include <optional>

#include "UnitCatalogue.h"

class QCommandLineParser;

/// Writes values of one unit in the form that the user asked for: rounded to the unit's decimal places with
/// its label, as shortest text, or as JSON object. Looks everything up once, for any number of values.
class ValueFormat
{
public:
    /// @param source must outlive the format
    /// @param options of a verb that declares --raw, --json and --language
    ValueFormat(const UnitCatalogue& source, const UnitType& type, const QString& unit,
                const QCommandLineParser& options);

    /// One line, without its end.
    QString text(double value) const;

private:
    QString shown(double value) const;

    const UnitCatalogue& catalogue;
    QString label;
    std::optional<unsigned int> decimalPlaces;
    bool isJson;
    bool isRaw;
    /// An object without its last member, which is the value.
    QString jsonStart;
};
