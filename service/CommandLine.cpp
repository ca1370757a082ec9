#include "CommandLine.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include "DocumentFile.h"

namespace {

CommandLine printing(const QString& text)
{
    return {CommandLine::Request::Print, text, {}, {}, {}};
}

CommandLine rejecting(const QString& reason)
{
    return {CommandLine::Request::Reject, reason + QStringLiteral("\nTry --help.\n"), {}, {}, {}};
}

} // namespace

CommandLine CommandLine::read(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Serves units.json, default-units.json and dependencies.json to the programs on a bus, and "
        "announces when one of them has changed."));
    const QCommandLineOption directory(QStringLiteral("directory"),
                                       QStringLiteral("Directory of the documents."), QStringLiteral("DIR"));
    const QCommandLineOption bus(
        QStringLiteral("bus"),
        QStringLiteral("Bus to serve on: session (the default), system, or an address."),
        QStringLiteral("session|system|ADDRESS"), QStringLiteral("session"));
    const QCommandLineOption maximumSize(
        QStringLiteral("max-size"),
        QStringLiteral("Largest document that is read; %1 when not given.").arg(DocumentFile::defaultLimit),
        QStringLiteral("BYTES"), QString::number(DocumentFile::defaultLimit));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Prints this."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Prints the version."));
    parser.addOptions({directory, bus, maximumSize, help, version});

    if (!parser.parse(arguments))
        return rejecting(parser.errorText());
    if (parser.isSet(help))
        return printing(parser.helpText());
    if (parser.isSet(version))
        return printing(QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(),
                                                      QCoreApplication::applicationVersion()));
    if (!parser.positionalArguments().isEmpty())
        return rejecting(
            QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst()));
    if (parser.value(directory).isEmpty())
        return rejecting(QStringLiteral("No directory given."));
    if (parser.value(bus).isEmpty())
        return rejecting(QStringLiteral("No bus given."));
    const std::optional<int> limit = DocumentFile::limitFromText(parser.value(maximumSize));
    if (!limit)
        return rejecting(QStringLiteral("The value of --max-size must be a number of bytes from 1 to %1.")
                             .arg(DocumentFile::highestLimit));
    return {Request::Serve, {}, parser.value(directory), parser.value(bus), *limit};
}
