#include "TableVerb.h"

#include "Console.h"
#include "ExitCode.h"
#include "NumberText.h"
#include "OutputOptions.h"
#include "TextTable.h"
#include "ValueFormat.h"

TableVerb::TableVerb()
    : ValueVerb({"table",
                 "Shows a value in every unit of its type, in display order.",
                 "VALUE TYPE FROM",
                 2,
                 {{"VALUE", "Number to convert."},
                  {"TYPE", "Unit type, such as Pressure, or a fixed unit, such as Pressure/Bar."},
                  {"FROM", "Unit of the value."}},
                 valueRules() + "Example:\n"
                                "  unitmanager table 21.5 AbsoluteTemperature DegreeCelsius"})
{}

int TableVerb::convert(const UnitCatalogue& catalogue, const Source& source,
                       const QCommandLineParser& options, const QStringList& arguments)
{
    const auto value = NumberText::parse(arguments[0]);
    if (!value)
        return valueError(arguments[0]);

    TextTable table;
    for (const QString& unit : catalogue.units(source.type)) {
        const QString text = ValueFormat(catalogue, source.type, unit, options)
                                 .text(catalogue.convert(*value, source.type, source.unit, unit));
        // A JSON object already contains its unit.
        table.addRow(OutputOptions::isJson(options) ? QStringList{text} : QStringList{unit, text});
    }
    for (const QString& line : table.lines())
        Console::printLine(line);
    return Succeeded;
}
