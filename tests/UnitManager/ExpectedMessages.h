#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class LogCapture;

/// Takes the captured messages out of the log, as one text each with level, category, location, function and
/// text.
QStringList takeMessageTexts(LogCapture& log);

/// The texts of takeMessageTexts() for each of the library's warnings.
namespace Expected {

enum class Conversion
{
    ToBase,
    FromBase
};

QString noDefaultUnit(const QString& unitType);
/// The unit-less type has no default unit. That is not reported if its identifier on the platform is the one
/// in UnitManagerDefinitions.
QStringList noDefaultUnitOfUnitLessType();
QString noConversion(Conversion conversion, const QString& unitType);
QString noConversionForDecimalPlaces(const QString& unitType);
QString noBaseUnit(const QString& unitType);
QString invalidType(Conversion conversion, const QString& typeName);
QString unknownUnit(Conversion conversion, const QString& unit, const QString& unitTypeKey);
/// The two warnings for a value that is not a number.
QStringList notConverted(Conversion conversion, const QString& typeName, const QString& unit,
                         const QString& unitTypeKey);
QString notRounded(const QString& streamedValue);
QString notAFixedUnit(const QString& text);
QString unknownTextType(const QString& unitType);
QString unknownTextUnit(const QString& unit, const QString& unitType);
QString unknownTextMapType(const QString& unitType);
QString unknownTextMapUnit(const QString& unit, const QString& unitType);
QString noBaseUnitLabel(const QString& unitType);
/// @param streamedDocument the document as quoted by the stream
QString invalidUnitDocument(const QString& streamedDocument);
QString invalidDefaultUnitDocument();

} // namespace Expected
