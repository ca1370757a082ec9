#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

/// A message as the Qt message handler received it. Blanks before "&" and "*" are removed from the function
/// text, because compilers differ in them.
struct LoggedMessage
{
    QtMsgType type = QtDebugMsg;
    QString text;
    QString file;
    int line = 0;
    QString function;
    QString category;
};

/// Collects all messages logged during its lifetime instead of printing them. One instance at a time, for one
/// thread.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// Takes the messages logged since construction or the last take() out of the log, oldest first.
    QList<LoggedMessage> take();
    /// The texts of the messages, see take().
    QStringList takeTexts();

private:
    QtMessageHandler m_previous;
};
