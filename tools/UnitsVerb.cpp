#include "UnitsVerb.h"

#include <QtCore/QJsonObject>

#include "Console.h"
#include "OutputOptions.h"
#include "TextTable.h"
#include "UnitCatalogue.h"

UnitsVerb::UnitsVerb()
    : CatalogueVerb({"units",
                     "Lists the units of a unit type with their labels, in display order.",
                     {{"TYPE", "Unit type, such as Pressure."}},
                     "Example:\n"
                     "  unitmanager units Pressure"})
{}

void UnitsVerb::addOptions(QCommandLineParser& parser) const
{
    CatalogueVerb::addOptions(parser);
    OutputOptions::addJson(parser, "type, unit, label, decimalPlaces (null when values are never rounded), "
                                   "isBaseUnit, isDefaultUnit");
    OutputOptions::addLanguage(parser);
}

Result<ExitCode> UnitsVerb::answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                                   const QStringList& arguments)
{
    const Result<UnitType> type = catalogue.unitType(arguments[0]);
    if (!type)
        return type.error();
    if (OutputOptions::isJson(options))
        printJson(catalogue, *type, OutputOptions::language(options));
    else
        printTable(catalogue, *type, OutputOptions::language(options));
    return Succeeded;
}

void UnitsVerb::printJson(const UnitCatalogue& catalogue, const UnitType& type, const QString& language) const
{
    for (const QString& unit : catalogue.units(type)) {
        const auto places = catalogue.decimalPlaces(type, unit);
        Console::printLine(OutputOptions::jsonLine(
            {{"type", type.name},
             {"unit", unit},
             {"label", catalogue.label(type, unit, language)},
             {"decimalPlaces", places ? QJsonValue(static_cast<double>(*places)) : QJsonValue()},
             {"isBaseUnit", unit == catalogue.baseUnit(type)},
             {"isDefaultUnit", unit == catalogue.defaultUnit(type)}}));
    }
}

void UnitsVerb::printTable(const UnitCatalogue& catalogue, const UnitType& type,
                           const QString& language) const
{
    TextTable table;
    for (const QString& unit : catalogue.units(type)) {
        QStringList roles;
        if (unit == catalogue.baseUnit(type))
            roles.append("base unit");
        if (unit == catalogue.defaultUnit(type))
            roles.append("default unit");
        table.addRow({unit, catalogue.label(type, unit, language), roles.join(", ")});
    }
    for (const QString& line : table.lines())
        Console::printLine(line);
}
