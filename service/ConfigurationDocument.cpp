#include "ConfigurationDocument.h"

#include <QtCore/QDebug>

ConfigurationDocument::ConfigurationDocument(const QString& name, const QString& path, Rule rule)
    : m_name(name), m_path(path), m_rule(rule)
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
    const DocumentFile::Content content = DocumentFile::read(m_path, maximumSize);
    if (m_content == content)
        return false;
    m_content = content;

    const JsonText json = check(content);
    if (!json.problem.isEmpty()) {
        logRefusal(json.problem);
        return false;
    }
    const bool isNew = m_text != json.text;
    m_text = json.text;
    qInfo().noquote() << m_name + ':' << (isNew ? "loaded" : "unchanged in") << m_path;
    return isNew;
}

JsonText ConfigurationDocument::check(const DocumentFile::Content& content) const
{
    if (!content.problem.isEmpty())
        return {{}, {}, content.problem};
    if (content.bytes.size() > maximumSize)
        return {{}, {}, QStringLiteral("it is larger than %1 bytes").arg(maximumSize)};
    JsonText json = JsonText::fromBytes(content.bytes);
    if (json.problem.isEmpty())
        json.problem = m_rule(json);
    return json;
}

void ConfigurationDocument::logRefusal(const QString& problem) const
{
    qWarning().noquote() << m_name + ": cannot use" << m_path + ':' << problem + ';'
                         << (m_text ? "keeping the last valid document" : "no document to serve");
}
