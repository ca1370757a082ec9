#include "Console.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "CommonOptions.h"

namespace {

const int longestQuotation = 60;

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

} // namespace

bool Console::printLine(const QString& line)
{
    return writeError == 0 && written(write(line + '\n', stdout));
}

bool Console::flush()
{
    return writeError == 0 && written(std::fflush(stdout) == 0);
}

void Console::printError(const QString& message)
{
    write("unitmanager: " + message + '\n', stderr);
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
    QString shown = text.left(longestQuotation);
    for (QChar& character : shown) {
        if (!character.isPrint() && !character.isSurrogate())
            character = '?';
    }
    return '\'' + shown + (text.size() > longestQuotation ? "...'" : "'");
}
