#include "Console.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>

#include "CommonOptions.h"
#include "DocumentProblem.h"
#include "PrintableText.h"

namespace {

/// The error number of the first failed write to standard output; 0 if none has failed.
int outputError = 0;

bool written(bool success)
{
    if (!success && outputError == 0)
        outputError = errno;
    return outputError == 0;
}

bool write(const QString& text, std::FILE* stream)
{
    const QByteArray bytes = text.toUtf8();
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stream) == size;
}

bool isTerminal(int descriptor)
{
    return ::isatty(descriptor) == 1;
}

bool isPipe(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
}

Console::Color chosenColor = Console::Color::Auto;

bool hasColors()
{
    if (chosenColor != Console::Color::Auto)
        return chosenColor == Console::Color::Always;
    return isTerminal(STDOUT_FILENO) && qEnvironmentVariableIsEmpty("NO_COLOR");
}

/// Guards standard error and the length of the progress line on it.
std::mutex errorMutex;
int progressLength = 0;

/// Writes to standard error in place of the progress line.
void writeError(const QString& text)
{
    const std::lock_guard<std::mutex> lock(errorMutex);
    if (progressLength > 0)
        write('\r' + QString(progressLength, ' ') + '\r', stderr);
    progressLength = 0;
    write(text, stderr);
}

} // namespace

void Console::setColor(Color color)
{
    chosenColor = color;
}

bool Console::printLine(const QString& line)
{
    return outputError == 0 && written(write(PrintableText::of(line) + '\n', stdout));
}

void Console::printText(const QString& text)
{
    for (const QString& line : text.split('\n'))
        printLine(line);
}

void Console::printDocument(const QString& text)
{
    QString shown = text.endsWith('\n') ? text : text + '\n';
    if (isOutputTerminal()) {
        QStringList lines = shown.remove('\r').split('\n');
        for (QString& line : lines) {
            QStringList cells = line.split('\t');
            std::transform(cells.begin(), cells.end(), cells.begin(), PrintableText::of);
            line = cells.join('\t');
        }
        shown = lines.join('\n');
    }
    if (outputError == 0)
        written(write(shown, stdout));
}

void Console::printHighlighted(const QString& before, const QString& highlighted, int color,
                               const QString& after)
{
    QString middle = PrintableText::of(highlighted);
    if (hasColors())
        middle = "\033[1;" + QString::number(color) + 'm' + middle + "\033[0m";
    const QString line = PrintableText::of(before) + middle + PrintableText::of(after) + '\n';
    if (outputError == 0)
        written(write(line, stdout));
}

bool Console::flush()
{
    return outputError == 0 && written(std::fflush(stdout) == 0);
}

bool Console::isInputTerminal()
{
    return isTerminal(STDIN_FILENO);
}

bool Console::isOutputTerminal()
{
    return isTerminal(STDOUT_FILENO);
}

bool Console::canShowProgress()
{
    return isTerminal(STDERR_FILENO) && !isPipe(STDOUT_FILENO);
}

void Console::showProgress(const QString& text)
{
    const QString line = "unitmanager: " + PrintableText::of(text);
    const std::lock_guard<std::mutex> lock(errorMutex);
    write('\r' + line.leftJustified(progressLength), stderr);
    progressLength = line.size();
}

void Console::eraseProgress()
{
    writeError({});
}

void Console::printError(const QString& message)
{
    writeError("unitmanager: " + PrintableText::of(message) + '\n');
}

ExitCode Console::report(const Failure& failure, const QString& usage)
{
    writeError(CommonOptions::failureText("unitmanager", failure, usage));
    return failure.exitCode;
}

int Console::finish(int exitCode)
{
    if (flush() || outputError == EPIPE)
        return exitCode;
    printError(QString("cannot write: %1").arg(QString::fromLocal8Bit(std::strerror(outputError))));
    return Failed;
}

QString Console::quoted(const QString& text)
{
    return DocumentProblem::quoted(text);
}
