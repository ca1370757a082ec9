#include "CommandLine.h"

#include <algorithm>

#include "CheckVerb.h"
#include "CompleteVerb.h"
#include "Console.h"
#include "ConvertVerb.h"
#include "DiffVerb.h"
#include "GetVerb.h"
#include "KnownNames.h"
#include "LabelVerb.h"
#include "LabelsVerb.h"
#include "TableVerb.h"
#include "TextTable.h"
#include "TypesVerb.h"
#include "UnitsVerb.h"
#include "WatchVerb.h"

CommandLine::CommandLine()
{
    m_verbs.push_back(std::make_unique<TypesVerb>());
    m_verbs.push_back(std::make_unique<UnitsVerb>());
    m_verbs.push_back(std::make_unique<ConvertVerb>());
    m_verbs.push_back(std::make_unique<TableVerb>());
    m_verbs.push_back(std::make_unique<LabelVerb>());
    m_verbs.push_back(std::make_unique<LabelsVerb>());
    m_verbs.push_back(std::make_unique<CheckVerb>());
    m_verbs.push_back(std::make_unique<GetVerb>());
    m_verbs.push_back(std::make_unique<DiffVerb>());
    m_verbs.push_back(std::make_unique<WatchVerb>());
    m_verbs.push_back(std::make_unique<CompleteVerb>(m_verbs));
}

ExitCode CommandLine::run(const QStringList& words) const
{
    const QString word = words.value(0);
    if (word == "--help" || word == "-h") {
        Console::printText(helpText());
        return Succeeded;
    }
    if (word == "--version" || word == "-v") {
        Console::printLine(Verb::versionText());
        return Succeeded;
    }
    if (Verb* verb = findVerb(word))
        return verb->execute(words.mid(1));
    return Console::report(wrongUsage(words.isEmpty() ? "VERB is missing; " + KnownNames::list(verbs())
                                                      : KnownNames::unknown("verb", word, {}, verbs())),
                           "unitmanager VERB [options] ...");
}

QVector<KnownName> CommandLine::verbs() const
{
    QStringList names;
    for (const auto& verb : m_verbs)
        names.append(verb->about().name);
    names.sort();
    return KnownNames::plain(names);
}

Verb* CommandLine::findVerb(const QString& name) const
{
    const auto found = std::find_if(m_verbs.begin(), m_verbs.end(),
                                    [&name](const auto& verb) { return verb->about().name == name; });
    return found == m_verbs.end() ? nullptr : found->get();
}

QString CommandLine::helpText() const
{
    TextTable table;
    for (const auto& verb : m_verbs)
        table.addRow({' ' + verb->about().name, verb->about().summary});
    return "Usage: unitmanager VERB [options] ...\n"
           "Converts values between the physical units of a measuring device.\n\n"
           "Verbs:\n" +
           table.lines().join('\n') +
           "\n\n"
           "Program and verbs have --help (-h) and --version (-v). Exit codes: 0 done; 1 a\n"
           "name, a document or a line of input was not usable; 2 the command line was wrong.";
}
