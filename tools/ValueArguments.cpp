#include "ValueArguments.h"

#include "Console.h"
#include "NumberText.h"
#include "OutputOptions.h"

void ValueArguments::addOptions(QCommandLineParser& parser)
{
    OutputOptions::addRaw(parser);
    OutputOptions::addJson(parser, "type, unit, label, value (unrounded; null for nan and inf)");
    OutputOptions::addLanguage(parser);
}

QString ValueArguments::rules()
{
    return "VALUE has a decimal point in every locale and may have a sign and an exponent.\n"
           "nan means no value and is never converted. inf and -inf are kept in their own\n"
           "unit and become nan in any other; a result outside the range of a double is inf\n"
           "or -inf.\n\n" +
           UnitWords::rules() +
           "\nValues of a fixed unit, such as Pressure/Bar, and of NoUnit are never converted;\n"
           "FROM may then be left out.\n\n";
}

Result<double> ValueArguments::value(const QStringList& arguments)
{
    const auto value = NumberText::parse(arguments[0]);
    if (!value)
        return wrongUsage(Console::quoted(arguments[0]) + " is not " + NumberText::expectation());
    return *value;
}

Result<UnitSelection> ValueArguments::units(const UnitCatalogue& catalogue, int count,
                                            const QCommandLineParser& options, const QStringList& arguments)
{
    if (OutputOptions::isRaw(options) && OutputOptions::isJson(options))
        return wrongUsage("--raw and --json cannot be combined");
    const UnitWords words(catalogue, arguments.mid(1));
    if (words.lacksUnit())
        return wrongUsage("FROM is missing");
    return words.select(count);
}
