#include "CheckedDocuments.h"

#include <QtCore/QCommandLineParser>

#include <algorithm>

#include "CommonOptions.h"
#include "Console.h"
#include "DocumentFile.h"
#include "RunningService.h"
#include "ShippedDocuments.h"
#include "Utf8.h"

namespace {

struct Kind
{
    DocumentKind kind;
    const char* option;
    const char* description;
    const char* shippedName;
};

const std::vector<Kind>& kinds()
{
    static const std::vector<Kind> table = {
        {DocumentKind::Units, "units", "Unit document.", "units.json"},
        {DocumentKind::DefaultUnits, "default-units", "Default-unit document.", "default-units.json"},
        {DocumentKind::Dependencies, "dependencies", "Dependency document.", "dependencies.json"}};
    return table;
}

} // namespace

void CheckedDocuments::addOptions(QCommandLineParser& parser)
{
    for (const Kind& kind : kinds())
        parser.addOption({kind.option, kind.description, "FILE"});
    CommonOptions::addOptionalBus(
        parser, "Check the active documents of the configuration service on this bus in place of files");
    CommonOptions::addMaximumSize(parser);
}

Result<CheckedDocuments> CheckedDocuments::read(const QCommandLineParser& options)
{
    const auto maximumSize = CommonOptions::maximumSize(options);
    if (!maximumSize)
        return maximumSize.error();
    const bool isAnyGiven = std::any_of(kinds().begin(), kinds().end(),
                                        [&options](const Kind& kind) { return options.isSet(kind.option); });
    if (CommonOptions::isBusGiven(options))
        return isAnyGiven ? wrongUsage("--bus cannot be combined with names of files")
                          : readFromService(options);
    CheckedDocuments result;
    for (const Kind& kind : kinds()) {
        if (options.isSet(kind.option))
            result.readFile(kind.kind, options.value(kind.option), *maximumSize);
        else if (!isAnyGiven)
            result.readFile(kind.kind, ShippedDocuments::path(kind.shippedName), *maximumSize);
    }
    return result;
}

Result<CheckedDocuments> CheckedDocuments::readFromService(const QCommandLineParser& options)
{
    const auto bus = CommonOptions::bus(options);
    if (!bus)
        return bus.error();
    CheckedDocuments result;
    const auto service = RunningService::find(*bus);
    if (!service) {
        result.reportUnreadable(service.error().reason);
        return result;
    }
    for (const Kind& kind : kinds()) {
        const auto text = service->text(kind.kind);
        if (text)
            result.m_documents.push_back(
                {kind.kind, "active " + RunningService::documentName(kind.kind), text->toUtf8()});
        else
            result.reportUnreadable(text.error().reason);
    }
    return result;
}

void CheckedDocuments::readFile(DocumentKind kind, const QString& path, int maximumSize)
{
    DocumentProblem problem;
    const auto bytes = DocumentFile::read(path, DocumentFile::Source::FileOrStream, maximumSize, problem);
    if (bytes)
        m_documents.push_back({kind, path, Utf8::withoutByteOrderMark(*bytes)});
    else
        reportUnreadable(problem.inFile(path));
}

void CheckedDocuments::reportUnreadable(const QString& reason)
{
    Console::printError(reason);
    m_hasUnreadable = true;
}

bool CheckedDocuments::hasUnreadable() const
{
    return m_hasUnreadable;
}

std::vector<Finding> CheckedDocuments::check(const DocumentChecker::Options& options) const
{
    std::vector<Finding> findings;
    DocumentSet set;
    for (const Document& document : m_documents) {
        DocumentProblem problem;
        auto& parsed = set.of(document.kind);
        parsed = JsonDocument::read(document.text, problem);
        if (!parsed)
            findings.push_back(DocumentChecker::readingFinding(document.kind, problem));
    }
    const std::vector<Finding> found = DocumentChecker::check(set, options);
    findings.insert(findings.end(), found.begin(), found.end());
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& left, const Finding& right) {
        return left.document < right.document;
    });
    return findings;
}

QString CheckedDocuments::name(DocumentKind kind) const
{
    return document(kind).name;
}

const QByteArray& CheckedDocuments::text(DocumentKind kind) const
{
    return document(kind).text;
}

const CheckedDocuments::Document& CheckedDocuments::document(DocumentKind kind) const
{
    return *std::find_if(m_documents.begin(), m_documents.end(),
                         [kind](const Document& document) { return document.kind == kind; });
}
