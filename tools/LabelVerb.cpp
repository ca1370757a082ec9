#include "LabelVerb.h"

#include <QtCore/QJsonObject>

#include "Console.h"
#include "OutputOptions.h"
#include "UnitCatalogue.h"

LabelVerb::LabelVerb()
    : CatalogueVerb({"label",
                     "Shows the label of a unit.",
                     {{"TYPE", "Unit type, such as Pressure, or a fixed unit, such as Pressure/Bar."},
                      {"UNIT", "Unit, such as Bar; the default unit when left out.", true}},
                     "A unit without label gives an empty line.\n\n"
                     "Example:\n"
                     "  unitmanager label AbsoluteTemperature Kelvin --language de"})
{}

void LabelVerb::addOptions(QCommandLineParser& parser) const
{
    CatalogueVerb::addOptions(parser);
    OutputOptions::addJson(parser, "type, unit, label");
    OutputOptions::addLanguage(parser);
}

Result<ExitCode> LabelVerb::answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                                   const QStringList& arguments)
{
    const Result<UnitType> type = catalogue.unitType(arguments[0]);
    if (!type)
        return type.error();
    const Result<QString> unit = catalogue.unit(*type, arguments.value(1));
    if (!unit)
        return unit.error();

    const QString label = catalogue.label(*type, *unit, OutputOptions::language(options));
    Console::printLine(
        OutputOptions::isJson(options)
            ? OutputOptions::jsonLine({{"type", type->name}, {"unit", *unit}, {"label", label}})
            : label);
    return Succeeded;
}
