#pragma once

#include <QtCore/QString>

#include "Result.h"

/// The program's standard output and standard error, always in UTF-8. Every line is made safe for terminals
/// by PrintableText. For one thread only, except showProgress().
namespace Console {

/// When output is colored.
enum class Color
{
    /// On a terminal, unless the environment variable NO_COLOR is set.
    Auto,
    Always,
    Never
};
/// Selects when output is colored; Color::Auto at first.
void setColor(Color color);

/// Prints a line to standard output, which is buffered.
///
/// @return false once writing has failed: no further output will arrive
bool printLine(const QString& line);
/// Prints a text of several lines to standard output.
void printText(const QString& text);
/// Prints a document unchanged, with a line break at its end. On a terminal, only tabs and line breaks remain
/// of its control characters.
void printDocument(const QString& text);
/// Prints a line of three parts, the middle one in a color; see setColor().
///
/// @param color the number of an ANSI color, such as 31 for red
void printHighlighted(const QString& before, const QString& highlighted, int color, const QString& after);
/// Writes the buffered output. @return false once writing has failed
bool flush();
/// Whether standard input, or standard output, is a terminal.
bool isInputTerminal();
bool isOutputTerminal();

/// Whether nothing else is shown on the terminal of standard error while a result is awaited: standard output
/// is not a pipe, whose reader may use the same terminal. @return false if standard error is not a terminal
bool canShowProgress();
/// Replaces the progress line on standard error, which has no line break. For any thread.
void showProgress(const QString& text);
/// Erases the progress line, if there is one.
void eraseProgress();
/// Prints "unitmanager: " and a message to standard error, in place of the progress line.
void printError(const QString& message);
/// Prints the reason of a failure and, if the command line was wrong, the correct usage.
///
/// @param usage the form of the command line, such as "unitmanager units [options] TYPE"
/// @return the failure's exit code
ExitCode report(const Failure& failure, const QString& usage);

/// Flushes and returns the program's exit code: @p exitCode, or 1 with a message if the output could not be
/// written. A reader that closed the pipe early is not a failure and gets no message.
int finish(int exitCode);

/// Formats external text for a message; see DocumentProblem::quoted().
QString quoted(const QString& text);

} // namespace Console
