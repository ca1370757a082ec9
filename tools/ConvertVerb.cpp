#include "ConvertVerb.h"

#include <functional>
#include <iostream>

#include "Console.h"
#include "LineReader.h"
#include "NumberText.h"
#include "ValueArguments.h"
#include "ValueFormat.h"

namespace {

void reportLine(qint64 number, const QString& text)
{
    Console::printError(QString("line %1: ").arg(number) + Console::quoted(text) + " is not " +
                        NumberText::expectation());
}

/// Converts the values on standard input, one per line.
Result<ExitCode> convertLines(const std::function<QString(double)>& convertedText)
{
    std::ios::sync_with_stdio(false);
    LineReader reader(std::cin);
    ExitCode exitCode = Succeeded;
    while (reader.next()) {
        const QString text = reader.text();
        const auto value = NumberText::parse(text);
        if (value && !Console::printLine(convertedText(*value)))
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
                      {"TYPE", "Unit type, such as Pressure, or a fixed unit, such as Pressure/Bar."},
                      {"FROM", "Unit of the value.", true},
                      {"TO", "Unit to convert to; the default unit when left out.", true}},
                     ValueArguments::rules() +
                         "With - every line of input gives a line of output. Blank lines and lines that\n"
                         "begin with # are skipped. A line that is not a number gives a message with its\n"
                         "line number, and the next line is read; the exit code is then 1.\n\n"
                         "Examples:\n"
                         "  unitmanager convert 1234.56 Pressure HectoPascal Bar\n"
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
    const auto source = ValueArguments::source(catalogue, options, arguments);
    if (!source)
        return source.error();
    const Result<QString> target = catalogue.unit(source->type, arguments.value(3));
    if (!target)
        return target.error();
    const ValueFormat format(catalogue, source->type, *target, options);
    const auto convertedText = [&](double value) {
        return format.text(catalogue.convert(value, source->type, source->unit, *target));
    };

    if (arguments[0] == "-")
        return convertLines(convertedText);
    const Result<double> value = ValueArguments::value(arguments);
    if (!value)
        return value.error();
    Console::printLine(convertedText(*value));
    return Succeeded;
}
