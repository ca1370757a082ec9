#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMetaType>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The output and the exit code of a program.
struct ToolRun
{
    /// The exit code; -1 if the program did not start, crashed or did not end in time.
    int exitCode = -1;
    QByteArray standardOutput;
    QByteArray standardError;
};

/// Runs the command-line tool from the build tree.
namespace ToolProcess {

/// The tool's path.
QString path();
/// The path of a document in the test's own data.
QString testData(const QString& name);
/// The options that select the test's own documents.
QStringList testDocuments();

/// The test's environment with system messages in English, and without a fixed hash seed, about which Qt
/// would print a message to standard error.
QProcessEnvironment plainEnvironment();

/// Runs the tool until it ends.
ToolRun run(const QStringList& arguments, const QByteArray& standardInput = {},
            const QProcessEnvironment& environment = plainEnvironment());
/// Runs any program until it ends.
ToolRun runProgram(const QString& program, const QStringList& arguments, const QByteArray& standardInput = {},
                   const QProcessEnvironment& environment = plainEnvironment());

/// A number in the kernel's status of a process, such as "VmHWM", its peak memory in kB; -1 if unknown.
qint64 statusNumber(qint64 processId, const QByteArray& key);

} // namespace ToolProcess
