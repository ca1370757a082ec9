#include "MessageText.h"

namespace {

QString levelText(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        return QStringLiteral("fatal");
    }
    return QString::number(type);
}

} // namespace

QString messageText(const LoggedMessage& message)
{
    const QString line = message.line == anyLine ? QStringLiteral("any") : QString::number(message.line);
    return QStringLiteral("%1 %2:%3 %4 [%5] |")
               .arg(levelText(message.type), message.file, line, message.function, message.category) +
           message.text + QLatin1Char('|');
}

QStringList messageTexts(const QList<LoggedMessage>& messages, LineNumbers lineNumbers)
{
    QStringList texts;
    for (LoggedMessage message : messages) {
        if (lineNumbers == LineNumbers::Any && message.line > 0)
            message.line = anyLine;
        texts.append(messageText(message));
    }
    return texts;
}

QString warningText(const QString& file, int line, const QString& function, const QString& text)
{
    return messageText({QtWarningMsg, text, file, line, function, QStringLiteral("default")});
}
