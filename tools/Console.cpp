#include "Console.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

#include "CommonOptions.h"
#include "DocumentProblem.h"
#include "PrintableText.h"

namespace {

/// The error number of the first failed write; 0 if none has failed.
int writeError = 0;

bool written(bool success)
{
    if (!success && writeError == 0)
        writeError = errno;
    return writeError == 0;
}

bool write(const QString& text, std::FILE* stream)
{
    const QByteArray bytes = text.toUtf8();
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stream) == size;
}

bool isTerminal()
{
    return ::isatty(STDOUT_FILENO) == 1;
}

Console::Color chosenColor = Console::Color::Auto;

bool hasColors()
{
    if (chosenColor != Console::Color::Auto)
        return chosenColor == Console::Color::Always;
    return isTerminal() && qEnvironmentVariableIsEmpty("NO_COLOR");
}

} // namespace

void Console::setColor(Color color)
{
    chosenColor = color;
}

bool Console::printLine(const QString& line)
{
    return writeError == 0 && written(write(PrintableText::of(line) + '\n', stdout));
}

void Console::printText(const QString& text)
{
    for (const QString& line : text.split('\n'))
        printLine(line);
}

void Console::printDocument(const QString& text)
{
    QString shown = text.endsWith('\n') ? text : text + '\n';
    if (isTerminal()) {
        QStringList lines = shown.remove('\r').split('\n');
        for (QString& line : lines) {
            QStringList cells = line.split('\t');
            std::transform(cells.begin(), cells.end(), cells.begin(), PrintableText::of);
            line = cells.join('\t');
        }
        shown = lines.join('\n');
    }
    if (writeError == 0)
        written(write(shown, stdout));
}

void Console::printHighlighted(const QString& before, const QString& highlighted, int color,
                               const QString& after)
{
    QString middle = PrintableText::of(highlighted);
    if (hasColors())
        middle = "\033[1;" + QString::number(color) + 'm' + middle + "\033[0m";
    const QString line = PrintableText::of(before) + middle + PrintableText::of(after) + '\n';
    if (writeError == 0)
        written(write(line, stdout));
}

bool Console::flush()
{
    return writeError == 0 && written(std::fflush(stdout) == 0);
}

void Console::printError(const QString& message)
{
    write("unitmanager: " + PrintableText::of(message) + '\n', stderr);
}

ExitCode Console::report(const Failure& failure, const QString& usage)
{
    write(CommonOptions::failureText("unitmanager", failure, usage), stderr);
    return failure.exitCode;
}

int Console::finish(int exitCode)
{
    if (flush() || writeError == EPIPE)
        return exitCode;
    printError(QString("cannot write: %1").arg(QString::fromLocal8Bit(std::strerror(writeError))));
    return Failed;
}

QString Console::quoted(const QString& text)
{
    return DocumentProblem::quoted(text);
}
