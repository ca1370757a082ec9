#include "JsonDocumentFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTextCodec>

#include <algorithm>

namespace {

bool isContinuationByte(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// "PATH:LINE:COLUMN: REASON" for the byte at @p offset.
Failure failureAt(const QString& path, const QByteArray& bytes, int offset, const QString& reason)
{
    const QByteArray before = bytes.left(offset);
    const QByteArray line = before.mid(before.lastIndexOf('\n') + 1);
    const auto characters = line.size() - std::count_if(line.begin(), line.end(), isContinuationByte);
    return {QString("%1:%2:%3: %4").arg(path).arg(before.count('\n') + 1).arg(characters + 1).arg(reason)};
}

Result<QByteArray> readBytes(const QString& path)
{
    if (QFileInfo(path).isDir())
        return Failure{path + ": is a directory"};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failure{path + ": " + file.errorString()};
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return Failure{path + ": " + file.errorString()};
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    return bytes;
}

/// The first byte of the first character that is not UTF-8; -1 when there is none.
int invalidByte(const QByteArray& bytes)
{
    const QTextCodec* utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState whole;
    utf8->toUnicode(bytes.constData(), bytes.size(), &whole);
    if (whole.invalidChars == 0 && whole.remainingChars == 0)
        return -1;

    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    int characterStart = 0;
    for (int offset = 0; offset < bytes.size() && state.invalidChars == 0; ++offset) {
        if (state.remainingChars == 0)
            characterStart = offset;
        utf8->toUnicode(bytes.constData() + offset, 1, &state);
    }
    return characterStart;
}

/// The byte at which the parser failed. It has usually consumed that byte already.
int stumblingByte(const QJsonParseError& error, const QByteArray& bytes)
{
    const bool isAhead =
        error.error == QJsonParseError::GarbageAtEnd || error.error == QJsonParseError::IllegalNumber;
    return std::clamp(isAhead ? error.offset : error.offset - 1, 0, bytes.size());
}

} // namespace

Result<JsonDocumentFile::Document> JsonDocumentFile::read(const QString& path)
{
    const Result<QByteArray> bytes = readBytes(path);
    if (!bytes)
        return bytes.error();
    if (bytes->trimmed().isEmpty())
        return Document{};
    const int invalid = invalidByte(*bytes);
    if (invalid >= 0)
        return failureAt(path, *bytes, invalid, "not UTF-8");

    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(*bytes, &error);
    if (error.error != QJsonParseError::NoError)
        return failureAt(path, *bytes, stumblingByte(error, *bytes), error.errorString());
    if (!document.isObject())
        return Failure{path + ": is not a JSON object"};
    return Document{QString::fromUtf8(*bytes), !document.object().isEmpty()};
}
