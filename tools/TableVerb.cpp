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
                      {"TYPE", UnitWords::typeDescription(), true},
                      {"FROM", "Unit of the value."}},
                     ValueArguments::rules() + "Examples:\n"
                                               "  unitmanager table 21.5 AbsoluteTemperature DegreeCelsius\n"
                                               "  unitmanager table 1 atm"})
{}

void TableVerb::addOptions(QCommandLineParser& parser) const
{
    CatalogueVerb::addOptions(parser);
    ValueArguments::addOptions(parser);
}

Result<ExitCode> TableVerb::answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                                   const QStringList& arguments)
{
    const auto selection = ValueArguments::units(catalogue, 1, options, arguments);
    if (!selection)
        return selection.error();
    const Result<double> value = ValueArguments::value(arguments);
    if (!value)
        return value.error();

    TextTable table;
    for (const QString& unit : catalogue.units(selection->type)) {
        const QString text = ValueFormat(catalogue, selection->type, unit, options)
                                 .text(catalogue.convert(*value, selection->type, selection->units[0], unit));
        // A JSON object already contains its unit.
        table.addRow(OutputOptions::isJson(options) ? QStringList{text} : QStringList{unit, text});
    }
    for (const QString& line : table.lines())
        Console::printLine(line);
    return Succeeded;
}
