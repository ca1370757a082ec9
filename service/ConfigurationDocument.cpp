#include "ConfigurationDocument.h"

#include <QtCore/QDebug>

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

const std::optional<QString>& ConfigurationDocument::text() const
{
    return m_text;
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
    if (!document) {
        logRefusal(problem);
        return false;
    }
    const QString text = document->text();
    const bool isNew = m_text != text;
    m_text = text;
    qInfo().noquote() << m_name + ':' << (isNew ? "loaded" : "unchanged in") << m_path;
    return isNew;
}

std::optional<JsonDocument> ConfigurationDocument::check(const QByteArray& bytes,
                                                         DocumentProblem& problem) const
{
    auto document = JsonDocument::read(bytes, problem);
    if (document && !m_rule(*document, problem))
        document.reset();
    return document;
}

void ConfigurationDocument::logRefusal(const DocumentProblem& problem) const
{
    qWarning().noquote() << m_name + ": cannot use" << m_path + ':' << problem.withPlace() + ';'
                         << (m_text ? "keeping the last valid document" : "no document to serve");
}
