#include "JsonText.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QTextCodec>

#include <algorithm>

#include "ConfigurationAndProcessDataParser.h"
#include "PropertyManagerConst.h"

namespace {

const char* const byteOrderMark = "\xEF\xBB\xBF";

JsonText withProblem(const QString& problem)
{
    return {{}, {}, problem};
}

/// A problem at the character after @p bytes.
JsonText withProblemAfter(const QByteArray& bytes, const QString& problem)
{
    const QString before = QString::fromUtf8(bytes);
    const auto line = before.count(QLatin1Char('\n')) + 1;
    const auto column = before.size() - before.lastIndexOf(QLatin1Char('\n'));
    return withProblem(QStringLiteral("line %1, column %2: %3").arg(line).arg(column).arg(problem));
}

/// Decodes UTF-8 and replaces invalid bytes. @return whether all bytes were valid.
bool decode(const QByteArray& bytes, QString& text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

/// The common prefix of both.
QByteArray commonBeginning(const QByteArray& left, const QByteArray& right)
{
    const auto ends = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    return left.left(static_cast<int>(ends.first - left.begin()));
}

/// The bytes before the one at which the parser failed. It has usually consumed that one already.
QByteArray bytesBefore(const QJsonParseError& error, const QByteArray& bytes)
{
    const bool isAhead =
        error.error == QJsonParseError::GarbageAtEnd || error.error == QJsonParseError::IllegalNumber;
    return bytes.left(isAhead ? error.offset : error.offset - 1);
}

bool isConfigurationTree(const QString& text)
{
    return !ConfigurationAndProcessDataParser()
                .parseFromJson(text, PropertyManagerConst::getConfigFileExtension())
                .isNull();
}

} // namespace

JsonText JsonText::fromBytes(const QByteArray& bytes)
{
    const QByteArray json = bytes.startsWith(byteOrderMark) ? bytes.mid(3) : bytes;
    if (json.trimmed().isEmpty())
        return withProblem(QStringLiteral("it is empty"));

    QString text;
    if (!decode(json, text))
        return withProblemAfter(commonBeginning(json, text.toUtf8()), QStringLiteral("it is not UTF-8"));

    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return withProblemAfter(bytesBefore(error, json), error.errorString());
    if (!document.isObject())
        return withProblem(QStringLiteral("its root is not an object"));
    // Faults that Qt's parser accepts.
    if (!isConfigurationTree(text))
        return withProblem(QStringLiteral("a string in it holds a control character or a broken escape"));
    return {text, document.object(), {}};
}
