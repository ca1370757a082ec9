#include "DocumentChecker.h"

#include <iterator>

#include "DefaultUnitsCheck.h"
#include "DependenciesCheck.h"
#include "Findings.h"
#include "UnitManager.h"
#include "UnitsCheck.h"

namespace {

using Kind = DocumentProblem::Kind;

Rule ruleOf(Kind kind)
{
    switch (kind) {
    case Kind::Encoding:
        return Rule::Encoding;
    case Kind::Nesting:
        return Rule::Nesting;
    case Kind::DuplicateName:
        return Rule::DuplicateName;
    case Kind::NumberOverflow:
        return Rule::NumberOverflow;
    case Kind::Empty:
        return Rule::DocumentEmpty;
    case Kind::File:
    case Kind::Syntax:
        break;
    }
    return Rule::Syntax;
}

void append(std::vector<Finding>& findings, std::vector<Finding> more)
{
    findings.insert(findings.end(), std::make_move_iterator(more.begin()),
                    std::make_move_iterator(more.end()));
}

std::vector<Finding> checkUnits(const JsonDocument& document, const UnitManager& library, bool isLoaded,
                                const DocumentChecker::Options& options)
{
    Findings findings(DocumentKind::Units, document);
    UnitsCheck(document, library, options, findings).run();
    if (!isLoaded && !findings.hasError())
        findings.addForDocument(Rule::DocumentRefused,
                                library.getListofUnitTypes().isEmpty()
                                    ? QStringLiteral("the library finds no unit type in the document")
                                    : QStringLiteral("the library finds no unit label in the document"));
    return findings.take();
}

} // namespace

QString Finding::text() const
{
    return advice.isEmpty() ? message : message + "; " + advice;
}

std::optional<JsonDocument>& DocumentSet::of(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::Units:
        return units;
    case DocumentKind::DefaultUnits:
        return defaultUnits;
    case DocumentKind::Dependencies:
        break;
    }
    return dependencies;
}

Finding DocumentChecker::readingFinding(DocumentKind document, const DocumentProblem& problem)
{
    const TextPlace start{1, 1};
    return {document, ruleOf(problem.kind), problem.place.line > 0 ? problem.place : start,
            {},       problem.reason,       {}};
}

std::vector<Finding> DocumentChecker::check(const DocumentSet& documents, const Options& options)
{
    std::vector<Finding> result;
    UnitManager library;
    const UnitManager* units = nullptr;
    if (documents.units) {
        const bool isLoaded = library.updateUnitConversionByJsonString(documents.units->text());
        units = &library;
        append(result, checkUnits(*documents.units, library, isLoaded, options));
    }
    if (documents.defaultUnits) {
        Findings findings(DocumentKind::DefaultUnits, *documents.defaultUnits);
        DefaultUnitsCheck(*documents.defaultUnits, units, findings).run();
        append(result, findings.take());
    }
    if (documents.dependencies) {
        Findings findings(DocumentKind::Dependencies, *documents.dependencies);
        DependenciesCheck(*documents.dependencies, units, findings).run();
        append(result, findings.take());
    }
    return result;
}
