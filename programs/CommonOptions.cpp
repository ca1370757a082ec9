#include "CommonOptions.h"

#include <QtCore/QCommandLineParser>

#include "DocumentFile.h"
#include "DocumentProblem.h"
#include "PrintableText.h"

namespace {

const QString helpOption = QStringLiteral("help");
const QString versionOption = QStringLiteral("version");
const QString maximumSizeOption = QStringLiteral("max-size");
const QString busOption = QStringLiteral("bus");

bool isBus(const QString& text)
{
    return text == QLatin1String("session") || text == QLatin1String("system") ||
           text.contains(QLatin1Char(':'));
}

QString busOfTheDevice()
{
    const QString bus = qEnvironmentVariable("DEVICE_BUS");
    return bus.isEmpty() ? QStringLiteral("session") : bus;
}

} // namespace

void CommonOptions::addHelpAndVersion(QCommandLineParser& parser)
{
    parser.addOption({{QStringLiteral("h"), helpOption}, QStringLiteral("Show this help.")});
    parser.addOption({{QStringLiteral("v"), versionOption}, QStringLiteral("Show the program's version.")});
}

void CommonOptions::addMaximumSize(QCommandLineParser& parser)
{
    const QString limit = QString::number(DocumentFile::defaultLimit);
    parser.addOption({maximumSizeOption,
                      QStringLiteral("Largest document that is read; %1 when not given.").arg(limit),
                      QStringLiteral("BYTES"), limit});
}

Result<int> CommonOptions::maximumSize(const QCommandLineParser& options)
{
    const std::optional<int> size = DocumentFile::limitFromText(options.value(maximumSizeOption));
    if (!size)
        return wrongUsage(QStringLiteral("--max-size must be a number of bytes from 1 to %1")
                              .arg(DocumentFile::highestLimit));
    return *size;
}

void CommonOptions::addBus(QCommandLineParser& parser)
{
    parser.addOption({busOption,
                      QStringLiteral("The bus: session, system or a D-Bus address; when not given, what the "
                                     "variable DEVICE_BUS names, or the session bus."),
                      QStringLiteral("BUS")});
}

void CommonOptions::addOptionalBus(QCommandLineParser& parser, const QString& purpose)
{
    parser.addOption({busOption, purpose + QStringLiteral(": session, system or a D-Bus address."),
                      QStringLiteral("BUS")});
}

bool CommonOptions::isBusGiven(const QCommandLineParser& options)
{
    return options.isSet(busOption);
}

Result<QString> CommonOptions::bus(const QCommandLineParser& options)
{
    const QString bus = options.isSet(busOption) ? options.value(busOption) : busOfTheDevice();
    if (!isBus(bus))
        return wrongUsage(DocumentProblem::quoted(bus) +
                          QStringLiteral(" is not a valid bus: expected session, system or a D-Bus address"));
    return bus;
}

Failure CommonOptions::parserFailure(const QCommandLineParser& parser)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty())
        return wrongUsage("unknown option " + DocumentProblem::quoted(unknown.first()));
    // A clause in the form of the programs' own messages.
    QString clause = parser.errorText();
    clause[0] = clause[0].toLower();
    if (clause.endsWith(QLatin1Char('.')))
        clause.chop(1);
    return wrongUsage(clause.replace(QLatin1Char('\''), QLatin1Char('"')));
}

QString CommonOptions::helpText(const QCommandLineParser& parser, const QString& usage)
{
    // The first line of the generated help shows the program's path and only the positional arguments.
    const QString generated = parser.helpText().trimmed();
    return QStringLiteral("Usage: ") + usage + generated.mid(generated.indexOf(QLatin1Char('\n')));
}

QString CommonOptions::failureText(const QString& program, const Failure& failure, const QString& usage)
{
    const QString prefix = program + QStringLiteral(": ");
    QString text = prefix + PrintableText::of(failure.reason) + QLatin1Char('\n');
    if (failure.exitCode == WrongUsage)
        text += prefix + QStringLiteral("usage: ") + usage + QStringLiteral("; more with --help\n");
    return text;
}
