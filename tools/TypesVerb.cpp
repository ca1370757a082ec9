#include "TypesVerb.h"

#include <QtCore/QJsonObject>

#include "Console.h"
#include "OutputOptions.h"
#include "UnitCatalogue.h"

TypesVerb::TypesVerb()
    : CatalogueVerb({"types",
                     "Lists the unit types by name.",
                     {},
                     "Example:\n"
                     "  unitmanager types --json"})
{}

void TypesVerb::addOptions(QCommandLineParser& parser) const
{
    CatalogueVerb::addOptions(parser);
    OutputOptions::addJson(parser, "type, baseUnit, defaultUnit (null when there is none)");
}

Result<ExitCode> TypesVerb::answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                                   const QStringList& /*arguments*/)
{
    for (const UnitType& type : catalogue.unitTypes()) {
        const QJsonObject object{{"type", type.name},
                                 {"baseUnit", OutputOptions::jsonText(catalogue.baseUnit(type))},
                                 {"defaultUnit", OutputOptions::jsonText(catalogue.defaultUnit(type))}};
        Console::printLine(OutputOptions::isJson(options) ? OutputOptions::jsonLine(object) : type.name);
    }
    return Succeeded;
}
