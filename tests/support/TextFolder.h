#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

/// A temporary folder for text files. It is removed with its content.
class TextFolder
{
public:
    /// Writes the file @p name, unless the text is null; ends the program if that fails. @return its path
    QString write(const QString& name, const QString& text) const;
    /// The path of @p name in the folder, whether it exists or not.
    QString path(const QString& name) const;

private:
    QTemporaryDir m_folder;
};
