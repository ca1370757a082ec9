#pragma once

#include <QtCore/QString>

#include <optional>

#include "UnitCatalogue.h"

class QCommandLineParser;

/// Formats values of one unit as the user requested: rounded to the unit's decimal places with its label, as
/// shortest text, or as JSON object. All look-ups are made once, in the constructor.
class ValueFormat
{
public:
    /// @param source must outlive the format
    /// @param options options of a verb that declares --raw, --json and --language
    ValueFormat(const UnitCatalogue& source, const UnitType& type, const QString& unit,
                const QCommandLineParser& options);

    /// One line, without line break.
    QString text(double value) const;
    /// The line in place of a value that is missing: empty, or a JSON object with the value null.
    QString missing() const;

private:
    QString jsonLine(const QString& value) const;
    QString shown(double value) const;

    const UnitCatalogue& m_catalogue;
    QString m_label;
    std::optional<unsigned int> m_decimalPlaces;
    bool m_isJson;
    bool m_isRaw;
    /// The start of a JSON object, up to its last member, which is the value.
    QString m_jsonStart;
};
