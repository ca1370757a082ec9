#pragma once

#include <QtCore/QObject>
#include <QtCore/QSocketNotifier>

/// Delivers SIGTERM and SIGINT as a signal of the event loop.
///
/// The constructor blocks both signals for the rest of the process. Create one per process, after the
/// QCoreApplication and before any thread, because threads inherit the signal mask of their creator.
class TerminationSignal : public QObject
{
    Q_OBJECT

public:
    TerminationSignal();
    ~TerminationSignal() override;

Q_SIGNALS:
    /// The process was asked to terminate.
    void received();

private:
    void receive();

    const int m_descriptor;
    QSocketNotifier m_notifier;
};
