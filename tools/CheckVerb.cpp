#include "CheckVerb.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <cmath>
#include <optional>

#include "CheckedDocuments.h"
#include "Console.h"
#include "FindingText.h"
#include "LabelCheck.h"
#include "NumberText.h"
#include "OutputOptions.h"
#include "ProgressLine.h"
#include "SarifLog.h"

namespace {

const char* const languagesOption = "languages";
const char* const severityOption = "severity";
const char* const rangeOption = "range";
const char* const rulesOption = "rules";
const char* const sarifOption = "sarif";

/// Reads the options that concern the checks.
Result<DocumentChecker::Options> checkerOptions(const QCommandLineParser& options)
{
    DocumentChecker::Options result;
    if (options.isSet(languagesOption)) {
        result.languages = options.value(languagesOption).split(',');
        if (!std::all_of(result.languages.begin(), result.languages.end(), LabelCheck::isLanguage))
            return wrongUsage("--languages must be a list such as en,de,fr");
    }
    if (options.isSet(rangeOption)) {
        const QStringList limits = options.value(rangeOption).split(',');
        const auto lowest = NumberText::parse(limits.value(0));
        const auto highest = NumberText::parse(limits.value(1));
        if (limits.size() != 2 || !lowest || !highest || !(*lowest < *highest) ||
            !std::isfinite(*highest - *lowest))
            return wrongUsage("--range must be two numbers, the lower first, such as -40,180");
        result.lowest = *lowest;
        result.highest = *highest;
    }
    return result;
}

void printRules()
{
    for (const RuleDescription& rule : Rules::all())
        Console::printLine(QString("%1 %2 %3")
                               .arg(rule.name, -21)
                               .arg(Rules::severityName(rule.severity), -8)
                               .arg(rule.summary));
}

void printJson(const std::vector<Finding>& findings, const CheckedDocuments& documents)
{
    for (const Finding& finding : findings) {
        const RuleDescription& rule = Rules::describe(finding.rule);
        Console::printLine(OutputOptions::jsonLine({{"file", documents.name(finding.document)},
                                                    {"line", finding.place.line},
                                                    {"column", finding.place.column},
                                                    {"path", finding.path},
                                                    {"severity", Rules::severityName(rule.severity)},
                                                    {"rule", rule.name},
                                                    {"message", finding.message},
                                                    {"advice", finding.advice}}));
    }
}

void print(const std::vector<Finding>& findings, const CheckedDocuments& documents,
           const QCommandLineParser& options)
{
    if (OutputOptions::isJson(options))
        printJson(findings, documents);
    else if (options.isSet(sarifOption))
        Console::printText(OutputOptions::escaped(SarifLog::text(findings, documents)));
    else if (!findings.empty() || !documents.hasUnreadable())
        FindingText::print(findings, documents);
}

/// The findings of at least a severity.
std::vector<Finding> withSeverity(std::vector<Finding> findings, Severity least)
{
    const auto isLess = [least](const Finding& finding) {
        return Rules::describe(finding.rule).severity > least;
    };
    findings.erase(std::remove_if(findings.begin(), findings.end(), isLess), findings.end());
    return findings;
}

} // namespace

CheckVerb::CheckVerb()
    : Verb({"check",
            "Finds mistakes in documents.",
            {},
            "Checks the given documents, alone and together; without any, the product's own or\n"
            "the shipped ones. A finding has a place, a path in the document, a severity and a\n"
            "rule. The configuration service refuses a document with an error, logs warnings and\n"
            "ignores notes.\n\n"
            "Exit codes: 0 no finding; 1 findings; 2 a document cannot be read, or the command\n"
            "line was wrong.\n\n"
            "Examples:\n"
            "  unitmanager check --units units.json --default-units default-units.json\n"
            "  unitmanager check --units units.json --languages en,de,fr --severity warning\n"
            "  unitmanager check --bus system"})
{}

void CheckVerb::addOptions(QCommandLineParser& parser) const
{
    CheckedDocuments::addOptions(parser);
    parser.addOption({languagesOption,
                      "Languages that every label must have, such as en,de; those of the document when not "
                      "given.",
                      "LIST"});
    parser.addOption({severityOption,
                      "Least severity that is reported: error, warning or note (the default).", "SEVERITY",
                      "note"});
    parser.addOption({rangeOption,
                      "Values in base units between which polynomials of degree 2 and higher are examined; "
                      "0,100 when not given.",
                      "LOW,HIGH"});
    parser.addOption({rulesOption, "List the rules instead."});
    OutputOptions::addJson(parser, "file, line, column, path, severity, rule, message, advice");
    parser.addOption({sarifOption, "Print a SARIF 2.1.0 log."});
    OutputOptions::addColor(parser);
}

Result<ExitCode> CheckVerb::run(const QCommandLineParser& options, const QStringList& /*arguments*/)
{
    if (options.isSet(rulesOption)) {
        printRules();
        return Succeeded;
    }
    if (OutputOptions::isJson(options) && options.isSet(sarifOption))
        return wrongUsage("--json and --sarif cannot be combined");
    const auto least = Rules::severityFromName(options.value(severityOption));
    if (!least)
        return wrongUsage("--severity must be error, warning or note");
    const auto color = OutputOptions::color(options);
    if (!color)
        return color.error();
    Console::setColor(*color);
    const auto checks = checkerOptions(options);
    if (!checks)
        return checks.error();
    std::optional<ProgressLine> progress([] { return QString("checking"); });
    const auto documents = CheckedDocuments::read(options);
    if (!documents)
        return documents.error();

    const std::vector<Finding> findings = withSeverity(documents->check(*checks), *least);
    progress.reset();
    print(findings, *documents, options);
    if (documents->hasUnreadable())
        return Unreadable;
    return findings.empty() ? Succeeded : Failed;
}
