#include "LabelsVerb.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <iterator>

#include "Console.h"
#include "OutputOptions.h"
#include "TextTable.h"
#include "UnitCatalogue.h"
#include "UnitManagerDefinitions.h"

namespace {

const char* const missingOption = "missing";

/// The units of all types, or of one, in display order.
QVector<Unit> unitsOf(const UnitCatalogue& catalogue, const QVector<UnitType>& types)
{
    QVector<Unit> units;
    for (const UnitType& type : types) {
        for (const QString& name : catalogue.units(type))
            units.append({type, name});
    }
    return units;
}

/// Those units that lack a label in the language. The unit-less type never does: its labels are empty on
/// purpose.
QVector<Unit> unitsWithout(const QString& language, const UnitCatalogue& catalogue,
                           const QVector<Unit>& units)
{
    QVector<Unit> lacking;
    std::copy_if(units.begin(), units.end(), std::back_inserter(lacking), [&](const Unit& unit) {
        return unit.type.id != UnitManagerDefinitions::getUnitTypeUrlNoUnit() &&
               !catalogue.labels(unit.type, unit.name).contains(language);
    });
    return lacking;
}

void printJson(const UnitCatalogue& catalogue, const QVector<Unit>& units)
{
    for (const Unit& unit : units) {
        QJsonObject texts;
        const QMap<QString, QString> labels = catalogue.labels(unit.type, unit.name);
        for (auto label = labels.begin(); label != labels.end(); ++label)
            texts.insert(label.key(), label.value());
        Console::printLine(
            OutputOptions::jsonLine({{"type", unit.type.name}, {"unit", unit.name}, {"labels", texts}}));
    }
}

void printTable(const UnitCatalogue& catalogue, const QVector<Unit>& units)
{
    const QStringList languages = catalogue.languages();
    TextTable table;
    table.addRow(QStringList{"type", "unit"} + languages);
    for (const Unit& unit : units) {
        const QMap<QString, QString> labels = catalogue.labels(unit.type, unit.name);
        QStringList cells{unit.type.name, unit.name};
        for (const QString& language : languages)
            cells.append(labels.value(language, "-"));
        table.addRow(cells);
    }
    for (const QString& line : table.lines())
        Console::printLine(line);
}

} // namespace

LabelsVerb::LabelsVerb()
    : CatalogueVerb({"labels",
                     "Lists the labels of units in every language.",
                     {{"TYPE", "Unit type, such as Pressure; all types when left out.", true}},
                     "The languages are those of the document. A label that is missing is shown as -.\n"
                     "A label that is a plain text, for all languages, belongs to the language *.\n"
                     "Units are in display order.\n\n"
                     "With --missing the exit code is 0 also if a label is missing: the list is the\n"
                     "answer, and nothing is printed if it is empty. NoUnit is never missing, because\n"
                     "its labels are empty on purpose.\n\n"
                     "Examples:\n"
                     "  unitmanager labels RelativeHumidity\n"
                     "  unitmanager labels --missing de"})
{}

void LabelsVerb::addOptions(QCommandLineParser& parser) const
{
    CatalogueVerb::addOptions(parser);
    parser.addOption({missingOption,
                      "List only units without a label in this very language; de does not count for de_AT.",
                      "LANGUAGE"});
    OutputOptions::addJson(parser, "type, unit, labels (an object with a text per language)");
}

Result<ExitCode> LabelsVerb::answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                                    const QStringList& arguments)
{
    QVector<UnitType> types = catalogue.unitTypes();
    if (!arguments.isEmpty()) {
        const Result<UnitType> type = catalogue.unitType(arguments[0]);
        if (!type)
            return type.error();
        types = {*type};
    }
    const QString missing = options.value(missingOption);
    if (options.isSet(missingOption) && missing.isEmpty())
        return wrongUsage("--missing must name a language");

    QVector<Unit> units = unitsOf(catalogue, types);
    if (!missing.isEmpty())
        units = unitsWithout(missing, catalogue, units);
    if (OutputOptions::isJson(options))
        printJson(catalogue, units);
    else if (!units.isEmpty())
        printTable(catalogue, units);
    return Succeeded;
}
