#include "DocumentFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Closes a file descriptor at the end of its scope.
class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const
    {
        return m_number;
    }

private:
    const int m_number;
};

QString systemReason(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

/// Why the file does not exist.
QString missingReason(const QString& path)
{
    const QFileInfo info(path);
    if (info.isSymLink())
        return QStringLiteral("is a symbolic link to nothing");
    QString directory = info.absolutePath();
    if (QFileInfo::exists(directory))
        return QStringLiteral("no such file");
    while (!QFileInfo::exists(QFileInfo(directory).absolutePath()))
        directory = QFileInfo(directory).absolutePath();
    return QStringLiteral("no such directory: ") + directory;
}

/// Why the opened file must not be read; empty if it may be.
QString refusal(const struct stat& status, DocumentFile::Source source)
{
    if (S_ISDIR(status.st_mode))
        return QStringLiteral("is a directory");
    if (source == DocumentFile::Source::RegularFile && !S_ISREG(status.st_mode))
        return QStringLiteral("is not a regular file");
    if (!S_ISREG(status.st_mode) && !S_ISFIFO(status.st_mode) && !S_ISCHR(status.st_mode))
        return QStringLiteral("is not a file, pipe or character device");
    return {};
}

/// Waits until a stream can be read; a regular file always can be. Opened without blocking, a pipe would
/// otherwise appear empty until its writer has opened it.
void waitForInput(int descriptor)
{
    pollfd input = {descriptor, POLLIN, 0};
    ::poll(&input, 1, -1);
}

/// Appends at most @p most bytes. @return whether there was no error
bool append(int descriptor, QByteArray& bytes, int most)
{
    std::array<char, 65536> buffer{};
    while (bytes.size() < most) {
        waitForInput(descriptor);
        const auto space = std::min(buffer.size(), static_cast<std::size_t>(most - bytes.size()));
        const ssize_t count = ::read(descriptor, buffer.data(), space);
        if (count == 0)
            return true;
        if (count > 0)
            bytes.append(buffer.data(), static_cast<int>(count));
        else if (errno != EINTR && errno != EAGAIN)
            return false;
    }
    return true;
}

} // namespace

std::optional<QByteArray> DocumentFile::read(const QString& path, Source source, int limit,
                                             DocumentProblem& problem)
{
    const auto fail = [&problem](const QString& reason) {
        problem = {reason, {}};
        return std::nullopt;
    };
    const Descriptor file(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (file.number() < 0)
        return fail(errno == ENOENT ? missingReason(path) : systemReason(errno));
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0)
        return fail(systemReason(errno));
    const QString reason = refusal(status, source);
    if (!reason.isEmpty())
        return fail(reason);

    QByteArray bytes;
    const bool isTooLarge = S_ISREG(status.st_mode) && status.st_size > limit;
    if (!isTooLarge && !append(file.number(), bytes, limit + 1))
        return fail(systemReason(errno));
    if (isTooLarge || bytes.size() > limit)
        return fail(QStringLiteral("is larger than the limit of %1 bytes; see --max-size").arg(limit));
    return bytes;
}

std::optional<int> DocumentFile::limitFromText(const QString& text)
{
    const bool hasOnlyDigits = std::all_of(text.begin(), text.end(), [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    });
    bool isNumber = false;
    const int limit = text.toInt(&isNumber);
    if (!isNumber || !hasOnlyDigits || limit < 1 || limit > highestLimit)
        return {};
    return limit;
}
