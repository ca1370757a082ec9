#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMetaType>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// What a program printed and how it ended.
struct ToolRun
{
    /// The exit code; -1 for a program that did not start, crashed or did not end in time.
    int exitCode = -1;
    QByteArray standardOutput;
    QByteArray standardError;
};

/// Runs the command-line tool that the build has made.
namespace ToolProcess {

/// The tool's path.
QString path();
/// The options that name the test's own documents.
QStringList testDocuments();

/// The test's own environment with the system's messages in English, and without a forced hash seed, which Qt
/// would announce on standard error.
QProcessEnvironment plainEnvironment();

/// Runs the tool to its end.
ToolRun run(const QStringList& arguments, const QByteArray& standardInput = {},
            const QProcessEnvironment& environment = plainEnvironment());
/// Runs any program to its end.
ToolRun runProgram(const QString& program, const QStringList& arguments, const QByteArray& standardInput = {},
                   const QProcessEnvironment& environment = plainEnvironment());

} // namespace ToolProcess
