#pragma once

#include <QtCore/QString>

/// The program's standard output and standard error, always in UTF-8. One thread.
namespace Console {

/// Prints a line on standard output, which is buffered.
///
/// @return false once writing has failed: nothing more will arrive
bool printLine(const QString& line);
/// Hands on what is buffered. @return as printLine()
bool flush();
/// Prints "unitmanager: " and a message on standard error.
void printError(const QString& message);

/// Flushes and gives the program's exit code: @p exitCode, or 1 with a message when the output could not be
/// written. A reader that left early is no failure and gets no message.
int finish(int exitCode);

/// Text from outside as part of a message: in quotes, without control characters, long text cut.
QString quoted(const QString& text);

} // namespace Console
