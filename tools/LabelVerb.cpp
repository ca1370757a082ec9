#include "LabelVerb.h"

#include <QtCore/QJsonObject>

#include "Console.h"
#include "OutputOptions.h"
#include "UnitWords.h"

LabelVerb::LabelVerb()
    : CatalogueVerb({"label",
                     "Shows the label of a unit.",
                     {{"TYPE", UnitWords::typeDescription(), true},
                      {"UNIT", "Unit, such as Bar. TYPE alone means its default unit."}},
                     UnitWords::rules() + "\nA unit without label gives an empty line.\n\n"
                                          "Examples:\n"
                                          "  unitmanager label AbsoluteTemperature Kelvin --language de\n"
                                          "  unitmanager label psi"})
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
    const Result<UnitSelection> selection = UnitWords(catalogue, arguments).select(1);
    if (!selection)
        return selection.error();

    const UnitType& type = selection->type;
    const QString& unit = selection->units[0];
    const QString label = catalogue.label(type, unit, OutputOptions::language(options));
    Console::printLine(OutputOptions::isJson(options)
                           ? OutputOptions::jsonLine({{"type", type.name}, {"unit", unit}, {"label", label}})
                           : label);
    return Succeeded;
}
