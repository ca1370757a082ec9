#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

/// One message as the Qt message handler received it. The function text has no blank before "&" and "*",
/// which compilers spell differently.
struct LoggedMessage
{
    QtMsgType type = QtDebugMsg;
    QString text;
    QString file;
    int line = 0;
    QString function;
    QString category;
};

/// Collects every message logged while it lives, instead of printing it. One at a time, one thread.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// The messages since construction or the last take(), oldest first; they are forgotten here.
    QList<LoggedMessage> take();
    /// The texts of take().
    QStringList takeTexts();

private:
    QtMessageHandler m_previous;
};
