#include "ValueVerb.h"

#include "Console.h"
#include "NumberText.h"
#include "OutputOptions.h"

void ValueVerb::addOptions(QCommandLineParser& parser) const
{
    CatalogueVerb::addOptions(parser);
    OutputOptions::addRaw(parser);
    OutputOptions::addJson(parser, "type, unit, label, value (unrounded; null for nan and inf)");
    OutputOptions::addLanguage(parser);
}

int ValueVerb::answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                      const QStringList& arguments)
{
    if (OutputOptions::isRaw(options) && OutputOptions::isJson(options))
        return usageError("--raw and --json cannot be combined");
    const Result<UnitType> type = catalogue.unitType(arguments[1]);
    if (!type)
        return fail(type.error());
    if (arguments.size() < 3 && type->fixedUnit.isEmpty())
        return usageError("FROM is missing");
    const Result<QString> unit = catalogue.unit(*type, arguments.value(2));
    if (!unit)
        return fail(unit.error());
    return convert(catalogue, {*type, *unit}, options, arguments);
}

int ValueVerb::valueError(const QString& text) const
{
    return usageError(Console::quoted(text) + " is not " + NumberText::expectation());
}

QString ValueVerb::valueRules()
{
    return "VALUE has a decimal point in every locale and may have a sign and an exponent.\n"
           "nan means no value and is never converted; inf and -inf are valid values. An\n"
           "empty unit name means the default unit. Values of a fixed unit, such as\n"
           "Pressure/Bar, and of NoUnit are never converted; FROM may then be left out.\n\n";
}
