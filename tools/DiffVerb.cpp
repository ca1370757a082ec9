#include "DiffVerb.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QJsonObject>

#include "CommonOptions.h"
#include "Console.h"
#include "DocumentDifferences.h"
#include "JsonDocument.h"
#include "OutputOptions.h"
#include "RunningService.h"
#include "UnitCatalogue.h"

namespace {

/// A file or an active document, with its kind and what messages call it.
struct Side
{
    QString name;
    JsonDocument document;
    DocumentKind kind;
};

Result<Side> readFile(const QString& path, int maximumSize)
{
    const auto text = DocumentText::read(path, maximumSize);
    if (!text)
        return text.error();
    DocumentProblem problem;
    const auto document = JsonDocument::read(text->bytes, problem);
    if (!document)
        return Failure{problem.inFile(path)};
    const auto kind = DocumentDifferences::kindOf(*document);
    if (!kind)
        return Failure{path + ": is not clearly units, default units or dependencies"};
    return Side{path, *document, *kind};
}

QString jsonLine(const Difference& difference, const Side& file)
{
    QJsonObject object = difference.toJson(RunningService::documentName(file.kind));
    object.insert("file", file.name);
    return OutputOptions::jsonLine(object);
}

/// Compares one file and prints the differences. @return whether there are any
Result<bool> compare(const QString& path, int maximumSize, const RunningService& service, bool isJson)
{
    const auto file = readFile(path, maximumSize);
    if (!file)
        return file.error();
    const auto active = service.document(file->kind);
    if (!active)
        return active.error();
    const auto differences = DocumentDifferences::between(*active, file->document, file->kind);
    const QString prefix = RunningService::documentName(file->kind) + ": ";
    for (const Difference& difference : differences)
        Console::printLine(isJson ? jsonLine(difference, *file) : prefix + difference.text);
    return !differences.isEmpty();
}

ExitCode reportTrouble(const Failure& failure)
{
    Console::printError(failure.reason);
    return Unreadable;
}

} // namespace

DiffVerb::DiffVerb()
    : Verb(
          {"diff",
           "Compares files with the active documents of the running service.",
           {{"FILE", "Document of units, default units or dependencies; several may be given.", false, true}},
           "Prints what would change if the service used the file in place of its active\n"
           "document of the same kind, which is detected from the content. The comparison is\n"
           "by meaning: 1.0 equals 1; the order of members, line breaks and $schema make no\n"
           "difference. The order of lists does.\n\n"
           "Exit codes: 0 no difference; 1 differences; 2 a document cannot be read, or the\n"
           "command line was wrong.\n\n"
           "Example:\n"
           "  unitmanager diff units.json default-units.json --bus system"})
{}

void DiffVerb::addOptions(QCommandLineParser& parser) const
{
    CommonOptions::addBus(parser);
    CommonOptions::addMaximumSize(parser);
    OutputOptions::addJson(parser, "file, document, path, change (added, removed or changed), before, after "
                                   "(null when there is none)");
}

Result<ExitCode> DiffVerb::run(const QCommandLineParser& options, const QStringList& arguments)
{
    const auto bus = CommonOptions::bus(options);
    if (!bus)
        return bus.error();
    const auto maximumSize = CommonOptions::maximumSize(options);
    if (!maximumSize)
        return maximumSize.error();
    const auto service = RunningService::find(*bus);
    if (!service)
        return reportTrouble(service.error());

    ExitCode exitCode = Succeeded;
    for (const QString& path : arguments) {
        const auto isDifferent = compare(path, *maximumSize, *service, OutputOptions::isJson(options));
        if (!isDifferent)
            exitCode = reportTrouble(isDifferent.error());
        else if (*isDifferent && exitCode == Succeeded)
            exitCode = Failed;
    }
    return exitCode;
}
