#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

/// The service's installed files, in a directory of the test's own.
class InstalledService
{
public:
    /// Installs them. @return whether the installation succeeded.
    bool install();

    /// The files, relative to the prefix, in alphabetical order.
    QStringList files() const;
    /// The text of one of the files; empty when it cannot be read.
    QString text(const QString& file) const;
    /// The values that a key has in a file of lines "key=value", in their order; sections are not looked at.
    QStringList values(const QString& file, const QString& key) const;

private:
    QTemporaryDir m_prefix;
};
