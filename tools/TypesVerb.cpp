#include "TypesVerb.h"

#include <QtCore/QJsonObject>

#include "Console.h"
#include "ExitCode.h"
#include "OutputOptions.h"
#include "UnitCatalogue.h"

TypesVerb::TypesVerb()
    : CatalogueVerb({"types",
                     "Lists the unit types by name.",
                     "",
                     0,
                     {},
                     "Example:\n"
                     "  unitmanager types --json"})
{}

void TypesVerb::addOptions(QCommandLineParser& parser) const
{
    CatalogueVerb::addOptions(parser);
    OutputOptions::addJson(parser, "type, baseUnit, defaultUnit (null when there is none)");
}

int TypesVerb::answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
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
