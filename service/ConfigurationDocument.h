#pragma once

#include <QtCore/QString>

#include <optional>

#include "DocumentFile.h"
#include "JsonText.h"

/// A document and its last valid text. If the file is missing, incomplete or invalid, the last valid text
/// stays active. Each loaded or refused content of the file is logged once.
class ConfigurationDocument
{
public:
    /// @return what is wrong with a document; empty when it is valid.
    using Rule = QString (*)(const JsonText& json);

    /// The largest file that is read, in bytes: 16 MiB.
    static constexpr qint64 maximumSize = 16LL * 1024 * 1024;

    /// Does not read the file yet.
    ///
    /// @param name name of the document on the bus
    /// @param path path of its file
    ConfigurationDocument(const QString& name, const QString& path, Rule rule);

    const QString& name() const;
    const QString& path() const;
    /// The active text; no value until a valid one was read.
    const std::optional<QString>& text() const;

    /// Reads the file. @return whether the active text has changed.
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
