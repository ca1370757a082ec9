#include "LogCapture.h"

namespace {

QList<LoggedMessage>& messages()
{
    static QList<LoggedMessage> list;
    return list;
}

QString withoutCompilerBlanks(const char* function)
{
    return QString::fromUtf8(function)
        .replace(QLatin1String(" &"), QLatin1String("&"))
        .replace(QLatin1String(" *"), QLatin1String("*"));
}

void capture(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    messages().append({type, text, QString::fromUtf8(context.file), context.line,
                       withoutCompilerBlanks(context.function), QString::fromUtf8(context.category)});
}

} // namespace

LogCapture::LogCapture() : m_previous(qInstallMessageHandler(capture))
{
    messages().clear();
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_previous);
}

QList<LoggedMessage> LogCapture::take()
{
    QList<LoggedMessage> taken;
    taken.swap(messages());
    return taken;
}

QStringList LogCapture::takeTexts()
{
    QStringList texts;
    for (const LoggedMessage& message : take())
        texts.append(message.text);
    return texts;
}
