#pragma once

#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>

/// SIGTERM and SIGINT as a signal of the event loop.
///
/// From its construction on the two wait to be received here, for good. One per process, built after the
/// QCoreApplication and before any thread: a thread keeps to what its creator did.
class TerminationSignal : public QObject
{
    Q_OBJECT

public:
    TerminationSignal();
    ~TerminationSignal() override;

signals:
    /// The process was asked to end.
    void received();

private:
    void receive();

    const int m_descriptor;
    QSocketNotifier m_notifier;
};
