#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

class QCommandLineParser;

/// An option of a command line.
struct DeclaredOption
{
    /// As typed, such as "-h" and "--help".
    QStringList names;
    /// What the help calls its value, such as "FILE"; empty for an option without value.
    QString valueName;
    QString description;
};

/// The options that were declared to a parser, in the order of their declaration.
namespace DeclaredOptions {

QVector<DeclaredOption> of(const QCommandLineParser& parser);

} // namespace DeclaredOptions
