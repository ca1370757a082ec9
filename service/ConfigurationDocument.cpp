#include "ConfigurationDocument.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDebug>
#include <QtCore/QFileInfo>

#include <algorithm>

#include "FindingLog.h"

namespace {

QString checksumOf(const QString& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex());
}

DocumentSet setOf(DocumentKind kind, const JsonDocument& document)
{
    DocumentSet set;
    set.of(kind) = document;
    return set;
}

bool isError(const Finding& finding)
{
    return Rules::describe(finding.rule).severity == Severity::Error;
}

/// " (and 2 more errors)"; empty if there is only one.
QString otherErrorsText(const std::vector<Finding>& findings)
{
    const auto others = std::count_if(findings.begin(), findings.end(), isError) - 1;
    if (others == 0)
        return {};
    return others == 1 ? QStringLiteral(" (and one more error)")
                       : QStringLiteral(" (and %1 more errors)").arg(others);
}

} // namespace

ConfigurationDocument::ConfigurationDocument(const QString& name, DocumentKind kind, const QStringList& paths,
                                             int maximumSize)
    : m_name(name), m_kind(kind), m_paths(paths), m_path(paths.last()), m_maximumSize(maximumSize)
{}

const QString& ConfigurationDocument::name() const
{
    return m_name;
}

const QString& ConfigurationDocument::path() const
{
    return m_path;
}

const QStringList& ConfigurationDocument::paths() const
{
    return m_paths;
}

DocumentKind ConfigurationDocument::kind() const
{
    return m_kind;
}

const DocumentState& ConfigurationDocument::state() const
{
    return m_state;
}

bool ConfigurationDocument::update()
{
    const QString path = existingPath();
    const bool isOtherFile = m_path != path;
    m_path = path;
    DocumentProblem problem;
    const auto bytes = DocumentFile::read(m_path, DocumentFile::Source::RegularFile, m_maximumSize, problem);
    const Content content(bytes, problem.reason);
    if (m_content == content && !isOtherFile)
        return false;
    m_content = content;

    const auto document = bytes ? check(*bytes, problem) : std::nullopt;
    return document ? accept(document->text()) : refuse(problem);
}

/// The first path that exists, else the last one. A link without target exists: it is a mistake to report.
QString ConfigurationDocument::existingPath() const
{
    const auto exists = [](const QString& path) {
        const QFileInfo file(path);
        return file.exists() || file.isSymLink();
    };
    const auto found = std::find_if(m_paths.begin(), m_paths.end(), exists);
    return found == m_paths.end() ? m_paths.last() : *found;
}

/// @return no value, and the first error as problem, for a document with errors. Logs warnings otherwise.
std::optional<JsonDocument> ConfigurationDocument::check(const QByteArray& bytes,
                                                         DocumentProblem& problem) const
{
    auto document = JsonDocument::read(bytes, problem);
    if (!document)
        return {};
    const std::vector<Finding> findings = DocumentChecker::check(setOf(m_kind, *document), {});
    const auto error = std::find_if(findings.begin(), findings.end(), isError);
    if (error != findings.end()) {
        problem = {error->text() + otherErrorsText(findings), error->place};
        return {};
    }
    for (const Finding& finding : findings)
        FindingLog::writeWarning(m_name, m_path, finding);
    return document;
}

/// Serves a valid text from now on. @return whether the state has changed.
bool ConfigurationDocument::accept(const QString& text)
{
    const bool isNew = m_state.text != text;
    const bool wasRefused = !m_state.refusal.isEmpty();
    m_state = {text, isNew ? checksumOf(text) : m_state.checksum, {}};
    qInfo().noquote() << m_name + ':' << (isNew ? "loaded" : "unchanged in") << m_path;
    return isNew || wasRefused;
}

/// Keeps the last valid text. @return whether the state has changed.
bool ConfigurationDocument::refuse(const DocumentProblem& problem)
{
    const QString refusal = problem.inFile(m_path);
    const bool isNew = m_state.refusal != refusal;
    m_state.refusal = refusal;
    qWarning().noquote() << m_name + ": cannot use" << m_path + ':' << problem.withPlace() + ';'
                         << (m_state.text.isNull() ? "no document to serve"
                                                   : "keeping the last valid document");
    return isNew;
}
