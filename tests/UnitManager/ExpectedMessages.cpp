#include "ExpectedMessages.h"

#include "LogCapture.h"
#include "MessageText.h"
#include "UnitManagerDefinitions.h"
#include "UnitTypes.h"

namespace {

/// Whether messages from this source have fixed line numbers.
bool hasFixedLines(const QString& file)
{
    return file == QLatin1String("UnitConversion/UnitConversionLookUp") ||
           file == QLatin1String("UnitConversion/UnitConversionUnitTypeHandler");
}

QString warning(const char* file, int line, const char* function, const QString& text)
{
    return warningText(QLatin1String(file), line, QLatin1String(function), text);
}

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString lookUpWarning(int line, const char* function, const char* text, const QString& unitType)
{
    // Two blanks: the text ends with one, and the stream adds one.
    return warning("UnitConversion/UnitConversionLookUp", line, function,
                   QLatin1String(text) + QStringLiteral("  ") + quoted(unitType));
}

QString handlerWarning(Expected::Conversion conversion, int lineToBase, int lineFromBase, const QString& text)
{
    const bool isToBase = conversion == Expected::Conversion::ToBase;
    return warning("UnitConversion/UnitConversionUnitTypeHandler", isToBase ? lineToBase : lineFromBase,
                   isToBase
                       ? "bool UnitConversionUnitTypeHandler::toBaseUnit(QVariant&, const QString&) const"
                       : "bool UnitConversionUnitTypeHandler::fromBaseUnit(QVariant&, const QString&) const",
                   text);
}

const char* const getUnitText =
    "QString UnitTextHandler::getUnitText(const QString&, const QString&, const QString&) const";
const char* const getUnitTextJsonMap = "QVariant UnitTextHandler::getUnitTextJsonMap(const QString&) const";

QString textWarning(const char* function, const QString& text)
{
    return warning("UnitTextManagement/UnitTextHandler", anyLine, function, text);
}

QString unknownTextTypeWarning(const char* function, const QString& unitType)
{
    return textWarning(function, QStringLiteral("Unknown unit type given ") + quoted(unitType));
}

QString unknownTextUnitWarning(const char* function, const QString& unit, const QString& unitType)
{
    return textWarning(function, QStringLiteral("Unknown unit given ") + quoted(unit) +
                                     QStringLiteral(" for unittype ") + quoted(unitType));
}

} // namespace

QStringList takeMessageTexts(LogCapture& log)
{
    QStringList texts;
    for (LoggedMessage message : log.take()) {
        if (!hasFixedLines(message.file) && message.line > 0)
            message.line = anyLine;
        texts.append(messageText(message));
    }
    return texts;
}

QString Expected::noDefaultUnit(const QString& unitType)
{
    return warning("UnitConversion/DefaultUnitHandler", anyLine,
                   "QString DefaultUnitHandler::getDefaultUnit(const QString&) const",
                   QStringLiteral("Cannot find default unit for unitType ") + quoted(unitType) +
                       QStringLiteral(" !"));
}

QStringList Expected::noDefaultUnitOfUnitLessType()
{
    const QString& fixedIdentifier = UnitManagerDefinitions::getUnitTypeUrlNoUnit();
    const QString onPlatform = typeNamed("NoUnit");
    return onPlatform == fixedIdentifier ? QStringList() : QStringList{noDefaultUnit(onPlatform)};
}

QString Expected::noConversion(Conversion conversion, const QString& unitType)
{
    const char* const text = "No conversion function given for unitType";
    if (conversion == Conversion::ToBase)
        return lookUpWarning(
            137, "bool UnitConversionLookUp::toBaseUnit(QVariant&, const QString&, const QString&) const",
            text, unitType);
    return lookUpWarning(
        152, "bool UnitConversionLookUp::fromBaseUnit(QVariant&, const QString&, const QString&) const", text,
        unitType);
}

QString Expected::noConversionForDecimalPlaces(const QString& unitType)
{
    return lookUpWarning(174,
                         "bool UnitConversionLookUp::getDecimalPlacesForUnit(const QString&, const QString&, "
                         "unsigned int&) const",
                         "No conversion function given for unitType", unitType);
}

QString Expected::noBaseUnit(const QString& unitType)
{
    return lookUpWarning(122, "QString UnitConversionLookUp::getBaseUnit(const QString&) const",
                         "No base unit given for unitType", unitType);
}

QString Expected::invalidType(Conversion conversion, const QString& typeName)
{
    return handlerWarning(conversion, 114, 162,
                          QStringLiteral("Invalid type given for conversion ") + typeName);
}

QString Expected::unknownUnit(Conversion conversion, const QString& unit, const QString& unitTypeKey)
{
    return handlerWarning(conversion, 132, 180,
                          QStringLiteral("Unknown unit ") + quoted(unit) +
                              QStringLiteral(" given for unitType ") + quoted(unitTypeKey));
}

QStringList Expected::notConverted(Conversion conversion, const QString& typeName, const QString& unit,
                                   const QString& unitTypeKey)
{
    return {invalidType(conversion, typeName), unknownUnit(conversion, unit, unitTypeKey)};
}

QString Expected::notRounded(const QString& streamedValue)
{
    return warning(
        "UnitManager", anyLine, "QVariant UnitManager::roundDouble(const QVariant&, unsigned int) const",
        QStringLiteral("Error on converting value to double ") + streamedValue + QStringLiteral(" !"));
}

QString Expected::notAFixedUnit(const QString& text)
{
    return warning("UnitManagerCore", anyLine,
                   "bool UnitManagerCore::extractUnitTypeAndUnit(const QString&, QString&, QString&) const",
                   QStringLiteral("Unable to get unit type for unit: ") + quoted(text) +
                       QStringLiteral(" !"));
}

QString Expected::unknownTextType(const QString& unitType)
{
    return unknownTextTypeWarning(getUnitText, unitType);
}

QString Expected::unknownTextUnit(const QString& unit, const QString& unitType)
{
    return unknownTextUnitWarning(getUnitText, unit, unitType);
}

QString Expected::unknownTextMapType(const QString& unitType)
{
    return unknownTextTypeWarning(getUnitTextJsonMap, unitType);
}

QString Expected::unknownTextMapUnit(const QString& unit, const QString& unitType)
{
    return unknownTextUnitWarning(getUnitTextJsonMap, unit, unitType);
}

QString Expected::noBaseUnitLabel(const QString& unitType)
{
    return textWarning("bool UnitTextHandler::initByJsonString(const QString&)",
                       QStringLiteral("No Base unit label given for ") + quoted(unitType));
}

QString Expected::invalidUnitDocument(const QString& streamedDocument)
{
    return warning("UnitConversion/UnitConversionLookUp", 75,
                   "bool UnitConversionLookUp::initByJsonString(const QString&)",
                   QStringLiteral("Conversion configuration invalid ") + quoted(streamedDocument));
}

QString Expected::invalidDefaultUnitDocument()
{
    return warning("UnitConversion/DefaultUnitHandler", anyLine,
                   "bool DefaultUnitHandler::initByJsonString(const QString&)",
                   QStringLiteral("DefaultUnit file is not valid"));
}
