#include "ConvertVerb.h"

#include <atomic>
#include <functional>
#include <iostream>
#include <optional>

#include "Console.h"
#include "LineReader.h"
#include "NumberText.h"
#include "ProgressLine.h"
#include "ValueArguments.h"
#include "ValueFormat.h"

namespace {

void reportLine(qint64 number, const QString& text)
{
    Console::printError(QString("line %1: ").arg(number) + Console::quoted(text) + " is not " +
                        NumberText::expectation());
}

/// Prints a line for every line of standard input, so that the lines pair.
///
/// @param outputLine formats the result; called without value for a line without number
Result<ExitCode> convertLines(const std::function<QString(std::optional<double>)>& outputLine)
{
    std::ios::sync_with_stdio(false);
    LineReader reader(std::cin);
    std::atomic<qint64> lineCount = 0;
    std::optional<ProgressLine> progress;
    // Someone who types lines, or sees the results, needs no other progress.
    if (!Console::isInputTerminal() && !Console::isOutputTerminal())
        progress.emplace([&lineCount] { return QString("%1 lines").arg(lineCount.load()); });
    ExitCode exitCode = Succeeded;
    while (reader.next()) {
        lineCount.store(reader.number(), std::memory_order_relaxed);
        const QString text = reader.text();
        const auto value = NumberText::parse(text);
        if (!Console::printLine(outputLine(value)))
            return exitCode;
        if (!value && !text.isEmpty() && !text.startsWith('#')) {
            reportLine(reader.number(), text);
            exitCode = Failed;
        }
        // Flush before blocking, so that interactive or slow input gets each result immediately.
        if (reader.mayBlock())
            Console::flush();
    }
    if (reader.hasFailed())
        return Failure{"cannot read standard input"};
    return exitCode;
}

} // namespace

ConvertVerb::ConvertVerb()
    : CatalogueVerb({"convert",
                     "Converts a value from one unit to another.",
                     {{"VALUE", "Number to convert; - reads one from every line of standard input."},
                      {"TYPE", UnitWords::typeDescription(), true},
                      {"FROM", "Unit of the value."},
                      {"TO", "Unit to convert to; the default unit when left out.", true}},
                     ValueArguments::rules() +
                         "With - every line of input gives exactly one line of output, so that the lines\n"
                         "pair. It is empty (with --json, its value is null) for a blank line, a line that\n"
                         "begins with #, and a line that is not a number. The latter also gives a message\n"
                         "with its line number; the exit code is then 1.\n\n"
                         "Examples:\n"
                         "  unitmanager convert 1234.56 Pressure HectoPascal Bar\n"
                         "  unitmanager convert 14.5 psi bar\n"
                         "  unitmanager convert - Pressure HectoPascal Bar --raw < values.txt"})
{}

void ConvertVerb::addOptions(QCommandLineParser& parser) const
{
    CatalogueVerb::addOptions(parser);
    ValueArguments::addOptions(parser);
}

Result<ExitCode> ConvertVerb::answer(const UnitCatalogue& catalogue, const QCommandLineParser& options,
                                     const QStringList& arguments)
{
    const auto selection = ValueArguments::units(catalogue, 2, options, arguments);
    if (!selection)
        return selection.error();
    const UnitType& type = selection->type;
    const QString& from = selection->units[0];
    const QString& to = selection->units[1];
    const ValueFormat format(catalogue, type, to, options);
    const auto outputLine = [&](std::optional<double> value) {
        return value ? format.text(catalogue.convert(*value, type, from, to)) : format.missing();
    };

    if (arguments[0] == "-")
        return convertLines(outputLine);
    const Result<double> value = ValueArguments::value(arguments);
    if (!value)
        return value.error();
    Console::printLine(outputLine(*value));
    return Succeeded;
}
