#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

class LogCapture;

/// A variant's type and value as text, "double 1.5", with all digits; "invalid" for an invalid one. Unlike
/// QVariant's own comparison it tells types, NaN and the signs of zero apart.
QString described(const QVariant& value);
QStringList described(const QList<QVariant>& values);

/// The messages captured so far, one text each with level, category, place, function and text. They are
/// taken out of the log.
QStringList describedMessages(LogCapture& log);

/// What describedMessages() gives for each of the library's warnings.
namespace Expected {

enum class Conversion
{
    ToBase,
    FromBase
};

QString noDefaultUnit(const QString& unitType);
QString noConversion(Conversion conversion, const QString& unitType);
QString noConversionForDecimalPlaces(const QString& unitType);
QString noBaseUnit(const QString& unitType);
QString invalidType(Conversion conversion, const QString& typeName);
QString unknownUnit(Conversion conversion, const QString& unit, const QString& unitTypeKey);
/// The two warnings for a value that is no number.
QStringList notConverted(Conversion conversion, const QString& typeName, const QString& unit,
                         const QString& unitTypeKey);
QString notRounded(const QString& streamedValue);
QString noFixedUnit(const QString& text);
QString unknownTextType(const QString& unitType);
QString unknownTextUnit(const QString& unit, const QString& unitType);
QString unknownTextMapType(const QString& unitType);
QString unknownTextMapUnit(const QString& unit, const QString& unitType);
QString noBaseUnitLabel(const QString& unitType);
/// @param streamedDocument the document as the stream quotes it
QString invalidUnitDocument(const QString& streamedDocument);
QString invalidDefaultUnitDocument();

} // namespace Expected
