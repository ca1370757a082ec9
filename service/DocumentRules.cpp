#include "DocumentRules.h"

#include <QtCore/QJsonArray>

#include <algorithm>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "UnitManager.h"

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;

/// Properties of the root are not entries.
bool isProperty(const QString& key)
{
    return key.startsWith(QLatin1Char('@'));
}

bool isSelection(const QJsonValue& entry)
{
    return entry[Definitions::getKeyDataPropertyType()].toString() ==
               Definitions::getKeyDataTypeSelection() &&
           !entry[Definitions::getKeyDataPropertyValue()].toString().isEmpty();
}

bool isListOfTexts(const QJsonValue& entry)
{
    const QJsonArray array = entry.toArray();
    return entry.isArray() &&
           std::all_of(array.begin(), array.end(), [](const QJsonValue& text) { return text.isString(); });
}

/// @return the first invalid entry in the order of the keys; empty when all are valid.
QString wrongEntry(const QJsonObject& root, bool (*isRight)(const QJsonValue&))
{
    for (auto entry = root.begin(); entry != root.end(); ++entry) {
        if (!isProperty(entry.key()) && !isRight(entry.value()))
            return QStringLiteral("its entry \"%1\"").arg(entry.key());
    }
    return {};
}

} // namespace

QString DocumentRules::unitsProblem(const JsonText& json)
{
    UnitManager units;
    if (units.updateUnitConversionByJsonString(json.text))
        return {};
    return units.getListofUnitTypes().isEmpty() ? QStringLiteral("it contains no unit type")
                                                : QStringLiteral("it contains no unit label");
}

QString DocumentRules::defaultUnitsProblem(const JsonText& json)
{
    const QStringList keys = json.root.keys();
    if (std::all_of(keys.begin(), keys.end(), isProperty))
        return QStringLiteral("it contains no default unit");
    const QString wrong = wrongEntry(json.root, isSelection);
    return wrong.isEmpty() ? QString() : wrong + QStringLiteral(" is not a selection of a unit");
}

QString DocumentRules::dependenciesProblem(const JsonText& json)
{
    const QString wrong = wrongEntry(json.root, isListOfTexts);
    return wrong.isEmpty() ? QString() : wrong + QStringLiteral(" is not a list of texts");
}
