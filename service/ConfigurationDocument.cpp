#include "ConfigurationDocument.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDebug>

namespace {

QString checksumOf(const QString& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex());
}

} // namespace

ConfigurationDocument::ConfigurationDocument(const QString& name, const QString& path, Rule rule,
                                             int maximumSize)
    : m_name(name), m_path(path), m_rule(rule), m_maximumSize(maximumSize)
{}

const QString& ConfigurationDocument::name() const
{
    return m_name;
}

const QString& ConfigurationDocument::path() const
{
    return m_path;
}

const DocumentState& ConfigurationDocument::state() const
{
    return m_state;
}

bool ConfigurationDocument::update()
{
    DocumentProblem problem;
    const auto bytes = DocumentFile::read(m_path, DocumentFile::Source::RegularFile, m_maximumSize, problem);
    const Content content(bytes, problem.reason);
    if (m_content == content)
        return false;
    m_content = content;

    const auto document = bytes ? check(*bytes, problem) : std::nullopt;
    return document ? accept(document->text()) : refuse(problem);
}

std::optional<JsonDocument> ConfigurationDocument::check(const QByteArray& bytes,
                                                         DocumentProblem& problem) const
{
    auto document = JsonDocument::read(bytes, problem);
    if (document && !m_rule(*document, problem))
        document.reset();
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
