#pragma once

#include <QtCore/QString>

#include <optional>

#include "DocumentFile.h"
#include "JsonText.h"

/// A document and the last good text of it. The file may be gone, half written or wrong: then the text that
/// was good before stays in force. What is taken and what is refused is logged, each content of the file
/// once.
class ConfigurationDocument
{
public:
    /// Says what is wrong with a document; nothing when it is good.
    using Rule = QString (*)(const JsonText& json);

    /// The largest file that is read, in bytes: 16 MiB.
    static constexpr qint64 maximumSize = 16LL * 1024 * 1024;

    /// Reads nothing yet.
    ///
    /// @param name what the document is called on the bus
    /// @param path its file
    ConfigurationDocument(const QString& name, const QString& path, Rule rule);

    const QString& name() const;
    const QString& path() const;
    /// The text in force; nothing while there was no good one.
    const std::optional<QString>& text() const;

    /// Reads the file. @return whether another text is in force than before.
    bool update();

private:
    JsonText check(const DocumentFile::Content& content) const;
    void logRefusal(const QString& problem) const;

    QString m_name;
    QString m_path;
    Rule m_rule;
    std::optional<DocumentFile::Content> m_content;
    std::optional<QString> m_text;
};
