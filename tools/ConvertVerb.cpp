#include "ConvertVerb.h"

#include <iostream>

#include "Console.h"
#include "ExitCode.h"
#include "LineReader.h"
#include "NumberText.h"
#include "ValueFormat.h"

namespace {

Failure lineFailure(qint64 line, const QString& text)
{
    return {QString("line %1: ").arg(line) + Console::quoted(text) + " is not " + NumberText::expectation()};
}

} // namespace

ConvertVerb::ConvertVerb()
    : ValueVerb({"convert",
                 "Converts a value from one unit to another.",
                 "VALUE TYPE FROM [TO]",
                 2,
                 {{"VALUE", "Number to convert; - reads one from every line of standard input."},
                  {"TYPE", "Unit type, such as Pressure, or a fixed unit, such as Pressure/Bar."},
                  {"FROM", "Unit of the value."},
                  {"TO", "Unit to convert to; the default unit when left out."}},
                 valueRules() +
                     "With - every line of input gives a line of output. Blank lines and lines that\n"
                     "begin with # are skipped. A line that is not a number gives a message with its\n"
                     "line number, and the next line is read; the exit code is then 1.\n\n"
                     "Examples:\n"
                     "  unitmanager convert 1234.56 Pressure HectoPascal Bar\n"
                     "  unitmanager convert - Pressure HectoPascal Bar --raw < values.txt"})
{}

int ConvertVerb::convert(const UnitCatalogue& catalogue, const Source& source,
                         const QCommandLineParser& options, const QStringList& arguments)
{
    const Result<QString> target = catalogue.unit(source.type, arguments.value(3));
    if (!target)
        return fail(target.error());
    const ValueFormat format(catalogue, source.type, *target, options);
    const auto convertedText = [&](double value) {
        return format.text(catalogue.convert(value, source.type, source.unit, *target));
    };

    if (arguments[0] == "-")
        return convertLines(convertedText);
    const auto value = NumberText::parse(arguments[0]);
    if (!value)
        return valueError(arguments[0]);
    Console::printLine(convertedText(*value));
    return Succeeded;
}

int ConvertVerb::convertLines(const std::function<QString(double)>& convertedText) const
{
    std::ios::sync_with_stdio(false);
    LineReader reader(std::cin);
    int exitCode = Succeeded;
    while (reader.next()) {
        const QString text = reader.text();
        const auto value = NumberText::parse(text);
        if (value && !Console::printLine(convertedText(*value)))
            return exitCode;
        if (!value && !text.isEmpty() && !text.startsWith('#'))
            exitCode = fail(lineFailure(reader.number(), text));
        // Flush before blocking, so that interactive or slow input gets each result immediately.
        if (reader.mayBlock())
            Console::flush();
    }
    return reader.hasFailed() ? fail({"cannot read standard input"}) : exitCode;
}
