#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

/// The service's installed files, in a directory of the test.
class InstalledService
{
public:
    /// Installs the files. @return whether the installation succeeded.
    bool install();

    /// The files, relative to the prefix, in alphabetical order.
    QStringList files() const;
    /// The text of a file; empty if it cannot be read.
    QString text(const QString& file) const;
    /// The values of a key in a file of lines "key=value", in order; sections are ignored.
    QStringList values(const QString& file, const QString& key) const;

private:
    QTemporaryDir m_prefix;
};
