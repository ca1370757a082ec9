#include "DocumentRules.h"

#include <algorithm>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "UnitManager.h"

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;

/// Properties of the root and notes for editors, such as "$schema", are not entries.
bool isEntry(const JsonValue& member)
{
    const QString name = member.name();
    return !name.startsWith(QLatin1Char('@')) && !name.startsWith(QLatin1Char('$'));
}

QString textOf(const JsonValue& node, const QString& property)
{
    const std::optional<JsonValue> value = node.member(property);
    return value ? value->string() : QString();
}

bool isSelection(const JsonValue& entry)
{
    return textOf(entry, Definitions::getKeyDataPropertyType()) == Definitions::getKeyDataTypeSelection() &&
           !textOf(entry, Definitions::getKeyDataPropertyValue()).isEmpty();
}

bool isListOfTexts(const JsonValue& entry)
{
    const std::vector<JsonValue> elements = entry.children();
    return entry.type() == JsonType::Array &&
           std::all_of(elements.begin(), elements.end(),
                       [](const JsonValue& text) { return text.type() == JsonType::String; });
}

/// Checks all entries. @param kind what an entry must be
bool areEntries(const JsonDocument& document, bool (*isRight)(const JsonValue&), const char* kind,
                DocumentProblem& problem)
{
    for (const JsonValue& member : document.root().children()) {
        if (!isEntry(member) || isRight(member))
            continue;
        problem = {"entry " + DocumentProblem::quoted(member.name()) + " is not " + kind, member.place()};
        return false;
    }
    return true;
}

} // namespace

bool DocumentRules::isUnits(const JsonDocument& document, DocumentProblem& problem)
{
    UnitManager units;
    if (units.updateUnitConversionByJsonString(document.text()))
        return true;
    problem = {units.getListofUnitTypes().isEmpty() ? QStringLiteral("contains no unit type")
                                                    : QStringLiteral("contains no unit label"),
               {}};
    return false;
}

bool DocumentRules::isDefaultUnits(const JsonDocument& document, DocumentProblem& problem)
{
    const std::vector<JsonValue> members = document.root().children();
    if (std::none_of(members.begin(), members.end(), isEntry)) {
        problem = {QStringLiteral("contains no default unit"), {}};
        return false;
    }
    return areEntries(document, isSelection, "a selection of a unit", problem);
}

bool DocumentRules::isDependencies(const JsonDocument& document, DocumentProblem& problem)
{
    return areEntries(document, isListOfTexts, "a list of texts", problem);
}
