#include "ConfigurationDataAndProcessDescriptionAccess.h"

#include <QtCore/QByteArray>
#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtCore/QMessageLogger>
#include <QtCore/QTextCodec>

namespace {

/// Reads the bytes of a file. @return the reason for a failure; empty on success.
QString readBytes(const QFileInfo& info, QByteArray& bytes)
{
    if (info.filePath().isEmpty())
        return QStringLiteral("it has no name");
    if (!info.exists())
        return QStringLiteral("it does not exist");
    // Opening a pipe or a device could block.
    if (!info.isFile())
        return QStringLiteral("it is not a regular file");
    const qint64 maximumSize = ConfigurationDataAndProcessDescriptionAccess::getMaximumFileSize();
    if (info.size() > maximumSize)
        return QStringLiteral("it is larger than %1 bytes").arg(maximumSize);
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

/// Decodes UTF-8. @return the reason for a failure; empty on success.
QString decode(const QByteArray& bytes, QString& text)
{
    QTextCodec::ConverterState state;
    text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    const bool isValid = state.invalidChars == 0 && state.remainingChars == 0;
    return isValid ? QString() : QStringLiteral("it is not valid UTF-8");
}

} // namespace

qint64 ConfigurationDataAndProcessDescriptionAccess::getMaximumFileSize()
{
    return 64LL * 1024 * 1024;
}

QString ConfigurationDataAndProcessDescriptionAccess::getConfiguration(const QFileInfo& file) const
{
    QFileInfo current(file);
    current.refresh();
    QByteArray bytes;
    QString text;
    QString problem = readBytes(current, bytes);
    if (problem.isEmpty())
        problem = decode(bytes, text);
    if (problem.isEmpty())
        return text;
    QMessageLogger("ConfigurationTree/ConfigurationDataAndProcessDescriptionAccess", __LINE__, Q_FUNC_INFO)
            .warning()
        << "Cannot read configuration file" << file.filePath() << ":" << qUtf8Printable(problem);
    return {};
}
