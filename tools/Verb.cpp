#include "Verb.h"

#include <QtCore/QCommandLineParser>

#include "CommonOptions.h"
#include "Console.h"
#include "MessageFilter.h"

namespace {

/// Whether a word that starts like an option is a negative number.
bool isNegativeNumber(const QString& word)
{
    if (!word.startsWith('-') || word.size() < 2)
        return false;
    return word[1].isDigit() || word[1] == '.' || word == "-inf";
}

/// Puts a blank before negative numbers, so that the parser does not treat them as options.
QStringList withShieldedNumbers(QStringList words)
{
    for (QString& word : words) {
        if (isNegativeNumber(word))
            word.prepend(' ');
    }
    return words;
}

QStringList withoutShields(QStringList words)
{
    for (QString& word : words) {
        if (word.startsWith(" -"))
            word.remove(0, 1);
    }
    return words;
}

ExitCode show(const QString& text)
{
    Console::printText(text);
    return Succeeded;
}

} // namespace

QString Verb::versionText()
{
    return "unitmanager " UNITMANAGER_VERSION;
}

Verb::Verb(const Description& description) : m_description(description) {}

Verb::~Verb() = default;

const Verb::Description& Verb::about() const
{
    return m_description;
}

ExitCode Verb::execute(const QStringList& words)
{
    const Result<ExitCode> result = answer(words);
    return result ? *result : Console::report(result.error(), usageLine());
}

void Verb::declare(QCommandLineParser& parser) const
{
    parser.setApplicationDescription(m_description.summary);
    CommonOptions::addHelpAndVersion(parser);
    parser.addOption({"verbose", "Also print the library's messages on standard error."});
    addOptions(parser);
    for (const Argument& argument : m_description.arguments)
        parser.addPositionalArgument(argument.name, argument.description);
}

bool Verb::parse(QCommandLineParser& parser, const QStringList& words) const
{
    declare(parser);
    return parser.parse(QStringList("unitmanager") + withShieldedNumbers(words));
}

QStringList Verb::argumentsOf(const QCommandLineParser& parser)
{
    return withoutShields(parser.positionalArguments());
}

Result<ExitCode> Verb::answer(const QStringList& words)
{
    QCommandLineParser parser;
    const bool isUnderstood = parse(parser, words);
    if (parser.isSet("help"))
        return show(helpText(parser));
    if (parser.isSet("version"))
        return show(versionText());
    if (!isUnderstood)
        return CommonOptions::parserFailure(parser);

    const QStringList arguments = argumentsOf(parser);
    if (const auto failure = wrongCount(arguments))
        return *failure;
    if (parser.isSet("verbose"))
        MessageFilter::setVerbose();
    return run(parser, arguments);
}

std::optional<Failure> Verb::wrongCount(const QStringList& arguments) const
{
    QStringList required;
    for (const Argument& argument : m_description.arguments) {
        if (!argument.isOptional)
            required.append(argument.name);
    }
    if (arguments.size() < required.size())
        return wrongUsage(required[arguments.size()] + " is missing");
    const int most = m_description.arguments.size();
    const bool isLimited = most == 0 || !m_description.arguments.last().isList;
    if (isLimited && arguments.size() > most)
        return wrongUsage("too many arguments: " + Console::quoted(arguments[most]));
    return std::nullopt;
}

QString Verb::usageLine() const
{
    QString line = "unitmanager " + m_description.name + " [options]";
    for (const Argument& argument : m_description.arguments)
        line += (argument.isOptional ? " [" + argument.name + ']' : ' ' + argument.name) +
                (argument.isList ? "..." : "");
    return line;
}

QString Verb::helpText(const QCommandLineParser& parser) const
{
    return CommonOptions::helpText(parser, usageLine()) + "\n\n" + m_description.details;
}
