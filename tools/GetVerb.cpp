#include "GetVerb.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QJsonObject>

#include "CommonOptions.h"
#include "Console.h"
#include "KnownNames.h"
#include "OutputOptions.h"
#include "RunningService.h"

namespace {

const char* const stateOption = "state";

void printState(const RunningService::State& state, bool isJson)
{
    if (isJson) {
        Console::printLine(
            OutputOptions::jsonLine({{"version", state.version},
                                     {"state", state.state},
                                     {"checksum", OutputOptions::jsonText(state.checksum)},
                                     {"lastRefusal", OutputOptions::jsonText(state.lastRefusal)}}));
        return;
    }
    const auto orNone = [](const QString& value) {
        return value.isEmpty() ? QString("none") : value;
    };
    Console::printLine("version: " + state.version);
    Console::printLine("state: " + state.state);
    Console::printLine("checksum: " + orNone(state.checksum));
    Console::printLine("last refusal: " + orNone(state.lastRefusal));
}

} // namespace

GetVerb::GetVerb()
    : Verb({"get",
            "Prints an active document of the running service, or its state.",
            {{"DOCUMENT", "units, default-units or dependencies."}},
            "The document is printed exactly as it is served; on a terminal without control\n"
            "characters. The state is missing (no valid document yet), active (the file's\n"
            "content is served) or refused (the file is not usable, and the last valid\n"
            "document is served). The checksum is the SHA-256 of the document.\n\n"
            "Examples:\n"
            "  unitmanager get units > units.json\n"
            "  unitmanager get default-units --state --bus system"})
{}

void GetVerb::addOptions(QCommandLineParser& parser) const
{
    CommonOptions::addBus(parser);
    parser.addOption(
        {stateOption, "Print version, state, checksum and last refusal instead of the document."});
    OutputOptions::addJson(parser, "version, state, checksum, lastRefusal (null when there is none); "
                                   "with --state only");
}

Result<ExitCode> GetVerb::run(const QCommandLineParser& options, const QStringList& arguments)
{
    const auto kind = RunningService::kindNamed(arguments[0]);
    if (!kind)
        return wrongUsage(KnownNames::unknown("document", arguments[0], {},
                                              KnownNames::plain(RunningService::documentNames())));
    if (OutputOptions::isJson(options) && !options.isSet(stateOption))
        return wrongUsage("--json needs --state");
    const auto bus = CommonOptions::bus(options);
    if (!bus)
        return bus.error();
    const auto service = RunningService::find(*bus);
    if (!service)
        return service.error();

    if (options.isSet(stateOption)) {
        const auto state = service->state(*kind);
        if (!state)
            return state.error();
        printState(*state, OutputOptions::isJson(options));
        return Succeeded;
    }
    const auto text = service->text(*kind);
    if (!text)
        return text.error();
    Console::printDocument(*text);
    return Succeeded;
}
