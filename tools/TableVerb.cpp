#include "TableVerb.h"

#include "Console.h"
#include "OutputOptions.h"
#include "TextTable.h"
#include "ValueArguments.h"
#include "ValueFormat.h"

TableVerb::TableVerb()
    : CatalogueVerb({"table",
                     "Shows a value in every unit of its type, in display order.",
                     {{"VALUE", "Number to convert."},
                      {"TYPE", "Unit type, such as Pressure, or a fixed unit, such as Pressure/Bar."},
                      {"FROM", "Unit of the value.", true}},
                     ValueArguments::rules() + "Example:\n"
                                               "  unitmanager table 21.5 AbsoluteTemperature DegreeCelsius"})
{}

void TableVerb::addOptions(QCommandLineParser& parser) const
{
    CatalogueVerb::addOptions(parser);
    ValueArguments::addOptions(parser);
}

Result<ExitCode> TableVerb::answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                                   const QStringList& arguments)
{
    const auto source = ValueArguments::source(catalogue, options, arguments);
    if (!source)
        return source.error();
    const Result<double> value = ValueArguments::value(arguments);
    if (!value)
        return value.error();

    TextTable table;
    for (const QString& unit : catalogue.units(source->type)) {
        const QString text = ValueFormat(catalogue, source->type, unit, options)
                                 .text(catalogue.convert(*value, source->type, source->unit, unit));
        // A JSON object already contains its unit.
        table.addRow(OutputOptions::isJson(options) ? QStringList{text} : QStringList{unit, text});
    }
    for (const QString& line : table.lines())
        Console::printLine(line);
    return Succeeded;
}
