#include "CompleteVerb.h"

#include <QtCore/QCommandLineParser>

#include <algorithm>

#include "CatalogueVerb.h"
#include "CommonOptions.h"
#include "Console.h"
#include "DeclaredOptions.h"
#include "OutputOptions.h"
#include "PrintableText.h"
#include "Rule.h"
#include "RunningService.h"
#include "UnitCandidates.h"
#include "UnitCatalogue.h"

namespace {

/// What may be in the place of a word.
struct Completion
{
    QVector<Candidate> candidates;
    /// Whether it is the name of a file.
    bool isFile = false;
};

QVector<Candidate> plain(const QStringList& words, const QString& description)
{
    QVector<Candidate> candidates;
    for (const QString& word : words)
        candidates.append({word, description});
    return candidates;
}

QVector<Candidate> optionNames(const QVector<DeclaredOption>& options)
{
    QVector<Candidate> candidates;
    for (const DeclaredOption& option : options)
        candidates += plain(option.names, option.description);
    return candidates;
}

QVector<Candidate> withPrefix(const QString& prefix, QVector<Candidate> candidates)
{
    for (Candidate& candidate : candidates)
        candidate.word.prepend(prefix);
    return candidates;
}

/// Another language for a list such as "en,de".
QVector<Candidate> nextLanguages(const QStringList& languages, const QString& list)
{
    const QString complete = list.left(list.lastIndexOf(',') + 1);
    const QStringList used = complete.split(',');
    QStringList unused;
    std::copy_if(languages.begin(), languages.end(), std::back_inserter(unused),
                 [&used](const QString& language) { return !used.contains(language); });
    return withPrefix(complete, plain(unused, "language"));
}

/// The command line of a verb up to the word that is being typed.
class UnfinishedLine
{
public:
    /// @param words those after the verb, without the one that is being typed
    UnfinishedLine(const Verb& verb, const QStringList& words, const QString& current)
        : m_verb(verb), m_words(words), m_current(current)
    {
        // Incomplete: what cannot be understood yet is left out.
        verb.parse(m_parser, words);
        m_arguments = Verb::argumentsOf(m_parser);
        m_options = DeclaredOptions::of(m_parser);
    }

    Result<Completion> complete() const
    {
        if (m_words.contains("--"))
            return argument();
        if (!m_words.isEmpty() && !valueNameOf(m_words.last()).isEmpty())
            return value(valueNameOf(m_words.last()), m_current);
        if (!m_current.startsWith('-'))
            return argument();
        const int equals = m_current.indexOf('=');
        if (equals < 0)
            return Completion{optionNames(m_options)};
        const auto result = value(valueNameOf(m_current.left(equals)), m_current.mid(equals + 1));
        if (!result)
            return result.error();
        return Completion{withPrefix(m_current.left(equals + 1), result->candidates), result->isFile};
    }

private:
    QString valueNameOf(const QString& option) const
    {
        const auto found =
            std::find_if(m_options.begin(), m_options.end(), [&option](const DeclaredOption& declared) {
                return declared.names.contains(option);
            });
        return found == m_options.end() ? QString() : found->valueName;
    }

    Result<Completion> argument() const
    {
        const QVector<Verb::Argument>& expected = m_verb.about().arguments;
        const auto type = std::find_if(expected.begin(), expected.end(), [](const Verb::Argument& argument) {
            return argument.name == "TYPE";
        });
        const auto typeIndex = static_cast<int>(type - expected.begin());
        if (type != expected.end() && m_arguments.size() >= typeIndex)
            return units(m_arguments.mid(typeIndex), expected.size() - typeIndex - 1);
        if (m_arguments.size() < expected.size())
            return value(expected[m_arguments.size()].name, m_current);
        if (!expected.isEmpty() && expected.last().isList)
            return value(expected.last().name, m_current);
        return Completion();
    }

    /// Completes what the help calls @p name.
    Result<Completion> value(const QString& name, const QString& text) const
    {
        if (name == "FILE")
            return Completion{{}, true};
        if (name == "BUS")
            return Completion{plain({"session", "system"}, "bus")};
        if (name == "DOCUMENT")
            return Completion{plain(RunningService::documentNames(), "active document")};
        if (name == "SEVERITY")
            return Completion{plain(Rules::severityNames(), "least severity")};
        if (name == "WHEN")
            return Completion{plain(OutputOptions::colorNames(), "when to print colors")};
        if (name == "LANGUAGE" || name == "LIST")
            return languages(name == "LIST" ? text : QString());
        return Completion();
    }

    Result<Completion> languages(const QString& list) const
    {
        const auto catalogue = CatalogueVerb::loadCatalogue(m_parser);
        if (!catalogue)
            return catalogue.error();
        QStringList languages = catalogue->languages();
        // The key of a label without language.
        languages.removeAll("*");
        return Completion{nextLanguages(languages, list)};
    }

    Result<Completion> units(const QStringList& words, int count) const
    {
        const auto catalogue = CatalogueVerb::loadCatalogue(m_parser);
        if (!catalogue)
            return catalogue.error();
        return Completion{UnitCandidates::after(*catalogue, words, m_current, count)};
    }

    const Verb& m_verb;
    const QStringList m_words;
    const QString m_current;
    QCommandLineParser m_parser;
    QStringList m_arguments;
    QVector<DeclaredOption> m_options;
};

/// The verbs for people.
QVector<Candidate> verbNames(const CompleteVerb::Verbs& verbs)
{
    QVector<Candidate> candidates;
    for (const auto& verb : verbs) {
        if (verb->about().name != "complete")
            candidates.append({verb->about().name, verb->about().summary});
    }
    return candidates;
}

QVector<Candidate> programOptions()
{
    QCommandLineParser parser;
    CommonOptions::addHelpAndVersion(parser);
    return optionNames(DeclaredOptions::of(parser));
}

Result<Completion> complete(const CompleteVerb::Verbs& verbs, QStringList words)
{
    const QString current = words.takeLast();
    if (words.isEmpty())
        return Completion{current.startsWith('-') ? programOptions() : verbNames(verbs)};
    const QString name = words.takeFirst();
    const auto verb = std::find_if(verbs.begin(), verbs.end(),
                                   [&name](const auto& known) { return known->about().name == name; });
    return verb == verbs.end() ? Completion() : UnfinishedLine(**verb, words, current).complete();
}

} // namespace

CompleteVerb::CompleteVerb(const Verbs& verbs)
    : Verb({"complete",
            "Lists the words that may be typed next, for the completion of shells.",
            {{"WORD",
              "The command line after the program's name. The last word is the one that is being "
              "typed; it may be empty.",
              false, true}},
            "Prints a line for every word that may be in the place of the last one: the word,\n"
            "a tab and what it means. The words do not depend on the beginning that has been\n"
            "typed, except for options and after a slash. The line FILE, without a tab, means\n"
            "the name of a file.\n\n"
            "Example:\n"
            "  unitmanager complete -- convert 14.5 Pressure p"}),
      m_verbs(verbs)
{}

void CompleteVerb::addOptions(QCommandLineParser& /*parser*/) const {}

Result<ExitCode> CompleteVerb::run(const QCommandLineParser& /*options*/, const QStringList& arguments)
{
    const auto completion = complete(m_verbs, arguments);
    if (!completion)
        return completion.error();
    QString text;
    for (const Candidate& candidate : completion->candidates) {
        // A word that cannot be shown cannot be typed either.
        if (PrintableText::of(candidate.word) == candidate.word)
            text += candidate.word + '\t' + PrintableText::of(candidate.description) + '\n';
    }
    if (completion->isFile)
        text += "FILE\n";
    if (!text.isEmpty())
        Console::printDocument(text);
    return Succeeded;
}
