#include "CommandLine.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include "CommonOptions.h"
#include "DocumentProblem.h"

namespace {

const QString directoryOption = QStringLiteral("directory");

QString programName()
{
    return QCoreApplication::applicationName();
}

QString usage()
{
    return programName() + QStringLiteral(" [options] --directory DIR...");
}

CommandLine printing(const QString& text)
{
    return {CommandLine::Request::Print, text + QLatin1Char('\n'), {}, {}, {}};
}

CommandLine rejecting(const Failure& failure)
{
    return {CommandLine::Request::Reject,
            CommonOptions::failureText(programName(), failure, usage()),
            {},
            {},
            {}};
}

void declareOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Serves units.json, default-units.json and dependencies.json to the programs on a\n"
                       "bus, and announces when one of them has changed."));
    CommonOptions::addHelpAndVersion(parser);
    parser.addOption({directoryOption,
                      QStringLiteral("Directory of the documents. If given several times, each document is "
                                     "read from the first of the directories that has it."),
                      QStringLiteral("DIR")});
    CommonOptions::addBus(parser);
    CommonOptions::addMaximumSize(parser);
}

} // namespace

CommandLine CommandLine::read(const QStringList& arguments)
{
    QCommandLineParser parser;
    declareOptions(parser);
    const bool isUnderstood = parser.parse(arguments);
    if (parser.isSet(QStringLiteral("help")))
        return printing(CommonOptions::helpText(parser, usage()));
    if (parser.isSet(QStringLiteral("version")))
        return printing(programName() + QLatin1Char(' ') + QCoreApplication::applicationVersion());
    if (!isUnderstood)
        return rejecting(CommonOptions::parserFailure(parser));

    const QStringList words = parser.positionalArguments();
    if (!words.isEmpty())
        return rejecting(
            wrongUsage(QStringLiteral("too many arguments: ") + DocumentProblem::quoted(words.first())));
    const QStringList directories = parser.values(directoryOption);
    if (directories.isEmpty() || directories.contains(QString()))
        return rejecting(wrongUsage(QStringLiteral("--directory is missing")));
    const auto bus = CommonOptions::bus(parser);
    if (!bus)
        return rejecting(bus.error());
    const auto maximumSize = CommonOptions::maximumSize(parser);
    if (!maximumSize)
        return rejecting(maximumSize.error());
    return {Request::Serve, {}, directories, *bus, *maximumSize};
}
