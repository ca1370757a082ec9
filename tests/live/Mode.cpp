#include "Mode.h"

#include <QtCore/QRegularExpression>

QStringList Mode::words() const
{
    static const char* const readings[] = {"blocking", "asynchronous"};
    static const char* const changeWays[] = {"delivered", "polled"};
    static const char* const levels[] = {"wrapper", "connector", "machine"};
    static const char* const entries[] = {"immediate", "deferred"};
    return {QLatin1String(readings[reading]), QLatin1String(changeWays[changes]),
            QLatin1String(levels[level]), QLatin1String(entries[entry])};
}

bool Mode::fulfils(const QString& condition) const
{
    const QStringList own = words();
    for (const QString& word : condition.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (!own.contains(word))
            return false;
    }
    return true;
}

QStringList Mode::expected(const QStringList& description) const
{
    static const QRegularExpression conditional(QStringLiteral("^\\[([a-z ]*)\\] (.*)$"));
    QStringList lines;
    for (const QString& line : description) {
        const QRegularExpressionMatch match = conditional.match(line);
        if (!match.hasMatch())
            lines.append(expectedLine(line));
        else if (fulfils(match.captured(1)))
            lines.append(expectedLine(match.captured(2)));
    }
    return lines;
}

QString Mode::expectedLine(QString text) const
{
    static const QRegularExpression signalName(QStringLiteral("\\*\\w+"));
    text.replace(QLatin1String("{start}"),
                 QLatin1String(entry == Immediate ? "Initial Initial Initial" : "Initial"));
    text.replace(QLatin1String("{read}"),
                 QLatin1String(reading == Blocking ? "ReadConfigurationSynchron"
                                                   : "ReadConfigurationASynchron WaitForReply"));
    // A machine that enters states late still idles after the step that finds a change.
    text.replace(QLatin1String("{noticed}"), QLatin1String(entry == Immediate ? "" : "*initialized"));
    if (level != Connector)
        text.remove(signalName);
    return text.simplified();
}
